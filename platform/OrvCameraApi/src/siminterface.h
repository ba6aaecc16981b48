#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <memory>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

class Camera;
class HostInterface;
class ParamArray;
class SimDeviceInfo;

/** What an application sees of a simulated interface. Belongs to the system. */
class SimInterface final : public OrvCam::Interface
{
public:
    explicit SimInterface(std::shared_ptr<HostInterface> host);
    ~SimInterface() override;

    HostInterface &host() const { return *m_host; }

    OrvCam::DeviceInfoList *GetDeviceInfoList() override;
    OrvCamErr ReEnumerateDevices(bool *changed, std::uint32_t timeout) override;
    const char *GetDescription() override;
    std::int32_t GetType() override;
    const char *GetID() override;
    const char *GetVersion() override;
    OrvGenParam::Array *GetParameters(OrvCamErr *err) override;

private:
    class Port;

    SimDeviceInfo *objectFor(const std::shared_ptr<Camera> &camera);
    ParamArray *array();

    const std::shared_ptr<HostInterface> m_host;
    const std::unique_ptr<Port> m_port;
    std::mutex m_mutex;
    std::vector<std::unique_ptr<SimDeviceInfo>> m_devices; ///< all that were ever listed
    std::unique_ptr<ParamArray> m_array; ///< made when it is first asked for
};

} // namespace OrvCameraApi
