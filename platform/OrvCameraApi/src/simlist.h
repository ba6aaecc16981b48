#pragma once

#include "livecounts.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace OrvCameraApi {

/** A list of \a Entry objects behind the interface \a List. Deletes itself when it is released. */
template <typename List, typename Entry>
class SimList final : public List
{
public:
    explicit SimList(std::vector<Entry *> entries)
        : m_entries(std::move(entries))
    {
    }

    void Release() override { delete this; }
    std::size_t GetSize() override { return m_entries.size(); }

    Entry *GetFirst() override
    {
        m_next = 0;
        return GetNext();
    }

    Entry *GetNext() override { return m_next < m_entries.size() ? m_entries[m_next++] : nullptr; }

private:
    ~SimList() override = default;

    const Counted m_counted{liveCounts().lists};
    const std::vector<Entry *> m_entries;
    std::size_t m_next = 0;
};

} // namespace OrvCameraApi
