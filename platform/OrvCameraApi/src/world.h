#pragma once

#include "eventthread.h"
#include "gate.h"

#include <OrvCameraApi/simulation.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace OrvCameraApi {

class Camera;
class DeviceSession;
class HostInterface;

/** Everything that is simulated in this process. Any thread may use it. */
class World
{
public:
    static World &instance();

    /** A camera and where it is plugged in; both null when there is none. */
    struct Place
    {
        std::shared_ptr<HostInterface> host;
        std::shared_ptr<Camera> camera;
    };

    std::vector<std::shared_ptr<HostInterface>> interfaces() const;
    std::vector<std::shared_ptr<HostInterface>> interfacesPluggedIn() const;
    std::shared_ptr<HostInterface> findInterface(const std::string &name) const;
    Place findDevice(const std::string &name) const;

    /** False when the control name is empty or in use. */
    bool add(const OrvSim::InterfaceSpec &spec);

    /** False when the control name is empty or in use, or there is no such interface; throws when what it describes
     * cannot be used. */
    bool add(const std::string &interfaceName, const OrvSim::DeviceSpec &spec);

    bool remove(const std::string &name);
    bool setPluggedIn(const std::string &name, bool pluggedIn);

    /** Unplugs and forgets everything, without events, and ends all stalls and faults. */
    void clear();

    bool isSystemAvailable() const;
    void setSystemAvailable(bool available);
    OrvSim::Lists interfaceLists() const;
    void setInterfaceLists(OrvSim::Lists lists);

    Gate &gate(OrvSim::Call call) { return call == OrvSim::Call::ForceIp ? m_forceIp : m_reEnumeration; }
    EventThread &events() { return m_events; }

private:
    World();
    ~World();

    bool isNameRefused(const std::string &name) const;
    void setPluggedIn(Camera &camera, bool pluggedIn);
    void setPluggedIn(HostInterface &host, bool pluggedIn);

    mutable std::mutex m_mutex; ///< guards the interfaces and flags; no application code runs while it is held
    std::vector<std::shared_ptr<HostInterface>> m_interfaces;
    bool m_systemAvailable = true;
    OrvSim::Lists m_interfaceLists = OrvSim::Lists::Normal;

    Gate m_reEnumeration;
    Gate m_forceIp;
    EventThread m_events;
};

} // namespace OrvCameraApi
