// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>

namespace OrvCameraApi {

/** Some bytes of a device, anywhere in the signed 64-bit address range. */
struct AddressRange
{
    std::int64_t address = 0;
    std::int64_t length = 0;

    bool overlaps(const AddressRange &other) const { return covers(other.address) || other.covers(address); }

    bool covers(std::int64_t position) const
    {
        // Unsigned distances cannot overflow.
        return position >= address
            && static_cast<std::uint64_t>(position) - static_cast<std::uint64_t>(address)
            < static_cast<std::uint64_t>(length);
    }
};

} // namespace OrvCameraApi
