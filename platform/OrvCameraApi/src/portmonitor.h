#pragma once

#include <OrvCameraApi/simulation.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

/** Some bytes of a device, anywhere in the signed 64-bit address range. */
struct AddressRange
{
    std::int64_t address = 0;
    std::int64_t length = 0;

    bool overlaps(const AddressRange &other) const { return covers(other.address) || other.covers(address); }

    bool covers(std::int64_t position) const
    {
        // Distances in unsigned numbers, where they cannot overflow.
        return position >= address
            && static_cast<std::uint64_t>(position) - static_cast<std::uint64_t>(address)
            < static_cast<std::uint64_t>(length);
    }
};

/** Stands at a port: counts what passes and lets accesses fail or hang on request. Any thread may use it. */
class PortMonitor
{
public:
    /** Called before each access; throws GenICam::RuntimeException when it is to fail. */
    void beforeRead(const AddressRange &range)
    {
        pass(range, OrvSim::Fault::FailRead, OrvSim::Fault::StallRead, m_reads);
    }
    void beforeWrite(const AddressRange &range)
    {
        pass(range, OrvSim::Fault::FailWrite, OrvSim::Fault::StallWrite, m_writes);
    }

    void add(const AddressRange &range, OrvSim::Fault fault);

    /** Adds a fault that clear() leaves in place. */
    void addForGood(const AddressRange &range, OrvSim::Fault fault);
    void clear();

    /** Whether accesses get through at all; true at first. */
    bool isConnected() const;

    /** Whether that was a change. What hangs when the connection is lost fails at once. */
    bool setConnected(bool connected);

    /** Whether an access hangs, at the latest after \a timeout. */
    bool waitUntilStalled(std::chrono::milliseconds timeout);

    std::uint64_t readCount() const;
    std::uint64_t writeCount() const;
    void resetCounts();

private:
    struct Entry
    {
        AddressRange range;
        OrvSim::Fault fault;
        bool forGood;
    };

    void pass(const AddressRange &range, OrvSim::Fault failing, OrvSim::Fault stalling, std::uint64_t &count);
    bool has(const AddressRange &range, OrvSim::Fault fault) const;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Entry> m_faults;
    std::uint64_t m_reads = 0;
    std::uint64_t m_writes = 0;
    bool m_connected = true;
    std::uint64_t m_losses = 0;
    int m_stalled = 0;
};

} // namespace OrvCameraApi
