#pragma once

#include "backend.h"

#include <OrvCameraApi/transports.h>

namespace OrvCameraApi {

/** The cameras on the network and on USB; the same object as long as the process. */
Backend &realCameras();

/** Where the next interfaces look. */
void setDiscovery(const OrvTransports::Discovery &discovery);

} // namespace OrvCameraApi
