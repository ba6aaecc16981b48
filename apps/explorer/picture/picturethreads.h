// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <functional>

class QObject;

/**
 * \file
 * Called on the GUI thread; nobody waits for the threads until the application object goes. Throws a std::system_error
 * where no thread can be had.
 */

/** Runs \a work at once, on another thread. */
void inPictureThread(std::function<void()> work);

/** The same, and then runs what \a work has returned on the GUI thread, if \a context is still there. */
void inPictureThread(QObject *context, std::function<std::function<void()>()> work);
