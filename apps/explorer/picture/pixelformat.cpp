// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "pixelformat.h"

#include "demosaic.h"
#include "samples.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace {

// More would be a camera's error, and gigabytes of memory.
constexpr quint32 mostColumns = 1U << 16;
constexpr quint64 mostPixels = quint64(1) << 28;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PixelFormat)
};

enum class Kind { Mono, Bayer, Rgb, Yuv };

struct Format
{
    quint32 code;
    const char *name;
    Kind kind;
    Packing packing;
    int bits; ///< of a component
    RedPixel red; ///< Bayer: where it is in each 2 x 2 pixels
    int first = 0; ///< Rgb: the byte that has red, Yuv: the first byte that has Y
};

constexpr RedPixel none{0, 0}, gr{1, 0}, rg{0, 0}, gb{0, 1}, bg{1, 1};

constexpr Format formats[] = {
    {0x01080001, "Mono8", Kind::Mono, Packing::Bytes, 8, none},
    {0x01100003, "Mono10", Kind::Mono, Packing::Words, 10, none},
    {0x01100005, "Mono12", Kind::Mono, Packing::Words, 12, none},
    {0x01100007, "Mono16", Kind::Mono, Packing::Words, 16, none},
    {0x010A0046, "Mono10p", Kind::Mono, Packing::Bits, 10, none},
    {0x010C0047, "Mono12p", Kind::Mono, Packing::Bits, 12, none},
    {0x010C0004, "Mono10Packed", Kind::Mono, Packing::Pairs, 10, none},
    {0x010C0006, "Mono12Packed", Kind::Mono, Packing::Pairs, 12, none},
    {0x01080008, "BayerGR8", Kind::Bayer, Packing::Bytes, 8, gr},
    {0x01080009, "BayerRG8", Kind::Bayer, Packing::Bytes, 8, rg},
    {0x0108000A, "BayerGB8", Kind::Bayer, Packing::Bytes, 8, gb},
    {0x0108000B, "BayerBG8", Kind::Bayer, Packing::Bytes, 8, bg},
    {0x0110000C, "BayerGR10", Kind::Bayer, Packing::Words, 10, gr},
    {0x0110000D, "BayerRG10", Kind::Bayer, Packing::Words, 10, rg},
    {0x0110000E, "BayerGB10", Kind::Bayer, Packing::Words, 10, gb},
    {0x0110000F, "BayerBG10", Kind::Bayer, Packing::Words, 10, bg},
    {0x01100010, "BayerGR12", Kind::Bayer, Packing::Words, 12, gr},
    {0x01100011, "BayerRG12", Kind::Bayer, Packing::Words, 12, rg},
    {0x01100012, "BayerGB12", Kind::Bayer, Packing::Words, 12, gb},
    {0x01100013, "BayerBG12", Kind::Bayer, Packing::Words, 12, bg},
    {0x0110002E, "BayerGR16", Kind::Bayer, Packing::Words, 16, gr},
    {0x0110002F, "BayerRG16", Kind::Bayer, Packing::Words, 16, rg},
    {0x01100030, "BayerGB16", Kind::Bayer, Packing::Words, 16, gb},
    {0x01100031, "BayerBG16", Kind::Bayer, Packing::Words, 16, bg},
    {0x010A0056, "BayerGR10p", Kind::Bayer, Packing::Bits, 10, gr},
    {0x010A0058, "BayerRG10p", Kind::Bayer, Packing::Bits, 10, rg},
    {0x010A0054, "BayerGB10p", Kind::Bayer, Packing::Bits, 10, gb},
    {0x010A0052, "BayerBG10p", Kind::Bayer, Packing::Bits, 10, bg},
    {0x010C0057, "BayerGR12p", Kind::Bayer, Packing::Bits, 12, gr},
    {0x010C0059, "BayerRG12p", Kind::Bayer, Packing::Bits, 12, rg},
    {0x010C0055, "BayerGB12p", Kind::Bayer, Packing::Bits, 12, gb},
    {0x010C0053, "BayerBG12p", Kind::Bayer, Packing::Bits, 12, bg},
    {0x010C0026, "BayerGR10Packed", Kind::Bayer, Packing::Pairs, 10, gr},
    {0x010C0027, "BayerRG10Packed", Kind::Bayer, Packing::Pairs, 10, rg},
    {0x010C0028, "BayerGB10Packed", Kind::Bayer, Packing::Pairs, 10, gb},
    {0x010C0029, "BayerBG10Packed", Kind::Bayer, Packing::Pairs, 10, bg},
    {0x010C002A, "BayerGR12Packed", Kind::Bayer, Packing::Pairs, 12, gr},
    {0x010C002B, "BayerRG12Packed", Kind::Bayer, Packing::Pairs, 12, rg},
    {0x010C002C, "BayerGB12Packed", Kind::Bayer, Packing::Pairs, 12, gb},
    {0x010C002D, "BayerBG12Packed", Kind::Bayer, Packing::Pairs, 12, bg},
    {0x02180014, "RGB8", Kind::Rgb, Packing::Bytes, 8, none, 0},
    {0x02180015, "BGR8", Kind::Rgb, Packing::Bytes, 8, none, 2},
    {0x02100032, "YUV422_8", Kind::Yuv, Packing::Bytes, 8, none, 0},
    {0x0210001F, "YUV422_8_UYVY", Kind::Yuv, Packing::Bytes, 8, none, 1},
};

