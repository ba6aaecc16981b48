// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "exercise.h"

#include <GenApi/GenApi.h>
#include <OrvGenApi/nodemap.h>

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>

namespace OrvGenApi::fuzz {

using namespace GenApi;

namespace {

class Device final : public IPortStacked
{
public:
    EAccessMode GetAccessMode() const override { return RW; }

    void Read(void *buffer, int64_t address, int64_t length) override
    {
        take(address, length);
        auto *const bytes = static_cast<uint8_t *>(buffer);
        for (int64_t i = 0; i < length; ++i)
            bytes[i] = byteAt(static_cast<uint64_t>(address) + static_cast<uint64_t>(i));
    }

    void Write(const void *buffer, int64_t address, int64_t length) override
    {
        take(address, length);
        const auto *const bytes = static_cast<const uint8_t *>(buffer);
        for (int64_t i = 0; i < length; ++i)
            m_written[static_cast<uint64_t>(address) + static_cast<uint64_t>(i)] = bytes[i];
    }

    void Write(PORT_REGISTER_STACK_ENTRY *entries, size_t count) override
    {
        for (size_t i = 0; i < count; ++i)
            Write(entries[i].pBuffer, static_cast<int64_t>(entries[i].Address), static_cast<int64_t>(entries[i].Size));
    }

    bool isExhausted() const { return m_left == 0; }

private:
    /** Small values are more often of use than large ones: most bytes are 0, a few 1. */
    uint8_t byteAt(uint64_t address) const
    {
        const auto written = m_written.find(address);
        if (written != m_written.end())
            return written->second;
        return address % 0x100 >= 0xF0 ? static_cast<uint8_t>(address * 37) : address % 4 == 3;
    }

    void take(int64_t address, int64_t length)
    {
        const int64_t taken = std::min(m_left, length + 8);
        m_left -= taken;
        if (taken < length + 8)
            throw GenICam::TimeoutException("the device does not answer any more", __FILE__, __LINE__);
        if (address % 0x1000 == 0xBAD)
            throw GenICam::RuntimeException("no such address", __FILE__, __LINE__);
    }

