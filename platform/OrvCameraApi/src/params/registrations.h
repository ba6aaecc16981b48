// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "livecounts.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace OrvCameraApi {

/**
 * Receivers of a notification, each at most once, in the order of their registration.
 *
 * A delivery walks a snapshot() and asks contains() before each call: a receiver that has left by then is not called,
 * not even when it has come back, because a new registration has a new number. The owner locks.
 */
template <typename Receiver>
class Registrations
{
public:
    struct Registration
    {
        Receiver receiver;
        std::uint64_t number;
    };

    /** \a count is kept at the number of registrations. */
    explicit Registrations(std::atomic<std::size_t> &count)
        : m_count(count)
    {
    }

    bool isEmpty() const { return m_entries.empty(); }

    /** A receiver that is registered already keeps its place. */
    void add(const Receiver &receiver)
    {
        if (std::none_of(m_entries.begin(), m_entries.end(), isOf(receiver)))
            m_entries.push_back({{receiver, ++m_lastNumber}, std::make_unique<Counted>(m_count)});
    }

    void remove(const Receiver &receiver)
    {
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isOf(receiver)), m_entries.end());
    }

    void clear() { m_entries.clear(); }

    std::vector<Registration> snapshot() const
    {
        std::vector<Registration> registrations;
        registrations.reserve(m_entries.size());
        for (const Entry &entry : m_entries)
            registrations.push_back(entry.registration);
        return registrations;
    }

    bool contains(const Registration &registration) const
    {
        return std::any_of(m_entries.begin(), m_entries.end(), [&registration](const Entry &entry) {
            return entry.registration.number == registration.number;
        });
    }

private:
    struct Entry
    {
        Registration registration;
        std::unique_ptr<Counted> counted;
    };

    static auto isOf(const Receiver &receiver)
    {
        return [&receiver](const Entry &entry) { return entry.registration.receiver == receiver; };
    }

    std::atomic<std::size_t> &m_count;
    std::vector<Entry> m_entries;
    std::uint64_t m_lastNumber = 0;
};

} // namespace OrvCameraApi
