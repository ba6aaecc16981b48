// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "portmonitor.h"
#include "registerfile.h"
#include "servicemap.h"

#include <string>

namespace OrvCameraApi {

/**
 * Carries out the statements of OrvSim::DeviceSpec::powerUp. Throws a GenICam::GenericException with the number of the
 * line when a statement cannot be carried out.
 */
void powerUp(const std::string &statements, ServiceMap &map, RegisterFile &registers, PortMonitor &monitor);

} // namespace OrvCameraApi
