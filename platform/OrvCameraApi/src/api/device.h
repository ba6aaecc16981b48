// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "livecounts.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <memory>

namespace OrvCameraApi {

class DeviceInfo;
class Session;

/** An open device. Deletes itself when it is released. */
class Device final : public OrvCam::Device
{
public:
    /** Null and the reason in \a err when the device cannot be opened. */
    static Device *open(const DeviceInfo &info, std::int32_t accessMode, OrvCamErr *err);

    void Release() override;
    OrvCamErr RegisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context) override;
    OrvCamErr UnregisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context) override;
    OrvGenParam::Array *GetCameraParameters(OrvCamErr *err) override;

    /** Never null. */
    const std::shared_ptr<Session> &session() const { return m_session; }

private:
    explicit Device(std::shared_ptr<Session> session);
    ~Device() override;

    const Counted m_counted{liveCounts().devices};
    const std::shared_ptr<Session> m_session;
};

} // namespace OrvCameraApi
