// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <OrvCameraGuiApi/feature_tree/blockarena.h>
#include <OrvCameraGuiApi/feature_tree/featurehandler.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>
#include <OrvCameraGuiApi/feature_tree/nodechangecallback.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QBrush>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <QPointer>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace {

struct IndexFeature;

/** A row's identity; the internal pointer of model indexes. */
using FeatureEntry = std::pair<GenApi::IValue *const, IndexFeature>;

/** The place of a feature in the tree. Small, because every feature has one. */
struct IndexFeature
{
    FeatureEntry *parent = nullptr; ///< null at the root level
    FeatureEntry **children = nullptr; ///< null unless it is a category whose features have been added
    qint32 row = 0;
    qint32 childCount = 0;
    const char *name = ""; ///< of the node, UTF-8, in the arena
};

/** The memory of all features. */
struct Memory
{
    BlockArena arena; ///< of the entries, the child arrays and the names
    std::pmr::map<GenApi::IValue *, IndexFeature> entries{&arena};
};

/** A category whose features are being added; null and the root's rows for the root. */
struct Visit
{
    FeatureEntry *category;
    FeatureEntry **children;
    GenApi::FeatureList_t features;
    qint32 count;
    qint32 next;
    qint64 rows; ///< so far, with those in the categories that it has
};

// The most that a view can expand: it is recursive, and counts a row that stands in several places each time.
constexpr size_t maximumDepth = 1000;
constexpr qint64 maximumRows = 1000000;

/** The color of failures. */
constexpr QColor errorColor(255, 0, 0);

QBrush paletteBrush(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return QBrush(QGuiApplication::palette().color(group, role));
}

void registerMetaTypes()
{
    qRegisterMetaType<GenApi::IValue *>("GenApi::IValue*");
    qRegisterMetaType<QVector<int>>("QVector<int>");
    qRegisterMetaType<ControlData>("ControlData");
    qRegisterMetaType<VariantData>("VariantData");
}

/** Saves a failing cast, which costs more than everything else that is done for a feature. */
bool mayBeCategory(GenApi::INode *node)
{
    bool mayBe = true;
    failureOf([&] { mayBe = !node || node->GetPrincipalInterfaceType() == GenApi::intfICategory; });
    return mayBe;
}

/** The nodes of a large camera do not fit into a cache. Waiting for them is a quarter of the time to build a tree. */
void prefetch(const GenApi::FeatureList_t &features, size_t index)
{
    if (index < features.size())
        __builtin_prefetch(features[index]);
}

/** Holds a node map's lock. Every access to a node takes it again, which is cheaper while it is held. */
class NodeMapLock
{
public:
    explicit NodeMapLock(const GenApi::INodeMap &map)
        : m_lock(map.GetLock())
    {
        m_lock.Lock();
    }
    ~NodeMapLock() { m_lock.Unlock(); }
    Q_DISABLE_COPY(NodeMapLock)

private:
    GenApi::CLock &m_lock;
};

} // namespace

class GenParamTreeModelPrivate
{
public:
    GenParamTreeModelPrivate(GenParamTreeModel *model, GenApi::INodeMap *map);
    ~GenParamTreeModelPrivate();
    Q_DISABLE_COPY(GenParamTreeModelPrivate)

    void build();
    void release();
    void enter(GenApi::ICategory &category, FeatureEntry *entry);
    FeatureEntry *addFeature(GenApi::IValue *value, FeatureEntry *parent, qint32 row);
    FeatureEntry *furtherOccurrence(FeatureEntry *first, FeatureEntry *parent, qint32 row);
    bool canStandAgain(const FeatureEntry &category, const FeatureEntry *parent);
    void leave();
    void describe(FeatureEntry &entry, const GenApi::INode &node);
    const char *keepText(const GenICam::gcstring &text);
    void nodeChanged(FeatureEntry &entry);

    static FeatureEntry &entryOf(const QModelIndex &index);
    GenParamFeature featureOf(const QModelIndex &index) const;
    bool hasError(const GenParamFeature &feature) const;

