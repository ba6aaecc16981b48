// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <mutex>
#include <utility>

namespace OrvCameraApi {

/** A value that any thread may use. The actions call nothing that locks. */
template <typename Value>
class Locked
{
public:
    explicit Locked(Value value = {})
        : m_value(std::move(value))
    {
    }

    Value copy() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_value;
    }

    template <typename Action>
    auto use(Action &&action)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return action(m_value);
    }

private:
    mutable std::mutex m_mutex;
    Value m_value;
};

} // namespace OrvCameraApi
