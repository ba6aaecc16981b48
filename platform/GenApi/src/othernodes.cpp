// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "othernodes.h"

#include <algorithm>
#include <cmath>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

void CategoryNode::GetFeatures(FeatureList_t &Features) const
{
    const Entry entry(*this, "GetFeatures");
    Features.clear();
    Features.reserve(m_features.size());
    for (Node *feature : m_features) {
        if (IValue *const value = feature->asValue())
            Features.push_back(value);
    }
}

std::string CategoryNode::text(bool)
{
    return displayName();
}

void CategoryNode::setText(const std::string &, bool, Changes &)
{
    ORV_THROW(AccessException, std::string("category '") + name() + "' has no value");
}

/**
 * Conditions of a category decide only whether it is implemented: what stands in it may be looked at. Once there is an
 * answer it stands where one of them throws, and whoever asks that feature itself is told.
 */
EAccessMode CategoryNode::computeAccessMode() const
{
    const Trial trial(m_map, m_wasThere.has_value());
    try {
        m_wasThere = isImplemented() && hasImplemented();
    } catch (...) {
        forgetAccess();
        if (!m_wasThere)
            throw; // told every time
    }
    return combined(combined(imposedAccess(), RO), *m_wasThere ? RW : NI);
}

/** A condition that cannot be asked leaves a category where it is. */
bool CategoryNode::isImplemented() const
{
    const EAccessMode mode = implementationAccess();
    return !isReadable(mode) || implementation() != NI;
}

bool CategoryNode::hasImplemented() const
{
    // Categories may be nested to any depth, and may even stand in themselves. They are asked in their order, so that
    // nothing behind the first implemented feature is.
    const uint64_t mark = ++m_map.m_walk;
    std::vector<std::pair<const CategoryNode *, std::size_t>> open{{this, 0}};
    m_searchMark = mark;
    while (!open.empty()) {
        auto &[category, next] = open.back();
        if (next == category->m_features.size()) {
            open.pop_back();
            continue;
        }
        const Node *const feature = category->m_features[next++];
        if (feature->interfaceType() != intfICategory) {
            if (feature->accessMode() != NI)
                return true;
            continue;
        }
        const auto inner = static_cast<const CategoryNode *>(feature);
        if (inner->m_searchMark == mark)
            continue;
        inner->m_searchMark = mark;
        if (inner->isImplemented())
            open.emplace_back(inner, 0);
    }
    return false;
}

void BooleanNode::SetValue(bool Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        const Verification verification(m_map, Verify);
        setIntValue(Value, Verify, changes);
    });
}

bool BooleanNode::GetValue(bool Verify, bool IgnoreCache) const
{
    const Entry entry(*this, "GetValue");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    const Verification verification(m_map, Verify);
    const bool value = isOn(IgnoreCache);
    if (Verify)
        checkError();
    return value;
}

bool BooleanNode::isOn(bool ignoreCache) const
{
    if (!m_value.node())
        return m_value.constant() != 0;
    const int64_t value = m_value.value(ignoreCache);
    if (value == m_onValue)
        return true;
    if (value != m_offValue) {
        ORV_THROW(LogicalErrorException,
                  std::string("node '") + name() + "': " + std::to_string(value)
                      + " is neither its on nor its off value");
    }
    return false;
}

void BooleanNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    requireWritable(verify);
    if (Node *const node = m_value.node()) {
        writeLinked(*node, value != 0 ? m_onValue : m_offValue, verify, changes);
    } else {
        m_value.setConstant(value != 0);
        changes.add(*this);
    }
    if (verify)
        checkError();
}

void BooleanNode::setText(const std::string &text, bool verify, Changes &changes)
{
    const std::optional<bool> on = readBoolean(text);
    if (!on)
        ORV_THROW(InvalidArgumentException, std::string("node '") + name() + "': '" + text + "' is no truth value");
    setIntValue(*on, verify, changes);
}

void CommandNode::Execute(bool Verify)
{
    (void)Verify;
    change("Execute", [&](Changes &changes) {
        execute(changes);
        if (!m_running) // intentionally: while the device is busy with it there is no error yet
            checkError();
    });
}

/** Unlike a value, a command is never given where it is locked or not available. */
void CommandNode::execute(Changes &changes)
{
    requireWritable();
    const bool isToEnd = m_value.node() && isReadable(accessMode()); // else nobody can see it end
    setIntValue(m_commandValue.value(), true, changes);
    m_running = isToEnd;
    restartPollClock();
}

bool CommandNode::IsDone(bool Verify)
{
    bool done = true;
    {
        const Entry entry(*this, "IsDone");
        done = isDone();
    }
    if (done)
        end(Verify);
    return done;
}

gcstring CommandNode::ToString(bool Verify, bool IgnoreCache)
{
    gcstring text = ValueNode::ToString(Verify, IgnoreCache);
    if (text == "0")
        end(Verify);
    return text;
}

