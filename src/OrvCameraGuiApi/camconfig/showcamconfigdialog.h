// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <cstdint>

/**
 * \file
 * Functions with C linkage that show the configuration window or one of its dialogs; this header needs no Qt.
 *
 * Each function creates the window for \a device, shows it, and destroys it when it returns. It intentionally runs no
 * event loop, so the window is visible only until the application repaints the screen. Use the classes,
 * OrvGui::OrvCamConfig and the others, for windows that stay.
 *
 * The caller keeps \a device, which may be null. The dialogs are empty then, and ShowCamConfigDialog() asks the user
 * for a camera before it returns.
 *
 * \a parentWindowId is a native window, and the new window stays in front of it. 0 stands for none; an invalid number
 * does no harm. A Qt window of this process becomes the parent widget.
 *
 * The functions create a Qt application object if there is none, with Qt::AA_UseHighDpiPixmaps, and never destroy it.
 * They do nothing if the application object has no widgets (QGuiApplication, QCoreApplication). GUI thread only;
 * nothing throws.
 */
extern "C" {

ORV_CAMERAGUIAPI_EXPORT void ShowCamConfigDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

ORV_CAMERAGUIAPI_EXPORT void ShowColorDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

/** Intentionally shows the color dialog. */
ORV_CAMERAGUIAPI_EXPORT void ShowFrameABDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

ORV_CAMERAGUIAPI_EXPORT void ShowOutputDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

ORV_CAMERAGUIAPI_EXPORT void ShowPulseDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

ORV_CAMERAGUIAPI_EXPORT void ShowStrobeDialog(OrvCam::Device *device, std::uint64_t parentWindowId);

ORV_CAMERAGUIAPI_EXPORT void ShowTriggerDialog(OrvCam::Device *device, std::uint64_t parentWindowId);
}
