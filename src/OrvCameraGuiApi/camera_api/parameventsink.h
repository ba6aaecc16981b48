#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

namespace OrvGenParam {

class Param;

/** Receives the changes of parameters. Implemented by whoever wants to know; belongs to its implementer. */
class ORV_CAMERA_API ParamEventSink
{
public:
    virtual ~ParamEventSink() = default;

    /**
     * Value, range or access of \a param changed. Called once for a change, on the thread whose call made the change.
     * It may register and unregister any sink, and destroy this one.
     */
    virtual void OnParameterUpdate(Param *param) = 0;
};

} // namespace OrvGenParam
