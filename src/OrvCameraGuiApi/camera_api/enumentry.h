#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** One choice of an enumeration. IsAvailable() tells whether it may be chosen now. Belongs to its enumeration. */
class ORV_CAMERA_API EnumEntry : public virtual Param
{
protected:
    ~EnumEntry() override = default;

public:
    virtual std::int64_t GetValue(OrvCamErr *err) = 0;

    /** The symbolic name, UTF-8; stays the same for the life of the object. */
    virtual const char *GetValueStr(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
