// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace OrvCameraApi {

/** Runs tasks in the order of their posting: on a thread of its own while it is enabled, else on the posting thread. */
class EventThread
{
public:
    ~EventThread() { setEnabled(false); }

    /** Disabling lets the remaining tasks run and joins the thread. Not to be called from a task. */
    void setEnabled(bool enabled);

    void post(std::function<void()> task);

    /** Waits until all tasks posted so far have ended. Not to be called from a task. */
    void wait();

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_tasks;
    std::thread m_thread;
    bool m_enabled = false;
    bool m_busy = false;
};

} // namespace OrvCameraApi
