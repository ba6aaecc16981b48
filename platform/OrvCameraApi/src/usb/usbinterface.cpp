// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "usbinterface.h"

#include "remoteconnection.h"

#include <OrvGenApi/nodemap.h>

#include <utility>

namespace OrvCameraApi {

namespace {

DeviceTexts textsOf(const UsbCamera &camera)
{
    DeviceTexts texts;
    texts.id = camera.id;
    texts.vendor = camera.vendor;
    texts.model = camera.model;
    texts.displayName = camera.model + " (" + camera.serialNumber + ')';
    texts.userDefinedName = "";
    texts.serialNumber = camera.serialNumber;
    texts.version = "";
    return texts;
}

} // namespace

/** A camera has one link, however many applications of this process open it. */
class UsbInterface::Device final : public BackendDevice
{
public:
    Device(const UsbCamera &camera, const Options &options)
        : m_texts(textsOf(camera))
        , m_options(options)
    {
    }

    const DeviceTexts &texts() const override { return m_texts; }

    /** Another program's hold is met upon opening only. */
    std::int32_t accessStatus() const override { return OrvCam::AccessStatusReadWrite; }
    OrvCamErr readIpConfiguration(IpConfiguration &) const override { return OrvCamErr_InvalidState; }
    OrvCamErr forceIp(const IpConfiguration &) override { return OrvCamErr_InvalidState; }

    std::unique_ptr<Connection> open(std::int32_t, OrvCamErr &err) override
    {
        err = OrvCamErr_Ok;
        std::shared_ptr<OpenRemoteCamera> open = OpenRemoteCameras::open(
            "USB3 Vision " + *m_texts.id,
            [id = *m_texts.id, link = m_options.open](const IsWanted &isWanted, const IsFetching &) {
                return link(id, isWanted);
            },
            m_options.patience);
        return std::make_unique<RemoteConnection>(std::move(open));
    }

private:
    const DeviceTexts m_texts;
    const Options m_options;
};

UsbInterface::UsbInterface(Options options)
    : m_texts{"USB3", "USB ports", "1.0.0"}
    , m_options(std::move(options))
    , m_discovery(m_options.list, m_options.period)
    , m_port({}, [this] { return std::vector<DeviceNumbers>(devices()->size()); })
{
}

std::shared_ptr<GenApi::INodeMap> UsbInterface::makeNodeMap()
{
    std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(interfaceDescription(type()));
    map->connect(&m_port);
    return map;
}

std::optional<BackendInterface::Devices> UsbInterface::devices() const
{
    Devices devices;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const UsbCamera &camera : m_discovery.found().cameras) {
        std::weak_ptr<Device> &weak = m_devices[camera.id];
        std::shared_ptr<Device> device = weak.lock();
        if (!device) {
            device = std::make_shared<Device>(camera, m_options);
            weak = device;
        }
        devices.push_back(std::move(device));
    }
    return devices;
}

OrvCamErr UsbInterface::reEnumerate(bool &changed, std::uint32_t)
{
    m_discovery.lookNow();
    Devices seen = *devices();
    const std::lock_guard<std::mutex> lock(m_mutex);
    changed = seen != m_lastSeen;
    m_lastSeen = std::move(seen);
    return OrvCamErr_Ok;
}

} // namespace OrvCameraApi
