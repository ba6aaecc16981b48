#include "othernodes.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

void CategoryNode::GetFeatures(FeatureList_t &Features) const
{
    const Entry entry(*this, "GetFeatures");
    Features.clear();
    Features.reserve(m_features.size());
    for (Node *feature : m_features)
        Features.push_back(feature->asValue());
}

std::string CategoryNode::text(bool)
{
    return name();
}

void CategoryNode::setText(const std::string &, bool, Changes &)
{
    ORV_THROW(AccessException, std::string("category '") + name() + "' has no value");
}

EAccessMode CategoryNode::valueAccess() const
{
    // Categories may be nested to any depth, and may even stand in themselves.
    const uint64_t mark = ++m_map.m_walk;
    std::vector<const CategoryNode *> open{this};
    m_searchMark = mark;
    while (!open.empty()) {
        const CategoryNode *const category = open.back();
        open.pop_back();
        for (const Node *feature : category->m_features) {
            if (feature->interfaceType() != intfICategory) {
                if (feature->accessMode() != NI)
                    return RO;
                continue;
            }
            const auto inner = static_cast<const CategoryNode *>(feature);
            if (inner->m_searchMark == mark)
                continue;
            inner->m_searchMark = mark;
            if (inner->isImplementedItself())
                open.push_back(inner);
        }
    }
    return NI;
}

void BooleanNode::SetValue(bool Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        requireWritable(Verify);
        setIntValue(Value, Verify, changes);
    });
}

bool BooleanNode::GetValue(bool Verify, bool IgnoreCache) const
{
    (void)Verify;
    const Entry entry(*this, "GetValue");
    requireReadable();
    return isOn(IgnoreCache);
}

bool BooleanNode::isOn(bool ignoreCache) const
{
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
    const int64_t raw = value != 0 ? m_onValue : m_offValue;
    if (Node *const node = m_value.node()) {
        writeLinked(*node, raw, verify, changes);
        return;
    }
    m_value.setConstant(raw);
    changes.add(*this);
}

void BooleanNode::setText(const std::string &text, bool verify, Changes &changes)
{
    const std::string_view word = trimmed(text);
    const bool on = word == "1" || word == "true" || word == "True";
    if (!on && word != "0" && word != "false" && word != "False")
        ORV_THROW(InvalidArgumentException, std::string("node '") + name() + "': '" + text + "' is no truth value");
    setIntValue(on, verify, changes);
}

void CommandNode::Execute(bool Verify)
{
    change("Execute", [&](Changes &changes) {
        requireWritable(Verify);
        setIntValue(m_commandValue.value(), Verify, changes);
        m_running = true;
    });
}

bool CommandNode::IsDone(bool Verify)
{
    (void)Verify;
    bool ended = false;
    bool done = true;
    {
        const Entry entry(*this, "IsDone");
        done = isDone();
        ended = done && m_running;
        m_running = m_running && !done;
    }
    if (ended)
        InvalidateNode(); // the device has changed: tell those who watch
    return done;
}

bool CommandNode::isDone()
{
    if (!isReadable(accessMode()) || !m_value.node())
        return true;
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

void CommandNode::setText(const std::string &, bool verify, Changes &changes)
{
    setIntValue(m_commandValue.value(), verify, changes);
    m_running = true;
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
    return m_numericValue.value_or(static_cast<double>(m_value));
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
        if (each->accessMode() != NI && each->accessMode() != NA)
            Symbolics.push_back(each->m_symbolic);
    }
}

void EnumerationNode::SetIntValue(int64_t Value, bool Verify)
{
    change("SetIntValue", [&](Changes &changes) {
        requireWritable(Verify);
        setIntValue(Value, Verify, changes);
    });
}

int64_t EnumerationNode::GetIntValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetIntValue");
    requireReadable();
    const int64_t value = intValue(IgnoreCache);
    if (Verify && !find(value)) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + name() + "' has no entry with the value " + std::to_string(value));
    }
    return value;
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
    requireReadable();
    return find(intValue(IgnoreCache));
}

EAccessMode EnumerationNode::valueAccess() const
{
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
    return m_value.node() ? combined(best, m_value.node()->accessMode()) : best;
}

void EnumerationNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (verify) {
        const EnumEntryNode *const entry = find(value);
        if (!entry) {
            ORV_THROW(InvalidArgumentException,
                      std::string("node '") + name() + "' has no entry with the value " + std::to_string(value));
        }
        entry->requireReadable();
    }
    if (Node *const node = m_value.node()) {
        writeLinked(*node, value, verify, changes);
        return;
    }
    m_value.setConstant(value);
    changes.add(*this);
}

double EnumerationNode::floatValue(bool ignoreCache)
{
    const int64_t value = intValue(ignoreCache);
    const EnumEntryNode *const entry = find(value);
    return entry && entry->m_numericValue ? *entry->m_numericValue : static_cast<double>(value);
}

void EnumerationNode::setFloatValue(double value, bool verify, Changes &changes)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [value](const EnumEntryNode *entry) { return entry->m_numericValue == value; });
    setIntValue(found != m_entries.end() ? (*found)->m_value : roundedToInteger(value), verify, changes);
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
