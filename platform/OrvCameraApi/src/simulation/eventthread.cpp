// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "eventthread.h"

#include <utility>

namespace OrvCameraApi {

void EventThread::setEnabled(bool enabled)
{
    std::thread ending;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_enabled = enabled;
        if (!enabled)
            ending.swap(m_thread);
        m_changed.notify_all();
    }
    if (ending.joinable())
        ending.join();
}

void EventThread::post(std::function<void()> task)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_enabled) {
            m_tasks.push_back(std::move(task));
            if (!m_thread.joinable())
                m_thread = std::thread(&EventThread::run, this);
            m_changed.notify_all();
            return;
        }
    }
    task();
}

void EventThread::wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_tasks.empty() && !m_busy; });
}

void EventThread::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_enabled || !m_tasks.empty(); });
        if (m_tasks.empty())
            return;
        const std::function<void()> task = std::move(m_tasks.front());
        m_tasks.pop_front();
        m_busy = true;
        lock.unlock();
        task();
        lock.lock();
        m_busy = false;
        m_changed.notify_all();
    }
}

} // namespace OrvCameraApi
