// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/** The version of the reference implementation whose programs these headers are for. */
#define GENICAM_VERSION_MAJOR 3
#define GENICAM_VERSION_MINOR 4
#define GENICAM_VERSION_SUBMINOR 0
#define GENICAM_VERSION_BUILD 0

#define GENICAM_VERSION_MAJOR_STR "3"
#define GENICAM_VERSION_MINOR_STR "4"
#define GENICAM_VERSION_SUBMINOR_STR "0"
#define GENICAM_VERSION_BUILD_STR "0"
