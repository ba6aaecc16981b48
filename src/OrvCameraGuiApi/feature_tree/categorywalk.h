// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <vector>

/**
 * The first category among the rows \a row to \a last of \a parent, or -1. The model is a GenParamTreeModel, directly
 * or behind proxies; the filter knows the answer without asking row by row.
 */
int nextCategory(const QAbstractItemModel &model, const QModelIndex &parent, int row, int last);

/**
 * Calls \a visit with every category among the rows \a first to \a last of \a parent and inside these, from top to
 * bottom, and with its depth below \a parent, from 0 on. Not recursive: a description decides how deep categories are
 * nested. The rows must not change meanwhile.
 */
template <typename Visit>
void forEachCategory(const QAbstractItemModel &model, const QModelIndex &parent, int first, int last, Visit visit)
{
    struct Level
    {
        QModelIndex parent;
        int next;
        int last;
    };
    std::vector<Level> levels{{parent, first, last}};
    while (!levels.empty()) {
        Level &level = levels.back();
        const int row = nextCategory(model, level.parent, level.next, level.last);
        if (row < 0) {
            levels.pop_back();
            continue;
        }
        level.next = row + 1;
        const QModelIndex index = model.index(row, GenParamTreeModel::NameColumn, level.parent);
        visit(index, levels.size() - 1);
        levels.push_back({index, 0, model.rowCount(index) - 1});
    }
}
