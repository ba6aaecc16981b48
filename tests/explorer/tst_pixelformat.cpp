// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"
#include "picture/pixelformat.h"

#include <QRandomGenerator>

#include <array>
#include <cmath>
#include <vector>

Q_DECLARE_METATYPE(RawPicture)

namespace {

using Bytes = std::vector<uchar>;
using Color = std::array<int, 3>; // red, green, blue

/** A format as the standard tells it; the name has the rest. */
struct Format
{
    QString name;
    quint32 code = 0;
    QString packing; ///< "" for whole bytes and words, "p" and "Packed"
    int bits = 8; ///< of a component
    QString order; ///< of a Bayer pattern

    bool isMono() const { return name.startsWith(QLatin1String("Mono")); }
    bool isYuv() const { return name.startsWith(QLatin1String("YUV")); }
    int lumaAt() const { return name.endsWith(QLatin1String("UYVY")) ? 1 : 0; }
    int pixelBits() const { return int(code >> 16 & 0xFF); }
};

std::vector<Format> allFormats()
{
    using Text = QLatin1String;
    std::vector<Format> all = {{Text("RGB8"), 0x02180014, {}, 8, {}},
                               {Text("BGR8"), 0x02180015, {}, 8, {}},
                               {Text("YUV422_8"), 0x02100032, {}, 8, {}},
                               {Text("YUV422_8_UYVY"), 0x0210001F, {}, 8, {}}};
    struct Family
    {
        QLatin1String packing;
        int bits;
        quint32 mono, bayer[4];
    };
    const Family families[] = {
        {Text(""), 8, 0x01080001, {0x01080008, 0x01080009, 0x0108000A, 0x0108000B}},
        {Text(""), 10, 0x01100003, {0x0110000C, 0x0110000D, 0x0110000E, 0x0110000F}},
        {Text(""), 12, 0x01100005, {0x01100010, 0x01100011, 0x01100012, 0x01100013}},
        {Text(""), 16, 0x01100007, {0x0110002E, 0x0110002F, 0x01100030, 0x01100031}},
        {Text("p"), 10, 0x010A0046, {0x010A0056, 0x010A0058, 0x010A0054, 0x010A0052}},
        {Text("p"), 12, 0x010C0047, {0x010C0057, 0x010C0059, 0x010C0055, 0x010C0053}},
        {Text("Packed"), 10, 0x010C0004, {0x010C0026, 0x010C0027, 0x010C0028, 0x010C0029}},
        {Text("Packed"), 12, 0x010C0006, {0x010C002A, 0x010C002B, 0x010C002C, 0x010C002D}},
    };
    const QString orders[] = {Text("GRBG"), Text("RGGB"), Text("GBRG"), Text("BGGR")};
    for (const Family &family : families) {
        const QString end = QString::number(family.bits) + family.packing;
        all.push_back({Text("Mono") + end, family.mono, family.packing, family.bits, {}});
        for (int i = 0; i < 4; ++i) {
            const QString name = Text("Bayer") + orders[i].left(2) + end;
            all.push_back({name, family.bayer[i], family.packing, family.bits, orders[i]});
        }
    }
    return all;
}

/** A second opinion: each pixel by itself, bit by bit. */
class Plain
{
public:
    Plain(const Format &format, const Bytes &bytes, int width, int height, int depth)
        : m_format(format)
        , m_bytes(bytes)
        , m_width(width)
        , m_height(height)
        , m_depth(depth)
    {
    }

    bool has(int pixel) const { return qint64(pixel + 1) * m_format.pixelBits() <= qint64(m_bytes.size()) * 8; }

    /** A component of a Mono or Bayer picture as it was sent. */
    int sample(int i) const
    {
        int value = 0;
        for (int bit = 0; bit < m_format.bits; ++bit)
            value |= bitAt(placeOf(i, bit)) << bit;
        const bool exceeds = m_format.packing.isEmpty() && m_format.bits > 8 && wordAt(i) >> m_format.bits;
        return exceeds ? (1 << m_format.bits) - 1 : value;
    }

    int wordAt(int i) const { return m_bytes[size_t(i) * 2] | m_bytes[size_t(i) * 2 + 1] << 8; }

    Color color(int x, int y) const
    {
        const int pixel = y * m_width + x;
        if (!has(pixel))
            return {0, 0, 0};
        if (m_format.isMono())
            return {scaled(pixel), scaled(pixel), scaled(pixel)};
        if (!m_format.order.isEmpty())
            return {mean(x, y, 'R'), mean(x, y, 'G'), mean(x, y, 'B')};
        return m_format.isYuv() ? fromYuv(yuv(pixel)) : rgb(pixel);
    }

