// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCNamespace.h>

namespace GENAPI_NAMESPACE {

using UserData_t = void *;

/** A place in a node or a node map where an application leaves a pointer of its own, null at first. */
struct ORV_GENAPI_EXPORT IUserData
{
    virtual UserData_t GetUserData() const = 0;

    /** Returns what was there before. */
    virtual UserData_t SetUserData(UserData_t userdata) = 0;

protected:
    ~IUserData() = default;
};

} // namespace GENAPI_NAMESPACE
