#pragma once

#include "livecounts.h"

#include <OrvCameraGuiApi/camera_api/device.h>

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** The event callbacks of one open device. Any thread may use it; callbacks run without a lock. */
class EventHub
{
public:
    /** A triple that is there already stays as it is. */
    void add(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context);

    /**
     * The triple is not called any more. Returns after a call on another thread has ended; a call on this thread is
     * the caller's own.
     */
    void remove(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context);

    /** Removes everything like remove(). */
    void removeAll();

    /** Calls those that are registered now, except those that are removed before their turn. */
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
    struct Registration
    {
        Triple triple;
        std::uint64_t number; ///< tells it from a later one of the same triple
    };
    struct Entry
    {
        Registration registration;
        std::unique_ptr<Counted> counted;
    };
    struct Running
    {
        Triple triple;
        std::thread::id thread;
    };

    std::vector<Registration> registrationsOf(std::uint32_t eventId) const;
    bool begin(const Registration &registration);
    void end(const Registration &registration);

    mutable std::mutex m_mutex;
    std::condition_variable m_ended;
    std::vector<Entry> m_entries;
    std::vector<Running> m_running;
    std::uint64_t m_registrations = 0;
};

} // namespace OrvCameraApi
