// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "nodedescription.h"

#include "nodemapimpl.h"

#include <algorithm>
#include <cstring>
#include <locale>
#include <sstream>
#include <unordered_map>

namespace OrvGenApi {

using namespace GenApi;

namespace {

using Use = NodeDescription::Use;

/** What a property that names a node means. */
const std::unordered_map<std::string_view, unsigned> linkUses = {
    {"pIsImplemented", Use::Reads | Use::ChangesWith},
    {"pIsAvailable", Use::Reads | Use::ChangesWith},
    {"pIsLocked", Use::Reads | Use::ChangesWith},
    {"pBlockPolling", Use::Reads | Use::ChangesWith},
    {"pError", Use::Reads | Use::ChangesWith},
    {"pIndex", Use::Reads | Use::ChangesWith},
    {"pMin", Use::Reads | Use::ChangesWith},
    {"pMax", Use::Reads | Use::ChangesWith},
    {"pInc", Use::Reads | Use::ChangesWith},
    {"pCommandValue", Use::Reads | Use::ChangesWith},
    {"pAddress", Use::Reads | Use::ChangesWith},
    {"pLength", Use::Reads | Use::ChangesWith},
    {"pPort", Use::Reads | Use::ChangesWith},
    {"pFeature", Use::Reads | Use::ChangesWith},
    {"pVariable", Use::Reads | Use::ChangesWith | Use::TakesValueOf},
    {"pValue", Use::WritesValueTo},
    {"pValueCopy", Use::WritesValueTo},
    {"pValueIndexed", Use::WritesValueTo},
    {"pValueDefault", Use::WritesValueTo},
    {"pInvalidator", Use::ChangesWith},
    {"pEnumEntry", Use::ChangesWith},
    {"pSelecting", Use::ChangesWith},
};

struct Default
{
    const char *kinds; ///< between commas; null: all
    const char *name;
    const char *value;
};

/** What nodes have that the description says nothing about. */
constexpr Default defaults[] = {
    {nullptr, "ExposeStatic", "Yes"},
    {nullptr, "ImposedAccessMode", "RW"},
    {nullptr, "IsDeprecated", "No"},
    {nullptr, "NameSpace", "Custom"},
    {nullptr, "Streamable", "No"},
    {nullptr, "Visibility", "Beginner"},
    {",IntReg,MaskedIntReg,FloatReg,StringReg,Register,", "AccessMode", "RO"},
    {",IntReg,MaskedIntReg,StringReg,Register,", "Cachable", "WriteThrough"},
    {",FloatReg,", "Cachable", "WriteAround"},
    {",IntReg,MaskedIntReg,FloatReg,", "Endianess", "LittleEndian"},
    {",IntReg,MaskedIntReg,", "Sign", "Unsigned"},
    {",IntReg,MaskedIntReg,IntSwissKnife,", "Representation", "PureNumber"},
    {",Float,FloatReg,SwissKnife,Converter,", "DisplayPrecision", "-1"},
    {",FloatReg,SwissKnife,", "DisplayNotation", "Automatic"},
    {",SwissKnife,IntSwissKnife,", "InputDirection", "None"},
    {",Converter,", "IsLinear", "No"},
    {",Converter,IntConverter,", "Slope", "Automatic"},
    {",Boolean,", "OnValue", "1"},
    {",Boolean,", "OffValue", "0"},
    {",EnumEntry,", "IsSelfClearing", "No"},
    {",Port,", "SwapEndianess", "No"},
    {",Port,", "CacheChunkData", "No"},
};

constexpr const char *integers =
    ",Address,Length,Index,Offset,LSB,MSB,PollingTime,OnValue,OffValue,CommandValue,DisplayPrecision,";
constexpr const char *numbers = ",Value,Min,Max,Inc,ValueIndexed,ValueDefault,NumericValue,";
constexpr const char *floatKinds = ",Float,FloatReg,SwissKnife,Converter,";
constexpr const char *kindsWithoutNumbers = ",String,StringReg,";

bool contains(const char *list, const std::string &word)
{
    return std::strstr(list, ("," + word + ",").c_str());
}

std::string textOf(const pugi::xml_node &element)
{
    std::string text;
    for (const pugi::xml_node &part : element.children()) {
        if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata)
            text += part.value();
    }
    return text;
}

/** Elements of a maker's own, as they stand there. */
std::string innerXml(const pugi::xml_node &element)
{
    std::ostringstream text;
    for (const pugi::xml_node &part : element.children())
        part.print(text, "", pugi::format_raw);
    return text.str();
}

/** A number as the engine writes it, whatever the description does. */
std::string normalized(const std::string &kind, const std::string &name, const std::string &text)
{
    const bool isNumber = contains(numbers, name) && !contains(kindsWithoutNumbers, kind);
    if (isNumber && (name == "NumericValue" || contains(floatKinds, kind))) {
        if (const std::optional<double> value = parseFloat(text)) {
            std::ostringstream written;
            written.imbue(std::locale::classic()); // whatever the program has made the global one
            written.precision(15);
            written << *value;
            return written.str();
        }
    } else if (isNumber || contains(integers, name)) {
        if (const std::optional<int64_t> value = parseInteger(text))
            return std::to_string(*value);
    }
    return *name.c_str() == 'p' || isNumber ? std::string(trimmed(text)) : text;
}

void append(NodeDescription::Property &property, const std::string &value, const std::string &attribute = {})
{
    property.value += (property.value.empty() ? "" : "\t") + value;
    if (!attribute.empty())
        property.attribute += (property.attribute.empty() ? "" : "\t") + attribute;
}

} // namespace

