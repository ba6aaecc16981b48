// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "descriptionloader.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <unordered_map>

namespace OrvGenApi {

using namespace GenApi;

DescriptionLoader::DescriptionLoader(NodeMapImpl &map, std::string xml, std::string sourceName)
    : m_map(map)
    , m_xml(std::move(xml))
    , m_sourceName(std::move(sourceName))
{
    // Parsing in place writes into the text; lines are counted before.
    for (std::size_t end = m_xml.find('\n'); end != std::string::npos; end = m_xml.find('\n', end + 1))
        m_lineStarts.push_back(end + 1);
}

DescriptionLoader::~DescriptionLoader() = default;

void DescriptionLoader::load()
{
    if (m_xml.size() > UINT32_MAX)
        ORV_THROW(RuntimeException, m_sourceName + ": too large");
    m_map.m_description = m_xml; // before the parser writes into it
    const pugi::xml_parse_result result = m_document.load_buffer_inplace(m_xml.data(), m_xml.size());
    if (!result)
        failAt(result.offset, std::string("no well-formed XML: ") + result.description());
    if (result.encoding != pugi::encoding_utf8)
        convertToUtf8();
    const Element root = m_document.document_element();
    if (std::strcmp(root.name(), "RegisterDescription") != 0)
        fail(root, std::string("no GenICam description: the root element is '") + root.name() + "'");
    m_map.m_modelName = root.attribute("ModelName").value();
    m_map.m_vendorName = root.attribute("VendorName").value();
    constexpr std::size_t usualNode = 100; // characters, of the smaller ones: finding room again and again takes long
    m_map.reserve(m_xml.size() / usualNode);
    createNodes(root, 0);
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        const Source source = m_sources[i]; // a copy: reading may make further nodes
        source.read(*this, source);
    }
    finish();
}

/** Texts that the nodes read again later have to be those that the places of the elements belong to. */
void DescriptionLoader::convertToUtf8()
{
    std::ostringstream converted;
    m_document.save(converted, "", pugi::format_indent, pugi::encoding_utf8);
    m_xml = converted.str();
    m_map.m_description = m_xml;
    m_document.load_buffer_inplace(m_xml.data(), m_xml.size(), pugi::parse_default, pugi::encoding_utf8);
}

void DescriptionLoader::createNodes(const Element &parent, int depth)
{
    constexpr int deepestGroup = 100;
    if (depth > deepestGroup)
        fail(parent, "groups stand in groups too deeply");
    for (const Element &element : parent.children()) {
        if (element.type() != pugi::node_element)
            continue;
        if (std::strcmp(element.name(), "Group") == 0)
            createNodes(element, depth + 1);
        else
            createNode(element);
    }
}

std::string DescriptionLoader::nameOf(const Element &element) const
{
    const char *const name = element.attribute("Name").value();
    if (!*name)
        fail(element, std::string("a node of kind '") + element.name() + "' has no name");
    return name;
}

/** The position of the bracket that begins \a element. */
uint32_t DescriptionLoader::textPosition(const Element &element)
{
    return static_cast<uint32_t>(std::max<std::ptrdiff_t>(element.offset_debug() - 1, 0));
}

template <typename T>
T &DescriptionLoader::create(const Element &element, const std::string &name, const Element &common)
{
    auto owned = std::make_unique<T>(m_map, m_map.keep(name));
    T &node = *owned;
    node.m_index = static_cast<uint32_t>(m_map.m_nodes.size());
    const Element &outer = common ? common : element;
    node.m_descriptionBegin = textPosition(outer);
    node.m_descriptionEnd =
        outer.next_sibling() ? textPosition(outer.next_sibling()) : static_cast<uint32_t>(m_xml.size());
    node.m_standardNameSpace = std::strcmp(element.attribute("NameSpace").value(), "Standard") == 0;
    if (!m_map.add(std::move(owned)))
        fail(element, "there are two nodes '" + name + "'");
    m_sources.push_back({&node, element, common, [](DescriptionLoader &loader, const Source &source) {
                             loader.read(static_cast<T &>(*source.node), source);
                         }});
    return node;
}

