// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "node.h"

#include <GenApi/IDestroy.h>
#include <GenApi/IDeviceInfo.h>
#include <OrvGenApi/nodemap.h>

#include <atomic>
#include <exception>
#include <mutex>
#include <optional>
#include <unordered_map>
#include <vector>

namespace OrvGenApi {

class PortNode;

/** The bytes of the file at \a path; throws when it cannot be read. */
std::string contentOf(const std::string &path);

/** Failures that tests ask for. */
struct Faults
{
    struct Fault
    {
        std::string node;
        std::string operation;
        std::string description;
    };
    std::vector<Fault> faults;
};

class NodeMapImpl final : public NodeMap, public GenApi::IDestroy, public GenApi::IDeviceInfo, public GenApi::IUserData
{
public:
    /** \a lock is one that outlives the map; null makes it use its own. */
    explicit NodeMapImpl(std::string deviceName, GenApi::CLock *lock = nullptr);
    ~NodeMapImpl() override;

    /** Reads \a xml; see NodeMap::fromString(). */
    static std::unique_ptr<NodeMapImpl> load(std::string xml, const std::string &sourceName,
                                             const std::string &deviceName, GenApi::CLock *lock = nullptr);

    // INodeMap
    void GetNodes(GenApi::NodeList_t &Nodes) const override;
    GenApi::INode *GetNode(const GenICam::gcstring &Name) const override;
    void InvalidateNodes() const override;
    GenICam::gcstring GetDeviceName() override;
    void Poll(int64_t ElapsedTime) override;
    GenApi::CLock &GetLock() const override { return m_lock; }
    uint64_t GetNumNodes() const override;
    bool Connect(GenApi::IPort *pPort, const GenICam::gcstring &PortName) const override;
    bool Connect(GenApi::IPort *pPort) const override { return Connect(pPort, "Device"); }
    bool Connect(GenApi::IPortStacked *pPort, const GenICam::gcstring &PortName) override
    {
        return connect(pPort, PortName.c_str());
    }
    bool Connect(GenApi::IPortStacked *pPort) override { return connect(pPort, "Device"); }
    bool ParseSwissKnifes(GenICam::gcstring_vector *pErrorList) const override;
    GenApi::CNodeWriteConcatenator *NewNodeWriteConcatenator() const override;
    bool ConcatenatedWrite(GenApi::CNodeWriteConcatenator *pConcatenatedWrite, bool featureStreaming,
                           GenICam::gcstring_vector *pErrorList) override;
    void SetSuppressCallbackMode(GenApi::ECallbackSuppressMode mode) override;

    // IDestroy
    void Destroy() override { delete this; }

    // IDeviceInfo
    GenICam::gcstring GetModelName() override { return m_modelName.c_str(); }
    GenICam::gcstring GetVendorName() override { return m_vendorName.c_str(); }
    GenICam::gcstring GetToolTip() override { return rootAttribute("ToolTip"); }
    GenICam::gcstring GetStandardNameSpace() override { return rootAttribute("StandardNameSpace"); }
    void GetGenApiVersion(GenICam::Version_t &Version, uint16_t &Build) override;
    void GetSchemaVersion(GenICam::Version_t &Version) override;
    void GetDeviceVersion(GenICam::Version_t &Version) override;
    GenICam::gcstring GetProductGuid() override { return rootAttribute("ProductGuid"); }
    GenICam::gcstring GetVersionGuid() override { return rootAttribute("VersionGuid"); }

    // IUserData
    GenApi::UserData_t GetUserData() const override { return m_userData; }
    GenApi::UserData_t SetUserData(GenApi::UserData_t userdata) override { return std::exchange(m_userData, userdata); }

    // NodeMap
    bool connect(GenApi::IPort *port, const std::string &portName) override;
    std::string modelName() const override { return m_modelName; }
    std::string vendorName() const override { return m_vendorName; }

    // Inside ----------------------------------------------------------------------------------------------------------

