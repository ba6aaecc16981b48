// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <memory>
#include <mutex>
#include <set>
#include <string>

namespace OrvCameraApi {

/** The application's view of a device that is not open. Belongs to its interface. */
class DeviceInfo final : public OrvCam::DeviceInfo
{
public:
    DeviceInfo(OrvCam::Interface &interface, std::shared_ptr<BackendDevice> source);
    ~DeviceInfo() override;

    BackendDevice &source() const { return *m_source; }

    OrvCam::Interface *GetInterface() override;
    const char *GetID() override;
    const char *GetVendor() override;
    const char *GetModel() override;
    const char *GetDisplayName() override;
    const char *GetUserDefinedName() override;
    const char *GetSerialNumber() override;
    const char *GetVersion() override;
    std::int32_t GetAccessStatus() override;
    const char *GetIPAddress(OrvCamErr *err) override;
    const char *GetSubnetMask(OrvCamErr *err) override;
    const char *GetGateway(OrvCamErr *err) override;
    OrvCamErr ForceIP(std::uint32_t address, std::uint32_t subnetMask, std::uint32_t gateway) override;

private:
    const char *dottedText(std::uint32_t IpConfiguration::*part, OrvCamErr *err);

    OrvCam::Interface &m_interface;
    const std::shared_ptr<BackendDevice> m_source;
    std::mutex m_mutex;
    std::set<std::string> m_dottedTexts; ///< every answer so far; callers hold pointers to them
};

} // namespace OrvCameraApi
