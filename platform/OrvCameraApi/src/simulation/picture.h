#pragma once

#include "picturesettings.h"

#include <cstdint>

namespace OrvCameraApi {

/** Draws the picture of that number. \a to has settings.size bytes. */
void drawPicture(const PictureSettings &settings, std::uint64_t number, std::uint8_t *to);

} // namespace OrvCameraApi
