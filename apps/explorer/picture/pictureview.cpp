// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "pictureview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double leastZoom = 1.0 / 64;
constexpr double mostZoom = 64;
constexpr double zoomStep = 1.25; // of a key, and of a notch of the wheel
constexpr double wheelNotch = 120; // eighths of a degree
constexpr double moveStep = 0.1; // of the view

const QPointF outside(-1, -1);

/** Where the middle of the view may be, along one side of the image. */
double middleWithin(double middle, double length, double shown)
{
    return shown >= length ? length / 2 : std::clamp(middle, shown / 2, length - shown / 2);
}

} // namespace

PictureView::PictureView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("pictureView"));
    setAccessibleName(tr("Picture"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QImage PictureView::setImage(QImage image)
{
    const bool isOtherSize = image.size() != m_image.size();
    m_image.swap(image);
    if (isOtherSize)
        changed();
    update();
    return image;
}

void PictureView::setHint(const QString &hint)
{
    m_hint = hint;
    update();
}

double PictureView::fittingZoom() const
{
    const double dots = devicePixelRatioF();
    const double fitting = std::min(width() * dots / m_image.width(), height() * dots / m_image.height());
    return std::clamp(fitting, leastZoom, mostZoom);
}

double PictureView::zoom() const
{
    return m_fits && !m_image.isNull() ? fittingZoom() : m_zoom;
}

QPointF PictureView::toImage(const QPointF &place) const
{
    return m_middle + (place - QPointF(width(), height()) / 2) / scale();
}

QRectF PictureView::toView(const QRectF &part) const
{
    const double factor = scale();
    return {(part.topLeft() - m_middle) * factor + QPointF(width(), height()) / 2, part.size() * factor};
}

QPoint PictureView::pixelUnderMouse() const
{
    const QPointF place = toImage(m_mouse);
    const QPoint pixel(int(std::floor(place.x())), int(std::floor(place.y())));
    return m_mouse != outside && m_image.rect().contains(pixel) ? pixel : QPoint(-1, -1);
}

void PictureView::fit()
{
    m_fits = true;
    changed();
}

void PictureView::showPixels()
{
    setZoom(1, QRectF(rect()).center());
}

void PictureView::zoomIn()
{
    zoomBy(zoomStep, QRectF(rect()).center());
}

void PictureView::zoomOut()
{
    zoomBy(1 / zoomStep, QRectF(rect()).center());
}

void PictureView::zoomBy(double factor, const QPointF &fixed)
{
    setZoom(zoom() * factor, fixed);
}

/** What is at \a fixed in the view stays there. */
void PictureView::setZoom(double zoom, const QPointF &fixed)
{
    if (m_image.isNull())
        return;
    const QPointF place = toImage(fixed);
    m_zoom = std::clamp(zoom, leastZoom, mostZoom);
    m_fits = false;
    m_middle += place - toImage(fixed);
    changed();
}

void PictureView::move(const QPointF &distance)
{
    m_middle -= distance / scale();
    changed();
}

void PictureView::keepWithin()
{
    const double factor = scale();
    m_middle = {middleWithin(m_middle.x(), m_image.width(), width() / factor),
                middleWithin(m_middle.y(), m_image.height(), height() / factor)};
}

void PictureView::changed()
{
    keepWithin();
    update();
    Q_EMIT zoomChanged();
    Q_EMIT pixelChanged();
}

/** Only the part that is seen, in whole pixels; these keep their edges when they are larger than the screen's. */
void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF target = toView(m_image.rect());
    const QRegion border = QRegion(rect()) - target.toAlignedRect().adjusted(1, 1, -1, -1);
    for (const QRect &part : border)
        painter.fillRect(part, palette().brush(QPalette::Mid));
    if (m_image.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(8, 8, -8, -8), int(Qt::AlignCenter) | Qt::TextWordWrap, m_hint);
    } else {
        const QRectF seen(toImage(QPointF(0, 0)), toImage(QPointF(width(), height())));
        const QRect part = seen.toAlignedRect() & m_image.rect();
        painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom() < 1);
        painter.drawImage(toView(part), m_image, part);
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void PictureView::resizeEvent(QResizeEvent *)
{
    changed();
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    if (event->angleDelta().y() != 0)
        zoomBy(std::pow(zoomStep, event->angleDelta().y() / wheelNotch), event->position());
    event->accept();
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    const QPointF step(width() * moveStep, height() * moveStep);
    switch (event->key()) {
    case Qt::Key_Left:
        return move({step.x(), 0});
    case Qt::Key_Right:
        return move({-step.x(), 0});
    case Qt::Key_Up:
        return move({0, step.y()});
    case Qt::Key_Down:
        return move({0, -step.y()});
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_0:
        return fit();
    case Qt::Key_1:
        return showPixels();
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    m_drags = true;
    m_mouse = event->localPos();
    setCursor(Qt::ClosedHandCursor);
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF distance = event->localPos() - std::exchange(m_mouse, event->localPos());
    if (m_drags && event->buttons() & Qt::LeftButton)
        move(distance);
    else
        Q_EMIT pixelChanged();
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(event);
    m_drags = false;
    unsetCursor();
}

void PictureView::leaveEvent(QEvent *)
{
    m_mouse = outside;
    Q_EMIT pixelChanged();
}
