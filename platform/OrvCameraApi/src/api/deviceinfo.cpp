// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "deviceinfo.h"

#include "genapierror.h"

#include <utility>

namespace OrvCameraApi {

DeviceInfo::DeviceInfo(OrvCam::Interface &interface, std::shared_ptr<BackendDevice> source)
    : m_interface(interface)
    , m_source(std::move(source))
{
}

DeviceInfo::~DeviceInfo() = default;

OrvCam::Interface *DeviceInfo::GetInterface()
{
    return &m_interface;
}

const char *DeviceInfo::GetID()
{
    return textOf(m_source->texts().id);
}

const char *DeviceInfo::GetVendor()
{
    return textOf(m_source->texts().vendor);
}

const char *DeviceInfo::GetModel()
{
    return textOf(m_source->texts().model);
}

const char *DeviceInfo::GetDisplayName()
{
    return textOf(m_source->texts().displayName);
}

const char *DeviceInfo::GetUserDefinedName()
{
    return textOf(m_source->texts().userDefinedName);
}

const char *DeviceInfo::GetSerialNumber()
{
    return textOf(m_source->texts().serialNumber);
}

const char *DeviceInfo::GetVersion()
{
    return textOf(m_source->texts().version);
}

std::int32_t DeviceInfo::GetAccessStatus()
{
    return m_source->accessStatus();
}

const char *DeviceInfo::GetIPAddress(OrvCamErr *err)
{
    return dottedText(&IpConfiguration::address, err);
}

const char *DeviceInfo::GetSubnetMask(OrvCamErr *err)
{
    return dottedText(&IpConfiguration::mask, err);
}

const char *DeviceInfo::GetGateway(OrvCamErr *err)
{
    return dottedText(&IpConfiguration::gateway, err);
}

OrvCamErr DeviceInfo::ForceIP(std::uint32_t address, std::uint32_t subnetMask, std::uint32_t gateway)
{
    return m_source->forceIp({address, subnetMask, gateway});
}

const char *DeviceInfo::dottedText(std::uint32_t IpConfiguration::*part, OrvCamErr *err)
{
    IpConfiguration configuration;
    const OrvCamErr outcome = m_source->readIpConfiguration(configuration);
    setError(err, outcome);
    if (outcome != OrvCamErr_Ok)
        return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_dottedTexts.insert(dotted(configuration.*part)).first->c_str();
}

} // namespace OrvCameraApi
