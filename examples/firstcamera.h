// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

/** Opens the first camera of the first interface that has one; null when there is none. Whoever calls releases it. */
inline OrvCam::Device *openFirstCamera()
{
    OrvCam::Device *camera = nullptr;
    OrvCam::System *const system = OrvCam_GetSystem();
    OrvCam::InterfaceList *const interfaces = system ? system->GetInterfaceList(OrvCam::AllInterfaceTypes) : nullptr;
    for (auto *it = interfaces ? interfaces->GetFirst() : nullptr; it && !camera; it = interfaces->GetNext()) {
        bool changed = false;
        it->ReEnumerateDevices(&changed, 200);
        OrvCam::DeviceInfoList *const devices = it->GetDeviceInfoList();
        if (OrvCam::DeviceInfo *const info = devices ? devices->GetFirst() : nullptr)
            camera = OrvCam_CreateDevice(info, OrvCam::DeviceAccessControl, nullptr);
        if (devices)
            devices->Release();
    }
    if (interfaces)
        interfaces->Release();
    if (system)
        system->Release();
    return camera;
}
