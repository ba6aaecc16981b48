// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "gigediscovery.h"
#include "interfaceport.h"
#include "remotecamera.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

class GigeDevice;

/** A network adapter with the GigE Vision devices that its discovery has found. */
class GigeInterface final : public BackendInterface
{
public:
    /** Opens the device that answers there through the adapter of that address. Throws LinkError. */
    using OpenLink = std::function<std::unique_ptr<CameraLink>(std::uint32_t adapter, const Endpoint &device,
                                                               const IsWanted &isWanted, const IsFetching &isFetching)>;

    struct Options
    {
        GigeDiscovery::Options discovery;
        RemoteCamera::Patience patience;
        OpenLink open;
    };

    /** \a id tells it from the other interfaces. */
    GigeInterface(const std::string &id, const NetAdapter &adapter, const Options &options);
    ~GigeInterface() override;

    const InterfaceTexts &texts() const override { return m_texts; }
    std::int32_t type() const override { return OrvCam::InterfaceTypeGigEVision; }
    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override;
    bool isConnected() const override { return true; }
    std::optional<Devices> devices() const override;

    /** Does not wait: devices that are found later are in later lists. */
    OrvCamErr reEnumerate(bool &changed, std::uint32_t timeout) override;

    /** For each device that another program controls, a text for people with the address of that program. */
    std::vector<std::string> takenDevices() const;

    /** Whose devices these are. It may outlive this object. */
    std::shared_ptr<GigeDiscovery> discovery() const { return m_discovery; }

private:
    using Known = std::vector<std::shared_ptr<GigeDevice>>;

    std::vector<DeviceNumbers> numbersOfDevices() const;
    Known known() const;

    const InterfaceTexts m_texts;
    const Options m_options;
    const std::shared_ptr<GigeDiscovery> m_discovery; ///< shared with devices, which outlive this object
    InterfacePort m_port;

    mutable std::mutex m_mutex;
    mutable std::map<std::uint64_t, std::weak_ptr<GigeDevice>> m_devices; ///< by MAC address
    mutable int m_made = 0; ///< devices, so far
    Devices m_lastSeen; ///< in the last enumeration
};

} // namespace OrvCameraApi
