// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/**
 * A thread that does something again and again, with a pause of Periods::search in between. start(), stop() and the
 * destructor are called on one thread.
 */
class SystemPolling
{
public:
    /** \a step is called on the thread; what it throws ends it only that once. */
    explicit SystemPolling(std::function<void()> step);
    /** Stops. */
    ~SystemPolling();
    Q_DISABLE_COPY(SystemPolling)

    /** Does nothing while it is running. False when there is no thread to be had. */
    bool start();

    /** Returns when the step that is running has ended, at once during a pause. */
    void stop();

private:
    void run(std::chrono::milliseconds pause);

    const std::function<void()> m_step;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isOn = false; ///< with the mutex
};
