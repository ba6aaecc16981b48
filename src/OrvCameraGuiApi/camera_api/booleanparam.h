// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** A boolean feature. */
class ORV_CAMERA_API Boolean : public virtual Param
{
protected:
    ~Boolean() override = default;

public:
    virtual OrvCamErr SetValue(bool value) = 0;
    virtual bool GetValue(OrvCamErr *err) = 0;
};

} // namespace OrvGenParam
