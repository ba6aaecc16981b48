// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPort.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <unordered_map>

namespace OrvGenApi {

/**
 * A device that is nothing but memory, byte addressed, over the whole signed 64-bit address range. What was never
 * written reads as the background, a function of the address (0 by default). Reads and writes are counted, one a call.
 *
 * Used under the lock of the node map that is connected to it; the counters may be read from any thread.
 */
class ORV_GENAPI_EXPORT MemoryPort : public GenApi::IPort
{
public:
    using Background = std::function<uint8_t(uint64_t address)>;

    explicit MemoryPort(Background background = {});
    ~MemoryPort() override;
    MemoryPort(const MemoryPort &) = delete;
    MemoryPort &operator=(const MemoryPort &) = delete;

    GenApi::EAccessMode GetAccessMode() const override;
    void Read(void *buffer, int64_t address, int64_t length) override;
    void Write(const void *buffer, int64_t address, int64_t length) override;

    /** Forgets all that was written: every byte is that of the background again. */
    void clear() { m_written.clear(); }

    uint64_t readCount() const { return m_reads; }
    uint64_t writeCount() const { return m_writes; }

private:
    const Background m_background;
    std::unordered_map<uint64_t, uint8_t> m_written;
    std::atomic<uint64_t> m_reads{0};
    std::atomic<uint64_t> m_writes{0};
};

} // namespace OrvGenApi
