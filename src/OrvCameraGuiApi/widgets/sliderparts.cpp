#include <OrvCameraGuiApi/widgets/sliderparts.h>

#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QScopedValueRollback>

KeyAwareSlider::KeyAwareSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
{
}

void KeyAwareSlider::keyPressEvent(QKeyEvent *event)
{
    bool steps = false;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        steps = true;
        break;
    default:
        break;
    }
    const QScopedValueRollback<bool> stepping(m_steppedByKey, steps);
    QSlider::keyPressEvent(event);
}

SliderParts::SliderParts(Qt::Orientation orientation, QFrame *parent)
    : frame(parent)
    , maxLabel(new QLabel(parent))
    , minLabel(new QLabel(parent))
    , slider(new KeyAwareSlider(orientation, parent))
{
    installValueAccessibility();
    maxLabel->setObjectName(QStringLiteral("labelMax"));
    minLabel->setObjectName(QStringLiteral("labelMin"));
    slider->setObjectName(QStringLiteral("slider"));
    slider->installEventFilter(frame);
    frame->setFocusProxy(slider);
    arrange();
}

void SliderParts::setOrientation(Qt::Orientation orientation)
{
    if (orientation == slider->orientation())
        return;
    slider->setOrientation(orientation);
    arrange();
}

void SliderParts::setBounds(const QString &minimum, const QString &maximum)
{
    minLabel->setText(minimum);
    maxLabel->setText(maximum);
}

bool SliderParts::takesFocusOut(const QObject *watched, QEvent *event)
{
    if (watched != slider)
        return false;
    if (event->type() == QEvent::Hide)
        slider->setSliderDown(false); // whoever hides it while it is dragged gets the release, not the slider
    if (event->type() != QEvent::FocusOut)
        return false;
    slider->update(); // what it would have done itself
    QFocusEvent focusOut(QEvent::FocusOut, static_cast<QFocusEvent *>(event)->reason());
    QCoreApplication::sendEvent(frame, &focusOut);
    return true;
}

void SliderParts::arrange()
{
    delete frame->layout(); // with the layout in it; the widgets stay
    auto *const vertically = new QVBoxLayout(frame);
    auto *const horizontally = new QHBoxLayout;
    vertically->setObjectName(QStringLiteral("layoutV"));
    vertically->setContentsMargins(0, 0, 0, 0);
    vertically->setSpacing(0);
    horizontally->setObjectName(QStringLiteral("layoutH"));
    horizontally->setContentsMargins(0, 0, 0, 0);
    if (slider->orientation() == Qt::Vertical) {
        horizontally->setSpacing(0);
        horizontally->addWidget(slider);
        maxLabel->setAlignment(Qt::AlignCenter);
        minLabel->setAlignment(Qt::AlignCenter);
        vertically->addWidget(maxLabel);
        vertically->addLayout(horizontally);
        vertically->addWidget(minLabel);
        frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    } else {
        horizontally->setSpacing(6);
        minLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        maxLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        // By the layout, which turns round from right to left; a label itself goes by what its text is.
        horizontally->addWidget(minLabel, 0, Qt::AlignLeft);
        horizontally->addWidget(maxLabel, 0, Qt::AlignRight);
        vertically->addWidget(slider);
        vertically->addLayout(horizontally);
        frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
}
