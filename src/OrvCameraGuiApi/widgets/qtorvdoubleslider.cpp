// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>

#include <OrvCameraGuiApi/widgets/sliderparts.h>
#include <OrvCameraGuiApi/widgets/sliderscale.h>

#include <QEvent>
#include <QScopedValueRollback>

#include <cmath>
#include <limits>

class QtOrvDoubleSliderPrivate
{
public:
    QtOrvDoubleSliderPrivate(QtOrvDoubleSlider *owner, Qt::Orientation orientation);
    void init();

    void rescale(const DoubleScale &changed);
    void showBounds();
    void positionChanged();
    QString labelText(double bound) const { return parts.locale().toString(bound, 'f', labelDecimals); }

    QtOrvDoubleSlider *const q;
    SliderParts parts;
    int decimals = 3;
    int labelDecimals = 3; ///< the decimals when the range was last set
    DoubleScale scale;
    bool settling = false; ///< the inner slider moves; the value is announced later, if at all
};

QtOrvDoubleSliderPrivate::QtOrvDoubleSliderPrivate(QtOrvDoubleSlider *owner, Qt::Orientation orientation)
    : q(owner)
    , parts(orientation, owner)
{
}

void QtOrvDoubleSliderPrivate::init()
{
    QObject::connect(parts.slider, &QSlider::valueChanged, q, [this] { positionChanged(); });
    QObject::connect(parts.slider, &QSlider::sliderPressed, q, &QtOrvDoubleSlider::sliderPressed);
    QObject::connect(parts.slider, &QSlider::sliderMoved, q, &QtOrvDoubleSlider::sliderMoved);
    QObject::connect(parts.slider, &QSlider::sliderReleased, q, &QtOrvDoubleSlider::sliderReleased);
    q->setRange(0.0, 100.0);
}

/** Changes the scale and puts the value back. Values on the way are not announced. */
void QtOrvDoubleSliderPrivate::rescale(const DoubleScale &changed)
{
    const double kept = q->value();
    const int keptPosition = parts.slider->value();
    const bool otherRange = changed.minimum() != scale.minimum() || changed.maximum() != scale.maximum();
    scale = changed;
    {
        const QScopedValueRollback<bool> guard(settling, true);
        parts.slider->setPositions(0, scale.lastPosition(), parts.slider->singleStep());
        parts.slider->setValue(scale.positionOf(kept));
    }
    const bool moved = parts.slider->value() != keptPosition || q->value() != kept;
    if (otherRange) {
        labelDecimals = decimals;
        showBounds();
        Q_EMIT q->rangeChanged(scale.minimum(), scale.maximum());
    }
    const Rescaling rescaling(parts.slider);
    if (moved)
        Q_EMIT q->valueChanged(q->value());
}

void QtOrvDoubleSliderPrivate::showBounds()
{
    parts.setBounds(labelText(scale.minimum()), labelText(scale.maximum()));
}

/** Announces each new position, also one that snapping gives the same value. */
void QtOrvDoubleSliderPrivate::positionChanged()
{
    if (!settling)
        Q_EMIT q->valueChanged(q->value());
}

QtOrvDoubleSlider::QtOrvDoubleSlider(QWidget *parent)
    : QtOrvDoubleSlider(Qt::Vertical, parent)
{
}

QtOrvDoubleSlider::QtOrvDoubleSlider(Qt::Orientation orientation, QWidget *parent)
    : QFrame(parent)
    , d(new QtOrvDoubleSliderPrivate(this, orientation))
{
    d->init();
}

QtOrvDoubleSlider::~QtOrvDoubleSlider() = default;

double QtOrvDoubleSlider::minimum() const
{
    return d->scale.minimum();
}

void QtOrvDoubleSlider::setMinimum(double minimum)
{
    setRange(minimum, maximum());
}

double QtOrvDoubleSlider::maximum() const
{
    return d->scale.maximum();
}

void QtOrvDoubleSlider::setMaximum(double maximum)
{
    setRange(minimum(), maximum);
}

double QtOrvDoubleSlider::value() const
{
    return d->scale.valueAt(d->parts.slider->value());
}

void QtOrvDoubleSlider::setValue(double value)
{
    if (!std::isnan(value))
        d->parts.slider->setValue(d->scale.positionOf(value));
}

void QtOrvDoubleSlider::setRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum))
        return;
    maximum = qMax(minimum, maximum);
    if (minimum == d->scale.minimum() && maximum == d->scale.maximum())
        return;
    DoubleScale changed = d->scale;
    changed.setRange(minimum, maximum);
    d->rescale(changed);
}

double QtOrvDoubleSlider::singleStep() const
{
    return d->scale.singleStep();
}

void QtOrvDoubleSlider::setSingleStep(double step)
{
    if (!std::isfinite(step) || step <= 0 || step == singleStep())
        return;
    DoubleScale changed = d->scale;
    changed.setSingleStep(step);
    d->rescale(changed);
}

bool QtOrvDoubleSlider::validate() const
{
    return d->scale.validate();
}

void QtOrvDoubleSlider::setValidate(bool validate)
{
    d->scale.setValidate(validate);
}

int QtOrvDoubleSlider::decimals() const
{
    return d->decimals;
}

void QtOrvDoubleSlider::setDecimals(int decimals)
{
    using Limits = std::numeric_limits<double>;
    d->decimals = qBound(0, decimals, Limits::max_exponent10 + Limits::digits10);
}

bool QtOrvDoubleSlider::isMaxLabelVisiable() const
{
    return !maxLabel()->isHidden();
}

void QtOrvDoubleSlider::setMaxLabelVisiable(bool visible)
{
    maxLabel()->setVisible(visible);
}

bool QtOrvDoubleSlider::isMinLabelVisiable() const
{
    return !minLabel()->isHidden();
}

void QtOrvDoubleSlider::setMinLabelVisiable(bool visible)
{
    minLabel()->setVisible(visible);
}

Qt::Orientation QtOrvDoubleSlider::orientation() const
{
    return d->parts.slider->orientation();
}

void QtOrvDoubleSlider::setOrientation(Qt::Orientation orientation)
{
    d->parts.setOrientation(orientation);
}

bool QtOrvDoubleSlider::hasTracking() const
{
    return d->parts.slider->hasTracking();
}

void QtOrvDoubleSlider::setTracking(bool enable)
{
    d->parts.slider->setTracking(enable);
}

QLabel *QtOrvDoubleSlider::maxLabel() const
{
    return d->parts.maxLabel;
}

QLabel *QtOrvDoubleSlider::minLabel() const
{
    return d->parts.minLabel;
}

QSlider *QtOrvDoubleSlider::slider() const
{
    return d->parts.slider;
}

bool QtOrvDoubleSlider::eventFilter(QObject *watched, QEvent *event)
{
    if (d->parts.changesLocale(watched, event))
        d->showBounds();
    if (!d->parts.takesFocusOut(watched, event))
        return QFrame::eventFilter(watched, event);
    Q_EMIT focusOut();
    return true;
}
