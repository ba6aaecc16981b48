// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featureselection.h>

#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <utility>

FeatureSelection::FeatureSelection(QAbstractItemModel *model, FeatureTree *tree)
    : QItemSelectionModel(model, tree)
    , m_tree(tree)
{
    connect(model, &QObject::destroyed, this, &QObject::deleteLater);
}

void FeatureSelection::setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command)
{
    const OpenCalls::Call call;
    // Qt passes indexes to slots by reference. These stay valid when a slot takes the row away.
    const QPersistentModelIndex former(currentIndex());
    QPersistentModelIndex target(index);
    if (target != former && m_tree->selectionModel() == this) {
        const QPersistentModelIndex outer = std::exchange(m_target, target);
        m_tree->endEditing(former);
        target = std::exchange(m_target, outer);
        if (index.isValid() && !target.isValid())
            return;
    }
    QItemSelectionModel::setCurrentIndex(target, command);
}

void FeatureSelection::select(const QItemSelection &selection, QItemSelectionModel::SelectionFlags command)
{
    const OpenCalls::Call call;
    QItemSelectionModel::select(selection, command);
}
