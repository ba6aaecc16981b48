#include "world.h"

#include "camera.h"
#include "defaultsystem.h"
#include "devicesession.h"
#include "hostinterface.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

World::World()
{
    buildDefaultSystem(*this);
}

World::~World() = default;

World &World::instance()
{
    static World world;
    return world;
}

std::vector<std::shared_ptr<HostInterface>> World::interfaces() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_interfaces;
}

std::vector<std::shared_ptr<HostInterface>> World::interfacesPluggedIn() const
{
    std::vector<std::shared_ptr<HostInterface>> present = interfaces();
    const auto absent = [](const std::shared_ptr<HostInterface> &host) { return !host->isPluggedIn(); };
    present.erase(std::remove_if(present.begin(), present.end(), absent), present.end());
    return present;
}

std::shared_ptr<HostInterface> World::findInterface(const std::string &name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found =
        std::find_if(m_interfaces.begin(), m_interfaces.end(),
                     [&name](const std::shared_ptr<HostInterface> &host) { return host->spec().name == name; });
    return found == m_interfaces.end() ? nullptr : *found;
}

World::Place World::findDevice(const std::string &name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const std::shared_ptr<HostInterface> &host : m_interfaces) {
        for (const std::shared_ptr<Camera> &camera : host->cameras()) {
            if (camera->spec().name == name)
                return {host, camera};
        }
    }
    return {};
}

bool World::isNameRefused(const std::string &name) const
{
    return name.empty() || findInterface(name) || findDevice(name).camera;
}

bool World::add(const OrvSim::InterfaceSpec &spec)
{
    if (isNameRefused(spec.name))
        return false;
    auto host = std::make_shared<HostInterface>(spec);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_interfaces.push_back(std::move(host));
    return true;
}

bool World::add(const std::string &interfaceName, const OrvSim::DeviceSpec &spec)
{
    const std::shared_ptr<HostInterface> host = findInterface(interfaceName);
    if (!host || isNameRefused(spec.name))
        return false;
    auto camera = std::make_shared<Camera>(spec);
    camera->setPluggedIn(host->isPluggedIn());
    host->add(std::move(camera));
    return true;
}

bool World::remove(const std::string &name)
{
    if (!setPluggedIn(name, false))
        return false;
    if (const Place place = findDevice(name); place.camera)
        place.host->remove(place.camera);
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto named = [&name](const std::shared_ptr<HostInterface> &host) { return host->spec().name == name; };
    m_interfaces.erase(std::remove_if(m_interfaces.begin(), m_interfaces.end(), named), m_interfaces.end());
    return true;
}

bool World::setPluggedIn(const std::string &name, bool pluggedIn)
{
    if (const std::shared_ptr<HostInterface> host = findInterface(name)) {
        setPluggedIn(*host, pluggedIn);
        return true;
    }
    const Place place = findDevice(name);
    if (!place.camera || (pluggedIn && !place.host->isPluggedIn()))
        return false;
    setPluggedIn(*place.camera, pluggedIn);
    return true;
}

void World::setPluggedIn(HostInterface &host, bool pluggedIn)
{
    host.setPluggedIn(pluggedIn);
    for (const std::shared_ptr<Camera> &camera : host.cameras())
        setPluggedIn(*camera, pluggedIn);
}

void World::setPluggedIn(Camera &camera, bool pluggedIn)
{
    const std::vector<std::shared_ptr<DeviceSession>> sessions = camera.sessions();
    if (pluggedIn && !camera.isPluggedIn()) {
        // Before anyone can read again: what the node maps kept is from before the loss.
        for (const std::shared_ptr<DeviceSession> &session : sessions)
            session->invalidate();
    }
    if (!camera.setPluggedIn(pluggedIn))
        return;
    const std::uint32_t eventId = pluggedIn ? OrvCam::EventDeviceConnected : OrvCam::EventDeviceDisconnected;
    for (const std::shared_ptr<DeviceSession> &session : sessions)
        m_events.post([session, eventId] { session->events().fire(eventId); });
}

void World::clear()
{
    std::vector<std::shared_ptr<HostInterface>> gone;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        gone.swap(m_interfaces);
        m_systemAvailable = true;
        m_interfaceLists = OrvSim::Lists::Normal;
    }
    m_reEnumeration.setClosed(false);
    m_forceIp.setClosed(false);
    for (const std::shared_ptr<HostInterface> &host : gone) {
        host->setPluggedIn(false);
        for (const std::shared_ptr<Camera> &camera : host->cameras())
            camera->setPluggedIn(false);
    }
    m_events.setEnabled(false);
}

bool World::isSystemAvailable() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_systemAvailable;
}

void World::setSystemAvailable(bool available)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_systemAvailable = available;
}

OrvSim::Lists World::interfaceLists() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_interfaceLists;
}

void World::setInterfaceLists(OrvSim::Lists lists)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_interfaceLists = lists;
}

} // namespace OrvCameraApi