    QVariant controlData(const GenParamFeature &feature) const;
    QVariant nameData(const QModelIndex &index, int role);
    QString displayName(const GenParamFeature &feature) const;
    QString nameToolTip(const GenParamFeature &feature) const;
    QVariant valueData(const QModelIndex &index, int role);
    QVariant readValue(const GenParamFeature &feature, int role) const;
    void observe(const GenParamFeature &feature, int role, const QString &text) const;
    QString whatsThis(const GenParamFeature &feature) const;
    QVariant valueForeground(const GenParamFeature &feature, bool isRead) const;
    void recordError(const QModelIndex &index, const QString &message, int role);

    GenParamTreeModel *const q;
    GenApi::INodeMap *const nodeMap;
    bool addressesAreDeclared = false; ///< by the node map: names do not decide which integers are addresses
    const GenICam::gcstring currentAddressName = "GevCurrentIPAddress";
    std::function<void(GenApi::IValue *, const QString &)> readObserver; ///< may be empty
    std::function<QString(GenApi::IValue *)> reasonTeller;
    bool isReleased = false; ///< nothing may ask a node any more
    std::vector<GenApi::CallbackHandleType> callbacks;
    std::unique_ptr<Memory> memory{new Memory}; ///< null when they have been freed
    FeatureEntry **rootChildren = nullptr;
    qint32 rootChildCount = 0;

    GenApi::IValue *root = nullptr;
    std::vector<Visit> visits; ///< while the tree is built: the way from the root to the category being visited
    QHash<const FeatureEntry *, qint64> rowsIn; ///< the categories that have been visited, while the tree is built
    qint64 rowsInAll = 0;
    std::optional<OrvGui::ReportRelay<FeatureEntry *>> changes; ///< of nodes; none once released
};

namespace {

/** The data that a column shows of a feature. The number of a column is its place in the table. */
struct ModelColumn
{
    const char *title; ///< untranslated
    QVariant (GenParamTreeModelPrivate::*data)(const QModelIndex &index, int role); ///< for what differs by column
    bool isEditable; ///< when the feature can be written
    bool followsNode; ///< a change of the node changes the cell

    static const ModelColumn all[];

    /** The first column from \a column on that follows the node, or -1. */
    static int followingFrom(int column);
    static const ModelColumn &of(const QModelIndex &index) { return all[index.column()]; }
};

const ModelColumn ModelColumn::all[] = {
    {QT_TRANSLATE_NOOP("GenParamTreeModel", "Name"), &GenParamTreeModelPrivate::nameData, false, false},
    {QT_TRANSLATE_NOOP("GenParamTreeModel", "Value"), &GenParamTreeModelPrivate::valueData, true, true},
};

int ModelColumn::followingFrom(int column)
{
    while (column < int(std::size(all)) && !all[column].followsNode)
        ++column;
    return column < int(std::size(all)) ? column : -1;
}

} // namespace

GenParamTreeModelPrivate::GenParamTreeModelPrivate(GenParamTreeModel *model, GenApi::INodeMap *map)
    : q(model)
    , nodeMap(map)
    , changes([this](FeatureEntry *entry) { nodeChanged(*entry); })
{
    registerMetaTypes();
    if (failureOf([this] { build(); }))
        rootChildCount = 0;
    callbacks.shrink_to_fit();
    visits = {};
    rowsIn = {};
}

GenParamTreeModelPrivate::~GenParamTreeModelPrivate()
{
    release();
}

/** The memory stays while it may be in use: OpenCalls. */
void GenParamTreeModelPrivate::release()
{
    changes.reset();
    for (const GenApi::CallbackHandleType callback : std::exchange(callbacks, {}))
        failureOf([&] { GenApi::Deregister(callback); });
    rootChildCount = 0;
    isReleased = true;
    if (!OpenCalls::any())
        memory.reset();
}

