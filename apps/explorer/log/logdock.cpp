// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "logdock.h"

#include "settings/settingsfile.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

/** Lines of a level or above, with a text anywhere in them. */
class LogDock::Filter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void set(const QString &text, LogLevel level)
    {
        m_text = text;
        m_level = level;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &) const override
    {
        const auto &log = *static_cast<const EventLog *>(sourceModel());
        if (log.index(row, 0).data(EventLog::LevelRole).toInt() < int(m_level))
            return false;
        const QString shown = log.lineOf(row).section(QLatin1Char(' '), 1); // without the day
        return m_text.isEmpty() || shown.contains(m_text, Qt::CaseInsensitive);
    }

private:
    QString m_text;
    LogLevel m_level = LogLevel::Information;
};

LogDock::LogDock(QWidget *parent)
    : QDockWidget(tr("Log"), parent)
    , m_log(new EventLog(this))
    , m_filter(new Filter(this))
    , m_text(new QLineEdit(this))
    , m_level(new QComboBox(this))
    , m_view(new QTreeView(this))
{
    setObjectName(QStringLiteral("log"));
    m_filter->setSourceModel(m_log);
    auto *const content = new QWidget(this);
    auto *const bar = new QWidget(content);
    createBar(*bar);
    createView();
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_view, 1);
    setWidget(content);
    setTabOrder(m_text, m_level);
}

LogDock::~LogDock() = default;

void LogDock::createBar(QWidget &bar)
{
    m_text->setPlaceholderText(tr("Filter"));
    m_text->setAccessibleName(tr("Filter"));
    m_text->setToolTip(tr("Show only lines that have this text in them; Escape clears it"));
    auto *const clearing = new QAction(m_text); // no clear button: Qt leaks its animation when the window goes
    clearing->setShortcut(Qt::Key_Escape);
    clearing->setShortcutContext(Qt::WidgetShortcut);
    connect(clearing, &QAction::triggered, m_text, &QLineEdit::clear);
    m_text->addAction(clearing);
    connect(m_text, &QLineEdit::textChanged, this, &LogDock::updateFilter);
    m_level->addItem(tr("Everything"), int(LogLevel::Information));
    m_level->addItem(tr("Writes and errors"), int(LogLevel::Write));
    m_level->addItem(tr("Errors"), int(LogLevel::Error));
    m_level->setAccessibleName(tr("Kinds"));
    m_level->setToolTip(tr("The kinds of lines that are shown"));
    connect(m_level, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LogDock::updateFilter);
    auto *const layout = new QHBoxLayout(&bar);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_level);
    const auto addButton = [&](const QString &text, const QString &tip, auto slot) {
        auto *const button = new QToolButton(&bar);
        button->setText(text);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, slot);
        layout->addWidget(button);
    };
    addButton(tr("Copy"), tr("Copy the lines that are selected, or all that are shown"),
              [this] { QApplication::clipboard()->setText(shownText(m_view->selectionModel()->hasSelection())); });
    addButton(tr("Save..."), tr("Write the lines that are shown into a file"), &LogDock::askForFile);
    addButton(tr("Clear"), tr("Remove all lines"), [this] { m_log->clear(); });
}

void LogDock::createView()
{
    m_view->setModel(m_filter);
    m_view->setAccessibleName(tr("Log"));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setTabKeyNavigation(false);
    m_view->setColumnWidth(EventLog::TimeColumn, fontMetrics().averageCharWidth() * 15);
    m_view->setColumnWidth(EventLog::LevelColumn, fontMetrics().averageCharWidth() * 9);
    m_view->setColumnWidth(EventLog::FeatureColumn, fontMetrics().averageCharWidth() * 26);
    auto *const copying = new QAction(tr("Copy"), m_view);
    copying->setShortcut(QKeySequence::Copy);
    copying->setShortcutContext(Qt::WidgetShortcut);
    connect(copying, &QAction::triggered, this, [this] { QApplication::clipboard()->setText(shownText(true)); });
    m_view->addAction(copying);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_view, &QTreeView::activated, this, [this](const QModelIndex &index) {
        const QString feature = index.siblingAtColumn(EventLog::FeatureColumn).data().toString();
        if (!feature.isEmpty())
            Q_EMIT featureChosen(feature);
    });
    connect(m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar *const bar = m_view->verticalScrollBar();
        m_isAtEnd = bar->value() == bar->maximum();
    });
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &LogDock::follow, Qt::QueuedConnection);
}

/** Unless a person is reading further up. */
void LogDock::follow()
{
    if (m_isAtEnd)
        m_view->scrollToBottom();
}

void LogDock::updateFilter()
{
    m_filter->set(m_text->text(), LogLevel(m_level->currentData().toInt()));
    m_view->scrollToBottom();
}

QString LogDock::shownText(bool selectedOnly) const
{
    QVector<int> rows;
    if (selectedOnly) {
        const QModelIndexList selected = m_view->selectionModel()->selectedRows();
        for (const QModelIndex &index : selected)
            rows.append(m_filter->mapToSource(index).row());
        std::sort(rows.begin(), rows.end());
    } else {
        for (int row = 0; row < m_filter->rowCount(); ++row)
            rows.append(m_filter->mapToSource(m_filter->index(row, 0)).row());
    }
    QString text;
    for (const int row : std::as_const(rows))
        text += m_log->lineOf(row) + QLatin1Char('\n');
    return text;
}

void LogDock::askForFile()
{
    auto *const dialog = new QFileDialog(this, tr("Save Log"), QString(), tr("Texts (*.txt *.log);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &LogDock::saveTo);
    dialog->open();
}

void LogDock::saveTo(const QString &path)
{
    try {
        writeWhole(shownText(false).toUtf8(), path);
        Q_EMIT told(tr("The log has been saved in '%1'.").arg(path));
    } catch (const SettingsError &e) {
        Q_EMIT told(e.message);
    }
}
