// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "scene.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace OrvCameraApi {

namespace {

constexpr std::int64_t bandHeight = 128;
constexpr std::int64_t barWidth = 96;
constexpr std::int64_t squareSize = 32;
constexpr std::int64_t radius = 90;

/** \a value in 0 to \a count - 1, without a jump at 0. */
std::int64_t wrapped(std::int64_t value, std::int64_t count)
{
    return ((value % count) + count) % count;
}

/** To and fro between 0 and \a count. */
std::int64_t swinging(std::int64_t value, std::int64_t count)
{
    const std::int64_t place = wrapped(value, 2 * count);
    return place < count ? place : 2 * count - place;
}

std::int64_t divided(std::int64_t value, std::int64_t by)
{
    return (value - wrapped(value, by)) / by;
}

} // namespace

Scene::Scene(Pattern pattern, std::vector<std::int64_t> columns, std::uint64_t number)
    : m_pattern(pattern)
    , m_columns(std::move(columns))
    , m_isMirrored(!m_columns.empty() && m_columns.front() > m_columns.back())
{
    for (Lights *lights : {&m_bars, &m_ramp, &m_line}) {
        for (std::vector<std::uint8_t> &channel : *lights)
            channel.resize(m_columns.size());
    }
    if (pattern == Pattern::None) {
        makeBands(number);
        makeDiscs(number);
    }
}

void Scene::paint(Lights &lights, std::size_t column, const Color &color)
{
    lights[Red][column] = color.red;
    lights[Green][column] = color.green;
    lights[Blue][column] = color.blue;
    lights[Grey][column] = static_cast<std::uint8_t>((77 * color.red + 150 * color.green + 29 * color.blue) / 256);
}

void Scene::makeBands(std::uint64_t number)
{
    constexpr Color bars[] = {{225, 225, 225}, {215, 205, 40}, {40, 190, 200}, {50, 180, 60},
                              {190, 60, 190},  {200, 50, 45},  {45, 60, 190},  {25, 25, 25}};
    constexpr std::int64_t period = barWidth * std::int64_t(std::size(bars));
    constexpr std::int64_t rampLength = 2 * 1024;
    const std::int64_t barShift = wrapped(std::int64_t(number % period) * 4, period);
    const std::int64_t rampShift = wrapped(std::int64_t(number % rampLength) * 6, rampLength);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        paint(m_bars, i, bars[wrapped(m_columns[i] - barShift, period) / barWidth]);
        const auto grey =
            static_cast<std::uint8_t>(swinging(m_columns[i] + rampShift, rampLength / 2) * 240 / 1024 + 8);
        paint(m_ramp, i, {grey, grey, grey});
    }
}

void Scene::makeDiscs(std::uint64_t number)
{
    constexpr std::uint64_t period = std::uint64_t(1) << 20;
    const auto step = std::int64_t(number % period);
    m_discs = {{60 + swinging(7 * step + 100, 1160), 60 + swinging(3 * step + 90, 900), {240, 90, 70}},
               {60 + swinging(5 * step + 500, 1160), 60 + swinging(5 * step + 400, 900), {90, 230, 90}},
               {60 + swinging(3 * step + 900, 1160), 60 + swinging(7 * step + 700, 900), {80, 110, 245}}};
}

/** Into the line; false if there is none at \a y. */
bool Scene::paintDiscs(std::int64_t y, const Lights &background)
{
    bool isAny = false;
    for (const Disc &disc : m_discs) {
        const std::int64_t distance = y - disc.y;
        if (distance <= -radius || distance >= radius)
            continue;
        if (!std::exchange(isAny, true))
            m_line = background;
        const auto half = std::int64_t(std::sqrt(double(radius * radius - distance * distance)));
        const auto isBefore = [&](std::int64_t x) { return m_isMirrored ? x > disc.x + half : x < disc.x - half; };
        const auto isNotBehind = [&](std::int64_t x) { return m_isMirrored ? x >= disc.x - half : x <= disc.x + half; };
        const auto first = std::partition_point(m_columns.begin(), m_columns.end(), isBefore);
        const auto end = std::partition_point(first, m_columns.end(), isNotBehind);
        for (auto column = first; column != end; ++column)
            paint(m_line, std::size_t(column - m_columns.begin()), disc.color);
    }
    return isAny;
}

Scene::Line Scene::line(std::int64_t y)
{
    if (m_pattern != Pattern::None)
        return patternLine(y);
    const bool isRamp = wrapped(divided(y, bandHeight), 2) == 1;
    const Lights &background = isRamp ? m_ramp : m_bars;
    if (paintDiscs(y, background))
        return {m_line, -1};
    return {background, isRamp ? 1 : 0};
}

Scene::Line Scene::patternLine(std::int64_t y)
{
    const std::int64_t square = divided(y, squareSize);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const std::int64_t x = m_columns[i];
        std::int64_t light = 0;
        switch (m_pattern) {
        case Pattern::None:
        case Pattern::HorizontalRamp:
            light = wrapped(x, 256);
            break;
        case Pattern::VerticalRamp:
            light = wrapped(y, 256);
            break;
        case Pattern::DiagonalRamp:
            light = wrapped(x + y, 256);
            break;
        case Pattern::Checkerboard:
            light = wrapped(divided(x, squareSize) + square, 2) * 255;
            break;
        }
        const auto grey = static_cast<std::uint8_t>(light);
        paint(m_line, i, {grey, grey, grey});
    }
    switch (m_pattern) {
    case Pattern::Checkerboard:
        return {m_line, wrapped(square, 2)};
    case Pattern::VerticalRamp:
    case Pattern::DiagonalRamp:
        return {m_line, wrapped(y, 256)};
    default:
        return {m_line, 0};
    }
}

} // namespace OrvCameraApi
