// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "interfaceport.h"
#include "remotecamera.h"
#include "usbdiscovery.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace OrvCameraApi {

/** The USB ports of this host with the USB3 Vision cameras that its discovery has found. */
class UsbInterface final : public BackendInterface
{
public:
    /** Opens the camera with that identifier. Throws LinkError. */
    using OpenLink = std::function<std::unique_ptr<CameraLink>(const std::string &id, const IsWanted &isWanted)>;

    struct Options
    {
        UsbDiscovery::List list;
        OpenLink open;
        RemoteCamera::Patience patience;
        std::chrono::milliseconds period{1000};
    };

    explicit UsbInterface(Options options);

    const InterfaceTexts &texts() const override { return m_texts; }
    std::int32_t type() const override { return OrvCam::InterfaceTypeUsb3Vision; }
    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override;
    bool isConnected() const override { return true; }
    std::optional<Devices> devices() const override;

    /** Does not wait: devices that are found later are in later lists. */
    OrvCamErr reEnumerate(bool &changed, std::uint32_t timeout) override;

    /** Why a camera may be missing and what can be done, for people; or empty. */
    std::string problem() const { return m_discovery.found().problem; }

    /** From now on nobody looks for cameras. */
    void retire() { m_discovery.retire(); }

private:
    class Device;

    const InterfaceTexts m_texts;
    const Options m_options;
    UsbDiscovery m_discovery;
    InterfacePort m_port;

    mutable std::mutex m_mutex;
    mutable std::map<std::string, std::weak_ptr<Device>> m_devices; ///< by identifier
    Devices m_lastSeen; ///< in the last enumeration
};

} // namespace OrvCameraApi
