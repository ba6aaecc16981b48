#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <QtGlobal>

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
