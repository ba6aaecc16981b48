// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Locks are short and never nested: an object copies its state out, then works on the copy. Cameras and interfaces live
// on in such copies, so that removing one never waits for anyone. Applications are called without a lock of the
// simulation.
#include "world.h"

#include "camera.h"
#include "defaultsystem.h"
#include "hostinterface.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

namespace {

auto isNamed(const std::string &name)
{
    return [&name](const std::shared_ptr<HostInterface> &host) { return host->spec().name == name; };
}

} // namespace

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

std::optional<Backend::Interfaces> World::interfaces() const
{
    const State state = m_state.copy();
    Interfaces present;
    for (const std::shared_ptr<HostInterface> &host : state.hosts) {
        if (host->isPluggedIn())
            present.push_back(host);
    }
    switch (state.interfaceLists) {
    case OrvSim::Lists::Null:
        return std::nullopt;
    case OrvSim::Lists::Empty:
        return Interfaces();
    default:
        return present.empty() ? std::nullopt : std::make_optional(present);
    }
}

std::shared_ptr<HostInterface> World::findInterface(const std::string &name) const
{
    const Hosts all = hosts();
    const auto found = std::find_if(all.begin(), all.end(), isNamed(name));
    return found == all.end() ? nullptr : *found;
}

World::Place World::findDevice(const std::string &name) const
{
    for (const std::shared_ptr<HostInterface> &host : hosts()) {
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
    auto host = std::make_shared<HostInterface>(spec, m_enumerationStall);
    m_state.use([&host](State &state) { state.hosts.push_back(std::move(host)); });
    return true;
}

bool World::add(const std::string &interfaceName, const OrvSim::DeviceSpec &spec)
{
    const std::shared_ptr<HostInterface> host = findInterface(interfaceName);
    if (!host || isNameRefused(spec.name))
        return false;
    auto camera = std::make_shared<Camera>(spec, host->spec(), m_forceIpStall);
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
    m_state.use([&name](State &state) {
        state.hosts.erase(std::remove_if(state.hosts.begin(), state.hosts.end(), isNamed(name)), state.hosts.end());
    });
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
    const std::vector<std::shared_ptr<ConnectionListener>> listeners = camera.listeners();
    if (pluggedIn && !camera.isPluggedIn()) {
        for (const std::shared_ptr<ConnectionListener> &listener : listeners)
            listener->prepareReturn();
    }
    if (!camera.setPluggedIn(pluggedIn))
        return;
    const std::uint32_t eventId = pluggedIn ? OrvCam::EventDeviceConnected : OrvCam::EventDeviceDisconnected;
    for (const std::shared_ptr<ConnectionListener> &listener : listeners)
        m_events.post([listener, eventId] { listener->raise(eventId); });
}

void World::clear()
{
    const State gone = m_state.use([](State &state) { return std::exchange(state, {}); });
    m_enumerationStall.setStalling(false);
    m_forceIpStall.setStalling(false);
    for (const std::shared_ptr<HostInterface> &host : gone.hosts) {
        host->setPluggedIn(false);
        for (const std::shared_ptr<Camera> &camera : host->cameras())
            camera->setPluggedIn(false);
    }
    m_events.setEnabled(false);
}

StallPoint &World::stallPoint(OrvSim::Call call)
{
    return call == OrvSim::Call::ForceIp ? m_forceIpStall : m_enumerationStall;
}

} // namespace OrvCameraApi
