// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>

#include <OrvCameraGuiApi/device_selection/devicetreenode.h>

#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t searchTimeout = 200;

void registerMetaTypes()
{
    qRegisterMetaType<OrvCam::DeviceInfo *>("OrvCam::DeviceInfo*");
    qRegisterMetaType<OrvCam::Interface *>("OrvCam::Interface*");
}

/** Calls \a visit with every entry of a list that may be null, and releases it. */
template <typename List, typename Visit>
void forEachEntry(List *list, Visit visit)
{
    if (!list)
        return;
    if (list->GetSize() != 0) {
        for (auto *entry = list->GetFirst(); entry; entry = list->GetNext())
            visit(entry);
    }
    list->Release();
}

/** Whether a text in UTF-8 is that one. */
bool isText(const char *utf8, const QString &text)
{
    const QLatin1String bytes(utf8);
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    return std::all_of(bytes.begin(), bytes.end(), isAscii) ? bytes == text : QString::fromUtf8(utf8) == text;
}

/** As if no other item had that identifier. */
DeviceTreeModel::Key plainKey(InterfaceNode *transport, DeviceInfoNode *device)
{
    DeviceTreeModel::Key key;
    key.isItem = true;
    key.isDevice = device;
    key.transport = transport->object()->GetID();
    key.transportObject = transport->object();
    if (device) {
        key.device = device->object()->GetID();
        key.deviceObject = device->object();
    }
    return key;
}

/** Whether the item is of the key's kind and has its identifier. Copies no text: most items are not the one. */
bool isAlike(const DeviceTreeModel::Key &key, const InterfaceNode &transport, const DeviceInfoNode *device)
{
    if (key.isDevice != bool(device))
        return false;
    return device ? key.device == device->object()->GetID() : key.transport == transport.object()->GetID();
}

bool isSameObject(const DeviceTreeModel::Key &one, const DeviceTreeModel::Key &other)
{
    return one.isDevice ? one.deviceObject == other.deviceObject : one.transportObject == other.transportObject;
}

} // namespace

DeviceTreeModel::DeviceTreeModel(OrvCam::System *system, QObject *parent)
    : QAbstractItemModel(parent)
    , m_system(system)
    , m_root(std::make_unique<RootNode>(*this, system))
    , m_current(enumerate())
    , m_found(std::make_shared<State>())
{
    registerMetaTypes();
}

DeviceTreeModel::~DeviceTreeModel() = default;

DeviceTreeNode *DeviceTreeModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<DeviceTreeNode *>(index.internalPointer()) : m_root.get();
}

QModelIndex DeviceTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent) || row >= nodeOf(parent)->childCount())
        return {};
    return createIndex(row, column, nodeOf(parent)->child(row));
}

QModelIndex DeviceTreeModel::index(DeviceTreeNode *node) const
{
    return node == m_root.get() ? QModelIndex() : createIndex(node->row(), 0, node);
}

QModelIndex DeviceTreeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? this->index(nodeOf(index)->parent()) : QModelIndex();
}

int DeviceTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : nodeOf(parent)->childCount();
}

int DeviceTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant DeviceTreeModel::data(const QModelIndex &index, int role) const
{
    return index.isValid() ? nodeOf(index)->data(index.column(), role) : QVariant();
}

QVariant DeviceTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_root->data(section, Qt::DisplayRole)
                                                                    : QVariant();
}

Qt::ItemFlags DeviceTreeModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? QAbstractItemModel::flags(index) : Qt::NoItemFlags;
}

bool DeviceTreeModel::hasChildren(const QModelIndex &parent) const
{
    return nodeOf(parent)->hasChildren();
}

bool DeviceTreeModel::canFetchMore(const QModelIndex &parent) const
{
    return nodeOf(parent)->canFetchMore();
}

void DeviceTreeModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        nodeOf(parent)->fetchMore();
}

QString DeviceTreeModel::getItemID(const QModelIndex &index) const
{
    const QVariant object = data(index, Qt::UserRole);
    if (auto *const device = object.value<OrvCam::DeviceInfo *>())
        return QString::fromUtf8(device->GetID());
    if (auto *const transport = object.value<OrvCam::Interface *>())
        return QString::fromUtf8(transport->GetID());
    return {};
}

/** Past the indexes and values of getItemID(): after every change all items may have to be looked at. */
QModelIndex DeviceTreeModel::getItemIdx(const QString &id) const
{
    for (int row = 0; row < m_root->childCount(); ++row) {
        auto *const transport = static_cast<InterfaceNode *>(m_root->child(row));
        if (isText(transport->object()->GetID(), id))
            return index(transport);
        for (int below = 0; below < transport->childCount(); ++below) {
            auto *const device = static_cast<DeviceInfoNode *>(transport->child(below));
            if (isText(device->object()->GetID(), id))
                return index(device);
        }
    }
    return {};
}

/** In the order of the tree: all interfaces, with a null device, or all devices that have been fetched. */
void DeviceTreeModel::forEachItem(bool isDevice, const Visit &visit) const
{
    for (int row = 0; row < m_root->childCount(); ++row) {
        auto *const transport = static_cast<InterfaceNode *>(m_root->child(row));
        if (!isDevice)
            visit(transport, nullptr);
        for (int below = 0; isDevice && below < transport->childCount(); ++below)
            visit(transport, static_cast<DeviceInfoNode *>(transport->child(below)));
    }
}

