#include "simdeviceinfo.h"

#include "answers.h"
#include "camera.h"
#include "hostinterface.h"
#include "siminterface.h"
#include "world.h"

#include <utility>

namespace OrvCameraApi {

namespace {

std::string dotted(std::uint32_t address)
{
    std::string text = std::to_string(address >> 24);
    for (const unsigned shift : {16U, 8U, 0U})
        text += '.' + std::to_string(address >> shift & 0xFF);
    return text;
}

} // namespace

SimDeviceInfo::SimDeviceInfo(SimInterface &interface, std::shared_ptr<Camera> camera)
    : m_interface(interface)
    , m_camera(std::move(camera))
{
}

SimDeviceInfo::~SimDeviceInfo() = default;

OrvCam::Interface *SimDeviceInfo::GetInterface()
{
    return &m_interface;
}

const char *SimDeviceInfo::GetID()
{
    return textOf(m_camera->spec().id);
}

const char *SimDeviceInfo::GetVendor()
{
    return textOf(m_camera->spec().vendor);
}

const char *SimDeviceInfo::GetModel()
{
    return textOf(m_camera->spec().model);
}

const char *SimDeviceInfo::GetDisplayName()
{
    return textOf(m_camera->spec().displayName);
}

const char *SimDeviceInfo::GetUserDefinedName()
{
    return textOf(m_camera->spec().userDefinedName);
}

const char *SimDeviceInfo::GetSerialNumber()
{
    return textOf(m_camera->spec().serialNumber);
}

const char *SimDeviceInfo::GetVersion()
{
    return textOf(m_camera->spec().version);
}

std::int32_t SimDeviceInfo::GetAccessStatus()
{
    return m_camera->accessStatus();
}

const char *SimDeviceInfo::GetIPAddress(OrvCamErr *err)
{
    return addressText(m_camera->network().address, err);
}

const char *SimDeviceInfo::GetSubnetMask(OrvCamErr *err)
{
    return addressText(m_camera->network().mask, err);
}

const char *SimDeviceInfo::GetGateway(OrvCamErr *err)
{
    return addressText(m_camera->network().gateway, err);
}

OrvCamErr SimDeviceInfo::ForceIP(std::uint32_t address, std::uint32_t subnetMask, std::uint32_t gateway)
{
    World::instance().gate(OrvSim::Call::ForceIp).pass();
    if (const OrvCamErr err = networkState())
        return err;
    if (const OrvCamErr err = m_camera->forceIpRefusal())
        return err;
    m_camera->setNetwork({address, subnetMask, gateway}, m_interface.host().spec().network);
    return OrvCamErr_Ok;
}

OrvCamErr SimDeviceInfo::networkState() const
{
    if (m_interface.host().spec().type != OrvCam::InterfaceTypeGigEVision)
        return OrvCamErr_InvalidState;
    return m_camera->isPluggedIn() ? OrvCamErr_Ok : OrvCamErr_NoDevice;
}

const char *SimDeviceInfo::addressText(std::uint32_t address, OrvCamErr *err)
{
    const OrvCamErr state = networkState();
    tell(err, state);
    if (state != OrvCamErr_Ok)
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_addressTexts.insert(dotted(address)).first->c_str();
}

} // namespace OrvCameraApi