    const std::string &deviceName() const { return m_deviceName; }
    Node *find(std::string_view name) const;

    /** The text of the description from the node's element to the next one. */
    std::string_view descriptionOf(const Node &node) const;

    /** Copies \a text into the map's memory; the same pointer as long as the map lives, never null. */
    const char *keep(std::string_view text);

    /** Makes room for about that many nodes. */
    void reserve(std::size_t nodes) { m_byName.reserve(nodes); }

    /** Takes ownership; false when there is a node of that name. */
    bool add(std::unique_ptr<Node> node);

    uint64_t evaluation() const { return m_evaluation; }
    void startEvaluation() { ++m_evaluation; }

    /**
     * Calls the callbacks of \a nodes that were made for \a moment, in the order of the nodes; all of them, also when
     * one throws: then \a failure holds the first exception. One that is deregistered meanwhile is not called any more.
     */
    void fire(const std::vector<Node *> &nodes, GenApi::ECallbackType moment, std::exception_ptr &failure);

    /** Takes out and destroys a callback, as soon as none is running. */
    bool removeCallback(Node &node, GenApi::CNodeCallback *callback);

    /** Counts one that was registered. */
    void addCallback() { ++m_callbacks; }

    void throwFault(const Node &node, const char *operation) const;
    bool hasFaults() const { return m_faults.has_value(); }

    /** A node with a polling time. */
    struct Polled
    {
        Node *node;
        Node *blocker; ///< as long as it is not 0 there is no polling; may be null
    };

    /** Properties that few nodes have. */
    struct Extras
    {
        const char *docuUrl = "";
        const char *eventId = "";
        Node *alias = nullptr;
        Node *castAlias = nullptr;
        GenApi::UserData_t userData = nullptr;
        bool isDeprecated = false;
        std::pair<int64_t, int64_t> intLimits{int64Min, int64Max}; ///< imposed
        std::pair<double, double> floatLimits{-std::numeric_limits<double>::infinity(),
                                              std::numeric_limits<double>::infinity()};
    };
    Extras extrasOf(const Node &node) const;

    /** The value that was found within a node's limits last when it was read. */
    struct CheckedRead
    {
        const Node *node = nullptr;
        int64_t value = 0;
        uint64_t evaluation = 0;

        bool isOf(const Node *other, int64_t read, uint64_t now) const
        {
            return node == other && value == read && evaluation == now;
        }
    };

    CheckedRead m_checkedRead;
    std::unordered_map<const Node *, Extras> m_extras;
    std::vector<std::unique_ptr<Node>> m_nodes;
    std::string m_description; ///< as it was read, for questions that the nodes have no answer to
    std::string m_modelName;
    std::string m_vendorName;
    std::optional<Faults> m_faults;
    std::vector<Polled> m_polled;
    uint64_t m_walk = 0; ///< counts the walks over dependents
    std::vector<Node *> m_open; ///< room for a walk of Changes, of no meaning between two
    unsigned m_depth = 0; ///< nodes that are asking others
    bool m_verifying = false; ///< values that are read have to be within their limits
    bool m_renewing = false; ///< reads past the caches keep what they read
    bool m_trying = false; ///< access modes that cannot be worked out are asked for again

private:
    GenICam::gcstring rootAttribute(const char *name) const;
    GenICam::Version_t rootVersion(const std::string &prefix) const;

