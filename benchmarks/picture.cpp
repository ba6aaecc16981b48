// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "measure.h"
#include "shownpictures.h"

#include <picture/pixelformat.h>

#include <QApplication>

#include <algorithm>
#include <functional>
#include <vector>

namespace {

constexpr int width = 1920;
constexpr int height = 1080;
constexpr int repetitions = 15;

using Bytes = std::vector<uchar>;
using Sample = int (*)(const Bytes &, int);

int byteSample(const Bytes &bytes, int i)
{
    return bytes[size_t(i)];
}

int wordSample(const Bytes &bytes, int i)
{
    return std::min(bytes[size_t(i) * 2] | bytes[size_t(i) * 2 + 1] << 8, 0xFFF);
}

int bitSample(const Bytes &bytes, int i)
{
    const size_t byte = size_t(i) * 12 / 8;
    return (bytes[byte] | bytes[byte + 1] << 8) >> (i % 2 * 4) & 0xFFF;
}

int pairSample(const Bytes &bytes, int i)
{
    const uchar *const group = &bytes[size_t(i) / 2 * 3];
    return group[i % 2 * 2] << 4 | (group[1] >> (i % 2 * 4) & 0xF);
}

/** A loop over all pixels, each by itself, as it is written first; the pattern is RGGB. */
class Naive
{
public:
    Naive(const Bytes &bytes, Sample sample, int bits, bool isDeep)
        : m_bytes(bytes)
        , m_sample(sample)
        , m_bits(bits)
        , m_isDeep(isDeep)
    {
    }

    QImage mono() const
    {
        QImage image(width, height, m_isDeep ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (m_isDeep)
                    reinterpret_cast<quint16 *>(image.scanLine(y))[x] = quint16(at(x, y));
                else
                    image.scanLine(y)[x] = uchar(at(x, y));
            }
        }
        return image;
    }

    QImage bayer() const
    {
        QImage image(width, height, m_isDeep ? QImage::Format_RGBX64 : QImage::Format_RGB32);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const int red = color(x, y, 0, 0);
                const int green = (x + y) % 2 ? at(x, y) : cross(x, y);
                const int blue = color(x, y, 1, 1);
                if (m_isDeep) {
                    reinterpret_cast<QRgba64 *>(image.scanLine(y))[x] =
                        qRgba64(quint16(red), quint16(green), quint16(blue), 0xFFFF);
                } else {
                    reinterpret_cast<QRgb *>(image.scanLine(y))[x] = qRgb(red, green, blue);
                }
            }
        }
        return image;
    }

private:
    static int within(int i, int size) { return i < 0 ? -i : i >= size ? 2 * size - 2 - i : i; }

    int at(int x, int y) const
    {
        const int value = m_sample(m_bytes, within(y, height) * width + within(x, width));
        if (m_isDeep)
            return value << (16 - m_bits) | value >> (2 * m_bits - 16);
        return value >> (m_bits - 8);
    }

    int cross(int x, int y) const { return (at(x - 1, y) + at(x + 1, y) + at(x, y - 1) + at(x, y + 1) + 2) / 4; }

    /** Of the color whose pixels have columns and lines of that parity. */
    int color(int x, int y, int column, int line) const
    {
        if (x % 2 == column && y % 2 == line)
            return at(x, y);
        if (y % 2 == line)
            return (at(x - 1, y) + at(x + 1, y) + 1) / 2;
        if (x % 2 == column)
            return (at(x, y - 1) + at(x, y + 1) + 1) / 2;
        return (at(x - 1, y - 1) + at(x + 1, y - 1) + at(x - 1, y + 1) + at(x + 1, y + 1) + 2) / 4;
    }

    const Bytes &m_bytes;
    const Sample m_sample;
    const int m_bits;
    const bool m_isDeep;
};

QImage naiveRgb(const Bytes &bytes)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uchar *const p = &bytes[size_t(y * width + x) * 3];
            reinterpret_cast<QRgb *>(image.scanLine(y))[x] = qRgb(p[0], p[1], p[2]);
        }
    }
    return image;
}

