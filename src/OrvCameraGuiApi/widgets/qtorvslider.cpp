// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <OrvCameraGuiApi/widgets/sliderparts.h>
#include <OrvCameraGuiApi/widgets/sliderscale.h>

#include <QEvent>
#include <QScopedValueRollback>

#include <cmath>
#include <optional>

class QtOrvSliderPrivate
{
public:
    QtOrvSliderPrivate(QtOrvSlider *owner, Qt::Orientation orientation);
    void init();

    void rescale(const IntegerScale &changed);
    void showBounds();
    void move(int value);
    void place(const IntegerScale::Stop &stop);
    void positionChanged(int position);
    void act(int action);
    void announce(int value);
    int value() const;

    QtOrvSlider *const q;
    SliderParts parts;
    IntegerScale scale;
    int sliderValue = 0; ///< the inner slider's last known position
    int lastValue = 0; ///< as last announced
    /** The value of the present position, if a key led to another one than the scale gives. */
    std::optional<int> held;
    bool settling = false; ///< the inner slider moves; the value is announced later, if at all
};

QtOrvSliderPrivate::QtOrvSliderPrivate(QtOrvSlider *owner, Qt::Orientation orientation)
    : q(owner)
    , parts(orientation, owner)
{
}

void QtOrvSliderPrivate::init()
{
    QObject::connect(parts.slider, &QSlider::valueChanged, q, [this](int position) { positionChanged(position); });
    QObject::connect(parts.slider, &QSlider::actionTriggered, q, [this](int action) { act(action); });
    QObject::connect(parts.slider, &QSlider::sliderPressed, q, &QtOrvSlider::sliderPressed);
    QObject::connect(parts.slider, &QSlider::sliderMoved, q, &QtOrvSlider::sliderMoved);
    QObject::connect(parts.slider, &QSlider::sliderReleased, q, &QtOrvSlider::sliderReleased);
    q->setRange(0, 100);
}

/** Changes the scale and puts the value back. Values on the way are not announced. */
void QtOrvSliderPrivate::rescale(const IntegerScale &changed)
{
    const int kept = value();
    const bool otherRange = changed.minimum() != scale.minimum() || changed.maximum() != scale.maximum();
    scale = changed;
    {
        const QScopedValueRollback<bool> guard(settling, true);
        parts.slider->setPositions(scale.firstPosition(), scale.lastPosition(), scale.positionStep());
    }
    move(kept);
    if (otherRange) {
        showBounds();
        Q_EMIT q->rangeChanged(scale.minimum(), scale.maximum());
    }
    const Rescaling rescaling(parts.slider);
    announce(value());
}

void QtOrvSliderPrivate::showBounds()
{
    const QLocale locale = parts.locale();
    parts.setBounds(locale.toString(scale.minimum()), locale.toString(scale.maximum()));
}

int QtOrvSliderPrivate::value() const
{
    return held ? scale.snapped(*held) : scale.valueAt(sliderValue);
}

void QtOrvSliderPrivate::move(int value)
{
    const int position = scale.positionOf(value);
    const bool isExact = scale.type() == QtOrvSlider::Linear;
    place(
        {position, isExact ? scale.snapped(qBound(scale.minimum(), value, scale.maximum())) : scale.valueAt(position)});
}

void QtOrvSliderPrivate::place(const IntegerScale::Stop &stop)
{
    const QScopedValueRollback<bool> guard(settling, true);
    parts.slider->setValue(stop.position);
    sliderValue = parts.slider->value();
    held.reset();
    if (sliderValue == stop.position && scale.valueAt(sliderValue) != stop.value)
        held = stop.value;
}

void QtOrvSliderPrivate::positionChanged(int position)
{
    if (settling)
        return;
    sliderValue = position;
    held.reset();
    announce(value());
}

/** A key moves the value itself: the next position may stand for the same value, or for less than a whole step. */
void QtOrvSliderPrivate::act(int action)
{
    using Way = KeyAwareSlider::Way;
    const Way way = KeyAwareSlider::wayOf(action);
    if (way == Way::None)
        return;
    if (way == Way::ToMinimum || way == Way::ToMaximum)
        move(way == Way::ToMinimum ? scale.minimum() : scale.maximum());
    else
        place(scale.next(value(), way == Way::Up, parts.slider->positionsOf(action)));
    announce(value());
}

