#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <OrvCameraGuiApi/widgets/sliderparts.h>
#include <OrvCameraGuiApi/widgets/sliderscale.h>

#include <QEvent>
#include <QScopedValueRollback>

#include <cmath>

class QtOrvSliderPrivate
{
public:
    QtOrvSliderPrivate(QtOrvSlider *owner, Qt::Orientation orientation);
    void init();

    void rescale(const IntegerScale &changed);
    void move(int value);
    void positionChanged(int position);
    void step(int value, bool up);
    void announce(int value);
    int value() const;

    QtOrvSlider *const q;
    SliderParts parts;
    IntegerScale scale;
    int sliderValue = 0; ///< the inner slider's position when it was last looked at
    int lastValue = 0; ///< as last announced
    bool stepped = false; ///< a key has led to lastValue, which is what the position stands for until it changes
    bool settling = false; ///< the inner slider moves on the way to a value that is announced later, if at all
};

QtOrvSliderPrivate::QtOrvSliderPrivate(QtOrvSlider *owner, Qt::Orientation orientation)
    : q(owner)
    , parts(orientation, owner)
{
}

void QtOrvSliderPrivate::init()
{
    QObject::connect(parts.slider, &QSlider::valueChanged, q, [this](int position) { positionChanged(position); });
    QObject::connect(parts.slider, &QSlider::sliderPressed, q, &QtOrvSlider::sliderPressed);
    QObject::connect(parts.slider, &QSlider::sliderMoved, q, &QtOrvSlider::sliderMoved);
    QObject::connect(parts.slider, &QSlider::sliderReleased, q, &QtOrvSlider::sliderReleased);
    q->setRange(0, 100);
}

/** Takes \a changed and puts the value back, so that nobody is told of values that are only passed through. */
void QtOrvSliderPrivate::rescale(const IntegerScale &changed)
{
    const int kept = value();
    const bool otherRange = changed.minimum() != scale.minimum() || changed.maximum() != scale.maximum();
    scale = changed;
    {
        const QScopedValueRollback<bool> guard(settling, true);
        parts.slider->setRange(scale.firstPosition(), scale.lastPosition());
        parts.slider->setSingleStep(scale.type() == QtOrvSlider::Linear ? scale.singleStep() : 1);
    }
    move(kept);
    if (otherRange) {
        parts.setBounds(QString::number(scale.minimum()), QString::number(scale.maximum()));
        Q_EMIT q->rangeChanged(scale.minimum(), scale.maximum());
    }
    announce(value());
}

int QtOrvSliderPrivate::value() const
{
    return stepped ? scale.snapped(lastValue) : scale.valueAt(sliderValue);
}

void QtOrvSliderPrivate::move(int value)
{
    const QScopedValueRollback<bool> guard(settling, true);
    parts.slider->setValue(scale.positionOf(value));
    sliderValue = parts.slider->value();
    stepped = false;
}

void QtOrvSliderPrivate::positionChanged(int position)
{
    if (settling)
        return;
    const int before = value();
    // Which way the slider went tells more than the key: layout direction and inversion turn some of them round.
    const bool up = position > sliderValue;
    sliderValue = position;
    stepped = false;
    if (value() == before && parts.slider->isSteppedByKey())
        step(before, up);
    else
        announce(value());
}

/** Leads on from \a value, from which a key alone has not come away. */
void QtOrvSliderPrivate::step(int value, bool up)
{
    const int target = scale.stepped(value, up);
    move(target);
    // No key leads on from an end, so that has to be the bound.
    stepped = sliderValue != scale.firstPosition() && sliderValue != scale.lastPosition();
    announce(stepped ? target : scale.valueAt(sliderValue));
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
    setRange(minimum, d->parts.slider->maximum()); // intentionally a position, see the header
}

int QtOrvSlider::maximum() const
{
    return d->scale.maximum();
}

void QtOrvSlider::setMaximum(int maximum)
{
    setRange(d->parts.slider->minimum(), maximum); // intentionally a position, see the header
}

int QtOrvSlider::value() const
{
    return d->value();
}

void QtOrvSlider::setValue(int value)
{
    if (!d->stepped || value != d->value()) // else the position alone would stand for another value
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
        d->parts.slider->setSingleStep(step);
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
    if (!d->parts.takesFocusOut(watched, event))
        return QFrame::eventFilter(watched, event);
    Q_EMIT focusOut();
    return true;
}