int part(double value)
{
    return int(std::clamp(value, 0.0, 255.0) + 0.5);
}

QImage naiveYuv(const Bytes &bytes)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const uchar *const pair = &bytes[size_t(y * width + x) / 2 * 4];
            const int luma = pair[x % 2 * 2];
            const int u = pair[1] - 128;
            const int v = pair[3] - 128;
            reinterpret_cast<QRgb *>(image.scanLine(y))[x] =
                qRgb(part(luma + 1.402 * v), part(luma - 0.344136 * u - 0.714136 * v), part(luma + 1.772 * u));
        }
    }
    return image;
}

bool areAlike(const QImage &one, const QImage &two, int tolerance)
{
    if (one.size() != two.size() || one.format() != two.format())
        return false;
    for (int y = 0; y < height; ++y) {
        const uchar *const line = one.constScanLine(y);
        const bool isAlike = std::equal(line, line + one.bytesPerLine(), two.constScanLine(y),
                                        [tolerance](int a, int b) { return std::abs(a - b) <= tolerance; });
        if (!isAlike)
            return false;
    }
    return true;
}

void compare(Table &table, quint32 format, Depth depth, const std::function<QImage(const Bytes &)> &naive,
             int tolerance = 0)
{
    Bytes bytes(size_t(width) * height * (format >> 16 & 0xFF) / 8);
    std::generate(bytes.begin(), bytes.end(),
                  [i = 0U]() mutable { return uchar((i = i * 1664525 + 1013904223) >> 24); });
    const RawPicture raw{format, width, height, bytes.data(), bytes.size()};
    QImage ours;
    Samples ourTimes;
    Samples naiveTimes;
    for (int i = 0; i < repetitions; ++i) {
        QImage image;
        ourTimes.add(millisecondsOf([&] { ours = convertPicture(raw, depth, std::move(ours)).image; }));
        naiveTimes.add(millisecondsOf([&] { image = naive(bytes); }));
        require(i || areAlike(ours, image, tolerance), "the pictures differ");
    }
    const QString kept = depth == Depth::Full ? QStringLiteral(", in 16 bits") : QString();
    table.add(pixelFormatName(format) + kept, QStringLiteral("ms"), ourTimes.median(), naiveTimes.median(), 0.5);
}

} // namespace

/** What conversions take beside loops over single pixels, and what showing takes: benchmarks/run picture */
int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Table table;
    const auto mono = [](Sample sample, int bits, bool isDeep = false) {
        return [=](const Bytes &bytes) { return Naive(bytes, sample, bits, isDeep).mono(); };
    };
    const auto bayer = [](Sample sample, int bits, bool isDeep = false) {
        return [=](const Bytes &bytes) { return Naive(bytes, sample, bits, isDeep).bayer(); };
    };
    compare(table, 0x01080001, Depth::Shown, mono(byteSample, 8));
    compare(table, 0x01100005, Depth::Shown, mono(wordSample, 12));
    compare(table, 0x010C0047, Depth::Shown, mono(bitSample, 12));
    compare(table, 0x010C0047, Depth::Full, mono(bitSample, 12, true));
    compare(table, 0x010C0006, Depth::Shown, mono(pairSample, 12));
    compare(table, 0x01080009, Depth::Shown, bayer(byteSample, 8));
    compare(table, 0x01100011, Depth::Shown, bayer(wordSample, 12));
    compare(table, 0x010C0059, Depth::Shown, bayer(bitSample, 12));
    compare(table, 0x010C0059, Depth::Full, bayer(bitSample, 12, true));
    compare(table, 0x010C002B, Depth::Shown, bayer(pairSample, 12));
    compare(table, 0x02180014, Depth::Shown, naiveRgb);
    compare(table, 0x02100032, Depth::Shown, naiveYuv, 1);
    compareShowing(table);
    table.print();
    return 0;
}
