// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <atomic>
#include <cstddef>

namespace OrvCameraApi {

/** The objects of each kind that applications hold now. */
struct LiveCounts
{
    std::atomic<std::size_t> systemReferences{0};
    std::atomic<std::size_t> lists{0};
    std::atomic<std::size_t> devices{0};
    std::atomic<std::size_t> eventCallbacks{0};
    std::atomic<std::size_t> sinks{0};
    std::atomic<std::size_t> nodeCallbacks{0};
};

inline LiveCounts &liveCounts()
{
    static LiveCounts counts;
    return counts;
}

/** Raises a count by one for as long as it lives. */
class Counted
{
public:
    explicit Counted(std::atomic<std::size_t> &count)
        : m_count(count)
    {
        ++m_count;
    }
    ~Counted() { --m_count; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

private:
    std::atomic<std::size_t> &m_count;
};

} // namespace OrvCameraApi
