// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstddef>

namespace OrvCam {

class DeviceInfo;

/**
 * The devices found by one Interface::GetDeviceInfoList(): a snapshot with a forward iterator. Only one thread at a
 * time may use it. Device descriptions outlive the list, see DeviceInfo.
 */
class ORV_CAMERA_API DeviceInfoList
{
protected:
    virtual ~DeviceInfoList() = default;

public:
    /** Destroys the list. */
    virtual void Release() = 0;

    virtual std::size_t GetSize() = 0;

    /** Moves to the first entry; returns null if the list is empty. */
    virtual DeviceInfo *GetFirst() = 0;

    /** Moves to the next entry, on a new list to the first; returns null at the end and after it. */
    virtual DeviceInfo *GetNext() = 0;
};

} // namespace OrvCam
