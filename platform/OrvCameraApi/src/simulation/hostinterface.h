// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "interfaceport.h"
#include "locked.h"
#include "monitoredport.h"
#include "portmonitor.h"
#include "servicemap.h"
#include "stallpoint.h"

#include <OrvCameraApi/simulation.h>

#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

class Camera;

/** A simulated transport interface of the host with its cameras. */
class HostInterface final : public BackendInterface
{
public:
    using Cameras = std::vector<std::shared_ptr<Camera>>;

    struct State
    {
        Cameras cameras;
        Cameras lastSeen; ///< in the last enumeration
        ParametersAnswer parameters;
        OrvSim::Lists deviceLists = OrvSim::Lists::Normal;
    };

    HostInterface(OrvSim::InterfaceSpec spec, StallPoint &enumerationStall);

    const InterfaceTexts &texts() const override { return m_texts; }
    std::int32_t type() const override { return m_spec.type; }
    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override;
    bool isConnected() const override { return m_monitor.isConnected(); }
    ParametersAnswer parametersAnswer() const override;
    std::optional<Devices> devices() const override;
    OrvCamErr reEnumerate(bool &changed, std::uint32_t timeout) override;

    const OrvSim::InterfaceSpec &spec() const { return m_spec; }

    bool isPluggedIn() const { return isConnected(); }
    void setPluggedIn(bool pluggedIn) { m_monitor.setConnected(pluggedIn); }

    /** All cameras of the interface, or those that are plugged in, in their order. */
    Cameras cameras() const { return m_state.copy().cameras; }
    Cameras camerasPluggedIn() const;

    void add(std::shared_ptr<Camera> camera);
    void remove(const std::shared_ptr<Camera> &camera);
    void swap(const std::shared_ptr<Camera> &first, const std::shared_ptr<Camera> &second);

    Locked<State> &state() { return m_state; }
    PortMonitor &monitor() { return m_monitor; }
    ServiceMap &service() { return m_service; }

private:
    std::vector<DeviceNumbers> numbersOfDevices() const;

    const OrvSim::InterfaceSpec m_spec;
    const InterfaceTexts m_texts;
    StallPoint &m_enumerationStall;
    Locked<State> m_state;
    const std::string m_description;
    InterfacePort m_registers;
    PortMonitor m_monitor;
    MonitoredPort m_port;
    ServiceMap m_service;
};

} // namespace OrvCameraApi
