// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "usbdiscovery.h"

#include "endingthreads.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace OrvCameraApi {

namespace {

EndingThreads endingThreads; // made with the library: objects of the application are destroyed before

} // namespace

struct UsbDiscovery::Search
{
    const List list;
    const std::chrono::milliseconds period;
    std::mutex mutex;
    std::condition_variable changed;
    Found found;
    bool isHurried = false;
    bool isEnding = false;

    Search(List search, std::chrono::milliseconds pause)
        : list(std::move(search))
        , period(pause)
    {
    }

    void run()
    {
        std::unique_lock<std::mutex> lock(mutex);
        while (!isEnding) {
            isHurried = false;
            lock.unlock();
            Found now = list();
            lock.lock();
            if (isEnding)
                return;
            found = std::move(now);
            changed.wait_for(lock, period, [this] { return isEnding || isHurried; });
        }
    }

    void tell(bool Search::*what)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            this->*what = true;
        }
        changed.notify_all();
    }
};

UsbDiscovery::UsbDiscovery(List list, std::chrono::milliseconds period)
    : m_search(std::make_shared<Search>(std::move(list), period))
    , m_thread([search = m_search, hasEnded = m_hasEnded]() mutable {
        search->run();
        search.reset();
        *hasEnded = true;
    })
{
}

UsbDiscovery::~UsbDiscovery()
{
    m_search->tell(&Search::isEnding);
    endingThreads.add(std::move(m_thread), m_hasEnded);
}

UsbDiscovery::Found UsbDiscovery::found() const
{
    const std::lock_guard<std::mutex> lock(m_search->mutex);
    return m_search->found;
}

void UsbDiscovery::retire()
{
    m_search->tell(&Search::isEnding);
    const std::lock_guard<std::mutex> lock(m_search->mutex);
    m_search->found.problem.clear();
}

void UsbDiscovery::lookNow()
{
    m_search->tell(&Search::isHurried);
}

} // namespace OrvCameraApi
