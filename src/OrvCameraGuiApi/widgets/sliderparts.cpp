// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/sliderparts.h>

#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QFrame>
#include <QMouseEvent>

#include <algorithm>

KeyAwareSlider::KeyAwareSlider(Qt::Orientation orientation, QWidget *parent)
    : QSlider(orientation, parent)
    , m_ownPageStep(pageStep())
{
}

KeyAwareSlider::Way KeyAwareSlider::wayOf(int action)
{
    switch (action) {
    case SliderSingleStepAdd:
    case SliderPageStepAdd:
        return Way::Up;
    case SliderSingleStepSub:
    case SliderPageStepSub:
        return Way::Down;
    case SliderToMaximum:
        return Way::ToMaximum;
    case SliderToMinimum:
        return Way::ToMinimum;
    default:
        return Way::None;
    }
}

int KeyAwareSlider::positionsOf(int action) const
{
    return action == SliderPageStepAdd || action == SliderPageStepSub ? pageStep() : singleStep();
}

void KeyAwareSlider::setPositions(int first, int last, int step)
{
    constexpr int pages = 10;
    setRange(first, last);
    setSingleStep(step);
    if (pageStep() != m_ownPageStep)
        return;
    m_ownPageStep = int(std::max<qint64>(step, (qint64(last) - first) / pages));
    setPageStep(m_ownPageStep);
}

void KeyAwareSlider::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = along(event->pos());
    m_dragged = false;
    QSlider::mousePressEvent(event);
}

/**
 * A mouse that has not moved along the slider must not move the handle. It would, where a pixel is more than one
 * position.
 */
void KeyAwareSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown() && !m_dragged && along(event->pos()) == m_pressedAt) {
        event->accept();
        return;
    }
    const int before = sliderPosition();
    QSlider::mouseMoveEvent(event);
    m_dragged = m_dragged || sliderPosition() != before;
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

bool SliderParts::changesLocale(const QObject *watched, const QEvent *event) const
{
    return watched == slider && event->type() == QEvent::LocaleChange;
}

QLocale SliderParts::locale() const
{
    QLocale locale = slider->locale();
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

bool SliderParts::takesFocusOut(const QObject *watched, QEvent *event)
{
    if (watched != slider)
        return false;
    if (event->type() == QEvent::Hide)
        slider->setSliderDown(false); // a slider that is hidden during a drag never sees the release
    if (event->type() != QEvent::FocusOut)
        return false;
    slider->update(); // as it would do itself
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
        // Aligned by the layout, which mirrors from right to left; a label goes by the direction of its text.
        horizontally->addWidget(minLabel, 0, Qt::AlignLeft);
        horizontally->addWidget(maxLabel, 0, Qt::AlignRight);
        vertically->addWidget(slider);
        vertically->addLayout(horizontally);
        frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
}
