// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

class QWidget;

/**
 * \file
 * The common part of the functions with C linkage: the application object, which the caller may lack, titles, and the
 * native window that stays behind the new one.
 */

/**
 * Returns whether widgets can be created. Creates the application object if there is none and a display can be
 * reached. Restores LC_NUMERIC, because Qt sets it, and with it the caller's decimal sign.
 */
bool ensureApplication();

/** The caller's title, UTF-8 or 32-bit characters; empty for null. */
QString titleFrom(const char *title);
QString titleFrom(const wchar_t *title);

/** The widget of this process with this native window; null for 0 and for other windows. */
QWidget *widgetOf(unsigned long windowId);

/**
 * Shows the window for the first time. A window without a parent widget stays in front of the native window with that
 * id, if it exists, also when it is shown again. The native window keeps its place and may be destroyed at any time.
 */
void showInFrontOf(QWidget &window, unsigned long callersWindowId);
