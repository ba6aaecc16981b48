// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvCameraGuiApi/widgets/sliderparts.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <QEvent>
#include <QObject>
#include <QScopedValueRollback>

#include <cmath>
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

/** Emits the signals of \a spinBox for an unchanged value. The text is the bare number, intentionally. */
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
    return Integers::clampedToInt(value);
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

/** Compares as precisely as the decimals of the box. */
inline bool shows(const QtOrvDoubleSpinBoxVal *spinBox, double value)
{
    constexpr double halfAndError = 0.5 + 1e-6;
    return std::abs(spinBox->value() - value) <= halfAndError * std::pow(10.0, -spinBox->decimals());
}

/** Whether setValue() with \a value, which is within the range, would change nothing. */
inline bool hasTaken(const QtOrvSpinBoxVal64 *spinBox, int value)
{
    if (!spinBox->validateStepping())
        return spinBox->value() == value;
    const auto number = [spinBox](long long bound) { return numberFor(spinBox, bound); };
    return spinBox->value()
        == snappedToGrid(value, number(spinBox->minimum()), number(spinBox->maximum()), number(spinBox->singleStep()));
}

inline bool hasTaken(const QtOrvSpinBoxVal *spinBox, int value)
{
    return spinBox->value() == (spinBox->validate() ? spinBox->doValidation(value) : value);
}

inline bool hasTaken(const QtOrvDoubleSpinBoxVal *spinBox, double value)
{
    if (spinBox->validate())
        value = spinBox->doValidation(value);
    const double rounded = QString::number(value, 'f', spinBox->decimals()).toDouble(); // as the spin box does
    return spinBox->value() == qBound(spinBox->minimum(), rounded, spinBox->maximum());
}

/** Shows \a value without snapping. */
inline void showUnmoved(QtOrvSpinBoxVal64 *spinBox, long long value)
{
    const bool snaps = spinBox->validateStepping();
    spinBox->setValidateStepping(false);
    spinBox->setValue(value);
    spinBox->setValidateStepping(snaps);
}

inline void showUnmoved(QtOrvSpinBoxVal *spinBox, int value)
{
    spinBox->QSpinBox::setValue(value);
}

inline void showUnmoved(QtOrvDoubleSpinBoxVal *spinBox, double value)
{
    spinBox->QDoubleSpinBox::setValue(value);
}

/** Whether \a field shows no number, although no person has deleted it. */
template <typename Field>
bool isEmptied(const Field *field)
{
    const EntryGuard *const guard = EntryGuard::of(field);
    return field->text() == field->prefix() + field->suffix() && !(guard && guard->isTouched());
}

} // namespace SpinSlider

/** The effect that a change of the spin box has during a drag. */
enum class WhileDragged { Nothing, MovesSlider };

/**
 * Keeps the spin box and the slider of a composite in step and emits the signals of the composite. These are the
 * signals of the spin box, except during a drag, which is announced once, on release.
 *
 * The number is that of the spin box. A person who moves the slider sets it to the slider's value. Any other change of
 * the number moves the slider to the nearest position and leaves the number alone, also between two positions. Another
 * range or scale of the slider only changes a number that lies outside.
 *
 * A bound with more decimals than the spin box shows may be rounded to a number beyond it. That end of the spin box
 * then stands for the bound.
 */
template <typename Composite, typename SpinBox, typename Slider>
class SpinSliderLink : public QObject
{
public:
    using SpinNumber = decltype(std::declval<SpinBox>().value());
    using Number = decltype(std::declval<Slider>().value());

    /**
     * Not a child of \a composite: the connections have to end before the parts are destroyed, which lose the focus
     * then.
     */
    SpinSliderLink(Composite *composite, SpinBox *spinBox, Slider *slider, WhileDragged whileDragged);

    /** The number that the spin box stands for. Except during a drag it has been announced. */
    Number value() const;
    void setValue(Number value);

    Number singleStep() const { return SpinSlider::numberFor(m_spinBox, m_spinBox->singleStep()); }
    void setSingleStep(Number step);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectSlider();
    void connectSpinBox();
    Number bounded(Number value) const { return qBound(m_slider->minimum(), value, m_slider->maximum()); }
    Number standsFor(SpinNumber shown) const { return bounded(SpinSlider::numberFor(m_spinBox, shown)); }
    KeyAwareSlider *inner() const { return static_cast<KeyAwareSlider *>(m_slider->slider()); }

    void keep();
    void stand(Number value);
    void enter(Number value);
    void fitRange();
    void sliderChanged();
    void goOnToBound(int action);
    void moveSlider();
    void pressed();
    void released();
    void dropDrag();

