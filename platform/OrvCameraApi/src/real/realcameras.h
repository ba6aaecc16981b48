// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"

#include <OrvCameraApi/transports.h>

#include <string>
#include <vector>

namespace OrvCameraApi {

/** The cameras on the network and on USB; the same object as long as the process. */
Backend &realCameras();

/** Where interfaces look from now on. */
void setDiscovery(const OrvTransports::Discovery &discovery);

/** As OrvTransports::problems(). */
std::vector<std::string> problemsOfRealCameras();

/** Only cameras that are known are asked from now on, until somebody lists interfaces again. */
void stopLooking();

} // namespace OrvCameraApi