/** Adds all features, depth first. Not recursive: a description decides how deep its categories are nested. */
void GenParamTreeModelPrivate::build()
{
    if (!nodeMap)
        return;
    const NodeMapLock lock(*nodeMap);
    const GenApi::CCategoryPtr category(nodeMap->GetNode("Root"));
    if (!category.IsValid())
        return;
    root = category;
    enter(*category, nullptr);
    while (!visits.empty()) {
        Visit &visit = visits.back();
        if (visit.next == visit.count) {
            leave();
            continue;
        }
        // Adding a category begins a visit, which may move this one.
        FeatureEntry **const slot = visit.children + visit.next;
        const qint32 row = visit.next++;
        ++visit.rows;
        ++rowsInAll;
        prefetch(visit.features, size_t(row) + 4);
        *slot = addFeature(visit.features[size_t(row)], visit.category, row);
    }
}

void GenParamTreeModelPrivate::enter(GenApi::ICategory &category, FeatureEntry *entry)
{
    GenApi::FeatureList_t features;
    if (failureOf([&] { category.GetFeatures(features); }))
        features.clear();
    const auto count = qint32(std::min<size_t>(features.size(), std::numeric_limits<qint32>::max()));
    auto **const children = static_cast<FeatureEntry **>(
        memory->arena.allocate(size_t(count) * sizeof(FeatureEntry *), alignof(FeatureEntry *)));
    (entry ? entry->second.children : rootChildren) = children;
    (entry ? entry->second.childCount : rootChildCount) = count;
    visits.push_back({entry, children, std::move(features), count, 0, 0});
}

void GenParamTreeModelPrivate::leave()
{
    const qint64 rows = visits.back().rows;
    rowsIn.insert(visits.back().category, rows);
    visits.pop_back();
    if (!visits.empty())
        visits.back().rows += rows;
}

FeatureEntry *GenParamTreeModelPrivate::addFeature(GenApi::IValue *value, FeatureEntry *parent, qint32 row)
{
    auto &entries = memory->entries;
    const size_t known = entries.size();
    // Nodes come mostly in the order in which they were made, which the hint makes cheap.
    FeatureEntry &entry = *entries.try_emplace(entries.end(), value, IndexFeature{parent, nullptr, row, 0, ""});
    const bool isNew = entries.size() > known;
    GenApi::INode *node = nullptr;
    failureOf([&] {
        node = nodeOf(value);
        callbacks.push_back(GenApi::Register(node, NodeChangeCallback<FeatureEntry *>(changes->reporter(), &entry)));
    });
    if (!isNew)
        return furtherOccurrence(&entry, parent, row);
    if (node)
        failureOf([&] { describe(entry, *node); });
    // A category is entered only where it stands first: no description can make this endless.
    if (value != root && visits.size() < maximumDepth && mayBeCategory(node)) {
        if (auto *const category = dynamic_cast<GenApi::ICategory *>(value))
            enter(*category, &entry);
    }
    return &entry;
}

/**
 * A repeated feature keeps the place of its first occurrence, intentionally. Only a category whose children cannot
 * stand here again gets an entry for this row, without children.
 */
FeatureEntry *GenParamTreeModelPrivate::furtherOccurrence(FeatureEntry *first, FeatureEntry *parent, qint32 row)
{
    if (!first->second.children || canStandAgain(*first, parent))
        return first;
    void *const place = memory->arena.allocate(sizeof(FeatureEntry), alignof(FeatureEntry));
    return new (place) FeatureEntry(first->first, IndexFeature{parent, nullptr, row, 0, first->second.name});
}

/** False inside itself and beyond the limit of rows: a view that expands all would not come to an end. */
bool GenParamTreeModelPrivate::canStandAgain(const FeatureEntry &category, const FeatureEntry *parent)
{
    while (parent && parent != &category)
        parent = parent->second.parent;
    const qint64 rows = rowsIn.value(&category);
    if (parent || rowsInAll + rows > maximumRows)
        return false;
    visits.back().rows += rows;
    rowsInAll += rows;
    return true;
}

