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

/** The events of a device. */
enum DeviceEvent : std::uint32_t {
    EventDeviceConnected = 1003, ///< the device is reachable again
    EventDeviceDisconnected = 1004 ///< the device was lost
};

/** Receives a device event. \a eventData may be null and is valid during the call only. */
using DeviceEventCallback = void (*)(const void *eventData, unsigned long eventDataSize, void *context);

/**
 * A device opened by OrvCam_CreateDevice(). Owned by the camera access library until the opener releases it. Until then
 * all operations may be called from any thread.
 */
class ORV_CAMERA_API Device
{
protected:
    virtual ~Device() = default;

public:
    /**
     * Closes the device and destroys its parameters. Their users must have let go of them before, with all sinks
     * unregistered. Drops registered callbacks like UnregisterEvent().
     */
    virtual void Release() = 0;

    /**
     * Calls \a callback with \a context for every event \a eventId from now on, on any thread. The caller keeps the
     * context, which may be null. A null callback is an invalid argument.
     */
    virtual OrvCamErr RegisterEvent(std::uint32_t eventId, DeviceEventCallback callback, void *context) = 0;

    /**
     * Ends the registration of exactly this triple; a triple that is not registered is no error. Waits until a running
     * call of the callback has ended, except within that call. The callback is not called again.
     */
    virtual OrvCamErr UnregisterEvent(std::uint32_t eventId, DeviceEventCallback callback, void *context) = 0;

    /**
     * The features of the camera, or null; \a err may be null. The array and its parameters live as long as the device
     * object, even while the camera is lost; their operations fail then. Events report loss and return, parameter
     * notifications do not.
     */
    virtual OrvGenParam::Array *GetCameraParameters(OrvCamErr *err) = 0;
};

} // namespace OrvCam
