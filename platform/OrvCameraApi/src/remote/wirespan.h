// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>
#include <vector>

namespace OrvCameraApi {

/** The bytes to move for some of them: addresses and lengths on GigE Vision's wire are multiples of 4. */
struct WireSpan
{
    WireSpan(std::uint64_t address, std::uint32_t length)
        : begin(address & ~std::uint64_t(3))
        , offset(std::uint32_t(address - begin))
        , bytes((offset + length + 3) / 4 * 4)
    {
    }

    const std::uint64_t begin;
    const std::uint32_t offset;
    std::vector<std::uint8_t> bytes;
};

} // namespace OrvCameraApi
