// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <cstdint>
#include <limits>
#include <optional>

/**
 * How a camera counts time and gain, and how people do.
 *
 * A camera counts time in lines and in clocks. Clocks are cycles of its pixel clock, which is given in MHz; the line
 * time is given in clocks. People count microseconds. Results beyond 64 bits become the nearest number that fits.
 */
namespace OrvGui::FrameArithmetic {

/** The factors of the conversion. A result is 0 if its divisor is 0. */
struct Clock
{
    std::int64_t pixelClock = 0; ///< MHz
    std::int64_t lineTime = 0; ///< clocks
};

struct Exposure
{
    std::int64_t lines = 0;
    std::int64_t clocks = 0;
};

/** The gain (1 + fine / 64) * 2 ^ coarse. */
struct Gain
{
    std::int64_t coarse = 0;
    std::int64_t fine = 0;
};

/** The numbers that an integer parameter takes: minimum, minimum + increment and so on, up to the maximum. */
struct IntRange
{
    std::int64_t minimum = std::numeric_limits<std::int64_t>::min();
    std::int64_t maximum = std::numeric_limits<std::int64_t>::max();
    std::int64_t increment = 1; ///< below 1 it counts as that

    /** The only number of a camera that has no such parameter. */
    static IntRange only(std::int64_t value) { return {value, value, 1}; }
};

/** The ranges of the two parts of a gain. */
struct GainRange
{
    IntRange coarse = IntRange::only(0);
    IntRange fine = IntRange::only(0);
};

/**
 * The nearest number of the range, the greater one of two; \a value itself if the range is empty.
 */
std::int64_t fitted(std::int64_t value, const IntRange &range);

/** The same for the range of \a param; \a value itself if \a param is null or its range cannot be read. */
std::int64_t fitted(std::int64_t value, OrvGenParam::Int *param);

/** The range of \a param; nothing if it is null or cannot be read. */
std::optional<IntRange> rangeOf(OrvGenParam::Int *param);

/** In double precision: half a unit is added, and the sum is intentionally cut towards 0, even if it is negative. */
std::int64_t microsecondsOfLines(std::int64_t lines, const Clock &clock);
std::int64_t linesOfMicroseconds(std::int64_t microseconds, const Clock &clock);

/** Microseconds, cut to a whole number. */
std::int64_t exposureTime(const Exposure &exposure, const Clock &clock);

/** As many lines as fit into \a microseconds, and the clocks that are left; nothing when one of the clocks is 0. */
std::optional<Exposure> splitExposure(std::int64_t microseconds, const Clock &clock);

/** Always finite: a coarse gain beyond 512 or -512 counts as that. */
double composedGain(const Gain &gain);

/**
 * Coarse: how many times the whole part of \a gain can be halved, 0 when it is below 2. Fine: what is left, cut to a
 * whole number. NaN is taken as 1.
 */
Gain splitGain(double gain);

/** The parts next to those of \a from that are taken and make a greater gain, or a less one; \a from at the end. */
Gain nextGain(const Gain &from, bool isGreater, const GainRange &range);

/**
 * The parts for a step from \a from to the gain \a to: splitGain() of \a to, fitted to the range. If the camera cannot
 * resolve the step, the result would be \a from or lie behind it; then it is nextGain().
 */
Gain steppedGain(const Gain &from, double to, const GainRange &range);

} // namespace OrvGui::FrameArithmetic
