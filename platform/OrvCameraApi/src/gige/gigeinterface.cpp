// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigeinterface.h"

#include "remoteconnection.h"

#include <OrvGenApi/nodemap.h>

#include <cstdio>
#include <tuple>
#include <utility>

namespace OrvCameraApi {

namespace {

std::string textOfMac(std::uint64_t mac)
{
    char text[18];
    std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", unsigned(mac >> 40 & 0xFF),
                  unsigned(mac >> 32 & 0xFF), unsigned(mac >> 24 & 0xFF), unsigned(mac >> 16 & 0xFF),
                  unsigned(mac >> 8 & 0xFF), unsigned(mac & 0xFF));
    return text;
}

DeviceTexts textsOf(const Gvcp::DeviceRecord &record)
{
    DeviceTexts texts;
    texts.id = textOfMac(record.mac);
    texts.vendor = record.manufacturer;
    texts.model = record.model;
    texts.displayName = record.model + " (" + (record.serialNumber.empty() ? *texts.id : record.serialNumber) + ')';
    texts.userDefinedName = record.userDefinedName;
    texts.serialNumber = record.serialNumber;
    texts.version = record.version;
    return texts;
}

bool operator==(const DeviceTexts &left, const DeviceTexts &right)
{
    const auto all = [](const DeviceTexts &texts) {
        return std::tie(texts.id, texts.vendor, texts.model, texts.userDefinedName, texts.serialNumber, texts.version);
    };
    return all(left) == all(right);
}

/** Of the link to a camera in this process. */
std::string keyOf(std::uint64_t mac)
{
    return "GigE Vision " + textOfMac(mac);
}

/** Discovery cannot tell this process from others that control the camera. */
std::int32_t accessStatusOf(std::uint64_t mac, const std::optional<FoundDevice> &found)
{
    if (const std::shared_ptr<OpenRemoteCamera> open = OpenRemoteCameras::find(keyOf(mac))) {
        if (open->camera().GetAccessMode() == GenApi::RW)
            return OrvCam::AccessStatusReadWrite;
    }
    return found ? found->accessStatus : std::int32_t(OrvCam::AccessStatusNoAccess);
}

} // namespace

/** A camera that discovery has found. It has one link, however many applications of this process open it. */
class GigeDevice final : public BackendDevice
{
public:
    GigeDevice(const Gvcp::DeviceRecord &record, std::shared_ptr<GigeDiscovery> discovery,
               const GigeInterface::Options &options)
        : m_mac(record.mac)
        , m_texts(textsOf(record))
        , m_discovery(std::move(discovery))
        , m_options(options)
    {
    }

    std::uint64_t mac() const { return m_mac; }
    const DeviceTexts &texts() const override { return m_texts; }
    std::int32_t accessStatus() const override;
    OrvCamErr readIpConfiguration(IpConfiguration &configuration) const override;
    OrvCamErr forceIp(const IpConfiguration &configuration) override
    {
        return m_discovery->forceIp(m_mac, configuration);
    }
    std::unique_ptr<Connection> open(std::int32_t accessMode, OrvCamErr &err) override;

private:
    const std::uint64_t m_mac;
    const DeviceTexts m_texts;
    const std::shared_ptr<GigeDiscovery> m_discovery;
    const GigeInterface::Options m_options;
};

std::int32_t GigeDevice::accessStatus() const
{
    return accessStatusOf(m_mac, m_discovery->find(m_mac));
}

OrvCamErr GigeDevice::readIpConfiguration(IpConfiguration &configuration) const
{
    const std::optional<FoundDevice> found = m_discovery->find(m_mac);
    if (!found)
        return OrvCamErr_NoDevice;
    configuration = found->record.ip;
    return OrvCamErr_Ok;
}

