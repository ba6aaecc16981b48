#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#include <GenApi/GenApi.h>

#include <QHash>
#include <QVector>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using Rows = std::vector<int>;

/** The rows below one source index that pass the filter; the internal pointer of their proxy indexes. */
struct Branch
{
    QModelIndex source; ///< invalid for the root; of a category in several places the first one
    Branch *parent; ///< null for the root
    Rows rows; ///< source rows, ascending
    Rows formerRows; ///< while the filter changes: those before
    quint32 walk = 0; ///< the walk that found out isShown
    bool isShown = true;
};

/** Where \a sourceRow is among \a rows, or -1. */
int position(const Rows &rows, int sourceRow)
{
    const auto found = std::lower_bound(rows.begin(), rows.end(), sourceRow);
    return found != rows.end() && *found == sourceRow ? int(found - rows.begin()) : -1;
}

} // namespace

class GenParamTreeVisibilityFilterProxyModelPrivate
{
public:
    explicit GenParamTreeVisibilityFilterProxyModelPrivate(GenParamTreeVisibilityFilterProxyModel *proxy)
        : q(proxy)
    {
    }

    const QAbstractItemModel *source() const { return q->sourceModel(); }
    QModelIndex firstOccurrence(const QModelIndex &source) const;
    Branch *branchOf(const QModelIndex &sourceParent);
    Branch *branchOfProxy(const QModelIndex &proxyParent);
    QModelIndex proxyOf(const Branch *branch) const;
    bool isShown(Branch *branch);
    void evaluate(Branch &branch, Rows &rows) const;

    bool accepts(GenApi::IValue *value) const;
    bool acceptsName(GenApi::INode *node) const;

    void refilter();
    void movePersistentIndexes();
    void sourceDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles);
    void updateRow(Branch &branch, int sourceRow);
    void forget();

    GenParamTreeVisibilityFilterProxyModel *const q;
    qint32 level = 0;
    WildcardMatcher pattern;
    bool wholeWords = false;
    QHash<quintptr, Branch *> branches; ///< by the internal identifier of the source index
    std::vector<std::unique_ptr<Branch>> owned;
    Branch *lastBranch = nullptr; ///< views ask for many children of one parent in turn
    quint32 walk = 0;
    std::vector<QMetaObject::Connection> connections;
};

/**
 * A feature in several places is one to the source model, which knows only the first as its parent's child. The others
 * are told apart by their row, which then belongs to something else, or to nothing, among that parent's children.
 */
QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::firstOccurrence(const QModelIndex &index) const
{
    const QModelIndex parent = source()->parent(index);
    const auto isHere = [&](int row) { return source()->index(row, 0, parent).internalId() == index.internalId(); };
    if (isHere(index.row()))
        return index;
    const int count = source()->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        if (isHere(row))
            return source()->index(row, index.column(), parent);
    }
    return {};
}

/** Null for what has no children. */
Branch *GenParamTreeVisibilityFilterProxyModelPrivate::branchOf(const QModelIndex &sourceParent)
{
    if (lastBranch && lastBranch->source.internalId() == sourceParent.internalId())
        return lastBranch;
    if (!source() || source()->rowCount(sourceParent) == 0)
        return nullptr;
    if (Branch *const known = branches.value(sourceParent.internalId()))
        return lastBranch = known;
    owned.push_back(std::make_unique<Branch>());
    Branch *const branch = owned.back().get();
    branches.insert(sourceParent.internalId(), branch);
    branch->source = sourceParent.isValid() ? firstOccurrence(sourceParent.siblingAtColumn(0)) : QModelIndex();
    branch->parent = sourceParent.isValid() ? branchOf(source()->parent(sourceParent)) : nullptr;
    evaluate(*branch, branch->rows);
    return lastBranch = branch;
}

