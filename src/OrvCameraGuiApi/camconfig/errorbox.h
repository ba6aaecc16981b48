// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <QString>

class QWidget;

namespace OrvGui {

/**
 * Says in a modal message box that the parameter of that name could not be used. Returns at once: the box lives until
 * it is closed or \a parent, which may be null, goes. OrvCamErr_Ok shows nothing, and neither does a message that is on
 * the screen for the same \a parent already.
 */
void showError(OrvCamErr err, QWidget *parent, const QString &name);

} // namespace OrvGui