template <typename T>
void DescriptionLoader::createNamed(const Element &element)
{
    create<T>(element, nameOf(element));
}

void DescriptionLoader::createNode(const Element &element)
{
    using Creator = void (DescriptionLoader::*)(const Element &);
    static const std::unordered_map<std::string_view, Creator> creators = {
        {"Integer", &DescriptionLoader::createNamed<IntegerNode>},
        {"IntReg", &DescriptionLoader::createNamed<IntRegisterNode>},
        {"MaskedIntReg", &DescriptionLoader::createNamed<IntRegisterNode>},
        {"StructReg", &DescriptionLoader::createStructEntries},
        {"Float", &DescriptionLoader::createNamed<FloatNode>},
        {"FloatReg", &DescriptionLoader::createNamed<FloatRegisterNode>},
        {"Boolean", &DescriptionLoader::createNamed<BooleanNode>},
        {"Command", &DescriptionLoader::createNamed<CommandNode>},
        {"Enumeration", &DescriptionLoader::createEnumeration},
        {"String", &DescriptionLoader::createNamed<StringNode>},
        {"StringReg", &DescriptionLoader::createNamed<StringRegisterNode>},
        {"Register", &DescriptionLoader::createNamed<RegisterNode>},
        {"SwissKnife", &DescriptionLoader::createNamed<SwissKnifeNode<FloatFormulaBase>>},
        {"IntSwissKnife", &DescriptionLoader::createNamed<SwissKnifeNode<IntegerFormulaBase>>},
        {"Converter", &DescriptionLoader::createNamed<ConverterNode<FloatFormulaBase>>},
        {"IntConverter", &DescriptionLoader::createNamed<ConverterNode<IntegerFormulaBase>>},
        {"Category", &DescriptionLoader::createNamed<CategoryNode>},
        {"Port", &DescriptionLoader::createNamed<PortNode>},
        {"Node", &DescriptionLoader::createNamed<PlainNode>},
    };
    const auto found = creators.find(element.name());
    if (found != creators.end()) // descriptions may hold elements of later schemas
        (this->*found->second)(element);
}

void DescriptionLoader::createEnumeration(const Element &element)
{
    const std::string prefix =
        std::string("EnumEntry_") + create<EnumerationNode>(element, nameOf(element)).name() + "_";
    for (const Element &child : element.children("EnumEntry")) {
        const std::string symbolic = nameOf(child);
        EnumEntryNode &entry = create<EnumEntryNode>(child, prefix + symbolic);
        entry.m_symbolic = entry.name() + prefix.size();
    }
}

void DescriptionLoader::createStructEntries(const Element &structure)
{
    for (const Element &element : structure.children("StructEntry"))
        create<IntRegisterNode>(element, nameOf(element), structure);
}

SwissKnifeNode<IntegerFormulaBase> &DescriptionLoader::createKnife(const Element &element, const std::string &name)
{
    return create<SwissKnifeNode<IntegerFormulaBase>>(element, name);
}

void DescriptionLoader::finish()
{
    checkLinks();
    deriveCategories();
    markFeatures();
    for (const std::unique_ptr<Node> &node : m_map.m_nodes) {
        node->m_dependents.shrink_to_fit();
        if (node->m_pollingTime > 0)
            m_map.m_polled.push_back({node.get(), node->conditions().blocksPolling});
    }
    m_map.m_nodes.shrink_to_fit();
}

/**
 * Nothing can be read that is made of itself, so circles are refused. How selections and the entries of enumerations
 * hang together is not looked at here: a choice may well depend on what it chooses.
 */
