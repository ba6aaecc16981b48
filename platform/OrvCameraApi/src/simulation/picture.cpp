// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picture.h"

#include "pixelwriter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace OrvCameraApi {

namespace {

using Mosaic = PixelLayout::Mosaic;
using Channel = Scene::Channel;
using Table = std::array<std::uint16_t, 256>;

/** The components of each light. */
Table table(double gain, double black, unsigned bits)
{
    const double full = double((1U << bits) - 1);
    Table table{};
    for (std::size_t light = 0; light < table.size(); ++light)
        table[light] = std::uint16_t(std::lround(std::clamp(double(light) * gain + black, 0.0, 1.0) * full));
    return table;
}

/** The channel of a pixel, by the parities of its line and column. */
Channel channelOf(Mosaic mosaic, unsigned row, unsigned column)
{
    constexpr Channel red = Channel::Red;
    constexpr Channel green = Channel::Green;
    constexpr Channel blue = Channel::Blue;
    constexpr Channel grey = Channel::Grey;
    constexpr Channel channels[][4] = {{grey, grey, grey, grey},
                                       {green, red, blue, green},
                                       {red, green, green, blue},
                                       {green, blue, red, green},
                                       {blue, green, green, red}};
    return channels[std::size_t(mosaic)][2 * row + column];
}

/** The places of \a count pixels. */
std::vector<std::int64_t> places(double first, double step, std::uint32_t count, bool isMirrored)
{
    std::vector<std::int64_t> places(count);
    for (std::uint32_t i = 0; i < count; ++i)
        places[i] = std::int64_t(std::floor(first + double(isMirrored ? count - 1 - i : i) * step));
    return places;
}

class Painter
{
public:
    Painter(const PictureSettings &settings, std::uint64_t number)
        : m_settings(settings)
        , m_scene(settings.pattern, places(settings.left, settings.stepX, settings.width, settings.isMirroredX), number)
        , m_components(std::size_t(settings.width) * (settings.layout.isColored() ? 3 : 1))
    {
        for (std::size_t channel = 0; channel < m_tables.size(); ++channel)
            m_tables[channel] = table(settings.gains[channel], settings.black, settings.layout.bits);
    }

    void paint(std::uint8_t *to);

private:
    void develop(const Scene::Lights &lights, unsigned parity);
    void developColors(const Scene::Lights &lights);

    const PictureSettings &m_settings;
    Scene m_scene;
    std::vector<std::uint16_t> m_components; ///< of a line
    std::array<Table, Scene::Channels> m_tables;
};

void Painter::develop(const Scene::Lights &lights, unsigned parity)
{
    for (const unsigned column : {0U, 1U}) {
        const Channel channel = channelOf(m_settings.layout.mosaic, parity, column);
        const std::uint8_t *const light = lights[channel].data();
        const Table &table = m_tables[channel];
        for (std::size_t i = column; i < m_settings.width; i += 2)
            m_components[i] = table[light[i]];
    }
}

void Painter::developColors(const Scene::Lights &lights)
{
    std::uint16_t *component = m_components.data();
    for (std::size_t i = 0; i < m_settings.width; ++i) {
        for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue})
            *component++ = m_tables[channel][lights[channel][i]];
    }
}

/** Lines that were already drawn are copied; a mosaic has two kinds of lines. */
void Painter::paint(std::uint8_t *to)
{
    struct Drawn
    {
        const std::uint8_t *line = nullptr;
        std::int64_t key = -1;
    };
    std::array<Drawn, 2> drawn;
    PixelWriter writer(m_settings.layout, to);
    const bool isColored = m_settings.layout.isColored();
    const std::vector<std::int64_t> lines =
        places(m_settings.top, m_settings.stepY, m_settings.height, m_settings.isMirroredY);
    for (std::uint32_t y = 0; y < m_settings.height; ++y) {
        const Scene::Line line = m_scene.line(lines[y]);
        const unsigned parity = m_settings.layout.mosaic == Mosaic::None ? 0 : y & 1U;
        std::uint8_t *const begin = writer.position();
        Drawn &former = drawn[parity];
        if (begin && former.line && line.key >= 0 && former.key == line.key) {
            const std::size_t bytes = m_settings.layout.bytes(m_settings.width);
            std::memcpy(begin, former.line, bytes);
            writer.skip(bytes);
            continue;
        }
        if (isColored)
            developColors(line.lights);
        else
            develop(line.lights, parity);
        writer.write(m_components.data(), m_settings.width);
        former = {writer.position() ? begin : nullptr, line.key};
    }
    writer.finish();
}

} // namespace

void drawPicture(const PictureSettings &settings, std::uint64_t number, std::uint8_t *to)
{
    Painter(settings, number).paint(to);
}

} // namespace OrvCameraApi
