// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QImage>
#include <QWidget>

#include <array>

/** How often each value of 8 bits occurs in an image. */
struct Histogram
{
    int channels = 0; ///< 1: gray, 3: red, green, blue
    std::array<std::array<quint32, 256>, 3> counts{};
};

/** Of a Grayscale8 or RGB32 image. On any thread. */
Histogram histogramOf(const QImage &image);

/** Shows a histogram: dark values on the left. */
class HistogramView : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramView(QWidget *parent = nullptr);

    void setHistogram(const Histogram &histogram);
    bool isEmpty() const { return m_histogram.channels == 0; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPolygonF outline(int channel, double highest) const;

    Histogram m_histogram;
};