const Format *formatOf(quint32 code)
{
    const auto *const found =
        std::find_if(std::begin(formats), std::end(formats), [code](const Format &f) { return f.code == code; });
    return found == std::end(formats) ? nullptr : found;
}

/** How many of a picture's pixels are wholly there. */
quint64 pixelsThere(const RawPicture &picture)
{
    const quint64 bitsOfPixel = picture.format >> 16 & 0xFF;
    const quint64 all = quint64(picture.width) * picture.height;
    return picture.data ? std::min(quint64(picture.size) * 8 / bitsOfPixel, all) : 0;
}

/** Of these, how many are in line \a y. */
int pixelsThere(quint64 there, int width, int y)
{
    const quint64 before = quint64(width) * quint64(y);
    return there <= before ? 0 : int(std::min(there - before, quint64(width)));
}

template <typename Sample>
Sample *lineOf(QImage &image, int y)
{
    return reinterpret_cast<Sample *>(image.scanLine(y));
}

/** The samples of line \a y; zero where there are none. */
template <typename Sample>
class Lines
{
public:
    Lines(const Format &format, const RawPicture &picture)
        : m_unpack(unpackerOf<Sample>(format.packing, format.bits))
        , m_data(picture.data)
        , m_width(int(picture.width))
        , m_there(pixelsThere(picture))
    {
    }

    int there(int y) const { return pixelsThere(m_there, m_width, y); }

    void read(int y, Sample *line) const
    {
        const int count = there(y);
        if (count > 0)
            m_unpack(m_data, quint64(m_width) * quint64(y), count, line);
        std::fill(line + count, line + m_width, Sample(0));
    }

private:
    const Unpacker<Sample> m_unpack;
    const uchar *const m_data;
    const int m_width;
    const quint64 m_there;
};

template <typename Sample>
void convertMono(const Format &format, const RawPicture &picture, QImage &image)
{
    const Lines<Sample> lines(format, picture);
    for (int y = 0; y < image.height(); ++y)
        lines.read(y, lineOf<Sample>(image, y));
}

/** The pixels that are missing are black, and not what their neighbors would make of them. */
template <typename Sample>
void convertBayer(const Format &format, const RawPicture &picture, QImage &image)
{
    const Lines<Sample> lines(format, picture);
    Demosaic<Sample> demosaic(image.width(), image.height(), format.red);
    const auto read = [&lines](int y, Sample *line) { lines.read(y, line); };
    for (int y = 0; y < image.height(); ++y) {
        auto *const out = lineOf<Pixel<Sample>>(image, y);
        demosaic.line(y, read, out);
        std::fill(out + lines.there(y), out + image.width(), pixelOf<Sample>(0, 0, 0));
    }
}

