#pragma once

#include <Base/GCNamespace.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace GENAPI_NAMESPACE {

/** A list of valid values: read only, of a length fixed when it was made. */
template <typename Number>
class Autovector
{
public:
    Autovector() = default;
    explicit Autovector(std::vector<Number> values)
        : m_values(std::move(values))
    {
    }

    std::size_t size() const { return m_values.size(); }
    const Number &operator[](std::size_t index) const { return m_values[index]; }

private:
    std::vector<Number> m_values;
};

using int64_autovector_t = Autovector<int64_t>;
using double_autovector_t = Autovector<double>;

} // namespace GENAPI_NAMESPACE
