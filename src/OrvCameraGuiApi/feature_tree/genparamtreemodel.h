#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>

#include <GenApi/GenApi.h>

#include <QAbstractItemModel>
#include <QScopedPointer>

class GenParamTreeModelPrivate;

Q_DECLARE_METATYPE(GenApi::IValue *)

/**
 * The features of a node map: names in column 0, values in column 1, categories with rows of their own.
 *
 * The tree is built once, in the constructor. A feature that several categories list is a row of each of them, but its
 * parent() and the cell that is reported as changed are those of its first occurrence; this is intentional. Nothing but
 * names is kept: values are read when they are asked for, and only by the roles that need them.
 *
 * There is an end to every tree: a category is a row without rows inside itself, below 1000 others, and where it is
 * listed again when there are a million rows already.
 *
 * What GenApi throws never leaves the model. A failed read of a value is recorded under the role that was read, a
 * failed write under ValueInterfaceRole, and announced once. Lives on one thread, the GUI's; nodes may change on any.
 */
class GenParamTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn = 0, ValueColumn = 1 };

    enum Role {
        ValueInterfaceRole = Qt::UserRole, ///< GenApi::IValue*, in both columns
        ControlDataRole = Qt::UserRole + 1, ///< ControlData with a new editor that the caller owns, in both columns
        FeatureNameRole = Qt::UserRole + 100 ///< the node's GenICam name, in both columns; asks no node
    };

    /** \a nodeMap stays the caller's and outlives the model; null, or one without "Root", gives no rows. */
    GenParamTreeModel(GenApi::INodeMap *nodeMap, QObject *parent);

    /** Shows the node map behind \a params, which stays the caller's and outlives the model; may be null. */
    GenParamTreeModel(OrvGenParam::Array *params, QObject *parent);

    /** Deregisters from all nodes; changes that are still on their way from other threads are dropped. */
    ~GenParamTreeModel() override;

    /**
     * Lets go of the node map, for good: from now on there are no rows and no callbacks, and an index that somebody
     * still holds asks no node. The node map may go before the model does. The memory that the features take is freed
     * now too, unless a call is on the stack that may be using it.
     */
    void release();

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;

    /**
     * In the row of \a index itself another cell of the same feature, though the row may not be among its parent()'s:
     * that is the one of the first occurrence. In another row a cell of that parent().
     */
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /**
     * Writes the value of a feature, for Qt::EditRole in the value column, or executes a command. False when GenApi
     * refuses, which is recorded, and when \a value does not convert to the feature's type, which is not: then nothing
     * was written.
     */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /** Forgets that \a role of the feature at \a index failed; errorDisappeared() tells of it. */
    void clearError(const QModelIndex &index, int role);

    /** Forgets all failures, without a word. */
    void clearErrors();

Q_SIGNALS:
    /** A read (Qt's roles) or write (ValueInterfaceRole) of the feature failed that did not fail before. */
    void errorAppeared(const QModelIndex &index, const QString &featureName, const QString &message, int role);

    /** What failed before went well; for ValueInterfaceRole: a write went well, whether or not one failed before. */
    void errorDisappeared(const QModelIndex &index, const QString &featureName, int role);

    /** A write of the feature failed, whether or not one failed before. */
    void writeFailed(const QModelIndex &index);

private:
    friend class GenParamTreeModelPrivate;

    GenParamErrorController m_errors;
    const QScopedPointer<GenParamTreeModelPrivate> d;
};