void DescriptionLoader::checkLinks()
{
    const auto leadsOn = [](const Edge &edge) { return edge.use != Use::Notice; };
    m_edges.erase(std::stable_partition(m_edges.begin(), m_edges.end(), leadsOn), m_edges.end());
    walkEdges("the links go round in a circle: ", [this](const Edge &edge) {
        Node &node = *m_map.m_nodes[edge.from];
        const ECachingMode mode = m_map.m_nodes[edge.to]->cachingMode();
        // The variables of a formula decide whether its result can be kept; they are not written through it.
        if (edge.use == Use::Value || (edge.use == Use::Variable && mode == NoCache))
            node.setCachingMode(combined(node.cachingMode(), mode));
    });
    const std::vector<Edge> readEdges = std::move(m_edges);
    m_edges.clear();
    for (const std::unique_ptr<Node> &node : m_map.m_nodes) {
        if (!node->m_selectorLinks)
            continue;
        for (const Node *selected : node->m_selectorLinks->selected)
            m_edges.push_back({node->m_index, selected->m_index, Use::Notice});
    }
    walkEdges("the selectors go round in a circle: ", [](const Edge &) {});
    m_edges = readEdges;
    spreadSelections();
    spreadVaryingAccess();
}

/** A condition without a cache makes the access mode of its node vary, and of all nodes that read this one. */
void DescriptionLoader::spreadVaryingAccess()
{
    std::vector<Node *> open;
    const auto add = [&open](Node &node) {
        if (!std::exchange(node.m_accessVaries, true))
            open.push_back(&node);
    };
    for (const std::unique_ptr<Node> &node : m_map.m_nodes) {
        if (!node->hasCachableConditions())
            add(*node);
    }
    if (open.empty())
        return;
    const std::vector<std::vector<uint32_t>> readers = readersOfNodes();
    while (!open.empty()) {
        const Node &node = *open.back();
        open.pop_back();
        for (const uint32_t reader : readers[node.m_index])
            add(*m_map.m_nodes[reader]);
        for (Node *dependent : node.m_dependents) {
            if (node.interfaceType() == intfIEnumEntry || dependent->interfaceType() == intfICategory)
                add(*dependent); // what is made of it
        }
    }
}

std::vector<std::vector<uint32_t>> DescriptionLoader::readersOfNodes() const
{
    std::vector<std::vector<uint32_t>> readers(m_map.m_nodes.size());
    for (const Edge &edge : m_edges)
        readers[edge.to].push_back(edge.from);
    return readers;
}

/** A node that reads a selected node, for its value, a limit or a condition, is selected as well. */
void DescriptionLoader::spreadSelections()
{
    std::vector<std::vector<uint32_t>> readers;
    std::vector<std::pair<Node *, std::vector<Node *>>> found;
    std::vector<const Node *> seenBy(m_map.m_nodes.size());
    std::size_t left = 20 * m_map.m_nodes.size(); // a description that is made to be hard must not grow without end
    for (const std::unique_ptr<Node> &node : m_map.m_nodes) {
        if (!node->m_selectorLinks || node->m_selectorLinks->selected.empty())
            continue;
        if (readers.empty())
            readers = readersOfNodes();
        std::vector<Node *> open = node->m_selectorLinks->selected;
        for (const Node *each : open)
            seenBy[each->m_index] = node.get();
        for (std::size_t i = 0; i < open.size() && left > 0; ++i) {
            for (const uint32_t reader : readers[open[i]->m_index]) {
                if (reader == node->m_index)
                    failCircle("the selectors go round in a circle: ", {reader}, reader);
                const auto &links = m_map.m_nodes[reader]->m_selectorLinks;
                if (links
                    && std::find(links->selected.begin(), links->selected.end(), node.get()) != links->selected.end())
                    continue; // it selects the selector
                if (seenBy[reader] == node.get() || !m_map.m_nodes[reader]->asValue()
                    || m_map.m_nodes[reader]->interfaceType() == intfICategory)
                    continue;
                seenBy[reader] = node.get();
                open.push_back(m_map.m_nodes[reader].get());
                left -= std::min<std::size_t>(left, 1);
            }
        }
        open.erase(open.begin(), open.begin() + static_cast<std::ptrdiff_t>(node->m_selectorLinks->selected.size()));
        found.emplace_back(node.get(), std::move(open));
    }
    for (const auto &[selector, features] : found) {
        for (Node *feature : features)
            selector->linkSelected(*feature);
    }
}

/**
 * Visits all edges, those of a node after those of the nodes they lead to. The walk goes depth first with a path of its
 * own, because chains may be longer than the stack; an edge back to a node on the path closes a circle.
 */
