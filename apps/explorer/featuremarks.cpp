// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featuremarks.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QPainter>
#include <QTreeView>

using OrvGui::OrvGenParamTreeView;

FeatureMarks::FeatureMarks(OrvGenParamTreeView &view, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_view(view)
{
}

void FeatureMarks::mark(const QStringList &features)
{
    m_marked = QSet<QString>(features.cbegin(), features.cend());
    QTreeView *const tree = m_view.treeView();
    tree->setItemDelegateForColumn(0, m_marked.isEmpty() ? nullptr : this);
    tree->viewport()->update();
}

QModelIndex FeatureMarks::indexOf(const QString &feature) const
{
    const QAbstractItemModel *const model = m_view.treeView()->model();
    if (!model)
        return {};
    const Qt::MatchFlags flags = Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive;
    return model->match(model->index(0, 0), OrvGenParamTreeView::FeatureNameRole, feature, 1, flags).value(0);
}

bool FeatureMarks::goTo(const QString &feature)
{
    const QString filter = m_view.filterText();
    const auto visibility = m_view.visibility();
    QModelIndex index = indexOf(feature);
    if (!index.isValid() && !filter.isEmpty()) {
        m_view.setFilterText(QString());
        index = indexOf(feature);
    }
    if (!index.isValid()) {
        m_view.setVisibility(OrvGui::Guru);
        index = indexOf(feature);
    }
    if (!index.isValid()) {
        m_view.setVisibility(visibility);
        m_view.setFilterText(filter);
        return false;
    }
    m_view.treeView()->setCurrentIndex(index);
    m_view.treeView()->scrollTo(index);
    return true;
}

/** The view's own, which draws the names. */
QAbstractItemDelegate &FeatureMarks::usual() const
{
    return *m_view.treeView()->itemDelegate();
}

void FeatureMarks::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    usual().paint(painter, option, index);
    if (!m_marked.contains(index.data(OrvGenParamTreeView::FeatureNameRole).toString()))
        return;
    const int width = qMax(2, option.fontMetrics.averageCharWidth() / 3);
    QRect bar = option.rect;
    bar.setWidth(width);
    if (option.direction == Qt::RightToLeft)
        bar.moveRight(option.rect.right());
    painter->fillRect(bar, option.palette.color(QPalette::Active, QPalette::Link));
}

QSize FeatureMarks::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return usual().sizeHint(option, index);
}

bool FeatureMarks::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    return usual().editorEvent(event, model, option, index);
}

bool FeatureMarks::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    return usual().helpEvent(event, view, option, index);
}
