// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** An entry of an enumeration, which owns it. IsAvailable() returns whether it can be chosen now. */
class ORV_CAMERA_API EnumEntry : public virtual Param
{
protected:
    ~EnumEntry() override = default;

public:
    virtual std::int64_t GetValue(OrvCamErr *err) = 0;

    /** The symbolic name, UTF-8; constant for the life of the object. */
    virtual const char *GetValueStr(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
