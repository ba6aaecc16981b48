// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <OrvCameraGuiApi/feature_tree/filteredrows.h>
#include <OrvCameraGuiApi/feature_tree/filterrule.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <memory>
#include <utility>
#include <vector>

using Branch = FilteredRows::Branch;
using Changes = FilteredRows::Changes;
using Place = FilteredRows::Place;
using Rows = FilteredRows::Rows;
using SourceRow = FilteredRows::SourceRow;

/**
 * Tells others what changes in the FilteredRows. The branches are the internal pointers of the indexes.
 *
 * Whatever asks a node, and every signal, may end in foreign code that changes the rows or takes the source model away.
 * So the revision and isAbandoned() are looked at after each.
 */
class GenParamTreeVisibilityFilterProxyModelPrivate
{
public:
    explicit GenParamTreeVisibilityFilterProxyModelPrivate(GenParamTreeVisibilityFilterProxyModel *proxy)
        : q(proxy)
    {
        reset(nullptr);
    }

    void reset(QAbstractItemModel *newSource);
    Branch *branchBelow(const QModelIndex &proxyParent) const;
    SourceRow *sourceRowOf(const QModelIndex &proxyIndex) const;
    QModelIndex categoryOf(const Branch &branch) const;
    QModelIndex survivorOf(const QModelIndex &proxyIndex) const;

    void refilter();
    void changeLayout(Changes &changes);
    void movePersistentIndexes();
    void sourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);
    void rowChanged(const Place &place, int firstColumn, int lastColumn, const QVector<int> &roles);
    void queueCheck(const Place &place);
    void checkQueued();
    void updateRow(const Place &place);
    bool toggleRow(const Place &place);
    void insertRow(const Place &place, Changes &changes);
    void removeRow(const Place &place, Changes &changes);

    GenParamTreeVisibilityFilterProxyModel *const q;
    QAbstractItemModel *source = nullptr; ///< sourceModel(), at hand
    FilterRule rule;
    FilteredRows *rows = nullptr; ///< the last of allRows
    std::vector<std::unique_ptr<FilteredRows>> allRows; ///< the others are abandoned: somebody may hold indexes of them
    std::vector<Place> queuedChecks; ///< of categories; emptied when the event loop runs next
    std::vector<QMetaObject::Connection> connections;
};

/** Begins with the rows of \a newSource, which may be the same as before, or null. */
void GenParamTreeVisibilityFilterProxyModelPrivate::reset(QAbstractItemModel *newSource)
{
    if (rows)
        rows->abandon();
    queuedChecks.clear();
    source = newSource;
    allRows.push_back(std::make_unique<FilteredRows>(newSource, &rule));
    rows = allRows.back().get();
}

/** Null for what has no children. */
Branch *GenParamTreeVisibilityFilterProxyModelPrivate::branchBelow(const QModelIndex &proxyParent) const
{
    if (!proxyParent.isValid())
        return rows->root();
    const SourceRow *const row = proxyParent.column() == 0 ? sourceRowOf(proxyParent) : nullptr;
    if (!row || !row->hasRowsBelow)
        return nullptr;
    if (row->below)
        return row->below;
    const auto branch = static_cast<Branch *>(proxyParent.internalPointer());
    return rows->below({branch, branch->rows[size_t(proxyParent.row())]});
}

/** Null for an index of another model, or of a row that is no longer there. */
SourceRow *GenParamTreeVisibilityFilterProxyModelPrivate::sourceRowOf(const QModelIndex &proxyIndex) const
{
    if (!proxyIndex.isValid() || proxyIndex.model() != q)
        return nullptr;
    const auto branch = static_cast<Branch *>(proxyIndex.internalPointer());
    const auto row = size_t(proxyIndex.row());
    return row < branch->rows.size() ? &branch->sourceRows[size_t(branch->rows[row])] : nullptr;
}

/** The category that the rows of \a branch belong to; invalid for the root, and for one that is not shown. */
QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::categoryOf(const Branch &branch) const
{
    const int row = branch.parent ? FilteredRows::position({branch.parent, branch.source.row()}) : -1;
    return row < 0 ? QModelIndex() : q->createIndex(row, 0, branch.parent);
}

QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::survivorOf(const QModelIndex &proxyIndex) const
{
    const auto branch = static_cast<Branch *>(proxyIndex.internalPointer());
    if (!FilteredRows::isShown(*branch, FilteredRows::Moment::AfterTheChange))
        return {};
    const int row = FilteredRows::survivorOf(*branch, proxyIndex.row());
    return row < 0 ? categoryOf(*branch) : q->createIndex(row, proxyIndex.column(), branch);
}

/** One change of layout, or nothing where no row comes or goes. */
void GenParamTreeVisibilityFilterProxyModelPrivate::refilter()
{
    const OpenCalls::Call call;
    for (;;) {
        FilteredRows &current = *rows;
        current.startRevision();
        const quint64 evaluated = current.revision();
        const auto isObsolete = [&] { return current.isAbandoned() || current.revision() != evaluated; };
        Changes changes(current.evaluate());
        if (!isObsolete() && changes.removeRows())
            Q_EMIT q->rowsAboutToGo();
        // Slots may have changed anything: the evaluation counts no more then.
        if (isObsolete())
            continue;
        if (!changes.isEmpty())
            changeLayout(changes);
        return;
    }
}

void GenParamTreeVisibilityFilterProxyModelPrivate::changeLayout(Changes &changes)
{
    Q_EMIT q->layoutAboutToBeChanged();
    rows->make(changes);
    movePersistentIndexes();
    const bool categoriesCome = changes.haveBroughtCategories();
    Q_EMIT q->layoutChanged();
    if (categoriesCome)
        Q_EMIT q->categoriesHaveCome();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::movePersistentIndexes()
{
    const QModelIndexList from = q->persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &index : from) {
        const auto branch = static_cast<Branch *>(index.internalPointer());
        const Rows &former = branch->change ? branch->change->former : branch->rows;
        const int row = FilteredRows::isShown(*branch) && size_t(index.row()) < former.size()
            ? FilteredRows::position({branch, former[size_t(index.row())]})
            : -1;
        to.append(row < 0 ? QModelIndex() : q->createIndex(row, index.column(), branch));
    }
    q->changePersistentIndexList(from, to);
}

void GenParamTreeVisibilityFilterProxyModelPrivate::sourceDataChanged(const QModelIndex &topLeft,
                                                                      const QModelIndex &bottomRight,
                                                                      const QVector<int> &roles)
{
    const OpenCalls::Call call;
    const FilteredRows &current = *rows;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const QModelIndex changed = row == topLeft.row() ? topLeft : topLeft.siblingAtRow(row);
        if (const std::optional<Place> only = rows->onlyPlaceOf(changed)) {
            rowChanged(*only, topLeft.column(), bottomRight.column(), roles);
            if (current.isAbandoned())
                return;
            continue;
        }
        for (const Place &place : rows->placesOf(changed)) {
            rowChanged(place, topLeft.column(), bottomRight.column(), roles);
            if (current.isAbandoned())
                return;
        }
    }
}

void GenParamTreeVisibilityFilterProxyModelPrivate::rowChanged(const Place &place, int firstColumn, int lastColumn,
                                                               const QVector<int> &roles)
{
    const FilteredRows &current = *rows;
    rows->noteReport(place);
    // A category changes with everything in it and has no value to show: all that counts is whether it is there. A
    // branch that is just being read may have asked this row before.
    if (!place.branch->isComplete
        || (firstColumn > GenParamTreeModel::NameColumn
            && place.branch->sourceRows[size_t(place.sourceRow)].isCategory)) {
        queueCheck(place);
        return;
    }
    updateRow(place);
    const int row = FilteredRows::position(place);
    if (current.isAbandoned() || row < 0 || !FilteredRows::isShown(*place.branch))
        return;
    Q_EMIT q->dataChanged(q->createIndex(row, firstColumn, place.branch), q->createIndex(row, lastColumn, place.branch),
                          roles);
}

/** Many a change, as a rule, and one check when the event loop runs next. */
void GenParamTreeVisibilityFilterProxyModelPrivate::queueCheck(const Place &place)
{
    if (std::exchange(place.branch->sourceRows[size_t(place.sourceRow)].isCheckQueued, true))
        return;
    if (queuedChecks.empty())
        QMetaObject::invokeMethod(
            q, [this] { checkQueued(); }, Qt::QueuedConnection);
    queuedChecks.push_back(place);
}

