#pragma once

#include "backend.h"

#include <vector>

namespace OrvCameraApi {

/** The transports of the next system. */
std::vector<Backend *> chosenBackends();

} // namespace OrvCameraApi
