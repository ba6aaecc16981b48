#include "endingthreads.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

void EndingThreads::add(std::thread thread, std::shared_ptr<const std::atomic<bool>> hasEnded)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto ended =
        std::partition(m_threads.begin(), m_threads.end(), [](const Ending &ending) { return !*ending.hasEnded; });
    std::for_each(ended, m_threads.end(), [](Ending &ending) { ending.thread.join(); });
    m_threads.erase(ended, m_threads.end());
    m_threads.push_back({std::move(thread), std::move(hasEnded)});
}

void EndingThreads::join()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    std::vector<Ending> all = std::exchange(m_threads, {});
    lock.unlock();
    for (Ending &ending : all)
        ending.thread.join();
}

} // namespace OrvCameraApi
