// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/featurechoice.h>

#include <QScopedPointer>
#include <QSortFilterProxyModel>

class GenParamTreeVisibilityFilterProxyModelPrivate;

/**
 * Hides features of a GenParamTreeModel: those above a visibility level, those that are not implemented, and those
 * whose display name does not match a wildcard pattern. Categories stay, also empty ones; the order stays.
 *
 * It is a QSortFilterProxyModel to those who use it, with mapping and announcements of its own: a new filter is one
 * change of layout, whatever the number of rows that come and go. With the base class every range of rows that goes
 * walks every persistent index, and a view holds one for every expanded category. Persistent indexes of rows that stay
 * stay on their rows, those of rows that go become invalid. The base class's own sorting and filter settings do
 * nothing here.
 *
 * The source model keeps its rows for life, or is reset. A feature that comes to be implemented, or ceases to be, is a
 * row that is inserted or removed when the source announces a change of it.
 */
class GenParamTreeVisibilityFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit GenParamTreeVisibilityFilterProxyModel(QObject *parent);
    ~GenParamTreeVisibilityFilterProxyModel() override;

    void setSourceModel(QAbstractItemModel *sourceModel) override;

    /**
     * Whether the row passes the filter by itself. A property of the node that cannot be read does not hide it. The
     * access mode, which may ask the device, is asked for last.
     */
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

    /**
     * The successor of \a index as a view's current item, asked upon rowsAboutToGo(): the next row beside it that
     * stays, else the one before, else its category; invalid when its category goes too. The index itself when it
     * stays.
     */
    QModelIndex survivorOf(const QModelIndex &index) const;

    /** The first row of \a parent from \a row on that is a category, or -1. */
    int nextCategory(const QModelIndex &parent, int row) const;

    /** Whether the filter lets the row of the source and the categories above it pass but for the choice. */
    bool acceptsWithoutChoice(const QModelIndex &sourceIndex) const;

    QModelIndex mapToSource(const QModelIndex &proxyIndex) const override;
    QModelIndex mapFromSource(const QModelIndex &sourceIndex) const override;
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    QModelIndex sibling(int row, int column, const QModelIndex &index) const override;
    QModelIndex buddy(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QSize span(const QModelIndex &index) const override;

    /** Nothing: features stand in the order of their description. */
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    using QObject::parent;

public Q_SLOTS:
    /** \a text is a pattern, in which "*" and "?" are wildcards; an empty one lets every name pass. */
    void setFilterText(const QString &text);

    /** \a level: 0 Basic, 1 Expert, 2 Guru; features above it are hidden. */
    void setFilterVisibility(int level);

    void setCaseSensitive(bool on);

    /** Whether the pattern must match the whole display name, not only part of it. */
    void setWholeWords(bool on);

    /** Whether a feature passes as well whose GenICam name matches the pattern; off by default. */
    void setMatchesNodeNames(bool on);

    /** Which features pass at all; everything by default. */
    void setChoice(const FeatureChoice &choice);

    /** Asks every row again. */
    void invalidate();

Q_SIGNALS:
    /**
     * Rows are about to go, by another filter or because a feature ceases to be implemented. Nothing has changed yet:
     * now is the time to write what is entered in an editor that is open in one of them, and to move the current item,
     * for which a view gets no occasion in a change of layout. Slots may change whatever they like.
     */
    void rowsAboutToGo();

    /** After a change of layout in which categories have appeared, for what a view keeps of each of them. */
    void categoriesHaveCome();

private:
    friend class GenParamTreeVisibilityFilterProxyModelPrivate;

    const QScopedPointer<GenParamTreeVisibilityFilterProxyModelPrivate> d;
};
