// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSize>

class QWidget;

/**
 * \file
 * Windows on screens that are smaller than they would like: what does not fit is out of reach, an OK button too.
 */

/** The size that a window of that kind can have on its screen, within the frame that it gets there. */
QSize roomOnScreen(const QWidget &window);

/**
 * Whenever the window is about to be shown, it gets the size it asks for, or has been given, as far as there is room.
 * One that fills the screen stays as it is.
 */
void openWithinScreen(QWidget &window);

/**
 * The same for a window that needs more than a small screen has: what its layout holds moves into an area that scrolls
 * where the room does not suffice, and is not to be noticed elsewhere. The widgets keep their names and their order;
 * the window is no longer their parent, but their ancestor.
 */
void scrollWhereTooSmall(QWidget &window);