/** Keeps the name, and finds out by it whether this node map declares addresses. */
void GenParamTreeModelPrivate::describe(FeatureEntry &entry, const GenApi::INode &node)
{
    const GenICam::gcstring name = node.GetName();
    entry.second.name = keepText(name);
    if (name == currentAddressName) {
        const GenApi::CIntegerPtr address(entry.first);
        if (address.IsValid() && address->GetRepresentation() == GenApi::IPV4Address)
            addressesAreDeclared = true;
    }
}

const char *GenParamTreeModelPrivate::keepText(const GenICam::gcstring &text)
{
    const size_t size = text.length() + 1;
    return static_cast<const char *>(std::memcpy(memory->arena.allocate(size, 1), text.c_str(), size));
}

void GenParamTreeModelPrivate::nodeChanged(FeatureEntry &entry)
{
    const OpenCalls::Call call;
    int column = ModelColumn::followingFrom(0);
    while (column >= 0) {
        const int next = ModelColumn::followingFrom(column + 1);
        const QPointer<GenParamTreeModel> alive(next >= 0 ? q : nullptr); // a slot may destroy the model
        const QModelIndex cell = q->createIndex(entry.second.row, column, &entry);
        Q_EMIT q->dataChanged(cell, cell, QVector<int>());
        column = alive ? next : -1;
    }
}

FeatureEntry &GenParamTreeModelPrivate::entryOf(const QModelIndex &index)
{
    return *static_cast<FeatureEntry *>(index.internalPointer());
}

GenParamFeature GenParamTreeModelPrivate::featureOf(const QModelIndex &index) const
{
    if (!memory)
        return GenParamFeature(nullptr, "", true);
    const FeatureEntry &entry = entryOf(index);
    return GenParamFeature(isReleased ? nullptr : entry.first, entry.second.name, !addressesAreDeclared);
}

bool GenParamTreeModelPrivate::hasError(const GenParamFeature &feature) const
{
    return q->m_errors.hasErrors() && q->m_errors.hasError(feature.name());
}

/** Invalid when the handler has no editor, or when a getter throws. */
QVariant GenParamTreeModelPrivate::controlData(const GenParamFeature &feature) const
{
    ControlData control;
    failureOf([&] { control = FeatureHandler::of(feature).createEditor(feature); });
    return control.editor ? QVariant::fromValue(control) : QVariant();
}

QVariant GenParamTreeModelPrivate::nameData(const QModelIndex &index, int role)
{
    const GenParamFeature feature = featureOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return displayName(feature);
    case Qt::ToolTipRole:
        return nameToolTip(feature);
    case Qt::BackgroundRole: {
        bool isCategory = false;
        failureOf([&] { isCategory = feature.type() == GenApi::intfICategory; });
        return isCategory ? paletteBrush(QPalette::Active, QPalette::Midlight) : QVariant();
    }
    case Qt::ForegroundRole:
        return hasError(feature) ? QBrush(errorColor) : QVariant();
    default:
        return {};
    }
}

QString GenParamTreeModelPrivate::displayName(const GenParamFeature &feature) const
{
    QString text;
    failureOf([&] { text = fromGenICam(feature.node()->GetDisplayName()); });
    return text.isEmpty() ? feature.name() : text;
}

QString GenParamTreeModelPrivate::nameToolTip(const GenParamFeature &feature) const
{
    if (hasError(feature))
        return q->m_errors.firstMessage(feature.name());
    QString text;
    if (failureOf([&] { text = fromGenICam(feature.node()->GetToolTip()); }))
        return feature.name();
    return text.isEmpty() ? displayName(feature) : text;
}

QVariant GenParamTreeModelPrivate::valueData(const QModelIndex &index, int role)
{
    // Views ask for many more roles at every repaint. These must not ask a node.
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole && role != Qt::ForegroundRole)
        return {};
    const GenParamFeature feature = featureOf(index);
    QVariant result;
    if (const auto failure = failureOf([&] { result = readValue(feature, role); })) {
        observe(feature, role, QString());
        recordError(index, *failure, role);
        return role == Qt::DisplayRole ? GenParamTreeModel::tr("ERROR") : QVariant();
    }
    // A failed read of the tool tip stays recorded, intentionally: its message is the tool tip from then on.
    if (role != Qt::ToolTipRole && hasError(feature)) {
        const QString name = feature.name();
        if (q->m_errors.ClearError(name, role))
            Q_EMIT q->errorDisappeared(index, name, role);
    }
    return result;
}

