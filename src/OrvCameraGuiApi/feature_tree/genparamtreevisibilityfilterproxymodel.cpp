#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#include <GenApi/GenApi.h>

#include <QHash>
#include <QVector>

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

/** Rows of the source model, ascending. */
using Rows = std::vector<int>;

/** What a category is taken to be when it is asked whether it can be seen. */
enum class Time { Now, Ahead };

/** What stays the same about a row of the source model. It is asked for so often that asking once pays. */
struct SourceRow
{
    quintptr id; ///< the source index's internal one
    GenApi::INode *node; ///< null for what has none
    struct Branch *below = nullptr; ///< null also where nobody has asked yet
    bool isCategory;
    bool hasRowsBelow;
    bool isCheckQueued = false;
    int firstRow; ///< in which the category lists the feature first
};

/** The rows below one source index that pass the filter; the internal pointer of their proxy indexes. */
struct Branch
{
    const Rows &rowsAt(Time time) const { return time == Time::Ahead && isChanging ? comingRows : rows; }

    QModelIndex source; ///< invalid for the root; of a category in several places the first one
    Branch *parent = nullptr; ///< null for the root
    bool isListedAgain = false; ///< the category stands in other places too
    std::vector<SourceRow> sourceRows;
    Rows rows;
    bool isChanging = false; ///< there are rows to come that are others than those there are
    Rows comingRows;
    Rows formerRows; ///< while indexes are brought from them to the rows that have come
    quint64 walk = 0; ///< the one that found out isShown
    bool isShown = true;
};

/** A row among those of a branch, shown or not. */
struct Place
{
    Branch *branch;
    int sourceRow;
};

/** Where \a sourceRow is among \a rows, or -1. */
int position(const Rows &rows, int sourceRow)
{
    if (size_t(sourceRow) < rows.size() && rows[size_t(sourceRow)] == sourceRow)
        return sourceRow; // nothing above it is filtered away
    const auto found = std::lower_bound(rows.begin(), rows.end(), sourceRow);
    return found != rows.end() && *found == sourceRow ? int(found - rows.begin()) : -1;
}

/** Whether \a branch, if there is one, has \a sourceIndex at its row. */
bool has(const Branch *branch, const QModelIndex &sourceIndex)
{
    const auto row = size_t(sourceIndex.row());
    return branch && row < branch->sourceRows.size() && branch->sourceRows[row].id == sourceIndex.internalId();
}

} // namespace

class GenParamTreeVisibilityFilterProxyModelPrivate
{
public:
    explicit GenParamTreeVisibilityFilterProxyModelPrivate(GenParamTreeVisibilityFilterProxyModel *proxy)
        : q(proxy)
    {
    }

    QModelIndex firstOccurrence(const QModelIndex &index) const;
    Branch *branchOf(const QModelIndex &sourceParent);
    Branch *branchBelow(const QModelIndex &proxyParent);
    SourceRow *sourceRowOf(const QModelIndex &proxyIndex) const;
    Branch *addBranch(const QModelIndex &sourceParent, Branch *parent);
    void readSourceRows(Branch &branch);
    void findListedAgain(Branch &branch);
    QModelIndex proxyOf(Branch *branch);
    std::optional<Place> shownPlace(const QModelIndex &first);
    bool isShown(const Place &place, Time time);
    bool isShown(Branch *branch, Time time = Time::Now);
    bool isShownElsewhere(const Branch &branch, Time time);
    QModelIndex survivorOf(const QModelIndex &proxyIndex);

    void evaluate(const Branch &branch, Rows &rows) const;
    bool accepts(GenApi::INode *node) const;
    bool acceptsName(GenApi::INode *node) const;

