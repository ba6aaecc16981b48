#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace OrvCameraApi {

/** A place in a call where it can be made to wait. Any thread may use it. */
class Gate
{
public:
    /** Waits while the gate is closed. */
    void pass()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_waiting;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_closed; });
        --m_waiting;
    }

    void setClosed(bool closed)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_closed = closed;
        m_changed.notify_all();
    }

    /** Whether somebody waits before the closed gate, at the latest after \a timeout. */
    bool waitForVisitor(std::chrono::milliseconds timeout)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, timeout, [this] { return m_closed && m_waiting > 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_closed = false;
    int m_waiting = 0;
};

} // namespace OrvCameraApi
