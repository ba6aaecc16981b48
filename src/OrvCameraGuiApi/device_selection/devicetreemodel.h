// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <QAbstractItemModel>
#include <QByteArray>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

class DeviceInfoNode;
class DeviceTreeNode;
class InterfaceNode;
class RootNode;

Q_DECLARE_METATYPE(OrvCam::DeviceInfo *)
Q_DECLARE_METATYPE(OrvCam::Interface *)

/**
 * The camera system's interfaces, and below each the devices that were found on it, in the order in which the system
 * lists them; one column, read-only. Items come into being when a view fetches them.
 *
 * Qt::UserRole is the OrvCam::Interface or OrvCam::DeviceInfo of an item. These belong to the camera access library,
 * which is asked for every text that is shown: only their identifiers are kept.
 *
 * The system is enumerated by the constructor, by rescan(), or in the background: checkNew() enumerates, updateModel()
 * adopts the result. rescan() and updateModel() reset the model, so no index stays valid; an item is found again by its
 * identifier.
 *
 * checkNew() may be called from one other thread while the model is used on its own, the GUI's; everything else is for
 * that thread only. Neither ever waits for the other longer than a pointer takes to be copied.
 */
class DeviceTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using Interfaces = std::vector<OrvCam::Interface *>;
    /** By the identifier of the interface. */
    using Devices = std::map<QString, std::vector<OrvCam::DeviceInfo *>>;

    /** Tells an item from all others, in whatever list it stands, first of all by identifiers; by default none. */
    struct Key
    {
        bool isItem = false;
        bool isDevice = false;
        bool isUnique = true; ///< no other object of its kind has the same identifier
        QByteArray transport; ///< of the interface, which the item itself may be
        QByteArray device;
        const void *transportObject = nullptr; ///< to be compared only: it may be gone
        const void *deviceObject = nullptr;
    };

    /** Enumerates \a system, which outlives the model; null has no interfaces. */
    DeviceTreeModel(OrvCam::System *system, QObject *parent);
    ~DeviceTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    /** Invalid for the root. */
    QModelIndex index(DeviceTreeNode *node) const;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    using QObject::parent;

    /** The camera access library's identifier of an item, UTF-8; empty for what is no item. */
    QString getItemID(const QModelIndex &index) const;

    /**
     * The first item of that identifier, an interface before its devices; invalid when there is none. Only what has
     * been fetched is searched. Interfaces and devices share one space of identifiers.
     */
    QModelIndex getItemIdx(const QString &id) const;

    Key keyOf(const QModelIndex &index) const;

    /** Whether indexOf(\a key) would find the item at \a index; as a rule without looking at the others. */
    bool isKeyOf(const Key &key, const QModelIndex &index) const;

    /**
     * The item of that key, or the device below another interface if it has gone there; invalid when there is none.
     * Unlike texts, bytes are never alike where identifiers differ. Where several objects have one identifier, only
     * the object itself is it. Only what has been fetched is searched.
     */
    QModelIndex indexOf(const Key &key) const;

    /** The first interface, or an invalid index. */
    QModelIndex getFirstIdx() const;

    /**
     * Asks the system what there is now; each interface is told to look for devices. Two interfaces of one identifier
     * share an entry of \a devices. May be called from any thread.
     */
    void getDevices(Interfaces &interfaces, Devices &devices) const;

    /** Enumerates again and resets the model. Not while another thread is in checkNew(). */
    void rescan();

    /**
     * 1 when the system has other interfaces or devices than the model shows, or has them in another order; else 0.
     * They are told apart by their identifiers only.
     */
    int checkNew();

    /** Shows what the last checkNew() has found. */
    void updateModel();

    /** The interfaces that the model shows now. */
    const Interfaces &interfaces() const { return m_current->interfaces; }
    const std::vector<OrvCam::DeviceInfo *> &devicesOn(const QString &interfaceId) const;

private:
    friend class DeviceTreeNode;

    /** One enumeration. The identifiers tell whether two are the same without asking objects that may be gone. */
    struct State
    {
        Interfaces interfaces;
        Devices devices;
        QStringList interfaceIds;
        std::map<QString, QStringList> deviceIds; ///< by the identifier of the interface
    };

    using Snapshot = std::shared_ptr<const State>;

    using Visit = std::function<void(InterfaceNode *transport, DeviceInfoNode *device)>;

    void forEachItem(bool isDevice, const Visit &visit) const;
    Snapshot enumerate() const;
    void show(Snapshot state);
    DeviceTreeNode *nodeOf(const QModelIndex &index) const;
    std::pair<InterfaceNode *, DeviceInfoNode *> nodesOf(const QModelIndex &index) const;

    OrvCam::System *const m_system; ///< for the other thread, which must not ask the root: that is replaced
    std::unique_ptr<RootNode> m_root;
    Snapshot m_current; ///< written by the GUI thread with the lock, so that it may read without
    Snapshot m_found; ///< by the last checkNew(), nothing before; with the lock
    std::mutex m_mutex;
};
