#include "camera.h"

#include "devicesession.h"
#include "powerup.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

/** The simulation's own way to the registers, past faults and counts. */
class Camera::RawPort final : public GenApi::IPort
{
public:
    explicit RawPort(RegisterFile &registers)
        : m_registers(registers)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_registers.read(buffer, {address, length});
    }
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_registers.write(buffer, {address, length});
    }

private:
    RegisterFile &m_registers;
};

namespace {

bool isReachable(const OrvSim::Network &camera, const OrvSim::Network &adapter)
{
    return camera.mask == adapter.mask && camera.address != adapter.address
        && (camera.address & camera.mask) == (adapter.address & adapter.mask);
}

} // namespace

Camera::Camera(OrvSim::DeviceSpec spec)
    : m_spec(std::move(spec))
    , m_rawPort(std::make_unique<RawPort>(m_registers))
    , m_service(m_spec.description, *m_rawPort)
    , m_accessStatus(m_spec.accessStatus)
    , m_network(m_spec.network)
{
    powerUp(m_spec.powerUp, m_service, m_registers, m_monitor);
    engraveIdentity();
    engraveNetwork(m_network);
}

Camera::~Camera() = default;

void Camera::engraveIdentity()
{
    const std::pair<const char *, const OrvSim::Text &> texts[] = {
        {"DeviceVendorName", m_spec.vendor},         {"DeviceModelName", m_spec.model},
        {"DeviceSerialNumber", m_spec.serialNumber}, {"DeviceVersion", m_spec.version},
        {"DeviceUserID", m_spec.userDefinedName},
    };
    for (const auto &[feature, text] : texts) {
        if (text)
            m_service.setIfThere(feature, *text);
    }
}

void Camera::engraveNetwork(const OrvSim::Network &network)
{
    m_service.setIfThere("GevMACAddress", std::to_string(m_spec.macAddress));
    m_service.setIfThere("GevCurrentIPAddress", std::to_string(network.address));
    m_service.setIfThere("GevCurrentSubnetMask", std::to_string(network.mask));
    m_service.setIfThere("GevCurrentDefaultGateway", std::to_string(network.gateway));
}

std::int32_t Camera::accessStatus() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_accessStatus;
}

void Camera::setAccessStatus(std::int32_t status)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_accessStatus = status;
}

OrvSim::Network Camera::network() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_network;
}

void Camera::setNetwork(const OrvSim::Network &network, const OrvSim::Network &adapter)
{
    engraveNetwork(network);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_network = network;
    if (!isReachable(network, adapter))
        m_accessStatus = OrvCam::AccessStatusIpSubnetMismatch;
    else if (m_accessStatus == OrvCam::AccessStatusIpSubnetMismatch)
        m_accessStatus = OrvCam::AccessStatusReadWrite;
}

OrvSim::Parameters Camera::parameters() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_parameters;
}

void Camera::setParameters(OrvSim::Parameters parameters)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_parameters = parameters;
}

OrvCamErr Camera::openRefusal() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_openRefusal;
}

void Camera::refuseToOpen(OrvCamErr err)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_openRefusal = err;
}

OrvCamErr Camera::forceIpRefusal() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_forceIpRefusal;
}

void Camera::refuseForceIp(OrvCamErr err)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_forceIpRefusal = err;
}

void Camera::read(void *buffer, const AddressRange &range)
{
    m_monitor.beforeRead(range);
    m_registers.read(buffer, range);
}

void Camera::write(const void *buffer, const AddressRange &range)
{
    m_monitor.beforeWrite(range);
    m_registers.write(buffer, range);
}

void Camera::addSession(const std::shared_ptr<DeviceSession> &session)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto ended = [](const std::weak_ptr<DeviceSession> &other) { return other.expired(); };
    m_sessions.erase(std::remove_if(m_sessions.begin(), m_sessions.end(), ended), m_sessions.end());
    m_sessions.push_back(session);
}

std::vector<std::shared_ptr<DeviceSession>> Camera::sessions() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::shared_ptr<DeviceSession>> sessions;
    for (const std::weak_ptr<DeviceSession> &weak : m_sessions) {
        if (std::shared_ptr<DeviceSession> session = weak.lock())
            sessions.push_back(std::move(session));
    }
    return sessions;
}

} // namespace OrvCameraApi
