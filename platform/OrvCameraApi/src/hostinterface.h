#pragma once

#include "portmonitor.h"
#include "servicemap.h"

#include <OrvCameraApi/simulation.h>

#include <array>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace OrvCameraApi {

class Camera;

/** A simulated transport interface of the host with its cameras. Any thread may use it. */
class HostInterface
{
public:
    explicit HostInterface(OrvSim::InterfaceSpec spec);
    ~HostInterface();

    const OrvSim::InterfaceSpec &spec() const { return m_spec; }

    /** The GenICam description of the interface's own features. */
    const std::string &description() const { return m_description; }

    bool isPluggedIn() const { return m_monitor.isConnected(); }
    void setPluggedIn(bool pluggedIn) { m_monitor.setConnected(pluggedIn); }

    /** All cameras that belong here, or those of them that are plugged in, in their order. */
    std::vector<std::shared_ptr<Camera>> cameras() const;
    std::vector<std::shared_ptr<Camera>> camerasPluggedIn() const;

    void add(std::shared_ptr<Camera> camera);
    void remove(const std::shared_ptr<Camera> &camera);
    void swap(const std::shared_ptr<Camera> &first, const std::shared_ptr<Camera> &second);

    /** Whether other cameras are plugged in than at the last call, or in another order. */
    bool takeChange();

    OrvSim::Parameters parameters() const;
    void setParameters(OrvSim::Parameters parameters);
    OrvSim::Lists deviceLists() const;
    void setDeviceLists(OrvSim::Lists lists);

    /** Access to the interface's registers through its port; throws when a fault stands on them. */
    void read(void *buffer, const AddressRange &range);
    void write(const void *buffer, const AddressRange &range);

    PortMonitor &monitor() { return m_monitor; }
    ServiceMap &service() { return m_service; }

private:
    class RawPort;
    static constexpr std::size_t registerBytes = 0x40;
    using Registers = std::array<std::uint8_t, registerBytes>;

    Registers registers() const;
    void readRaw(void *buffer, const AddressRange &range) const;
    void writeRaw(const void *buffer, const AddressRange &range);

    const OrvSim::InterfaceSpec m_spec;
    const std::string m_description;
    PortMonitor m_monitor;
    const std::unique_ptr<RawPort> m_rawPort;
    ServiceMap m_service;

    mutable std::mutex m_mutex; ///< guards what follows; nothing else is called while it is held
    std::vector<std::shared_ptr<Camera>> m_cameras;
    std::vector<std::shared_ptr<Camera>> m_lastSeen;
    std::uint32_t m_selectedDevice = 0;
    OrvSim::Parameters m_parameters = OrvSim::Parameters::Normal;
    OrvSim::Lists m_deviceLists = OrvSim::Lists::Normal;
};

} // namespace OrvCameraApi
