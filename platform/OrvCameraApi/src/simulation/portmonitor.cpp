// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "portmonitor.h"

#include <GenApi/GenApi.h>

#include <algorithm>

namespace OrvCameraApi {

void PortMonitor::add(const AddressRange &range, OrvSim::Fault fault)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_faults.push_back({range, fault, false});
}

void PortMonitor::addPermanent(const AddressRange &range, OrvSim::Fault fault)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_faults.push_back({range, fault, true});
}

void PortMonitor::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_faults.erase(
        std::remove_if(m_faults.begin(), m_faults.end(), [](const Entry &entry) { return !entry.isPermanent; }),
        m_faults.end());
    m_changed.notify_all();
}

bool PortMonitor::isConnected() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_connected;
}

bool PortMonitor::setConnected(bool connected)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_connected == connected)
        return false;
    m_connected = connected;
    if (!connected)
        ++m_losses;
    m_changed.notify_all();
    return true;
}

bool PortMonitor::waitUntilStalled(std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, timeout, [this] { return m_stalled > 0; });
}

PortMonitor::Counts PortMonitor::counts() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_counts;
}

void PortMonitor::resetCounts()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_counts = {};
}

void PortMonitor::pass(const AddressRange &range, OrvSim::Fault failing, OrvSim::Fault stalling, std::uint64_t &count)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    ++count;
    const std::uint64_t losses = m_losses;
    if (m_connected && has(range, stalling)) {
        ++m_stalled;
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return m_losses != losses || !has(range, stalling); });
        --m_stalled;
    }
    if (!m_connected || m_losses != losses)
        throw GenICam::RuntimeException("The device is not connected", __FILE__, __LINE__);
    if (has(range, failing))
        throw GenICam::RuntimeException("The device does not answer", __FILE__, __LINE__);
}

bool PortMonitor::has(const AddressRange &range, OrvSim::Fault fault) const
{
    return std::any_of(m_faults.begin(), m_faults.end(),
                       [&](const Entry &entry) { return entry.fault == fault && entry.range.overlaps(range); });
}

} // namespace OrvCameraApi