/** The address is looked up again at each attempt: a camera may come back with another one. */
std::unique_ptr<Connection> GigeDevice::open(std::int32_t, OrvCamErr &err)
{
    const std::int32_t status = accessStatus();
    const bool isThere = m_discovery->find(m_mac).has_value();
    err = OrvCamErr_Ok;
    if (!isThere || status == OrvCam::AccessStatusIpSubnetMismatch)
        err = OrvCamErr_NoDevice;
    else if (status == OrvCam::AccessStatusNoAccess)
        err = OrvCamErr_InvalidState;
    if (err != OrvCamErr_Ok)
        return nullptr;
    const auto openLink = [mac = m_mac, discovery = m_discovery, link = m_options.open](const IsWanted &isWanted,
                                                                                        const IsFetching &isFetching) {
        const std::optional<FoundDevice> found = discovery->find(mac);
        if (!found)
            throw LinkError(LinkError::Kind::Silent, "The camera is not on the network");
        return link(discovery->adapter().address, found->endpoint, isWanted, isFetching);
    };
    return std::make_unique<RemoteConnection>(OpenRemoteCameras::open(keyOf(m_mac), openLink, m_options.patience));
}

GigeInterface::GigeInterface(const std::string &id, const NetAdapter &adapter, const Options &options)
    : m_texts{id, "Network adapter " + adapter.name + " (" + dotted(adapter.address) + ')', "1.0.0"}
    , m_options(options)
    , m_discovery(std::make_shared<GigeDiscovery>(adapter, options.discovery))
    , m_port({adapter.mac, {adapter.address, adapter.mask, 0}}, [this] { return numbersOfDevices(); })
{
}

GigeInterface::~GigeInterface()
{
    m_discovery->retire(); // open cameras may keep it
}

std::shared_ptr<GenApi::INodeMap> GigeInterface::makeNodeMap()
{
    std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(interfaceDescription(type()));
    map->connect(&m_port);
    return map;
}

/** The devices now. One whose texts have changed is another object, because texts never change. */
GigeInterface::Known GigeInterface::known() const
{
    constexpr int most = 4096; // applications keep every device that they were given: nobody may invent more and more
    Known devices;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (auto device = m_devices.begin(); device != m_devices.end();)
        device = device->second.expired() ? m_devices.erase(device) : std::next(device);
    for (const FoundDevice &found : m_discovery->devices()) {
        const auto former = m_devices.find(found.record.mac);
        std::shared_ptr<GigeDevice> device = former != m_devices.end() ? former->second.lock() : nullptr;
        const bool isOther = !device || !(device->texts() == textsOf(found.record));
        if (isOther && m_made < most) {
            ++m_made;
            device = std::make_shared<GigeDevice>(found.record, m_discovery, m_options);
            m_devices[found.record.mac] = device;
        }
        if (device)
            devices.push_back(std::move(device));
    }
    return devices;
}

std::optional<BackendInterface::Devices> GigeInterface::devices() const
{
    const Known devices = known();
    return Devices(devices.begin(), devices.end());
}

OrvCamErr GigeInterface::reEnumerate(bool &changed, std::uint32_t)
{
    m_discovery->lookNow();
    Devices seen = *devices();
    const std::lock_guard<std::mutex> lock(m_mutex);
    changed = seen != m_lastSeen;
    m_lastSeen = std::move(seen);
    return OrvCamErr_Ok;
}

/** Without making devices: applications that look at an interface's features have asked for none. */
std::vector<DeviceNumbers> GigeInterface::numbersOfDevices() const
{
    std::vector<DeviceNumbers> numbers;
    for (const FoundDevice &found : m_discovery->devices()) {
        DeviceNumbers of;
        of.mac = found.record.mac;
        of.ip = found.record.ip;
        of.accessStatus = accessStatusOf(found.record.mac, found);
        numbers.push_back(of);
    }
    return numbers;
}

std::vector<std::string> GigeInterface::takenDevices() const
{
    std::vector<std::string> texts;
    for (const FoundDevice &found : m_discovery->devices()) {
        if (found.controller != 0 && accessStatusOf(found.record.mac, found) != OrvCam::AccessStatusReadWrite)
            texts.push_back(*textsOf(found.record).displayName + " is controlled by another program at "
                            + dotted(found.controller) + '.');
    }
    return texts;
}

} // namespace OrvCameraApi
