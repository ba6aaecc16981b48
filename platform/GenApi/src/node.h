// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "callbacklist.h"
#include "numbers.h"

#include <Base/GCException.h>
#include <GenApi/INode.h>
#include <GenApi/ISelector.h>
#include <GenApi/IUserData.h>
#include <GenApi/IValue.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace OrvGenApi {

class Node;
class NodeMapImpl;

inline GenApi::EAccessMode combined(GenApi::EAccessMode left, GenApi::EAccessMode right)
{
    return GenApi::Combine(left, right);
}

/** How a value may be cached that is made of parts cached so. */
GenApi::ECachingMode combined(GenApi::ECachingMode left, GenApi::ECachingMode right);

inline bool isReadable(GenApi::EAccessMode mode)
{
    return GenApi::IsReadable(mode);
}

inline bool isWritable(GenApi::EAccessMode mode)
{
    return GenApi::IsWritable(mode);
}

/** Nodes whose value may have changed; filled while a write goes down to the registers. */
class Changes
{
public:
    explicit Changes(NodeMapImpl &map);

    /** \a node has a new value: drops what is kept of all that depends on it. */
    void add(Node &node);

    /** The same where nothing is written, but a read has met a new value: what this evaluation knows stays. */
    void addRead(Node &node);

    /** Counts a write to \a node; throws when one write by a user leads to more than any device can mean. */
    void countWrite(const Node &node);

    /** A node has found \a value within limits that are those of \a next, which need not look again. */
    void noteChecked(const Node &next, int64_t value) { m_checked = {&next, value}; }
    bool isChecked(const Node &node, int64_t value) const { return m_checked == std::pair(&node, value); }

    /** The nodes that have changed; none is left here. */
    std::vector<Node *> takeNodes() { return std::move(m_nodes); }
    uint64_t list() const { return m_list; }
    bool contains(const Node &node) const;

    /** The port has failed while writing: what the device holds nobody knows, so that those who watch have to ask. */
    void notePortFailure() { m_portHasFailed = true; }
    bool portHasFailed() const { return m_portHasFailed; }

private:
    NodeMapImpl &m_map;
    const uint64_t m_list; ///< marks the nodes that are in m_nodes
    unsigned m_writes = 0;
    bool m_portHasFailed = false;
    std::pair<const Node *, int64_t> m_checked{nullptr, 0};
    std::vector<Node *> m_nodes;
};

/**
 * Base of all nodes.
 *
 * The public operations are those of GenApi: each takes the map's lock and starts a new evaluation. Nodes call one
 * another through the operations below "Inside", which expect the lock to be held. Within one evaluation a node works
 * out its access mode and a computed or register value at most once, so that the cost is bounded by the number of
 * nodes, however often formulas share them.
 */
class Node : public GenApi::INode, public GenApi::ISelector, public GenApi::IUserData
{
public:
    Node(NodeMapImpl &map, const char *name);
    ~Node() override;
    Node(const Node &) = delete;
    Node &operator=(const Node &) = delete;

    // IBase
    GenApi::EAccessMode GetAccessMode() const override;

    // INode
    GenICam::gcstring GetName(bool FullQualified = false) const override;
    GenApi::EVisibility GetVisibility() const override;
    void InvalidateNode() override;
    GenApi::ECachingMode GetCachingMode() const override;
    int64_t GetPollingTime() const override;
    GenICam::gcstring GetToolTip() const override;
    GenICam::gcstring GetDescription() const override;
    GenICam::gcstring GetDisplayName() const override;
    GenICam::gcstring GetDeviceName() const override;
    GenApi::INodeMap *GetNodeMap() const override;
    GenApi::EInterfaceType GetPrincipalInterfaceType() const override;
    bool IsStreamable() const override;
    bool IsFeature() const override;
    GenApi::CallbackHandleType RegisterCallback(GenApi::CNodeCallback *pCallback) override;
    bool DeregisterCallback(GenApi::CallbackHandleType hCallback) override;

    GenApi::ENameSpace GetNameSpace() const override;
    bool IsCachable() const override;
    GenApi::EYesNo IsAccessModeCacheable() const override;
    bool IsDeprecated() const override;
    GenICam::gcstring GetDocuURL() const override;
    GenICam::gcstring GetEventID() const override;
    GenApi::INode *GetAlias() const override;
    GenApi::INode *GetCastAlias() const override;
    void GetChildren(GenApi::NodeList_t &Children, GenApi::ELinkType LinkType) const override;
    void GetParents(GenApi::NodeList_t &Parents) const override;
    void ImposeAccessMode(GenApi::EAccessMode ImposedAccessMode) override;
    void ImposeVisibility(GenApi::EVisibility ImposedVisibility) override;
    void GetPropertyNames(GenICam::gcstring_vector &PropertyNames) const override;
    bool GetProperty(const GenICam::gcstring &PropertyName, GenICam::gcstring &ValueStr,
                     GenICam::gcstring &AttributeStr) override;

