#pragma once

#include "portmonitor.h"
#include "registerfile.h"
#include "servicemap.h"

#include <string>

namespace OrvCameraApi {

/**
 * Carries out the statements of OrvSim::DeviceSpec::powerUp. Throws a GenICam::GenericException that names the line
 * when one cannot be carried out.
 */
void powerUp(const std::string &statements, ServiceMap &map, RegisterFile &registers, PortMonitor &monitor);

} // namespace OrvCameraApi
