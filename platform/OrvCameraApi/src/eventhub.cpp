#include "eventhub.h"

#include <algorithm>
#include <iterator>

namespace OrvCameraApi {

void EventHub::add(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Triple triple{eventId, callback, context};
    const auto same = [&triple](const Entry &entry) { return entry.triple == triple; };
    if (std::none_of(m_entries.begin(), m_entries.end(), same))
        m_entries.push_back({triple, ++m_registrations, std::make_shared<Counted>(liveCounts().eventCallbacks)});
}

void EventHub::remove(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const Triple triple{eventId, callback, context};
    const auto same = [&triple](const Entry &entry) { return entry.triple == triple; };
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
    for (const Entry &entry : entriesOf(eventId)) {
        if (!begin(entry))
            continue;
        entry.triple.callback(nullptr, 0, entry.triple.context);
        end(entry);
    }
}

std::vector<EventHub::Entry> EventHub::entriesOf(std::uint32_t eventId) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Entry> entries;
    std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(entries),
                 [eventId](const Entry &entry) { return entry.triple.eventId == eventId; });
    return entries;
}

bool EventHub::begin(const Entry &entry)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto same = [&entry](const Entry &other) { return other.registration == entry.registration; };
    if (std::none_of(m_entries.begin(), m_entries.end(), same))
        return false;
    m_running.push_back({entry.triple, std::this_thread::get_id()});
    return true;
}

void EventHub::end(const Entry &entry)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_running.erase(std::find_if(m_running.begin(), m_running.end(), [&entry](const Running &running) {
        return running.triple == entry.triple && running.thread == std::this_thread::get_id();
    }));
    m_ended.notify_all();
}

} // namespace OrvCameraApi