    // IUserData
    GenApi::UserData_t GetUserData() const override;
    GenApi::UserData_t SetUserData(GenApi::UserData_t userdata) override;

    // ISelector
    bool IsSelector() const override;
    void GetSelectedFeatures(GenApi::FeatureList_t &Features) const override;
    void GetSelectingFeatures(GenApi::FeatureList_t &Features) const override;

    // Inside ----------------------------------------------------------------------------------------------------------

    const char *name() const { return m_name; }
    const char *displayName() const { return m_displayName ? m_displayName : m_name; }
    NodeMapImpl &map() const { return m_map; }
    virtual GenApi::IValue *asValue() { return nullptr; }

    /** The node that this one's value is written to; null where it ends here. */
    virtual Node *valueNode() { return nullptr; }

    /** Tells \a changes of all registers and constants that a write of the value may reach. */
    virtual void addEnds(Changes &changes);

    /** Whether a value can be written where it ends here. */
    virtual bool takesWrites() const { return true; }

    /** Whether there is something to poll for. */
    virtual bool isPolled() { return true; }
    virtual GenApi::EInterfaceType interfaceType() const = 0;

    /** The access mode now, with all nodes that this one depends on. */
    GenApi::EAccessMode accessMode() const;

    /** The most that the node itself ever allows, regardless of availability, locks and the nodes behind its value. */
    GenApi::EAccessMode everAccess() const;

    /** The access that the condition pIsImplemented allows: RW, NA when it cannot be read, or NI. */
    GenApi::EAccessMode implementation() const;

    /** The access mode of that condition; RW without one. */
    GenApi::EAccessMode implementationAccess() const
    {
        return conditions().isImplemented ? conditions().isImplemented->accessMode() : GenApi::RW;
    }

    /**
     * Throw an access exception when the access is not possible now; without \a verify only when it never is. After a
     * read past the caches, a mode that could not be determined is tried again.
     */
    void requireReadable(bool ignoreCache = false) const;
    void requireWritable(bool verify = true) const;

    /**
     * Held while a user reads. A read past the caches may meet a new value, so that nothing stays kept that depends on
     * it, even if the read is refused. No callback is called.
     */
    class FreshReading
    {
    public:
        FreshReading(const Node &node, bool ignoreCache)
            : m_node(ignoreCache ? const_cast<Node *>(&node) : nullptr)
        {
        }
        ~FreshReading();
        FreshReading(const FreshReading &) = delete;
        FreshReading &operator=(const FreshReading &) = delete;

        bool ignoresCache() const { return m_node; }

    private:
        friend class Node;

        Node *const m_node; ///< null where the caches are asked
        bool m_isReadable = false;
    };
    void requireReadable(FreshReading &reading) const;
    void requireAvailable() const;

    [[noreturn]] void throwNoAccess(const char *what) const;

    /** Throws an access exception when the node lacks what its description refers to, and cannot even be computed. */
    void requireUsable() const;

    /** NI or NA if \a node is that, else RW. */
    static GenApi::EAccessMode availability(const Node *node)
    {
        const GenApi::EAccessMode mode = node ? node->accessMode() : GenApi::RW;
        return mode == GenApi::NI || mode == GenApi::NA ? mode : GenApi::RW;
    }

    /** The same for several; those behind one that is not implemented are not asked. */
    static GenApi::EAccessMode availabilityOf(std::initializer_list<const Node *> nodes);

    /** Whether \a node can be read now and is not 0. */
    static bool isFulfilled(Node &node);

    /** The visibility of the description; a category's depends on its features too. */
    virtual GenApi::EVisibility naturalVisibility() const { return m_visibility; }
    GenApi::EVisibility visibility() const { return GenApi::Combine(naturalVisibility(), m_imposedVisibility); }
    GenApi::ECachingMode cachingMode() const { return m_cachingMode; }
    void setCachingMode(GenApi::ECachingMode mode) { m_cachingMode = mode; }

    /** Forgets what is kept of the device's state. */
    virtual void dropCache() { forgetAccess(); }
    virtual bool isCacheValid() const { return true; }

    /** Whether a value that was read past the caches is kept. */
    virtual bool keepsFresh() const { return false; }

    // A node as a number. The base answers as a node that is none: it throws. Reads and writes through these check the
    // access of what lies below, not of the node itself. With verify a write checks the ranges on its way. Both ends of
    // a range are asked for at once where a node needs both: asking twice on every level would double the work each
    // time.
    virtual bool isNumber() const { return false; }
    virtual bool isFloat() const { return false; }
    virtual int64_t intValue(bool ignoreCache);

