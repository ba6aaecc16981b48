// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camera.h"

#include "monitoredport.h"
#include "powerup.h"
#include "simulatedframes.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

/** One application's connection to the camera. */
class Camera::OpenCamera final : public Connection
{
public:
    OpenCamera(std::shared_ptr<Camera> camera, bool isReadOnly)
        : m_camera(std::move(camera))
        , m_port(m_camera->m_monitor, m_camera->m_registers, isReadOnly)
    {
    }

    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override
    {
        return connectedNodeMap(m_camera->m_spec.description, m_port);
    }

    bool isConnected() const override { return m_camera->isPluggedIn(); }

    ParametersAnswer parametersAnswer() const override
    {
        return isConnected() ? m_camera->m_state.copy().parameters : Connection::parametersAnswer();
    }

    void setListener(std::weak_ptr<ConnectionListener> listener) override
    {
        m_camera->addListener(std::move(listener));
    }

    bool givesFrames() const override { return true; }
    std::unique_ptr<FrameSource> openFrames(const std::function<bool()> & /*isWanted*/) override
    {
        return std::make_unique<SimulatedFrames>(m_camera->m_isReceiving);
    }

private:
    const std::shared_ptr<Camera> m_camera;
    MonitoredPort m_port;
};

namespace {

DeviceTexts textsOf(const OrvSim::DeviceSpec &spec)
{
    return {spec.id, spec.vendor, spec.model, spec.displayName, spec.userDefinedName, spec.serialNumber, spec.version};
}

Camera::State initialState(const OrvSim::DeviceSpec &spec)
{
    Camera::State state;
    state.accessStatus = spec.accessStatus;
    state.network = spec.network;
    return state;
}

bool isReachable(const OrvSim::Network &camera, const OrvSim::Network &interface)
{
    return camera.mask == interface.mask && camera.address != interface.address
        && (camera.address & camera.mask) == (interface.address & interface.mask);
}

} // namespace

Camera::Camera(OrvSim::DeviceSpec spec, const OrvSim::InterfaceSpec &interface, StallPoint &forceIpStall)
    : m_spec(std::move(spec))
    , m_texts(textsOf(m_spec))
    , m_interfaceType(interface.type)
    , m_interfaceNetwork(interface.network)
    , m_forceIpStall(forceIpStall)
    , m_service(m_spec.description, m_registers)
    , m_state(initialState(m_spec))
{
    powerUp(m_spec.powerUp, m_service, m_registers, m_monitor);
    writeIdentityRegisters();
    writeNetworkRegisters(m_spec.network);
}

Camera::~Camera() = default;

OrvCamErr Camera::networkError() const
{
    if (m_interfaceType != OrvCam::InterfaceTypeGigEVision)
        return OrvCamErr_InvalidState;
    return isPluggedIn() ? OrvCamErr_Ok : OrvCamErr_NoDevice;
}

OrvCamErr Camera::readIpConfiguration(IpConfiguration &configuration) const
{
    const OrvSim::Network network = m_state.copy().network;
    configuration = {network.address, network.mask, network.gateway};
    return networkError();
}

OrvCamErr Camera::forceIp(const IpConfiguration &configuration)
{
    m_forceIpStall.pass();
    if (const OrvCamErr err = networkError())
        return err;
    if (const OrvCamErr err = m_state.copy().forceIpRefusal)
        return err;
    const OrvSim::Network network{configuration.address, configuration.mask, configuration.gateway};
    writeNetworkRegisters(network);
    m_state.use([&](State &state) {
        state.network = network;
        if (!isReachable(network, m_interfaceNetwork))
            state.accessStatus = OrvCam::AccessStatusIpSubnetMismatch;
        else if (state.accessStatus == OrvCam::AccessStatusIpSubnetMismatch)
            state.accessStatus = OrvCam::AccessStatusReadWrite;
    });
    return OrvCamErr_Ok;
}

OrvCamErr Camera::openingError() const
{
    const State state = m_state.copy();
    if (!isPluggedIn() || state.accessStatus == OrvCam::AccessStatusIpSubnetMismatch)
        return OrvCamErr_NoDevice;
    return state.accessStatus == OrvCam::AccessStatusNoAccess ? OrvCamErr_InvalidState : state.openRefusal;
}

std::unique_ptr<Connection> Camera::open(std::int32_t, OrvCamErr &err)
{
    // Several programs can control a simulated camera at once; the access mode makes no difference.
    err = openingError();
    if (err != OrvCamErr_Ok)
        return nullptr;
    return std::make_unique<OpenCamera>(shared_from_this(), accessStatus() == OrvCam::AccessStatusReadOnly);
}

void Camera::writeIdentityRegisters()
{
    const std::pair<const char *, const Text &> texts[] = {
        {"DeviceVendorName", m_spec.vendor},         {"DeviceModelName", m_spec.model},
        {"DeviceSerialNumber", m_spec.serialNumber}, {"DeviceVersion", m_spec.version},
        {"DeviceUserID", m_spec.userDefinedName},
    };
    for (const auto &[feature, text] : texts) {
        if (text)
            m_service.setIfThere(feature, *text);
    }
}

void Camera::writeNetworkRegisters(const OrvSim::Network &network)
{
    m_service.setIfThere("GevMACAddress", std::to_string(m_spec.macAddress));
    m_service.setIfThere("GevCurrentIPAddress", std::to_string(network.address));
    m_service.setIfThere("GevCurrentSubnetMask", std::to_string(network.mask));
    m_service.setIfThere("GevCurrentDefaultGateway", std::to_string(network.gateway));
}

void Camera::addListener(std::weak_ptr<ConnectionListener> listener)
{
    m_state.use([&listener](State &state) {
        const auto isExpired = [](const std::weak_ptr<ConnectionListener> &other) { return other.expired(); };
        auto &all = state.listeners;
        all.erase(std::remove_if(all.begin(), all.end(), isExpired), all.end());
        all.push_back(std::move(listener));
    });
}

std::vector<std::shared_ptr<ConnectionListener>> Camera::listeners() const
{
    std::vector<std::shared_ptr<ConnectionListener>> listeners;
    for (const std::weak_ptr<ConnectionListener> &weak : m_state.copy().listeners) {
        if (std::shared_ptr<ConnectionListener> listener = weak.lock())
            listeners.push_back(std::move(listener));
    }
    return listeners;
}

} // namespace OrvCameraApi
