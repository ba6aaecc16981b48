// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraApi/streaming.h>

#include <GenApi/INodeMap.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

namespace OrvCameraApi {

/**
 * Where the pictures of an open camera come from. One thread uses it. Its functions may throw anything with a text for
 * people, which ends the acquisition.
 */
class FrameSource
{
public:
    using Clock = std::chrono::steady_clock;

    struct Look
    {
        std::shared_ptr<OrvStreams::Frame> frame; ///< null if there is none now; its number is not set
        std::uint64_t lost = 0; ///< frames since the last look
    };

    virtual ~FrameSource() = default;

    /**
     * Makes ready to receive, before the camera is told to start. \a map outlives this object. \a wake makes the
     * thread look at once; it may be called from any thread, until this object is destroyed.
     */
    virtual void prepare(GenApi::INodeMap &map, std::function<void()> wake) = 0;

    /** When to look next, if nobody wakes the thread. */
    virtual Clock::time_point nextLook() const = 0;

    /** Waits for nothing. */
    virtual Look look() = 0;
};

/** The right to receive the pictures of a camera. One at a time has it. */
class ReceivingRight
{
public:
    /** Of the camera: whether somebody has the right. */
    using Taken = std::atomic<bool>;

    /** Throws if somebody has it. */
    explicit ReceivingRight(std::shared_ptr<Taken> taken)
        : m_taken(std::move(taken))
    {
        if (m_taken->exchange(true))
            throw std::runtime_error("The pictures of this camera are shown elsewhere already");
    }
    ~ReceivingRight() { *m_taken = false; }
    ReceivingRight(const ReceivingRight &) = delete;
    ReceivingRight &operator=(const ReceivingRight &) = delete;

private:
    const std::shared_ptr<Taken> m_taken;
};

} // namespace OrvCameraApi
