// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace OrvCameraApi {

/** A place in a call where a test can make it hang. Any thread may use it. */
class StallPoint
{
public:
    /** Waits while the place stalls. */
    void pass()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_waiting;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_stalls; });
        --m_waiting;
    }

    void setStalling(bool stalls)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stalls = stalls;
        m_changed.notify_all();
    }

    /** Waits until a call hangs here; false when none does within \a timeout. */
    bool waitUntilStalled(std::chrono::milliseconds timeout)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, timeout, [this] { return m_stalls && m_waiting > 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_stalls = false;
    int m_waiting = 0;
};

} // namespace OrvCameraApi
