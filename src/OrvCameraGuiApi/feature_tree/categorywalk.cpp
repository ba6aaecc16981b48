// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/categorywalk.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

int nextCategory(const QAbstractItemModel &model, const QModelIndex &parent, int row, int last)
{
    if (const auto *const filter = qobject_cast<const GenParamTreeVisibilityFilterProxyModel *>(&model)) {
        const int next = filter->nextCategory(parent, row);
        return next <= last ? next : -1;
    }
    for (; row <= last; ++row) {
        const QModelIndex index = model.index(row, GenParamTreeModel::NameColumn, parent);
        if (isCategory(index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>()))
            return row;
    }
    return -1;
}
