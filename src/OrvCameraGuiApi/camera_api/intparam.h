// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** An integer feature, 64 bits signed, in the unit of the feature. */
class ORV_CAMERA_API Int : public virtual Param
{
protected:
    ~Int() override = default;

public:
    virtual OrvCamErr SetValue(std::int64_t value) = 0;
    virtual std::int64_t GetValue(OrvCamErr *err) = 0;
    virtual std::int64_t GetMin(OrvCamErr *err) = 0;
    virtual std::int64_t GetMax(OrvCamErr *err) = 0;

    /** The step between valid values; 0 counts as 1. */
    virtual std::int64_t GetIncrement(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
