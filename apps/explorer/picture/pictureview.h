// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QImage>
#include <QPointF>
#include <QWidget>

/**
 * Shows an image. The wheel zooms around the mouse, dragging and the arrow keys move the image, + and - zoom, 1 shows
 * it pixel by pixel, and 0 fits it into the view, where it stays fitted until it is zoomed.
 */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    /** A null image shows the hint instead. Keeps what is in the middle of the view. Returns the former image. */
    QImage setImage(QImage image);

    const QImage &image() const { return m_image; }

    /** Shown while there is no image. */
    void setHint(const QString &hint);

    /** Pixels of the screen for one of the image. */
    double zoom() const;
    bool fits() const { return m_fits; }

    /** The pixel under the mouse; (-1, -1) if there is none. */
    QPoint pixelUnderMouse() const;

    QSize sizeHint() const override { return {400, 300}; }
    QSize minimumSizeHint() const override { return {80, 60}; }

public Q_SLOTS:
    void fit();
    void showPixels();
    void zoomIn();
    void zoomOut();

Q_SIGNALS:
    /** Perhaps another pixel is under the mouse. */
    void pixelChanged();
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    double fittingZoom() const;
    double scale() const { return zoom() / devicePixelRatioF(); }
    QPointF toImage(const QPointF &place) const;
    QRectF toView(const QRectF &part) const;
    void setZoom(double zoom, const QPointF &fixed);
    void zoomBy(double factor, const QPointF &fixed);
    void move(const QPointF &distance);
    void keepWithin();
    void changed();

    QImage m_image;
    QString m_hint;
    double m_zoom = 1; ///< unless it fits
    bool m_fits = true;
    QPointF m_middle; ///< of the view, in the image
    QPointF m_mouse{-1, -1};
    bool m_drags = false;
};
