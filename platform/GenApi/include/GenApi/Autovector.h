// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCTypes.h>

#include <utility>
#include <vector>

namespace GENAPI_NAMESPACE {

/** A list of valid values, of a length fixed when it was made. */
template <typename Number>
class Autovector
{
public:
    Autovector() = default;
    explicit Autovector(std::size_t n)
        : m_values(n)
    {
    }
    explicit Autovector(std::vector<Number> values)
        : m_values(std::move(values))
    {
    }

    std::size_t size() const { return m_values.size(); }
    Number &operator[](std::size_t uiIndex) { return m_values[uiIndex]; }
    const Number &operator[](std::size_t uiIndex) const { return m_values[uiIndex]; }

private:
    std::vector<Number> m_values;
};

class int64_autovector_t : public Autovector<int64_t>
{
public:
    using Autovector::Autovector;
};

class double_autovector_t : public Autovector<double>
{
public:
    using Autovector::Autovector;
};

} // namespace GENAPI_NAMESPACE
