// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>

namespace OrvGui {

/** Shows the dialog of that kind, see featureDialogs(), and destroys it: the body of its C function. */
void showFeatureDialog(const char *kind, OrvCam::Device *device, std::uint64_t parentWindowId);

} // namespace OrvGui
