// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "addressrange.h"

#include <GenApi/GenApi.h>

#include <cstdint>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace OrvCameraApi {

/**
 * The registers of a simulated device: a byte-addressed memory that is 0 until it is written. Some registers change by
 * themselves; they are unsigned integers of up to 8 bytes, most significant byte first. Any thread may use it.
 */
class RegisterFile final : public GenApi::IPort
{
public:
    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

    /** Each read moves the number by \a step, to and fro between \a low and \a high. */
    void addDrift(const AddressRange &range, std::uint64_t low, std::uint64_t high, std::uint64_t step);

    /** \a value, once written, is read \a reads times and then becomes 0. */
    void addSelfClearing(const AddressRange &range, std::uint64_t value, unsigned reads);

private:
    struct Drift
    {
        AddressRange range;
        std::uint64_t low;
        std::uint64_t high;
        std::uint64_t step;
        bool rising;
    };
    struct SelfClearing
    {
        AddressRange range;
        std::uint64_t value;
        unsigned reads;
        unsigned readsLeft;
    };

    std::uint64_t number(const AddressRange &range) const;
    void setNumber(const AddressRange &range, std::uint64_t value);
    void move(Drift &drift);

    std::mutex m_mutex;
    std::unordered_map<std::uint64_t, std::uint8_t> m_bytes;
    std::vector<Drift> m_drifts;
    std::vector<SelfClearing> m_selfClearings;
};

} // namespace OrvCameraApi
