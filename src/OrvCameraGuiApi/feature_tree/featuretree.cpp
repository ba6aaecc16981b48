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

/**
 * By their places and not each as the one below the last: a category that stands in several places has the same rows in
 * all of them, and Qt would go on at the place that it comes upon first, for ever if that is the one above.
 */
QVector<FeatureTree::Row> FeatureTree::rowsOnScreen() const
{
    const int x = header()->sectionViewportPosition(header()->logicalIndex(0));
    const QSize size = viewport()->size();
    QVector<Row> rows;
    QModelIndex index = indexAt(QPoint(x, 0));
    const int height = index.isValid() ? qMax(1, rowHeight(index)) : 1;
    for (int top = -(verticalOffset() % height); index.isValid() && top < size.height();) {
        rows.append({index, QRect(0, top, size.width(), height)});
        top += height;
        index = indexAt(QPoint(x, top));
    }
    return rows;
}

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
    if (!concerns(topLeft, bottomRight))
        return;
    QTreeView::dataChanged(topLeft, bottomRight, roles);
    if (isElsewhereToo(topLeft))
        viewport()->update();
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
    const QVector<Row> rows = rowsOnScreen();
    for (const Row &row : rows)
        ++m_rowsOnScreen[identityOf(row.index)];
}

/** A name counts always, as the tree asks then whether its row has others below it. */
bool FeatureTree::concerns(const QModelIndex &topLeft, const QModelIndex &bottomRight) const
{
    const bool isOneValue = topLeft == bottomRight && topLeft.column() > 0;
    return !isOneValue || m_rowsOnScreen.isEmpty() || !uniformRowHeights() || QAccessible::isActive()
        || m_rowsOnScreen.contains(identityOf(topLeft)) || isPersistentEditorOpen(topLeft);
}

/** Whether a row on the screen is, or may be, in another place than the one that Qt takes it to be in. */
bool FeatureTree::isElsewhereToo(const QModelIndex &index) const
{
    const int places = m_rowsOnScreen.value(identityOf(index));
    return places > 1 || (places == 1 && !visualRect(index).intersects(viewport()->rect()));
}
