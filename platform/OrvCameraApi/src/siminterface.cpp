#include "siminterface.h"

#include "answers.h"
#include "camera.h"
#include "hostinterface.h"
#include "paramarray.h"
#include "simdeviceinfo.h"
#include "simlist.h"
#include "world.h"

#include <GenApi/IPort.h>

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

/** The way to the interface's registers. */
class SimInterface::Port final : public GenApi::IPort
{
public:
    explicit Port(HostInterface &host)
        : m_host(host)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return GenApi::RW; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_host.read(buffer, {address, length});
    }
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_host.write(buffer, {address, length});
    }

private:
    HostInterface &m_host;
};

SimInterface::SimInterface(std::shared_ptr<HostInterface> host)
    : m_host(std::move(host))
    , m_port(std::make_unique<Port>(*m_host))
{
}

SimInterface::~SimInterface() = default;

OrvCam::DeviceInfoList *SimInterface::GetDeviceInfoList()
{
    const OrvSim::Lists lists = m_host->deviceLists();
    if (lists == OrvSim::Lists::Null || !m_host->isPluggedIn())
        return nullptr;
    std::vector<OrvCam::DeviceInfo *> listed;
    if (lists == OrvSim::Lists::Normal) {
        for (const std::shared_ptr<Camera> &camera : m_host->camerasPluggedIn())
            listed.push_back(objectFor(camera));
    }
    return new SimList<OrvCam::DeviceInfoList, OrvCam::DeviceInfo>(std::move(listed));
}

OrvCamErr SimInterface::ReEnumerateDevices(bool *changed, std::uint32_t)
{
    World::instance().gate(OrvSim::Call::ReEnumerateDevices).pass();
    const bool change = m_host->takeChange();
    if (changed)
        *changed = change;
    return m_host->isPluggedIn() ? OrvCamErr_Ok : OrvCamErr_NoDevice;
}

const char *SimInterface::GetDescription()
{
    return textOf(m_host->spec().description);
}

std::int32_t SimInterface::GetType()
{
    return m_host->spec().type;
}

const char *SimInterface::GetID()
{
    return textOf(m_host->spec().id);
}

const char *SimInterface::GetVersion()
{
    return textOf(m_host->spec().version);
}

OrvGenParam::Array *SimInterface::GetParameters(OrvCamErr *err)
{
    if (m_host->isPluggedIn())
        return parametersAs(m_host->parameters(), array(), err);
    tell(err, OrvCamErr_NoDevice);
    return nullptr;
}

ParamArray *SimInterface::array()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_array) {
        auto map = OrvGenApi::NodeMap::fromString(m_host->description());
        map->connect(m_port.get());
        m_array = std::make_unique<ParamArray>(std::move(map), [host = m_host] { return host->isPluggedIn(); });
    }
    return m_array.get();
}

SimDeviceInfo *SimInterface::objectFor(const std::shared_ptr<Camera> &camera)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = std::find_if(m_devices.begin(), m_devices.end(),
                                    [&](const auto &object) { return object->camera() == camera; });
    if (known != m_devices.end())
        return known->get();
    m_devices.push_back(std::make_unique<SimDeviceInfo>(*this, camera));
    return m_devices.back().get();
}

} // namespace OrvCameraApi
