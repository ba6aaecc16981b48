// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "registerfile.h"

#include <algorithm>

namespace OrvCameraApi {

void RegisterFile::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    const AddressRange range{address, length};
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Drift &drift : m_drifts) {
        if (drift.range.overlaps(range))
            move(drift);
    }
    auto *const bytes = static_cast<std::uint8_t *>(buffer);
    for (std::int64_t i = 0; i < range.length; ++i) {
        const auto found = m_bytes.find(static_cast<std::uint64_t>(range.address) + static_cast<std::uint64_t>(i));
        bytes[i] = found == m_bytes.end() ? std::uint8_t(0) : found->second;
    }
    for (SelfClearing &clearing : m_selfClearings) {
        if (clearing.readsLeft > 0 && clearing.range.overlaps(range) && --clearing.readsLeft == 0)
            setNumber(clearing.range, 0);
    }
}

void RegisterFile::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    const AddressRange range{address, length};
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto *const bytes = static_cast<const std::uint8_t *>(buffer);
    for (std::int64_t i = 0; i < range.length; ++i)
        m_bytes[static_cast<std::uint64_t>(range.address) + static_cast<std::uint64_t>(i)] = bytes[i];
    for (SelfClearing &clearing : m_selfClearings) {
        if (clearing.range.overlaps(range))
            clearing.readsLeft = number(clearing.range) == clearing.value ? clearing.reads : 0;
    }
}

void RegisterFile::addDrift(const AddressRange &range, std::uint64_t low, std::uint64_t high, std::uint64_t step)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_drifts.push_back({range, low, high, step, true});
}

void RegisterFile::addSelfClearing(const AddressRange &range, std::uint64_t value, unsigned reads)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_selfClearings.push_back({range, value, reads, 0});
}

std::uint64_t RegisterFile::number(const AddressRange &range) const
{
    std::uint64_t value = 0;
    for (std::int64_t i = 0; i < range.length; ++i) {
        const auto found = m_bytes.find(static_cast<std::uint64_t>(range.address) + static_cast<std::uint64_t>(i));
        value = value << 8 | (found == m_bytes.end() ? 0U : found->second);
    }
    return value;
}

void RegisterFile::setNumber(const AddressRange &range, std::uint64_t value)
{
    for (std::int64_t i = range.length; i-- > 0; value >>= 8)
        m_bytes[static_cast<std::uint64_t>(range.address) + static_cast<std::uint64_t>(i)] =
            static_cast<std::uint8_t>(value);
}

void RegisterFile::move(Drift &drift)
{
    const std::uint64_t now = std::clamp(number(drift.range), drift.low, drift.high);
    const std::uint64_t room = drift.rising ? drift.high - now : now - drift.low;
    const std::uint64_t way = std::min(room, drift.step);
    setNumber(drift.range, drift.rising ? now + way : now - way);
    if (way == room)
        drift.rising = !drift.rising;
}

} // namespace OrvCameraApi
