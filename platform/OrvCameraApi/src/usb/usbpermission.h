// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <string>

namespace OrvCameraApi {

/**
 * What keeps this user from a USB3 Vision camera that is plugged in, for people; empty if nothing does. Looked up below
 * \a root, because the system's USB library does not name devices that it cannot open.
 */
std::string usbPermissionProblem(const std::string &root);

} // namespace OrvCameraApi