void convertRgb(const Format &format, const RawPicture &picture, QImage &image)
{
    const quint64 there = pixelsThere(picture);
    const int blue = 2 - format.first;
    const uchar *in = picture.data;
    for (int y = 0; y < image.height(); ++y) {
        auto *const out = lineOf<quint32>(image, y);
        const int count = pixelsThere(there, image.width(), y);
        for (int x = 0; x < count; ++x, in += 3)
            out[x] = pixelOf<quint8>(in[format.first], in[1], in[blue]);
        std::fill(out + count, out + image.width(), pixelOf<quint8>(0, 0, 0));
    }
}

/** What a byte of U or V adds to the colors, in 1/65536. */
struct Chroma
{
    Chroma()
    {
        for (int i = 0; i < 256; ++i) {
            const int c = i - 128;
            redOfV[size_t(i)] = c * 91881 + 32768; // 1.402, and a half to round
            greenOfU[size_t(i)] = -c * 22554 + 32768; // 0.344136
            greenOfV[size_t(i)] = -c * 46802; // 0.714136
            blueOfU[size_t(i)] = c * 116130 + 32768; // 1.772
        }
    }

    std::array<int, 256> redOfV{}, greenOfU{}, greenOfV{}, blueOfU{};
};

/** The part that both pixels of a pair have in common. */
struct Tint
{
    Tint(const Chroma &chroma, uchar u, uchar v)
        : red(chroma.redOfV[v] >> 16)
        , green((chroma.greenOfU[u] + chroma.greenOfV[v]) >> 16)
        , blue(chroma.blueOfU[u] >> 16)
    {
    }

    quint32 with(uchar luma) const { return pixelOf<quint8>(part(luma + red), part(luma + green), part(luma + blue)); }

    static quint8 part(int value) { return quint8(std::clamp(value, 0, 255)); }

    int red;
    int green;
    int blue;
};

/** Pairs of pixels, over the ends of lines; a lone last pixel has no V and is taken as having no color there. */
class YuvPairs
{
public:
    YuvPairs(const Format &format, const RawPicture &picture)
        : m_data(picture.data)
        , m_size(picture.size)
        , m_luma(size_t(format.first))
        , m_chroma(1 - m_luma)
    {
    }

    uchar y(quint64 pixel) const { return m_data[pixel * 2 + m_luma]; }
    uchar u(quint64 pixel) const { return m_data[pixel / 2 * 4 + m_chroma]; }
    uchar v(quint64 pixel) const
    {
        const quint64 place = pixel / 2 * 4 + m_chroma + 2;
        return place < m_size ? m_data[place] : 128;
    }

private:
    const uchar *const m_data;
    const quint64 m_size;
    const std::size_t m_luma;
    const std::size_t m_chroma;
};

void convertYuv(const Format &format, const RawPicture &picture, QImage &image)
{
    static const Chroma chroma;
    const YuvPairs pairs(format, picture);
    const quint64 there = pixelsThere(picture);
    quint64 pixel = 0;
    for (int y = 0; y < image.height(); ++y) {
        auto *out = lineOf<quint32>(image, y);
        const int count = pixelsThere(there, image.width(), y);
        auto *const lineEnd = out + image.width();
        for (auto *const end = out + count; out < end;) {
            const Tint tint(chroma, pairs.u(pixel), pairs.v(pixel));
            *out++ = tint.with(pairs.y(pixel));
            if (pixel++ % 2 == 0 && out < end)
                *out++ = tint.with(pairs.y(pixel++));
        }
        std::fill(out, lineEnd, pixelOf<quint8>(0, 0, 0));
    }
}

QImage::Format imageFormat(const Format &format, bool isDeep)
{
    if (format.kind == Kind::Mono)
        return isDeep ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8;
    return isDeep ? QImage::Format_RGBX64 : QImage::Format_RGB32;
}

QImage imageFor(const RawPicture &picture, QImage::Format format, QImage &&reuse)
{
    const QSize size(int(picture.width), int(picture.height));
    if (reuse.size() == size && reuse.format() == format && reuse.isDetached())
        return std::move(reuse);
    return QImage(size, format);
}