    std::map<uint64_t, uint8_t> m_written;
    int64_t m_left = 1024 * 1024;
};

template <typename Deed>
void attempt(const Deed &deed)
{
    try {
        deed();
    } catch (const GenICam::GenericException &) {
    }
}

template <typename Deed>
void attemptAll(const Deed &deed)
{
    attempt(deed);
}

template <typename Deed, typename... Others>
void attemptAll(const Deed &deed, const Others &...others)
{
    attempt(deed);
    attemptAll(others...);
}

void readNumber(IInteger *integer)
{
    attemptAll([&] { integer->GetValue(true); }, [&] { integer->GetValue(false, true); }, [&] { integer->GetMin(); },
               [&] { integer->GetMax(); }, [&] { integer->GetInc(); }, [&] { integer->GetIncMode(); },
               [&] { integer->GetListOfValidValues(); }, [&] { integer->GetListOfValidValues(false); },
               [&] { integer->GetRepresentation(); }, [&] { integer->GetUnit(); });
}

void readNumber(IFloat *number)
{
    attemptAll([&] { number->GetValue(true); }, [&] { number->GetValue(false, true); }, [&] { number->GetMin(); },
               [&] { number->GetMax(); }, [&] { number->GetInc(); }, [&] { number->HasInc(); },
               [&] { number->GetIncMode(); }, [&] { number->GetListOfValidValues(); },
               [&] { number->GetRepresentation(); }, [&] { number->GetUnit(); }, [&] { number->GetDisplayNotation(); },
               [&] { number->GetDisplayPrecision(); });
}

void readEnumeration(IEnumeration *enumeration)
{
    NodeList_t entries;
    StringList_t symbolics;
    attemptAll([&] { enumeration->GetEntries(entries); }, [&] { enumeration->GetSymbolics(symbolics); },
               [&] { enumeration->GetIntValue(true); }, [&] { enumeration->GetCurrentEntry(); },
               [&] { enumeration->GetEntryByName("On"); }, [&] { enumeration->GetEntry(1); });
    for (INode *entry : entries) {
        const CEnumEntryPtr each(entry);
        attemptAll([&] { each->GetValue(); }, [&] { each->GetSymbolic(); }, [&] { each->GetNumericValue(); },
                   [&] { each->IsSelfClearing(); }, [&] { each->GetAccessMode(); });
    }
}

void readRegister(IRegister *bytes)
{
    attempt([&] {
        const int64_t length = bytes->GetLength();
        bytes->GetAddress();
        std::vector<uint8_t> buffer(static_cast<std::size_t>(std::min<int64_t>(length, 4096)));
        bytes->Get(buffer.data(), static_cast<int64_t>(buffer.size()));
        bytes->Set(buffer.data(), static_cast<int64_t>(buffer.size()));
    });
}

void readNode(INode *node)
{
    FeatureList_t features;
    NodeList_t linked;
    attemptAll([&] { node->GetAccessMode(); }, [&] { node->GetVisibility(); }, [&] { node->GetCachingMode(); },
               [&] { node->GetPollingTime(); }, [&] { node->GetName(true); }, [&] { node->GetDisplayName(); },
               [&] { node->GetToolTip(); }, [&] { node->GetDescription(); }, [&] { node->IsStreamable(); },
               [&] { node->IsFeature(); }, [&] { CSelectorPtr(node)->GetSelectedFeatures(features); },
               [&] { CSelectorPtr(node)->GetSelectingFeatures(features); });
    GenICam::gcstring_vector names;
    attemptAll([&] { node->GetPropertyNames(names); }, [&] { node->GetParents(linked); },
               [&] { node->GetNodeMap()->GetNode(node->GetName(true)); }, [&] { node->GetPrincipalInterfaceType(); },
               [&] { node->IsAccessModeCacheable(); }, [&] { node->IsDeprecated(); }, [&] { node->GetDocuURL(); },
               [&] { node->GetEventID(); }, [&] { node->GetAlias(); }, [&] { node->GetCastAlias(); });
    for (const GenICam::gcstring &name : names) {
        GenICam::gcstring value;
        GenICam::gcstring attribute;
        attempt([&] { node->GetProperty(name, value, attribute); });
    }
    for (int kind = ctParentNodes; kind <= ctValueChangingChildren; ++kind)
        attempt([&] { node->GetChildren(linked, static_cast<ELinkType>(kind)); });
    if (const auto value = dynamic_cast<IValue *>(node))
        attemptAll([&] { value->IsValueCacheValid(); }, [&] { value->ToString(); },
                   [&] { value->ToString(true, true); });
    if (const auto integer = dynamic_cast<IInteger *>(node))
        readNumber(integer);
    if (const auto number = dynamic_cast<IFloat *>(node))
        readNumber(number);
    if (const auto enumeration = dynamic_cast<IEnumeration *>(node))
        readEnumeration(enumeration);
    if (const auto bytes = dynamic_cast<IRegister *>(node))
        readRegister(bytes);
    if (const auto boolean = dynamic_cast<IBoolean *>(node))
        attempt([&] { boolean->GetValue(false, true); });
    if (const auto command = dynamic_cast<ICommand *>(node))
        attempt([&] { command->IsDone(); });
    if (const auto category = dynamic_cast<ICategory *>(node))
        attempt([&] { category->GetFeatures(features); });
    if (const auto string = dynamic_cast<IString *>(node))
        attemptAll([&] { string->GetMaxLength(); }, [&] { string->GetValue(); });
}

void writeNode(INode *node, bool verify)
{
    if (const auto integer = dynamic_cast<IInteger *>(node)) {
        attemptAll([&] { integer->SetValue(integer->GetMax(), verify); }, [&] { integer->SetValue(INT64_MIN, verify); },
                   [&] { integer->SetValue(1, verify); });
    }
    if (const auto number = dynamic_cast<IFloat *>(node)) {
        attemptAll([&] { number->SetValue(number->GetMin(), verify); }, [&] { number->SetValue(1e300, verify); },
                   [&] { number->SetValue(0.5, verify); });
    }
    if (const auto enumeration = dynamic_cast<IEnumeration *>(node))
        attempt([&] { enumeration->SetIntValue(1, verify); });
    if (const auto boolean = dynamic_cast<IBoolean *>(node))
        attemptAll([&] { boolean->SetValue(false, verify); }, [&] { boolean->SetValue(true, verify); });
    if (const auto command = dynamic_cast<ICommand *>(node))
        attemptAll([&] { command->Execute(verify); }, [&] { command->IsDone(); });
    if (const auto string = dynamic_cast<IString *>(node))
        attempt([&] { string->SetValue("text", verify); });
    if (const auto value = dynamic_cast<IValue *>(node)) {
        attemptAll([&] { value->FromString("1", verify); }, [&] { value->FromString("", verify); },
                   [&] { value->FromString(value->ToString(), verify); });
    }
    attempt([&] { node->InvalidateNode(); });
}

void impose(INode *node)
{
    if (const auto integer = dynamic_cast<IInteger *>(node))
        attemptAll([&] { integer->ImposeMin(-1); }, [&] { integer->ImposeMax(INT64_MAX); });
    if (const auto number = dynamic_cast<IFloat *>(node))
        attemptAll([&] { number->ImposeMin(0.25); }, [&] { number->ImposeMax(-1e300); });
    attemptAll([&] { node->ImposeVisibility(Guru); }, [&] { node->ImposeAccessMode(RO); });
}

/** The streamable features leave the map as a text and come back, and several are written in one access. */
void streamFeatures(INodeMap *map, const NodeList_t &nodes)
{
    attempt([&] {
        CFeatureBag stored;
        CFeatureBag loaded;
        std::stringstream text;
        stored.StoreToBag(map, 100);
        text << stored;
        text >> loaded;
        loaded.LoadFromBag(map);
    });
    CNodeWriteConcatenatorRef writes(map->NewNodeWriteConcatenator());
    for (INode *node : nodes)
        attempt([&] { writes._Add(node->GetName(), node->GetName().size() % 2 ? "1" : "0.5"); });
    GenICam::gcstring_vector errors;
    attemptAll([&] { map->ConcatenatedWrite(writes, false, &errors); }, [&] { map->ParseSwissKnifes(&errors); });
}

void injectInto(std::string_view description)
{
    CNodeMapFactory injected("<RegisterDescription><Category Name=\"Root\"><pFeature>Injected</pFeature></Category>"
                             "<Integer Name=\"Injected\" MergePriority=\"1\"><Value>1</Value></Integer>"
                             "</RegisterDescription>");
    CNodeMapFactory factory(ContentType_Xml, description.data(), description.size());
    factory.AddInjectionData(injected);
    const CNodeMapRef map(factory.CreateNodeMap());
    map._GetNode("Injected");
}

} // namespace

void exerciseDescription(std::string_view description)
{
    attempt([&] {
        Device device;
        const std::unique_ptr<NodeMap> map = NodeMap::fromString(description);
        NodeList_t nodes;
        map->GetNodes(nodes);
        const auto forEach = [&](const auto &deed) {
            for (std::size_t i = 0; i < nodes.size() && !device.isExhausted(); ++i)
                deed(nodes[i]);
        };
        forEach(readNode); // without a port
        map->connect(&device);
        forEach(readNode);
        std::size_t fired = 0;
        std::vector<CallbackHandleType> handles;
        forEach([&](INode *node) {
            handles.push_back(Register(node, std::function<void(INode *)>([&fired](INode *) { ++fired; })));
        });
        map->Poll(1000);
        forEach([](INode *node) { writeNode(node, true); });
        for (std::size_t i = 0; i < handles.size(); i += 2)
            Deregister(handles[i]);
        forEach([](INode *node) { writeNode(node, false); });
        map->InvalidateNodes();
        streamFeatures(map.get(), nodes);
        forEach(impose);
        forEach(readNode);
        map->connect(nullptr);
    });
    attempt([&] { injectInto(description); });
}

} // namespace OrvGenApi::fuzz
