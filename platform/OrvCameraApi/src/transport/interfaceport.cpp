// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "interfaceport.h"

#include "descriptions.h"

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

RegisterBytes registers(const InterfaceNumbers &interface, const std::vector<DeviceNumbers> &devices,
                        std::uint32_t selected)
{
    RegisterBytes bytes{};
    put(bytes, DeviceSelector, selected);
    put(bytes, LastDevice, static_cast<std::int32_t>(devices.size()) - 1);
    put(bytes, InterfaceMac, interface.mac);
    put(bytes, InterfaceAddress, interface.ip.address);
    put(bytes, InterfaceMask, interface.ip.mask);
    if (selected < devices.size()) {
        const DeviceNumbers &device = devices[selected];
        put(bytes, DeviceMac, device.mac);
        put(bytes, DeviceAddress, device.ip.address);
        put(bytes, DeviceMask, device.ip.mask);
        put(bytes, DeviceGateway, device.ip.gateway);
        put(bytes, DeviceUsbVersion, device.usbVersion);
        put(bytes, DeviceAccessStatus, device.accessStatus);
    }
    return bytes;
}

} // namespace

InterfacePort::InterfacePort(const InterfaceNumbers &numbers, Devices devices)
    : m_numbers(numbers)
    , m_devices(std::move(devices))
{
}

void InterfacePort::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    constexpr std::int64_t end = RegistersEnd;
    if (address < 0 || address >= end || length < 0 || length > end - address)
        throw GenICam::OutOfRangeException("The interface has no such register", __FILE__, __LINE__);
    const RegisterBytes bytes = registers(m_numbers, m_devices(), m_selectedDevice);
    std::memcpy(buffer, bytes.data() + address, static_cast<std::size_t>(length));
}

void InterfacePort::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    if (address != DeviceSelector || length != 4)
        throw GenICam::AccessException("The register cannot be written", __FILE__, __LINE__);
    const auto *const bytes = static_cast<const std::uint8_t *>(buffer);
    m_selectedDevice = static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16
        | static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

std::string interfaceDescription(std::int32_t type)
{
    switch (type) {
    case OrvCam::InterfaceTypeUsb3Vision:
        return description("usb3interface.xml");
    case OrvCam::InterfaceTypeGigEVision:
        return description("gigeinterface.xml");
    default:
        return description("otherinterface.xml");
    }
}

} // namespace OrvCameraApi
