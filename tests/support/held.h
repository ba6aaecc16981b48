// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

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