template <typename Visit>
void DescriptionLoader::walkEdges(const char *circle, const Visit &visit)
{
    std::stable_sort(m_edges.begin(), m_edges.end(), [](const Edge &a, const Edge &b) { return a.from < b.from; });
    const std::size_t count = m_map.m_nodes.size();
    std::vector<std::size_t> first(count + 1, 0);
    for (const Edge &edge : m_edges)
        ++first[edge.from + 1];
    for (std::size_t i = 0; i < count; ++i)
        first[i + 1] += first[i];

    enum : uint8_t { New, Open, Done };
    std::vector<uint8_t> state(count, New);
    std::vector<std::size_t> next(first.begin(), first.end() - 1);
    std::vector<uint32_t> path;
    for (uint32_t start = 0; start < count; ++start) {
        if (state[start] != New)
            continue;
        path.assign(1, start);
        state[start] = Open;
        while (!path.empty()) {
            const uint32_t at = path.back();
            if (next[at] < first[at + 1]) {
                const uint32_t to = m_edges[next[at]++].to;
                if (state[to] == Open)
                    failCircle(circle, path, to);
                if (state[to] == New) {
                    state[to] = Open;
                    path.push_back(to);
                }
                continue;
            }
            for (std::size_t i = first[at]; i < first[at + 1]; ++i)
                visit(m_edges[i]);
            state[at] = Done;
            path.pop_back();
        }
    }
}

void DescriptionLoader::failCircle(std::string circle, const std::vector<uint32_t> &path, uint32_t first) const
{
    for (auto at = std::find(path.begin(), path.end(), first); at != path.end(); ++at)
        circle += std::string(m_map.m_nodes[*at]->name()) + " -> ";
    fail(m_sources[first].element, circle + m_map.m_nodes[first]->name());
}

void DescriptionLoader::markFeatures()
{
    Node *const root = m_map.find("Root");
    std::vector<Node *> open;
    if (root)
        open.push_back(root);
    while (!open.empty()) {
        const auto category = dynamic_cast<CategoryNode *>(open.back());
        open.pop_back();
        if (!category)
            continue;
        for (Node *feature : category->m_features) {
            if (!feature->m_isFeature) {
                feature->m_isFeature = true;
                open.push_back(feature);
            }
        }
    }
}

void DescriptionLoader::deriveCategories()
{
    std::unordered_map<const Node *, std::vector<CategoryNode *>> parents;
    std::vector<std::vector<CategoryNode *>> found(Invisible + 1);
    const auto lower = [&found](CategoryNode *category, EVisibility visibility) {
        if (visibility < category->m_derivedVisibility) {
            category->m_derivedVisibility = visibility;
            found[visibility].push_back(category);
        }
    };
    for (const std::unique_ptr<Node> &node : m_map.m_nodes) {
        const auto category = dynamic_cast<CategoryNode *>(node.get());
        if (!category)
            continue;
        for (Node *feature : category->m_features) {
            if (feature->interfaceType() == intfICategory)
                parents[feature].push_back(category);
            else
                lower(category, feature->visibility());
        }
    }
    // A category is as visible as the most visible feature anywhere below it.
    for (int visibility = Beginner; visibility <= Invisible; ++visibility) {
        for (std::size_t i = 0; i < found[static_cast<std::size_t>(visibility)].size(); ++i) {
            CategoryNode *const category = found[static_cast<std::size_t>(visibility)][i];
            for (CategoryNode *parent : parents[category])
                lower(parent, static_cast<EVisibility>(visibility));
        }
    }
}

void DescriptionLoader::fail(const Element &element, const std::string &what) const
{
    failAt(element.offset_debug(), what);
}

void DescriptionLoader::failAt(std::ptrdiff_t offset, const std::string &what) const
{
    const auto position = static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0));
    const auto line = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), position) - m_lineStarts.begin() + 1;
    ORV_THROW(RuntimeException, m_sourceName + ":" + std::to_string(line) + ": " + what);
}

} // namespace OrvGenApi
