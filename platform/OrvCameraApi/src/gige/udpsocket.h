// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace OrvCameraApi {

/** An IPv4 address and a port. */
struct Endpoint
{
    std::uint32_t address = 0; ///< the first dotted part is the most significant byte
    std::uint16_t port = 0;

    bool operator==(const Endpoint &other) const { return address == other.address && port == other.port; }
    bool operator!=(const Endpoint &other) const { return !(*this == other); }
};

struct Datagram
{
    Endpoint from;
    std::vector<std::uint8_t> bytes;
};

/** A UDP socket. Used by one thread, except wake(). */
class UdpSocket
{
public:
    using Clock = std::chrono::steady_clock;

    /** Bound to \a local, with a port of the system's choice for 0. isOpen() tells whether that worked. */
    explicit UdpSocket(const Endpoint &local);
    ~UdpSocket();
    UdpSocket(const UdpSocket &) = delete;
    UdpSocket &operator=(const UdpSocket &) = delete;

    bool isOpen() const { return m_socket >= 0; }
    Endpoint local() const;

    /** All leaves by the adapter with that index of the system, also when another one is in the same subnet. */
    void useAdapter(unsigned index);

    /**
     * Lets broadcasts leave, and hears those to the same port: a device with an address from elsewhere can answer in no
     * other way.
     */
    void allowBroadcast();

    bool send(const std::vector<std::uint8_t> &bytes, const Endpoint &to) const;

    /** The next datagram; none at \a deadline, or once wake() has been called. One above 2 KiB is dropped. */
    std::optional<Datagram> receive(Clock::time_point deadline) const;

    /** Ends the receive() that is running and all later ones; any thread. */
    void wake() const;

private:
    int m_socket = -1;
    int m_broadcasts = -1; ///< the same port of 255.255.255.255, which a socket with an address does not hear
    int m_wakeReader = -1;
    int m_wakeWriter = -1;
};

} // namespace OrvCameraApi
