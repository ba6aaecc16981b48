// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "deviceinfo.h"
#include "lazyparameters.h"
#include "objectlist.h"

#include <memory>

namespace OrvCameraApi {

/** The application's view of a transport interface. Belongs to the system. */
class Interface final : public OrvCam::Interface
{
public:
    explicit Interface(std::shared_ptr<BackendInterface> source);
    ~Interface() override;

    OrvCam::DeviceInfoList *GetDeviceInfoList() override;
    OrvCamErr ReEnumerateDevices(bool *changed, std::uint32_t timeout) override;
    const char *GetDescription() override;
    std::int32_t GetType() override;
    const char *GetID() override;
    const char *GetVersion() override;
    OrvGenParam::Array *GetParameters(OrvCamErr *err) override;

private:
    const std::shared_ptr<BackendInterface> m_source;
    ObjectsInUse<DeviceInfo, BackendDevice> m_devices;
    LazyParameters m_parameters;
};

} // namespace OrvCameraApi
