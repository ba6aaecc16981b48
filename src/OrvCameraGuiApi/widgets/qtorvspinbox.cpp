#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <OrvCameraGuiApi/widgets/captions.h>
#include <OrvCameraGuiApi/widgets/compositefocus.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QBoxLayout>
#include <QToolButton>

class QtOrvSpinBoxPrivate
{
public:
    QtOrvSpinBoxPrivate(QtOrvSpinBox *owner, Qt::Orientation orientation);
    void init();
    void initButton();
    void initSlider();

    void fitOrientation();
    void showButton();
    void openSlider();

    QtOrvSpinBox *const q;
    QtOrvSpinBoxVal64 *const spinBox; // made first: Tab goes from the spin box to the button
    QToolButton *const button;
    QtOrvSlider *const slider;
    Captions captions;
    SpinSliderLink<QtOrvSpinBox, QtOrvSpinBoxVal64, QtOrvSlider> link;
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
    , focus(owner)
{
}

void QtOrvSpinBoxPrivate::init()
{
    spinBox->setObjectName(QStringLiteral("spinbox"));
    spinBox->setAccelerated(true);
    captions.setSpinBox(spinBox);
    initButton();
    initSlider();

    auto *const joined = new QHBoxLayout;
    joined->setObjectName(QStringLiteral("layoutHH"));
    joined->setSpacing(0);
    joined->addWidget(spinBox, 1);
    joined->addWidget(button);
    captions.row()->addLayout(joined);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    q->setFocusProxy(spinBox);
}

void QtOrvSpinBoxPrivate::initButton()
{
    button->setObjectName(QStringLiteral("button"));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // as high as the spin box
    QObject::connect(button, &QToolButton::clicked, q, [this] { openSlider(); });
}

void QtOrvSpinBoxPrivate::initSlider()
{
    slider->setObjectName(QStringLiteral("slider"));
    slider->setWindowFlags(Qt::Popup);
    slider->setAttribute(Qt::WA_WindowPropagation); // looks like the widget it belongs to
    slider->setFrameShape(QFrame::StyledPanel);
    slider->setMaxLabelVisiable(false); // there is no room for them
    slider->setMinLabelVisiable(false);
    QObject::connect(slider, &QtOrvSlider::focusOut, slider, &QWidget::hide);
    fitOrientation();
}

void QtOrvSpinBoxPrivate::fitOrientation()
{
    const bool vertical = slider->orientation() == Qt::Vertical;
    button->setText(vertical ? QStringLiteral("^") : QStringLiteral(">"));
    slider->resize(vertical ? QSize(20, 100) : QSize(100, 20));
}

void QtOrvSpinBoxPrivate::showButton()
{
    button->setVisible(buttonWanted && !spinBox->isReadOnly());
}

void QtOrvSpinBoxPrivate::openSlider()
{
    slider->setLayoutDirection(q->layoutDirection());
    slider->ensurePolished();
    slider->layout()->activate(); // which may make it larger
    QPoint place = button->mapToGlobal(QPoint(0, 0));
    if (slider->orientation() == Qt::Vertical)
        place.ry() -= slider->height();
    else
        place.rx() += q->layoutDirection() == Qt::RightToLeft ? -slider->width() : button->width();
    slider->setGeometry(QRect(place, slider->size()));
    slider->show();
    slider->setFocus(Qt::PopupFocusReason);
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
    d->fitOrientation();
}

bool QtOrvSpinBox::isReadOnly() const
{
    return d->spinBox->isReadOnly();
}

void QtOrvSpinBox::setReadOnly(bool readOnly)
{
    d->spinBox->setReadOnly(readOnly);
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
