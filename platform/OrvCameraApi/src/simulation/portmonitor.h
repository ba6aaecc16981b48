// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "addressrange.h"

#include <OrvCameraApi/simulation.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

/** Counts the accesses through a port and makes them fail or hang on request. Any thread may use it. */
class PortMonitor
{
public:
    /** Called before each access; throws GenICam::RuntimeException when it is to fail. */
    void beforeRead(const AddressRange &range)
    {
        pass(range, OrvSim::Fault::FailRead, OrvSim::Fault::StallRead, m_counts.reads);
    }
    void beforeWrite(const AddressRange &range)
    {
        pass(range, OrvSim::Fault::FailWrite, OrvSim::Fault::StallWrite, m_counts.writes);
    }

    void add(const AddressRange &range, OrvSim::Fault fault);

    /** Adds a fault that clear() does not end. */
    void addPermanent(const AddressRange &range, OrvSim::Fault fault);
    void clear();

    /** Whether accesses get through at all; true at first. */
    bool isConnected() const;

    /** Returns whether that was a change. An access that hangs fails at once when the connection is lost. */
    bool setConnected(bool connected);

    /** Waits until an access hangs; false when none does within \a timeout. */
    bool waitUntilStalled(std::chrono::milliseconds timeout);

    /** Failed accesses are counted too. */
    struct Counts
    {
        std::uint64_t reads = 0;
        std::uint64_t writes = 0;
    };
    Counts counts() const;
    void resetCounts();

private:
    struct Entry
    {
        AddressRange range;
        OrvSim::Fault fault;
        bool isPermanent;
    };

    void pass(const AddressRange &range, OrvSim::Fault failing, OrvSim::Fault stalling, std::uint64_t &count);
    bool has(const AddressRange &range, OrvSim::Fault fault) const;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Entry> m_faults;
    Counts m_counts;
    bool m_connected = true;
    std::uint64_t m_losses = 0; ///< an access that hangs sees a loss even when the connection is back by then
    int m_stalled = 0;
};

} // namespace OrvCameraApi
