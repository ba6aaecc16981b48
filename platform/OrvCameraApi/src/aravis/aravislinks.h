#pragma once

#include "cameralink.h"
#include "udpsocket.h"
#include "usbinterface.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

/**
 * Opens the GigE Vision camera at \a device through the adapter with the address \a adapter: to control it, or for
 * reading if another program controls it and allows that. Asks the camera for its description first; one that is not in
 * the camera itself is never fetched. Throws LinkError.
 */
std::unique_ptr<CameraLink> openGigeCamera(std::uint32_t adapter, const Endpoint &device);

/** Those that are plugged in now. May take a moment. */
std::vector<UsbCamera> usbCameras();

/** Opens a camera to control it. Throws LinkError. */
std::unique_ptr<CameraLink> openUsbCamera(const std::string &id);

} // namespace OrvCameraApi
