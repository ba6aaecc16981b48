// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCNamespace.h>

namespace GENAPI_NAMESPACE {

/** How a node map is destroyed that somebody else has made. */
struct ORV_GENAPI_EXPORT IDestroy
{
    virtual void Destroy() = 0;

protected:
    ~IDestroy() = default;
};

} // namespace GENAPI_NAMESPACE
