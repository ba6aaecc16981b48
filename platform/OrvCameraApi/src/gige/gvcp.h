// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/**
 * \file
 * The packets of the GigE Vision control protocol. Nothing that comes over the wire is trusted: every length is checked
 * against the packet, and texts are limited to their fields.
 */
namespace OrvCameraApi::Gvcp {

using Packet = std::vector<std::uint8_t>;

constexpr std::uint16_t port = 3956;
constexpr std::size_t largestPacket = 576; ///< with the headers of IP and UDP; ours are smaller
constexpr std::size_t mostRegisters = 135; ///< of one READREG
constexpr std::size_t mostMemory = 536; ///< bytes of one READMEM or WRITEMEM, a multiple of 4

enum class Command : std::uint16_t {
    Discovery = 0x0002,
    ForceIp = 0x0004,
    ReadRegister = 0x0080,
    WriteRegister = 0x0082,
    ReadMemory = 0x0084,
    WriteMemory = 0x0086,
    Pending = 0x0088 ///< only its acknowledge exists
};

/** The status of an acknowledge; a device may send other codes as well. */
enum class Status : std::uint16_t {
    Success = 0,
    NotImplemented = 0x8001,
    InvalidParameter = 0x8002,
    InvalidAddress = 0x8003,
    WriteProtected = 0x8004,
    BadAlignment = 0x8005,
    AccessDenied = 0x8006,
    Busy = 0x8007,
    Error = 0x8FFF
};

/** Addresses of bootstrap registers. */
enum Register : std::uint32_t {
    CurrentAddress = 0x0024,
    FirstUrl = 0x0200,
    SecondUrl = 0x0400,
    Capabilities = 0x0934,
    HeartbeatTimeout = 0x0938,
    ControlPrivilege = 0x0A00,
    ControllerAddress = 0x0A14
};

/** A bit of ControlPrivilege: nobody else may even read. */
constexpr std::uint32_t ExclusiveAccess = 1;

constexpr std::size_t urlLength = 512;

/** \name Commands. An \a id is never 0. @{ */
/** With \a mayBroadcast, devices in other subnets may answer by broadcast. */
Packet discovery(std::uint16_t id, bool mayBroadcast);
Packet forceIp(std::uint16_t id, std::uint64_t mac, const IpConfiguration &configuration);
Packet readRegisters(std::uint16_t id, const std::vector<std::uint32_t> &addresses);
Packet writeRegister(std::uint16_t id, std::uint32_t address, std::uint32_t value);
Packet readMemory(std::uint16_t id, std::uint32_t address, std::uint16_t count);
Packet writeMemory(std::uint16_t id, std::uint32_t address, const std::uint8_t *bytes, std::size_t count);
/** @} */

struct Acknowledge
{
    Status status = Status::Error;
    Command command = Command::Discovery; ///< that is acknowledged
    std::uint16_t id = 0;
    Packet payload;
};

/** The acknowledge in a datagram; none if the datagram is malformed. Bytes behind the stated length are dropped. */
std::optional<Acknowledge> acknowledgeIn(const std::uint8_t *data, std::size_t size);

/** The registers in the payload of an acknowledge of readRegisters(); none unless there are \a count. */
std::optional<std::vector<std::uint32_t>> registersIn(const Packet &payload, std::size_t count);

/** The milliseconds that a pending acknowledge asks for. */
std::optional<std::uint16_t> pendingTime(const Packet &payload);

/** The answer of a device to a discovery. */
struct DeviceRecord
{
    std::uint64_t mac = 0; ///< 48 bits
    IpConfiguration ip;
    std::string manufacturer; ///< the texts are UTF-8
    std::string model;
    std::string version;
    std::string serialNumber;
    std::string userDefinedName;

    bool operator==(const DeviceRecord &other) const;
    bool operator!=(const DeviceRecord &other) const { return !(*this == other); }
};

/** The record in the payload of an acknowledge of discovery(); none if it is too short. */
std::optional<DeviceRecord> deviceRecordIn(const Packet &payload);

/** The place of a description in the memory of a device. */
struct DescriptionFile
{
    std::string name; ///< as the device gives it, which may be anything
    std::uint32_t address = 0;
    std::uint32_t length = 0; ///< 1 to mostDescription

    bool isArchive() const;
};

constexpr std::uint32_t mostDescription = 64 * 1024 * 1024;

/**
 * The file that a URL register names. None for "File:" and "Http:", which are never followed, for malformed texts, and
 * for files that cannot be in the memory.
 */
std::optional<DescriptionFile> localFileIn(const std::string &url);

} // namespace OrvCameraApi::Gvcp
