// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <cstdint>

namespace OrvGui {

/**
 * Lets a widget show an integer feature in other units than the camera's. Stays its implementer's, and must live as
 * long as it is bound.
 */
class IOrvCamConfigIntConverter
{
public:
    /** Returns the number to show for \a deviceValue: a value, a limit or a step of \a param. */
    virtual std::int64_t ToControl(std::int64_t deviceValue, OrvGenParam::Int *param) = 0;

    /** Returns the number to write to \a param for \a controlValue. */
    virtual std::int64_t ToDevice(std::int64_t controlValue, OrvGenParam::Int *param) = 0;

protected:
    ~IOrvCamConfigIntConverter() = default;
};

} // namespace OrvGui
