// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "pixellayout.h"
#include "scene.h"

#include <GenApi/INodeMap.h>

#include <array>
#include <chrono>
#include <cstdint>

namespace OrvCameraApi {

/** All that a picture depends on, as the features said at one moment. */
struct PictureSettings
{
    PixelLayout layout;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::size_t size = 0; ///< bytes
    double left = 0; ///< of the region, in the sensor's pixels
    double top = 0;
    double stepX = 1; ///< the sensor's pixels from one pixel to the next
    double stepY = 1;
    bool isMirroredX = false;
    bool isMirroredY = false;
    Scene::Pattern pattern = Scene::Pattern::None;
    std::array<double, Scene::Channels>
        gains{}; ///< of the light, which is 0 to 255, to the full range of the converter
    double black = 0; ///< of the full range
    std::chrono::microseconds period{0}; ///< from picture to picture
};

/**
 * Reads them, with the lock of \a map held. Whatever cannot be read makes no difference, except for size and format:
 * without these it throws.
 */
PictureSettings readPictureSettings(GenApi::INodeMap &map);

} // namespace OrvCameraApi
