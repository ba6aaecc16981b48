// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * \namespace OrvGenParam
 * The features of cameras and interfaces as objects, as far as the widgets here use them.
 *
 * These are declarations of what is asked of the camera access library; nothing here implements them. A vendor's
 * library has further operations in between: it is not binary compatible with these classes, and an application that
 * uses one builds the widgets, and itself, against that vendor's headers in place of these.
 */

#include <OrvCameraGuiApi/camera_api/array.h>
#include <OrvCameraGuiApi/camera_api/booleanparam.h>
#include <OrvCameraGuiApi/camera_api/commandparam.h>
#include <OrvCameraGuiApi/camera_api/enumentry.h>
#include <OrvCameraGuiApi/camera_api/enumparam.h>
#include <OrvCameraGuiApi/camera_api/intparam.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>
#include <OrvCameraGuiApi/camera_api/param.h>
#include <OrvCameraGuiApi/camera_api/parameventsink.h>
#include <OrvCameraGuiApi/camera_api/stringparam.h>
