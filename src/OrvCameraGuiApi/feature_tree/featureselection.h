// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QItemSelectionModel>

class FeatureTree;

/**
 * The current item and the selection of a feature tree. The entry in an open editor is written before the current item
 * moves: the write may change rows, and with them the current item, and Qt would go on with former indexes.
 */
class FeatureSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    /** \a tree owns it and is not null, nor is \a model. */
    FeatureSelection(QAbstractItemModel *model, FeatureTree *tree);

    using QItemSelectionModel::select;

    void setCurrentIndex(const QModelIndex &index, QItemSelectionModel::SelectionFlags command) override;
    void select(const QItemSelection &selection, QItemSelectionModel::SelectionFlags command) override;

    /** The index to which the current item is about to move; invalid otherwise, and when the row is gone. @{ */
    QModelIndex target() const { return m_target; }
    void setTarget(const QModelIndex &index) { m_target = index; }
    /** @} */

private:
    FeatureTree *const m_tree;
    QPersistentModelIndex m_target;
};
