#pragma once

#include "backend.h"
#include "interfaceport.h"
#include "remotecamera.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** A USB3 Vision camera that is plugged in. The texts are UTF-8. */
struct UsbCamera
{
    std::string id; ///< for opening it
    std::string vendor;
    std::string model;
    std::string serialNumber;
};

/** The USB ports of this host with the USB3 Vision cameras on them, looked for by a thread of its own. */
class UsbInterface final : public BackendInterface
{
public:
    struct Options
    {
        std::function<std::vector<UsbCamera>()> list; ///< may take a moment
        std::function<std::unique_ptr<CameraLink>(const std::string &id, const IsWanted &isWanted)>
            open; ///< throws LinkError
        RemoteCamera::Patience patience;
        std::chrono::milliseconds period{1000};
    };

    explicit UsbInterface(Options options);
    ~UsbInterface() override;

    const InterfaceTexts &texts() const override { return m_texts; }
    std::int32_t type() const override { return OrvCam::InterfaceTypeUsb3Vision; }
    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override;
    bool isConnected() const override { return true; }
    std::optional<Devices> devices() const override;

    /** Does not wait: devices that are found later are in later lists. */
    OrvCamErr reEnumerate(bool &changed, std::uint32_t timeout) override;

private:
    class Device;

    void run();

    const InterfaceTexts m_texts;
    const Options m_options;
    InterfacePort m_port;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<UsbCamera> m_found;
    mutable std::map<std::string, std::weak_ptr<Device>> m_devices; ///< by identifier
    Devices m_lastSeen; ///< in the last enumeration
    bool m_isHurried = false;
    bool m_isEnding = false;

    std::thread m_thread; ///< the last, because it uses the others
};

} // namespace OrvCameraApi
