#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>
#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <cstdint>

namespace OrvGenParam {
class Array;
} // namespace OrvGenParam

namespace OrvCam {

class DeviceInfoList;

/** The kinds of interface that have a name; a system may answer any other code as well. */
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
 * Belongs to the system and lives as long as it does: there is one object for every interface, whatever is listed
 * meanwhile, and nothing of it changes in place. One that was unplugged keeps its texts; its operations then fail.
 * Every operation may be called from any thread. Texts live as long as the object and may be null.
 */
class ORV_CAMERA_API Interface
{
protected:
    virtual ~Interface() = default;

public:
    /** The devices that are known to be on this interface. The caller releases the list; null when there is none. */
    virtual DeviceInfoList *GetDeviceInfoList() = 0;

    /**
     * Asks the library to look for devices, for at most \a timeout (in the library's own unit, milliseconds in ours).
     * \a changed, which may be null, is set when the known devices are others than before. Whether the search happens
     * during the call is the library's choice: what it found is seen in GetDeviceInfoList(), at once or later.
     */
    virtual OrvCamErr ReEnumerateDevices(bool *changed, std::uint32_t timeout) = 0;

    /** The name for people; UTF-8. */
    virtual const char *GetDescription() = 0;

    /** An InterfaceType, or a code without a name. */
    virtual std::int32_t GetType() = 0;

    /** The key of the interface; Latin-1. */
    virtual const char *GetID() = 0;

    /** UTF-8. */
    virtual const char *GetVersion() = 0;

    /**
     * The features of the transport layer; belongs to the interface and lives as long. Null when there are none.
     * \a err may be null.
     *
     * "DeviceSelector" chooses the device, by its row on the interface, that the features "Device..." and
     * "GevDevice..." speak of; the others speak of the interface. Addresses are integers whose first written part is
     * the most significant byte: 32 bits of IPv4, the low 48 bits for a MAC address.
     */
    virtual OrvGenParam::Array *GetParameters(OrvCamErr *err) = 0;
};

} // namespace OrvCam
