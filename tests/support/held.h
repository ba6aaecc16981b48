#pragma once

#include <memory>

namespace OrvTest {

struct Releaser
{
    template <typename Object>
    void operator()(Object *object) const
    {
        object->Release();
    }
};

/** Releases an object of the camera access library at the end of the scope. */
template <typename Object>
using Held = std::unique_ptr<Object, Releaser>;

} // namespace OrvTest
