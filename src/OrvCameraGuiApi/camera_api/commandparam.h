// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/param.h>

namespace OrvGenParam {

/** A command feature. */
class ORV_CAMERA_API Command : public virtual Param
{
protected:
    ~Command() override = default;

public:
    /** Starts the command; does not wait until it is done. */
    virtual OrvCamErr Execute() = 0;
};

} // namespace OrvGenParam
