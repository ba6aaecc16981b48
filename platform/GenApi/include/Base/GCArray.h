// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCNamespace.h>

#include <cstddef>
#include <memory>

namespace GENICAM_NAMESPACE {

/** An array whose length is known when it is made only, and which goes with its scope. */
template <typename T>
class gcarray
{
public:
    explicit gcarray(std::size_t size)
        : m_items(size ? new T[size] : nullptr)
    {
    }

    T *get() const { return m_items.get(); }
    T *operator*() { return m_items.get(); }
    T operator[](std::size_t idx) { return m_items[idx]; }

private:
    const std::unique_ptr<T[]> m_items;
};

} // namespace GENICAM_NAMESPACE
