// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <cstdint>

namespace OrvGenParam {
class Array;
} // namespace OrvGenParam

namespace OrvCam {

class DeviceInfoList;

/** The interface types that have a name; a system may return other codes too. */
enum InterfaceType : std::int32_t {
    InterfaceTypeUsb3Vision = 1,
    InterfaceTypeGigEVision = 2,
    InterfaceTypeCameraLink = 3,
    InterfaceTypeCoaXPress = 4,
    InterfaceTypeHdSdi = 5
};

/**
 * A transport interface of the host: a network adapter, a USB host controller, a frame grabber.
 *
 * Owned by the system, with the same lifetime: there is one object for each interface, whatever the lists contain. Its
 * properties never change. An interface that was unplugged keeps its texts, and its operations fail.
 * Every operation may be called from any thread. Texts live as long as the object and may be null.
 */
class ORV_CAMERA_API Interface
{
protected:
    virtual ~Interface() = default;

public:
    /** The known devices of this interface. The caller releases the list; null if there is none. */
    virtual DeviceInfoList *GetDeviceInfoList() = 0;

    /**
     * Asks the library to search for devices, for at most \a timeout (in the library's unit; milliseconds in the
     * stand-in). \a changed, which may be null, receives whether the known devices have changed. The library may search
     * during the call or later; GetDeviceInfoList() has the result.
     */
    virtual OrvCamErr ReEnumerateDevices(bool *changed, std::uint32_t timeout) = 0;

    /** The display name; UTF-8. */
    virtual const char *GetDescription() = 0;

    /** An InterfaceType, or a code without a name. */
    virtual std::int32_t GetType() = 0;

    /** The key of the interface; Latin-1. */
    virtual const char *GetID() = 0;

    /** UTF-8. */
    virtual const char *GetVersion() = 0;

    /**
     * The features of the transport layer; owned by the interface, with the same lifetime. Null if there are none.
     * \a err may be null.
     *
     * "DeviceSelector" selects a device by its index on the interface. The features "Device..." and "GevDevice..."
     * describe this device, all others the interface. Addresses are integers with the first byte of the text as the
     * most significant one: 32 bits for IPv4, the low 48 bits for a MAC address.
     */
    virtual OrvGenParam::Array *GetParameters(OrvCamErr *err) = 0;
};

} // namespace OrvCam