/** The device has been seen to be done: it has changed, so that those who watch are told. */
void CommandNode::end(bool verify)
{
    bool hasChanged = false;
    {
        const Entry entry(*this, "IsDone");
        hasChanged = m_running && isReadable(accessMode());
        m_running = false;
        if (verify)
            checkError();
    }
    if (hasChanged)
        change("IsDone", [this](Changes &changes) { addEnd(changes); });
}

void CommandNode::addEnd(Changes &changes)
{
    Node *last = this;
    while (Node *const next = last->valueNode())
        last = next;
    changes.addRead(*last);
}

bool CommandNode::isPolled()
{
    try {
        return m_running && isReadable(accessMode());
    } catch (const GenICam::GenericException &) {
        return false; // what cannot be asked does not end all polling
    }
}

bool CommandNode::isDone()
{
    if (accessMode() == NI)
        throwNoAccess("implemented");
    if (!m_running || !m_value.node() || !isReadable(accessMode()))
        return true;
    const Renewal renewal(m_map);
    return m_value.value(true) != m_commandValue.value();
}

void CommandNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (Node *const node = m_value.node()) {
        writeLinked(*node, value, verify, changes);
        return;
    }
    m_value.setConstant(value);
    changes.add(*this);
}

std::string CommandNode::text(bool)
{
    return isDone() ? "0" : "1";
}

void CommandNode::setText(const std::string &text, bool, Changes &changes)
{
    if (!readBoolean(text).value_or(false)) {
        ORV_THROW(InvalidArgumentException,
                  std::string("command '") + name() + "': '" + text + "' does not mean to execute it");
    }
    execute(changes);
    checkError();
}

int64_t EnumEntryNode::GetValue()
{
    const Entry entry(*this, "GetValue");
    return m_value;
}

gcstring EnumEntryNode::GetSymbolic() const
{
    const Entry entry(*this, "GetSymbolic");
    return m_symbolic;
}

double EnumEntryNode::GetNumericValue()
{
    const Entry entry(*this, "GetNumericValue");
    return numericValue();
}

bool EnumEntryNode::IsSelfClearing()
{
    const Entry entry(*this, "IsSelfClearing");
    return m_selfClearing;
}

void EnumEntryNode::setText(const std::string &, bool, Changes &)
{
    ORV_THROW(AccessException, std::string("entry '") + name() + "' cannot be written");
}

void EnumerationNode::GetEntries(NodeList_t &Entries)
{
    const Entry entry(*this, "GetEntries");
    Entries.assign(m_entries.begin(), m_entries.end());
}

void EnumerationNode::GetSymbolics(StringList_t &Symbolics)
{
    const Entry entry(*this, "GetSymbolics");
    Symbolics.clear();
    for (const EnumEntryNode *each : m_entries) {
        if (isReadable(each->accessMode()))
            Symbolics.push_back(each->m_symbolic);
    }
}

void EnumerationNode::SetIntValue(int64_t Value, bool Verify)
{
    change("SetIntValue", [&](Changes &changes) {
        const Verification verification(m_map, Verify);
        setIntValue(Value, Verify, changes);
    });
}

int64_t EnumerationNode::GetIntValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetIntValue");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    const Verification verification(m_map, Verify);
    const int64_t value = intValue(IgnoreCache);
    if (Verify)
        checkValue();
    return value;
}

void EnumerationNode::checkValue()
{
    const int64_t value = intValue(false);
    const EnumEntryNode *const current = find(value);
    if (!current) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + name() + "' has no entry with the value " + std::to_string(value));
    }
    current->requireReadable();
    checkError();
}

IEnumEntry *EnumerationNode::GetEntryByName(const gcstring &Symbolic)
{
    const Entry entry(*this, "GetEntryByName");
    return find(std::string_view(Symbolic.c_str()));
}

IEnumEntry *EnumerationNode::GetEntry(int64_t IntValue)
{
    const Entry entry(*this, "GetEntry");
    return find(IntValue);
}

IEnumEntry *EnumerationNode::GetCurrentEntry(bool Verify, bool IgnoreCache)
{
    (void)Verify;
    const Entry entry(*this, "GetCurrentEntry");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    return find(intValue(IgnoreCache));
}

EAccessMode EnumerationNode::withParts(EAccessMode own, bool) const
{
    if (own == NI)
        return NI;
    EAccessMode best = m_entries.empty() ? RW : NI;
    for (const EnumEntryNode *entry : m_entries) {
        const EAccessMode mode = entry->accessMode();
        if (mode == NA && best == NI)
            best = NA;
        if (mode != NI && mode != NA) {
            best = RW;
            break;
        }
    }
    return combined(own, best);
}

