#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <cstdint>

/**
 * \file
 * Functions with C linkage that show the configuration window or one of its dialogs; this header needs no Qt.
 *
 * Each makes the window for \a device, shows it, and destroys it when it returns: intentionally no event loop is run,
 * so that the window is seen only for as long as the application keeps the screen as it is. Windows that stay are made
 * with the classes, OrvGui::OrvCamConfig and the others.
 *
 * \a device stays the caller's, and may be null: the dialogs are empty then, and ShowCamConfigDialog() asks the user
 * for a camera before it returns.
 *
 * \a parentWindowId is a native window that the new one stands in front of; 0 for none, and a number that is no window
 * does no harm. If it is a Qt window of this process, that becomes the parent widget.
 *
 * Where there is no Qt application object yet, one is made, with Qt::AA_UseHighDpiPixmaps, and never destroyed. Where
 * there is one without widgets (QGuiApplication, QCoreApplication) nothing happens. All calls come from the GUI thread;
 * none of them throws.
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