NodeDescription::NodeDescription(const Node &node)
    : m_node(node)
{
    // What stands behind the node's element ends in the middle of something: the part before is what is wanted.
    const std::string_view text = node.map().descriptionOf(node);
    m_document.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_fragment, pugi::encoding_utf8);
    m_element = m_document.first_child();
    if (std::strcmp(m_element.name(), "StructReg") == 0) {
        m_common = m_element;
        m_element = m_common.find_child_by_attribute("StructEntry", "Name", node.name());
    }
    m_kind = m_common ? "MaskedIntReg" : m_element.name();
}

/** A formula that stands in a register itself is a node, whose name may have been made for it. */
std::string NodeDescription::nameOfKnife(const Element &element) const
{
    const std::size_t begin = m_node.descriptionBegin() + static_cast<std::size_t>(element.offset_debug()) - 1;
    for (const std::unique_ptr<Node> &node : m_node.map().m_nodes) {
        if (node->descriptionBegin() == begin)
            return node->name();
    }
    return element.attribute("Name").value();
}

void NodeDescription::add(Properties &properties, const std::string &name, const Element &element) const
{
    if (name == "IntSwissKnife") {
        append(properties["pAddress"], nameOfKnife(element));
    } else if (name == "EnumEntry") {
        append(properties["pEnumEntry"],
               "EnumEntry_" + std::string(m_node.name()) + "_" + element.attribute("Name").value());
    } else if (name == "Bit") {
        add(properties, "LSB", element);
        add(properties, "MSB", element);
    } else if (name == "Extension") {
        append(properties[name], innerXml(element));
    } else {
        std::string attribute;
        for (const char *each : {"Name", "Index", "Offset", "pOffset"})
            attribute += normalized(m_kind, each, element.attribute(each).value());
        append(properties[name], normalized(m_kind, name, textOf(element)), attribute);
    }
}

void NodeDescription::addGiven(Properties &properties) const
{
    for (const Element &level : {m_element, m_common}) {
        Properties found;
        for (const Element &property : level.children()) {
            if (property.type() == pugi::node_element && std::strcmp(property.name(), "StructEntry") != 0)
                add(found, property.name(), property);
        }
        properties.merge(found); // an entry's own properties come before those of all
    }
}

NodeDescription::Properties NodeDescription::properties() const
{
    Properties properties;
    addGiven(properties);
    if (const pugi::xml_attribute nameSpace = m_element.attribute("NameSpace"))
        append(properties["NameSpace"], nameSpace.value());
    append(properties["Name"], m_node.name());
    append(properties["NodeType"], m_kind);
    append(properties["IsFeature"], m_node.isFeature() ? "Yes" : "No");
    if (m_kind == "EnumEntry") {
        properties.emplace("Symbolic", Property{m_element.attribute("Name").value(), {}});
        properties.emplace("NumericValue", Property{properties["Value"].value, {}});
    } else {
        append(properties["DeviceName"], m_node.map().deviceName());
    }
    if (m_kind == "Category") { // follows its features
        static constexpr const char *visibilities[] = {"Beginner", "Expert", "Guru", "Invisible"};
        properties["Visibility"].value = visibilities[m_node.naturalVisibility()];
    }
    for (const Default &each : defaults) {
        if (!each.kinds || contains(each.kinds, m_kind))
            properties.emplace(each.name, Property{each.value, {}});
    }
    const auto addNodes = [&](const char *name, const std::vector<Node *> &nodes) {
        for (const Node *node : nodes)
            append(properties[name], node->name());
    };
    addNodes("pSelecting", m_node.selecting());
    addNodes("pTerminal", m_node.terminalNodes());
    addNodes("pDependent", m_node.dependingNodes());
    return properties;
}

std::vector<NodeDescription::Link> NodeDescription::links() const
{
    std::vector<Link> links;
    const auto link = [&](std::string_view name, unsigned uses) {
        const Node *const node = m_node.map().find(trimmed(name));
        if (!node)
            return;
        const auto known =
            std::find_if(links.begin(), links.end(), [&](const Link &each) { return each.node == node; });
        if (known == links.end())
            links.push_back({node, uses});
        else
            known->uses |= uses;
    };
    for (const Element &level : {m_common, m_element}) {
        for (const Element &property : level.children()) {
            Properties named;
            add(named, property.name(), property);
            for (const auto &[name, value] : named) {
                const auto found = linkUses.find(name);
                if (found != linkUses.end())
                    link(value.value, found->second);
            }
            if (const pugi::xml_attribute offset = property.attribute("pOffset"))
                link(offset.value(), Reads | ChangesWith);
        }
    }
    for (const Node *selector : m_node.selecting())
        link(selector->name(), ChangesWith);
    return links;
}

