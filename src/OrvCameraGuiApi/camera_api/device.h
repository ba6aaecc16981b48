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

/** Receives a device event; \a eventData, which may be null, is valid during the call only. */
using DeviceEventCallback = void (*)(const void *eventData, unsigned long eventDataSize, void *context);

/**
 * A device that has been opened with OrvCam_CreateDevice(). Belongs to the camera access library; whoever opened it
 * releases it. Until then every operation may be called from any thread.
 */
class ORV_CAMERA_API Device
{
protected:
    virtual ~Device() = default;

public:
    /**
     * Closes the device. Its parameters go with it: everyone who uses them has let go before, sinks unregistered.
     * Callbacks that are registered are dropped as by UnregisterEvent().
     */
    virtual void Release() = 0;

    /**
     * Calls \a callback with \a context on every \a eventId from now on, on any thread of the library's choice. The
     * context, which may be null, stays the caller's; a callback that is null is an invalid argument.
     */
    virtual OrvCamErr RegisterEvent(std::uint32_t eventId, DeviceEventCallback callback, void *context) = 0;

    /**
     * Ends the registration of exactly this triple; one that is not registered is no error. Returns only after a call
     * of the callback that is running has ended, and the callback is not called again. Called from that very callback
     * it returns at once; the callback is not called again either.
     */
    virtual OrvCamErr UnregisterEvent(std::uint32_t eventId, DeviceEventCallback callback, void *context) = 0;

    /**
     * The camera's features, or null; \a err may be null. The array and its parameters live as long as the device
     * object, through loss and return of the camera: while it is gone their operations fail. Events tell of loss and
     * return, not notifications.
     */
    virtual OrvGenParam::Array *GetCameraParameters(OrvCamErr *err) = 0;
};

} // namespace OrvCam