    /** What was sent. */
    QString text(int x, int y) const
    {
        const int pixel = y * m_width + x;
        if (!has(pixel))
            return {};
        const bool isWord = m_format.packing.isEmpty() && m_format.bits > 8;
        const QString color = m_format.order.mid((y & 1) * 2 + (x & 1), 1);
        if (m_format.isMono() || !color.isEmpty())
            return QStringLiteral("%1 %2").arg(color).arg(isWord ? wordAt(pixel) : sample(pixel)).trimmed();
        const Color c = m_format.isYuv() ? yuv(pixel) : rgb(pixel);
        const QString pattern = QLatin1String(m_format.isYuv() ? "Y %1 U %2 V %3" : "R %1 G %2 B %3");
        return pattern.arg(c[0]).arg(c[1]).arg(c[2]);
    }

    Color rgb(int pixel) const
    {
        const uchar *const p = &m_bytes[size_t(pixel) * 3];
        return m_format.name == QLatin1String("RGB8") ? Color{p[0], p[1], p[2]} : Color{p[2], p[1], p[0]};
    }

    Color yuv(int pixel) const
    {
        const int luma = m_format.lumaAt();
        const auto at = [this](int i) { return size_t(i) < m_bytes.size() ? m_bytes[size_t(i)] : 128; };
        return {at(pixel * 2 + luma), at(pixel / 2 * 4 + 1 - luma), at(pixel / 2 * 4 + 3 - luma)};
    }

private:
    int bitAt(int bit) const { return m_bytes[size_t(bit / 8)] >> bit % 8 & 1; }

    /** Where the bit of a sample lies, in bits from the first byte's low end. */
    int placeOf(int i, int bit) const
    {
        if (m_format.packing == QLatin1String("p"))
            return i * m_format.bits + bit;
        if (m_format.packing.isEmpty())
            return i * m_format.pixelBits() + bit;
        const int low = m_format.bits - 8; // bits in the middle byte
        const int first = i / 2 * 24;
        return bit < low ? first + 8 + (i % 2) * 4 + bit : first + (i % 2) * 16 + bit - low;
    }

    int scaled(int i) const
    {
        if (!has(i))
            return 0;
        return m_depth == 8 ? sample(i) >> (m_format.bits - 8) : repeated(sample(i));
    }

    int repeated(int value) const
    {
        const int bits = m_format.bits;
        return value << (16 - bits) | value >> (2 * bits - 16);
    }

    char letter(int x, int y) const { return m_format.order[(y & 1) * 2 + (x & 1)].toLatin1(); }

    static int mirrored(int i, int size) { return size == 1 ? 0 : i < 0 ? -i : i >= size ? 2 * size - 2 - i : i; }

    int mean(int x, int y, char wanted) const
    {
        if (letter(x, y) == wanted)
            return scaled(y * m_width + x);
        int sum = 0;
        int count = 0;
        for (int v = y - 1; v <= y + 1; ++v) {
            for (int u = x - 1; u <= x + 1; ++u) {
                if (letter(u, v) != wanted)
                    continue;
                sum += scaled(mirrored(v, m_height) * m_width + mirrored(u, m_width));
                ++count;
            }
        }
        return (sum + count / 2) / count;
    }

    static Color fromYuv(const Color &yuv)
    {
        const double y = yuv[0], u = yuv[1] - 128, v = yuv[2] - 128;
        const auto part = [](double value) { return int(std::lround(qBound(0.0, value, 255.0))); };
        return {part(y + 1.402 * v), part(y - 0.344136 * u - 0.714136 * v), part(y + 1.772 * u)};
    }

    const Format &m_format;
    const Bytes &m_bytes;
    const int m_width;
    const int m_height;
    const int m_depth;
};

Bytes randomBytes(int size)
{
    Bytes bytes;
    for (int i = 0; i < size; ++i)
        bytes.push_back(uchar(QRandomGenerator::global()->bounded(256)));
    return bytes;
}

int neededBytes(const Format &format, const QSize &size)
{
    return (size.width() * size.height() * format.pixelBits() + 7) / 8;
}

RawPicture rawPicture(const Format &format, const QSize &size, const Bytes &bytes)
{
    return {format.code, quint32(size.width()), quint32(size.height()), bytes.data(), bytes.size()};
}

int valueAt(const QImage &image, int x, int y)
{
    const uchar *const line = image.constScanLine(y);
    return image.depth() == 8 ? line[x] : reinterpret_cast<const quint16 *>(line)[x];
}

Color colorAt(const QImage &image, int x, int y)
{
    if (image.depth() <= 16)
        return {valueAt(image, x, y), valueAt(image, x, y), valueAt(image, x, y)};
    if (image.depth() == 32) {
        const QRgb pixel = image.pixel(x, y);
        return {qRed(pixel), qGreen(pixel), qBlue(pixel)};
    }
    const QRgba64 pixel = reinterpret_cast<const QRgba64 *>(image.constScanLine(y))[x];
    return {pixel.red(), pixel.green(), pixel.blue()};
}

/** Where the image differs from the second opinion; a rounding of YUV's fractions may. */
QString difference(const QImage &image, const Plain &plain, int tolerance)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const Color ours = colorAt(image, x, y);
            const Color other = plain.color(x, y);
            for (size_t i = 0; i < 3; ++i) {
                if (std::abs(ours[i] - other[i]) > tolerance)
                    return QStringLiteral("(%1, %2) has %3, not %4").arg(x).arg(y).arg(ours[i]).arg(other[i]);
            }
        }
    }
    return {};
}

} // namespace

