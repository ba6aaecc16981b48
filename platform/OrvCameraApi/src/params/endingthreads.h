// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace OrvCameraApi {

/** Threads that have been told to end and for which nobody waits until the process ends. Any thread may use it. */
class EndingThreads
{
public:
    EndingThreads() = default;
    ~EndingThreads() { join(); }
    EndingThreads(const EndingThreads &) = delete;
    EndingThreads &operator=(const EndingThreads &) = delete;

    /** \a hasEnded becomes true as the last thing that \a thread does. Joins those added before that have ended. */
    void add(std::thread thread, std::shared_ptr<const std::atomic<bool>> hasEnded)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto ended =
            std::partition(m_threads.begin(), m_threads.end(), [](const Ending &ending) { return !*ending.hasEnded; });
        std::for_each(ended, m_threads.end(), [](Ending &ending) { ending.thread.join(); });
        m_threads.erase(ended, m_threads.end());
        m_threads.push_back({std::move(thread), std::move(hasEnded)});
    }

    /** Waits for all. */
    void join()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        std::vector<Ending> all = std::exchange(m_threads, {});
        lock.unlock();
        for (Ending &ending : all)
            ending.thread.join();
    }

private:
    struct Ending
    {
        std::thread thread;
        std::shared_ptr<const std::atomic<bool>> hasEnded;
    };

    std::mutex m_mutex;
    std::vector<Ending> m_threads;
};

} // namespace OrvCameraApi
