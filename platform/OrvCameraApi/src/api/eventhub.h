// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "registrations.h"

#include <OrvCameraGuiApi/camera_api/device.h>

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** The event callbacks of one open device. Any thread may use it; callbacks run without a lock. */
class EventHub
{
public:
    /** A triple that is registered already stays as it is. */
    void add(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context);

    /**
     * The triple is not called any more. Waits for a call that is running on another thread; a call on this thread is
     * the caller's own.
     */
    void remove(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context);

    /** Removes all triples like remove(). */
    void removeAll();

    /** Calls the callbacks that are registered now, except those that are removed before their turn. */
    void fire(std::uint32_t eventId);

private:
    struct Triple
    {
        std::uint32_t eventId;
        OrvCam::DeviceEventCallback callback;
        void *context;

        bool operator==(const Triple &other) const
        {
            return eventId == other.eventId && callback == other.callback && context == other.context;
        }
    };
    struct RunningCall
    {
        Triple triple;
        std::thread::id thread;
    };
    using Callbacks = Registrations<Triple>;

    std::vector<Callbacks::Registration> snapshot() const;
    bool begin(const Callbacks::Registration &registration);
    void end(const Callbacks::Registration &registration);
    template <typename Condition>
    bool isRunningElsewhere(Condition &&condition) const;

    mutable std::mutex m_mutex;
    std::condition_variable m_callEnded;
    Callbacks m_callbacks{liveCounts().eventCallbacks};
    std::vector<RunningCall> m_running;
};

} // namespace OrvCameraApi