void GenParamTreeVisibilityFilterProxyModelPrivate::checkQueued()
{
    const OpenCalls::Call call;
    const FilteredRows &current = *rows;
    const std::vector<Place> places = std::exchange(queuedChecks, {});
    for (const Place &place : places)
        place.branch->sourceRows[size_t(place.sourceRow)].isCheckQueued = false;
    for (auto place = places.begin(); place != places.end() && !current.isAbandoned(); ++place)
        updateRow(*place);
}

/** With a change a feature may have come to be implemented, or have ceased to be. */
void GenParamTreeVisibilityFilterProxyModelPrivate::updateRow(const Place &place)
{
    const FilteredRows &current = *rows;
    bool isDone = false;
    while (!isDone) {
        const bool isAccepted = rows->accepts(place);
        const bool isThere = FilteredRows::position(place) >= 0;
        isDone = current.isAbandoned() || isAccepted == isThere || toggleRow(place);
    }
}

/** Inserts or removes the row. False, and nothing done, if slots have changed rows before it could be removed. */
bool GenParamTreeVisibilityFilterProxyModelPrivate::toggleRow(const Place &place)
{
    FilteredRows &current = *rows;
    Changes changes({FilteredRows::toggled(place)});
    if (!FilteredRows::isShown(*place.branch)) {
        current.make(changes);
    } else if (FilteredRows::position(place) < 0) {
        insertRow(place, changes);
    } else {
        const quint64 evaluated = current.revision();
        Q_EMIT q->rowsAboutToGo();
        if (current.isAbandoned())
            return true;
        if (current.revision() != evaluated)
            return false;
        removeRow(place, changes);
    }
    return true;
}

void GenParamTreeVisibilityFilterProxyModelPrivate::insertRow(const Place &place, Changes &changes)
{
    const int row = FilteredRows::position(place.branch->change->coming, place.sourceRow);
    q->beginInsertRows(categoryOf(*place.branch), row, row);
    rows->make(changes);
    q->endInsertRows();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::removeRow(const Place &place, Changes &changes)
{
    const int row = FilteredRows::position(place);
    q->beginRemoveRows(categoryOf(*place.branch), row, row);
    rows->make(changes);
    q->endRemoveRows();
}

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , d(new GenParamTreeVisibilityFilterProxyModelPrivate(this))
{
}

GenParamTreeVisibilityFilterProxyModel::~GenParamTreeVisibilityFilterProxyModel() = default;

void GenParamTreeVisibilityFilterProxyModel::setSourceModel(QAbstractItemModel *sourceModel)
{
    beginResetModel();
    for (const QMetaObject::Connection &connection : d->connections)
        disconnect(connection);
    d->connections.clear();
    d->reset(sourceModel);
    // Not the direct base: its mapping would announce changes beside this one's.
    QAbstractProxyModel::setSourceModel(sourceModel);
    if (sourceModel) {
        d->connections = {
            connect(sourceModel, &QAbstractItemModel::dataChanged, this,
                    [this](const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles) {
                        d->sourceDataChanged(topLeft, bottomRight, roles);
                    }),
            connect(sourceModel, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); }),
            connect(sourceModel, &QAbstractItemModel::modelReset, this,
                    [this] {
                        d->reset(d->source);
                        endResetModel();
                    }),
            connect(sourceModel, &QObject::destroyed, this,
                    [this] {
                        beginResetModel();
                        d->reset(nullptr);
                        endResetModel();
                    }),
        };
    }
    endResetModel();
}

bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (!d->source)
        return false;
    const QModelIndex index = d->source->index(sourceRow, GenParamTreeModel::NameColumn, sourceParent);
    return d->rule.accepts(nodeAt(index), nodeAt(sourceParent));
}

