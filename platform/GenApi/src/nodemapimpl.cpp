// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "nodemapimpl.h"

#include "formula.h"
#include "portnode.h"

#include <GenICamVersion.h>
#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <cstring>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

NodeMapImpl::NodeMapImpl(std::string deviceName, CLock *lock)
    : m_deviceName(std::move(deviceName))
    , m_lock(lock ? *lock : m_ownLock)
{
}

NodeMapImpl::~NodeMapImpl() = default;

void NodeMapImpl::GetNodes(NodeList_t &Nodes) const
{
    const MapLock lock(*this);
    Nodes.clear();
    Nodes.reserve(m_nodes.size());
    for (const std::unique_ptr<Node> &node : m_nodes)
        Nodes.push_back(node.get());
}

INode *NodeMapImpl::GetNode(const gcstring &Name) const
{
    const MapLock lock(*this);
    std::string_view name = Name.c_str();
    for (const std::string_view nameSpace : {std::string_view("Std::"), std::string_view("Cust::")}) {
        if (name.substr(0, nameSpace.size()) == nameSpace)
            name.remove_prefix(nameSpace.size());
    }
    return find(name);
}

void NodeMapImpl::InvalidateNodes() const
{
    std::vector<Node *> nodes;
    std::exception_ptr failure;
    auto &self = const_cast<NodeMapImpl &>(*this); // the interface calls this const
    {
        const MapLock lock(*this);
        self.startEvaluation();
        for (const std::unique_ptr<Node> &node : m_nodes)
            node->dropCache();
        if (m_callbacks > 0) {
            nodes.reserve(m_nodes.size());
            for (const std::unique_ptr<Node> &node : m_nodes)
                nodes.push_back(node.get());
        }
        self.fire(nodes, cbPostInsideLock, failure);
    }
    self.fire(nodes, cbPostOutsideLock, failure);
    if (failure)
        std::rethrow_exception(failure);
}

gcstring NodeMapImpl::GetDeviceName()
{
    return gcstring(m_deviceName);
}

namespace {

/** What cannot be asked now is not polled either, so that one broken register does not end all polling. */
bool isBlocked(Node *blocker)
{
    try {
        return blocker && Node::isFulfilled(*blocker);
    } catch (const GenICam::GenericException &) {
        return true;
    }
}

} // namespace

void NodeMapImpl::Poll(int64_t ElapsedTime)
{
    std::vector<Node *> changed;
    std::exception_ptr failure;
    {
        const MapLock lock(*this);
        startEvaluation();
        Changes changes(*this);
        for (const Polled &each : m_polled) {
            if (!each.node->advancePollClock(std::max<int64_t>(ElapsedTime, 0)) || isBlocked(each.blocker))
                continue;
            each.node->restartPollClock();
            if (!each.node->isPolled())
                continue;
            each.node->dropCache();
            changes.add(*each.node);
        }
        changed = changes.takeNodes();
        fire(changed, cbPostInsideLock, failure);
    }
    fire(changed, cbPostOutsideLock, failure);
    if (failure)
        std::rethrow_exception(failure);
}

uint64_t NodeMapImpl::GetNumNodes() const
{
    return m_nodes.size();
}

bool NodeMapImpl::Connect(IPort *pPort, const gcstring &PortName) const
{
    return const_cast<NodeMapImpl *>(this)->connect(pPort, PortName.c_str()); // the interface calls this const
}

NodeMapImpl::Extras NodeMapImpl::extrasOf(const Node &node) const
{
    const auto found = m_extras.find(&node);
    return found == m_extras.end() ? Extras() : found->second;
}

bool NodeMapImpl::connect(IPort *port, const std::string &portName)
{
    std::vector<Node *> changed;
    std::exception_ptr failure;
    {
        const MapLock lock(*this);
        const auto node = dynamic_cast<PortNode *>(find(portName));
        if (!node)
            return false;
        node->connect(port);
        startEvaluation();
        for (const std::unique_ptr<Node> &each : m_nodes)
            each->dropCache();
        Changes changes(*this);
        changes.add(*node);
        changed = changes.takeNodes();
        fire(changed, cbPostInsideLock, failure);
    }
    fire(changed, cbPostOutsideLock, failure);
    if (failure)
        std::rethrow_exception(failure);
    return true;
}

bool NodeMapImpl::ParseSwissKnifes(GenICam::gcstring_vector *pErrorList) const
{
    const MapLock lock(*this);
    bool isFine = true;
    for (const std::unique_ptr<Node> &node : m_nodes) {
        try {
            node->checkFormulas();
        } catch (const FormulaError &error) {
            isFine = false;
            if (pErrorList)
                pErrorList->push_back(gcstring("node '" + std::string(node->name()) + "': " + error.message));
        }
    }
    return isFine;
}

void NodeMapImpl::SetSuppressCallbackMode(ECallbackSuppressMode mode)
{
    const MapLock lock(*this);
    m_suppressMode = mode;
}

void NodeMapImpl::GetGenApiVersion(GenICam::Version_t &Version, uint16_t &Build)
{
    Version = {GENICAM_VERSION_MAJOR, GENICAM_VERSION_MINOR, GENICAM_VERSION_SUBMINOR};
    Build = GENICAM_VERSION_BUILD;
}

void NodeMapImpl::GetSchemaVersion(GenICam::Version_t &Version)
{
    Version = rootVersion("Schema");
}

