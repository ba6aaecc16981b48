// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QFrame>
#include <QScopedPointer>

class QLabel;
class QSlider;
class QtOrvSliderPrivate;

/**
 * A slider for integers between two labels that show its bounds, with a linear, logarithmic or square-root scale.
 *
 * A scale other than Linear gives a wide range fine control at its low end. It has fewer positions than values, so
 * value() may differ from the value that was set by up to the width of a position. The bounds are always exact. On a
 * Linear scale positions are values. A QSlider cannot take a range of 2^31 or more: such a range is scaled to its
 * positions, and a drag then skips about every other value.
 *
 * The labels show the bounds in the widget's locale(), without group separators.
 *
 * ## Signals
 *
 * valueChanged() is emitted once for each change of the value, whatever caused it. A step key, or a click beside the
 * handle, changes the value by at least singleStep(), or to the bound; by more if the next position is further away.
 * With validate() the keys of both directions stop at the same grid points, and the step from a bound off the grid is
 * shorter. A page is a tenth of the positions unless the inner slider is given another page step.
 *
 * sliderPressed(), sliderMoved(), sliderReleased() and rangeChanged() are those of a QSlider, but sliderMoved() carries
 * a position of the inner slider, not a value. focusOut() is emitted when the inner slider, which is the focus proxy of
 * this widget, loses the focus; the inner slider itself does not see that event.
 *
 * Assistive tools find a slider with the value, bounds, step and accessible name of this widget.
 *
 * GUI thread only. Numbers have no unit. Arithmetic never overflows. A slot may change the slider but not delete it
 * (QObject::deleteLater() does).
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvSlider : public QFrame
{
    Q_OBJECT
    // Forms set the properties in this order: the bounds while the scale is linear, see setMinimum(); the value last.
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(double log10Coef READ log10Coef WRITE setLog10Coef)
    Q_PROPERTY(ScaleType scaleType READ scaleType WRITE setScaleType)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)
    Q_PROPERTY(bool maxLabelVisiable READ isMaxLabelVisiable WRITE setMaxLabelVisiable)
    Q_PROPERTY(bool minLabelVisiable READ isMinLabelVisiable WRITE setMinLabelVisiable)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /** How values lie along the slider. */
    enum ScaleType {
        Linear, ///< a position for every value, up to a range of 2^31
        Log10, ///< positions grow with the logarithm of the distance from the minimum, plus 10
        Sqrt ///< positions grow with the square root of the distance from the minimum
    };
    Q_ENUM(ScaleType)

    /** Vertical, range 0 to 100, value 0; \a parent owns the slider and may be null. */
    explicit QtOrvSlider(QWidget *parent = nullptr);
    explicit QtOrvSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvSlider() override;

    int minimum() const;
    int maximum() const;
    /**
     * Like setRange() with \a minimum and the \e inner slider's maximum, intentionally. On a scale other than Linear
     * that maximum is a position: use setRange() there. On a Linear range of 2^31 or more it is maximum().
     */
    void setMinimum(int minimum);
    /** Like setRange() with the \e inner slider's minimum, intentionally, and \a maximum: see setMinimum(). */
    void setMaximum(int maximum);

    /** The value at the slider's position, snapped with validate(). */
    int value() const;

    /** The least that a key adds, and the grid of validate(); 1 by default. A step of 0 or less is ignored. */
    int singleStep() const;
    void setSingleStep(int step);

    /**
     * Whether values are snapped to minimum() + k * singleStep(); off by default. Minimum and maximum themselves stay,
     * on the grid or off it. This switch and a new step show in value() at once, but move no slider and emit nothing.
     */
    bool validate() const;
    void setValidate(bool validate);

    /** Linear by default. The value is kept as closely as the new scale allows. */
    ScaleType scaleType() const;
    void setScaleType(ScaleType type);

    /**
     * Positions for every factor of ten on a Log10 scale, 100 by default; fewer if an int could not count them. A
     * number that is not finite, or not greater than 0, is ignored. The value is kept as closely as the new scale
     * allows.
     */
    double log10Coef() const;
    void setLog10Coef(double positions);

    /** Whether a bound's label is shown, if the slider is; both are by default. */
    bool isMaxLabelVisiable() const;
    void setMaxLabelVisiable(bool visible);
    bool isMinLabelVisiable() const;
    void setMinLabelVisiable(bool visible);

    /** Vertical with the maximum's label above and the minimum's below, or horizontal with both labels below. */
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

    /** Whether the value follows while the slider is dragged, not just on release; on by default. */
    bool hasTracking() const;
    void setTracking(bool enable);

    /** The parts, which stay this widget's; only this widget moves or arranges them. */
    QLabel *maxLabel() const;
    QLabel *minLabel() const;
    QSlider *slider() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /** Moves to the position nearest to \a value, limited to the range. */
    void setValue(int value);
    /**
     * Sets new bounds, and keeps a value within them as closely as the scale allows. With \a maximum below \a minimum
     * the minimum is the only value. Emits rangeChanged(), then valueChanged() if the value had to change.
     */
    void setRange(int minimum, int maximum);

Q_SIGNALS:
    void focusOut();
    void valueChanged(int value);
    void sliderPressed();
    void sliderMoved(int position);
    void sliderReleased();
    void rangeChanged(int minimum, int maximum);

private:
    friend class QtOrvSliderPrivate;

    const QScopedPointer<QtOrvSliderPrivate> d;
};
