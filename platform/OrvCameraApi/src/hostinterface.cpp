#include "hostinterface.h"

#include "camera.h"
#include "descriptions.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace OrvCameraApi {

/** The simulation's own way to the registers, past faults and counts. */
class HostInterface::RawPort final : public GenApi::IPort
{
public:
    explicit RawPort(HostInterface &host)
        : m_host(host)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_host.readRaw(buffer, {address, length});
    }
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_host.writeRaw(buffer, {address, length});
    }

private:
    HostInterface &m_host;
};

namespace {

/** Where the registers stand; the descriptions of interfaces say the same. Numbers start with the highest byte. */
enum Register : std::size_t {
    DeviceSelector = 0x00, // 4 bytes
    LastDevice = 0x04, // 4 bytes, signed: -1 without a device
    InterfaceMac = 0x08, // 8 bytes
    InterfaceAddress = 0x10, // 4 bytes, as all that follow but one
    InterfaceMask = 0x14,
    DeviceMac = 0x18, // 8 bytes
    DeviceAddress = 0x20,
    DeviceMask = 0x24,
    DeviceGateway = 0x28,
    DeviceUsbVersion = 0x2C,
    DeviceAccessStatus = 0x30
};

const char *descriptionName(std::int32_t type)
{
    switch (type) {
    case OrvCam::InterfaceTypeUsb3Vision:
        return "usb3interface.xml";
    case OrvCam::InterfaceTypeGigEVision:
        return "gigeinterface.xml";
    default:
        return "otherinterface.xml";
    }
}

template <std::size_t size, typename Number>
void put(std::array<std::uint8_t, size> &bytes, Register at, Number number)
{
    for (std::size_t i = sizeof(Number); i-- > 0; number = static_cast<Number>(number >> 8))
        bytes[at + i] = static_cast<std::uint8_t>(number & 0xFF);
}

} // namespace

HostInterface::HostInterface(OrvSim::InterfaceSpec spec)
    : m_spec(std::move(spec))
    , m_description(OrvCameraApi::description(descriptionName(m_spec.type)))
    , m_rawPort(std::make_unique<RawPort>(*this))
    , m_service(m_description, *m_rawPort)
{
}

HostInterface::~HostInterface() = default;

std::vector<std::shared_ptr<Camera>> HostInterface::cameras() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_cameras;
}

std::vector<std::shared_ptr<Camera>> HostInterface::camerasPluggedIn() const
{
    std::vector<std::shared_ptr<Camera>> present = cameras();
    const auto absent = [](const std::shared_ptr<Camera> &camera) { return !camera->isPluggedIn(); };
    present.erase(std::remove_if(present.begin(), present.end(), absent), present.end());
    return present;
}

void HostInterface::add(std::shared_ptr<Camera> camera)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_cameras.push_back(std::move(camera));
}

void HostInterface::remove(const std::shared_ptr<Camera> &camera)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_cameras.erase(std::remove(m_cameras.begin(), m_cameras.end(), camera), m_cameras.end());
}

void HostInterface::swap(const std::shared_ptr<Camera> &first, const std::shared_ptr<Camera> &second)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto one = std::find(m_cameras.begin(), m_cameras.end(), first);
    const auto other = std::find(m_cameras.begin(), m_cameras.end(), second);
    if (one != m_cameras.end() && other != m_cameras.end())
        std::iter_swap(one, other);
}

bool HostInterface::takeChange()
{
    std::vector<std::shared_ptr<Camera>> seen = camerasPluggedIn();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lastSeen.swap(seen);
    return m_lastSeen != seen;
}

OrvSim::Parameters HostInterface::parameters() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_parameters;
}

void HostInterface::setParameters(OrvSim::Parameters parameters)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_parameters = parameters;
}

OrvSim::Lists HostInterface::deviceLists() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_deviceLists;
}

void HostInterface::setDeviceLists(OrvSim::Lists lists)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_deviceLists = lists;
}

void HostInterface::read(void *buffer, const AddressRange &range)
{
    m_monitor.beforeRead(range);
    readRaw(buffer, range);
}

void HostInterface::write(const void *buffer, const AddressRange &range)
{
    m_monitor.beforeWrite(range);
    writeRaw(buffer, range);
}

void HostInterface::readRaw(void *buffer, const AddressRange &range) const
{
    const AddressRange all{0, registerBytes};
    if (!all.covers(range.address) || range.length > all.length - range.address)
        throw GenICam::OutOfRangeException("The interface has no such register", __FILE__, __LINE__);
    std::memcpy(buffer, registers().data() + range.address, static_cast<std::size_t>(range.length));
}

void HostInterface::writeRaw(const void *buffer, const AddressRange &range)
{
    if (range.address != DeviceSelector || range.length != 4)
        throw GenICam::AccessException("The register cannot be written", __FILE__, __LINE__);
    const auto *const bytes = static_cast<const std::uint8_t *>(buffer);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_selectedDevice = static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16
        | static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

HostInterface::Registers HostInterface::registers() const
{
    const std::vector<std::shared_ptr<Camera>> present = camerasPluggedIn();
    std::uint32_t selected = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        selected = m_selectedDevice;
    }
    Registers bytes{};
    put(bytes, DeviceSelector, selected);
    put(bytes, LastDevice, static_cast<std::int32_t>(present.size()) - 1);
    put(bytes, InterfaceMac, m_spec.macAddress);
    put(bytes, InterfaceAddress, m_spec.network.address);
    put(bytes, InterfaceMask, m_spec.network.mask);
    if (selected >= present.size())
        return bytes;
    const Camera &camera = *present[selected];
    const OrvSim::Network network = camera.network();
    put(bytes, DeviceMac, camera.spec().macAddress);
    put(bytes, DeviceAddress, network.address);
    put(bytes, DeviceMask, network.mask);
    put(bytes, DeviceGateway, network.gateway);
    put(bytes, DeviceUsbVersion, camera.spec().usbVersion);
    put(bytes, DeviceAccessStatus, camera.accessStatus());
    return bytes;
}

} // namespace OrvCameraApi
