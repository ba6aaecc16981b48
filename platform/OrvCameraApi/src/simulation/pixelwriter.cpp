// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "pixelwriter.h"

#include <algorithm>

namespace OrvCameraApi {

namespace {

struct Yuv
{
    unsigned y;
    int u;
    int v;
};

/** Full range, in 256ths. */
Yuv yuv(const std::uint16_t *rgb)
{
    const int red = rgb[0];
    const int green = rgb[1];
    const int blue = rgb[2];
    return {static_cast<unsigned>((77 * red + 150 * green + 29 * blue) / 256),
            (-43 * red - 85 * green + 128 * blue) / 256, (128 * red - 107 * green - 21 * blue) / 256};
}

unsigned chroma(int first, int second)
{
    return static_cast<unsigned>(std::clamp((first + second) / 2 + 128, 0, 255));
}

} // namespace

void PixelWriter::write(const std::uint16_t *components, std::size_t pixels)
{
    switch (m_layout.kind) {
    case PixelLayout::Kind::Unpacked:
        if (m_layout.bits > 8)
            writeWords(components, pixels);
        else
            m_to = std::transform(components, components + pixels, m_to,
                                  [](std::uint16_t component) { return static_cast<std::uint8_t>(component); });
        break;
    case PixelLayout::Kind::Packed:
        writePacked(components, pixels);
        break;
    case PixelLayout::Kind::GigePacked:
        writeGigePacked(components, pixels);
        break;
    case PixelLayout::Kind::Rgb:
    case PixelLayout::Kind::Bgr:
        writeColors(components, pixels);
        break;
    case PixelLayout::Kind::Yuyv:
    case PixelLayout::Kind::Uyvy:
        writeYuv(components, pixels);
        break;
    }
}

void PixelWriter::writeWords(const std::uint16_t *components, std::size_t pixels)
{
    std::uint8_t *to = m_to;
    for (std::size_t i = 0; i < pixels; ++i) {
        *to++ = static_cast<std::uint8_t>(components[i]);
        *to++ = static_cast<std::uint8_t>(components[i] >> 8U);
    }
    m_to = to;
}

void PixelWriter::writePacked(const std::uint16_t *components, std::size_t pixels)
{
    for (std::size_t i = 0; i < pixels; ++i) {
        m_bits |= std::uint32_t(components[i]) << m_pending;
        for (m_pending += m_layout.bits; m_pending >= 8; m_pending -= 8) {
            put(m_bits);
            m_bits >>= 8U;
        }
    }
}

/** Of a pair, the first component is pending in m_bits. */
void PixelWriter::writeGigePacked(const std::uint16_t *components, std::size_t pixels)
{
    const unsigned low = m_layout.bits - 8;
    const unsigned mask = (1U << low) - 1;
    for (std::size_t i = 0; i < pixels; ++i) {
        if (m_pending == 0) {
            m_bits = components[i];
            m_pending = m_layout.bits;
            continue;
        }
        put(m_bits >> low);
        put((m_bits & mask) | (components[i] & mask) << 4U);
        put(components[i] >> low);
        m_pending = 0;
        m_bits = 0;
    }
}

void PixelWriter::writeColors(const std::uint16_t *components, std::size_t pixels)
{
    const std::size_t first = m_layout.kind == PixelLayout::Kind::Rgb ? 0 : 2;
    for (const std::uint16_t *rgb = components; rgb != components + 3 * pixels; rgb += 3) {
        put(rgb[first]);
        put(rgb[1]);
        put(rgb[2 - first]);
    }
}

/** Of an odd number of pixels, the last one is alone. */
void PixelWriter::writeYuv(const std::uint16_t *components, std::size_t pixels)
{
    const bool isYuyv = m_layout.kind == PixelLayout::Kind::Yuyv;
    for (std::size_t i = 0; i < pixels; i += 2) {
        const bool isPair = i + 1 < pixels;
        const Yuv first = yuv(components + 3 * i);
        const Yuv second = isPair ? yuv(components + 3 * (i + 1)) : first;
        const unsigned u = chroma(first.u, second.u);
        put(isYuyv ? first.y : u);
        put(isYuyv ? u : first.y);
        if (!isPair)
            continue;
        const unsigned v = chroma(first.v, second.v);
        put(isYuyv ? second.y : v);
        put(isYuyv ? v : second.y);
    }
}

void PixelWriter::finish()
{
    if (m_pending == 0)
        return;
    if (m_layout.kind == PixelLayout::Kind::GigePacked) {
        put(m_bits >> (m_layout.bits - 8));
        put(m_bits & ((1U << (m_layout.bits - 8)) - 1));
    } else {
        put(m_bits);
    }
    m_pending = 0;
}

} // namespace OrvCameraApi
