// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "node.h"

#include "nodemapimpl.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

ECachingMode combined(ECachingMode left, ECachingMode right)
{
    if (left == NoCache || right == NoCache)
        return NoCache;
    return left == WriteAround || right == WriteAround ? WriteAround : WriteThrough;
}

Changes::Changes(NodeMapImpl &map)
    : m_map(map)
    , m_list(++map.m_walk)
{
}

void Changes::add(Node &node)
{
    addRead(node);
    m_map.startEvaluation();
}

void Changes::addRead(Node &node)
{
    // A fresh walk each time: an earlier part of the same write may have read, and so kept, what changes now.
    const uint64_t mark = ++m_map.m_walk;
    std::vector<Node *> &open = m_map.m_open;
    open.assign(1, &node);
    node.m_changeMark = mark;
    while (!open.empty()) {
        Node *const next = open.back();
        open.pop_back();
        // Who passes a value on or takes it knows of it: an access mode that could not be worked out stays so.
        const bool keepsAccess = next == &node || next->m_passesOn;
        const bool staysOpen = next->m_accessOpen && keepsAccess;
        const bool staysKnown = next->m_accessKnown && keepsAccess;
        if (next != &node)
            next->dropCache();
        next->m_accessOpen = staysOpen;
        next->m_accessKnown = staysKnown;
        if (next->m_changeList != m_list) {
            next->m_changeList = m_list;
            if (m_nodes.capacity() == 0)
                m_nodes.reserve(8); // enough for most
            m_nodes.push_back(next);
        }
        for (Node *dependent : next->m_dependents) {
            if (dependent->m_changeMark != mark) {
                dependent->m_changeMark = mark;
                open.push_back(dependent);
            }
        }
    }
}

bool Changes::contains(const Node &node) const
{
    return node.m_changeList == m_list;
}

void Changes::countWrite(const Node &node)
{
    constexpr unsigned most = 1000; // copies that are copied in turn multiply
    if (++m_writes > most)
        ORV_THROW(RuntimeException, std::string("node '") + node.name() + "': one write leads to too many others");
}

const Node::Conditions Node::noConditions;

Node::Node(NodeMapImpl &map, const char *name)
    : m_map(map)
    , m_name(name)
{
}

Node::~Node() = default;

Node::Conditions &Node::ownConditions()
{
    if (!m_conditions)
        m_conditions = std::make_unique<Conditions>();
    return *m_conditions;
}

EAccessMode Node::GetAccessMode() const
{
    const Entry entry(*this, "GetAccessMode");
    return accessMode();
}

gcstring Node::GetName(bool FullQualified) const
{
    const Entry entry(*this, "GetName");
    if (FullQualified)
        return gcstring(m_standardNameSpace ? "Std::" : "Cust::") + m_name;
    return m_name;
}

EVisibility Node::GetVisibility() const
{
    const Entry entry(*this, "GetVisibility");
    return visibility();
}

void Node::InvalidateNode()
{
    change("InvalidateNode", [this](Changes &) { dropCache(); });
}

ECachingMode Node::GetCachingMode() const
{
    const Entry entry(*this, "GetCachingMode");
    return cachingMode();
}

int64_t Node::GetPollingTime() const
{
    const Entry entry(*this, "GetPollingTime");
    return m_pollingTime;
}

gcstring Node::GetToolTip() const
{
    const Entry entry(*this, "GetToolTip");
    return m_toolTip;
}

gcstring Node::GetDescription() const
{
    const Entry entry(*this, "GetDescription");
    return m_description;
}

gcstring Node::GetDisplayName() const
{
    const Entry entry(*this, "GetDisplayName");
    return displayName();
}

gcstring Node::GetDeviceName() const
{
    const Entry entry(*this, "GetDeviceName");
    return gcstring(m_map.deviceName());
}

INodeMap *Node::GetNodeMap() const
{
    const Entry entry(*this, "GetNodeMap");
    return &m_map;
}

