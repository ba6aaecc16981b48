// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/blockarena.h>

#include <algorithm>

namespace {

constexpr std::size_t largestBlock = 8 * 1024;

} // namespace

void *BlockArena::do_allocate(std::size_t bytes, std::size_t alignment)
{
    if (std::align(alignment, bytes, m_free, m_left) == nullptr) {
        // A large request gets a block of its own, so that the present one can be filled up. Blocks come aligned for
        // every type.
        if (bytes > m_blockSize / 4)
            return newBlock(bytes);
        m_free = newBlock(m_blockSize);
        m_left = m_blockSize;
        m_blockSize = std::min(2 * m_blockSize, largestBlock);
    }
    void *const place = m_free;
    m_free = static_cast<std::byte *>(m_free) + bytes;
    m_left -= bytes;
    return place;
}

void *BlockArena::newBlock(std::size_t bytes)
{
    // Not make_unique(): it would fill the block with zeros.
    m_blocks.emplace_back(new std::byte[bytes]);
    return m_blocks.back().get();
}
