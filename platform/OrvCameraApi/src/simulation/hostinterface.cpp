// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "hostinterface.h"

#include "camera.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

namespace {

DeviceNumbers numbersOf(Camera &camera)
{
    const Camera::State state = camera.state().copy();
    const IpConfiguration ip{state.network.address, state.network.mask, state.network.gateway};
    return {camera.spec().macAddress, ip, camera.spec().usbVersion, state.accessStatus};
}

} // namespace

HostInterface::HostInterface(OrvSim::InterfaceSpec spec, StallPoint &enumerationStall)
    : m_spec(std::move(spec))
    , m_texts{m_spec.id, m_spec.description, m_spec.version}
    , m_enumerationStall(enumerationStall)
    , m_description(interfaceDescription(m_spec.type))
    , m_registers({m_spec.macAddress, {m_spec.network.address, m_spec.network.mask, m_spec.network.gateway}},
                  [this] { return numbersOfDevices(); })
    , m_port(m_monitor, m_registers)
    , m_service(m_description, m_registers)
{
}

std::vector<DeviceNumbers> HostInterface::numbersOfDevices() const
{
    std::vector<DeviceNumbers> numbers;
    for (const std::shared_ptr<Camera> &camera : camerasPluggedIn())
        numbers.push_back(numbersOf(*camera));
    return numbers;
}

std::shared_ptr<GenApi::INodeMap> HostInterface::makeNodeMap()
{
    return connectedNodeMap(m_description, m_port);
}

ParametersAnswer HostInterface::parametersAnswer() const
{
    return isConnected() ? m_state.copy().parameters : BackendInterface::parametersAnswer();
}

std::optional<BackendInterface::Devices> HostInterface::devices() const
{
    const OrvSim::Lists lists = m_state.copy().deviceLists;
    if (lists == OrvSim::Lists::Null || !isPluggedIn())
        return std::nullopt;
    if (lists == OrvSim::Lists::Empty)
        return Devices();
    const Cameras present = camerasPluggedIn();
    return Devices(present.begin(), present.end());
}

OrvCamErr HostInterface::reEnumerate(bool &changed, std::uint32_t)
{
    m_enumerationStall.pass();
    Cameras seen = camerasPluggedIn();
    changed = m_state.use([&seen](State &state) {
        state.lastSeen.swap(seen);
        return state.lastSeen != seen;
    });
    return isPluggedIn() ? OrvCamErr_Ok : OrvCamErr_NoDevice;
}

HostInterface::Cameras HostInterface::camerasPluggedIn() const
{
    Cameras present = cameras();
    const auto isAbsent = [](const std::shared_ptr<Camera> &camera) { return !camera->isPluggedIn(); };
    present.erase(std::remove_if(present.begin(), present.end(), isAbsent), present.end());
    return present;
}

void HostInterface::add(std::shared_ptr<Camera> camera)
{
    m_state.use([&camera](State &state) { state.cameras.push_back(std::move(camera)); });
}

void HostInterface::remove(const std::shared_ptr<Camera> &camera)
{
    m_state.use([&camera](State &state) {
        state.cameras.erase(std::remove(state.cameras.begin(), state.cameras.end(), camera), state.cameras.end());
    });
}

void HostInterface::swap(const std::shared_ptr<Camera> &first, const std::shared_ptr<Camera> &second)
{
    m_state.use([&](State &state) {
        const auto one = std::find(state.cameras.begin(), state.cameras.end(), first);
        const auto other = std::find(state.cameras.begin(), state.cameras.end(), second);
        if (one != state.cameras.end() && other != state.cameras.end())
            std::iter_swap(one, other);
    });
}

} // namespace OrvCameraApi