    const std::string m_deviceName;
    mutable GenApi::CLock m_ownLock;
    GenApi::CLock &m_lock;
    GenApi::UserData_t m_userData = nullptr;
    GenApi::ECallbackSuppressMode m_suppressMode = GenApi::csmOff;
    std::unordered_map<std::string_view, Node *> m_byName;
    std::vector<std::unique_ptr<char[]>> m_texts;
    std::size_t m_textUsed = 0;
    std::size_t m_textSize = 0;
    uint64_t m_evaluation = 0;
    std::size_t m_callbacks = 0; ///< that are registered
    unsigned m_firing = 0; ///< runs of fire() that have not ended
    std::atomic<uint64_t> m_removals{0}; ///< of callbacks, so far
    std::vector<GenApi::CNodeCallback *> m_removedCallbacks; ///< to be destroyed when none is running
};

/** Holds a map's lock. */
class MapLock
{
public:
    explicit MapLock(const NodeMapImpl &map)
        : m_lock(map.GetLock())
    {
        m_lock.Lock();
    }
    ~MapLock() { m_lock.Unlock(); }
    MapLock(const MapLock &) = delete;
    MapLock &operator=(const MapLock &) = delete;

private:
    GenApi::CLock &m_lock;
};

/** Held by every public operation of a node: the lock, a new evaluation, and the faults that tests ask for. */
class Entry
{
public:
    Entry(const Node &node, const char *operation)
        : m_lock(node.map())
    {
        node.map().startEvaluation();
        if (node.map().hasFaults())
            node.map().throwFault(node, operation);
    }

private:
    const MapLock m_lock;
};

/** Held while a node asks others; throws when they lead deeper than the stack should have to go. */
class Descent
{
public:
    explicit Descent(const Node &node)
        : m_map(node.map())
    {
        if (m_map.m_depth >= deepest)
            throwTooDeep(node);
        ++m_map.m_depth;
    }
    ~Descent() { --m_map.m_depth; }
    Descent(const Descent &) = delete;
    Descent &operator=(const Descent &) = delete;

private:
    [[noreturn]] static void throwTooDeep(const Node &node);

    static constexpr unsigned deepest = 1000;
    NodeMapImpl &m_map;
};

/** Makes reads past the caches keep what they have read. */
class Renewal
{
public:
    explicit Renewal(NodeMapImpl &map)
        : m_map(map)
        , m_before(map.m_renewing)
    {
        m_map.m_renewing = true;
    }
    ~Renewal() { m_map.m_renewing = m_before; }
    Renewal(const Renewal &) = delete;
    Renewal &operator=(const Renewal &) = delete;

private:
    NodeMapImpl &m_map;
    const bool m_before;
};

/** Leaves access modes that cannot be worked out to the next one who asks. */
class Trial
{
public:
    Trial(NodeMapImpl &map, bool isOn)
        : m_map(map)
        , m_before(std::exchange(map.m_trying, map.m_trying || isOn))
    {
    }
    ~Trial() { m_map.m_trying = m_before; }
    Trial(const Trial &) = delete;
    Trial &operator=(const Trial &) = delete;

private:
    NodeMapImpl &m_map;
    const bool m_before;
};

/** Makes all values that are read be checked as well, or not any more. */
class Verification
{
public:
    Verification(NodeMapImpl &map, bool isOn)
        : m_map(map)
        , m_before(map.m_verifying)
    {
        m_map.m_verifying = isOn;
    }
    ~Verification() { m_map.m_verifying = m_before; }
    Verification(const Verification &) = delete;
    Verification &operator=(const Verification &) = delete;

private:
    NodeMapImpl &m_map;
    const bool m_before;
};

/**
 * Whatever changes a node goes through here: the list of what has changed grows while the write goes down to the
 * registers, then all on it are called back inside the lock, and once more outside of it.
 */
template <typename Write>
void Node::change(const char *operation, const Write &write)
{
    std::vector<Node *> changed;
    std::exception_ptr failure;
    {
        const Entry entry(*this, operation);
        Changes changes(m_map);
        try {
            write(changes);
            if (!changes.contains(*this)) {
                changes.add(*this);
                forgetAccess();
            }
        } catch (...) {
            failure = std::current_exception(); // what was changed before it is asked for again
        }
        m_map.startEvaluation();
        if (failure && !changes.portHasFailed())
            std::rethrow_exception(failure);
        changed = changes.takeNodes();
        m_map.fire(changed, GenApi::cbPostInsideLock, failure);
    }
    m_map.fire(changed, GenApi::cbPostOutsideLock, failure);
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace OrvGenApi
