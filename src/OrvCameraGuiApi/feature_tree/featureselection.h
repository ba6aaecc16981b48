#pragma once

#include <QItemSelectionModel>

class FeatureTree;

/**
 * The current item and the selection of a feature tree. What is entered in an open editor is written before the current
 * item moves, as the write may change rows, and the current item with them: Qt would go on with indexes from before.
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

    /** Where the current item is about to move; invalid when it is not, or when it has been taken away. @{ */
    QModelIndex target() const { return m_target; }
    void setTarget(const QModelIndex &index) { m_target = index; }
    /** @} */

private:
    FeatureTree *const m_tree;
    QPersistentModelIndex m_target;
};
