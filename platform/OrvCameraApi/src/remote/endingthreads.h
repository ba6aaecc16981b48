#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
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
    void add(std::thread thread, std::shared_ptr<const std::atomic<bool>> hasEnded);

    /** Waits for all. */
    void join();

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
