// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "cameralink.h"
#include "udpsocket.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace OrvCameraApi {

/** Opens a camera at \a address through the adapter of that address: to control it, or only to read it. */
using OpenTransport = std::function<std::unique_ptr<CameraLink>(std::uint32_t adapter, std::uint32_t address,
                                                                bool isReadOnly, const IsWanted &isWanted)>;

/**
 * Opens the GigE Vision camera at \a device through the adapter with the address \a adapter: to control it, or for
 * reading if another program controls it and allows that. \a open moves the bytes, unless it cannot read the
 * description; then this does it without. It is kept from waiting for a camera that does not answer, from fetching a
 * description that is not in the camera, and from unpacking one of any size. The link keeps \a isWanted. Throws
 * LinkError.
 */
std::unique_ptr<CameraLink> openGigeCamera(std::uint32_t adapter, const Endpoint &device, const IsWanted &isWanted,
                                           const IsFetching &isFetching, const OpenTransport &open);

} // namespace OrvCameraApi
