// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <OrvCameraGuiApi/widgets/integers.h>

#include <algorithm>
#include <cmath>

int snappedToGrid(int value, int minimum, int maximum, int step)
{
    if (step <= 0 || value == minimum || value == maximum)
        return value;
    const qint64 excess = (qint64(value) - minimum) % step;
    qint64 snapped = qint64(value) - excess;
    if (excess != 0 && excess >= step / 2)
        snapped += step;
    return int(std::min<qint64>(snapped, maximum));
}

/** Unsigned: the distance of two 64-bit integers needs all 64 bits. */
long long snappedToGrid(long long value, long long minimum, long long maximum, long long step)
{
    if (step <= 0 || value == minimum || value == maximum)
        return value;
    const auto width = static_cast<quint64>(step);
    const quint64 excess = (static_cast<quint64>(value) - static_cast<quint64>(minimum)) % width;
    if (excess == 0)
        return value;
    if (excess < width / 2)
        return value - static_cast<long long>(excess);
    const quint64 room = static_cast<quint64>(maximum) - static_cast<quint64>(value);
    return width - excess < room ? value + static_cast<long long>(width - excess) : maximum;
}

double snappedToGrid(double value, double minimum, double maximum, double step)
{
    if (!(step > 0) || value == minimum || value == maximum)
        return value;
    const double offset = value - minimum;
    const double steps = offset / step;
    const double excess = (steps - std::trunc(steps)) * step;
    if (!std::isfinite(excess) || excess == 0)
        return std::min(value, maximum);
    // The offset is corrected, not the value: near a grid point that keeps more digits.
    const double snapped = excess < step * 0.5 ? offset - excess : offset + (step - excess);
    return std::min(minimum + snapped, maximum);
}

long long StepTarget::wrapped(long long minimum, long long maximum) const
{
    if (overflow < 0 || value < minimum)
        return maximum;
    return overflow > 0 || value > maximum ? minimum : value;
}

StepTarget stepped(long long from, int steps, long long singleStep)
{
    long long delta = 0;
    long long value = 0;
    if (!__builtin_mul_overflow(singleStep, steps, &delta) && !__builtin_add_overflow(from, delta, &value))
        return {value, 0};
    const bool isUpward = (steps < 0) == (singleStep < 0);
    return isUpward ? StepTarget{Integers::Largest64, 1} : StepTarget{Integers::Smallest64, -1};
}
