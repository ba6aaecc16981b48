// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "cameralink.h"
#include "gvcpclient.h"
#include "wirespan.h"

#include <memory>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

/** The payload of the answer to \a packet. Throws LinkError if the camera refuses or does not answer. */
Gvcp::Packet answerTo(const Gvcp::Packet &packet, GvcpClient &client,
                      UdpSocket::Clock::time_point deadline = UdpSocket::Clock::time_point::max());

/** Throws LinkError for what is not in the memory: cut off on its way, an address would be that of another register. */
void checkRange(std::uint64_t address, std::uint32_t length);

/** Fills \a span: a single register as such, because not all cameras give those as memory. Throws LinkError. */
void readSpan(WireSpan &span, GvcpClient &client, const IsWanted &isWanted,
              UdpSocket::Clock::time_point deadline = UdpSocket::Clock::time_point::max());

/**
 * Reads registers by packets of this library, which takes no control of the camera. Each read has a socket for itself,
 * so that no thread waits for what another one reads; as many are kept as have been needed at once.
 */
class GvcpReader final : public DirectReader
{
public:
    /** As GvcpClient. A register may take its time: who reads sets a deadline. */
    GvcpReader(std::uint32_t local, const Endpoint &device, IsWanted isWanted,
               const GvcpPatience &patience = {std::chrono::milliseconds(250), 4, std::chrono::milliseconds(1000)});

    bool read(void *buffer, std::uint64_t address, std::uint32_t length,
              UdpSocket::Clock::time_point deadline) override;

    /** Whether the camera needs the time that it has asked for in a read that nobody waits for any more. */
    bool isCameraBusy() const;

private:
    std::unique_ptr<GvcpClient> takeClient();
    void giveBack(std::unique_ptr<GvcpClient> client);

    const std::uint32_t m_local;
    const Endpoint m_device;
    const IsWanted m_isWanted;
    const GvcpPatience m_patience;

    mutable std::mutex m_mutex;
    std::vector<std::unique_ptr<GvcpClient>> m_idle;
    UdpSocket::Clock::time_point m_busyUntil;
};

} // namespace OrvCameraApi
