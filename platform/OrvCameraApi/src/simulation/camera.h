// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "framesource.h"
#include "locked.h"
#include "portmonitor.h"
#include "registerfile.h"
#include "servicemap.h"
#include "stallpoint.h"

#include <OrvCameraApi/simulation.h>

#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

/** A simulated camera: it keeps its registers whether anyone has it open or not. */
class Camera final : public BackendDevice, public std::enable_shared_from_this<Camera>
{
public:
    struct State
    {
        std::int32_t accessStatus = OrvCam::AccessStatusReadWrite;
        OrvSim::Network network;
        ParametersAnswer parameters;
        OrvCamErr openRefusal = OrvCamErr_Ok;
        OrvCamErr forceIpRefusal = OrvCamErr_Ok;
        std::vector<std::weak_ptr<ConnectionListener>> listeners;
    };

    /**
     * Gives the camera power. \a interface is the one that it hangs on, for good. Throws when the description or a
     * statement cannot be used.
     */
    Camera(OrvSim::DeviceSpec spec, const OrvSim::InterfaceSpec &interface, StallPoint &forceIpStall);
    ~Camera() override;

    const DeviceTexts &texts() const override { return m_texts; }
    std::int32_t accessStatus() const override { return m_state.copy().accessStatus; }
    OrvCamErr readIpConfiguration(IpConfiguration &configuration) const override;

    /** The access status follows: a camera outside the subnet of its interface cannot be reached. */
    OrvCamErr forceIp(const IpConfiguration &configuration) override;
    std::unique_ptr<Connection> open(std::int32_t accessMode, OrvCamErr &err) override;

    /** The camera as it was when it got power. */
    const OrvSim::DeviceSpec &spec() const { return m_spec; }

    bool isPluggedIn() const { return m_monitor.isConnected(); }

    /** Returns whether that was a change. A register access that hangs fails when the camera is unplugged. */
    bool setPluggedIn(bool pluggedIn) { return m_monitor.setConnected(pluggedIn); }

    Locked<State> &state() { return m_state; }
    PortMonitor &monitor() { return m_monitor; }
    ServiceMap &service() { return m_service; }

    /** The listeners of all devices that are open now. */
    std::vector<std::shared_ptr<ConnectionListener>> listeners() const;

private:
    class OpenCamera;

    OrvCamErr networkError() const;
    OrvCamErr openingError() const;
    void writeIdentityRegisters();
    void writeNetworkRegisters(const OrvSim::Network &network);
    void addListener(std::weak_ptr<ConnectionListener> listener);

    const OrvSim::DeviceSpec m_spec;
    const DeviceTexts m_texts;
    const std::int32_t m_interfaceType;
    const OrvSim::Network m_interfaceNetwork;
    StallPoint &m_forceIpStall;
    RegisterFile m_registers;
    PortMonitor m_monitor;
    ServiceMap m_service;
    Locked<State> m_state;
    const std::shared_ptr<ReceivingRight::Taken> m_isReceiving = std::make_shared<ReceivingRight::Taken>(false);
};

} // namespace OrvCameraApi
