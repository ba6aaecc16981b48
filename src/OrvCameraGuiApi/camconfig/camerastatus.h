// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QString>

#include <cstdint>
#include <optional>

namespace OrvGui {

/** The parameters that the configuration window reads; each is null when the camera does not have it. */
struct CameraParams
{
    CameraParams() = default;
    explicit CameraParams(OrvGenParam::Array &params);

    OrvGenParam::Enum *frameAbSelector = nullptr;
    OrvGenParam::Enum *frameMode = nullptr;
    OrvGenParam::Enum *sensorType = nullptr;

    OrvGenParam::Int *temperature = nullptr; ///< in degrees Celsius
    OrvGenParam::Int *exposureTime = nullptr; ///< in microseconds
    OrvGenParam::Int *frameTime = nullptr; ///< in microseconds
    OrvGenParam::Int *width = nullptr;
    OrvGenParam::Int *height = nullptr;
    OrvGenParam::Int *rgsId = nullptr;
    OrvGenParam::Int *fpgaId = nullptr;
    OrvGenParam::Int *epcsId = nullptr;
    OrvGenParam::Int *firmwareImage = nullptr;
    OrvGenParam::Int *customerId = nullptr;
    OrvGenParam::Int *familyId = nullptr;
    OrvGenParam::Int *xmlVersion = nullptr;

    OrvGenParam::String *vendorName = nullptr;
    OrvGenParam::String *modelName = nullptr;
    OrvGenParam::String *familyName = nullptr;
    OrvGenParam::String *deviceVersion = nullptr;
    OrvGenParam::String *firmwareVersion = nullptr;
    OrvGenParam::String *manufacturerInfo = nullptr;
    OrvGenParam::String *serialNumber = nullptr;
    OrvGenParam::String *userDefinedName = nullptr;
};

/** The value of a parameter, which may be null; nothing when it cannot be read. */
std::optional<std::int64_t> valueOf(OrvGenParam::Int *param);
std::optional<QString> valueOf(OrvGenParam::Enum *param); ///< the symbolic one
std::optional<QString> valueOf(OrvGenParam::String *param);

/** The value in decimal; empty when it cannot be read. */
QString decimal(OrvGenParam::Int *param);

/** Width and height with an "x" between; empty when one of them cannot be read. */
QString sizeText(OrvGenParam::Int *width, OrvGenParam::Int *height);

/** How many frames of that duration, in microseconds, make a second, with two decimals; "0.00" for a duration of 0. */
QString framesPerSecond(std::int64_t frameTime);

} // namespace OrvGui
