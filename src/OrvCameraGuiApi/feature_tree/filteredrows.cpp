// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/filteredrows.h>

#include <OrvCameraGuiApi/feature_tree/filterrule.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <algorithm>
#include <utility>

namespace {

/** Whether \a branch, if there is one, has the feature of \a source at its row. */
bool hasAtItsRow(const FilteredRows::Branch *branch, const QModelIndex &source)
{
    const auto row = size_t(source.row());
    return branch && row < branch->sourceRows.size() && branch->sourceRows[row].id == source.internalId();
}

} // namespace

const FilteredRows::Rows &FilteredRows::Branch::rowsAt(Moment moment) const
{
    return moment == Moment::AfterTheChange && change ? change->coming : rows;
}

FilteredRows::Changes::Changes(std::vector<Change> changes)
    : m_changes(std::move(changes))
{
    for (Change &change : m_changes)
        change.branch->change = &change;
}

FilteredRows::Changes::~Changes()
{
    // Others may have been made meanwhile, of the same branches.
    for (const Change &change : m_changes) {
        if (change.branch->change == &change)
            change.branch->change = nullptr;
    }
}

bool FilteredRows::Changes::removeRows() const
{
    return std::any_of(m_changes.begin(), m_changes.end(), [](const Change &change) {
        const Rows &rows = change.branch->rows;
        return !std::includes(change.coming.begin(), change.coming.end(), rows.begin(), rows.end());
    });
}

bool FilteredRows::Changes::haveBroughtCategories() const
{
    return std::any_of(m_changes.begin(), m_changes.end(), [](const Change &change) {
        const Branch &branch = *change.branch;
        return std::any_of(branch.rows.begin(), branch.rows.end(), [&](int row) {
            return branch.sourceRows[size_t(row)].isCategory && position(change.former, row) < 0;
        });
    });
}

FilteredRows::FilteredRows(QAbstractItemModel *source, const FilterRule *rule)
    : m_source(source)
    , m_rule(rule)
{
}

FilteredRows::Branch *FilteredRows::root()
{
    if (m_isAbandoned || !m_source)
        return nullptr;
    if (!m_branches.empty())
        return m_branches.front().get();
    return m_source->rowCount() > 0 ? addBranch(QModelIndex(), nullptr) : nullptr;
}

FilteredRows::Branch *FilteredRows::below(const Place &place)
{
    SourceRow &row = place.branch->sourceRows[size_t(place.sourceRow)];
    if (!row.hasRowsBelow || m_isAbandoned || !m_source)
        return nullptr;
    if (row.below)
        return row.below;
    const QModelIndex source = m_source->index(place.sourceRow, 0, place.branch->source);
    return source.isValid() ? addBranch(source, place.branch) : nullptr;
}

FilteredRows::Branch *FilteredRows::addBranch(const QModelIndex &source, Branch *parent)
{
    m_branches.push_back(std::make_unique<Branch>());
    Branch *const branch = m_branches.back().get();
    branch->source = source;
    branch->parent = parent;
    // Asking nodes may end in asking for this branch.
    if (parent) {
        SourceRow &row = parent->sourceRows[size_t(source.row())];
        row.below = branch;
        branch->category = row.node;
    }
    read(*branch);
    return m_isAbandoned ? nullptr : branch;
}

void FilteredRows::read(Branch &branch)
{
    const OpenCalls::Call call;
    Branch *const first = m_firstBranches.value(branch.source.internalId());
    if (first)
        branch.elsewhere = std::exchange(first->elsewhere, &branch);
    else
        m_firstBranches.insert(branch.source.internalId(), &branch);
    readSourceRows(branch);
    if (!first)
        findListedAgain(branch);
    if (first && first->isComplete) {
        branch.rows = first->rows;
    } else {
        Rows rows;
        quint64 evaluated = 0;
        do {
            evaluated = m_revision;
            evaluate(branch, rows);
        } while (m_revision != evaluated && !m_isAbandoned);
        branch.rows = rows; // without the room that was too much
    }
    branch.isComplete = true;
}

