// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <OrvCameraGuiApi/widgets/captions.h>
#include <OrvCameraGuiApi/widgets/compositefocus.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/sliderpopup.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

namespace {

/** The keys that open a combo box. */
bool opensPopUp(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return (event.key() == Qt::Key_F4 && modifiers == Qt::NoModifier)
        || (event.key() == Qt::Key_Down && modifiers == Qt::AltModifier);
}

} // namespace

class QtOrvSpinBoxPrivate : public QObject
{
public:
    QtOrvSpinBoxPrivate(QtOrvSpinBox *owner, Qt::Orientation orientation);
    void init();
    void showButton();
    bool eventFilter(QObject *watched, QEvent *event) override;

    QtOrvSpinBox *const q;
    QtOrvSpinBoxVal64 *const spinBox; // made first: Tab goes from the spin box to the button
    QToolButton *const button;
    QtOrvSlider *const slider;
    Captions captions;
    SpinSliderLink<QtOrvSpinBox, QtOrvSpinBoxVal64, QtOrvSlider> link;
    SliderPopUp popUp;
    CompositeFocus focus;
    bool buttonWanted = true; ///< shown unless read-only
};

QtOrvSpinBoxPrivate::QtOrvSpinBoxPrivate(QtOrvSpinBox *owner, Qt::Orientation orientation)
    : q(owner)
    , spinBox(new QtOrvSpinBoxVal64(owner))
    , button(new QToolButton(owner))
    , slider(new QtOrvSlider(orientation, owner))
    , captions(owner)
    , link(owner, spinBox, slider, WhileDragged::Nothing)
    , popUp(slider, button)
    , focus(owner)
{
}

void QtOrvSpinBoxPrivate::init()
{
    spinBox->setObjectName(QStringLiteral("spinbox"));
    spinBox->setAccelerated(true);
    spinBox->installEventFilter(this);
    slider->setObjectName(QStringLiteral("slider"));
    button->setObjectName(QStringLiteral("button"));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // as high as the spin box
    captions.setSpinBox(spinBox);

    auto *const joined = new QHBoxLayout;
    joined->setObjectName(QStringLiteral("layoutHH"));
    joined->setSpacing(0);
    joined->addWidget(spinBox, 1);
    joined->addWidget(button);
    captions.row()->addLayout(joined);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    q->setFocusProxy(spinBox);
}

void QtOrvSpinBoxPrivate::showButton()
{
    button->setVisible(buttonWanted && !spinBox->isReadOnly());
}

bool QtOrvSpinBoxPrivate::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOpening = watched == spinBox && event->type() == QEvent::KeyPress && !button->isHidden()
        && opensPopUp(*static_cast<QKeyEvent *>(event));
    if (isOpening)
        popUp.open();
    return isOpening || QObject::eventFilter(watched, event);
}

QtOrvSpinBox::QtOrvSpinBox(QWidget *parent)
    : QtOrvSpinBox(Qt::Vertical, parent)
{
}

QtOrvSpinBox::QtOrvSpinBox(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , d(new QtOrvSpinBoxPrivate(this, orientation))
{
    d->init();
}

QtOrvSpinBox::~QtOrvSpinBox() = default;

int QtOrvSpinBox::value() const
{
    return d->link.value();
}

void QtOrvSpinBox::setValue(int value)
{
    d->link.setValue(value);
}

int QtOrvSpinBox::minimum() const
{
    return d->slider->minimum();
}

void QtOrvSpinBox::setMinimum(int minimum)
{
    d->slider->setMinimum(minimum);
}

int QtOrvSpinBox::maximum() const
{
    return d->slider->maximum();
}

void QtOrvSpinBox::setMaximum(int maximum)
{
    d->slider->setMaximum(maximum);
}

void QtOrvSpinBox::setRange(int minimum, int maximum)
{
    d->slider->setRange(minimum, maximum);
}

int QtOrvSpinBox::singleStep() const
{
    return d->link.singleStep();
}

void QtOrvSpinBox::setSingleStep(int step)
{
    d->link.setSingleStep(step);
}

bool QtOrvSpinBox::validate() const
{
    return d->spinBox->validateStepping();
}

void QtOrvSpinBox::setValidate(bool validate)
{
    d->slider->setValidate(validate);
    d->spinBox->setValidateStepping(validate);
}

bool QtOrvSpinBox::validateTyping() const
{
    return d->spinBox->keyboardTracking();
}

void QtOrvSpinBox::setValidateTyping(bool validate)
{
    d->spinBox->setKeyboardTracking(validate);
}

QtOrvSlider::ScaleType QtOrvSpinBox::scaleType() const
{
    return d->slider->scaleType();
}

void QtOrvSpinBox::setScaleType(QtOrvSlider::ScaleType type)
{
    d->slider->setScaleType(type);
}

QString QtOrvSpinBox::prefix() const
{
    return d->spinBox->prefix();
}

void QtOrvSpinBox::setPrefix(const QString &prefix)
{
    d->spinBox->setPrefix(prefix);
}

QString QtOrvSpinBox::suffix() const
{
    return d->spinBox->suffix();
}

void QtOrvSpinBox::setSuffix(const QString &suffix)
{
    d->spinBox->setSuffix(suffix);
}

QString QtOrvSpinBox::leftLabelText() const
{
    return d->captions.leftText();
}

void QtOrvSpinBox::setLeftLabelText(const QString &text)
{
    d->captions.setLeftText(text);
}

QString QtOrvSpinBox::topLabelText() const
{
    return d->captions.topText();
}

void QtOrvSpinBox::setTopLabelText(const QString &text)
{
    d->captions.setTopText(text);
}

QLabel *QtOrvSpinBox::leftLabel() const
{
    return d->captions.left();
}

QLabel *QtOrvSpinBox::topLabel() const
{
    return d->captions.top();
}

bool QtOrvSpinBox::isSliderButtonVisible() const
{
    return !d->button->isHidden();
}

void QtOrvSpinBox::setSliderButtonVisible(bool visible)
{
    d->buttonWanted = visible;
    d->showButton();
}

void QtOrvSpinBox::resizeSlider(int width, int height)
{
    resizeSlider(QSize(width, height));
}

void QtOrvSpinBox::resizeSlider(const QSize &size)
{
    d->slider->resize(size);
}

Qt::Orientation QtOrvSpinBox::sliderOrientation() const
{
    return d->slider->orientation();
}

void QtOrvSpinBox::setSliderOrientation(Qt::Orientation orientation)
{
    if (orientation == sliderOrientation())
        return;
    d->slider->setOrientation(orientation);
    d->popUp.fitOrientation();
}

bool QtOrvSpinBox::isReadOnly() const
{
    return d->spinBox->isReadOnly();
}

void QtOrvSpinBox::setReadOnly(bool readOnly)
{
    d->spinBox->setReadOnly(readOnly);
    d->slider->setEnabled(!readOnly); // before it is hidden: this ends a drag and forgets it
    d->showButton();
    if (readOnly)
        d->slider->hide();
}

QtOrvSpinBoxVal64 *QtOrvSpinBox::spinBox() const
{
    return d->spinBox;
}

QtOrvSlider *QtOrvSpinBox::slider() const
{
    return d->slider;
}

QToolButton *QtOrvSpinBox::toolButton() const
{
    return d->button;
}

void QtOrvSpinBox::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    d->slider->hide();
}
