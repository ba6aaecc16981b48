// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "livecounts.h"

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace OrvCameraApi {

/** A list of \a Entry objects behind the interface \a List. Deletes itself when it is released. */
template <typename List, typename Entry>
class ObjectList final : public List
{
public:
    explicit ObjectList(std::vector<Entry *> entries)
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
    ~ObjectList() override = default;

    const Counted m_counted{liveCounts().lists};
    const std::vector<Entry *> m_entries;
    std::size_t m_next = 0;
};

/**
 * The objects that stand for a backend's objects, one for each. Made when they are first listed and kept as long as
 * this, because applications hold bare pointers to them. Any thread may use it.
 */
template <typename Object, typename BackendObject>
class ObjectsInUse
{
public:
    /** \a context stands before the backend's object among the arguments of the constructor. */
    template <typename... Context>
    Object *objectFor(const std::shared_ptr<BackendObject> &source, Context &...context)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::unique_ptr<Object> &object = m_objects[source];
        if (!object)
            object = std::make_unique<Object>(context..., source);
        return object.get();
    }

private:
    std::mutex m_mutex;
    std::map<std::shared_ptr<BackendObject>, std::unique_ptr<Object>> m_objects;
};

} // namespace OrvCameraApi