EInterfaceType Node::GetPrincipalInterfaceType() const
{
    const Entry entry(*this, "GetPrincipalInterfaceType");
    return interfaceType();
}

bool Node::IsStreamable() const
{
    const Entry entry(*this, "IsStreamable");
    return m_streamable;
}

bool Node::IsFeature() const
{
    const Entry entry(*this, "IsFeature");
    return m_isFeature;
}

ENameSpace Node::GetNameSpace() const
{
    const Entry entry(*this, "GetNameSpace");
    return m_standardNameSpace ? Standard : Custom;
}

bool Node::IsCachable() const
{
    const Entry entry(*this, "IsCachable");
    return IsCacheable(cachingMode());
}

bool Node::IsDeprecated() const
{
    const Entry entry(*this, "IsDeprecated");
    return m_map.extrasOf(*this).isDeprecated;
}

gcstring Node::GetDocuURL() const
{
    const Entry entry(*this, "GetDocuURL");
    return m_map.extrasOf(*this).docuUrl;
}

gcstring Node::GetEventID() const
{
    const Entry entry(*this, "GetEventID");
    return m_map.extrasOf(*this).eventId;
}

INode *Node::GetAlias() const
{
    const Entry entry(*this, "GetAlias");
    return m_map.extrasOf(*this).alias;
}

INode *Node::GetCastAlias() const
{
    const Entry entry(*this, "GetCastAlias");
    return m_map.extrasOf(*this).castAlias;
}

UserData_t Node::GetUserData() const
{
    const Entry entry(*this, "GetUserData");
    return m_map.extrasOf(*this).userData;
}

UserData_t Node::SetUserData(UserData_t userdata)
{
    const Entry entry(*this, "SetUserData");
    return std::exchange(m_map.m_extras[this].userData, userdata);
}

EYesNo Node::IsAccessModeCacheable() const
{
    const Entry entry(*this, "IsAccessModeCacheable");
    return m_accessVaries ? No : Yes;
}

void Node::ImposeAccessMode(EAccessMode ImposedAccessMode)
{
    change("ImposeAccessMode", [&](Changes &) { m_imposedAccess = ImposedAccessMode; });
}

void Node::ImposeVisibility(EVisibility ImposedVisibility)
{
    change("ImposeVisibility", [&](Changes &) { m_imposedVisibility = ImposedVisibility; });
}

CallbackHandleType Node::RegisterCallback(CNodeCallback *pCallback)
{
    if (!pCallback)
        ORV_THROW(InvalidArgumentException, std::string("node '") + m_name + "': no callback to register");
    try {
        const Entry entry(*this, "RegisterCallback");
        m_callbacks.append(pCallback);
        m_map.addCallback();
    } catch (...) {
        pCallback->Destroy();
        throw;
    }
    return reinterpret_cast<CallbackHandleType>(pCallback);
}

bool Node::DeregisterCallback(CallbackHandleType hCallback)
{
    const MapLock lock(m_map);
    return m_map.removeCallback(*this, reinterpret_cast<CNodeCallback *>(hCallback));
}

bool Node::IsSelector() const
{
    const Entry entry(*this, "IsSelector");
    return m_selectorLinks && !m_selectorLinks->selected.empty();
}

namespace {

void appendValues(const std::vector<Node *> &nodes, FeatureList_t &features)
{
    for (Node *node : nodes) {
        if (IValue *const value = node->asValue())
            features.push_back(value);
    }
}

} // namespace

void Node::GetSelectedFeatures(FeatureList_t &Features) const
{
    const Entry entry(*this, "GetSelectedFeatures");
    Features.clear();
    if (m_selectorLinks)
        appendValues(m_selectorLinks->selected, Features);
}

