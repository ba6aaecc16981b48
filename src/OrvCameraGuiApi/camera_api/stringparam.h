// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

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
