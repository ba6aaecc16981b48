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
 * A scale other than Linear gives a wide range fine control at its low end. It maps the values to the positions of an
 * inner slider, of which there are fewer: what value() gives back may then be off by up to the width of a position from
 * what was set. The bounds themselves are always met. On a Linear scale positions are values; only a range of 2^31 or
 * wider, which a QSlider cannot take, is scaled to its positions, and a drag then skips every other value or so.
 *
 * The labels show the bounds as the widget's locale() writes them, without group separators.
 *
 * ## Signals
 *
 * valueChanged() tells of a change of the value, however it came about, once. A key that steps, or a click beside the
 * handle, changes the value by at least singleStep(), until the bound, or by as much more as the next position takes.
 * With validate() keys come by the same points of the grid in either direction; from a bound off the grid the step to
 * the next point is shorter. A page is a tenth of the positions, unless the inner slider is given another page step.
 *
 * sliderPressed(), sliderMoved(), sliderReleased() and rangeChanged() are as of a QSlider, except that sliderMoved()
 * carries the position of the inner slider, not a value. focusOut() tells that the inner slider, which has the focus in
 * place of this widget, has lost it; the inner slider itself never learns that.
 *
 * Assistive tools meet a slider that has "value", "minimum", "maximum" and "singleStep" of this widget and its
 * accessible name.
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
        Linear, ///< a position for every value, as far as there are positions
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
     * Like setRange() with \a minimum and the \e inner slider's maximum, intentionally: with a scale other than Linear
     * that is a position, so set both bounds by setRange() then. With a scaled one it is maximum().
     */
    void setMinimum(int minimum);
    /** Like setRange() with the \e inner slider's minimum, intentionally, and \a maximum: see setMinimum(). */
    void setMaximum(int maximum);

    /** What the slider's position stands for, snapped with validate(). */
    int value() const;

    /** What a key adds at least, and the grid of validate(); 1 by default. A step of 0 or less is ignored. */
    int singleStep() const;
    void setSingleStep(int step);

    /**
     * Whether values are snapped to minimum() + k * singleStep(); off by default. Minimum and maximum themselves stay,
     * on the grid or off it. Neither this switch nor a new step moves the slider or emits; value() shows them at once.
     */
    bool validate() const;
    void setValidate(bool validate);

    /** Linear by default. The value is kept as well as the new scale can. */
    ScaleType scaleType() const;
    void setScaleType(ScaleType type);

    /**
     * Positions for every factor of ten on a Log10 scale, 100 by default; fewer where there would be more than an int
     * can count. What is not greater than 0 or not finite is ignored. The value is kept as well as the new scale can.
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

    /** The parts, which stay this widget's. Moving or arranging them is this widget's business. */
    QLabel *maxLabel() const;
    QLabel *minLabel() const;
    QSlider *slider() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /** Moves to the position nearest to \a value, limited to the range. */
    void setValue(int value);
    /**
     * Takes new bounds and keeps the value if it lies within, as well as the scale can. With \a maximum below \a
     * minimum the minimum is the only value. Emits rangeChanged(), then valueChanged() if the value had to change.
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
