// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "pixellayout.h"

#include <cstddef>
#include <cstdint>

namespace OrvCameraApi {

/** Writes the components of pixels one behind the other, in the layout of a format. */
class PixelWriter
{
public:
    PixelWriter(const PixelLayout &layout, std::uint8_t *to)
        : m_layout(layout)
        , m_to(to)
    {
    }

    /** A pixel has one component, or three: red, green, blue. */
    void write(const std::uint16_t *components, std::size_t pixels);

    /** A byte that is not full is. */
    void finish();

    /** Where the next pixel begins; null within a byte. */
    std::uint8_t *position() const { return m_pending == 0 ? m_to : nullptr; }
    void skip(std::size_t bytes) { m_to += bytes; }

private:
    void writeWords(const std::uint16_t *components, std::size_t pixels);
    void writePacked(const std::uint16_t *components, std::size_t pixels);
    void writeGigePacked(const std::uint16_t *components, std::size_t pixels);
    void writeColors(const std::uint16_t *components, std::size_t pixels);
    void writeYuv(const std::uint16_t *components, std::size_t pixels);
    void put(unsigned byte) { *m_to++ = static_cast<std::uint8_t>(byte); }

    const PixelLayout m_layout;
    std::uint8_t *m_to;
    std::uint32_t m_bits = 0; ///< of the byte that is not full
    unsigned m_pending = 0; ///< their number
};

} // namespace OrvCameraApi
