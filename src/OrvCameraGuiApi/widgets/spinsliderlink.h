#pragma once

#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QObject>
#include <QScopedValueRollback>
#include <QSlider>

#include <cmath>
#include <limits>
#include <utility>

namespace SpinSlider {

inline auto textSignal(const QtOrvSpinBoxVal64 *)
{
    return QOverload<const QString &>::of(&QtOrvSpinBoxVal64::valueChanged);
}

inline auto textSignal(const QtOrvSpinBoxVal *)
{
    return &QtOrvSpinBoxVal::textChanged;
}

inline auto textSignal(const QtOrvDoubleSpinBoxVal *)
{
    return &QtOrvDoubleSpinBoxVal::textChanged;
}

/** Lets \a spinBox announce its value although that has not changed; with the bare number for a text, intentionally. */
inline void announce(QtOrvSpinBoxVal64 *spinBox)
{
    Q_EMIT spinBox->valueChanged(spinBox->value());
    Q_EMIT spinBox->valueChanged(spinBox->cleanText());
}

/** The same for Qt's spin boxes, in their order. */
template <typename SpinBox>
void announce(SpinBox *spinBox)
{
    Q_EMIT spinBox->textChanged(spinBox->text());
    Q_EMIT spinBox->valueChanged(spinBox->value());
}

inline int numberFor(const QtOrvSpinBoxVal64 *, long long value)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound<long long>(Limits::min(), value, Limits::max()));
}

inline int numberFor(const QtOrvSpinBoxVal *, int value)
{
    return value;
}

inline double numberFor(const QtOrvDoubleSpinBoxVal *, double value)
{
    return value;
}

template <typename SpinBox>
bool shows(const SpinBox *spinBox, int value)
{
    return spinBox->value() == value;
}

/** As well as its decimals can. */
inline bool shows(const QtOrvDoubleSpinBoxVal *spinBox, double value)
{
    constexpr double halfAndError = 0.5 + 1e-6;
    return std::abs(spinBox->value() - value) <= halfAndError * std::pow(10.0, -spinBox->decimals());
}

} // namespace SpinSlider

/** What the spin box still does while the slider is dragged. */
enum class WhileDragged { Nothing, MovesSlider };

/**
 * Keeps a spin box and a slider of a composite in step, and speaks for the composite: with the voice of the spin box,
 * but while the slider is dragged not at all, and once when it is released.
 *
 * Whatever moves the slider sets the spin box. What changes the spin box in another way moves the slider to the nearest
 * position, which does not change the spin box again: a value between the positions can be typed.
 */
template <typename Composite, typename SpinBox, typename Slider>
class SpinSliderLink
{
public:
    using SpinNumber = decltype(std::declval<SpinBox>().value());
    using Number = decltype(std::declval<Slider>().value());

    SpinSliderLink(Composite *composite, SpinBox *spinBox, Slider *slider, WhileDragged whileDragged);

    /** What the spin box shows, and what was announced last unless the slider is being dragged. */
    Number value() const { return SpinSlider::numberFor(m_spinBox, m_spinBox->value()); }
    void setValue(Number value);

    Number singleStep() const { return SpinSlider::numberFor(m_spinBox, m_spinBox->singleStep()); }
    void setSingleStep(Number step);

private:
    void connectSlider();
    void speak();
    void keepSilent();
    void keepInRange();
    void setSpinBox(Number value);
    void moveSlider(SpinNumber value);
    void pressed();
    void released();

    static constexpr auto numberSignal = QOverload<SpinNumber>::of(&SpinBox::valueChanged);

    Composite *const q;
    SpinBox *const m_spinBox;
    Slider *const m_slider;
    const WhileDragged m_whileDragged;
    QObject m_context; ///< whose end is the connections' end: the parts outlive this link by a focus-out
    bool m_movingSlider = false;
    QMetaObject::Connection m_mover;
    QMetaObject::Connection m_numbers;
    QMetaObject::Connection m_texts;
};