QVariant GenParamTreeModelPrivate::readValue(const GenParamFeature &feature, int role) const
{
    const FeatureHandler &handler = FeatureHandler::of(feature);
    if (!handler.hasValue())
        return {};
    if (role == Qt::ForegroundRole)
        return valueForeground(feature, handler.isRead());
    if (role == Qt::ToolTipRole) {
        if (hasError(feature))
            return q->m_errors.firstMessage(feature.name());
        return feature.value() ? fromGenICam(feature.node()->GetToolTip()) : QString();
    }
    const GenApi::EAccessMode mode = feature.accessMode();
    if (handler.isRead() && !isReadable(mode))
        observe(feature, role, QString());
    if (mode < GenApi::WO)
        return GenParamTreeModel::tr("<Value not available>");
    if (handler.isRead() && !isReadable(mode))
        return GenParamTreeModel::tr("<Value not readable>");
    if (role != Qt::DisplayRole)
        return handler.editValue(feature);
    QVariant text = handler.text(feature);
    const QString shown = text.toString();
    if (handler.isRead())
        observe(feature, role, shown.isNull() ? QStringLiteral("") : shown);
    return text;
}

void GenParamTreeModelPrivate::observe(const GenParamFeature &feature, int role, const QString &text) const
{
    if (readObserver && !isReleased && role == Qt::DisplayRole)
        readObserver(feature.value(), text);
}

QString GenParamTreeModelPrivate::whatsThis(const GenParamFeature &feature) const
{
    const QString help = genParamWhatsThis(feature);
    const auto teller = reasonTeller; // it may be taken away meanwhile
    const QString reason = teller && feature.value() ? teller(feature.value()) : QString();
    return reason.isEmpty() ? help : QStringLiteral("%1<br />%2").arg(reason, help); // where it is seen at once
}

QVariant GenParamTreeModelPrivate::valueForeground(const GenParamFeature &feature, bool isRead) const
{
    if (hasError(feature))
        return QBrush(errorColor);
    const GenApi::EAccessMode mode = feature.accessMode();
    const bool hasText = isReadable(mode) || !isRead;
    return hasText && isWritable(mode) ? QVariant() : paletteBrush(QPalette::Disabled, QPalette::Text);
}

/** Does nothing after the signal, whose slots may call back into the model. */
void GenParamTreeModelPrivate::recordError(const QModelIndex &index, const QString &message, int role)
{
    const QString name = featureOf(index).name();
    if (q->m_errors.SetError(name, message, role))
        Q_EMIT q->errorAppeared(index, name, message, role);
}

GenApi::INode *nodeAt(const QModelIndex &index)
{
    GenApi::INode *node = nullptr;
    failureOf([&] { node = index.isValid() ? nodeOf(featureAt(index)) : nullptr; });
    return node;
}

GenParamTreeModel::GenParamTreeModel(GenApi::INodeMap *nodeMap, QObject *parent)
    : QAbstractItemModel(parent)
    , d(new GenParamTreeModelPrivate(this, nodeMap))
{
}

GenParamTreeModel::GenParamTreeModel(OrvGenParam::Array *params, QObject *parent)
    : GenParamTreeModel(nodeMapOf(params), parent)
{
}

GenParamTreeModel::~GenParamTreeModel() = default;

void GenParamTreeModel::release()
{
    beginResetModel();
    d->release();
    endResetModel();
}

QModelIndex GenParamTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount(parent))
        return {};
    FeatureEntry **const children = parent.isValid() ? d->entryOf(parent).second.children : d->rootChildren;
    return createIndex(row, column, children[row]);
}

QModelIndex GenParamTreeModel::parent(const QModelIndex &index) const
{
    FeatureEntry *const parent = index.isValid() && d->memory ? d->entryOf(index).second.parent : nullptr;
    return parent ? createIndex(parent->second.row, NameColumn, parent) : QModelIndex();
}

