#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <memory>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

class HostInterface;
class SimInterface;

/** The one system of the process, while somebody has it. */
class SimSystem final : public OrvCam::System
{
public:
    /** One more reference to the system; null when there is none to be had. */
    static SimSystem *acquire();

    void Release() override;
    OrvCam::InterfaceList *GetInterfaceList(std::uint32_t typeMask) override;

private:
    SimSystem();
    ~SimSystem() override;

    SimInterface *objectFor(const std::shared_ptr<HostInterface> &host);

    std::mutex m_mutex;
    std::vector<std::unique_ptr<SimInterface>> m_interfaces; ///< all that were ever listed
};

} // namespace OrvCameraApi
