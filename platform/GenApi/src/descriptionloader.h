// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "formulanodes.h"
#include "integernode.h"
#include "othernodes.h"
#include "registernodes.h"

#include <pugixml.hpp>

#include <deque>

namespace OrvGenApi {

/** Fills a map from a description. Used once; throws GenICam exceptions that name the line. */
class DescriptionLoader
{
public:
    /** \a xml is parsed in place and must stay as it is until load() has returned. */
    DescriptionLoader(NodeMapImpl &map, std::string xml, std::string sourceName);
    ~DescriptionLoader();

    void load();

private:
    using Element = pugi::xml_node;

    /** What a link means for the node that has it. */
    enum class Use : uint8_t {
        Value, ///< its value is the other node's, or found with its help
        Variable, ///< its value is computed from the other node's
        Condition, ///< it reads the other node
        Notice ///< it changes with the other node
    };

    struct Edge
    {
        uint32_t from;
        uint32_t to;
        Use use;
    };

    struct Source
    {
        Node *node;
        Element element;
        Element common; ///< the StructReg that a StructEntry stands in
        void (*read)(DescriptionLoader &loader, const Source &source); ///< of the node's class: casts would take long
    };

    void convertToUtf8();
    static uint32_t textPosition(const Element &element);

    // Finding and making nodes
    void createNodes(const Element &parent, int depth);
    void createNode(const Element &element);
    template <typename T>
    void createNamed(const Element &element);
    void createEnumeration(const Element &element);
    void createStructEntries(const Element &structure);
    template <typename T>
    T &create(const Element &element, const std::string &name, const Element &common = {});
    SwissKnifeNode<IntegerFormulaBase> &createKnife(const Element &element, const std::string &name);
    std::string nameOf(const Element &element) const;

    // Reading properties, of each kind of nodes
    void read(IntegerNode &node, const Source &source);
    void read(FloatNode &node, const Source &source);
    void read(IntRegisterNode &node, const Source &source);
    void read(FloatRegisterNode &node, const Source &source);
    void read(StringRegisterNode &node, const Source &source);
    void read(RegisterNode &node, const Source &source);
    template <typename Base>
    void read(SwissKnifeNode<Base> &node, const Source &source);
    template <typename Base>
    void read(ConverterNode<Base> &node, const Source &source);
    void read(StringNode &node, const Source &source);
    void read(BooleanNode &node, const Source &source);
    void read(CommandNode &node, const Source &source);
    void read(EnumerationNode &node, const Source &source);
    void read(EnumEntryNode &node, const Source &source);
    void read(CategoryNode &node, const Source &source);
    void read(PlainNode &node, const Source &source);
    void read(PortNode &node, const Source &source);

    // Parts of them
    bool readCommon(Node &node, const Element &property);
    bool readPresentation(Presentation &presentation, const Element &property);
    bool readRegister(Node &node, RegisterData &data, const Element &property);
    template <typename NumberNode>
    bool readNumberProperty(NumberNode &node, const Element &property);
    void readValidValues(IntegerNode &node, const Element &property);
    template <typename Number>
    bool readSource(NumberSource<Number> &source, Node &node, const Element &property);
    template <typename Number>
    NumberRef<Number> &itemOf(NumberSource<Number> &source, const Element &property);
    template <typename T>
    void readPlainRegister(T &node, const Source &source);
    void readAddressKnife(Node &node, RegisterData &data, const Element &element);

    /** The names a formula may use; reads variables, constants and expressions of \a element. */
    FormulaScope scopeOf(Node &node, std::vector<FormulaVariable> &variables, const Element &element);
    void readVariable(Node &node, std::vector<FormulaVariable> &variables, const Element &property);
    Formula formula(const Element &property, FormulaScope scope, const char *converted, Formula::Kind kind);

    // Properties' values
    Node *link(Node &owner, const Element &property, Use use);
    Node *linkTo(Node &owner, const Element &property, std::string_view name, Use use);
    Node *linkNumber(Node &owner, const Element &property, Use use);
    template <typename Number>
    void linkNumber(NumberRef<Number> &reference, Node &owner, const Element &property, Use use);
    void readNumber(int64_t &value, const Element &property);
    void readNumber(double &value, const Element &property);
    int64_t integer(const Element &property);
    double number(const Element &property);
    bool isYes(const Element &property);
    std::string_view textOf(const Element &property);

    // When all nodes are read
    void finish();
    void checkLinks();
    void spreadSelections();
    void spreadVaryingAccess();

    /** The places of those that read each node. */
    std::vector<std::vector<uint32_t>> readersOfNodes() const;
    template <typename Visit>
    void walkEdges(const char *circle, const Visit &visit);
    void markFeatures();
    void deriveCategories();

    [[noreturn]] void fail(const Element &element, const std::string &what) const;
    [[noreturn]] void failAt(std::ptrdiff_t offset, const std::string &what) const;
    [[noreturn]] void failCircle(std::string circle, const std::vector<uint32_t> &path, uint32_t first) const;

    NodeMapImpl &m_map;
    std::string m_xml;
    const std::string m_sourceName;
    std::vector<std::size_t> m_lineStarts;
    pugi::xml_document m_document;
    std::vector<Source> m_sources;
    std::vector<Edge> m_edges;
    std::deque<std::string> m_joinedTexts; ///< texts that a comment divides in the description
};

} // namespace OrvGenApi
