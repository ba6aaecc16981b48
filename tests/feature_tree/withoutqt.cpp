// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Compiled without Qt's headers in reach: what applications without Qt include must not need them.
#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>
#include <OrvCameraGuiApi/device_selection/selectcamera.h>
#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>
#include <OrvCameraGuiApi/windows/processevents.h>
