#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** Something the camera can be told to do. */
class ORV_CAMERA_API Command : public virtual Param
{
protected:
    ~Command() override = default;

public:
    /** Tells the camera; does not wait until it is done. */
    virtual OrvCamErr Execute() = 0;
};

} // namespace OrvGenParam