    Composite *const q;
    SpinBox *const m_spinBox;
    Slider *const m_slider;
    const WhileDragged m_whileDragged;
    SpinNumber m_shown{}; ///< the last known value of the spin box
    Number m_value{}; ///< the number that m_shown stands for
    SpinNumber m_beforeDrag{};
    SpinNumber m_dragged{}; ///< the last value that the present drag has set
    bool m_isDragged = false;
    bool m_movingSlider = false;
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
    keep();
    m_spinBox->installEventFilter(this);
    connectSlider();
    connectSpinBox();
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::connectSlider()
{
    connect(m_slider, &Slider::rangeChanged, m_spinBox, &SpinBox::setRange);
    connect(m_slider, &Slider::rangeChanged, q, &Composite::rangeChanged);
    connect(m_slider, &Slider::rangeChanged, this, [this] { fitRange(); });
    connect(m_slider, &Slider::valueChanged, this, [this] { sliderChanged(); });
    connect(m_slider, &Slider::sliderPressed, this, [this] { pressed(); });
    connect(m_slider, &Slider::sliderReleased, this, [this] { released(); });
    connect(inner(), &QSlider::actionTriggered, this, [this](int action) { goOnToBound(action); });
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::connectSpinBox()
{
    connect(m_spinBox, QOverload<SpinNumber>::of(&SpinBox::valueChanged), this, [this] {
        keep();
        if (!m_isDragged || m_whileDragged == WhileDragged::MovesSlider)
            moveSlider();
        if (!m_isDragged)
            Q_EMIT q->valueChanged(value());
    });
    connect(m_spinBox, SpinSlider::textSignal(m_spinBox), this, [this](const QString &text) {
        keep();
        if (!m_isDragged)
            Q_EMIT q->valueChanged(text);
    });
}

template <typename Composite, typename SpinBox, typename Slider>
auto SpinSliderLink<Composite, SpinBox, Slider>::value() const -> Number
{
    const SpinNumber shown = m_spinBox->value();
    return shown == m_shown ? m_value : standsFor(shown);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::keep()
{
    m_value = value();
    m_shown = m_spinBox->value();
}

/** Makes the shown number stand for \a value. */
template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::stand(Number value)
{
    if (value == m_value)
        return;
    m_value = value;
    SpinSlider::announce(m_spinBox);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::enter(Number value)
{
    m_spinBox->setValue(value);
    stand(standsFor(m_spinBox->value()));
}

/** Moves a number into the new range; the 64-bit spin box does not do that itself. */
template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::fitRange()
{
    if (m_spinBox->value() < m_spinBox->minimum() || m_spinBox->value() > m_spinBox->maximum())
        m_spinBox->setValue(standsFor(m_spinBox->value()));
    stand(bounded(m_value));
    if (!m_isDragged || m_whileDragged == WhileDragged::MovesSlider)
        moveSlider();
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::sliderChanged()
{
    if (m_movingSlider)
        return;
    if (inner()->isRescaled()) {
        moveSlider();
        return;
    }
    enter(m_slider->value());
    m_dragged = m_spinBox->value();
}

/** Lets a key go on to the bound. With a number between the last two positions the slider is at its end already. */
template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::goOnToBound(int action)
{
    using Way = KeyAwareSlider::Way;
    const Way way = KeyAwareSlider::wayOf(action);
    const bool up = way == Way::Up || way == Way::ToMaximum;
    const Number bound = up ? m_slider->maximum() : m_slider->minimum();
    if (way != Way::None && m_slider->value() == bound && value() != bound)
        enter(bound);
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::moveSlider()
{
    if (SpinSlider::shows(m_spinBox, m_slider->value()))
        return; // the slider stands for the number already
    const QScopedValueRollback<bool> guard(m_movingSlider, true);
    m_slider->setValue(value());
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::pressed()
{
    m_isDragged = true;
    m_beforeDrag = m_spinBox->value();
    m_dragged = m_beforeDrag;
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::released()
{
    if (!inner()->isEnabled()) {
        dropDrag();
        return;
    }
    inner()->setValue(inner()->sliderPosition()); // without tracking the value would follow only after this signal
    m_isDragged = false;
    const SpinNumber before = m_spinBox->value();
    if (inner()->isDragged() && !SpinSlider::shows(m_spinBox, m_slider->value()))
        enter(m_slider->value());
    if (m_spinBox->value() == before) // the spin box has announced nothing
        SpinSlider::announce(m_spinBox);
}

/** The slider was disabled during the drag: the number from before comes back. */
template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::dropDrag()
{
    if (m_spinBox->value() == m_dragged) // else a program has set another number meanwhile
        SpinSlider::showUnmoved(m_spinBox, m_beforeDrag);
    m_isDragged = false;
    inner()->setSliderPosition(inner()->value()); // without tracking it would still become the value
    moveSlider();
}

template <typename Composite, typename SpinBox, typename Slider>
void SpinSliderLink<Composite, SpinBox, Slider>::setValue(Number value)
{
    if (std::isnan(double(value)))
        return;
    value = bounded(value);
    if (!SpinSlider::hasTaken(m_spinBox, value)) // leaves a text that is being typed
        m_spinBox->setValue(value);
    if (value != this->value())
        stand(standsFor(m_spinBox->value()));
    moveSlider();
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
    moveSlider(); // finer positions may meet a typed value better
}

template <typename Composite, typename SpinBox, typename Slider>
bool SpinSliderLink<Composite, SpinBox, Slider>::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_spinBox && event->type() == QEvent::LocaleChange)
        m_slider->setLocale(m_spinBox->locale()); // the bounds look like the number
    return QObject::eventFilter(watched, event);
}
