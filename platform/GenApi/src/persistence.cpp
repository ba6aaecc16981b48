// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <GenApi/GenApiVersion.h>
#include <GenApi/Persistence.h>
#include <GenApi/Pointer.h>

#include <algorithm>
#include <functional>
#include <set>
#include <sstream>
#include <utility>

namespace GENAPI_NAMESPACE {

using GENICAM_NAMESPACE::gcstring;
using GENICAM_NAMESPACE::gcstring_vector;
using GENICAM_NAMESPACE::GenericException;

// CSelectorState ------------------------------------------------------------------------------------------------------

bool CSelectorState::SetFirst()
{
    m_position = 0;
    return !m_selectors.empty();
}

bool CSelectorState::SetNext()
{
    if (m_position + 1 >= m_selectors.size())
        return false;
    ++m_position;
    return true;
}

void CSelectorState::AddSelector(IValue &item)
{
    AddSelector(item.GetNode()->GetName(), item.ToString());
}

void CSelectorState::AddSelector(gcstring name, gcstring value)
{
    m_selectors.emplace_back(std::move(name), std::move(value));
}

gcstring CSelectorState::GetNodeName()
{
    return m_position < m_selectors.size() ? m_selectors[m_position].first : gcstring();
}

gcstring CSelectorState::GetNodeValue()
{
    return m_position < m_selectors.size() ? m_selectors[m_position].second : gcstring();
}

namespace {

/** Writes \a value to the feature \a name; false when that is not possible, which \a errors tells. */
bool write(INodeMap &map, const gcstring &name, const gcstring &value, gcstring_vector *errors)
{
    gcstring why = "there is no such feature";
    try {
        if (const CValuePtr feature = map.GetNode(name)) {
            feature->FromString(value);
            return true;
        }
    } catch (const GenericException &error) {
        why = error.what();
    }
    if (errors)
        errors->push_back("writing '" + name + "': " + why);
    return false;
}

} // namespace

bool CSelectorState::RestoreState(INodeMap *pNodeMap, gcstring_vector *pErrorList)
{
    bool isRestored = pNodeMap || m_selectors.empty();
    for (const auto &[name, value] : m_selectors)
        isRestored = isRestored && write(*pNodeMap, name, value, pErrorList);
    return isRestored;
}

// CFeatureBag ---------------------------------------------------------------------------------------------------------

/** Takes features from a node map, as many as fit. */
class BagFiller
{
public:
    BagFiller(CFeatureBag &bag, int most)
        : m_bag(bag)
        , m_most(most)
    {
    }

    void addFeature(IValue &feature);

    /** A selector that no feature has led to. */
    void addLeftOver(IValue &selector)
    {
        if (!m_selectors.count(selector.GetNode()))
            addValue(selector, {});
    }

    int64_t count() const { return m_count; }

private:
    using Selectors = std::vector<IValue *>;

    static void findSelectors(INode *node, Selectors &selectors);
    static std::vector<gcstring> valuesOf(IValue &selector);
    void addForEach(IValue &feature, const Selectors &selectors, std::size_t place, const CSelectorState &state);
    void addValue(IValue &feature, const CSelectorState &state);

