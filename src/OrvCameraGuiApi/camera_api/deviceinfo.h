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
 * The description of a device that was found on an interface.
 *
 * Belongs to the system and lives as long as it does: there is one object for every device, whatever is listed
 * meanwhile. One whose device was unplugged keeps its texts; its operations then fail. Every operation may be called
 * from any thread. Texts are UTF-8 but for the identifier, live as long as the object and may be null.
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

    /** The name for people in lists. */
    virtual const char *GetDisplayName() = 0;

    virtual const char *GetUserDefinedName() = 0;
    virtual const char *GetSerialNumber() = 0;
    virtual const char *GetVersion() = 0;

    /** An AccessStatus, or a code without a name. Follows the device. */
    virtual std::int32_t GetAccessStatus() = 0;

    /**
     * The device's address, subnet mask and gateway, dotted. They have a value on GigE Vision interfaces; elsewhere,
     * and when the device is gone, the text is null and \a err, which may be null, gets a failure.
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