void NodeMapImpl::GetDeviceVersion(GenICam::Version_t &Version)
{
    Version = rootVersion("");
}

/** Read from the text up to the first node: few programs ask. */
gcstring NodeMapImpl::rootAttribute(const char *name) const
{
    const std::size_t end = m_nodes.empty() ? m_description.size() : m_nodes.front()->descriptionBegin();
    pugi::xml_document document;
    document.load_buffer(m_description.data(), end, pugi::parse_default, pugi::encoding_utf8);
    return document.document_element().attribute(name).value();
}

GenICam::Version_t NodeMapImpl::rootVersion(const std::string &prefix) const
{
    const auto number = [&](const char *part) {
        const auto value = parseInteger(rootAttribute((prefix + part).c_str()).c_str());
        return value && *value >= 0 && *value <= UINT16_MAX ? static_cast<uint16_t>(*value) : uint16_t(0);
    };
    return {number("MajorVersion"), number("MinorVersion"), number("SubMinorVersion")};
}

std::string_view NodeMapImpl::descriptionOf(const Node &node) const
{
    const std::size_t begin = std::min(node.descriptionBegin(), m_description.size());
    const std::size_t end = std::max(node.descriptionEnd(), begin);
    return std::string_view(m_description).substr(begin, end - begin);
}

Node *NodeMapImpl::find(std::string_view name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

const char *NodeMapImpl::keep(std::string_view text)
{
    if (text.empty())
        return "";
    constexpr std::size_t blockSize = 16 * 1024;
    if (m_textUsed + text.size() + 1 > m_textSize) {
        m_textSize = std::max(blockSize, text.size() + 1);
        m_texts.push_back(std::make_unique<char[]>(m_textSize));
        m_textUsed = 0;
    }
    char *const place = m_texts.back().get() + m_textUsed;
    std::memcpy(place, text.data(), text.size());
    place[text.size()] = '\0';
    m_textUsed += text.size() + 1;
    return place;
}

bool NodeMapImpl::add(std::unique_ptr<Node> node)
{
    if (!m_byName.emplace(node->name(), node.get()).second)
        return false;
    m_nodes.push_back(std::move(node));
    return true;
}

namespace {

/** A change calls few callbacks as a rule: those need no memory from the heap. */
class CallList
{
public:
    using Call = std::pair<Node *, CNodeCallback *>;

    void add(const Call &call)
    {
        if (m_count < m_few.size())
            m_few[m_count] = call;
        else
            m_more.push_back(call);
        ++m_count;
    }
    bool isEmpty() const { return m_count == 0; }
    std::size_t size() const { return m_count; }
    const Call &at(std::size_t i) const { return i < m_few.size() ? m_few[i] : m_more[i - m_few.size()]; }

private:
    std::array<Call, 8> m_few;
    std::vector<Call> m_more;
    std::size_t m_count = 0;
};

} // namespace

/**
 * The callbacks are listed under the lock and called from the list, as one may register or deregister others. Once any
 * has been deregistered, each is looked for again before its turn. Those taken out meanwhile are destroyed by the last
 * run that ends. Inside the lock, the caller holds it.
 */
void NodeMapImpl::fire(const std::vector<Node *> &nodes, ECallbackType moment, std::exception_ptr &failure)
{
    const auto lockIfOutside = [this, moment](std::optional<MapLock> &lock) {
        if (moment == cbPostOutsideLock)
            lock.emplace(*this);
    };
    CallList calls;
    uint64_t removals = 0;
    {
        std::optional<MapLock> lock;
        lockIfOutside(lock);
        if (m_suppressMode != csmOff) {
            if (m_suppressMode == csmOnce && moment == cbPostOutsideLock)
                m_suppressMode = csmOff;
            return;
        }
        for (Node *node : nodes)
            node->m_callbacks.forEach([&](CNodeCallback *callback) { calls.add({node, callback}); });
        if (calls.isEmpty())
            return;
        removals = m_removals;
        ++m_firing;
    }
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const auto [node, callback] = calls.at(i);
        if (m_removals != removals) {
            const MapLock lock(*this);
            if (!node->m_callbacks.contains(callback))
                continue;
        }
        try {
            (*callback)(moment);
        } catch (...) {
            if (!failure)
                failure = std::current_exception();
        }
    }
    std::vector<CNodeCallback *> removed;
    {
        std::optional<MapLock> lock;
        lockIfOutside(lock);
        if (--m_firing == 0)
            removed.swap(m_removedCallbacks);
    }
    for (CNodeCallback *callback : removed)
        callback->Destroy();
}

bool NodeMapImpl::removeCallback(Node &node, CNodeCallback *callback)
{
    if (!callback || !node.m_callbacks.remove(callback))
        return false;
    --m_callbacks;
    ++m_removals;
    // The callback may be the one that is running: then it is destroyed when it has returned.
    if (m_firing > 0)
        m_removedCallbacks.push_back(callback);
    else
        callback->Destroy();
    return true;
}

void Descent::throwTooDeep(const Node &node)
{
    ORV_THROW(RuntimeException, std::string("node '") + node.name() + "': the links lead too deep");
}

void NodeMapImpl::throwFault(const Node &node, const char *operation) const
{
    for (const Faults::Fault &fault : m_faults->faults) {
        if (fault.node == node.name() && fault.operation == operation)
            throw GenICam::RuntimeException(fault.description.c_str(), __FILE__, __LINE__);
    }
}

} // namespace OrvGenApi
