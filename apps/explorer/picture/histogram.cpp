// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "histogram.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

void countGray(const uchar *line, int width, Histogram &histogram)
{
    for (int x = 0; x < width; ++x)
        ++histogram.counts[0][line[x]];
}

void countColors(const QRgb *line, int width, Histogram &histogram)
{
    for (int x = 0; x < width; ++x) {
        ++histogram.counts[0][size_t(qRed(line[x]))];
        ++histogram.counts[1][size_t(qGreen(line[x]))];
        ++histogram.counts[2][size_t(qBlue(line[x]))];
    }
}

} // namespace

Histogram histogramOf(const QImage &image)
{
    Histogram histogram;
    histogram.channels = image.isNull() ? 0 : image.depth() == 8 ? 1 : 3;
    for (int y = 0; y < image.height(); ++y) {
        const uchar *const line = image.constScanLine(y);
        if (histogram.channels == 1)
            countGray(line, image.width(), histogram);
        else
            countColors(reinterpret_cast<const QRgb *>(line), image.width(), histogram);
    }
    return histogram;
}

HistogramView::HistogramView(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Histogram"));
    setToolTip(tr("How often each brightness occurs, from black to the largest value"));
}

void HistogramView::setHistogram(const Histogram &histogram)
{
    m_histogram = histogram;
    update();
}

QSize HistogramView::sizeHint() const
{
    return {256, fontMetrics().height() * 5};
}

/** A picture may have many pixels of one value, so the height grows with the root of their number. */
QPolygonF HistogramView::outline(int channel, double highest) const
{
    const auto &counts = m_histogram.counts[size_t(channel)];
    const double step = double(width()) / double(counts.size());
    QPolygonF polygon;
    polygon << QPointF(0, height());
    for (size_t i = 0; i < counts.size(); ++i) {
        const double top = height() * (1 - std::sqrt(counts[i] / highest));
        polygon << QPointF(double(i) * step, top) << QPointF(double(i + 1) * step, top);
    }
    polygon << QPointF(width(), height());
    return polygon;
}

void HistogramView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    quint32 highest = 1;
    for (const auto &counts : m_histogram.counts)
        highest = std::max(highest, *std::max_element(counts.begin(), counts.end()));
    painter.setPen(Qt::NoPen);
    const QColor colors[] = {QColor(217, 57, 50, 150), QColor(46, 157, 84, 150), QColor(58, 132, 212, 150)};
    for (int channel = 0; channel < m_histogram.channels; ++channel) {
        painter.setBrush(m_histogram.channels == 1 ? palette().color(QPalette::Text) : colors[channel]);
        painter.drawPolygon(outline(channel, highest));
    }
}
