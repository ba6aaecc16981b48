// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <string>

namespace OrvCameraApi {

/**
 * The embedded file \a name of descriptions/. Every "<?include OTHER?>" in it is replaced by the file OTHER. Empty when
 * there is no such file.
 */
std::string description(const std::string &name);

} // namespace OrvCameraApi
