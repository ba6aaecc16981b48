#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <cstdint>
#include <limits>
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

/** What an integer parameter takes: the numbers minimum, minimum + increment and so on, as far as the maximum. */
struct IntRange
{
    std::int64_t minimum = std::numeric_limits<std::int64_t>::min();
    std::int64_t maximum = std::numeric_limits<std::int64_t>::max();
    std::int64_t increment = 1; ///< below 1 it counts as that

    /** The only number of a camera that has no such parameter. */
    static IntRange only(std::int64_t value) { return {value, value, 1}; }
};

/** What a camera takes of the two parts of a gain. */
struct GainRange
{
    IntRange coarse = IntRange::only(0);
    IntRange fine = IntRange::only(0);
};

/**
 * The nearest number that is taken, the greater one of two; \a value itself if that is, or if none is at all.
 */
std::int64_t fitted(std::int64_t value, const IntRange &range);

/** The same, \a value itself also when there is no \a param or it does not tell what it takes. */
std::int64_t fitted(std::int64_t value, OrvGenParam::Int *param);

/** What \a param takes; nothing when it does not tell, or is null. */
std::optional<IntRange> rangeOf(OrvGenParam::Int *param);

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

/** The parts next to those of \a from that are taken and make a greater gain, or a less one; \a from at the end. */
Gain nextGain(const Gain &from, bool isGreater, const GainRange &range);

/**
 * The parts for a step from \a from to the gain \a to: splitGain() of that, fitted to what is taken. Where a step is
 * less than what the camera can tell apart these would be \a from again, or lie behind it; then it is nextGain().
 */
Gain steppedGain(const Gain &from, double to, const GainRange &range);

} // namespace OrvGui::FrameArithmetic