bool GenParamTreeVisibilityFilterProxyModel::acceptsWithoutChoice(const QModelIndex &sourceIndex) const
{
    FilterRule rule; // of any choice
    rule.level = d->rule.level;
    rule.pattern = d->rule.pattern;
    rule.wholeWords = d->rule.wholeWords;
    rule.matchesNodeNames = d->rule.matchesNodeNames;
    for (QModelIndex row = sourceIndex; row.isValid(); row = row.parent()) {
        if (!rule.accepts(nodeAt(row), nullptr))
            return false;
    }
    return sourceIndex.isValid();
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::survivorOf(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this ? d->survivorOf(index) : QModelIndex();
}

int GenParamTreeVisibilityFilterProxyModel::nextCategory(const QModelIndex &parent, int row) const
{
    const Branch *const branch = d->branchBelow(parent);
    for (size_t next = size_t(qMax(row, 0)); branch && next < branch->rows.size(); ++next) {
        if (branch->sourceRows[size_t(branch->rows[next])].isCategory)
            return int(next);
    }
    return -1;
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    if (!d->source || !d->sourceRowOf(proxyIndex))
        return {};
    const auto branch = static_cast<const Branch *>(proxyIndex.internalPointer());
    return d->source->index(branch->rows[size_t(proxyIndex.row())], proxyIndex.column(), branch->source);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid() || sourceIndex.model() != d->source)
        return {};
    const auto place = d->rows->shownPlaceOf(sourceIndex);
    return place ? createIndex(FilteredRows::position(*place), sourceIndex.column(), place->branch) : QModelIndex();
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    Branch *const branch = d->branchBelow(parent);
    if (!branch || row < 0 || size_t(row) >= branch->rows.size() || column < 0 || column >= columnCount(parent))
        return {};
    return createIndex(row, column, branch);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return {};
    return d->categoryOf(*static_cast<const Branch *>(index.internalPointer()));
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::sibling(int row, int column, const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return {};
    const auto branch = static_cast<Branch *>(index.internalPointer());
    if (row < 0 || size_t(row) >= branch->rows.size() || column < 0 || column >= columnCount())
        return {};
    return createIndex(row, column, branch);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::buddy(const QModelIndex &index) const
{
    return index;
}

int GenParamTreeVisibilityFilterProxyModel::rowCount(const QModelIndex &parent) const
{
    const Branch *const branch = d->branchBelow(parent);
    return branch ? int(branch->rows.size()) : 0;
}

int GenParamTreeVisibilityFilterProxyModel::columnCount(const QModelIndex &) const
{
    return d->source ? d->source->columnCount() : 0;
}

/**
 * Tells the tree what can never be expanded. Otherwise it keeps each row for an expanded one when all are expanded, and
 * asks whether it is one, and whether it can be, at every layout.
 */
Qt::ItemFlags GenParamTreeVisibilityFilterProxyModel::flags(const QModelIndex &index) const
{
    const SourceRow *const row = d->sourceRowOf(index);
    if (!row)
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = d->source->flags(mapToSource(index));
    return row->hasRowsBelow ? flags : flags | Qt::ItemNeverHasChildren;
}

bool GenParamTreeVisibilityFilterProxyModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant GenParamTreeVisibilityFilterProxyModel::data(const QModelIndex &index, int role) const
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? d->source->data(source, role) : QVariant();
}

bool GenParamTreeVisibilityFilterProxyModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() && d->source->setData(source, value, role);
}

QVariant GenParamTreeVisibilityFilterProxyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return d->source ? d->source->headerData(section, orientation, role) : QVariant();
}

QSize GenParamTreeVisibilityFilterProxyModel::span(const QModelIndex &index) const
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? d->source->span(source) : QSize();
}

void GenParamTreeVisibilityFilterProxyModel::sort(int, Qt::SortOrder) { }

void GenParamTreeVisibilityFilterProxyModel::setFilterText(const QString &text)
{
    d->rule.pattern.setPattern(text);
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int level)
{
    d->rule.level = level;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setCaseSensitive(bool on)
{
    d->rule.pattern.setCaseSensitivity(on ? Qt::CaseSensitive : Qt::CaseInsensitive);
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setWholeWords(bool on)
{
    d->rule.wholeWords = on;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setMatchesNodeNames(bool on)
{
    d->rule.matchesNodeNames = on;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setChoice(const FeatureChoice &choice)
{
    d->rule.choice = choice;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::invalidate()
{
    d->refilter();
}
