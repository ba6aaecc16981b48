#pragma once

#include <OrvCameraApi/streaming.h>

#include <GenApi/INodeMap.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

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

} // namespace OrvCameraApi
