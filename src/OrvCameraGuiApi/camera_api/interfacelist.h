#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstddef>

namespace OrvCam {

class Interface;

/**
 * The interfaces found by one System::GetInterfaceList(): a snapshot that is walked forward. It is used by one thread
 * at a time. Interfaces outlive the list that named them, see Interface.
 */
class ORV_CAMERA_API InterfaceList
{
protected:
    virtual ~InterfaceList() = default;

public:
    /** Ends the list; no pointer to it is good afterwards. */
    virtual void Release() = 0;

    virtual std::size_t GetSize() = 0;

    /** Goes to the first entry; null when the list is empty. */
    virtual Interface *GetFirst() = 0;

    /** Goes to the entry after the one returned last, the first one on a new list; null from the end on. */
    virtual Interface *GetNext() = 0;
};

} // namespace OrvCam
