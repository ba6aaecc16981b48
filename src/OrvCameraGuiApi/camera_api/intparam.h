#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** A signed 64-bit number, in whatever unit the feature has. */
class ORV_CAMERA_API Int : public virtual Param
{
protected:
    ~Int() override = default;

public:
    virtual OrvCamErr SetValue(std::int64_t value) = 0;
    virtual std::int64_t GetValue(OrvCamErr *err) = 0;
    virtual std::int64_t GetMin(OrvCamErr *err) = 0;
    virtual std::int64_t GetMax(OrvCamErr *err) = 0;

    /** The step between valid values; may be 0, which is to be used as 1. */
    virtual std::int64_t GetIncrement(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
