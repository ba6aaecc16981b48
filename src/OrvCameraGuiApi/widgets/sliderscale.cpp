// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/sliderscale.h>

#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/** Added to the distance from the minimum before its logarithm is taken, so that the first values lie apart. */
constexpr int logOffset = 10;

/** One less than an int can count: another position may be added. */
constexpr double mostPositions = Integers::Largest - 1;

double rounded(double number)
{
    return std::trunc(number + 0.5);
}

/** \a number * \a to / \a from, rounded. None is above 2^32, and one of \a number and \a to is below 2^31. */
quint64 scaled(quint64 number, quint64 to, quint64 from)
{
    return (number * to + from / 2) / from;
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
    const auto distance = double(width());
    if (m_type == QtOrvSlider::Linear) {
        m_first = isCrowded() ? 0 : m_minimum;
        m_last = isCrowded() ? Integers::Largest : m_maximum;
        return;
    }
    if (m_type == QtOrvSlider::Log10) {
        const double decades = std::log10(distance + logOffset);
        m_positionsPerDecade = std::min(m_log10Coef, mostPositions / decades);
        m_first = int(m_positionsPerDecade); // the minimum lies at logOffset, one decade up
        m_last = int(rounded(decades * m_positionsPerDecade));
    } else {
        m_first = 0;
        m_last = int(rounded(std::sqrt(distance)));
    }
    // One more position reaches the maximum if the last one falls short of it, or if two values share one position.
    if (distance > distanceAt(m_last) || (distance > 0 && m_last == m_first))
        ++m_last;
}

quint64 IntegerScale::width() const
{
    return quint64(qint64(m_maximum) - m_minimum);
}

bool IntegerScale::isCrowded() const
{
    return m_type == QtOrvSlider::Linear && width() > quint64(Integers::Largest);
}

int IntegerScale::positionStep() const
{
    if (m_type != QtOrvSlider::Linear)
        return 1;
    return isCrowded() ? int(std::max<quint64>(1, scaled(quint64(m_singleStep), quint64(m_last), width())))
                       : m_singleStep;
}

/** The distance from the minimum at a position between the ends; on a Log10 scale plus logOffset. */
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
    if (isCrowded()) {
        const quint64 position = scaled(quint64(qint64(value) - m_minimum), quint64(m_last), width());
        return int(qBound<quint64>(1, position, quint64(m_last) - 1)); // the ends are kept for the bounds
    }
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
    if (isCrowded())
        return snapped(int(m_minimum + qint64(scaled(quint64(position), width(), quint64(m_last)))));
    if (m_type == QtOrvSlider::Linear)
        return snapped(position);
    const double distance = distanceAt(position) - (m_type == QtOrvSlider::Log10 ? logOffset : 0);
    return snapped(int(qBound(double(m_minimum), m_minimum + distance, double(m_maximum))));
}

/** \a value a whole step further, at most the bound; on the grid with validate(). */
int IntegerScale::stepped(int value, bool up) const
{
    const qint64 beyondGrid = m_validate ? (qint64(value) - m_minimum) % m_singleStep : 0;
    if (up)
        return int(std::min<qint64>(value - beyondGrid + m_singleStep, m_maximum));
    return int(std::max<qint64>(beyondGrid > 0 ? value - beyondGrid : qint64(value) - m_singleStep, m_minimum));
}

/** The first position that stands for more than \a value, or for less unless \a up; at most the end. */
int IntegerScale::firstBeyond(int value, bool up) const
{
    qint64 near = up ? qint64(m_first) - 1 : qint64(m_last) + 1;
    qint64 beyond = up ? m_last : m_first;
    while (qAbs(beyond - near) > 1) {
        const qint64 middle = near + (beyond - near) / 2;
        const int reached = valueAt(int(middle));
        const bool isBeyond = up ? reached > value : reached < value;
        (isBeyond ? beyond : near) = middle;
    }
    return int(beyond);
}

/** The end positions are kept for the bounds where there is room, so that another key still leads somewhere. */
IntegerScale::Stop IntegerScale::stopAt(int value) const
{
    const int position = positionOf(value);
    const bool isBound = value == m_minimum || value == m_maximum;
    if (isBound || qint64(m_last) - m_first < 2)
        return {position, value};
    return {qBound(m_first + 1, position, m_last - 1), value};
}

IntegerScale::Stop IntegerScale::next(int value, bool up, int positions) const
{
    Stop stop = stopAt(stepped(value, up));
    const auto leadOnTo = [&](int position) {
        const int reached = valueAt(position);
        if (up ? reached >= stop.value : reached <= stop.value)
            stop = {position, reached};
    };
    if (m_type != QtOrvSlider::Linear)
        leadOnTo(firstBeyond(value, up));
    if (positions > positionStep()) {
        const qint64 position = qint64(positionOf(value)) + (up ? positions : -qint64(positions));
        leadOnTo(int(qBound(qint64(m_first), position, qint64(m_last))));
    }
    return stop;
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
        m_last = Integers::Largest;
        m_positionWidth = m_maximum / m_last - m_minimum / m_last;
        return;
    }
    m_last = int(rounded(steps));
    m_positionWidth = m_singleStep;
    // A remainder within the rounding error gets no position of its own.
    const double remainder = m_maximum - std::fma(m_last, m_singleStep, m_minimum);
    const double error =
        4 * std::numeric_limits<double>::epsilon() * std::max(std::abs(m_minimum), std::abs(m_maximum));
    if (remainder > error || (m_last == 0 && m_maximum > m_minimum))
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
