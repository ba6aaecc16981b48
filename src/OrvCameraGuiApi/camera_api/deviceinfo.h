// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <cstdint>

namespace OrvCam {

class Interface;

/** The access codes that have a name; a system may answer any other code as well. */
enum AccessStatus : std::int32_t {
    AccessStatusReadWrite = 1,
    AccessStatusReadOnly = 2,
    AccessStatusNoAccess = 3,
    AccessStatusIpSubnetMismatch = 1001
};

/**
 * The description of a device on an interface.
 *
 * Owned by the system, with the same lifetime: there is one object for each device, whatever the lists contain. It
 * keeps its texts when the device is unplugged, and its operations fail. All operations may be called from any thread.
 * Texts are UTF-8, except the identifier, live as long as the object and may be null.
 */
class ORV_CAMERA_API DeviceInfo
{
protected:
    virtual ~DeviceInfo() = default;

public:
    /** The interface on which the device was found. */
    virtual Interface *GetInterface() = 0;

    /** The key of the device; Latin-1. */
    virtual const char *GetID() = 0;

    virtual const char *GetVendor() = 0;
    virtual const char *GetModel() = 0;

    /** The display name in lists. */
    virtual const char *GetDisplayName() = 0;

    virtual const char *GetUserDefinedName() = 0;
    virtual const char *GetSerialNumber() = 0;
    virtual const char *GetVersion() = 0;

    /** The present AccessStatus, or a code without a name. */
    virtual std::int32_t GetAccessStatus() = 0;

    /**
     * The device's address, subnet mask and gateway in dotted notation. On other interfaces than GigE Vision, and when
     * the device is gone, the text is null and \a err, which may be null, gets an error.
     */
    virtual const char *GetIPAddress(OrvCamErr *err) = 0;
    virtual const char *GetSubnetMask(OrvCamErr *err) = 0;
    virtual const char *GetGateway(OrvCamErr *err) = 0;

    /**
     * Gives the device another address until its next start. All three are 32 bits of IPv4 in host order, the first
     * dotted part in the most significant byte. A device that is thereby in the subnet of its interface can be
     * reached at once. May take seconds.
     */
    virtual OrvCamErr ForceIP(std::uint32_t address, std::uint32_t subnetMask, std::uint32_t gateway) = 0;
};

} // namespace OrvCam
