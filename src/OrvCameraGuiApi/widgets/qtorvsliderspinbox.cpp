// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>

#include <OrvCameraGuiApi/widgets/captions.h>
#include <OrvCameraGuiApi/widgets/compositefocus.h>
#include <OrvCameraGuiApi/widgets/innerboxes.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QBoxLayout>

class QtOrvSliderSpinBoxPrivate
{
public:
    explicit QtOrvSliderSpinBoxPrivate(QtOrvSliderSpinBox *owner);
    void init();

    QtOrvSliderSpinBox *const q;
    // Made first: Tab comes by the focus proxy, and would miss a slider before it.
    QtOrvSpinBoxVal *const spinBox;
    QtOrvSlider *const slider;
    Captions captions;
    SpinSliderLink<QtOrvSliderSpinBox, QtOrvSpinBoxVal, QtOrvSlider> link;
    CompositeFocus focus;
};

QtOrvSliderSpinBoxPrivate::QtOrvSliderSpinBoxPrivate(QtOrvSliderSpinBox *owner)
    : q(owner)
    , spinBox(new InnerSpinBox(owner))
    , slider(new QtOrvSlider(Qt::Horizontal, owner))
    , captions(owner)
    , link(owner, spinBox, slider, WhileDragged::Nothing)
    , focus(owner)
{
}

void QtOrvSliderSpinBoxPrivate::init()
{
    slider->setObjectName(QStringLiteral("slider"));
    spinBox->setObjectName(QStringLiteral("spinbox"));
    spinBox->setAccelerated(true);
    captions.setSpinBox(spinBox);
    captions.row()->addWidget(slider, 1);
    captions.row()->addWidget(spinBox);
    q->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    q->setFocusProxy(spinBox);
}

QtOrvSliderSpinBox::QtOrvSliderSpinBox(QWidget *parent)
    : QWidget(parent)
    , d(new QtOrvSliderSpinBoxPrivate(this))
{
    d->init();
}

QtOrvSliderSpinBox::~QtOrvSliderSpinBox() = default;

int QtOrvSliderSpinBox::value() const
{
    return d->link.value();
}

void QtOrvSliderSpinBox::setValue(int value)
{
    d->link.setValue(value);
}

int QtOrvSliderSpinBox::minimum() const
{
    return d->slider->minimum();
}

void QtOrvSliderSpinBox::setMinimum(int minimum)
{
    d->slider->setMinimum(minimum);
}

int QtOrvSliderSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtOrvSliderSpinBox::setMaximum(int maximum)
{
    d->slider->setMaximum(maximum);
}

void QtOrvSliderSpinBox::setRange(int minimum, int maximum)
{
    d->slider->setRange(minimum, maximum);
}

int QtOrvSliderSpinBox::singleStep() const
{
    return d->link.singleStep();
}

void QtOrvSliderSpinBox::setSingleStep(int step)
{
    d->link.setSingleStep(step);
}

bool QtOrvSliderSpinBox::validate() const
{
    return d->slider->validate();
}

void QtOrvSliderSpinBox::setValidate(bool validate)
{
    d->slider->setValidate(validate);
    d->spinBox->setValidate(validate);
}

bool QtOrvSliderSpinBox::validateTyping() const
{
    return d->spinBox->validateTyping();
}

void QtOrvSliderSpinBox::setValidateTyping(bool validate)
{
    d->spinBox->setValidateTyping(validate);
}

QtOrvSlider::ScaleType QtOrvSliderSpinBox::scaleType() const
{
    return d->slider->scaleType();
}

void QtOrvSliderSpinBox::setScaleType(QtOrvSlider::ScaleType type)
{
    d->slider->setScaleType(type);
}

QString QtOrvSliderSpinBox::prefix() const
{
    return d->spinBox->prefix();
}

void QtOrvSliderSpinBox::setPrefix(const QString &prefix)
{
    d->spinBox->setPrefix(prefix);
}

QString QtOrvSliderSpinBox::suffix() const
{
    return d->spinBox->suffix();
}

void QtOrvSliderSpinBox::setSuffix(const QString &suffix)
{
    d->spinBox->setSuffix(suffix);
}

bool QtOrvSliderSpinBox::isReadOnly() const
{
    return d->spinBox->isReadOnly();
}

void QtOrvSliderSpinBox::setReadOnly(bool readOnly)
{
    d->spinBox->setReadOnly(readOnly);
    d->slider->setEnabled(!readOnly);
}

QString QtOrvSliderSpinBox::leftLabelText() const
{
    return d->captions.leftText();
}

void QtOrvSliderSpinBox::setLeftLabelText(const QString &text)
{
    d->captions.setLeftText(text);
}

QString QtOrvSliderSpinBox::topLabelText() const
{
    return d->captions.topText();
}

void QtOrvSliderSpinBox::setTopLabelText(const QString &text)
{
    d->captions.setTopText(text);
}

QLabel *QtOrvSliderSpinBox::leftLabel() const
{
    return d->captions.left();
}

QLabel *QtOrvSliderSpinBox::topLabel() const
{
    return d->captions.top();
}

QtOrvSpinBoxVal *QtOrvSliderSpinBox::spinBox() const
{
    return d->spinBox;
}

QtOrvSlider *QtOrvSliderSpinBox::slider() const
{
    return d->slider;
}
