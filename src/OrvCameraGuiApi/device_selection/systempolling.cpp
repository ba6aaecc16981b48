// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/systempolling.h>

#include <OrvCameraGuiApi/background/periods.h>

#include <system_error>

SystemPolling::SystemPolling(std::function<void()> step)
    : m_step(std::move(step))
{
}

SystemPolling::~SystemPolling()
{
    stop();
}

bool SystemPolling::start()
{
    if (m_thread.joinable())
        return true;
    m_isOn = true;
    try {
        m_thread = std::thread([this, pause = OrvGui::periods().search] { run(pause); });
    } catch (const std::system_error &) {
        m_isOn = false;
    }
    return m_thread.joinable();
}

void SystemPolling::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOn = false;
    }
    m_wake.notify_one();
    m_thread.join();
}

void SystemPolling::run(std::chrono::milliseconds pause)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (m_isOn) {
        lock.unlock();
        try {
            m_step();
        } catch (...) {
            // A library of somebody else's, whose exceptions need not be std::exception: it may do better next time,
            // and must not end the process from here.
        }
        lock.lock();
        m_wake.wait_for(lock, pause, [this] { return !m_isOn; });
    }
}
