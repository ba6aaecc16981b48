// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>

#include <GenApi/GenApi.h>

#include <QAbstractItemModel>
#include <QScopedPointer>

#include <functional>

class GenParamTreeModelPrivate;

Q_DECLARE_METATYPE(GenApi::IValue *)

/** The feature that a row of the feature tree shows; null for an invalid index. Asks no node. */
inline GenApi::IValue *featureAt(const QModelIndex &index);

/** Its node; null when there is none. */
GenApi::INode *nodeAt(const QModelIndex &index);

/**
 * The features of a node map: names in column 0, values in column 1; a category has its features as child rows.
 *
 * The tree is built once, in the constructor. A feature that several categories list is a row of each of them, but its
 * parent() and the cell that is reported as changed are those of its first occurrence; this is intentional. The model
 * keeps only names. It reads a value when a role is asked for that needs it.
 *
 * The tree is always finite. A category gets no children when it is its own ancestor, when it is nested 1,000 deep, or
 * when it is a repeat and the tree already has a million rows.
 *
 * Exceptions of GenApi never leave the model. A failed read of a value is recorded under the role that was read, a
 * failed write under ValueInterfaceRole, and announced once. The model lives on the GUI thread; nodes may change on any
 * thread.
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

    /** Deregisters from all nodes. Changes from other threads that have not been delivered yet are dropped. */
    ~GenParamTreeModel() override;

    /**
     * Lets go of the node map for good. From now on there are no rows and no callbacks, and an index from before asks
     * no node; the node map may be destroyed before the model. The memory of the features is freed now too, unless an
     * OpenCalls::Call is on the stack.
     */
    void release();

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;

    /**
     * In the row of \a index: another cell of the same feature, also in a row that repeats it and so is not among the
     * rows of its parent(). In any other row: a cell of the parent(), the parent of the first occurrence.
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

    /** Of the first occurrence of the feature; invalid if it is not in the tree. No registers are read. @{ */
    QModelIndex indexOf(GenApi::IValue *feature) const;
    QModelIndex indexOf(const QString &name) const;
    /** @} */

    /**
     * \a observer is told each text of a value that is read to be shown, never null, and a null one where there is none
     * to be read. It does not call back; may be empty.
     */
    void setReadObserver(std::function<void(GenApi::IValue *feature, const QString &text)> observer);

    /** \a teller gives the What's This texts a first line, as rich text, or an empty one. May itself be empty. */
    void setReasonTeller(std::function<QString(GenApi::IValue *feature)> teller);

    /** Forgets that \a role of the feature at \a index failed, and emits errorDisappeared() if it did. */
    void clearError(const QModelIndex &index, int role);

    /** Forgets all failures and emits nothing. */
    void clearErrors();

Q_SIGNALS:
    /** A read (one of Qt's roles) or a write (ValueInterfaceRole) of the feature has failed for the first time. */
    void errorAppeared(const QModelIndex &index, const QString &featureName, const QString &message, int role);

    /** A role that failed before has succeeded. For ValueInterfaceRole: a write has succeeded, whatever was before. */
    void errorDisappeared(const QModelIndex &index, const QString &featureName, int role);

    /** A write of the feature failed, whether or not one failed before. */
    void writeFailed(const QModelIndex &index);

private:
    friend class GenParamTreeModelPrivate;

    GenParamErrorController m_errors;
    const QScopedPointer<GenParamTreeModelPrivate> d;
};

inline GenApi::IValue *featureAt(const QModelIndex &index)
{
    return index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
}
