// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <GenApi/GenApi.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace OrvCameraApi {

/** The features of an interface itself. */
struct InterfaceNumbers
{
    std::uint64_t mac = 0; ///< 48 bits
    IpConfiguration ip;
};

/** The features of a device on it. */
struct DeviceNumbers
{
    std::uint64_t mac = 0; ///< 48 bits
    IpConfiguration ip;
    std::uint32_t usbVersion = 0; ///< binary-coded: 0x0300 is USB 3.0
    std::int32_t accessStatus = OrvCam::AccessStatusReadWrite;
};

/**
 * The registers in the descriptions of interfaces. They are no memory: every read asks for the devices there are, so
 * features of the selected device are never older than the list of devices. Any thread may use it.
 */
class InterfacePort final : public GenApi::IPort
{
public:
    /** The devices in the order of BackendInterface::devices(). */
    using Devices = std::function<std::vector<DeviceNumbers>()>;

    InterfacePort(const InterfaceNumbers &numbers, Devices devices);

    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

private:
    const InterfaceNumbers m_numbers;
    const Devices m_devices;
    std::atomic<std::uint32_t> m_selectedDevice{0};
};

/** The GenICam description of interfaces of that OrvCam::InterfaceType. */
std::string interfaceDescription(std::int32_t type);

} // namespace OrvCameraApi