    void refilter();
    std::vector<Branch *> findChanging();
    void announceGoing(const std::vector<Branch *> &changing);
    void changeLayout(const std::vector<Branch *> &changing);
    void changeLayout(Branch &branch, Rows rows);
    bool hasNewCategory(const Branch &branch) const;
    void movePersistentIndexes();
    void sourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);
    void rowChanged(Place place, const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);
    void queueCheck(const Place &place);
    void checkQueued();
    void updateRow(Branch &branch, int sourceRow);
    void insertRow(Branch &branch, int sourceRow);
    void removeRow(Branch &branch, int sourceRow);
    void rowsHaveChanged();
    void forget();

    GenParamTreeVisibilityFilterProxyModel *const q;
    QAbstractItemModel *source = nullptr; ///< sourceModel(), at hand
    qint32 level = 0;
    WildcardMatcher pattern;
    bool wholeWords = false;
    bool matchesNodeNames = false;

    std::vector<std::unique_ptr<Branch>> owned; ///< each after its parent
    std::vector<std::unique_ptr<Branch>> forgotten; ///< somebody up the stack may hold an index of them
    QHash<quintptr, Branch *> branches; ///< by the internal identifier of the source index
    Branch *lastBranch = nullptr; ///< views ask for many children of one parent in turn
    std::array<Branch *, 4> lastChanged{}; ///< values of a category change in turn, and with each those it is in
    size_t changes = 0; ///< that were looked for elsewhere
    std::vector<Place> queuedChecks; ///< of categories; emptied when the event loop runs next
    QHash<quintptr, QVector<Place>> furtherPlaces; ///< of features in several places all but the first one, if known
    bool isAnyListedAgain = false; ///< of the branches
    quint64 walk = 1; ///< what is known of branches being shown was found out in this one, or counts no more
    quint64 revision = 0; ///< of the rows, also of those to come
    quint64 generation = 0; ///< of the branches: a new one has none of the former
    std::vector<QMetaObject::Connection> connections;
};

/**
 * A feature in several places is one to the source model, which knows only the first as its parent's child. The others
 * are told apart by their row, which then belongs to something else, or to nothing, among that parent's children, or to
 * the same feature, listed once more.
 */
QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::firstOccurrence(const QModelIndex &index) const
{
    const QModelIndex parent = source->parent(index);
    if (const Branch *const branch = branches.value(parent.internalId()); has(branch, index)) {
        const int row = branch->sourceRows[size_t(index.row())].firstRow;
        return row == index.row() ? index : source->index(row, index.column(), branch->source);
    }
    const auto isHere = [&](int row) { return source->index(row, 0, parent).internalId() == index.internalId(); };
    if (isHere(index.row()))
        return index;
    const int count = source->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        if (isHere(row))
            return source->index(row, index.column(), parent);
    }
    return {};
}

/** Null for what has no children. */
Branch *GenParamTreeVisibilityFilterProxyModelPrivate::branchOf(const QModelIndex &sourceParent)
{
    if (lastBranch && lastBranch->source.internalId() == sourceParent.internalId())
        return lastBranch;
    if (!source || source->rowCount(sourceParent) == 0)
        return nullptr;
    // Not recursive: a description decides how deep its categories are nested.
    std::vector<QModelIndex> missing;
    QModelIndex known = sourceParent;
    while (known.isValid() && !branches.contains(known.internalId())) {
        missing.push_back(known);
        known = source->parent(known);
    }
    // A branch reads as it is made, and may be forgotten by that.
    const quint64 found = generation;
    Branch *branch = branches.value(known.internalId());
    if (!branch)
        branch = addBranch(QModelIndex(), nullptr);
    for (auto index = missing.rbegin(); generation == found && index != missing.rend(); ++index)
        branch = addBranch(firstOccurrence(index->siblingAtColumn(0)), branch);
    if (generation != found)
        return nullptr;
    return lastBranch = branch;
}

/** Null for what has no children. */
Branch *GenParamTreeVisibilityFilterProxyModelPrivate::branchBelow(const QModelIndex &proxyParent)
{
    if (!proxyParent.isValid())
        return branchOf({});
    SourceRow *const row = proxyParent.column() == 0 ? sourceRowOf(proxyParent) : nullptr;
    if (!row || !row->hasRowsBelow)
        return nullptr;
    if (!row->below) {
        const quint64 found = generation;
        Branch *const below = branchOf(q->mapToSource(proxyParent));
        if (generation != found)
            return nullptr;
        row->below = below;
    }
    return row->below;
}

SourceRow *GenParamTreeVisibilityFilterProxyModelPrivate::sourceRowOf(const QModelIndex &proxyIndex) const
{
    if (!proxyIndex.isValid() || proxyIndex.model() != q)
        return nullptr;
    const auto branch = static_cast<Branch *>(proxyIndex.internalPointer());
    const auto row = size_t(proxyIndex.row());
    return row < branch->rows.size() ? &branch->sourceRows[size_t(branch->rows[row])] : nullptr;
}

