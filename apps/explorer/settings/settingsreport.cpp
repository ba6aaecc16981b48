// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingsreport.h"

#include <OrvCameraGuiApi/windows/fitscreen.h>
#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int featureRole = Qt::UserRole;

class ReportModel : public QAbstractTableModel
{
public:
    ReportModel(QStringList columns, QVector<ReportRow> rows, QObject *parent)
        : QAbstractTableModel(parent)
        , m_columns(std::move(columns))
        , m_rows(std::move(rows))
    {
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const ReportRow &row = m_rows.at(index.row());
        const QString text = row.cells.value(index.column());
        if (role == Qt::DisplayRole)
            return text;
        if (role == Qt::ToolTipRole)
            return plainToolTip(text);
        return role == featureRole ? QVariant(row.feature) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
        return isTitle ? QVariant(m_columns.value(section)) : QVariant();
    }

    QString textOf(int row) const { return m_rows.at(row).cells.join(QLatin1Char('\t')); }
    QString title() const { return m_columns.join(QLatin1Char('\t')); }

private:
    const QStringList m_columns;
    const QVector<ReportRow> m_rows;
};

} // namespace

SettingsReport::SettingsReport(const QString &title, const QString &summary, const QStringList &columns,
                               QVector<ReportRow> rows, QWidget *parent)
    : QDialog(parent)
    , m_view(new QTreeView(this))
    , m_putBack(new QPushButton(tr("&Put Back"), this))
{
    constexpr QSize usualSize(820, 420);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    resize(usualSize);
    openWithinScreen(*this);
    auto *const label = new QLabel(summary, this);
    label->setObjectName(QStringLiteral("summary"));
    label->setTextFormat(Qt::PlainText); // a camera or a file may have a part in it
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    m_view->setModel(new ReportModel(columns, std::move(rows), m_view));
    m_view->setAccessibleName(title);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setTabKeyNavigation(false);
    for (int column = 0; column + 1 < columns.size(); ++column) {
        m_view->resizeColumnToContents(column);
        m_view->setColumnWidth(column, qMin(m_view->columnWidth(column), usualSize.width() / int(columns.size())));
    }
    m_view->setVisible(m_view->model()->rowCount() > 0);
    connect(m_view, &QTreeView::activated, this, &SettingsReport::choose);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const copying = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copying->setToolTip(tr("Copy the lines that are selected, or all of them"));
    copying->setAutoDefault(false);
    connect(copying, &QPushButton::clicked, this, &SettingsReport::copy);
    buttons->addButton(m_putBack, QDialogButtonBox::ActionRole);
    m_putBack->setObjectName(QStringLiteral("putBack"));
    m_putBack->setToolTip(tr("Write what the camera had before"));
    m_putBack->setAutoDefault(false);
    m_putBack->hide();
    connect(m_putBack, &QPushButton::clicked, this, [this] {
        withdrawPutBack();
        Q_EMIT putBackWanted();
    });
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_view, 1);
    layout->addWidget(buttons);
}

void SettingsReport::offerPutBack()
{
    m_canPutBack = true;
    m_putBack->show();
}

void SettingsReport::withdrawPutBack()
{
    m_canPutBack = false;
    m_putBack->setEnabled(false);
}

void SettingsReport::setReachable(bool reachable)
{
    m_putBack->setEnabled(reachable && m_canPutBack);
}

/** Return leads to the feature: it must not press the button that closes. */
void SettingsReport::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (m_view->hasFocus() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void SettingsReport::copy()
{
    const auto &model = *static_cast<const ReportModel *>(m_view->model());
    const QModelIndexList selected = m_view->selectionModel()->selectedRows();
    QVector<int> rows;
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    for (int row = 0; selected.isEmpty() && row < model.rowCount(); ++row)
        rows.append(row);
    std::sort(rows.begin(), rows.end());
    QString text = model.title() + QLatin1Char('\n');
    for (const int row : std::as_const(rows))
        text += model.textOf(row) + QLatin1Char('\n');
    QApplication::clipboard()->setText(text);
}

void SettingsReport::choose(const QModelIndex &index)
{
    const QString feature = index.data(featureRole).toString();
    if (!feature.isEmpty())
        Q_EMIT featureChosen(feature);
}
