// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

namespace OrvGenParam {

class Param;

/** Receives the changes of parameters. Implemented and owned by the application. */
class ORV_CAMERA_API ParamEventSink
{
public:
    virtual ~ParamEventSink() = default;

    /**
     * The value, range or access of \a param has changed. Called once for each change, on the thread that made it. An
     * implementation may register and unregister any sink, and destroy this one.
     */
    virtual void OnParameterUpdate(Param *param) = 0;
};

} // namespace OrvGenParam
