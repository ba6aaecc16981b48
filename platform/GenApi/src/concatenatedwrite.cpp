// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "nodemapimpl.h"
#include "portnode.h"

#include <GenApi/Pointer.h>

#include <variant>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;
using GenICam::gcstring_vector;

namespace {

class WriteConcatenator final : public CNodeWriteConcatenator
{
public:
    using Value = std::variant<gcstring, int64_t, double, bool>;

    void Add(const gcstring &nodeName, const gcstring &nodeValue) override
    {
        m_writes.emplace_back(nodeName, nodeValue);
    }
    void Add(const gcstring &nodeName, const char *nodeValue) override { Add(nodeName, gcstring(nodeValue)); }
    void Add(const gcstring &nodeName, const int64_t nodeValue) override { m_writes.emplace_back(nodeName, nodeValue); }
    void Add(const gcstring &nodeName, const double nodeValue) override { m_writes.emplace_back(nodeName, nodeValue); }
    void Add(const gcstring &nodeName, const bool nodeValue) override { m_writes.emplace_back(nodeName, nodeValue); }
    void Clear() override { m_writes.clear(); }
    void Destroy() override { delete this; }

    const std::vector<std::pair<gcstring, Value>> &writes() const { return m_writes; }

private:
    std::vector<std::pair<gcstring, Value>> m_writes;
};

/** Numbers go to numbers of any kind; a truth value to those, too. */
template <typename Number>
void setNumber(INode *node, Number value)
{
    if (const CIntegerPtr integer = node)
        integer->SetValue(static_cast<int64_t>(value));
    else if (const CFloatPtr floating = node)
        floating->SetValue(static_cast<double>(value));
    else if (const CEnumerationPtr enumeration = node)
        enumeration->SetIntValue(static_cast<int64_t>(value));
    else if (const CBooleanPtr boolean = node)
        boolean->SetValue(value != 0);
    else
        CValuePtr(node)->FromString(std::to_string(value).c_str());
}

void setValue(INode *node, const WriteConcatenator::Value &value)
{
    if (const auto *const text = std::get_if<gcstring>(&value))
        CValuePtr(node)->FromString(*text);
    else if (const auto *const integer = std::get_if<int64_t>(&value))
        setNumber(node, *integer);
    else if (const auto *const floating = std::get_if<double>(&value))
        setNumber(node, *floating);
    else
        setNumber<int64_t>(node, std::get<bool>(value));
}

} // namespace

CNodeWriteConcatenator *NodeMapImpl::NewNodeWriteConcatenator() const
{
    return new WriteConcatenator;
}

bool NodeMapImpl::ConcatenatedWrite(CNodeWriteConcatenator *pConcatenatedWrite, bool, gcstring_vector *pErrorList)
{
    const auto list = dynamic_cast<const WriteConcatenator *>(pConcatenatedWrite);
    if (!list)
        ORV_THROW(InvalidArgumentException, "there is no list of values to write");
    bool isDone = true;
    const auto attempt = [&](const std::string &what, const auto &deed) {
        try {
            deed();
        } catch (const GenICam::GenericException &error) {
            isDone = false;
            if (pErrorList)
                pErrorList->push_back(gcstring(what + ": " + error.what()));
        }
    };
    const MapLock lock(*this);
    std::vector<PortNode *> ports;
    for (const std::unique_ptr<Node> &node : m_nodes) {
        if (const auto port = dynamic_cast<PortNode *>(node.get()))
            ports.push_back(port);
    }
    for (PortNode *port : ports)
        port->beginStack();
    for (const auto &[name, value] : list->writes()) {
        if (INode *const node = GetNode(name))
            attempt("writing '" + std::string(name.c_str()) + "'", [&, &v = value] { setValue(node, v); });
    }
    for (PortNode *port : ports)
        attempt(std::string("writing through '") + port->name() + "'", [&] { port->endStack(); });
    return isDone;
}

} // namespace OrvGenApi
