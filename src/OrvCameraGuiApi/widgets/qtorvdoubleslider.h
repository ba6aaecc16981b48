// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QFrame>
#include <QScopedPointer>

class QLabel;
class QSlider;
class QtOrvDoubleSliderPrivate;

/**
 * A slider for numbers between two labels that show its bounds. It has a position for every singleStep() from the
 * minimum, and one for the maximum, on the grid or off it.
 *
 * valueChanged() is emitted whenever the slider comes to another position, and when a new range has changed the value.
 * sliderPressed(), sliderMoved(), sliderReleased() and rangeChanged() are those of a QSlider, but sliderMoved() carries
 * a position of the inner slider, not a value. focusOut() is emitted when the inner slider, which is the focus proxy of
 * this widget, loses the focus; the inner slider itself does not see that event.
 *
 * The labels show the bounds in the widget's locale(), without group separators. A page is a tenth of the positions
 * unless the inner slider is given another page step.
 *
 * Assistive tools find a slider with the value, bounds, step and accessible name of this widget.
 *
 * GUI thread only. Numbers have no unit. NaN and infinite bounds and steps are ignored everywhere. A slot may change
 * the slider but not delete it (QObject::deleteLater() does).
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvDoubleSlider : public QFrame
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")
    // Forms set the properties in this order: decimals before the bounds whose labels use them, the value last.
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool validate READ validate WRITE setValidate)
    Q_PROPERTY(bool tracking READ hasTracking WRITE setTracking)
    Q_PROPERTY(bool maxLabelVisiable READ isMaxLabelVisiable WRITE setMaxLabelVisiable)
    Q_PROPERTY(bool minLabelVisiable READ isMinLabelVisiable WRITE setMinLabelVisiable)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    /** Vertical, range 0 to 100 in steps of 1, value 0; \a parent owns the slider and may be null. */
    explicit QtOrvDoubleSlider(QWidget *parent = nullptr);
    explicit QtOrvDoubleSlider(Qt::Orientation orientation, QWidget *parent = nullptr);
    ~QtOrvDoubleSlider() override;

    double minimum() const;
    double maximum() const;
    /** Like setRange() with the other bound unchanged. */
    void setMinimum(double minimum);
    void setMaximum(double maximum);

    /** The value at the slider's position, snapped with validate(). */
    double value() const;

    /**
     * The distance of two positions, 1 by default; evenly more if an int could not count the positions. The value is
     * kept as closely as the new positions allow. A step of 0 or less is ignored.
     */
    double singleStep() const;
    void setSingleStep(double step);

    /**
     * Whether values are snapped to minimum() + k * singleStep(); off by default. Minimum and maximum themselves stay,
     * on the grid or off it. The switch shows in value() at once, but moves no slider and emits nothing.
     */
    bool validate() const;
    void setValidate(bool validate);

    /** Digits behind the point on the labels, 0 to 323; 3 by default. The labels use them from the next range on. */
    int decimals() const;
    void setDecimals(int decimals);

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
    void setValue(double value);
    /**
     * Sets new bounds, and keeps a value within them as closely as the positions allow. With \a maximum below \a
     * minimum the minimum is the only value. Emits rangeChanged(), then valueChanged() if position or value changed.
     */
    void setRange(double minimum, double maximum);

Q_SIGNALS:
    void focusOut();
    void valueChanged(double value);
    void sliderPressed();
    void sliderMoved(int position);
    void sliderReleased();
    void rangeChanged(double minimum, double maximum);

private:
    friend class QtOrvDoubleSliderPrivate;

    const QScopedPointer<QtOrvDoubleSliderPrivate> d;
};