bool NodeDescription::isTerminal() const
{
    return !m_kind.empty() && !contains(",Category,Port,SwissKnife,IntSwissKnife,", m_kind);
}

// Of the nodes, what is answered so -----------------------------------------------------------------------------------

namespace {

void appendLinked(const NodeDescription &description, unsigned use, std::vector<Node *> &nodes)
{
    for (const NodeDescription::Link &link : description.links()) {
        if (link.uses & use)
            nodes.push_back(const_cast<Node *>(link.node));
    }
}

bool reads(const Node &parent, const Node &child)
{
    const NodeDescription description(parent);
    for (const NodeDescription::Link &link : description.links()) {
        // An enumeration reads its entries, as far as this question goes.
        if (link.node == &child && ((link.uses & NodeDescription::Reads) || child.interfaceType() == intfIEnumEntry))
            return true;
    }
    return false;
}

} // namespace

std::vector<Node *> Node::readers() const
{
    const uint64_t mark = ++m_map.m_walk;
    std::vector<Node *> nodes;
    for (Node *node : m_dependents) {
        if (std::exchange(node->m_changeMark, mark) != mark && reads(*node, *this))
            nodes.push_back(node);
    }
    return nodes;
}

std::vector<Node *> Node::dependingNodes() const
{
    const uint64_t mark = ++m_map.m_walk;
    const_cast<Node *>(this)->m_changeMark = mark; // as all that count the walk that came here last
    std::vector<Node *> nodes;
    const auto addDependents = [&](const Node &node) {
        for (Node *dependent : node.m_dependents) {
            if (dependent->m_changeMark != mark) {
                dependent->m_changeMark = mark;
                nodes.push_back(dependent);
            }
        }
    };
    addDependents(*this);
    for (std::size_t i = 0; i < nodes.size(); ++i)
        addDependents(*nodes[i]);
    return nodes;
}

std::vector<Node *> Node::terminalNodes() const
{
    std::vector<Node *> terminals;
    std::vector<Node *> open{const_cast<Node *>(this)};
    const uint64_t mark = ++m_map.m_walk;
    open.front()->m_changeMark = mark;
    for (std::size_t i = 0; i < open.size(); ++i) {
        const NodeDescription description(*open[i]);
        std::vector<Node *> written;
        appendLinked(description, NodeDescription::Writes, written);
        if (written.empty() && description.isTerminal())
            terminals.push_back(open[i]);
        for (Node *node : written) {
            if (node->m_changeMark != mark) {
                node->m_changeMark = mark;
                open.push_back(node);
            }
        }
    }
    return terminals;
}

const std::vector<Node *> &Node::selecting() const
{
    static const std::vector<Node *> none;
    return m_selectorLinks ? m_selectorLinks->selecting : none;
}

void Node::GetChildren(NodeList_t &Children, ELinkType LinkType) const
{
    const Entry entry(*this, "GetChildren");
    std::vector<Node *> nodes;
    switch (LinkType) {
    case ctParentNodes:
        nodes = readers();
        break;
    case ctReadingChildren:
        appendLinked(NodeDescription(*this), NodeDescription::Reads, nodes);
        break;
    case ctWritingChildren:
        appendLinked(NodeDescription(*this), NodeDescription::Writes, nodes);
        break;
    case ctInvalidatingChildren:
        appendLinked(NodeDescription(*this), NodeDescription::ChangesWith, nodes);
        break;
    case ctDependingNodes:
        nodes = dependingNodes();
        break;
    case ctTerminalNodes:
        nodes = terminalNodes();
        break;
    case ctValueChangingChildren:
        appendLinked(NodeDescription(*this), NodeDescription::TakesValueOf, nodes);
        break;
    }
    Children.assign(nodes.begin(), nodes.end());
}

void Node::GetParents(NodeList_t &Parents) const
{
    const Entry entry(*this, "GetParents");
    const std::vector<Node *> nodes = readers();
    Parents.assign(nodes.begin(), nodes.end());
}

void Node::GetPropertyNames(GenICam::gcstring_vector &PropertyNames) const
{
    const Entry entry(*this, "GetPropertyNames");
    PropertyNames.clear();
    for (const auto &[name, property] : NodeDescription(*this).properties())
        PropertyNames.push_back(GenICam::gcstring(name));
}

bool Node::GetProperty(const GenICam::gcstring &PropertyName, GenICam::gcstring &ValueStr,
                       GenICam::gcstring &AttributeStr)
{
    const Entry entry(*this, "GetProperty");
    const NodeDescription::Properties properties = NodeDescription(*this).properties();
    const auto found = properties.find(PropertyName.c_str());
    if (found == properties.end()) {
        ValueStr = AttributeStr = "";
        return false;
    }
    ValueStr = found->second.value.c_str();
    AttributeStr = found->second.attribute.c_str();
    return true;
}

} // namespace OrvGenApi
