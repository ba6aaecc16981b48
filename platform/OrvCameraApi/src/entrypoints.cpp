// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "device.h"
#include "deviceinfo.h"
#include "genapierror.h"
#include "system.h"
#include "transports.h"

OrvCam::System *OrvCam_GetSystem()
{
    return OrvCameraApi::System::acquire(OrvCameraApi::chosenBackends());
}

OrvCam::Device *OrvCam_CreateDevice(OrvCam::DeviceInfo *deviceInfo, std::int32_t accessMode, OrvCamErr *err)
{
    if (const auto *const info = dynamic_cast<OrvCameraApi::DeviceInfo *>(deviceInfo))
        return OrvCameraApi::Device::open(*info, accessMode, err);
    OrvCameraApi::setError(err, OrvCamErr_InvalidArgument);
    return nullptr;
}