/** Those of a valid index; the device is null for an interface. */
std::pair<InterfaceNode *, DeviceInfoNode *> DeviceTreeModel::nodesOf(const QModelIndex &index) const
{
    if (!index.parent().isValid())
        return {static_cast<InterfaceNode *>(nodeOf(index)), nullptr};
    return {static_cast<InterfaceNode *>(nodeOf(index.parent())), static_cast<DeviceInfoNode *>(nodeOf(index))};
}

DeviceTreeModel::Key DeviceTreeModel::keyOf(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const auto [transport, device] = nodesOf(index);
    Key key = plainKey(transport, device);
    forEachItem(key.isDevice, [&](InterfaceNode *otherTransport, DeviceInfoNode *otherDevice) {
        if (isAlike(key, *otherTransport, otherDevice) && !isSameObject(plainKey(otherTransport, otherDevice), key))
            key.isUnique = false;
    });
    return key;
}

bool DeviceTreeModel::isKeyOf(const Key &key, const QModelIndex &index) const
{
    if (!key.isItem || !index.isValid())
        return false;
    const auto [transport, device] = nodesOf(index);
    if (!isAlike(key, *transport, device))
        return false;
    return isSameObject(plainKey(transport, device), key) || (key.isUnique && keyOf(index).isUnique);
}

QModelIndex DeviceTreeModel::indexOf(const Key &key) const
{
    DeviceTreeNode *best = nullptr;
    int bestRank = -1;
    bool isObject = false;
    Key first;
    bool isUnique = key.isUnique;
    forEachItem(key.isDevice, [&](InterfaceNode *transport, DeviceInfoNode *device) {
        if (!key.isItem || !isAlike(key, *transport, device))
            return;
        const Key item = plainKey(transport, device);
        if (first.isItem && !isSameObject(item, first))
            isUnique = false;
        else
            first = item;
        // A device may be listed below several interfaces of one identifier.
        const int rank = 4 * int(isSameObject(item, key)) + 2 * int(item.transport == key.transport)
            + int(item.transportObject == key.transportObject);
        if (rank <= bestRank)
            return;
        bestRank = rank;
        isObject = isSameObject(item, key);
        best = device ? static_cast<DeviceTreeNode *>(device) : transport;
    });
    return best && (isObject || isUnique) ? index(best) : QModelIndex();
}

QModelIndex DeviceTreeModel::getFirstIdx() const
{
    return index(0, 0);
}

void DeviceTreeModel::getDevices(Interfaces &interfaces, Devices &devices) const
{
    interfaces.clear();
    devices.clear();
    forEachEntry(
        m_system ? m_system->GetInterfaceList(OrvCam::AllInterfaceTypes) : nullptr, [&](OrvCam::Interface *transport) {
            const QString id = QString::fromLatin1(transport->GetID());
            interfaces.push_back(transport);
            bool changed = false;
            transport->ReEnumerateDevices(&changed, searchTimeout);
            std::vector<OrvCam::DeviceInfo *> &found = devices[id];
            forEachEntry(transport->GetDeviceInfoList(), [&](OrvCam::DeviceInfo *device) { found.push_back(device); });
        });
}

const std::vector<OrvCam::DeviceInfo *> &DeviceTreeModel::devicesOn(const QString &interfaceId) const
{
    static const std::vector<OrvCam::DeviceInfo *> none;
    const auto found = m_current->devices.find(interfaceId);
    return found == m_current->devices.end() ? none : found->second;
}

DeviceTreeModel::Snapshot DeviceTreeModel::enumerate() const
{
    const auto state = std::make_shared<State>();
    getDevices(state->interfaces, state->devices);
    for (OrvCam::Interface *transport : state->interfaces)
        state->interfaceIds.append(QString::fromLatin1(transport->GetID()));
    for (const auto &[id, devices] : state->devices) {
        QStringList &ids = state->deviceIds[id];
        for (OrvCam::DeviceInfo *device : devices)
            ids.append(QString::fromLatin1(device->GetID()));
    }
    return state;
}

void DeviceTreeModel::rescan()
{
    const QPointer<DeviceTreeModel> alive(this);
    Snapshot found = enumerate();
    if (alive) // the library may process events while it looks
        show(std::move(found));
}

int DeviceTreeModel::checkNew()
{
    const Snapshot found = enumerate();
    Snapshot published = found;
    Snapshot current;
    {
        // Held for the copies only: the GUI thread never waits for an enumeration, or for an old list to be deleted.
        const std::lock_guard<std::mutex> lock(m_mutex);
        current = m_current;
        m_found.swap(published);
    }
    return found->interfaceIds != current->interfaceIds || found->deviceIds != current->deviceIds ? 1 : 0;
}

void DeviceTreeModel::updateModel()
{
    Snapshot found;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        found = m_found;
    }
    show(std::move(found));
}

void DeviceTreeModel::show(Snapshot state)
{
    beginResetModel();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_current.swap(state);
    }
    m_root = std::make_unique<RootNode>(*this, m_system);
    endResetModel();
}
