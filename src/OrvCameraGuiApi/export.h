// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * Marks what libOrvCameraGuiApi.so.1 offers to applications: the window and dialog classes, the value-entry widgets,
 * the validators and the C functions. Everything else stays hidden. The mark is the same for the library and for its
 * users: a program that is itself built with hidden visibility must not hide its references to these classes.
 */
#define ORV_CAMERAGUIAPI_EXPORT __attribute__((visibility("default")))
