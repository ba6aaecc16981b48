// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QRgba64>

#include <type_traits>
#include <utility>
#include <vector>

/** Which of each 2 x 2 pixels is red; the one across is blue. */
struct RedPixel
{
    int x;
    int y;
};

/** A pixel of QImage::Format_RGB32 for samples of 8 bits, of Format_RGBX64 for 16. */
template <typename Sample>
using Pixel = std::conditional_t<sizeof(Sample) == 1, quint32, QRgba64>;

template <typename Sample>
Pixel<Sample> pixelOf(Sample red, Sample green, Sample blue)
{
    if constexpr (sizeof(Sample) == 1)
        return 0xFF000000U | quint32(red) << 16 | quint32(green) << 8 | blue;
    else
        return qRgba64(red, green, blue, 0xFFFF);
}

/**
 * The colors of a Bayer picture, line by line from the first on: what a pixel lacks is the rounded mean of its
 * neighbors. Beyond the edges the picture is mirrored, which keeps the colors in their order.
 */
template <typename Sample>
class Demosaic
{
public:
    Demosaic(int width, int height, RedPixel red)
        : m_width(width)
        , m_height(height)
        , m_red(red)
        , m_buffer(size_t(width + 2) * 8)
    {
        for (int x = 0; x < width; ++x)
            row(6)[x] = row(7)[x + 1] = x & 1 ? Sample(0) : Sample(~Sample(0));
        row(7)[0] = 0;
    }

    /** \a read(y, out) reads a line of samples. */
    template <typename Read>
    void line(int y, const Read &read, Pixel<Sample> *out)
    {
        if (y == 0)
            load(0, read);
        if (y + 1 < m_height)
            load(y + 1, read);
        const bool hasRed = (y & 1) == m_red.y;
        const int colored = hasRed ? m_red.x : 1 - m_red.x; // whether even or odd pixels are not green
        mix(lineNear(y - 1), lineNear(y), lineNear(y + 1), row(colored ? 7 : 6), row(3), row(4), row(5));
        const Sample *const green = row(4);
        const Sample *red = row(3);
        const Sample *blue = row(5);
        if (!hasRed)
            std::swap(red, blue);
        const int width = m_width;
        for (int x = 0; x < width; ++x)
            out[x] = pixelOf<Sample>(red[x], green[x], blue[x]);
    }

private:
    /** Three lines of the picture, three of colors, two of masks; each with a sample more at both ends. */
    Sample *row(int i) { return m_buffer.data() + size_t(m_width + 2) * size_t(i) + 1; }

    const Sample *lineNear(int y)
    {
        if (y < 0)
            y = m_height > 1 ? 1 : 0;
        else if (y >= m_height)
            y = m_height > 1 ? m_height - 2 : 0;
        return row(y % 3);
    }

    template <typename Read>
    void load(int y, const Read &read)
    {
        Sample *const samples = row(y % 3);
        read(y, samples);
        const int inner = m_width > 1 ? 1 : 0;
        samples[-1] = samples[inner];
        samples[m_width] = samples[m_width - 1 - inner];
    }

    /**
     * \a colored is all ones for the pixels that are not green: in both cases all means are made and one is chosen, for
     * which compilers know vector instructions.
     */
    void mix(const Sample *__restrict above, const Sample *__restrict here, const Sample *__restrict below,
             const Sample *__restrict colored, Sample *__restrict own, Sample *__restrict green,
             Sample *__restrict other) const
    {
        const int width = m_width; // bytes that are written might be those of the member
        for (int x = 0; x < width; ++x) {
            const Sum sides = Sum(here[x - 1] + here[x + 1]);
            const Sum ends = Sum(above[x] + below[x]);
            const Sum corners = Sum(above[x - 1] + above[x + 1] + below[x - 1] + below[x + 1]);
            const Sum mask = colored[x];
            own[x] = choose(mask, here[x], Sum(sides + 1) / 2);
            green[x] = choose(mask, Sum(sides + ends + 2) / 4, here[x]);
            other[x] = choose(mask, Sum(corners + 2) / 4, Sum(ends + 1) / 2);
        }
    }

    /** Wide enough for four samples, and no wider. */
    using Sum = std::conditional_t<sizeof(Sample) == 1, quint16, quint32>;

    static Sample choose(unsigned mask, unsigned one, unsigned two) { return Sample((one & mask) | (two & ~mask)); }

    const int m_width;
    const int m_height;
    const RedPixel m_red;
    std::vector<Sample> m_buffer;
};
