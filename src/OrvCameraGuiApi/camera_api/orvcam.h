// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * \namespace OrvCam
 * The camera system, its interfaces and its devices, as far as the widgets here use them. For a vendor's library the
 * same holds as for OrvGenParam.
 */

#include <OrvCameraGuiApi/camera_api/device.h>
#include <OrvCameraGuiApi/camera_api/deviceinfo.h>
#include <OrvCameraGuiApi/camera_api/deviceinfolist.h>
#include <OrvCameraGuiApi/camera_api/interface.h>
#include <OrvCameraGuiApi/camera_api/interfacelist.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>
#include <OrvCameraGuiApi/camera_api/system.h>

namespace OrvCam {

/** The access mode with which a device is opened here: the caller controls the camera. */
constexpr std::int32_t DeviceAccessControl = 2;

} // namespace OrvCam

extern "C" {

/**
 * The camera system of the process, or null if it is not available. References are counted: each successful call needs
 * one OrvCam::System::Release(). May be called from any thread.
 */
ORV_CAMERA_API OrvCam::System *OrvCam_GetSystem();

/**
 * Opens the device; the caller releases it. Returns null if the device cannot be opened. \a err, which may be null,
 * gets the result; a null \a deviceInfo is an invalid argument. \a accessMode is a code of the library, see
 * OrvCam::DeviceAccessControl.
 */
ORV_CAMERA_API OrvCam::Device *OrvCam_CreateDevice(OrvCam::DeviceInfo *deviceInfo, std::int32_t accessMode,
                                                   OrvCamErr *err);
}
