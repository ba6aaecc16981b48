#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstddef>

namespace OrvCam {

class DeviceInfo;

/**
 * The devices found by one Interface::GetDeviceInfoList(): a snapshot that is walked forward. It is used by one thread
 * at a time. Descriptions outlive the list that named them, see DeviceInfo.
 */
class ORV_CAMERA_API DeviceInfoList
{
protected:
    virtual ~DeviceInfoList() = default;

public:
    /** Ends the list; no pointer to it is good afterwards. */
    virtual void Release() = 0;

    virtual std::size_t GetSize() = 0;

    /** Goes to the first entry; null when the list is empty. */
    virtual DeviceInfo *GetFirst() = 0;

    /** Goes to the entry after the one returned last, the first one on a new list; null from the end on. */
    virtual DeviceInfo *GetNext() = 0;
};

} // namespace OrvCam
