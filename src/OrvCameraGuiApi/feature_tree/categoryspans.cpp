#include <OrvCameraGuiApi/feature_tree/categoryspans.h>

#include <OrvCameraGuiApi/feature_tree/categorywalk.h>

#include <QTreeView>

/** From top to bottom: the tree looks for each row near the one before. */
void setSpanForChildren(QTreeView &tree, const QModelIndex &parent, int first, int last)
{
    forEachCategory(*tree.model(), parent, first, last, [&](const QModelIndex &index, size_t) {
        tree.setFirstColumnSpanned(index.row(), index.parent(), true);
    });
}

void setSpanForChildren(QTreeView &tree, const QModelIndex &parent)
{
    setSpanForChildren(tree, parent, 0, tree.model()->rowCount(parent) - 1);
}