template <typename Composite, typename SpinBox, typename Slider>
SpinSliderLink<Composite, SpinBox, Slider>::SpinSliderLink(Composite *composite, SpinBox *spinBox, Slider *slider,
                                                           WhileDragged whileDragged)
    : q(composite)
    , m_spinBox(spinBox)
    , m_slider(slider)
    , m_whileDragged(whileDragged)
{
    m_spinBox->setRange(m_slider->minimum(), m_slider->maximum());
    connectSlider();
    speak();
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::connectSlider()
{
    QObject::connect(m_slider, &Slider::rangeChanged, m_spinBox, &SpinBox::setRange);
    QObject::connect(m_slider, &Slider::rangeChanged, q, &Composite::rangeChanged);
    QObject::connect(m_slider, &Slider::rangeChanged, &m_context, [this] { keepInRange(); });
    QObject::connect(m_slider, &Slider::valueChanged, &m_context, [this](Number value) { setSpinBox(value); });
    QObject::connect(m_slider, &Slider::sliderPressed, &m_context, [this] { pressed(); });
    QObject::connect(m_slider, &Slider::sliderReleased, &m_context, [this] { released(); });
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::speak()
{
    keepSilent();
    if (!m_mover)
        m_mover =
            QObject::connect(m_spinBox, numberSignal, &m_context, [this](SpinNumber value) { moveSlider(value); });
    m_numbers = QObject::connect(m_spinBox, numberSignal, &m_context, [this](SpinNumber value) {
        Q_EMIT q->valueChanged(SpinSlider::numberFor(m_spinBox, value));
    });
    m_texts = QObject::connect(m_spinBox, SpinSlider::textSignal(m_spinBox), &m_context,
                               [this](const QString &text) { Q_EMIT q->valueChanged(text); });
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::keepSilent()
{
    QObject::disconnect(m_numbers);
    QObject::disconnect(m_texts);
}

/** The spin box for 64 bits does not limit its value, and the slider need not have moved for a typed one to be outside.
 */
template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::keepInRange()
{
    if (m_spinBox->value() < m_spinBox->minimum() || m_spinBox->value() > m_spinBox->maximum())
        m_spinBox->setValue(m_slider->value());
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::setSpinBox(Number value)
{
    if (!m_movingSlider)
        m_spinBox->setValue(value);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::moveSlider(SpinNumber value)
{
    if (SpinSlider::shows(m_spinBox, m_slider->value()))
        return; // wherever in its position the slider stands
    const QScopedValueRollback<bool> guard(m_movingSlider, true);
    m_slider->setValue(SpinSlider::numberFor(m_spinBox, value));
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::pressed()
{
    keepSilent();
    if (m_whileDragged == WhileDragged::Nothing)
        QObject::disconnect(m_mover);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::released()
{
    QSlider *const inner = m_slider->slider();
    inner->setValue(inner->sliderPosition()); // without tracking the value would follow only after this signal
    speak();
    const SpinNumber before = m_spinBox->value();
    if (!SpinSlider::shows(m_spinBox, m_slider->value()))
        m_spinBox->setValue(m_slider->value());
    if (m_spinBox->value() == before) // has not said anything
        SpinSlider::announce(m_spinBox);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::setValue(Number value)
{
    if (std::isnan(double(value)))
        return;
    m_slider->setValue(value);
    if (!SpinSlider::shows(m_spinBox, m_slider->value()))
        m_spinBox->setValue(m_slider->value()); // a typed one between the positions, where the slider stood already
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::setSingleStep(Number step)
{
    if (!(step > 0) || !std::isfinite(double(step)) || step == m_spinBox->singleStep())
        return;
    m_spinBox->setSingleStep(step);
    {
        const QScopedValueRollback<bool> guard(m_movingSlider, true);
        m_slider->setSingleStep(step);
    }
    moveSlider(m_spinBox->value()); // finer positions may meet a typed value better
}
