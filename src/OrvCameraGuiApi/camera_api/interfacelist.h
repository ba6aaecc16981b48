// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/cameraapi.h>

#include <cstddef>

namespace OrvCam {

class Interface;

/**
 * The interfaces found by one System::GetInterfaceList(): a snapshot with a forward iterator. Only one thread at a
 * time may use it. Interfaces outlive the list, see Interface.
 */
class ORV_CAMERA_API InterfaceList
{
protected:
    virtual ~InterfaceList() = default;

public:
    /** Destroys the list. */
    virtual void Release() = 0;

    virtual std::size_t GetSize() = 0;

    /** Moves to the first entry; returns null if the list is empty. */
    virtual Interface *GetFirst() = 0;

    /** Moves to the next entry, on a new list to the first; returns null at the end and after it. */
    virtual Interface *GetNext() = 0;
};

} // namespace OrvCam
