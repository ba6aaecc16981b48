#include "eventhub.h"

#include <algorithm>

namespace OrvCameraApi {

void EventHub::add(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Triple triple{eventId, callback, context};
    const auto same = [&triple](const Entry &entry) { return entry.registration.triple == triple; };
    if (std::none_of(m_entries.begin(), m_entries.end(), same))
        m_entries.push_back({{triple, ++m_registrations}, std::make_unique<Counted>(liveCounts().eventCallbacks)});
}

void EventHub::remove(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const Triple triple{eventId, callback, context};
    const auto same = [&triple](const Entry &entry) { return entry.registration.triple == triple; };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), same), m_entries.end());
    // Also when it was not there: it may have removed itself in a call that has not ended yet.
    m_ended.wait(lock, [&] {
        return std::none_of(m_running.begin(), m_running.end(), [&](const Running &running) {
            return running.triple == triple && running.thread != std::this_thread::get_id();
        });
    });
}

void EventHub::removeAll()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_entries.clear();
    m_ended.wait(lock, [this] {
        return std::none_of(m_running.begin(), m_running.end(),
                            [](const Running &running) { return running.thread != std::this_thread::get_id(); });
    });
}

void EventHub::fire(std::uint32_t eventId)
{
    for (const Registration &registration : registrationsOf(eventId)) {
        if (!begin(registration))
            continue;
        registration.triple.callback(nullptr, 0, registration.triple.context);
        end(registration);
    }
}

std::vector<EventHub::Registration> EventHub::registrationsOf(std::uint32_t eventId) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Registration> registrations;
    for (const Entry &entry : m_entries) {
        if (entry.registration.triple.eventId == eventId)
            registrations.push_back(entry.registration);
    }
    return registrations;
}

bool EventHub::begin(const Registration &registration)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto same = [&](const Entry &entry) { return entry.registration.number == registration.number; };
    if (std::none_of(m_entries.begin(), m_entries.end(), same))
        return false;
    m_running.push_back({registration.triple, std::this_thread::get_id()});
    return true;
}

void EventHub::end(const Registration &registration)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_running.erase(std::find_if(m_running.begin(), m_running.end(), [&](const Running &running) {
        return running.triple == registration.triple && running.thread == std::this_thread::get_id();
    }));
    m_ended.notify_all();
}

} // namespace OrvCameraApi
