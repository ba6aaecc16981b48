#pragma once

#include <OrvCameraGuiApi/widgets/qtorvslider.h>

/**
 * How the integers of a range lie on the positions of a slider. Whatever the settings: the ends of both meet, neither
 * direction ever turns round, and nothing leaves its range.
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
    int positionStep() const; ///< the positions of a single step

    /**
     * Whether there are more values on a linear scale than a slider can take positions: two neighbours may share one
     * then. A slider's range has to be narrower than 2^31, see QStyle::sliderPositionFromValue().
     */
    bool isCrowded() const;

    /** Of the value in the range that is nearest to \a value, snapped if values are. */
    int positionOf(int value) const;
    int valueAt(int position) const;

    /** A value of the range, on the grid if values are. */
    int snapped(int value) const;

    struct Stop
    {
        int position;
        int value; ///< which need not be what the position alone stands for
    };

    /**
     * Where a key leads from \a value: \a positions on, but at least a whole step, on the grid if values are, or to the
     * bound. From a value off the grid the next point of the grid is a whole step, so that keys in either direction
     * come by the same points.
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
    double m_positionsPerDecade = 0; ///< log10Coef, or less where that would be too many positions
};

/** How the numbers of a range lie on the positions 0 and up: one a step, and the maximum on the last. */
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

    /** Of the value in the range that is nearest to \a value, which is no NaN; snapped if values are. */
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
    double m_positionWidth = 1; ///< the step, or more where that would be too many positions
};
