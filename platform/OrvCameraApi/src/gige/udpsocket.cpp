// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "udpsocket.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <arpa/inet.h>
#include <fcntl.h>
#include <net/if.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace OrvCameraApi {

namespace {

constexpr std::size_t largestDatagram = 2048; ///< thrice what the control protocol allows

sockaddr_in toSystem(const Endpoint &endpoint)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(endpoint.port);
    address.sin_addr.s_addr = htonl(endpoint.address);
    return address;
}

Endpoint fromSystem(const sockaddr_in &address)
{
    return {ntohl(address.sin_addr.s_addr), ntohs(address.sin_port)};
}

/** Milliseconds for poll(), rounded up so that it never spins before the deadline. */
int millisecondsUntil(UdpSocket::Clock::time_point deadline)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - UdpSocket::Clock::now()).count();
    return int(std::clamp<std::int64_t>(left, 0, 60'000));
}

/** A socket that is bound to \a local, or -1. */
int boundSocket(const Endpoint &local)
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const sockaddr_in address = toSystem(local);
    if (socket >= 0 && ::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(socket);
        return -1;
    }
    return socket;
}

} // namespace

UdpSocket::UdpSocket(const Endpoint &local)
    : m_socket(boundSocket(local))
{
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
        m_wakeReader = pipe[0];
        m_wakeWriter = pipe[1];
    }
}

UdpSocket::~UdpSocket()
{
    for (const int descriptor : {m_socket, m_broadcasts, m_wakeReader, m_wakeWriter}) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
}

Endpoint UdpSocket::local() const
{
    sockaddr_in address{};
    socklen_t size = sizeof address;
    if (::getsockname(m_socket, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return {};
    return fromSystem(address);
}

void UdpSocket::useAdapter(unsigned index)
{
    const std::uint32_t number = htonl(index);
    ::setsockopt(m_socket, IPPROTO_IP, IP_UNICAST_IF, &number, sizeof number);
}

void UdpSocket::allowBroadcast()
{
    const int on = 1;
    ::setsockopt(m_socket, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    if (m_broadcasts < 0)
        m_broadcasts = boundSocket({INADDR_BROADCAST, local().port});
}

bool UdpSocket::send(const std::vector<std::uint8_t> &bytes, const Endpoint &to) const
{
    const sockaddr_in address = toSystem(to);
    return ::sendto(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL, reinterpret_cast<const sockaddr *>(&address),
                    sizeof address)
        == ssize_t(bytes.size());
}

std::optional<Datagram> UdpSocket::receive(Clock::time_point deadline) const
{
    for (;;) {
        std::array<pollfd, 3> waiting = {{{m_wakeReader, POLLIN, 0}, {m_socket, POLLIN, 0}, {m_broadcasts, POLLIN, 0}}};
        const int ready = ::poll(waiting.data(), waiting.size(), millisecondsUntil(deadline));
        // Datagrams that come without end keep nobody beyond the deadline.
        if (waiting[0].revents || Clock::now() >= deadline || (ready < 0 && errno != EINTR))
            return std::nullopt;
        const auto filled =
            std::find_if(waiting.begin() + 1, waiting.end(), [](const pollfd &each) { return each.revents != 0; });
        if (filled == waiting.end())
            continue;
        std::array<std::uint8_t, largestDatagram> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init)
        sockaddr_in from{};
        socklen_t size = sizeof from;
        const ssize_t count =
            ::recvfrom(filled->fd, bytes.data(), bytes.size(), MSG_TRUNC, reinterpret_cast<sockaddr *>(&from), &size);
        // Below 0 is an error that an earlier packet has left, for instance that nobody listens.
        if (count < 0 || std::size_t(count) > bytes.size())
            continue;
        return Datagram{fromSystem(from), {bytes.begin(), bytes.begin() + count}};
    }
}

void UdpSocket::wake() const
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(m_wakeWriter, &byte, 1);
}

} // namespace OrvCameraApi
