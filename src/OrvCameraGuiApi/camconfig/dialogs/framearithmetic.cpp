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

} // namespace

namespace OrvGui::FrameArithmetic {

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
    const auto exponent = int(std::clamp<std::int64_t>(gain.coarse, -512, 512));
    return std::ldexp(1.0 + double(gain.fine) / finePerCoarse, exponent);
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

} // namespace OrvGui::FrameArithmetic