Branch *GenParamTreeVisibilityFilterProxyModelPrivate::addBranch(const QModelIndex &sourceParent, Branch *parent)
{
    owned.push_back(std::make_unique<Branch>());
    Branch *const branch = owned.back().get();
    branch->source = sourceParent;
    branch->parent = parent;
    branch->isListedAgain = furtherPlaces.contains(sourceParent.internalId());
    isAnyListedAgain |= branch->isListedAgain;
    branches.insert(sourceParent.internalId(), branch);
    readSourceRows(*branch);
    findListedAgain(*branch);
    evaluate(*branch, branch->rows);
    branch->rows.shrink_to_fit();
    return branch;
}

void GenParamTreeVisibilityFilterProxyModelPrivate::readSourceRows(Branch &branch)
{
    const int count = source->rowCount(branch.source);
    branch.sourceRows.reserve(size_t(count));
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = source->index(row, GenParamTreeModel::NameColumn, branch.source);
        auto *const value = source->data(index, GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
        GenApi::INode *node = nullptr;
        failureOf([&] { node = nodeOf(value); });
        branch.sourceRows.push_back(
            {index.internalId(), node, nullptr, isCategory(value), source->hasChildren(index), false, row});
    }
}

void GenParamTreeVisibilityFilterProxyModelPrivate::findListedAgain(Branch &branch)
{
    const int count = source->rowCount(branch.source);
    QHash<quintptr, int> firstRows;
    firstRows.reserve(count);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = source->index(row, 0, branch.source);
        const int firstRow = *firstRows.insert(index.internalId(), firstRows.value(index.internalId(), row));
        branch.sourceRows[size_t(row)].firstRow = firstRow;
        if (firstRow == row && source->parent(index) == branch.source)
            continue;
        furtherPlaces[index.internalId()].append({&branch, row});
        if (Branch *const listed = branches.value(index.internalId()))
            listed->isListedAgain = isAnyListedAgain = true;
    }
}

/** Of the category that the rows of \a branch belong to; where it is shown, if it stands in several places. */
QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::proxyOf(Branch *branch)
{
    if (!branch->parent)
        return {};
    Place place{branch->parent, branch->source.row()};
    if (branch->isListedAgain)
        place = shownPlace(branch->source).value_or(place);
    const int row = position(place.branch->rows, place.sourceRow);
    return row < 0 ? QModelIndex() : q->createIndex(row, 0, place.branch);
}

