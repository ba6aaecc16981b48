// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstdint>

namespace OrvCam {

class InterfaceList;

/** The mask of GetInterfaceList() for all interfaces. The library defines the single bits. */
constexpr std::uint32_t AllInterfaceTypes = 255;

/**
 * The camera system of the process, the root of all interfaces and devices. Owned by the camera access library.
 *
 * Every operation may be called from any thread.
 */
class ORV_CAMERA_API System
{
protected:
    virtual ~System() = default;

public:
    /**
     * Ends one reference from OrvCam_GetSystem(). The last one destroys all interfaces and device descriptions. Open
     * devices live until their own Release().
     */
    virtual void Release() = 0;

    /**
     * The known interfaces whose type is in \a typeMask. The caller releases the list; null if there is none.
     */
    virtual InterfaceList *GetInterfaceList(std::uint32_t typeMask) = 0;
};

} // namespace OrvCam
