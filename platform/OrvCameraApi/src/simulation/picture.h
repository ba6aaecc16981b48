// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "picturesettings.h"

#include <cstdint>

namespace OrvCameraApi {

/** Draws the picture of that number. \a to has settings.size bytes. */
void drawPicture(const PictureSettings &settings, std::uint64_t number, std::uint8_t *to);

} // namespace OrvCameraApi
