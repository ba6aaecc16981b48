#pragma once

#include "livecounts.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <memory>

namespace OrvCameraApi {

class DeviceSession;
class SimDeviceInfo;

/** An opened simulated camera. Deletes itself when it is released. */
class SimDevice final : public OrvCam::Device
{
public:
    /** Opens the camera; null and the reason when that is not possible. */
    static SimDevice *open(const SimDeviceInfo &info, OrvCamErr *err);

    void Release() override;
    OrvCamErr RegisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context) override;
    OrvCamErr UnregisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context) override;
    OrvGenParam::Array *GetCameraParameters(OrvCamErr *err) override;

private:
    explicit SimDevice(std::shared_ptr<DeviceSession> session);
    ~SimDevice() override;

    const Counted m_counted{liveCounts().devices};
    const std::shared_ptr<DeviceSession> m_session;
};

} // namespace OrvCameraApi
