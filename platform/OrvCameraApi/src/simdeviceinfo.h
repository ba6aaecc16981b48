#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <memory>
#include <mutex>
#include <set>
#include <string>

namespace OrvCameraApi {

class Camera;
class SimInterface;

/** What an application sees of a simulated camera before it is opened. Belongs to its interface. */
class SimDeviceInfo final : public OrvCam::DeviceInfo
{
public:
    SimDeviceInfo(SimInterface &interface, std::shared_ptr<Camera> camera);
    ~SimDeviceInfo() override;

    const std::shared_ptr<Camera> &camera() const { return m_camera; }

    OrvCam::Interface *GetInterface() override;
    const char *GetID() override;
    const char *GetVendor() override;
    const char *GetModel() override;
    const char *GetDisplayName() override;
    const char *GetUserDefinedName() override;
    const char *GetSerialNumber() override;
    const char *GetVersion() override;
    std::int32_t GetAccessStatus() override;
    const char *GetIPAddress(OrvCamErr *err) override;
    const char *GetSubnetMask(OrvCamErr *err) override;
    const char *GetGateway(OrvCamErr *err) override;
    OrvCamErr ForceIP(std::uint32_t address, std::uint32_t subnetMask, std::uint32_t gateway) override;

private:
    OrvCamErr networkState() const;
    const char *addressText(std::uint32_t address, OrvCamErr *err);

    SimInterface &m_interface;
    const std::shared_ptr<Camera> m_camera;
    std::mutex m_mutex;
    std::set<std::string> m_addressTexts; ///< all that were ever answered, for they stay valid
};

} // namespace OrvCameraApi