void FilteredRows::readSourceRows(Branch &branch) const
{
    const int count = m_source->rowCount(branch.source);
    branch.sourceRows.reserve(size_t(count));
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = m_source->index(row, GenParamTreeModel::NameColumn, branch.source);
        auto *const value = m_source->data(index, GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
        GenApi::INode *node = nullptr;
        failureOf([&] { node = nodeOf(value); });
        SourceRow &added = branch.sourceRows.emplace_back();
        added.id = index.internalId();
        added.node = node;
        added.isCategory = isCategory(value);
        added.hasRowsBelow = m_source->hasChildren(index);
        if (node)
            failureOf([&] { added.isAccessTold = node->IsAccessModeCacheable() == GenApi::Yes; });
    }
}

/** A feature is listed again if its parent is another category, or if it stands further up in the same. */
void FilteredRows::findListedAgain(const Branch &branch)
{
    const quintptr category = branch.source.internalId();
    std::vector<std::pair<quintptr, int>> listed;
    listed.reserve(branch.sourceRows.size());
    for (size_t row = 0; row < branch.sourceRows.size(); ++row)
        listed.emplace_back(branch.sourceRows[row].id, int(row));
    std::sort(listed.begin(), listed.end());
    for (size_t i = 0; i < listed.size(); ++i) {
        const auto [id, row] = listed[i];
        const bool isRepeated = i > 0 && listed[i - 1].first == id;
        if (isRepeated || m_source->parent(m_source->index(row, 0, branch.source)).internalId() != category)
            m_listedAgain[id].append({category, row});
    }
}

/** The \a rows of \a branch that pass the filter now. */
void FilteredRows::evaluate(Branch &branch, Rows &rows) const
{
    rows.clear();
    for (size_t row = 0; row < branch.sourceRows.size() && !m_isAbandoned; ++row) {
        if (accepts(branch, branch.sourceRows[row]))
            rows.push_back(int(row));
    }
}

/** Nodes that have not been implemented are asked again each time: nothing reports that a port has been connected. */
bool FilteredRows::accepts(const Branch &branch, SourceRow &row) const
{
    if (!m_rule->passes(row.node, branch.category))
        return false;
    if (row.isImplemented)
        return true;
    const quint64 reports = m_reports;
    const std::optional<bool> isImplemented = FilterRule::isImplemented(row.node);
    row.isImplemented = row.isAccessTold && isImplemented == true && m_reports == reports;
    return isImplemented.value_or(true);
}

void FilteredRows::noteReport(const Place &place)
{
    place.branch->sourceRows[size_t(place.sourceRow)].isImplemented = false;
    ++m_reports;
}

/** One of the branches that changed last, if no feature is listed twice and it has the feature at the row of \a source.
 */
FilteredRows::Branch *FilteredRows::recentBranchWith(const QModelIndex &source)
{
    if (!m_listedAgain.isEmpty())
        return nullptr;
    for (size_t step = 1; step <= m_recent.size(); ++step) {
        const size_t at = (m_lastRecent + m_recent.size() - step) % m_recent.size();
        if (hasAtItsRow(m_recent[at], source)) {
            m_lastRecent = at;
            return m_recent[at];
        }
    }
    return nullptr;
}

/** The branch in which the feature is listed first; null if nobody has asked for it. */
FilteredRows::Branch *FilteredRows::firstBranchWith(const QModelIndex &source)
{
    Branch *const branch = m_firstBranches.value(m_source->parent(source).internalId());
    if (branch) {
        std::rotate(m_recent.begin(), m_recent.end() - 1, m_recent.end());
        m_recent.front() = branch;
        m_lastRecent = 0;
    }
    return branch;
}

/** The first row of the feature in \a branch, or -1; an index of a later place has another row. */
int FilteredRows::firstRowOf(const Branch &branch, const QModelIndex &source) const
{
    const quintptr id = source.internalId();
    if (hasAtItsRow(&branch, source) && !m_listedAgain.contains(id))
        return source.row();
    const auto row = std::find_if(branch.sourceRows.begin(), branch.sourceRows.end(),
                                  [id](const SourceRow &listed) { return listed.id == id; });
    return row != branch.sourceRows.end() ? int(row - branch.sourceRows.begin()) : -1;
}

FilteredRows::Places FilteredRows::placesOf(const QModelIndex &source)
{
    Places places;
    if (m_isAbandoned || !m_source || !source.isValid())
        return places;
    const auto add = [&places](Branch *branch, int row) {
        for (; branch; branch = branch->elsewhere) {
            if (row >= 0 && size_t(row) < branch->sourceRows.size())
                places.append({branch, row});
        }
    };
    if (Branch *const recent = recentBranchWith(source)) {
        add(recent, source.row());
        return places;
    }
    if (Branch *const branch = firstBranchWith(source))
        add(branch, firstRowOf(*branch, source));
    if (m_listedAgain.isEmpty())
        return places;
    const QVector<Listing> further = m_listedAgain.value(source.internalId());
    for (const Listing &listing : further)
        add(m_firstBranches.value(listing.category), listing.sourceRow);
    return places;
}

