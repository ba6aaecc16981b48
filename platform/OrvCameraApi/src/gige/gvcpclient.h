// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "gvcp.h"
#include "udpsocket.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace OrvCameraApi {

/** How long to wait for a device. */
struct GvcpPatience
{
    std::chrono::milliseconds once{200}; ///< for the acknowledge of one packet
    int attempts = 3;
    std::chrono::milliseconds longest{1000}; ///< with everything that pending acknowledges ask for
};

/** Talks to one device. Used by one thread. */
class GvcpClient
{
public:
    /**
     * \a local is the address of the adapter through which the device is reached. A packet is not repeated when
     * \a isWanted, if there is one, says that nobody waits any more.
     */
    GvcpClient(std::uint32_t local, const Endpoint &device, const GvcpPatience &patience = {},
               std::function<bool()> isWanted = {});

    /** The values of the registers, with as few packets as possible; none if the device does not answer or refuses. */
    std::optional<std::vector<std::uint32_t>> readRegisters(const std::vector<std::uint32_t> &addresses);

    /** \a length bytes; none if the device does not answer or refuses. */
    std::optional<Gvcp::Packet> readMemory(std::uint32_t address, std::uint32_t length);

    /**
     * The acknowledge of \a packet, before \a deadline; packets from elsewhere and for other requests are ignored. One
     * that the system does not send is as one that got lost.
     */
    std::optional<Gvcp::Acknowledge>
    request(const Gvcp::Packet &packet, UdpSocket::Clock::time_point deadline = UdpSocket::Clock::time_point::max());

    bool isOpen() const { return m_socket.isOpen(); }

    /** Until when the device has asked to be waited for, if it has not answered the last request. */
    UdpSocket::Clock::time_point busyUntil() const { return m_busyUntil; }

    std::uint16_t nextId();

private:
    UdpSocket m_socket;
    const Endpoint m_device;
    const GvcpPatience m_patience;
    const std::function<bool()> m_isWanted;
    std::uint16_t m_id = 0;
    UdpSocket::Clock::time_point m_busyUntil;
};

} // namespace OrvCameraApi
