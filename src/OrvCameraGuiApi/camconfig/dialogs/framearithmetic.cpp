// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/framearithmetic.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Limits = std::numeric_limits<std::int64_t>;

__extension__ using Wide = __int128; ///< holds a product of two 64-bit numbers, and one more

const double finePerCoarse = 64.0;

std::int64_t clamped(Wide value)
{
    return std::int64_t(std::clamp<Wide>(value, Limits::min(), Limits::max()));
}

/** Cut towards 0. */
std::int64_t clamped(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= double(Limits::max())) // which as a double is one more
        return Limits::max();
    return value <= double(Limits::min()) ? Limits::min() : std::int64_t(value);
}

using namespace OrvGui::FrameArithmetic;

double gainOf(std::int64_t coarse)
{
    return std::ldexp(1.0, int(std::clamp<std::int64_t>(coarse, -512, 512)));
}

/** Like splitGain(), of what is taken. */
Gain fittedGain(double gain, const GainRange &range)
{
    Gain parts;
    parts.coarse = fitted(splitGain(gain).coarse, range.coarse);
    const double base = gainOf(parts.coarse);
    parts.fine = fitted(clamped((gain - base) / base * finePerCoarse), range.fine);
    return parts;
}

/** \a value plus or minus the increment; \a value itself at the end of the range. */
std::int64_t beside(std::int64_t value, bool isGreater, const IntRange &range)
{
    const Wide increment = std::max<std::int64_t>(range.increment, 1);
    return fitted(clamped(isGreater ? value + increment : value - increment), range);
}

/**
 * The fine gains that belong to a coarse one: from 0 on, as far as they do not make what the next coarse one makes.
 * Only the least and the greatest coarse gain have all there are on their side.
 */
IntRange finesOf(std::int64_t coarse, const GainRange &range)
{
    IntRange fines = range.fine;
    if (beside(coarse, false, range.coarse) != coarse)
        fines.minimum = fitted(std::max<std::int64_t>(fines.minimum, 0), range.fine);
    if (beside(coarse, true, range.coarse) != coarse)
        fines.maximum = std::max(fines.minimum, std::min(fines.maximum, std::int64_t(finePerCoarse) - 1));
    return fines;
}

Gain neighbour(const Gain &parts, bool isGreater, const GainRange &range)
{
    const std::int64_t fine = beside(parts.fine, isGreater, finesOf(parts.coarse, range));
    if (isGreater ? fine > parts.fine : fine < parts.fine)
        return {parts.coarse, fine};
    const std::int64_t coarse = beside(parts.coarse, isGreater, range.coarse);
    if (coarse == parts.coarse)
        return parts;
    const IntRange fines = finesOf(coarse, range);
    return {coarse, fitted(isGreater ? fines.minimum : fines.maximum, fines)};
}

bool isBeyond(const Gain &parts, const Gain &from, bool isGreater)
{
    const double difference = composedGain(parts) - composedGain(from);
    return isGreater ? difference > 0 : difference < 0;
}

} // namespace

namespace OrvGui::FrameArithmetic {

std::int64_t fitted(std::int64_t value, const IntRange &range)
{
    if (range.minimum > range.maximum)
        return value;
    const Wide increment = std::max<std::int64_t>(range.increment, 1);
    const Wide inside = std::clamp(value, range.minimum, range.maximum) - Wide(range.minimum);
    const Wide last = (Wide(range.maximum) - range.minimum) / increment;
    return std::int64_t(range.minimum + std::min((inside + increment / 2) / increment, last) * increment);
}

std::optional<IntRange> rangeOf(OrvGenParam::Int *param)
{
    if (!param)
        return std::nullopt;
    OrvCamErr errs[3] = {};
    const IntRange range{param->GetMin(&errs[0]), param->GetMax(&errs[1]), param->GetIncrement(&errs[2])};
    const bool isKnown = std::all_of(errs, errs + 3, [](OrvCamErr err) { return err == OrvCamErr_Ok; });
    return isKnown ? std::optional(range) : std::nullopt;
}

std::int64_t fitted(std::int64_t value, OrvGenParam::Int *param)
{
    const std::optional<IntRange> range = rangeOf(param);
    return range ? fitted(value, *range) : value;
}

std::int64_t microsecondsOfLines(std::int64_t lines, const Clock &clock)
{
    if (clock.pixelClock == 0)
        return 0;
    return clamped(double(lines) * double(clock.lineTime) / double(clock.pixelClock) + 0.5);
}

std::int64_t linesOfMicroseconds(std::int64_t microseconds, const Clock &clock)
{
    if (clock.lineTime == 0)
        return 0;
    return clamped(double(microseconds) * double(clock.pixelClock) / double(clock.lineTime) + 0.5);
}

std::int64_t exposureTime(const Exposure &exposure, const Clock &clock)
{
    if (clock.pixelClock == 0)
        return 0;
    return clamped((Wide(exposure.lines) * clock.lineTime + exposure.clocks) / clock.pixelClock);
}

std::optional<Exposure> splitExposure(std::int64_t microseconds, const Clock &clock)
{
    if (clock.pixelClock == 0 || clock.lineTime == 0)
        return std::nullopt;
    const Wide total = Wide(microseconds) * clock.pixelClock;
    return Exposure{clamped(total / clock.lineTime), clamped(total % clock.lineTime)};
}

double composedGain(const Gain &gain)
{
    return (1.0 + double(gain.fine) / finePerCoarse) * gainOf(gain.coarse);
}

Gain splitGain(double gain)
{
    if (std::isnan(gain))
        return {};
    Gain parts;
    for (std::int64_t whole = clamped(gain); whole > 1; whole >>= 1)
        ++parts.coarse;
    const double base = std::ldexp(1.0, int(parts.coarse));
    parts.fine = clamped((gain - base) / base * finePerCoarse);
    return parts;
}

Gain nextGain(const Gain &from, bool isGreater, const GainRange &range)
{
    Gain parts = fittedGain(composedGain(from), range);
    constexpr int enough = 4; // parts that did not fit, and a grid that does not pass through 0, may cost one each
    for (int i = 0; i < enough; ++i) {
        if (isBeyond(parts, from, isGreater))
            return parts;
        parts = neighbour(parts, isGreater, range);
    }
    return from;
}

Gain steppedGain(const Gain &from, double to, const GainRange &range)
{
    const bool isGreater = to > composedGain(from);
    const Gain parts = fittedGain(to, range);
    return isBeyond(parts, from, isGreater) ? parts : nextGain(from, isGreater, range);
}

} // namespace OrvGui::FrameArithmetic
