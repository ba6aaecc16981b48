// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gvcpreader.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace OrvCameraApi {

namespace {

using namespace std::chrono_literals;
using Clock = UdpSocket::Clock;

constexpr auto longestBusy = 10s; ///< whatever the camera asks for

} // namespace

Gvcp::Packet answerTo(const Gvcp::Packet &packet, GvcpClient &client, Clock::time_point deadline)
{
    std::optional<Gvcp::Acknowledge> answer = client.request(packet, deadline);
    if (!answer)
        throw LinkError(LinkError::Kind::Silent, "The camera does not answer");
    if (answer->status == Gvcp::Status::AccessDenied)
        throw LinkError(LinkError::Kind::Denied, "Another program has taken the camera");
    if (answer->status != Gvcp::Status::Success)
        throw LinkError(LinkError::Kind::Failed, "The camera refuses the access");
    return std::move(answer->payload);
}

void checkRange(std::uint64_t address, std::uint32_t length)
{
    constexpr std::uint64_t end = std::uint64_t(1) << 32;
    if (address >= end || length > end - address)
        throw LinkError(LinkError::Kind::Failed, "The camera has no such register");
}

void readSpan(WireSpan &span, GvcpClient &client, const IsWanted &isWanted, Clock::time_point deadline)
{
    constexpr std::size_t echo = 4; // the address stands before the bytes
    const bool isRegister = span.bytes.size() == 4;
    for (std::size_t done = 0; done < span.bytes.size();) {
        requireWanted(isWanted);
        const std::size_t count = std::min(span.bytes.size() - done, Gvcp::mostMemory);
        const auto at = std::uint32_t(span.begin + done);
        const Gvcp::Packet answer = answerTo(isRegister ? Gvcp::readRegisters(client.nextId(), {at})
                                                        : Gvcp::readMemory(client.nextId(), at, std::uint16_t(count)),
                                             client, deadline);
        const std::size_t skipped = isRegister ? 0 : echo;
        if (answer.size() != skipped + count)
            throw LinkError(LinkError::Kind::Failed, "The camera answers with a wrong length");
        std::copy(answer.begin() + std::ptrdiff_t(skipped), answer.end(), span.bytes.begin() + std::ptrdiff_t(done));
        done += count;
    }
}

GvcpReader::GvcpReader(std::uint32_t local, const Endpoint &device, IsWanted isWanted, const GvcpPatience &patience)
    : m_local(local)
    , m_device(device)
    , m_isWanted(std::move(isWanted))
    , m_patience(patience)
{
}

bool GvcpReader::read(void *buffer, std::uint64_t address, std::uint32_t length, Clock::time_point deadline)
{
    checkRange(address, length);
    std::unique_ptr<GvcpClient> client = takeClient();
    if (!client->isOpen())
        return false;
    WireSpan span(address, length);
    try {
        readSpan(span, *client, m_isWanted, deadline);
    } catch (const LinkError &error) {
        giveBack(std::move(client));
        if (error.kind() == LinkError::Kind::Denied)
            return false;
        throw;
    }
    giveBack(std::move(client));
    std::copy_n(span.bytes.begin() + span.offset, length, static_cast<std::uint8_t *>(buffer));
    return true;
}

std::unique_ptr<GvcpClient> GvcpReader::takeClient()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_idle.empty()) {
            std::unique_ptr<GvcpClient> client = std::move(m_idle.back());
            m_idle.pop_back();
            return client;
        }
    }
    return std::make_unique<GvcpClient>(m_local, m_device, m_patience, m_isWanted);
}

void GvcpReader::giveBack(std::unique_ptr<GvcpClient> client)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_busyUntil = std::max(m_busyUntil, std::min(client->busyUntil(), Clock::now() + longestBusy));
    m_idle.push_back(std::move(client));
}

bool GvcpReader::isCameraBusy() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return Clock::now() < m_busyUntil;
}

} // namespace OrvCameraApi
