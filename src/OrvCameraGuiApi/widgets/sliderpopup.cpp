// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/sliderpopup.h>

#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QToolButton>

namespace {

/** A \a place larger than the \a room shows its beginning. */
QRect pulledInto(const QRect &room, QRect place)
{
    place.moveRight(qMin(place.right(), room.right()));
    place.moveBottom(qMin(place.bottom(), room.bottom()));
    place.moveTopLeft({qMax(place.left(), room.left()), qMax(place.top(), room.top())});
    return place;
}

} // namespace

SliderPopUp::SliderPopUp(QtOrvSlider *slider, QToolButton *button)
    : m_slider(slider)
    , m_button(button)
{
    m_slider->setWindowFlags(Qt::Popup);
    m_slider->setAttribute(Qt::WA_WindowPropagation); // looks like the widget it belongs to
    m_slider->setFrameShape(QFrame::StyledPanel);
    m_slider->setMaxLabelVisiable(false); // there is no room for them
    m_slider->setMinLabelVisiable(false);
    connect(m_slider, &QtOrvSlider::focusOut, m_slider, &QWidget::hide);
    connect(m_button, &QToolButton::clicked, this, [this] { open(); });
    fitOrientation();
}

bool SliderPopUp::isVertical() const
{
    return m_slider->orientation() == Qt::Vertical;
}

void SliderPopUp::fitOrientation()
{
    m_button->setText(isVertical() ? QStringLiteral("^") : QStringLiteral(">"));
    m_slider->resize(isVertical() ? QSize(20, 100) : QSize(100, 20));
}

void SliderPopUp::open()
{
    m_slider->setLayoutDirection(m_button->layoutDirection());
    m_slider->ensurePolished();
    m_slider->layout()->activate(); // which may make it larger
    m_slider->setGeometry(QRect(firstPlace(), m_slider->size()));
    m_slider->show();
    m_slider->setFocus(Qt::PopupFocusReason);
    // Queued: the slider stands at its first place until the code that opened it has returned.
    QMetaObject::invokeMethod(
        this, [this] { moveOntoScreen(); }, Qt::QueuedConnection);
}

/** Above the button, or beside it where the line ends. */
QPoint SliderPopUp::firstPlace() const
{
    QPoint place = m_button->mapToGlobal(QPoint(0, 0));
    if (isVertical())
        place.ry() -= m_slider->height();
    else
        place.rx() += m_button->layoutDirection() == Qt::RightToLeft ? -m_slider->width() : m_button->width();
    return place;
}

/**
 * A slider that would cover the button goes to the other side if there is room: a press on the button has to close it.
 */
void SliderPopUp::moveOntoScreen()
{
    const QRect opener(m_button->mapToGlobal(QPoint(0, 0)), m_button->size());
    const QScreen *const found = QGuiApplication::screenAt(opener.center());
    const QScreen *const screen = found ? found : m_button->screen();
    if (!screen || !m_slider->isVisible())
        return;
    const QRect room = screen->availableGeometry();
    const QRect place = pulledInto(room, m_slider->geometry());
    const QRect opposite = pulledInto(room, oppositePlace(opener));
    m_slider->move(place.intersects(opener) && !opposite.intersects(opener) ? opposite.topLeft() : place.topLeft());
}

QRect SliderPopUp::oppositePlace(const QRect &opener) const
{
    QRect place = m_slider->geometry();
    if (isVertical())
        place.moveTop(opener.bottom() + 1);
    else if (m_slider->x() > opener.x())
        place.moveRight(opener.left() - 1);
    else
        place.moveLeft(opener.right() + 1);
    return place;
}
