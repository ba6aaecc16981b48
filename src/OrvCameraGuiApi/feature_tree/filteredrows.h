// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QAbstractItemModel>
#include <QHash>
#include <QPointer>
#include <QVarLengthArray>

#include <array>
#include <memory>
#include <optional>
#include <vector>

struct FilterRule;

/**
 * Which rows of a GenParamTreeModel pass a filter, and where they stand.
 *
 * The source model gives a feature that several categories list one index, whose parent is that of the first place.
 * Here each place of a category has a branch of its own, so the branches are a tree. A branch is made when somebody
 * asks for it, and lives as long as this object.
 *
 * Nobody is told of anything here: the filter model makes the changes, and announces them. Asking a node may run
 * foreign code, which may end in abandon() or change other rows.
 */
class FilteredRows
{
public:
    struct Branch;

    /** Rows of a category in the source model, ascending. */
    using Rows = std::vector<int>;

    /** A row of a branch, shown or not. */
    struct Place
    {
        Branch *branch;
        int sourceRow;
    };
    using Places = QVarLengthArray<Place, 4>;

    /** A source row, with what is needed so often that asking its node each time would take too long. */
    struct SourceRow
    {
        quintptr id = 0; ///< the internal one of the source index
        GenApi::INode *node = nullptr; ///< null for a feature without one
        Branch *below = nullptr; ///< null for a row without rows, and until somebody asks for them
        bool isCategory = false;
        bool hasRowsBelow = false;
        bool isCheckQueued = false;
        bool isAccessTold = false; ///< the node reports when its access mode may have changed
        bool isImplemented = false; ///< since the last report it was; false also if nobody knows
    };

    /** A change of the rows of one branch. */
    struct Change
    {
        Branch *branch;
        Rows coming; ///< until the change is made
        Rows former; ///< once it is made
    };

    enum class Moment { Now, AfterTheChange };

    /** The rows of a category in one of the places where it stands. */
    struct Branch
    {
        const Rows &rowsAt(Moment moment) const;

        QModelIndex source; ///< of the category, in this place; invalid for the root
        GenApi::INode *category = nullptr; ///< its node, if it has one; null for the root
        Branch *parent = nullptr; ///< null for the root
        Branch *elsewhere = nullptr; ///< the next branch of the same category
        std::vector<SourceRow> sourceRows; ///< all of them
        Rows rows; ///< those that pass the filter
        Change *change = nullptr; ///< the one under way
        bool isComplete = false; ///< rows are those that pass the filter; false while nodes are asked the first time
    };

    /** Changes that are made in one step. The branches know of theirs as long as this object lives. */
    class Changes
    {
    public:
        explicit Changes(std::vector<Change> changes);
        ~Changes();
        Q_DISABLE_COPY(Changes)

        bool isEmpty() const { return m_changes.empty(); }
        bool removeRows() const;

        /** Whether there are categories among the rows that have come. */
        bool haveBroughtCategories() const;

    private:
        friend class FilteredRows;

        std::vector<Change> m_changes;
    };

    /** Both outlive this object, or abandon() is called before they go. */
    FilteredRows(QAbstractItemModel *source, const FilterRule *rule);

    /** From now on no node is asked: the features are no longer there. What is known stays. */
    void abandon() { m_isAbandoned = true; }
    bool isAbandoned() const { return m_isAbandoned; }

    /** Grows with everything that may make an earlier evaluation of the filter obsolete. */
    quint64 revision() const { return m_revision; }
    void startRevision() { ++m_revision; }

    /** The outermost branch; null if there are no features. */
    Branch *root();

    /** The branch of the category at \a place; null for what has no rows, and after abandon(). */
    Branch *below(const Place &place);

    /** The known places of a feature, first that of its first listing. */
    Places placesOf(const QModelIndex &source);

    /** The place of a feature that has one only, if that is found at once. */
    std::optional<Place> onlyPlaceOf(const QModelIndex &source);

    /** The first place of a feature that is shown, if any. */
    std::optional<Place> shownPlaceOf(const QModelIndex &source);

    /** The place of \a sourceRow among \a rows, or -1. */
    static int position(const Rows &rows, int sourceRow);

    /** The row of \a place among those that are shown in its branch, or -1. */
    static int position(const Place &place) { return position(place.branch->rows, place.sourceRow); }

    /** Whether the category that the rows of \a branch belong to is shown, with all that it stands in. */
    static bool isShown(const Branch &branch, Moment moment = Moment::Now);
    static bool isShown(const Place &place) { return position(place) >= 0 && isShown(*place.branch); }

    /** The row next to \a row that stays, itself, below or above, or -1. */
    static int survivorOf(const Branch &branch, int row);

    /** The changes that the filter makes; asks all nodes of known branches. Empty after abandon(). */
    std::vector<Change> evaluate();

    /** The node of the row at \a place has reported a change. */
    void noteReport(const Place &place);

    /** Whether the row at \a place passes the filter; may ask its node. */
    bool accepts(const Place &place) const
    {
        return accepts(*place.branch, place.branch->sourceRows[size_t(place.sourceRow)]);
    }

    /** The change that brings or removes the row at \a place. */
    static Change toggled(const Place &place);

    void make(Changes &changes);

private:
    /** A row of a category, wherever that stands. */
    struct Listing
    {
        quintptr category;
        int sourceRow;
    };

    Branch *addBranch(const QModelIndex &source, Branch *parent);
    void read(Branch &branch);
    void readSourceRows(Branch &branch) const;
    void findListedAgain(const Branch &branch);
    void evaluate(Branch &branch, Rows &rows) const;
    bool accepts(const Branch &branch, SourceRow &row) const;
    Branch *recentBranchWith(const QModelIndex &source);
    Branch *firstBranchWith(const QModelIndex &source);
    int firstRowOf(const Branch &branch, const QModelIndex &source) const;

    QPointer<QAbstractItemModel> m_source;
    const FilterRule *m_rule;
    bool m_isAbandoned = false;
    quint64 m_revision = 0;
    quint64 m_reports = 0; ///< so far
    std::vector<std::unique_ptr<Branch>> m_branches; ///< each after its parent
    QHash<quintptr, Branch *> m_firstBranches; ///< by the category's internal identifier; others follow by elsewhere
    QHash<quintptr, QVector<Listing>> m_listedAgain; ///< by the feature's identifier, all but the first, if known
    std::array<Branch *, 4> m_recent{}; ///< values of a category change in turn, and with each those that it is in
    size_t m_lastRecent = 0; ///< the one that was found last; the one before it comes next as a rule
};
