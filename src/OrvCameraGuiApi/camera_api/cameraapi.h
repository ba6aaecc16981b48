// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * Marks the classes and functions that cross the border to the camera access library. Their type information has to be
 * one and the same on both sides, or a dynamic_cast from Param to its kinds fails.
 */
#define ORV_CAMERA_API __attribute__((visibility("default")))