std::optional<FilteredRows::Place> FilteredRows::onlyPlaceOf(const QModelIndex &source)
{
    if (m_isAbandoned || !m_source || !source.isValid())
        return std::nullopt;
    Branch *const recent = recentBranchWith(source);
    return recent && !recent->elsewhere ? std::make_optional(Place{recent, source.row()}) : std::nullopt;
}

std::optional<FilteredRows::Place> FilteredRows::shownPlaceOf(const QModelIndex &source)
{
    // Not recursive: a description decides how deep its categories are nested.
    std::vector<QModelIndex> ancestors;
    for (QModelIndex above = source.parent(); above.isValid(); above = above.parent())
        ancestors.push_back(above);
    std::reverse(ancestors.begin(), ancestors.end());
    Branch *branch = root();
    for (auto above = ancestors.begin(); branch && above != ancestors.end(); ++above) {
        const int row = firstRowOf(*branch, *above);
        branch = row >= 0 ? below({branch, row}) : nullptr;
    }
    if (branch) {
        const Place place{branch, firstRowOf(*branch, source)};
        if (place.sourceRow >= 0 && isShown(place))
            return place;
    }
    // It may be shown in a place that nobody has asked for.
    for (const QModelIndex &above : std::as_const(ancestors)) {
        for (const Place &place : placesOf(above)) {
            if (isShown(place))
                below(place);
        }
    }
    const Places places = placesOf(source);
    const auto shown = std::find_if(places.begin(), places.end(), [](const Place &place) { return isShown(place); });
    return shown != places.end() ? std::make_optional(*shown) : std::nullopt;
}

int FilteredRows::position(const Rows &rows, int sourceRow)
{
    if (size_t(sourceRow) < rows.size() && rows[size_t(sourceRow)] == sourceRow)
        return sourceRow; // nothing above it is filtered away
    const auto found = std::lower_bound(rows.begin(), rows.end(), sourceRow);
    return found != rows.end() && *found == sourceRow ? int(found - rows.begin()) : -1;
}

bool FilteredRows::isShown(const Branch &branch, Moment moment)
{
    const Branch *below = &branch;
    while (below->parent && position(below->parent->rowsAt(moment), below->source.row()) >= 0)
        below = below->parent;
    return !below->parent;
}

int FilteredRows::survivorOf(const Branch &branch, int row)
{
    const int count = int(branch.rows.size());
    const Rows &coming = branch.rowsAt(Moment::AfterTheChange);
    const auto stays = [&](int at) { return position(coming, branch.rows[size_t(at)]) >= 0; };
    for (int at = row; at < count; ++at) {
        if (stays(at))
            return at;
    }
    for (int at = std::min(row, count) - 1; at >= 0; --at) {
        if (stays(at))
            return at;
    }
    return -1;
}

std::vector<FilteredRows::Change> FilteredRows::evaluate()
{
    std::vector<Change> changes;
    Rows rows;
    // Not by iterators: a node that is asked may report a change, and its receiver may ask for a branch.
    for (size_t i = 0; i < m_branches.size(); ++i) {
        Branch *const first = m_branches[i].get();
        if (!first->isComplete || m_firstBranches.value(first->source.internalId()) != first)
            continue;
        evaluate(*first, rows);
        if (m_isAbandoned)
            return {};
        for (Branch *branch = first; branch; branch = branch->elsewhere) {
            if (rows != branch->rows)
                changes.push_back({branch, rows, {}});
        }
    }
    return changes;
}

FilteredRows::Change FilteredRows::toggled(const Place &place)
{
    Rows rows = place.branch->rows;
    const auto at = std::lower_bound(rows.begin(), rows.end(), place.sourceRow);
    if (at != rows.end() && *at == place.sourceRow)
        rows.erase(at);
    else
        rows.insert(at, place.sourceRow);
    return {place.branch, std::move(rows), {}};
}

void FilteredRows::make(Changes &changes)
{
    for (Change &change : changes.m_changes)
        change.former = std::exchange(change.branch->rows, std::exchange(change.coming, {}));
    startRevision();
}