void convert(const Format &format, const RawPicture &picture, bool isDeep, QImage &image)
{
    switch (format.kind) {
    case Kind::Mono:
        return isDeep ? convertMono<quint16>(format, picture, image) : convertMono<quint8>(format, picture, image);
    case Kind::Bayer:
        return isDeep ? convertBayer<quint16>(format, picture, image) : convertBayer<quint8>(format, picture, image);
    case Kind::Rgb:
        return convertRgb(format, picture, image);
    case Kind::Yuv:
        return convertYuv(format, picture, image);
    }
}

/** Why nothing of \a picture can be shown; empty if it can. */
QString obstacle(const Format *format, const RawPicture &picture)
{
    if (!format)
        return Text::tr("The pixel format %1 is unknown.").arg(pixelFormatName(picture.format));
    const QString size = QStringLiteral("%1 x %2").arg(picture.width).arg(picture.height);
    if (!picture.width || !picture.height)
        return Text::tr("The picture has no pixels (%1).").arg(size);
    if (picture.width > mostColumns || quint64(picture.width) * picture.height > mostPixels)
        return Text::tr("The picture is too large (%1).").arg(size);
    return {};
}

QString shortage(const RawPicture &picture)
{
    const quint64 all = quint64(picture.width) * picture.height;
    const quint64 missing = all - pixelsThere(picture);
    return missing ? Text::tr("%1 of %2 pixels are missing.").arg(missing).arg(all) : QString();
}

QString valuesText(const char *names, const unsigned *values, int count, int bits)
{
    QString text;
    QString hex;
    for (int i = 0; i < count; ++i) {
        if (*names)
            text += QStringLiteral("%1 ").arg(QLatin1Char(names[i]));
        text += QStringLiteral("%1 ").arg(values[i]);
        hex += QStringLiteral("%1").arg(values[i], (bits + 3) / 4, 16, QLatin1Char('0')).toUpper();
    }
    return QStringLiteral("%1(0x%2)").arg(text, hex);
}

} // namespace

QString pixelFormatName(quint32 format)
{
    if (const Format *const known = formatOf(format))
        return QLatin1String(known->name);
    return QStringLiteral("0x%1").arg(QStringLiteral("%1").arg(format, 8, 16, QLatin1Char('0')).toUpper());
}

ConvertedPicture convertPicture(const RawPicture &picture, Depth depth, QImage &&reuse)
{
    const Format *const format = formatOf(picture.format);
    const QString why = obstacle(format, picture);
    if (!why.isEmpty())
        return {QImage(), why};
    const bool isDeep = depth == Depth::Full && format->bits > 8;
    try {
        QImage image = imageFor(picture, imageFormat(*format, isDeep), std::move(reuse));
        if (image.isNull())
            throw std::bad_alloc();
        convert(*format, picture, isDeep, image);
        return {image, shortage(picture)};
    } catch (const std::bad_alloc &) {
        return {QImage(), Text::tr("There is not enough memory for the picture.")};
    }
}

QString pixelText(const RawPicture &picture, int x, int y)
{
    const Format *const format = formatOf(picture.format);
    if (x < 0 || y < 0 || quint32(x) >= picture.width || !obstacle(format, picture).isEmpty())
        return {};
    const quint64 pixel = quint64(picture.width) * quint64(y) + quint64(x);
    if (pixel >= pixelsThere(picture))
        return {};
    if (format->kind == Kind::Rgb) {
        const uchar *const in = picture.data + pixel * 3;
        const unsigned values[] = {in[format->first], in[1], in[2 - format->first]};
        return valuesText("RGB", values, 3, 8);
    }
    if (format->kind == Kind::Yuv) {
        const YuvPairs pairs(*format, picture);
        const unsigned values[] = {pairs.y(pixel), pairs.u(pixel), pairs.v(pixel)};
        return valuesText("YUV", values, 3, 8);
    }
    unsigned value = 0;
    unpackerOf<unsigned>(format->packing, format->bits)(picture.data, pixel, 1, &value);
    const bool isRed = (x & 1) == format->red.x && (y & 1) == format->red.y;
    const bool isBlue = (x & 1) != format->red.x && (y & 1) != format->red.y;
    const char *const color = isRed ? "R" : isBlue ? "B" : "G";
    return valuesText(format->kind == Kind::Mono ? "" : color, &value, 1, format->bits);
}
