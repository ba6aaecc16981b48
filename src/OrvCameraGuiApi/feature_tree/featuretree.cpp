#include <OrvCameraGuiApi/feature_tree/featuretree.h>

#include <QAccessible>
#include <QHeaderView>
#include <QPointer>

namespace {

QPair<quintptr, int> identityOf(const QModelIndex &index)
{
    return {index.internalId(), index.row()};
}

} // namespace

void FeatureTree::endEditing(const QModelIndex &index)
{
    const QPersistentModelIndex edited(index);
    const QPointer<QWidget> editor(indexWidget(index));
    if (!editor)
        return;
    commitData(editor);
    // What came of the write may have closed it already.
    if (editor && indexWidget(edited) == editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void FeatureTree::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    if (concerns(topLeft, bottomRight))
        QTreeView::dataChanged(topLeft, bottomRight, roles);
}

/** Before anything is painted: what is painted may change what has been painted already. */
void FeatureTree::paintEvent(QPaintEvent *event)
{
    executeDelayedItemsLayout();
    findRowsOnScreen();
    QTreeView::paintEvent(event);
}

void FeatureTree::findRowsOnScreen()
{
    m_rowsOnScreen.clear();
    const int x = header()->sectionViewportPosition(header()->logicalIndex(0));
    QModelIndex index = indexAt(QPoint(x, 0));
    m_knowsRowsOnScreen = index.isValid();
    for (; index.isValid() && visualRect(index).top() < viewport()->height(); index = indexBelow(index))
        m_rowsOnScreen.insert(identityOf(index));
}

/** A name counts always, as the tree asks then whether its row has others below it. */
bool FeatureTree::concerns(const QModelIndex &topLeft, const QModelIndex &bottomRight) const
{
    const bool isOneValue = topLeft == bottomRight && topLeft.column() > 0;
    return !isOneValue || !m_knowsRowsOnScreen || !uniformRowHeights() || QAccessible::isActive()
        || m_rowsOnScreen.contains(identityOf(topLeft)) || isPersistentEditorOpen(topLeft);
}
