// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraApi/simulation.h>

#include "camera.h"
#include "defaultsystem.h"
#include "hostinterface.h"
#include "livecounts.h"
#include "world.h"

#include <GenApi/GenApi.h>

namespace OrvSim {

using OrvCameraApi::AddressRange;
using OrvCameraApi::Camera;
using OrvCameraApi::HostInterface;
using OrvCameraApi::ParametersAnswer;
using OrvCameraApi::World;

namespace {

World &world()
{
    return World::instance();
}

/** Runs \a action on the camera of that name, if there is one. */
template <typename Action>
bool onCamera(const std::string &name, Action &&action)
{
    const std::shared_ptr<Camera> camera = world().findDevice(name).camera;
    if (camera)
        action(*camera);
    return camera != nullptr;
}

template <typename Action>
bool onInterface(const std::string &name, Action &&action)
{
    const std::shared_ptr<HostInterface> host = world().findInterface(name);
    if (host)
        action(*host);
    return host != nullptr;
}

/** Runs \a action on the camera or interface of that name. */
template <typename Action>
bool onEither(const std::string &name, Action &&action)
{
    return onCamera(name, action) || onInterface(name, action);
}

template <typename Value>
bool setState(const std::string &deviceName, Value Camera::State::*member, Value value)
{
    return onCamera(deviceName,
                    [&](Camera &camera) { camera.state().use([&](Camera::State &state) { state.*member = value; }); });
}

template <typename Thing>
std::vector<std::string> namesOf(const std::vector<std::shared_ptr<Thing>> &things)
{
    std::vector<std::string> names;
    names.reserve(things.size());
    for (const std::shared_ptr<Thing> &thing : things)
        names.push_back(thing->spec().name);
    return names;
}

} // namespace

void reset()
{
    world().clear();
    OrvCameraApi::buildDefaultSystem(world());
}

void clear()
{
    world().clear();
}

bool addInterface(const InterfaceSpec &spec)
{
    return world().add(spec);
}

bool addDevice(const std::string &interfaceName, const DeviceSpec &spec, std::string *error)
{
    try {
        return world().add(interfaceName, spec);
    } catch (const GenICam::GenericException &failure) {
        if (error)
            *error = failure.GetDescription();
        return false;
    }
}

bool remove(const std::string &name)
{
    return world().remove(name);
}

bool unplug(const std::string &name)
{
    return world().setPluggedIn(name, false);
}

bool replug(const std::string &name)
{
    return world().setPluggedIn(name, true);
}

bool swapDevices(const std::string &first, const std::string &second)
{
    const World::Place one = world().findDevice(first);
    const World::Place other = world().findDevice(second);
    if (!one.camera || !other.camera || one.host != other.host)
        return false;
    one.host->swap(one.camera, other.camera);
    return true;
}

std::vector<std::string> interfaceNames()
{
    return namesOf(world().hosts());
}

std::vector<std::string> deviceNames(const std::string &interfaceName)
{
    const std::shared_ptr<HostInterface> host = world().findInterface(interfaceName);
    return host ? namesOf(host->cameras()) : std::vector<std::string>();
}

bool isPluggedIn(const std::string &name)
{
    bool pluggedIn = false;
    onEither(name, [&pluggedIn](const auto &thing) { pluggedIn = thing.isPluggedIn(); });
    return pluggedIn;
}

void setSystemAvailable(bool available)
{
    world().state().use([available](World::State &state) { state.isAvailable = available; });
}

void setInterfaceLists(Lists lists)
{
    world().state().use([lists](World::State &state) { state.interfaceLists = lists; });
}

bool setDeviceLists(const std::string &interfaceName, Lists lists)
{
    return onInterface(interfaceName, [lists](HostInterface &host) {
        host.state().use([lists](HostInterface::State &state) { state.deviceLists = lists; });
    });
}

bool setParameters(const std::string &name, Parameters parameters)
{
    const bool given = parameters == Parameters::Normal || parameters == Parameters::ArrayWithError;
    const bool fails = parameters == Parameters::Error || parameters == Parameters::ArrayWithError;
    const ParametersAnswer answer{given, fails ? OrvCamErr_GenICamTreeError : OrvCamErr_Ok};
    return onEither(name, [&](auto &thing) { thing.state().use([&](auto &state) { state.parameters = answer; }); });
}

bool setAccessStatus(const std::string &deviceName, std::int32_t status)
{
    return setState(deviceName, &Camera::State::accessStatus, status);
}

bool refuseToOpen(const std::string &deviceName, OrvCamErr err)
{
    return setState(deviceName, &Camera::State::openRefusal, err);
}

bool refuseForceIp(const std::string &deviceName, OrvCamErr err)
{
    return setState(deviceName, &Camera::State::forceIpRefusal, err);
}

void setEventsFromOtherThread(bool other)
{
    world().events().setEnabled(other);
}

void waitForEvents()
{
    world().events().wait();
}

void stall(Call call)
{
    world().stallPoint(call).setStalling(true);
}

void release(Call call)
{
    world().stallPoint(call).setStalling(false);
}

bool waitUntilStalled(Call call, std::chrono::milliseconds timeout)
{
    return world().stallPoint(call).waitUntilStalled(timeout);
}

bool setFault(const std::string &name, const std::string &node, Fault fault)
{
    bool found = false;
    onEither(name, [&](auto &thing) {
        if (const std::optional<AddressRange> range = thing.service().find(node)) {
            thing.monitor().add(*range, fault);
            found = true;
        }
    });
    return found;
}

bool setFault(const std::string &name, std::int64_t address, std::int64_t length, Fault fault)
{
    return onEither(name, [&](auto &thing) { thing.monitor().add({address, length}, fault); });
}

bool clearFaults(const std::string &name)
{
    return onEither(name, [](auto &thing) { thing.monitor().clear(); });
}

bool waitUntilStalled(const std::string &name, std::chrono::milliseconds timeout)
{
    bool stalled = false;
    onEither(name, [&](auto &thing) { stalled = thing.monitor().waitUntilStalled(timeout); });
    return stalled;
}

bool setRegister(const std::string &deviceName, const std::string &node, const std::string &value)
{
    bool written = false;
    onCamera(deviceName, [&](Camera &camera) {
        try {
            camera.service().set(node, value);
            written = true;
        } catch (const GenICam::GenericException &) {
            written = false;
        }
    });
    return written;
}

std::uint64_t readCount(const std::string &name)
{
    std::uint64_t count = 0;
    onEither(name, [&count](auto &thing) { count = thing.monitor().counts().reads; });
    return count;
}

std::uint64_t writeCount(const std::string &name)
{
    std::uint64_t count = 0;
    onEither(name, [&count](auto &thing) { count = thing.monitor().counts().writes; });
    return count;
}

bool resetCounts(const std::string &name)
{
    return onEither(name, [](auto &thing) { thing.monitor().resetCounts(); });
}

LiveObjects liveObjects()
{
    const OrvCameraApi::LiveCounts &counts = OrvCameraApi::liveCounts();
    LiveObjects live;
    live.systemReferences = counts.systemReferences;
    live.lists = counts.lists;
    live.devices = counts.devices;
    live.eventCallbacks = counts.eventCallbacks;
    live.sinks = counts.sinks;
    live.nodeCallbacks = counts.nodeCallbacks;
    return live;
}

} // namespace OrvSim
