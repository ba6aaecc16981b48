#include <OrvCameraGuiApi/widgets/sliderscale.h>

#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/** Added to the distance from the minimum before its logarithm is taken, so that the first values lie apart. */
constexpr int logOffset = 10;

/** Leaves an int room for one position more. */
constexpr double mostPositions = std::numeric_limits<int>::max() - 1;

double rounded(double number)
{
    return std::trunc(number + 0.5);
}

/** (\a to - \a from) / \a unit, also where the difference alone would be infinite. */
double quotient(double from, double to, double unit)
{
    const double difference = to - from;
    return std::isfinite(difference) ? difference / unit : to / unit - from / unit;
}

} // namespace

void IntegerScale::setRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    update();
}

void IntegerScale::setType(QtOrvSlider::ScaleType type)
{
    m_type = type;
    update();
}

void IntegerScale::setLog10Coef(double positions)
{
    m_log10Coef = positions;
    update();
}

void IntegerScale::update()
{
    const auto width = double(qint64(m_maximum) - m_minimum);
    if (m_type == QtOrvSlider::Linear) {
        m_first = m_minimum;
        m_last = m_maximum;
        return;
    }
    if (m_type == QtOrvSlider::Log10) {
        const double decades = std::log10(width + logOffset);
        m_positionsPerDecade = std::min(m_log10Coef, mostPositions / decades);
        m_first = int(m_positionsPerDecade); // the minimum lies at logOffset, one decade up
        m_last = int(rounded(decades * m_positionsPerDecade));
    } else {
        m_first = 0;
        m_last = int(rounded(std::sqrt(width)));
    }
    // Where the last position falls short of the maximum, or there is just one for two values, one more reaches it.
    if (width > distanceAt(m_last) || (width > 0 && m_last == m_first))
        ++m_last;
}

/** What a position between the ends adds to the minimum; for the logarithm plus logOffset. */
double IntegerScale::distanceAt(int position) const
{
    if (m_type == QtOrvSlider::Log10)
        return rounded(std::pow(10.0, position / m_positionsPerDecade));
    return double(position) * position;
}

int IntegerScale::snapped(int value) const
{
    return m_validate ? snappedToGrid(value, m_minimum, m_maximum, m_singleStep) : value;
}

int IntegerScale::positionOf(int value) const
{
    value = snapped(qBound(m_minimum, value, m_maximum));
    if (value == m_maximum)
        return m_last;
    if (value == m_minimum)
        return m_first;
    if (m_type == QtOrvSlider::Linear)
        return value;
    const auto distance = double(qint64(value) - m_minimum);
    const double position =
        m_type == QtOrvSlider::Log10 ? std::log10(distance + logOffset) * m_positionsPerDecade : std::sqrt(distance);
    return qBound(m_first, int(rounded(position)), m_last);
}

int IntegerScale::valueAt(int position) const
{
    if (position >= m_last)
        return m_maximum;
    if (position <= m_first)
        return m_minimum;
    if (m_type == QtOrvSlider::Linear)
        return snapped(position);
    const double distance = distanceAt(position) - (m_type == QtOrvSlider::Log10 ? logOffset : 0);
    return snapped(int(qBound(double(m_minimum), m_minimum + distance, double(m_maximum))));
}

int IntegerScale::stepped(int value, bool up) const
{
    if (up)
        return int(std::min(qint64(value) + m_singleStep, qint64(m_maximum)));
    const qint64 target = std::max(qint64(value) - m_singleStep, qint64(m_minimum));
    // Only the maximum can lie off the grid here, so the way up needs no such correction.
    return int(m_validate ? target - (target - m_minimum) % m_singleStep : target);
}

void DoubleScale::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    update();
}

void DoubleScale::setSingleStep(double step)
{
    m_singleStep = step;
    update();
}

void DoubleScale::update()
{
    const double steps = quotient(m_minimum, m_maximum, m_singleStep);
    if (!(steps <= mostPositions)) {
        m_last = std::numeric_limits<int>::max();
        m_positionWidth = m_maximum / m_last - m_minimum / m_last;
        return;
    }
    m_last = int(rounded(steps));
    m_positionWidth = m_singleStep;
    // A rest that is but the error of these numbers gets no position of its own.
    const double rest = m_maximum - std::fma(m_last, m_singleStep, m_minimum);
    const double error =
        4 * std::numeric_limits<double>::epsilon() * std::max(std::abs(m_minimum), std::abs(m_maximum));
    if (rest > error || (m_last == 0 && m_maximum > m_minimum))
        ++m_last;
}

double DoubleScale::snapped(double value) const
{
    return m_validate ? snappedToGrid(value, m_minimum, m_maximum, m_singleStep) : value;
}

int DoubleScale::positionOf(double value) const
{
    value = snapped(qBound(m_minimum, value, m_maximum));
    if (value >= m_maximum)
        return m_last;
    if (value <= m_minimum)
        return 0;
    return int(std::min(rounded(quotient(m_minimum, value, m_positionWidth)), double(m_last)));
}

double DoubleScale::valueAt(int position) const
{
    if (position >= m_last)
        return m_maximum;
    if (position <= 0)
        return m_minimum;
    // Multiplied and added in one, as the product alone may be infinite.
    return std::min(snapped(std::fma(position, m_positionWidth, m_minimum)), m_maximum);
}