    /** The same for a node that takes its value from here: an enumeration stands for what its entry stands for. */
    virtual int64_t intNumber(bool ignoreCache) { return intValue(ignoreCache); }
    virtual void setIntValue(int64_t value, bool verify, Changes &changes);
    virtual void setIntNumber(int64_t value, bool verify, Changes &changes) { setIntValue(value, verify, changes); }
    virtual int64_t intMin();
    virtual int64_t intMax();
    virtual std::pair<int64_t, int64_t> intRange();

    /** \a value of this node rounded; throws where it is no 64-bit number. */
    int64_t toInteger(double value) const;
    virtual int64_t intIncrement() { return 1; }
    virtual double floatValue(bool ignoreCache);
    virtual void setFloatValue(double value, bool verify, Changes &changes);
    virtual double floatMin();
    virtual double floatMax();
    virtual std::pair<double, double> floatRange();
    virtual double floatIncrement();
    virtual GenApi::EIncMode incrementMode() { return GenApi::fixedIncrement; }

    /** The values of a list increment, ascending; those within the range when \a bounded. */
    virtual std::vector<int64_t> validInts(bool bounded);
    virtual std::vector<double> validFloats(bool bounded);
    virtual GenApi::ERepresentation representation() { return GenApi::PureNumber; }
    virtual const char *unit() { return ""; }
    virtual GenApi::EDisplayNotation displayNotation() { return GenApi::fnAutomatic; }
    virtual int64_t displayPrecision() { return 6; }

    /** Throws when the value that was read is none that might be written. */
    virtual void checkValue() { checkError(); }

    /** A node as text. */
    virtual std::string text(bool ignoreCache);
    virtual void setText(const std::string &text, bool verify, Changes &changes);
    virtual int64_t maximumTextLength();

    /** The integer value of an enumeration's entry; throws when there is no such. */
    virtual int64_t entryValue(std::string_view symbolic);

    /** Nodes that change when this one does. */
    const std::vector<Node *> &dependents() const { return m_dependents; }
    void addDependent(Node &node);

    void addSelected(Node &feature);

    /** The same for what only follows what is selected. */
    void linkSelected(Node &feature);
    void setBroken(const char *why) { m_broken = why; }
    bool isBroken() const { return m_broken; }

    const GenApi::CallbackList &callbacks() const { return m_callbacks; }

    bool isFeature() const { return m_isFeature; }
    const std::vector<Node *> &selecting() const;

    /** Those that read this node; all that change with it; those where what is written to it ends. */
    std::vector<Node *> readers() const;
    std::vector<Node *> dependingNodes() const;
    std::vector<Node *> terminalNodes() const;

    /** The positions of the node's element and of the next one in the text of the description. */
    std::size_t descriptionBegin() const { return m_descriptionBegin; }
    std::size_t descriptionEnd() const { return m_descriptionEnd; }

    /** Throws FormulaError when a formula of this node can never be evaluated. */
    virtual void checkFormulas() const { }

    /** Adds to the poll clock; true when it has come to the polling time. */
    bool advancePollClock(int64_t milliseconds);
    void restartPollClock() { m_pollClock = 0; }

protected:
    /** The access that this node's value allows, without the node's own conditions. */
    virtual GenApi::EAccessMode valueAccess() const { return GenApi::RW; }

    /** The same if the value is this node's own; RW if another node has it. */
    virtual GenApi::EAccessMode endAccess() const { return GenApi::RW; }

    virtual GenApi::EAccessMode computeAccessMode() const;

    /**
     * \a own, the node's own mode, with that of parts which have conditions of their own; they are always asked. \a
     * isOpen: the own mode is not known.
     */
    virtual GenApi::EAccessMode withParts(GenApi::EAccessMode own, bool isOpen) const
    {
        (void)isOpen;
        return own;
    }

    /** The access of the value's source, which is asked before the node's own conditions. */
    virtual GenApi::EAccessMode firstAccess() const { return valueAccess(); }

    /**
     * The availability of the nodes that are read for other purposes than the value, asked after the conditions: NI, NA
     * or RW. The nodes behind one that is not implemented are not asked.
     */
    virtual GenApi::EAccessMode readAccess() const
    {
        return m_conditions ? availabilityOf({m_conditions->error, m_conditions->blocksPolling}) : GenApi::RW;
    }

    /** Intentionally, a value that is picked by an index is accessible to all who can read the index. */
    virtual bool ignoresConditions() const { return false; }

    /** The mode as long as it is not known. */
    virtual GenApi::EAccessMode openAccess() const { return combined(GenApi::RW, m_imposedAccess); }
    GenApi::EAccessMode imposedAccess() const { return m_imposedAccess; }

    /** Whether a mode that could not be determined counts so for all who ask, not just for the next. */
    virtual bool staysOpen() const { return true; }

