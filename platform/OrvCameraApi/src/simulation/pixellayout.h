// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OrvCameraApi {

/** How the pixels of a format lie in memory. */
struct PixelLayout
{
    enum class Kind { Unpacked, Packed, GigePacked, Rgb, Bgr, Yuyv, Uyvy };
    enum class Mosaic { None, GR, RG, GB, BG };

    std::uint32_t code = 0; ///< by the PFNC
    Kind kind = Kind::Unpacked;
    Mosaic mosaic = Mosaic::None;
    unsigned bits = 8; ///< of a component
    const char *name = "";

    bool isColored() const { return kind >= Kind::Rgb; }

    /** The bits that a pixel takes. */
    unsigned pixelBits() const { return code >> 16 & 0xFF; }

    std::uint64_t bytes(std::uint64_t pixels) const { return (pixels * pixelBits() + 7) / 8; }
};

/** The layout of the format with that name, or else with that code, if it can be simulated. */
std::optional<PixelLayout> pixelLayout(const std::string &name, std::int64_t code);

} // namespace OrvCameraApi
