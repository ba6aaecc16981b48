// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <vector>

namespace OrvCameraApi {

/** The transports of the next system. */
std::vector<Backend *> chosenBackends();

} // namespace OrvCameraApi
