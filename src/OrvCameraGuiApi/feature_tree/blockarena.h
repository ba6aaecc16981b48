// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <vector>

/**
 * Memory that is only given back as a whole, when the arena goes. Takes blocks that double up to a fixed size, so that
 * little is wasted on a small tree and next to nothing on a large one.
 */
class BlockArena final : public std::pmr::memory_resource
{
public:
    BlockArena() = default;
    BlockArena(const BlockArena &) = delete;
    BlockArena &operator=(const BlockArena &) = delete;

private:
    void *do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void *, std::size_t, std::size_t) override { }
    bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override { return this == &other; }

    void *newBlock(std::size_t bytes);

    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    void *m_free = nullptr;
    std::size_t m_left = 0;
    std::size_t m_blockSize = 1024;
};
