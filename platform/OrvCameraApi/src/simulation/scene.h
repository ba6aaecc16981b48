// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace OrvCameraApi {

/**
 * What simulated cameras look at: bands of moving colored bars and of grey ramps, and discs that move before them; or a
 * pattern instead. One moment of it. Depends on nothing but the arguments.
 */
class Scene
{
public:
    enum class Pattern { None, HorizontalRamp, VerticalRamp, DiagonalRamp, Checkerboard };
    enum Channel : std::size_t { Red, Green, Blue, Grey, Channels };

    using Lights = std::array<std::vector<std::uint8_t>, Channels>;

    struct Line
    {
        const Lights &lights; ///< one for each column
        std::int64_t key; ///< the same for lines that are the same; -1 for one that has no other like it
    };

    /** \a columns: the places that are looked at, from left to right or from right to left. */
    Scene(Pattern pattern, std::vector<std::int64_t> columns, std::uint64_t number);

    /** The line at \a y, until the next call. */
    Line line(std::int64_t y);

private:
    struct Color
    {
        std::uint8_t red;
        std::uint8_t green;
        std::uint8_t blue;
    };
    struct Disc
    {
        std::int64_t x;
        std::int64_t y;
        Color color;
    };

    static void paint(Lights &lights, std::size_t column, const Color &color);
    void makeBands(std::uint64_t number);
    void makeDiscs(std::uint64_t number);
    bool paintDiscs(std::int64_t y, const Lights &background);
    Line patternLine(std::int64_t y);

    const Pattern m_pattern;
    const std::vector<std::int64_t> m_columns;
    const bool m_isMirrored;
    Lights m_bars;
    Lights m_ramp;
    Lights m_line;
    std::vector<Disc> m_discs;
};

} // namespace OrvCameraApi