void Node::GetSelectingFeatures(FeatureList_t &Features) const
{
    const Entry entry(*this, "GetSelectingFeatures");
    Features.clear();
    if (m_selectorLinks)
        appendValues(m_selectorLinks->selecting, Features);
}

/**
 * Access modes may depend on one another in a circle, through the entries of an enumeration: a mode that is being
 * worked out counts as RW. So does one whose conditions have thrown, which is told once, until something changes. One
 * that was worked out before stands even if a condition throws now.
 */
EAccessMode Node::accessMode() const
{
    if (m_accessEvaluation == m_map.evaluation())
        return withParts(m_access, false);
    if (m_accessOpen) {
        m_accessOpen = m_accessComputing || staysOpen();
        return withParts(openAccess(), true);
    }
    m_accessOpen = true;
    m_accessComputing = true;
    try {
        m_access = computeAccessMode();
    } catch (...) {
        m_accessComputing = false;
        if (ignoresConditions())
            forgetAccess(); // told every time
        else if (m_map.m_trying)
            m_accessOpen = false; // told to the next who asks
        if (!m_accessKnown)
            throw;
    }
    m_accessOpen = false;
    m_accessComputing = false;
    m_accessKnown = !m_accessVaries && !dependsOnPort();
    m_accessEvaluation = m_map.evaluation();
    return withParts(m_access, false);
}

namespace {

/** What a condition allows: \a mode when it cannot be told to be fulfilled or is not. */
EAccessMode allowed(Node *condition, bool wanted, EAccessMode mode)
{
    if (!condition)
        return RW;
    const EAccessMode access = condition->accessMode();
    if (!isReadable(access))
        return access == NI ? NI : NA;
    return (condition->intValue(false) != 0) == wanted ? RW : mode;
}

} // namespace

/**
 * First what is read has to be there: the value, the conditions, then all else. After that it is asked whether the node
 * is implemented, available and, where it could be written, locked, each only as long as it matters: what is not asked
 * cannot fail.
 */
EAccessMode Node::computeAccessMode() const
{
    const Descent descent(*this);
    const Verification unverified(m_map, false);
    if (m_broken || m_imposedAccess == NI)
        return NI;
    EAccessMode mode = RW;
    if (!ignoresConditions()) {
        mode = firstAccess();
        if (m_conditions && mode != NI)
            mode = combined(
                mode, availabilityOf({m_conditions->isImplemented, m_conditions->isAvailable, m_conditions->isLocked}));
        if (mode != NI)
            mode = combined(mode, readAccess());
        if (m_conditions && mode != NI)
            mode = combined(mode, allowed(m_conditions->isImplemented, true, NI));
        if (m_conditions && IsAvailable(mode))
            mode = combined(mode, allowed(m_conditions->isAvailable, true, NA));
        if (m_conditions && isWritable(mode))
            mode = combined(mode, allowed(m_conditions->isLocked, false, RO));
        if (mode == NI)
            return NI;
    }
    return combined(mode, combined(m_imposedAccess, valueAccess()));
}

/** Who writes without checks is held back by an imposed mode only where nothing says whether there is the node. */
EAccessMode Node::everAccess() const
{
    const Descent descent(*this);
    const Verification unverified(m_map, false);
    return combined(ownAccess(), endAccess());
}

bool Node::hasCachableConditions() const
{
    const auto isCachable = [](const Node *node) { return !node || node->cachingMode() != NoCache; };
    return isCachable(conditions().isImplemented) && isCachable(conditions().isAvailable)
        && isCachable(conditions().isLocked);
}

EAccessMode Node::availabilityOf(std::initializer_list<const Node *> nodes)
{
    EAccessMode mode = RW;
    for (auto node = nodes.begin(); node != nodes.end() && mode != NI; ++node) {
        if (*node)
            mode = combined(mode, availability(*node));
    }
    return mode;
}

EAccessMode Node::implementation() const
{
    return m_broken || m_imposedAccess == NI ? NI : allowed(conditions().isImplemented, true, NI);
}