QModelIndex GenParamTreeModel::sibling(int row, int column, const QModelIndex &index) const
{
    if (!index.isValid() || row != index.row())
        return QAbstractItemModel::sibling(row, column, index);
    const bool isCell = column >= 0 && column < columnCount();
    return isCell ? createIndex(row, column, index.internalPointer()) : QModelIndex();
}

int GenParamTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return d->rootChildCount;
    return parent.column() == NameColumn && !d->isReleased ? d->entryOf(parent).second.childCount : 0;
}

int GenParamTreeModel::columnCount(const QModelIndex &) const
{
    return int(std::size(ModelColumn::all));
}

QVariant GenParamTreeModel::headerData(int section, Qt::Orientation, int role) const
{
    const bool isColumn = section >= 0 && section < columnCount();
    return isColumn && role == Qt::DisplayRole ? tr(ModelColumn::all[section].title) : QVariant();
}

Qt::ItemFlags GenParamTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const OpenCalls::Call call;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (ModelColumn::of(index).isEditable) {
        failureOf([&] {
            if (isWritable(d->featureOf(index).accessMode()))
                flags |= Qt::ItemIsEditable;
        });
    }
    return flags;
}

QVariant GenParamTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const OpenCalls::Call call;
    switch (role) {
    case ValueInterfaceRole:
        return QVariant::fromValue(d->featureOf(index).value());
    case FeatureNameRole:
        return d->featureOf(index).name();
    case ControlDataRole:
        return d->controlData(d->featureOf(index));
    case Qt::WhatsThisRole:
        return d->whatsThis(d->featureOf(index));
    default:
        return (d.data()->*ModelColumn::of(index).data)(index, role);
    }
}

QModelIndex GenParamTreeModel::indexOf(GenApi::IValue *feature) const
{
    if (d->isReleased || !feature)
        return {};
    const auto found = d->memory->entries.find(feature);
    return found != d->memory->entries.end() ? createIndex(found->second.row, NameColumn, &*found) : QModelIndex();
}

QModelIndex GenParamTreeModel::indexOf(const QString &name) const
{
    if (d->isReleased || !d->nodeMap)
        return {};
    GenApi::IValue *feature = nullptr;
    failureOf([&] { feature = dynamic_cast<GenApi::IValue *>(d->nodeMap->GetNode(name.toUtf8().constData())); });
    return indexOf(feature);
}

void GenParamTreeModel::setReadObserver(std::function<void(GenApi::IValue *, const QString &)> observer)
{
    d->readObserver = std::move(observer);
}

void GenParamTreeModel::setReasonTeller(std::function<QString(GenApi::IValue *)> teller)
{
    d->reasonTeller = std::move(teller);
}

void GenParamTreeModel::clearError(const QModelIndex &index, int role)
{
    const OpenCalls::Call call;
    const QString name = index.data(FeatureNameRole).toString();
    if (m_errors.ClearError(name, role))
        Q_EMIT errorDisappeared(index, name, role);
}

void GenParamTreeModel::clearErrors()
{
    m_errors = GenParamErrorController();
}

bool GenParamTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || !ModelColumn::of(index).isEditable || role != Qt::EditRole)
        return false;
    const OpenCalls::Call call;
    const GenParamFeature feature = d->featureOf(index);
    bool isWritten = false;
    const auto failure =
        failureOf([&] { isWritten = FeatureHandler::of(feature).write(feature, withoutWrapper(value)); });
    if (failure) {
        const QPointer<GenParamTreeModel> alive(this);
        const QPersistentModelIndex written(index);
        d->recordError(index, *failure, ValueInterfaceRole);
        if (alive && written.isValid())
            Q_EMIT writeFailed(written);
    }
    if (failure || !isWritten)
        return false;
    const QString name = feature.name();
    Q_EMIT dataChanged(index, index);
    m_errors.ClearError(name, ValueInterfaceRole);
    Q_EMIT errorDisappeared(index, name, ValueInterfaceRole);
    return true;
}