    /** Whether a port is asked for the mode; its failures are reported. */
    virtual bool dependsOnPort() const { return false; }

    /** Whether the node's own conditions may be kept. */
    bool hasCachableConditions() const;

    /** Whether the access mode depends on a condition without a cache, here or in any node that is read. */
    bool accessVaries() const { return m_accessVaries; }

    /** The most that the node itself ever allows. */
    GenApi::EAccessMode ownAccess() const
    {
        return conditions().isImplemented || m_broken ? implementation() : imposedAccess();
    }

    /** Whether a written value that has led to an error is not kept. */
    virtual bool checksBeforeKeeping() const { return false; }

    void forgetAccess() const
    {
        m_accessOpen = false;
        m_accessKnown = false;
    }

    /** Throws when the node of pError reports an error. */
    void checkError() const;

    /** Runs \a write(changes) as one write by a user of the map: with lock, callbacks inside and outside of it. */
    template <typename Write>
    void change(const char *operation, const Write &write);

    [[noreturn]] void throwNoNumber() const;

    /** Marks a node as passing on a value that it keeps. */
    class PassingOn
    {
    public:
        PassingOn(Node &node, bool keeps)
            : m_node(node)
        {
            m_node.m_passesOn = keeps;
        }
        ~PassingOn() { m_node.m_passesOn = false; }
        PassingOn(const PassingOn &) = delete;
        PassingOn &operator=(const PassingOn &) = delete;

    private:
        Node &m_node;
    };

    // Every change, poll and row of a feature tree asks the first two groups of members, each of a cache line; the
    // first one begins with the pointers of the base classes.
    NodeMapImpl &m_map;
    mutable bool m_accessOpen = false; ///< the access mode is being worked out, or could not be
    mutable bool m_accessComputing = false; ///< it is being worked out
    mutable bool m_accessKnown = false; ///< it was worked out, and nothing has changed since

private:
    friend class DescriptionLoader;

    /** A value of an enumeration of GenApi in one byte. */
    template <typename Enum>
    class InByte
    {
    public:
        InByte(Enum value)
            : m_value(static_cast<int8_t>(value))
        {
        }
        operator Enum() const { return static_cast<Enum>(m_value); }

    private:
        int8_t m_value;
    };

    /** Other nodes on which the access to this one depends; each may be null. */
    struct Conditions
    {
        Node *isImplemented = nullptr;
        Node *isAvailable = nullptr;
        Node *isLocked = nullptr;
        Node *error = nullptr; ///< is 0 as long as there is none
        Node *blocksPolling = nullptr;
    };
    const Conditions &conditions() const { return m_conditions ? *m_conditions : noConditions; }
    Conditions &ownConditions();

    struct SelectorLinks
    {
        std::vector<Node *> selected;
        std::vector<Node *> selecting;
    };

    static const Conditions noConditions;

    bool m_accessVaries = false;
    bool m_passesOn = false; ///< a written value that will be kept
    mutable InByte<GenApi::EAccessMode> m_access = GenApi::NI;
    InByte<GenApi::EAccessMode> m_imposedAccess = GenApi::RW;
    InByte<GenApi::ECachingMode> m_cachingMode = GenApi::WriteThrough; ///< with what the value is made of
    mutable uint64_t m_accessEvaluation = 0; ///< the evaluation that worked out m_access
    const char *m_name;
    GenApi::CallbackList m_callbacks;

    std::unique_ptr<Conditions> m_conditions; ///< few nodes have any
    const char *m_broken = nullptr; ///< why the description of this node cannot be used
    std::vector<Node *> m_dependents;
    uint64_t m_changeMark = 0; ///< the last walk over dependents that came here
    uint64_t m_changeList = 0; ///< the last list of changes this node was put in
    const char *m_displayName = nullptr; ///< null: as the name

    std::unique_ptr<SelectorLinks> m_selectorLinks;
    const char *m_toolTip = "";
    const char *m_description = "";
    int64_t m_pollingTime = -1; ///< milliseconds
    int64_t m_pollClock = 0; ///< milliseconds since the last poll
    uint32_t m_index = 0; ///< place among the nodes of the map
    uint32_t m_descriptionBegin = 0;
    uint32_t m_descriptionEnd = 0;
    InByte<GenApi::EVisibility> m_visibility = GenApi::Beginner;
    InByte<GenApi::EVisibility> m_imposedVisibility = GenApi::Beginner;
    bool m_streamable = false;
    bool m_isFeature = false;
    bool m_standardNameSpace = false;

    friend class Changes;
    friend class NodeMapImpl;
};

/** Throws an exception whose text names the node and the place in this code. */
#define ORV_THROW(Exception, text) throw GenICam::Exception(std::string(text).c_str(), __FILE__, __LINE__)

} // namespace OrvGenApi
