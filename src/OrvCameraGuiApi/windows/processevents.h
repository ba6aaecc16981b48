// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

/**
 * \file
 * A function with C linkage for programs that use no Qt themselves and have no event loop of Qt's; this header needs no
 * Qt.
 */
extern "C" {

/**
 * Lets the windows of this library live: processes what the window system, timers and cameras have brought since the
 * last call, and destroys what was to be destroyed later. If nothing waits, it waits for something to come, at most
 * \a longestWait milliseconds; 0 does not wait.
 *
 * To be called over and over, on the thread that made the first window. Answers whether a window is open: one that is
 * shown, or minimized. False, at once, as long as there is no Qt application object. Inside a callback of this library
 * it processes events like a modal dialog does. Never throws.
 */
ORV_CAMERAGUIAPI_EXPORT bool OrvProcessEvents(unsigned long longestWait);
}
