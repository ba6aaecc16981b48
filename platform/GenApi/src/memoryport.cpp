// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvGenApi/memoryport.h>

namespace OrvGenApi {

MemoryPort::MemoryPort(Background background)
    : m_background(std::move(background))
{
}

MemoryPort::~MemoryPort() = default;

GenApi::EAccessMode MemoryPort::GetAccessMode() const
{
    return GenApi::RW;
}

void MemoryPort::Read(void *buffer, int64_t address, int64_t length)
{
    ++m_reads;
    auto *const bytes = static_cast<uint8_t *>(buffer);
    for (int64_t i = 0; i < length; ++i) {
        const uint64_t at = static_cast<uint64_t>(address) + static_cast<uint64_t>(i);
        const auto found = m_written.find(at);
        bytes[i] = found != m_written.end() ? found->second : m_background ? m_background(at) : uint8_t(0);
    }
}

void MemoryPort::Write(const void *buffer, int64_t address, int64_t length)
{
    ++m_writes;
    const auto *const bytes = static_cast<const uint8_t *>(buffer);
    for (int64_t i = 0; i < length; ++i)
        m_written[static_cast<uint64_t>(address) + static_cast<uint64_t>(i)] = bytes[i];
}

} // namespace OrvGenApi
