#pragma once

#include <cstdint>
#include <optional>

/**
 * How a camera counts time and gain, and how people do.
 *
 * A camera counts time in lines and in clocks: cycles of its pixel clock, which is told in MHz; the line time is told
 * in clocks. People count microseconds. What does not fit into 64 bits becomes the nearest number that does.
 */
namespace OrvGui::FrameArithmetic {

/** What turns one into the other. Nothing is divided by a 0: the answer is then 0. */
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

/** In double precision: half a unit is added, and the sum intentionally cut towards 0, also when it is below 0. */
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

} // namespace OrvGui::FrameArithmetic