    CFeatureBag &m_bag;
    const int m_most;
    int64_t m_count = 0;
    std::set<INode *> m_selectors; ///< those whose values have been added
};

/** Those that select \a node, each behind those that select it. */
void BagFiller::findSelectors(INode *node, Selectors &selectors)
{
    FeatureList_t selecting;
    CSelectorPtr(node)->GetSelectingFeatures(selecting);
    for (IValue *selector : selecting) {
        if (std::find(selectors.begin(), selectors.end(), selector) != selectors.end() || !IsReadable(selector))
            continue;
        findSelectors(selector->GetNode(), selectors);
        selectors.push_back(selector);
    }
}

/** What can be chosen now. */
std::vector<gcstring> BagFiller::valuesOf(IValue &selector)
{
    constexpr int64_t most = 1000; // a selector over all integers would never end
    std::vector<gcstring> values;
    if (!IsWritable(&selector))
        return {selector.ToString()};
    if (const CEnumerationPtr enumeration = &selector) {
        NodeList_t entries;
        enumeration->GetEntries(entries);
        for (INode *entry : entries) {
            if (IsReadable(entry))
                values.push_back(CEnumEntryPtr(entry)->GetSymbolic());
        }
    } else if (const CIntegerPtr integer = &selector) {
        const int64_t maximum = integer->GetMax();
        const int64_t increment = std::max<int64_t>(integer->GetInc(), 1);
        int64_t value = integer->GetMin();
        bool isOver = value > maximum;
        while (!isOver && static_cast<int64_t>(values.size()) < most) {
            values.emplace_back(std::to_string(value));
            isOver = __builtin_add_overflow(value, increment, &value) || value > maximum;
        }
    } else if (CBooleanPtr(&selector)) {
        values = {"0", "1"};
    } else {
        values = {selector.ToString()};
    }
    return values;
}

void BagFiller::addValue(IValue &feature, const CSelectorState &state)
{
    if ((m_most >= 0 && m_count >= m_most) || !IsReadable(&feature) || !IsWritable(&feature))
        return;
    m_bag.m_entries.push_back({feature.GetNode()->GetName(), feature.ToString(), state});
    ++m_count;
}

void BagFiller::addForEach(IValue &feature, const Selectors &selectors, std::size_t place, const CSelectorState &state)
{
    if (place == selectors.size()) {
        addValue(feature, state);
        return;
    }
    IValue &selector = *selectors[place];
    const bool isWritable = IsWritable(&selector);
    for (const gcstring &value : valuesOf(selector)) {
        if (isWritable)
            selector.FromString(value);
        CSelectorState extended = state;
        extended.AddSelector(selector.GetNode()->GetName(), value);
        addForEach(feature, selectors, place + 1, extended);
    }
}

/** Behind a selected feature stand its selectors, so that they are put back when the bag is loaded. */
void BagFiller::addFeature(IValue &feature)
{
    Selectors selectors;
    findSelectors(feature.GetNode(), selectors);
    CSelectorState before;
    for (IValue *selector : selectors)
        before.AddSelector(*selector);
    const auto putBack = [&] {
        INodeMap *const map = feature.GetNode()->GetNodeMap();
        before.RestoreState(map);
    };
    try {
        addForEach(feature, selectors, 0, {});
    } catch (...) {
        putBack();
        throw;
    }
    putBack();
    for (IValue *selector : selectors) {
        addValue(*selector, {});
        m_selectors.insert(selector->GetNode());
    }
}

CFeatureBag::~CFeatureBag() = default;

namespace {

bool isSelector(INode *node)
{
    const CSelectorPtr selector = node;
    return selector.IsValid() && selector->IsSelector();
}

gcstring infoOf(INodeMap *map)
{
    const CDeviceInfoPtr device = map;
    if (!device)
        return "";
    GENICAM_NAMESPACE::Version_t version{};
    device->GetDeviceVersion(version);
    std::ostringstream text;
    text << "Device = " << device->GetVendorName() << "::" << device->GetModelName() << " -- " << device->GetToolTip()
         << " -- Device version = " << version.Major << '.' << version.Minor << '.' << version.SubMinor
         << " -- Product GUID = " << device->GetProductGuid()
         << " -- Product version GUID = " << device->GetVersionGuid();
    return gcstring(text.str());
}

} // namespace

int64_t CFeatureBag::StoreToBag(INodeMap *pNodeMap, const int MaxNumPersistSkriptEntries,
                                gcstring_vector *pFeatureFilter)
{
    if (!pNodeMap)
        throw INVALID_ARGUMENT_EXCEPTION("there is no node map");
    const AutoLock lock(pNodeMap->GetLock());
    if (m_info.empty())
        m_info = infoOf(pNodeMap);
    NodeList_t nodes;
    pNodeMap->GetNodes(nodes);
    BagFiller filler(*this, MaxNumPersistSkriptEntries);
    for (const bool leftOvers : {false, true}) {
        for (INode *node : nodes) {
            const CValuePtr value = node;
            if (!value || !node->IsStreamable() || isSelector(node) != leftOvers
                || (pFeatureFilter && !pFeatureFilter->contains(node->GetName())))
                continue;
            if (leftOvers)
                filler.addLeftOver(*value);
            else
                filler.addFeature(*value);
        }
    }
    return filler.count();
}

bool CFeatureBag::LoadFromBag(INodeMap *pNodeMap, bool Verify, gcstring_vector *pErrorList)
{
    if (!pNodeMap)
        throw INVALID_ARGUMENT_EXCEPTION("there is no node map");
    const AutoLock lock(pNodeMap->GetLock());
    bool isDone = true;
    for (Entry &entry : m_entries) {
        const bool isSelected = entry.selectors.RestoreState(pNodeMap, pErrorList);
        isDone = isSelected && write(*pNodeMap, entry.name, entry.value, pErrorList) && isDone;
    }
    if (!Verify || !isDone)
        return isDone;
    for (Entry &entry : m_entries) {
        const bool isSelected = entry.selectors.RestoreState(pNodeMap, pErrorList);
        isDone = isSelected && isKept(*pNodeMap, entry, pErrorList) && isDone;
    }
    return isDone;
}

/** A selector, which others may have moved since, is set again instead. */
bool CFeatureBag::isKept(INodeMap &map, const Entry &entry, gcstring_vector *errors)
{
    INode *const node = map.GetNode(entry.name);
    if (isSelector(node))
        return write(map, entry.name, entry.value, errors);
    gcstring value;
    try {
        value = CValuePtr(node)->ToString();
        if (value == entry.value)
            return true;
    } catch (const GenericException &error) {
        value = error.what();
    }
    if (errors)
        errors->push_back("reading '" + entry.name + "' again: " + value);
    return false;
}

bool CFeatureBag::operator==(const CFeatureBag &FeatureBag) const
{
    return std::equal(m_entries.begin(), m_entries.end(), FeatureBag.m_entries.begin(), FeatureBag.m_entries.end(),
                      [](const Entry &left, const Entry &right) {
                          return left.name == right.name && left.value == right.value
                              && left.selectors == right.selectors;
                      });
}

gcstring CFeatureBag::ToString()
{
    std::ostringstream text;
    text << *this;
    return gcstring(text.str());
}

std::ostream &operator<<(std::ostream &os, const CFeatureBag &FeatureBag)
{
    os << "# " GENAPI_PERSISTENCE_MAGIC "\n";
    if (!FeatureBag.m_info.empty()) {
        os << "# GenApi persistence file (version " << GENAPI_VERSION_MAJOR << '.' << GENAPI_VERSION_MINOR << '.'
           << GENAPI_VERSION_SUBMINOR << ")\n# " << FeatureBag.m_info << '\n';
    }
    for (const CFeatureBag::Entry &entry : FeatureBag.m_entries) {
        os << entry.name << '\t';
        const char *before = "{";
        for (const auto &[name, value] : entry.selectors.m_selectors) {
            os << before << name << '=' << value;
            before = "\t";
        }
        os << (*before == '{' ? "" : "}\t") << entry.value << '\n';
    }
    return os;
}

std::istream &operator>>(std::istream &is, CFeatureBag &FeatureBag)
{
    std::string line;
    if (!std::getline(is, line) || line.find(GENAPI_PERSISTENCE_MAGIC) == std::string::npos)
        throw RUNTIME_EXCEPTION("the stream does not hold the features of a device");
    FeatureBag.m_entries.clear();
    while (std::getline(is, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line.front() == '#')
            continue;
        CFeatureBag::Entry entry;
        std::size_t end = line.find('\t');
        if (end == std::string::npos)
            throw RUNTIME_EXCEPTION("the feature '%s' has no value", line.c_str());
        entry.name = line.substr(0, end).c_str();
        line.erase(0, end + 1);
        if (line.compare(0, 1, "{") == 0 && (end = line.find("}\t")) != std::string::npos) {
            std::istringstream selectors(line.substr(1, end - 1));
            line.erase(0, end + 2);
            for (std::string selector; std::getline(selectors, selector, '\t');) {
                const std::size_t middle = selector.find('=');
                if (middle == std::string::npos)
                    throw RUNTIME_EXCEPTION("the selector '%s' has no value", selector.c_str());
                entry.selectors.AddSelector(selector.substr(0, middle).c_str(), selector.substr(middle + 1).c_str());
            }
        }
        entry.value = line.c_str();
        FeatureBag.m_entries.push_back(std::move(entry));
    }
    return is;
}

} // namespace GENAPI_NAMESPACE
