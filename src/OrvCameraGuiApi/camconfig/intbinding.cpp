// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/controlbinding.h>
#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/parameters.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QIntValidator>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>

#include <algorithm>
#include <limits>

/*
 * How controls show integers: bounded to what an int holds, in the units of a converter, between the steps if need be.
 */

namespace {

using namespace OrvGui;
using Kind = OrvCamConfigMapData::Kind;

/** An integer feature as a control shows it. */
struct IntView
{
    int minimum;
    int maximum;
    int step;
    int value;
    std::int64_t trueValue; ///< not limited to what the control can show
    bool isKnown; ///< the value could be read
};

/** \name How a control takes the parts of a view. @{ */
template <typename Control>
void showRange(Control *control, const IntView &view)
{
    control->setRange(view.minimum, view.maximum);
}

/** A QSlider can take no range of 2^31 or more: the bound that is farther from the value moves inwards. */
void showRange(QSlider *slider, const IntView &view)
{
    constexpr std::int64_t widest = std::numeric_limits<int>::max();
    int minimum = view.minimum;
    int maximum = view.maximum;
    if (std::int64_t(maximum) - minimum > widest) {
        if (std::int64_t(maximum) - view.value <= widest)
            minimum = int(maximum - widest);
        else
            maximum = int(minimum + widest);
    }
    slider->setRange(minimum, maximum);
}

template <typename Control>
void showValue(Control *control, int value)
{
    control->setValue(value);
}

/** Only entries are moved to a step, not the camera's value. A field that shows the value keeps what is being typed. */
template <typename Composite>
void showInComposite(Composite *composite, int value)
{
    if (composite->value() != value || SpinSlider::isEmptied(composite->spinBox()))
        SpinSlider::showUnmoved(composite->spinBox(), value);
}

void showValue(QtOrvSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

void showValue(QtOrvSliderSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

/** A slider has no way to show that there is no number. */
void showNothing(QSlider *) { }

void showNothing(QSpinBox *spinBox)
{
    spinBox->clear();
}

template <typename Composite>
void showNothing(Composite *composite)
{
    composite->spinBox()->clear();
}
/** @} */

class LineEditBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    void refresh(OrvGenParam::Param *param, std::int64_t upperClamp) override
    {
        auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
        auto *const lineEdit = qobject_cast<QLineEdit *>(record().control);
        if (!number || !lineEdit)
            return;
        auto *const validator = qobject_cast<QIntValidator *>(const_cast<QValidator *>(lineEdit->validator()));
        if (validator) {
            const std::int64_t maximum = std::min(number->GetMax(nullptr), upperClamp);
            validator->setRange(Integers::clampedToInt(number->GetMin(nullptr)), Integers::clampedToInt(maximum));
        }
        OrvCamErr err = OrvCamErr_Ok;
        const std::int64_t value = std::min(number->GetValue(&err), upperClamp);
        lineEdit->setText(err == OrvCamErr_Ok ? QString::number(value) : QString());
    }
};

/** A spin box or slider of Qt's, which is only refreshed. */
template <typename Control>
class NumberBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    void refresh(OrvGenParam::Param *param, std::int64_t upperClamp) override
    {
        auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
        const QPointer<Control> control(field());
        if (!number || !control)
            return;
        const IntView view = viewOf(number, upperClamp);
        const bool isBeyond = view.isKnown && view.trueValue != view.value;
        noteValue(control, isBeyond ? ControlWatch::numberText(view.trueValue, control) : QString());
        showRange(control.data(), view);
        if (control)
            control->setSingleStep(view.step);
        if (control)
            showValue(control.data(), view.value);
        if (control && !view.isKnown)
            showNothing(control.data());
    }

protected:
    Control *field() const { return qobject_cast<Control *>(record().control); }
    IOrvCamConfigIntConverter *converter() const
    {
        const bool converts = record().type == Kind::Slider || record().type == Kind::SliderSpinBox;
        return converts ? static_cast<IOrvCamConfigIntConverter *>(record().extra) : nullptr;
    }
    std::int64_t toControl(std::int64_t value, OrvGenParam::Int *param) const override
    {
        return converter() ? converter()->ToControl(value, param) : value;
    }

private:
    IntView viewOf(OrvGenParam::Int *param, std::int64_t upperClamp) const
    {
        OrvCamErr err = OrvCamErr_Ok;
        IntView view;
        view.minimum = Integers::clampedToInt(toControl(param->GetMin(nullptr), param));
        view.maximum = std::max(view.minimum,
                                Integers::clampedToInt(std::min(toControl(param->GetMax(nullptr), param), upperClamp)));
        view.step = std::max(1, Integers::clampedToInt(toControl(param->GetIncrement(nullptr), param)));
        view.trueValue = toControl(param->GetValue(&err), param);
        view.isKnown = err == OrvCamErr_Ok;
        view.value =
            std::clamp(Integers::clampedToInt(std::min(view.trueValue, upperClamp)), view.minimum, view.maximum);
        return view;
    }
};

/** A spin box with a slider. */
template <typename Composite>
class CompositeBinding : public NumberBinding<Composite>
{
public:
    using NumberBinding<Composite>::NumberBinding;

    void fill(OrvGenParam::Param *) override
    {
        this->field()->setValidate(true);
        this->field()->setValidateTyping(false);
        this->field()->spinBox()->setEntryGuarded(true);
    }

    /**
     * The release of the slider repeats the number, moved or not, and so does a typed number that is shown already.
     * Only a number that was moved to or typed is an entry.
     */
    void connectEntries(OrvGenParam::Param *param, const ControlBinding::Enter &enter) override
    {
        auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
        Composite *const composite = this->field();
        const auto enterNumber = [=, converter = this->converter()](int value) {
            const auto toDevice = [=] { return converter ? converter->ToDevice(value, number) : value; };
            enter({number, composite, [=] { return differs(number, toDevice()); },
                   [=] { return number->SetValue(toDevice()); }});
        };
        struct Said
        {
            int value;
            bool isMoved;
        };
        const auto said = std::make_shared<Said>(Said{composite->value(), false});
        QObject *const context = this->newContext();
        QObject::connect(composite, QOverload<int>::of(&Composite::valueChanged), context, [=](int value) {
            const bool isSaidAgain = value == said->value && !said->isMoved;
            *said = {value, false};
            if (!isSaidAgain)
                enterNumber(value);
        });
        QObject::connect(composite->slider(), &QtOrvSlider::sliderPressed, context, [=] { said->isMoved = false; });
        QObject::connect(composite->slider(), &QtOrvSlider::sliderMoved, context, [=] { said->isMoved = true; });
        QObject::connect(EntryGuard::of(composite->spinBox()), &EntryGuard::entered, context,
                         [=] { enterNumber(composite->value()); });
    }
};

} // namespace

namespace OrvGui {

std::shared_ptr<ControlBinding> makeIntBinding(const OrvCamConfigMapData &record)
{
    switch (record.type) {
    case Kind::LineEdit:
        return std::make_shared<LineEditBinding>(record);
    case Kind::PlainSpinBox:
        return std::make_shared<NumberBinding<QSpinBox>>(record);
    case Kind::Slider:
        return std::make_shared<NumberBinding<QSlider>>(record);
    case Kind::SpinBox:
        return std::make_shared<CompositeBinding<QtOrvSpinBox>>(record);
    case Kind::SliderSpinBox:
        return std::make_shared<CompositeBinding<QtOrvSliderSpinBox>>(record);
    default:
        return nullptr;
    }
}

} // namespace OrvGui
