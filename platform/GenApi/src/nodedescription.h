// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "node.h"

#include <pugixml.hpp>

#include <map>
#include <string>
#include <vector>

namespace OrvGenApi {

/**
 * What the description says about one node, read from its text once more when somebody asks. Keeping it read would cost
 * every map several times the memory of the text, for questions that hardly any program asks.
 */
class NodeDescription
{
public:
    /** Several values of one name are joined by tabs, and so is what is said about them. */
    struct Property
    {
        std::string value;
        std::string attribute;
    };
    using Properties = std::map<std::string, Property>;

    /** How a node uses another one. */
    enum Use : uint8_t {
        Reads = 1,
        Writes = 2,
        ChangesWith = 4,
        TakesValueOf = 8, ///< its own value changes
        WritesValueTo = Reads | Writes | ChangesWith | TakesValueOf
    };

    struct Link
    {
        const Node *node;
        unsigned uses; ///< of Use
    };

    explicit NodeDescription(const Node &node);

    /** The properties that stand in the description, and those that the kind of node has without. */
    Properties properties() const;

    /** The links that stand there to nodes that exist, in their order, each node once; entries are links too. */
    std::vector<Link> links() const;

    /** Whether a value can end here. */
    bool isTerminal() const;

private:
    using Element = pugi::xml_node;

    void addGiven(Properties &properties) const;
    void add(Properties &properties, const std::string &name, const Element &element) const;
    std::string nameOfKnife(const Element &element) const;

    const Node &m_node;
    pugi::xml_document m_document;
    Element m_common; ///< the StructReg around an entry; null for all others
    Element m_element; ///< null when the description cannot be read again
    std::string m_kind;
};

} // namespace OrvGenApi
