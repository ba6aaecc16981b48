// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "servicemap.h"

#include "monitoredport.h"

namespace OrvCameraApi {

namespace {

/** The maker of a camera writes registers that its users may only read; a node map refuses that even unchecked. */
std::string withoutReadOnly(std::string description)
{
    const std::string readOnly = "<AccessMode>RO<";
    for (std::size_t at = description.find(readOnly); at != std::string::npos; at = description.find(readOnly, at))
        description.replace(at, readOnly.size(), "<AccessMode>RW<");
    return description;
}

} // namespace

ServiceMap::ServiceMap(const std::string &description, GenApi::IPort &rawPort)
    : m_map(connectedNodeMap(withoutReadOnly(description), rawPort))
{
}

void ServiceMap::forgetValues()
{
    if (!m_isAlone)
        m_map->InvalidateNodes();
}

std::optional<AddressRange> ServiceMap::find(const std::string &node)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const GenApi::CRegisterPtr found(registerNode(node));
    if (!found.IsValid())
        return std::nullopt;
    forgetValues();
    return AddressRange{found->GetAddress(), found->GetLength()};
}

void ServiceMap::set(const std::string &node, const std::string &value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    forgetValues();
    GenApi::CValuePtr(registerNode(node))->FromString(value.c_str(), false);
}

void ServiceMap::setIfThere(const std::string &node, const std::string &value)
{
    if (find(node))
        set(node, value);
}

GenApi::INode *ServiceMap::registerNode(const std::string &name) const
{
    for (const std::string &candidate : {name, name + "Reg"}) {
        GenApi::INode *const node = m_map->GetNode(candidate.c_str());
        if (dynamic_cast<GenApi::IRegister *>(node))
            return node;
    }
    return nullptr;
}

} // namespace OrvCameraApi
