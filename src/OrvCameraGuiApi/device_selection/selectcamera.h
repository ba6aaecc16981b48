// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

class QString;

/**
 * \file
 * Functions that ask for a camera; this header needs no Qt.
 *
 * A modal dialog, OrvGui::OrvCameraSelectorDialog, shows what \a system finds until it is accepted or cancelled; other
 * events are processed meanwhile. The answer is the description of the chosen device, or null where none was chosen. It
 * is \a system's, which has to live until then, and valid until that enumerates its devices again. Without a system
 * there is nothing to choose.
 *
 * \a parentWindowId is a native window that the dialog stays in front of; 0 for none, and a number that is no window
 * does no harm. If it is a Qt window of this process, that becomes the parent widget; if it is destroyed while the
 * dialog is open, so is the dialog, and the answer is null. Any other window is left as it is and may go before.
 *
 * With \a poll the dialog follows on its own what is plugged in and out; people can switch that in it.
 *
 * Without a Qt application object the functions make one, with Qt::AA_UseHighDpiPixmaps, and never destroy it. With one
 * that has no widgets (QGuiApplication, QCoreApplication) they return null. All calls come from the GUI thread; none of
 * them throws.
 */
namespace OrvGui {

ORV_CAMERAGUIAPI_EXPORT OrvCam::DeviceInfo *SelectCamera(OrvCam::System *system, const QString &title,
                                                         unsigned long parentWindowId, bool poll);

} // namespace OrvGui

extern "C" {

/** \a title is UTF-8; null is an empty title. */
ORV_CAMERAGUIAPI_EXPORT OrvCam::DeviceInfo *SelectCameraA(OrvCam::System *system, const char *title,
                                                          unsigned long parentWindowId, bool poll);

/** \a title is a string of 32-bit characters; null is an empty title. */
ORV_CAMERAGUIAPI_EXPORT OrvCam::DeviceInfo *SelectCameraW(OrvCam::System *system, const wchar_t *title,
                                                          unsigned long parentWindowId, bool poll);
}
