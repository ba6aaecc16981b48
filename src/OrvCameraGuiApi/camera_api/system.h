#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstdint>

namespace OrvCam {

class InterfaceList;

/** The mask of GetInterfaceList() that leaves nothing out. The meaning of its single bits is the library's. */
constexpr std::uint32_t AllInterfaceTypes = 255;

/**
 * The camera system of the process: the root of all interfaces and devices. Belongs to the camera access library.
 *
 * Every operation may be called from any thread.
 */
class ORV_CAMERA_API System
{
protected:
    virtual ~System() = default;

public:
    /**
     * Gives back one successful OrvCam_GetSystem(). With the last one go all interfaces and device descriptions;
     * devices that are open stay until they are released themselves.
     */
    virtual void Release() = 0;

    /**
     * The interfaces whose type is in \a typeMask, as the system knows them now. The caller releases the list; null
     * when there is nothing to list.
     */
    virtual InterfaceList *GetInterfaceList(std::uint32_t typeMask) = 0;
};

} // namespace OrvCam
