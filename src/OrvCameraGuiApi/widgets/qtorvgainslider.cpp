// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>

#include <OrvCameraGuiApi/widgets/captions.h>
#include <OrvCameraGuiApi/widgets/compositefocus.h>
#include <OrvCameraGuiApi/widgets/innerboxes.h>
#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QBoxLayout>

class QtOrvGainSliderPrivate
{
public:
    explicit QtOrvGainSliderPrivate(QtOrvGainSlider *owner);
    void init();

    QtOrvGainSlider *const q;
    // Made first: Tab comes by the focus proxy, and would miss a slider before it.
    QtOrvDoubleSpinBoxVal *const spinBox;
    QtOrvDoubleSlider *const slider;
    Captions captions;
    SpinSliderLink<QtOrvGainSlider, QtOrvDoubleSpinBoxVal, QtOrvDoubleSlider> link;
    CompositeFocus focus;
};

QtOrvGainSliderPrivate::QtOrvGainSliderPrivate(QtOrvGainSlider *owner)
    : q(owner)
    , spinBox(new InnerDoubleSpinBox(owner))
    , slider(new QtOrvDoubleSlider(Qt::Horizontal, owner))
    , captions(owner)
    , link(owner, spinBox, slider, WhileDragged::MovesSlider)
    , focus(owner)
{
}

void QtOrvGainSliderPrivate::init()
{
    slider->setObjectName(QStringLiteral("slider"));
    spinBox->setObjectName(QStringLiteral("spinbox"));
    spinBox->setDecimals(slider->decimals());
    captions.setSpinBox(spinBox);
    captions.row()->addWidget(slider, 1);
    captions.row()->addWidget(spinBox);
    q->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    q->setFocusProxy(spinBox);
}

QtOrvGainSlider::QtOrvGainSlider(QWidget *parent)
    : QWidget(parent)
    , d(new QtOrvGainSliderPrivate(this))
{
    d->init();
}

QtOrvGainSlider::~QtOrvGainSlider() = default;

double QtOrvGainSlider::value() const
{
    return d->link.value();
}

void QtOrvGainSlider::setValue(double value)
{
    d->link.setValue(value);
}

double QtOrvGainSlider::minimum() const
{
    return d->slider->minimum();
}

void QtOrvGainSlider::setMinimum(double minimum)
{
    d->slider->setMinimum(minimum);
}

double QtOrvGainSlider::maximum() const
{
    return d->slider->maximum();
}

void QtOrvGainSlider::setMaximum(double maximum)
{
    d->slider->setMaximum(maximum);
}

void QtOrvGainSlider::setRange(double minimum, double maximum)
{
    d->slider->setRange(minimum, maximum);
}

double QtOrvGainSlider::singleStep() const
{
    return d->link.singleStep();
}

void QtOrvGainSlider::setSingleStep(double step)
{
    d->link.setSingleStep(step);
}

bool QtOrvGainSlider::validate() const
{
    return d->slider->validate();
}

void QtOrvGainSlider::setValidate(bool validate)
{
    d->slider->setValidate(validate);
    d->spinBox->setValidate(validate);
}

bool QtOrvGainSlider::validateTyping() const
{
    return d->spinBox->validateTyping();
}

void QtOrvGainSlider::setValidateTyping(bool validate)
{
    d->spinBox->setValidateTyping(validate);
}

QString QtOrvGainSlider::prefix() const
{
    return d->spinBox->prefix();
}

void QtOrvGainSlider::setPrefix(const QString &prefix)
{
    d->spinBox->setPrefix(prefix);
}

QString QtOrvGainSlider::suffix() const
{
    return d->spinBox->suffix();
}

void QtOrvGainSlider::setSuffix(const QString &suffix)
{
    d->spinBox->setSuffix(suffix);
}

bool QtOrvGainSlider::isReadOnly() const
{
    return d->spinBox->isReadOnly();
}

void QtOrvGainSlider::setReadOnly(bool readOnly)
{
    d->spinBox->setReadOnly(readOnly);
    d->slider->setEnabled(!readOnly);
}

QString QtOrvGainSlider::leftLabelText() const
{
    return d->captions.leftText();
}

void QtOrvGainSlider::setLeftLabelText(const QString &text)
{
    d->captions.setLeftText(text);
}

QString QtOrvGainSlider::topLabelText() const
{
    return d->captions.topText();
}

void QtOrvGainSlider::setTopLabelText(const QString &text)
{
    d->captions.setTopText(text);
}

QLabel *QtOrvGainSlider::leftLabel() const
{
    return d->captions.left();
}

QLabel *QtOrvGainSlider::topLabel() const
{
    return d->captions.top();
}

int QtOrvGainSlider::decimals() const
{
    return d->slider->decimals();
}

void QtOrvGainSlider::setDecimals(int decimals)
{
    d->slider->setDecimals(decimals);
    d->spinBox->setDecimals(d->slider->decimals());
}

QtOrvDoubleSpinBoxVal *QtOrvGainSlider::spinBox() const
{
    return d->spinBox;
}

QtOrvDoubleSlider *QtOrvGainSlider::slider() const
{
    return d->slider;
}
