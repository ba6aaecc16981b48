// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#ifndef ORV_CAMERAAPI_EXPORT
#define ORV_CAMERAAPI_EXPORT __attribute__((visibility("default")))
#endif

/**
 * Pictures of cameras, simulated and real.
 *
 * Those of simulated cameras follow their features: size, offsets, decimation, mirroring, exposure, gains, black level,
 * white balance, pixel format, test pattern, frame rate. Triggers and look-up tables make no difference. A camera with
 * two frame settings sends pictures with the one that is selected.
 *
 * Every function may be called from any thread.
 */
namespace OrvStreams {

/** A picture as the camera has sent it. Never changes; may be kept, but a stream has only a few buffers to give. */
struct Frame
{
    std::uint64_t number = 0; ///< of the frames of one acquisition, from 0; a gap is a frame that was lost
    std::uint32_t pixelFormat = 0; ///< by the PFNC
    std::uint32_t width = 0; ///< pixels
    std::uint32_t height = 0; ///< lines; they follow each other without padding, packed ones within a byte
    const std::uint8_t *data = nullptr;
    std::size_t size = 0; ///< bytes at data; may be fewer than width, height and format need
    std::chrono::steady_clock::time_point received;
};

/** Since the last start. */
struct Statistics
{
    std::uint64_t received = 0; ///< whole frames
    std::uint64_t replaced = 0; ///< of these, frames that nobody took before the next one came
    std::uint64_t lost = 0; ///< frames that came in part, or not at all, or while all buffers were in use
};

enum class State { Stopped, Starting, Running, Stopping };

/**
 * The frames of a device that is open. While it runs, TLParamsLocked is 1, so that features that acquisition locks are
 * locked. Nothing is written to the camera once it has stopped, but by a library below that ends later because the
 * camera does not answer. A camera that was lost is not told to stop; only TLParamsLocked becomes 0.
 *
 * A thread of the stream starts, receives and stops, so that nobody else waits for a camera. The newest frame wins, and
 * memory is bounded by a few buffers.
 */
class ORV_CAMERAAPI_EXPORT Stream
{
public:
    /**
     * Null if \a device gives no pictures, with the reason in \a error, which may be null. The device may be released
     * before the stream: OrvCam::Device::Release() stops it like the destructor, and it does not start any more. A
     * camera has several streams, but one that runs at a time; the others fail to start.
     */
    static std::unique_ptr<Stream> create(OrvCam::Device &device, std::string *error = nullptr);

    /** Stops. Waits for that a second at most, when the camera does not answer. */
    virtual ~Stream() = default;

    /**
     * Starts, or will once it has stopped; without effect while it runs. \a frames: how many to receive before it stops
     * by itself, 0 for no end; frames that are lost count as well. The acquisition mode of the camera is respected and
     * stays as it is: a camera that is set to single frames, or to a number of frames, sends no more than these.
     */
    virtual void start(std::uint64_t frames = 0) = 0;

    /** Returns at once; state() tells when it has stopped. */
    virtual void stop() = 0;

    virtual State state() const = 0;

    /**
     * Why it has not started, has stopped by itself before its end, or could not tell the camera to stop; UTF-8; empty
     * otherwise. Of the last start.
     */
    virtual std::string failure() const = 0;

    virtual Statistics statistics() const = 0;

    /** The newest frame, once; null if there was none since the last call. */
    virtual std::shared_ptr<const Frame> take() = 0;

    /**
     * Called on the stream's thread after a frame came or the state changed, and not again before take() or state() was
     * called. Null ends it; no call is under way after that, unless this is called from it. A listener that throws is
     * none of the stream's business.
     */
    virtual void setListener(std::function<void()> listener) = 0;
};

} // namespace OrvStreams
