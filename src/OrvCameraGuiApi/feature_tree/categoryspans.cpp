// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/categoryspans.h>

#include <OrvCameraGuiApi/feature_tree/categorywalk.h>

#include <QTreeView>

/** From top to bottom: the tree searches for each row near the former. Reading may take its model away: OpenCalls. */
void setSpanForChildren(QTreeView &tree, const QModelIndex &parent, int first, int last)
{
    const QAbstractItemModel *const model = tree.model();
    if (!model)
        return;
    forEachCategory(*model, parent, first, last, [&](const QModelIndex &index, size_t) {
        if (tree.model() == model)
            tree.setFirstColumnSpanned(index.row(), index.parent(), true);
    });
}

void setSpanForChildren(QTreeView &tree, const QModelIndex &parent)
{
    const QAbstractItemModel *const model = tree.model();
    const int count = model ? model->rowCount(parent) : 0;
    if (tree.model() == model)
        setSpanForChildren(tree, parent, 0, count - 1);
}