class TestPixelFormat : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void convertsLikeThePlainOne_data();
    void convertsLikeThePlainOne();
    void reusesOnlyWhatNobodyShares();
    void tellsWhatCannotBeShown_data();
    void tellsWhatCannotBeShown();
};

void TestPixelFormat::convertsLikeThePlainOne_data()
{
    QTest::addColumn<int>("index");
    const std::vector<Format> formats = allFormats();
    for (size_t i = 0; i < formats.size(); ++i)
        QTest::addRow("%s", qPrintable(formats[i].name)) << int(i);
}

/** All sizes at which lines begin and end within a group of bytes, and data that ends anywhere. */
void TestPixelFormat::convertsLikeThePlainOne()
{
    QFETCH(int, index);
    const Format format = allFormats()[size_t(index)];
    QCOMPARE(pixelFormatName(format.code), format.name);
    std::vector<std::pair<QSize, int>> cases;
    for (const QSize size :
         {QSize(1, 1), QSize(2, 1), QSize(1, 4), QSize(4, 2), QSize(5, 5), QSize(67, 6), QSize(130, 3)})
        cases.emplace_back(size, neededBytes(format, size) + 3); // more is left alone
    for (int bytes = 0; bytes <= neededBytes(format, QSize(7, 3)); ++bytes)
        cases.emplace_back(QSize(7, 3), bytes);
    for (const auto &[size, count] : cases) {
        const Bytes bytes = randomBytes(count);
        const RawPicture raw = rawPicture(format, size, bytes);
        for (const Depth depth : {Depth::Shown, Depth::Full}) {
            const int bits = depth == Depth::Full && format.bits > 8 ? 16 : 8;
            const Plain plain(format, bytes, size.width(), size.height(), bits);
            const ConvertedPicture converted = convertPicture(raw, depth);
            QCOMPARE(converted.image.size(), size);
            QCOMPARE(converted.image.depth(), format.isMono() ? bits : bits == 16 ? 64 : 32);
            QCOMPARE(difference(converted.image, plain, format.isYuv() ? 1 : 0), QString());
            QCOMPARE(converted.remark.isEmpty(), plain.has(size.width() * size.height() - 1));
        }
        const Plain plain(format, bytes, size.width(), size.height(), 8);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                QCOMPARE(pixelText(raw, x, y).section(QLatin1String(" ("), 0, 0), plain.text(x, y));
        }
    }
}

void TestPixelFormat::reusesOnlyWhatNobodyShares()
{
    const Bytes bytes{1, 2, 3, 4};
    const RawPicture raw = rawPicture(allFormats()[4], QSize(2, 2), bytes);
    QImage first = convertPicture(raw, Depth::Shown).image;
    const uchar *const memory = first.constBits();
    QImage second = convertPicture(raw, Depth::Shown, std::move(first)).image;
    QCOMPARE(second.constBits(), memory);
    const QImage shared = second;
    QVERIFY(convertPicture(raw, Depth::Shown, std::move(second)).image.constBits() != memory);
}

void TestPixelFormat::tellsWhatCannotBeShown_data()
{
    QTest::addColumn<RawPicture>("raw");
    QTest::addColumn<QString>("remark");
    static const uchar byte = 0;
    constexpr quint32 mono = 0x01080001, most = 0xFFFFFFFF;
    const auto row = [](const char *name, const RawPicture &raw, const char *remark) {
        QTest::newRow(name) << raw << QString::fromLatin1(remark);
    };
    row("unknown format", {0x81234ABC, 1, 1, &byte, 1}, "The pixel format 0x81234ABC is unknown.");
    row("unknown number", {0, 1, 1, &byte, 1}, "The pixel format 0x00000000 is unknown.");
    row("no pixels", {mono, 7, 0, &byte, 1}, "The picture has no pixels (7 x 0).");
    row("huge", {mono, most, most, &byte, 1}, "The picture is too large (4294967295 x 4294967295).");
    row("long", {mono, 2, most, &byte, 1}, "The picture is too large (2 x 4294967295).");
    row("no data", {mono, 2, 2, nullptr, 4}, "4 of 4 pixels are missing.");
}

void TestPixelFormat::tellsWhatCannotBeShown()
{
    QFETCH(RawPicture, raw);
    QFETCH(QString, remark);
    QCOMPARE(convertPicture(raw, Depth::Full).remark, remark);
    QCOMPARE(pixelText(raw, 0, 0), QString());
}

ORV_TEST_MAIN(TestPixelFormat)
#include "tst_pixelformat.moc"