Branch *GenParamTreeVisibilityFilterProxyModelPrivate::branchOfProxy(const QModelIndex &proxyParent)
{
    return proxyParent.column() > 0 ? nullptr : branchOf(q->mapToSource(proxyParent));
}

QModelIndex GenParamTreeVisibilityFilterProxyModelPrivate::proxyOf(const Branch *branch) const
{
    if (!branch->parent)
        return {};
    const int row = position(branch->parent->rows, branch->source.row());
    return row < 0 ? QModelIndex() : q->createIndex(row, 0, branch->parent);
}

/** Whether the category that the rows of \a branch belong to can be seen, with all that it stands in. */
bool GenParamTreeVisibilityFilterProxyModelPrivate::isShown(Branch *branch)
{
    if (!branch->parent)
        return true;
    if (branch->walk != walk) {
        branch->isShown = isShown(branch->parent) && position(branch->parent->rows, branch->source.row()) >= 0;
        branch->walk = walk;
    }
    return branch->isShown;
}

void GenParamTreeVisibilityFilterProxyModelPrivate::evaluate(Branch &branch, Rows &rows) const
{
    const int count = source()->rowCount(branch.source);
    rows.clear();
    for (int row = 0; row < count; ++row) {
        if (q->filterAcceptsRow(row, branch.source))
            rows.push_back(row);
    }
    rows.shrink_to_fit();
}

bool GenParamTreeVisibilityFilterProxyModelPrivate::accepts(GenApi::IValue *value) const
{
    GenApi::INode *const node = value ? nodeOf(value) : nullptr;
    if (!node)
        return true;
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
        accepted = node->GetPrincipalInterfaceType() == GenApi::intfICategory;
        if (!accepted) {
            accepted = true;
            const QString name = fromGenICam(node->GetDisplayName());
            accepted = wholeWords ? pattern.isAll(name) : pattern.isIn(name);
        }
    });
    return accepted;
}

/** One change of layout, or nothing where no row comes or goes. */
void GenParamTreeVisibilityFilterProxyModelPrivate::refilter()
{
    std::vector<Branch *> changed;
    Rows rows;
    for (const std::unique_ptr<Branch> &branch : owned) {
        evaluate(*branch, rows);
        if (rows != branch->rows) {
            branch->formerRows = std::move(rows);
            changed.push_back(branch.get());
        }
    }
    if (changed.empty())
        return;
    Q_EMIT q->layoutAboutToBeChanged();
    for (Branch *branch : changed)
        branch->rows.swap(branch->formerRows);
    movePersistentIndexes();
    for (Branch *branch : changed)
        branch->formerRows = Rows();
    Q_EMIT q->layoutChanged();
}

void GenParamTreeVisibilityFilterProxyModelPrivate::movePersistentIndexes()
{
    ++walk;
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
    const auto found = branches.constFind(topLeft.parent().internalId());
    if (!topLeft.isValid() || found == branches.constEnd())
        return;
    Branch &branch = **found;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row)
        updateRow(branch, row);
    ++walk;
    if (!isShown(&branch))
        return;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const int shown = position(branch.rows, row);
        if (shown >= 0)
            Q_EMIT q->dataChanged(q->createIndex(shown, topLeft.column(), &branch),
                                  q->createIndex(shown, bottomRight.column(), &branch), roles);
    }
}

/** With a change a feature may have come to be implemented, or have ceased to be. */
void GenParamTreeVisibilityFilterProxyModelPrivate::updateRow(Branch &branch, int sourceRow)
{
    const bool accepted = q->filterAcceptsRow(sourceRow, branch.source);
    const auto place = std::lower_bound(branch.rows.begin(), branch.rows.end(), sourceRow);
    const bool present = place != branch.rows.end() && *place == sourceRow;
    if (accepted == present)
        return;
    const int row = int(place - branch.rows.begin());
    ++walk;
    const bool announced = isShown(&branch);
    if (accepted) {
        if (announced)
            q->beginInsertRows(proxyOf(&branch), row, row);
        branch.rows.insert(place, sourceRow);
        if (announced)
            q->endInsertRows();
    } else {
        if (announced)
            q->beginRemoveRows(proxyOf(&branch), row, row);
        branch.rows.erase(place);
        if (announced)
            q->endRemoveRows();
    }
}

