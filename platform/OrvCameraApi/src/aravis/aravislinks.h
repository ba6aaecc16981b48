// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "cameralink.h"
#include "usbdiscovery.h"

#include <cstdint>
#include <vector>

/**
 * \file
 * The functions of the module that links to cameras through Aravis. It is a library of its own, loaded when somebody
 * wants real cameras, because all that it needs would make every program start later. All throw LinkError; the caller
 * owns links, which keep \a isWanted.
 */

#define ORV_ARAVIS_EXPORT __attribute__((visibility("default")))

extern "C" {

/** Through the adapter of that address: to control the camera, or only to read it. Fetches its description. */
ORV_ARAVIS_EXPORT OrvCameraApi::CameraLink *orvAravisOpenGige(std::uint32_t adapter, std::uint32_t address,
                                                              bool isReadOnly, const OrvCameraApi::IsWanted &isWanted);

/** Appends the cameras that are plugged in now. May take a moment. */
ORV_ARAVIS_EXPORT void orvAravisListUsb(std::vector<OrvCameraApi::UsbCamera> &cameras);

ORV_ARAVIS_EXPORT OrvCameraApi::CameraLink *orvAravisOpenUsb(const char *id, const OrvCameraApi::IsWanted &isWanted);

} // extern "C"
