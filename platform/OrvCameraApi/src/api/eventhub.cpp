// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Callbacks run without the lock, so that they may register, unregister and release. A list of running calls takes its
// place: remove() waits on it for calls on other threads, as the contract requires.
#include "eventhub.h"

#include <algorithm>

namespace OrvCameraApi {

void EventHub::add(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_callbacks.add({eventId, callback, context});
}

void EventHub::remove(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    const Triple triple{eventId, callback, context};
    std::unique_lock<std::mutex> lock(m_mutex);
    m_callbacks.remove(triple);
    // A triple that is not registered may still be running: it may have removed itself in that very call.
    const auto isTriple = [&triple](const RunningCall &call) { return call.triple == triple; };
    m_callEnded.wait(lock, [&] { return !isRunningElsewhere(isTriple); });
}

void EventHub::removeAll()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_callbacks.clear();
    m_callEnded.wait(lock, [this] { return !isRunningElsewhere([](const RunningCall &) { return true; }); });
}

void EventHub::fire(std::uint32_t eventId)
{
    for (const Callbacks::Registration &registration : snapshot()) {
        const Triple &triple = registration.receiver;
        if (triple.eventId != eventId || !begin(registration))
            continue;
        triple.callback(nullptr, 0, triple.context);
        end(registration);
    }
}

std::vector<EventHub::Callbacks::Registration> EventHub::snapshot() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_callbacks.snapshot();
}

bool EventHub::begin(const Callbacks::Registration &registration)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_callbacks.contains(registration))
        return false;
    m_running.push_back({registration.receiver, std::this_thread::get_id()});
    return true;
}

void EventHub::end(const Callbacks::Registration &registration)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_running.erase(std::find_if(m_running.begin(), m_running.end(), [&registration](const RunningCall &call) {
        return call.triple == registration.receiver && call.thread == std::this_thread::get_id();
    }));
    m_callEnded.notify_all();
}

template <typename Condition>
bool EventHub::isRunningElsewhere(Condition &&condition) const
{
    return std::any_of(m_running.begin(), m_running.end(), [&condition](const RunningCall &call) {
        return condition(call) && call.thread != std::this_thread::get_id();
    });
}

} // namespace OrvCameraApi
