// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "cameralink.h"

#include <arv.h>

#include <memory>
#include <string>

namespace OrvCameraApi {

struct Unref
{
    void operator()(void *object) const { g_object_unref(object); }
};

using DevicePointer = std::unique_ptr<ArvDevice, Unref>;

/** An error of Aravis. */
struct Failure
{
    GError *error = nullptr;

    Failure() = default;
    ~Failure() { g_clear_error(&error); }
    Failure(const Failure &) = delete;
    Failure &operator=(const Failure &) = delete;

    std::string text() const { return error ? error->message : "Unknown error"; }

    /** Throws if there is an error. */
    void check() const
    {
        if (!error)
            return;
        LinkError::Kind kind = LinkError::Kind::Failed;
        if (error->domain == ARV_DEVICE_ERROR) {
            if (error->code == ARV_DEVICE_ERROR_TIMEOUT || error->code == ARV_DEVICE_ERROR_NOT_CONNECTED)
                kind = LinkError::Kind::Silent;
            else if (error->code == ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED
                     || error->code == ARV_DEVICE_ERROR_NOT_CONTROLLER)
                kind = LinkError::Kind::Denied;
        }
        throw LinkError(kind, text());
    }
};

} // namespace OrvCameraApi
