// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "portmonitor.h"

#include <GenApi/GenApi.h>

#include <memory>
#include <string>

namespace OrvCameraApi {

/** An application's way to registers: every access passes the monitor first. */
class MonitoredPort final : public GenApi::IPort
{
public:
    /** Both outlive this object. */
    MonitoredPort(PortMonitor &monitor, GenApi::IPort &registers, bool isReadOnly = false)
        : m_monitor(monitor)
        , m_registers(registers)
        , m_isReadOnly(isReadOnly)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return m_isReadOnly ? GenApi::RO : GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

private:
    PortMonitor &m_monitor;
    GenApi::IPort &m_registers;
    const bool m_isReadOnly;
};

/** A new node map over \a port, which outlives it. Throws when the description cannot be used. */
std::shared_ptr<GenApi::INodeMap> connectedNodeMap(const std::string &description, GenApi::IPort &port);

} // namespace OrvCameraApi