bool Node::isFulfilled(Node &node)
{
    return isReadable(node.accessMode()) && node.intValue(false) != 0;
}

void Node::requireReadable(bool ignoreCache) const
{
    if (!isReadable(accessMode()))
        throwNoAccess("readable");
    if (ignoreCache && takesWrites() && !m_map.m_renewing)
        forgetAccess();
}

Node::FreshReading::~FreshReading()
{
    if (!m_node)
        return;
    try {
        if (!m_isReadable && m_node->takesWrites())
            m_node->dropCache();
        Changes unnoticed(m_node->map());
        m_node->addEnds(unnoticed);
    } catch (...) {
        // Links that lead too deep: nothing that could be read has been kept.
    }
}

void Node::requireReadable(FreshReading &reading) const
{
    requireReadable(reading.ignoresCache());
    reading.m_isReadable = true;
}

void Node::requireWritable(bool verify) const
{
    EAccessMode mode = verify ? accessMode() : everAccess();
    if (verify && m_accessOpen) // one that could not be worked out still has to be one that may be
        mode = combined(mode, combined(m_imposedAccess, endAccess()));
    if (!isWritable(mode))
        throwNoAccess("writable");
}

/** 0 is no error, whether there is an entry for it or not. */
void Node::checkError() const
{
    Node *const error = conditions().error;
    if (!error)
        return;
    const Verification unverified(m_map, false);
    if (error->intValue(false) == 0)
        return;
    error->intNumber(false); // throws where there is no such error
    ORV_THROW(RuntimeException, std::string("node '") + m_name + "' reports " + error->text(false));
}

void Node::requireAvailable() const
{
    const EAccessMode mode = accessMode();
    if (mode == NI || mode == NA)
        throwNoAccess(mode == NI ? "implemented" : "available");
}

void Node::requireUsable() const
{
    if (m_broken)
        throwNoAccess("implemented");
}

void Node::throwNoAccess(const char *what) const
{
    std::string text = std::string("node '") + m_name + "' is not " + what;
    if (m_broken)
        text += std::string(": ") + m_broken;
    ORV_THROW(AccessException, text);
}

void Node::throwNoNumber() const
{
    ORV_THROW(DynamicCastException, std::string("node '") + m_name + "' has no number");
}

int64_t Node::intValue(bool ignoreCache)
{
    if (isFloat())
        return toInteger(floatValue(ignoreCache));
    throwNoNumber();
}

void Node::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (!isFloat())
        throwNoNumber();
    setFloatValue(static_cast<double>(value), verify, changes);
}

int64_t Node::intMin()
{
    return isFloat() ? toInteger(floatMin()) : int64Min;
}

int64_t Node::intMax()
{
    return isFloat() ? toInteger(floatMax()) : int64Max;
}

int64_t Node::toInteger(double value) const
{
    constexpr double limit = 9223372036854775808.0;
    if (!(value >= -limit && value <= limit)) // what is hardly too large becomes as large as can be
        ORV_THROW(RuntimeException, std::string("node '") + m_name + "': its number is no 64-bit integer");
    return roundedToInteger(value);
}

std::pair<int64_t, int64_t> Node::intRange()
{
    if (!isFloat())
        return {intMin(), intMax()};
    const auto [minimum, maximum] = floatRange();
    return {toInteger(minimum), toInteger(maximum)};
}

double Node::floatValue(bool ignoreCache)
{
    return static_cast<double>(intValue(ignoreCache));
}

