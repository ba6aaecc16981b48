#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** A string feature. */
class ORV_CAMERA_API String : public virtual Param
{
protected:
    ~String() override = default;

public:
    /** UTF-8; valid until the next call of this function on this object. Null only if reading fails. */
    virtual const char *GetValue(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
