#pragma once

#include "portmonitor.h"
#include "registerfile.h"
#include "servicemap.h"

#include <OrvCameraApi/simulation.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace OrvCameraApi {

class DeviceSession;

/** A simulated camera: the thing on the table, whether somebody talks to it or not. Any thread may use it. */
class Camera
{
public:
    /** Gives the camera power; throws when its description or a statement cannot be used. */
    explicit Camera(OrvSim::DeviceSpec spec);
    ~Camera();

    /** The camera as it was when it got power. */
    const OrvSim::DeviceSpec &spec() const { return m_spec; }

    bool isPluggedIn() const { return m_monitor.isConnected(); }

    /** Whether that was a change. What hangs in a register access fails when the camera is unplugged. */
    bool setPluggedIn(bool pluggedIn) { return m_monitor.setConnected(pluggedIn); }

    std::int32_t accessStatus() const;
    void setAccessStatus(std::int32_t status);
    OrvSim::Network network() const;

    /**
     * Takes another IP configuration. A camera outside the subnet of \a adapter cannot be reached; one that comes back
     * into it can.
     */
    void setNetwork(const OrvSim::Network &network, const OrvSim::Network &adapter);

    OrvSim::Parameters parameters() const;
    void setParameters(OrvSim::Parameters parameters);
    OrvCamErr openRefusal() const;
    void refuseToOpen(OrvCamErr err);
    OrvCamErr forceIpRefusal() const;
    void refuseForceIp(OrvCamErr err);

    /** Access through the port; throws when the camera is unplugged or a fault stands on the register. */
    void read(void *buffer, const AddressRange &range);
    void write(const void *buffer, const AddressRange &range);

    PortMonitor &monitor() { return m_monitor; }
    ServiceMap &service() { return m_service; }

    void addSession(const std::shared_ptr<DeviceSession> &session);
    std::vector<std::shared_ptr<DeviceSession>> sessions() const;

private:
    class RawPort;

    void engraveIdentity();
    void engraveNetwork(const OrvSim::Network &network);

    const OrvSim::DeviceSpec m_spec;
    RegisterFile m_registers;
    PortMonitor m_monitor;
    const std::unique_ptr<RawPort> m_rawPort;
    ServiceMap m_service;

    mutable std::mutex m_mutex; ///< guards what follows; nothing else is called while it is held
    std::int32_t m_accessStatus;
    OrvSim::Network m_network;
    OrvSim::Parameters m_parameters = OrvSim::Parameters::Normal;
    OrvCamErr m_openRefusal = OrvCamErr_Ok;
    OrvCamErr m_forceIpRefusal = OrvCamErr_Ok;
    std::vector<std::weak_ptr<DeviceSession>> m_sessions;
};

} // namespace OrvCameraApi
