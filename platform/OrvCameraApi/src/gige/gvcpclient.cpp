// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gvcpclient.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

GvcpClient::GvcpClient(std::uint32_t local, const Endpoint &device, const GvcpPatience &patience,
                       std::function<bool()> isWanted)
    : m_socket({local, 0})
    , m_device(device)
    , m_patience(patience)
    , m_isWanted(std::move(isWanted))
{
}

std::uint16_t GvcpClient::nextId()
{
    if (++m_id == 0)
        m_id = 1;
    return m_id;
}

std::optional<Gvcp::Acknowledge> GvcpClient::request(const Gvcp::Packet &packet, UdpSocket::Clock::time_point deadline)
{
    if (!m_socket.isOpen())
        return std::nullopt;
    const auto command = Gvcp::Command(packet.at(2) << 8 | packet.at(3));
    const auto id = std::uint16_t(packet.at(6) << 8 | packet.at(7));
    m_busyUntil = {};
    const auto end = std::min(deadline, UdpSocket::Clock::now() + m_patience.longest);
    for (int attempt = 0; attempt < m_patience.attempts; ++attempt) {
        m_socket.send(packet, m_device);
        auto attemptEnd = std::min(end, UdpSocket::Clock::now() + m_patience.once);
        while (const std::optional<Datagram> datagram = m_socket.receive(attemptEnd)) {
            if (datagram->from != m_device)
                continue;
            std::optional<Gvcp::Acknowledge> answer =
                Gvcp::acknowledgeIn(datagram->bytes.data(), datagram->bytes.size());
            if (!answer || answer->id != id)
                continue;
            if (answer->command == command) {
                m_busyUntil = {};
                return answer;
            }
            if (answer->command != Gvcp::Command::Pending)
                continue;
            if (const std::optional<std::uint16_t> time = Gvcp::pendingTime(answer->payload)) {
                m_busyUntil = UdpSocket::Clock::now() + std::chrono::milliseconds(*time);
                attemptEnd = std::min(end, m_busyUntil);
            }
        }
        if (UdpSocket::Clock::now() >= end || (m_isWanted && !m_isWanted()))
            break;
    }
    return std::nullopt;
}

std::optional<std::vector<std::uint32_t>> GvcpClient::readRegisters(const std::vector<std::uint32_t> &addresses)
{
    std::vector<std::uint32_t> values;
    for (std::size_t at = 0; at < addresses.size(); at += Gvcp::mostRegisters) {
        const auto first = addresses.begin() + std::ptrdiff_t(at);
        const auto last = addresses.begin() + std::ptrdiff_t(std::min(addresses.size(), at + Gvcp::mostRegisters));
        const std::vector<std::uint32_t> part(first, last);
        const std::optional<Gvcp::Acknowledge> answer = request(Gvcp::readRegisters(nextId(), part));
        const auto read = answer && answer->status == Gvcp::Status::Success
            ? Gvcp::registersIn(answer->payload, part.size())
            : std::nullopt;
        if (!read)
            return std::nullopt;
        values.insert(values.end(), read->begin(), read->end());
    }
    return values;
}

std::optional<Gvcp::Packet> GvcpClient::readMemory(std::uint32_t address, std::uint32_t length)
{
    Gvcp::Packet memory;
    while (memory.size() < length) {
        // A device takes multiples of 4 only; the surplus is cut off at the end.
        const auto count = std::uint16_t(std::min<std::size_t>(Gvcp::mostMemory, (length - memory.size() + 3) / 4 * 4));
        const std::uint32_t at = address + std::uint32_t(memory.size());
        const std::optional<Gvcp::Acknowledge> answer = request(Gvcp::readMemory(nextId(), at, count));
        if (!answer || answer->status != Gvcp::Status::Success || answer->payload.size() != count + 4U)
            return std::nullopt;
        memory.insert(memory.end(), answer->payload.begin() + 4, answer->payload.end());
    }
    memory.resize(length);
    return memory;
}

} // namespace OrvCameraApi