/** Asks for the own access mode only once, because a second answer may differ. */
void EnumerationNode::FromString(const gcstring &ValueStr, bool Verify)
{
    change("FromString", [&](Changes &changes) {
        const Verification verification(m_map, Verify);
        if (Verify)
            requireWritable();
        const int64_t value = entryValue(ValueStr.c_str());
        if (Verify)
            choose(value, true, changes);
        else
            setIntValue(value, false, changes);
    });
}

void EnumerationNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (verify)
        requireWritable();
    else if (!isWritable(ownAccess()))
        throwNoAccess("writable");
    choose(value, verify, changes);
}

void EnumerationNode::choose(int64_t value, bool verify, Changes &changes)
{
    const EnumEntryNode *const entry = find(value);
    if (!entry) {
        ORV_THROW(InvalidArgumentException,
                  std::string("node '") + name() + "' has no entry with the value " + std::to_string(value));
    }
    if (verify)
        entry->requireReadable();
    else if (entry->implementation() != RW)
        entry->throwNoAccess("implemented");
    if (!verify)
        requireWritable(false);
    if (Node *const node = m_value.node()) {
        writeLinked(*node, value, verify, changes);
    } else {
        m_value.setConstant(value);
        changes.add(*this);
    }
    if (verify)
        checkError();
}

/** The action of a self-clearing entry may have ended meanwhile, so the device is asked as long as it is current. */
int64_t EnumerationNode::intValue(bool ignoreCache)
{
    const int64_t value = m_value.value(ignoreCache);
    const EnumEntryNode *const current = m_hasSelfClearing ? find(value) : nullptr;
    if (!current || !current->m_selfClearing || ignoreCache)
        return value;
    const Renewal renewal(m_map);
    m_map.startEvaluation();
    return m_value.value(true);
}

bool EnumerationNode::isPolled()
{
    try {
        const EnumEntryNode *const current = m_hasSelfClearing ? find(m_value.value()) : nullptr;
        return current && current->m_selfClearing;
    } catch (const GenICam::GenericException &) {
        return false; // what cannot be read does not end all polling
    }
}

std::pair<double, double> EnumerationNode::floatRange()
{
    return {floatMin(), floatMax()};
}

double EnumerationNode::floatMin()
{
    return -std::numeric_limits<double>::max();
}

double EnumerationNode::floatMax()
{
    return std::numeric_limits<double>::max();
}

int64_t EnumerationNode::intNumber(bool ignoreCache)
{
    return toInteger(floatValue(ignoreCache));
}

void EnumerationNode::setIntNumber(int64_t value, bool verify, Changes &changes)
{
    setFloatValue(static_cast<double>(value), verify, changes);
}

double EnumerationNode::floatValue(bool ignoreCache)
{
    const int64_t value = intValue(ignoreCache);
    const EnumEntryNode *const entry = find(value);
    if (entry)
        return entry->numericValue();
    const std::string why = std::string("node '") + name() + "' has no entry with the value " + std::to_string(value);
    if (m_map.m_verifying)
        ORV_THROW(OutOfRangeException, why);
    ORV_THROW(LogicalErrorException, why);
}

void EnumerationNode::setFloatValue(double value, bool verify, Changes &changes)
{
    const EnumEntryNode *nearest = nullptr;
    const auto distance = [value](const EnumEntryNode *entry) { return std::abs(entry->numericValue() - value); };
    for (const EnumEntryNode *entry : m_entries) {
        if (isReadable(entry->accessMode()) && (!nearest || distance(entry) < distance(nearest)))
            nearest = entry;
    }
    if (!nearest)
        throwNoAccess("writable");
    setIntValue(nearest->m_value, verify, changes);
}

std::string EnumerationNode::text(bool ignoreCache)
{
    const int64_t value = intValue(ignoreCache);
    if (const EnumEntryNode *const entry = find(value))
        return entry->m_symbolic;
    ORV_THROW(InvalidArgumentException,
              std::string("node '") + name() + "' has no entry with the value " + std::to_string(value));
}

void EnumerationNode::setText(const std::string &text, bool verify, Changes &changes)
{
    setIntValue(entryValue(text), verify, changes);
}

int64_t EnumerationNode::entryValue(std::string_view symbolic)
{
    const EnumEntryNode *const entry = find(symbolic);
    return entry ? entry->m_value : Node::entryValue(symbolic);
}

EnumEntryNode *EnumerationNode::find(int64_t value) const
{
    // Descriptions keep an old name for a value in front of its new one: the last one counts.
    const auto found = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                    [value](const EnumEntryNode *entry) { return entry->m_value == value; });
    return found == m_entries.rend() ? nullptr : *found;
}

EnumEntryNode *EnumerationNode::find(std::string_view symbolic) const
{
    for (EnumEntryNode *entry : m_entries) {
        if (entry->m_symbolic == symbolic)
            return entry;
    }
    return nullptr;
}

} // namespace OrvGenApi