/** Where the feature, of which \a first is the first occurrence, can be seen. */
std::optional<Place> GenParamTreeVisibilityFilterProxyModelPrivate::shownPlace(const QModelIndex &first)
{
    const Place firstPlace{branchOf(first.parent()), first.row()};
    if (firstPlace.branch && isShown(firstPlace, Time::Now))
        return firstPlace;
    const QVector<Place> further = furtherPlaces.value(first.internalId());
    for (const Place &place : further) {
        if (isShown(place, Time::Now))
            return place;
    }
    return std::nullopt;
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::isShown(const Place &place, Time time)
{
    return position(place.branch->rowsAt(time), place.sourceRow) >= 0 && isShown(place.branch, time);
}

/** Whether the category that the rows of \a branch belong to can be seen, with all that it stands in. */
bool GenParamTreeVisibilityFilterProxyModelPrivate::isShown(Branch *branch, Time time)
{
    std::vector<Branch *> unknown;
    for (; branch->parent && branch->walk != walk; branch = branch->parent)
        unknown.push_back(branch);
    bool shown = branch->isShown;
    for (auto next = unknown.rbegin(); next != unknown.rend(); ++next) {
        Branch &below = **next;
        shown =
            (shown && position(below.parent->rowsAt(time), below.source.row()) >= 0) || isShownElsewhere(below, time);
        below.isShown = shown;
        below.walk = walk;
    }
    return shown;
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::isShownElsewhere(const Branch &branch, Time time)
{
    if (!branch.isListedAgain)
        return false;
    const QVector<Place> further = furtherPlaces.value(branch.source.internalId());
    return std::any_of(further.begin(), further.end(), [&](const Place &place) { return isShown(place, time); });
}

QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::survivorOf(const QModelIndex &proxyIndex)
{
    const auto branch = static_cast<Branch *>(proxyIndex.internalPointer());
    ++walk;
    const bool stays = isShown(branch, Time::Ahead);
    ++walk;
    if (!stays)
        return {};
    const auto staysAt = [&](int row) { return position(branch->rowsAt(Time::Ahead), branch->rows[size_t(row)]) >= 0; };
    const int count = int(branch->rows.size());
    for (int row = proxyIndex.row(); row < count; ++row) {
        if (staysAt(row))
            return q->createIndex(row, proxyIndex.column(), branch);
    }
    for (int row = std::min(proxyIndex.row(), count) - 1; row >= 0; --row) {
        if (staysAt(row))
            return q->createIndex(row, proxyIndex.column(), branch);
    }
    return proxyOf(branch);
}

void GenParamTreeVisibilityFilterProxyModelPrivate::evaluate(const Branch &branch, Rows &rows) const
{
    const quint64 found = generation;
    const size_t count = branch.sourceRows.size();
    rows.clear();
    for (size_t row = 0; row < count && generation == found; ++row) {
        if (accepts(branch.sourceRows[row].node))
            rows.push_back(int(row));
    }
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::accepts(GenApi::INode *node) const
{
    if (!node)
        return true;
    const OpenCalls::Call call;
    bool isTooHigh = false;
    failureOf([&] { isTooHigh = int(node->GetVisibility()) > level; });
    if (isTooHigh || !acceptsName(node))
        return false;
    bool isImplemented = true;
    failureOf([&] { isImplemented = node->GetAccessMode() != GenApi::NI; });
    return isImplemented;
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::acceptsName(GenApi::INode *node) const
{
    if (pattern.pattern().isEmpty() || (!wholeWords && pattern.matchesAll()))
        return true;
    bool accepted = true;
    failureOf([&] {
        if (node->GetPrincipalInterfaceType() == GenApi::intfICategory)
            return;
        const auto matches = [this](const GenICam::gcstring &text) {
            const QString name = fromGenICam(text);
            return wholeWords ? pattern.isAll(name) : pattern.isIn(name);
        };
        accepted = matches(node->GetDisplayName()) || (matchesNodeNames && matches(node->GetName()));
    });
    return accepted;
}

/** One change of layout, or nothing where no row comes or goes. */
void GenParamTreeVisibilityFilterProxyModelPrivate::refilter()
{
    const OpenCalls::Call call;
    quint64 evaluated = 0;
    std::vector<Branch *> changing;
    do {
        evaluated = ++revision;
        changing = findChanging();
        if (revision == evaluated)
            announceGoing(changing);
        // Whoever has heard of it may have changed anything: what was found out counts no more then.
    } while (revision != evaluated);
    if (!changing.empty())
        changeLayout(changing);
}

std::vector<Branch *> GenParamTreeVisibilityFilterProxyModelPrivate::findChanging()
{
    std::vector<Branch *> changing;
    const quint64 found = generation;
    Rows rows;
    // Not by iterators: a node that is asked may report a change, upon which somebody asks for a branch.
    for (size_t i = 0; i < owned.size(); ++i) {
        Branch &branch = *owned[i];
        evaluate(branch, rows);
        if (generation != found)
            return {};
        branch.isChanging = rows != branch.rows;
        if (!branch.isChanging)
            continue;
        branch.comingRows = rows;
        changing.push_back(&branch);
    }
    return changing;
}

void GenParamTreeVisibilityFilterProxyModelPrivate::announceGoing(const std::vector<Branch *> &changing)
{
    const auto loses = [](const Branch *branch) {
        return !std::includes(branch->comingRows.begin(), branch->comingRows.end(), branch->rows.begin(),
                              branch->rows.end());
    };
    if (std::any_of(changing.begin(), changing.end(), loses))
        Q_EMIT q->rowsAboutToGo();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::changeLayout(const std::vector<Branch *> &changing)
{
    Q_EMIT q->layoutAboutToBeChanged();
    for (Branch *branch : changing) {
        branch->formerRows = std::exchange(branch->rows, std::exchange(branch->comingRows, {}));
        branch->isChanging = false;
    }
    rowsHaveChanged();
    movePersistentIndexes();
    const bool categoriesCome =
        std::any_of(changing.begin(), changing.end(), [this](const Branch *branch) { return hasNewCategory(*branch); });
    for (Branch *branch : changing)
        branch->formerRows = Rows();
    Q_EMIT q->layoutChanged();
    if (categoriesCome)
        Q_EMIT q->categoriesHaveCome();
}

/** For rows of a category that may be shown in several places: as rows that come or go they are those of one only. */
void GenParamTreeVisibilityFilterProxyModelPrivate::changeLayout(Branch &branch, Rows rows)
{
    branch.comingRows = std::move(rows);
    changeLayout({&branch});
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::hasNewCategory(const Branch &branch) const
{
    return std::any_of(branch.rows.begin(), branch.rows.end(), [&](int row) {
        return branch.sourceRows[size_t(row)].isCategory && position(branch.formerRows, row) < 0;
    });
}

void GenParamTreeVisibilityFilterProxyModelPrivate::movePersistentIndexes()
{
    const QModelIndexList from = q->persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &index : from) {
        const auto branch = static_cast<Branch *>(index.internalPointer());
        const Rows &former = branch->formerRows.empty() ? branch->rows : branch->formerRows;
        const int row = isShown(branch) && size_t(index.row()) < former.size()
            ? position(branch->rows, former[size_t(index.row())])
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
    const auto recent = topLeft == bottomRight && furtherPlaces.isEmpty()
        ? std::find_if(lastChanged.begin(), lastChanged.end(), [&](Branch *branch) { return has(branch, topLeft); })
        : lastChanged.end();
    if (recent != lastChanged.end())
        return rowChanged({*recent, topLeft.row()}, topLeft, bottomRight, roles);
    const QModelIndex first = topLeft.isValid() ? firstOccurrence(topLeft) : QModelIndex();
    if (!first.isValid() || !bottomRight.isValid())
        return;
    const quint64 found = generation;
    const QModelIndex parent = first.parent();
    const int last = first.row() + bottomRight.row() - topLeft.row();
    for (int row = first.row(); row <= last && generation == found; ++row) {
        if (Branch *const branch = branches.value(parent.internalId())) {
            lastChanged[++changes % lastChanged.size()] = branch;
            rowChanged({branch, row}, topLeft, bottomRight, roles);
        }
        if (furtherPlaces.isEmpty() || generation != found)
            continue;
        const QVector<Place> further = furtherPlaces.value(source->index(row, 0, parent).internalId());
        for (auto place = further.begin(); place != further.end() && generation == found; ++place)
            rowChanged(*place, topLeft, bottomRight, roles);
    }
}

void GenParamTreeVisibilityFilterProxyModelPrivate::rowChanged(Place place, const QModelIndex &topLeft,
                                                               const QModelIndex &bottomRight,
                                                               const QVector<int> &roles)
{
    // A category changes with everything in it and has no value to show: all that counts is whether it is there.
    if (topLeft.column() > GenParamTreeModel::NameColumn
        && place.branch->sourceRows[size_t(place.sourceRow)].isCategory) {
        queueCheck(place);
        return;
    }
    const quint64 found = generation;
    updateRow(*place.branch, place.sourceRow);
    if (generation != found || !isShown(place, Time::Now))
        return;
    const int row = position(place.branch->rows, place.sourceRow);
    Q_EMIT q->dataChanged(q->createIndex(row, topLeft.column(), place.branch),
                          q->createIndex(row, bottomRight.column(), place.branch), roles);
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
    const quint64 found = generation;
    const std::vector<Place> places = std::exchange(queuedChecks, {});
    for (const Place &place : places)
        place.branch->sourceRows[size_t(place.sourceRow)].isCheckQueued = false;
    for (auto place = places.begin(); place != places.end() && generation == found; ++place)
        updateRow(*place->branch, place->sourceRow);
}

/** With a change a feature may have come to be implemented, or have ceased to be. */
void GenParamTreeVisibilityFilterProxyModelPrivate::updateRow(Branch &branch, int sourceRow)
{
    const quint64 found = generation;
    const bool isAccepted = accepts(branch.sourceRows[size_t(sourceRow)].node);
    if (generation != found || isAccepted == (position(branch.rows, sourceRow) >= 0))
        return;
    if (isAccepted)
        insertRow(branch, sourceRow);
    else
        removeRow(branch, sourceRow);
}

void GenParamTreeVisibilityFilterProxyModelPrivate::insertRow(Branch &branch, int sourceRow)
{
    Rows rows = branch.rows;
    const auto place = rows.insert(std::lower_bound(rows.begin(), rows.end(), sourceRow), sourceRow);
    const int row = int(place - rows.begin());
    const bool isAnnounced = isShown(&branch);
    if (isAnnounced && isAnyListedAgain)
        return changeLayout(branch, std::move(rows));
    if (isAnnounced)
        q->beginInsertRows(proxyOf(&branch), row, row);
    branch.rows = std::move(rows);
    rowsHaveChanged();
    if (isAnnounced)
        q->endInsertRows();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::removeRow(Branch &branch, int sourceRow)
{
    const int row = position(branch.rows, sourceRow);
    Rows rows = branch.rows;
    rows.erase(rows.begin() + row);
    const bool isAnnounced = isShown(&branch);
    if (isAnnounced) {
        branch.comingRows = rows;
        branch.isChanging = true;
        const quint64 evaluated = ++revision;
        const quint64 found = generation;
        Q_EMIT q->rowsAboutToGo();
        if (generation != found)
            return;
        branch.isChanging = false;
        branch.comingRows = Rows();
        // Whoever has heard of it may have changed anything: all is looked at again then.
        if (revision != evaluated)
            return updateRow(branch, sourceRow);
        if (isAnyListedAgain)
            return changeLayout(branch, std::move(rows));
        q->beginRemoveRows(proxyOf(&branch), row, row);
    }
    branch.rows = std::move(rows);
    rowsHaveChanged();
    if (isAnnounced)
        q->endRemoveRows();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::rowsHaveChanged()
{
    ++revision;
    ++walk;
}

void GenParamTreeVisibilityFilterProxyModelPrivate::forget()
{
    ++generation;
    rowsHaveChanged();
    lastBranch = nullptr;
    lastChanged.fill(nullptr);
    branches.clear();
    furtherPlaces.clear();
    isAnyListedAgain = false;
    queuedChecks.clear();
    std::move(owned.begin(), owned.end(), std::back_inserter(forgotten));
    owned.clear();
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
    d->forget();
    // Not the direct base: its mapping would announce changes beside this one's.
    QAbstractProxyModel::setSourceModel(sourceModel);
    d->source = sourceModel;
    if (sourceModel) {
        d->connections = {
            connect(sourceModel, &QAbstractItemModel::dataChanged, this,
                    [this](const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles) {
                        d->sourceDataChanged(topLeft, bottomRight, roles);
                    }),
            connect(sourceModel, &QAbstractItemModel::modelAboutToBeReset, this, [this] { beginResetModel(); }),
            connect(sourceModel, &QAbstractItemModel::modelReset, this,
                    [this] {
                        d->forget();
                        endResetModel();
                    }),
            connect(sourceModel, &QObject::destroyed, this,
                    [this] {
                        beginResetModel();
                        d->forget();
                        d->source = nullptr;
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
    GenApi::INode *node = nullptr;
    failureOf([&] {
        node = nodeOf(d->source->data(index, GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
    });
    return d->accepts(node);
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
    if (!proxyIndex.isValid() || proxyIndex.model() != this || !d->source)
        return {};
    const auto branch = static_cast<const Branch *>(proxyIndex.internalPointer());
    if (size_t(proxyIndex.row()) >= branch->rows.size())
        return {};
    return d->source->index(branch->rows[size_t(proxyIndex.row())], proxyIndex.column(), branch->source);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    if (!sourceIndex.isValid() || sourceIndex.model() != d->source)
        return {};
    d->branchOf(d->source->parent(sourceIndex));
    const QModelIndex first = d->firstOccurrence(sourceIndex);
    const std::optional<Place> place = first.isValid() ? d->shownPlace(first) : std::nullopt;
    if (!place)
        return {};
    return createIndex(position(place->branch->rows, place->sourceRow), sourceIndex.column(), place->branch);
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
    return d->proxyOf(static_cast<Branch *>(index.internalPointer()));
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
    d->pattern.setPattern(text);
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int level)
{
    d->level = level;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setCaseSensitive(bool on)
{
    d->pattern.setCaseSensitivity(on ? Qt::CaseSensitive : Qt::CaseInsensitive);
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setWholeWords(bool on)
{
    d->wholeWords = on;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::setMatchesNodeNames(bool on)
{
    d->matchesNodeNames = on;
    d->refilter();
}

void GenParamTreeVisibilityFilterProxyModel::invalidate()
{
    d->refilter();
}
