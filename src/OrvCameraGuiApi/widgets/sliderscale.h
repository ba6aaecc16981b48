// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/qtorvslider.h>

/**
 * Maps the integers of a range to the positions of a slider. With any settings the ends of both meet, both grow in the
 * same direction, and nothing leaves its range.
 */
class IntegerScale
{
public:
    /** \a maximum is not below \a minimum. */
    void setRange(int minimum, int maximum);
    void setType(QtOrvSlider::ScaleType type);
    void setLog10Coef(double positions); ///< greater than 0 and finite
    void setSingleStep(int step) { m_singleStep = step; } ///< greater than 0
    void setValidate(bool validate) { m_validate = validate; }

    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
    QtOrvSlider::ScaleType type() const { return m_type; }
    double log10Coef() const { return m_log10Coef; }
    int singleStep() const { return m_singleStep; }
    bool validate() const { return m_validate; }

    int firstPosition() const { return m_first; }
    int lastPosition() const { return m_last; }
    int positionStep() const; ///< positions in a single step

    /**
     * Whether a linear scale has more values than a slider can have positions, so that two neighbours may share one. A
     * slider's range has to be narrower than 2^31, see QStyle::sliderPositionFromValue().
     */
    bool isCrowded() const;

    /** The position of the value in the range that is nearest to \a value, snapped with validate(). */
    int positionOf(int value) const;
    int valueAt(int position) const;

    /** The nearest value on the grid with validate(), else \a value; both lie in the range. */
    int snapped(int value) const;

    struct Stop
    {
        int position;
        int value; ///< may differ from valueAt(position)
    };

    /**
     * The stop that a key leads to from \a value: \a positions further, but at least a whole step and at most the
     * bound; on the grid with validate(). From a value off the grid the next grid point counts as a whole step, so that
     * the keys of both directions stop at the same points.
     */
    Stop next(int value, bool up, int positions) const;

private:
    void update();
    double distanceAt(int position) const;
    quint64 width() const;
    int stepped(int value, bool up) const;
    int firstBeyond(int value, bool up) const;
    Stop stopAt(int value) const;

    int m_minimum = 0;
    int m_maximum = 0;
    int m_singleStep = 1;
    double m_log10Coef = 100.0;
    QtOrvSlider::ScaleType m_type = QtOrvSlider::Linear;
    bool m_validate = false;

    int m_first = 0;
    int m_last = 0;
    double m_positionsPerDecade = 0; ///< log10Coef, or less if an int could not count the positions
};

/** Maps the numbers of a range to the positions 0 and up: one position a step, and the maximum on the last one. */
class DoubleScale
{
public:
    /** Both finite, \a maximum not below \a minimum. */
    void setRange(double minimum, double maximum);
    void setSingleStep(double step); ///< greater than 0 and finite
    void setValidate(bool validate) { m_validate = validate; }

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double singleStep() const { return m_singleStep; }
    bool validate() const { return m_validate; }

    int lastPosition() const { return m_last; }

    /**
     * The position of the number in the range that is nearest to \a value, which is no NaN; snapped with validate().
     */
    int positionOf(double value) const;
    double valueAt(int position) const;

private:
    void update();
    double snapped(double value) const;

    double m_minimum = 0;
    double m_maximum = 0;
    double m_singleStep = 1;
    bool m_validate = false;

    int m_last = 0;
    double m_positionWidth = 1; ///< the step, or more if an int could not count the positions
};