void QtOrvSliderPrivate::announce(int value)
{
    if (value == lastValue)
        return;
    lastValue = value;
    Q_EMIT q->valueChanged(value);
}

QtOrvSlider::QtOrvSlider(QWidget *parent)
    : QtOrvSlider(Qt::Vertical, parent)
{
}

QtOrvSlider::QtOrvSlider(Qt::Orientation orientation, QWidget *parent)
    : QFrame(parent)
    , d(new QtOrvSliderPrivate(this, orientation))
{
    d->init();
}

QtOrvSlider::~QtOrvSlider() = default;

int QtOrvSlider::minimum() const
{
    return d->scale.minimum();
}

void QtOrvSlider::setMinimum(int minimum)
{
    // Intentionally a position, see the header.
    setRange(minimum, d->scale.isCrowded() ? maximum() : d->parts.slider->maximum());
}

int QtOrvSlider::maximum() const
{
    return d->scale.maximum();
}

void QtOrvSlider::setMaximum(int maximum)
{
    // Intentionally a position, see the header.
    setRange(d->scale.isCrowded() ? minimum() : d->parts.slider->minimum(), maximum);
}

int QtOrvSlider::value() const
{
    return d->value();
}

void QtOrvSlider::setValue(int value)
{
    if (!d->held || value != d->value()) // moving there would only lose the held value
        d->move(value);
    d->announce(d->value());
}

void QtOrvSlider::setRange(int minimum, int maximum)
{
    maximum = qMax(minimum, maximum);
    if (minimum == d->scale.minimum() && maximum == d->scale.maximum())
        return;
    IntegerScale changed = d->scale;
    changed.setRange(minimum, maximum);
    d->rescale(changed);
}

int QtOrvSlider::singleStep() const
{
    return d->scale.singleStep();
}

void QtOrvSlider::setSingleStep(int step)
{
    if (step <= 0)
        return;
    d->scale.setSingleStep(step);
    if (scaleType() == Linear)
        d->parts.slider->setPositions(d->scale.firstPosition(), d->scale.lastPosition(), d->scale.positionStep());
}

bool QtOrvSlider::validate() const
{
    return d->scale.validate();
}

void QtOrvSlider::setValidate(bool validate)
{
    d->scale.setValidate(validate);
}

QtOrvSlider::ScaleType QtOrvSlider::scaleType() const
{
    return d->scale.type();
}

void QtOrvSlider::setScaleType(ScaleType type)
{
    if (type == scaleType() || type < Linear || type > Sqrt)
        return;
    IntegerScale changed = d->scale;
    changed.setType(type);
    d->rescale(changed);
}

double QtOrvSlider::log10Coef() const
{
    return d->scale.log10Coef();
}

void QtOrvSlider::setLog10Coef(double positions)
{
    if (!std::isfinite(positions) || positions <= 0)
        return;
    IntegerScale changed = d->scale;
    changed.setLog10Coef(positions);
    d->rescale(changed);
}

bool QtOrvSlider::isMaxLabelVisiable() const
{
    return !maxLabel()->isHidden();
}

void QtOrvSlider::setMaxLabelVisiable(bool visible)
{
    maxLabel()->setVisible(visible);
}

bool QtOrvSlider::isMinLabelVisiable() const
{
    return !minLabel()->isHidden();
}

void QtOrvSlider::setMinLabelVisiable(bool visible)
{
    minLabel()->setVisible(visible);
}

Qt::Orientation QtOrvSlider::orientation() const
{
    return d->parts.slider->orientation();
}

void QtOrvSlider::setOrientation(Qt::Orientation orientation)
{
    d->parts.setOrientation(orientation);
}

bool QtOrvSlider::hasTracking() const
{
    return d->parts.slider->hasTracking();
}

void QtOrvSlider::setTracking(bool enable)
{
    d->parts.slider->setTracking(enable);
}

QLabel *QtOrvSlider::maxLabel() const
{
    return d->parts.maxLabel;
}

QLabel *QtOrvSlider::minLabel() const
{
    return d->parts.minLabel;
}

QSlider *QtOrvSlider::slider() const
{
    return d->parts.slider;
}

bool QtOrvSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (d->parts.changesLocale(watched, event))
        d->showBounds();
    if (!d->parts.takesFocusOut(watched, event))
        return QFrame::eventFilter(watched, event);
    Q_EMIT focusOut();
    return true;
}
