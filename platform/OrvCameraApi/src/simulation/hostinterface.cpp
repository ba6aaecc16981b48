// The registers of an interface are no memory. They are computed at every read from the cameras that are plugged in, so
// that features of the selected device can never be older than the list of devices.
#include "hostinterface.h"

#include "camera.h"
#include "descriptions.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace OrvCameraApi {

namespace {

/** The addresses in the descriptions of interfaces. Numbers begin with the most significant byte. */
enum Register : std::size_t {
    DeviceSelector = 0x00, // 4 bytes
    LastDevice = 0x04, // 4 bytes, signed: -1 without a device
    InterfaceMac = 0x08, // 8 bytes
    InterfaceAddress = 0x10, // 4 bytes
    InterfaceMask = 0x14, // 4 bytes
    DeviceMac = 0x18, // 8 bytes
    DeviceAddress = 0x20, // 4 bytes, as all that follow
    DeviceMask = 0x24,
    DeviceGateway = 0x28,
    DeviceUsbVersion = 0x2C,
    DeviceAccessStatus = 0x30,
    RegistersEnd = 0x40
};

using RegisterBytes = std::array<std::uint8_t, RegistersEnd>;

template <typename Number>
void put(RegisterBytes &bytes, Register at, Number number)
{
    for (std::size_t i = sizeof(Number); i-- > 0; number = static_cast<Number>(number >> 8))
        bytes[at + i] = static_cast<std::uint8_t>(number & 0xFF);
}

void putDevice(RegisterBytes &bytes, Camera &camera)
{
    const Camera::State state = camera.state().copy();
    put(bytes, DeviceMac, camera.spec().macAddress);
    put(bytes, DeviceAddress, state.network.address);
    put(bytes, DeviceMask, state.network.mask);
    put(bytes, DeviceGateway, state.network.gateway);
    put(bytes, DeviceUsbVersion, camera.spec().usbVersion);
    put(bytes, DeviceAccessStatus, state.accessStatus);
}

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

} // namespace

class HostInterface::Registers final : public GenApi::IPort
{
public:
    explicit Registers(HostInterface &host)
        : m_host(host)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

private:
    RegisterBytes bytes() const;

    HostInterface &m_host;
};

void HostInterface::Registers::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    const AddressRange all{0, RegistersEnd};
    if (!all.covers(address) || length > all.length - address)
        throw GenICam::OutOfRangeException("The interface has no such register", __FILE__, __LINE__);
    std::memcpy(buffer, bytes().data() + address, static_cast<std::size_t>(length));
}

void HostInterface::Registers::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    if (address != DeviceSelector || length != 4)
        throw GenICam::AccessException("The register cannot be written", __FILE__, __LINE__);
    const auto *const bytes = static_cast<const std::uint8_t *>(buffer);
    const std::uint32_t selected = static_cast<std::uint32_t>(bytes[0]) << 24
        | static_cast<std::uint32_t>(bytes[1]) << 16 | static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
    m_host.m_state.use([selected](State &state) { state.selectedDevice = selected; });
}

RegisterBytes HostInterface::Registers::bytes() const
{
    const Cameras present = m_host.camerasPluggedIn();
    const std::uint32_t selected = m_host.m_state.copy().selectedDevice;
    const OrvSim::InterfaceSpec &spec = m_host.m_spec;
    RegisterBytes bytes{};
    put(bytes, DeviceSelector, selected);
    put(bytes, LastDevice, static_cast<std::int32_t>(present.size()) - 1);
    put(bytes, InterfaceMac, spec.macAddress);
    put(bytes, InterfaceAddress, spec.network.address);
    put(bytes, InterfaceMask, spec.network.mask);
    if (selected < present.size())
        putDevice(bytes, *present[selected]);
    return bytes;
}

HostInterface::HostInterface(OrvSim::InterfaceSpec spec, StallPoint &enumerationStall)
    : m_spec(std::move(spec))
    , m_texts{m_spec.id, m_spec.description, m_spec.version}
    , m_enumerationStall(enumerationStall)
    , m_description(OrvCameraApi::description(descriptionName(m_spec.type)))
    , m_registers(std::make_unique<Registers>(*this))
    , m_port(m_monitor, *m_registers)
    , m_service(m_description, *m_registers)
{
}

HostInterface::~HostInterface() = default;

std::shared_ptr<GenApi::INodeMap> HostInterface::makeNodeMap()
{
    return connectedNodeMap(m_description, m_port);
}

ParametersAnswer HostInterface::parametersAnswer() const
{
    return isConnected() ? m_state.copy().parameters : BackendInterface::parametersAnswer();
}

std::optional<BackendInterface::Devices> HostInterface::devices() const
{
    const OrvSim::Lists lists = m_state.copy().deviceLists;
    if (lists == OrvSim::Lists::Null || !isPluggedIn())
        return std::nullopt;
    if (lists == OrvSim::Lists::Empty)
        return Devices();
    const Cameras present = camerasPluggedIn();
    return Devices(present.begin(), present.end());
}

OrvCamErr HostInterface::reEnumerate(bool &changed, std::uint32_t)
{
    m_enumerationStall.pass();
    Cameras seen = camerasPluggedIn();
    changed = m_state.use([&seen](State &state) {
        state.lastSeen.swap(seen);
        return state.lastSeen != seen;
    });
    return isPluggedIn() ? OrvCamErr_Ok : OrvCamErr_NoDevice;
}

HostInterface::Cameras HostInterface::camerasPluggedIn() const
{
    Cameras present = cameras();
    const auto isAbsent = [](const std::shared_ptr<Camera> &camera) { return !camera->isPluggedIn(); };
    present.erase(std::remove_if(present.begin(), present.end(), isAbsent), present.end());
    return present;
}

void HostInterface::add(std::shared_ptr<Camera> camera)
{
    m_state.use([&camera](State &state) { state.cameras.push_back(std::move(camera)); });
}

void HostInterface::remove(const std::shared_ptr<Camera> &camera)
{
    m_state.use([&camera](State &state) {
        state.cameras.erase(std::remove(state.cameras.begin(), state.cameras.end(), camera), state.cameras.end());
    });
}

void HostInterface::swap(const std::shared_ptr<Camera> &first, const std::shared_ptr<Camera> &second)
{
    m_state.use([&](State &state) {
        const auto one = std::find(state.cameras.begin(), state.cameras.end(), first);
        const auto other = std::find(state.cameras.begin(), state.cameras.end(), second);
        if (one != state.cameras.end() && other != state.cameras.end())
            std::iter_swap(one, other);
    });
}

} // namespace OrvCameraApi