void GenParamTreeVisibilityFilterProxyModelPrivate::forget()
{
    branches.clear();
    owned.clear();
    lastBranch = nullptr;
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
            connect(sourceModel, &QObject::destroyed, this, [this] { d->forget(); }),
        };
    }
    endResetModel();
}

bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, GenParamTreeModel::NameColumn, sourceParent);
    return d->accepts(sourceModel()->data(index, GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::nearestTo(const QModelIndex &sourceIndex) const
{
    const QModelIndex source = sourceIndex.isValid() ? d->firstOccurrence(sourceIndex) : QModelIndex();
    Branch *const branch = source.isValid() ? d->branchOf(source.parent()) : nullptr;
    ++d->walk;
    if (!branch || !d->isShown(branch))
        return {};
    if (branch->rows.empty())
        return d->proxyOf(branch);
    const auto next = std::lower_bound(branch->rows.begin(), branch->rows.end(), source.row());
    const int row = int(next - branch->rows.begin()) - (next == branch->rows.end() ? 1 : 0);
    return createIndex(row, sourceIndex.column(), branch);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::mapToSource(const QModelIndex &proxyIndex) const
{
    if (!proxyIndex.isValid() || proxyIndex.model() != this)
        return {};
    const auto branch = static_cast<const Branch *>(proxyIndex.internalPointer());
    if (size_t(proxyIndex.row()) >= branch->rows.size())
        return {};
    return sourceModel()->index(branch->rows[size_t(proxyIndex.row())], proxyIndex.column(), branch->source);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::mapFromSource(const QModelIndex &sourceIndex) const
{
    const QModelIndex source = sourceIndex.isValid() ? d->firstOccurrence(sourceIndex) : QModelIndex();
    Branch *const branch = source.isValid() ? d->branchOf(source.parent()) : nullptr;
    ++d->walk;
    if (!branch || !d->isShown(branch))
        return {};
    const int row = position(branch->rows, source.row());
    return row < 0 ? QModelIndex() : createIndex(row, sourceIndex.column(), branch);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::index(int row, int column, const QModelIndex &parent) const
{
    Branch *const branch = d->branchOfProxy(parent);
    if (!branch || row < 0 || size_t(row) >= branch->rows.size() || column < 0 || column >= columnCount(parent))
        return {};
    return createIndex(row, column, branch);
}

QModelIndex GenParamTreeVisibilityFilterProxyModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return {};
    return d->proxyOf(static_cast<const Branch *>(index.internalPointer()));
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
    const Branch *const branch = d->branchOfProxy(parent);
    return branch ? int(branch->rows.size()) : 0;
}

int GenParamTreeVisibilityFilterProxyModel::columnCount(const QModelIndex &) const
{
    return sourceModel() ? sourceModel()->columnCount() : 0;
}

bool GenParamTreeVisibilityFilterProxyModel::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant GenParamTreeVisibilityFilterProxyModel::data(const QModelIndex &index, int role) const
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? sourceModel()->data(source, role) : QVariant();
}

bool GenParamTreeVisibilityFilterProxyModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() && sourceModel()->setData(source, value, role);
}

QVariant GenParamTreeVisibilityFilterProxyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return sourceModel() ? sourceModel()->headerData(section, orientation, role) : QVariant();
}

QSize GenParamTreeVisibilityFilterProxyModel::span(const QModelIndex &index) const
{
    const QModelIndex source = mapToSource(index);
    return source.isValid() ? sourceModel()->span(source) : QSize();
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

void GenParamTreeVisibilityFilterProxyModel::invalidate()
{
    d->refilter();
}
