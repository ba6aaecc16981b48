// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "cameralink.h"
#include "usbdiscovery.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

/** The module that links to cameras, loaded upon the first use. Its functions throw LinkError. */
namespace AravisModule {

/** Whether it lies beside this library; it is not loaded for that. */
bool isInstalled();

std::unique_ptr<CameraLink> openGige(std::uint32_t adapter, std::uint32_t address, bool isReadOnly,
                                     const IsWanted &isWanted);
std::unique_ptr<CameraLink> openUsb(const std::string &id, const IsWanted &isWanted);

/** None as well when the module cannot be loaded, which is the problem then. */
UsbDiscovery::Found usbCameras();

} // namespace AravisModule

} // namespace OrvCameraApi
