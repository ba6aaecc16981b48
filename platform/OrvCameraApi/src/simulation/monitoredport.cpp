// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "monitoredport.h"

#include <OrvGenApi/nodemap.h>

namespace OrvCameraApi {

void MonitoredPort::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    m_monitor.beforeRead({address, length});
    m_registers.Read(buffer, address, length);
}

void MonitoredPort::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    if (m_isReadOnly)
        throw GenICam::AccessException("The device was opened for reading only", __FILE__, __LINE__);
    m_monitor.beforeWrite({address, length});
    m_registers.Write(buffer, address, length);
}

std::shared_ptr<GenApi::INodeMap> connectedNodeMap(const std::string &description, GenApi::IPort &port)
{
    std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(description);
    map->connect(&port);
    return map;
}

} // namespace OrvCameraApi
