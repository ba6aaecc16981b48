// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvGenApi/testing/faults.h>

#include "nodemapimpl.h"

namespace OrvGenApi::testing {

void failGetter(GenApi::INodeMap &map, const std::string &node, const std::string &getter,
                std::optional<std::string> description)
{
    auto &impl = dynamic_cast<NodeMapImpl &>(map);
    const MapLock lock(impl);
    if (!impl.m_faults)
        impl.m_faults.emplace();
    impl.m_faults->faults.push_back({node, getter, std::move(description).value_or(std::string())});
}

void clearFaults(GenApi::INodeMap &map)
{
    auto &impl = dynamic_cast<NodeMapImpl &>(map);
    const MapLock lock(impl);
    impl.m_faults.reset();
}

std::size_t registeredCallbacks(const GenApi::INodeMap &map)
{
    const auto &impl = dynamic_cast<const NodeMapImpl &>(map);
    const MapLock lock(impl);
    std::size_t count = 0;
    for (const std::unique_ptr<Node> &node : impl.m_nodes)
        count += node->callbacks().size();
    return count;
}

} // namespace OrvGenApi::testing