/** Rounded, and down to the grid of what takes integers in steps. */
void Node::setFloatValue(double value, bool verify, Changes &changes)
{
    if (interfaceType() == intfIInteger)
        requireAvailable(); // its steps are asked for, checked or not
    constexpr double limit = 9223372036854775808.0;
    if (!(value >= -limit && value <= limit)) // what is hardly too large becomes as large as can be
        ORV_THROW(OutOfRangeException, std::string("node '") + m_name + "': the number is no 64-bit integer");
    int64_t rounded = roundedToInteger(value);
    if (incrementMode() == fixedIncrement) {
        const int64_t increment = intIncrement();
        if (increment > 1) {
            const auto offset = static_cast<uint64_t>(rounded) - static_cast<uint64_t>(intMin());
            rounded -= static_cast<int64_t>(offset) % increment;
        }
    }
    setIntValue(rounded, verify, changes);
}

double Node::floatMin()
{
    return static_cast<double>(intMin());
}

double Node::floatMax()
{
    return static_cast<double>(intMax());
}

std::pair<double, double> Node::floatRange()
{
    if (isFloat())
        return {floatMin(), floatMax()};
    const auto [minimum, maximum] = intRange();
    return {static_cast<double>(minimum), static_cast<double>(maximum)};
}

double Node::floatIncrement()
{
    return static_cast<double>(intIncrement());
}

std::vector<int64_t> Node::validInts(bool bounded)
{
    std::vector<int64_t> values;
    if (isFloat()) {
        for (const double value : validFloats(bounded))
            values.push_back(roundedToInteger(value));
    }
    return values;
}

std::vector<double> Node::validFloats(bool bounded)
{
    std::vector<double> values;
    for (const int64_t value : validInts(bounded))
        values.push_back(static_cast<double>(value));
    return values;
}

std::string Node::text(bool ignoreCache)
{
    if (isFloat()) {
        const double value = floatValue(ignoreCache); // first: it is kept even if there are no limits to be had
        return formatFloat(
            value, displayNotation(), displayPrecision(), [this] { return floatMin(); }, [this] { return floatMax(); });
    }
    return formatInteger(intValue(ignoreCache), representation());
}

void Node::setText(const std::string &text, bool verify, Changes &changes)
{
    const auto fail = [&] {
        ORV_THROW(InvalidArgumentException, std::string("node '") + m_name + "': '" + text + "' is no number");
    };
    if (isFloat()) {
        const std::optional<double> value = readFloat(text);
        if (!value)
            fail();
        setFloatValue(*value, verify, changes);
        return;
    }
    const std::optional<int64_t> value = readInteger(text, representation());
    if (!value)
        fail();
    setIntValue(*value, verify, changes);
}

int64_t Node::maximumTextLength()
{
    return 0;
}

int64_t Node::entryValue(std::string_view symbolic)
{
    ORV_THROW(InvalidArgumentException,
              std::string("node '") + m_name + "' has no entry '" + std::string(symbolic) + "'");
}

void Node::addEnds(Changes &changes)
{
    const Descent descent(*this);
    if (Node *const node = valueNode()) {
        node->addEnds(changes);
    } else if (takesWrites()) {
        dropCache();
        changes.add(*this);
    }
}

void Node::addDependent(Node &node)
{
    // The links of one node are made one after the other.
    if (m_dependents.empty() || m_dependents.back() != &node)
        m_dependents.push_back(&node);
}

void Node::addSelected(Node &feature)
{
    addDependent(feature); // what is selected changes with the selection
    linkSelected(feature);
}

void Node::linkSelected(Node &feature)
{
    if (!m_selectorLinks)
        m_selectorLinks = std::make_unique<SelectorLinks>();
    if (!feature.m_selectorLinks)
        feature.m_selectorLinks = std::make_unique<SelectorLinks>();
    m_selectorLinks->selected.push_back(&feature);
    feature.m_selectorLinks->selecting.push_back(this);
}

bool Node::advancePollClock(int64_t milliseconds)
{
    if (m_pollingTime <= 0)
        return false;
    if (__builtin_add_overflow(m_pollClock, milliseconds, &m_pollClock))
        m_pollClock = int64Max;
    return m_pollClock >= m_pollingTime;
}

} // namespace OrvGenApi
