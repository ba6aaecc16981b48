#include "devicesession.h"

#include "camera.h"

#include <GenApi/GenApi.h>

#include <utility>

namespace OrvCameraApi {

/** The way to a camera's registers. */
class DeviceSession::Port final : public GenApi::IPort
{
public:
    Port(Camera &camera, bool readOnly)
        : m_camera(camera)
        , m_readOnly(readOnly)
    {
    }

    GenApi::EAccessMode GetAccessMode() const override { return m_readOnly ? GenApi::RO : GenApi::RW; }

    void Read(void *buffer, std::int64_t address, std::int64_t length) override
    {
        m_camera.read(buffer, {address, length});
    }

    void Write(const void *buffer, std::int64_t address, std::int64_t length) override
    {
        if (m_readOnly)
            throw GenICam::AccessException("The device was opened for reading only", __FILE__, __LINE__);
        m_camera.write(buffer, {address, length});
    }

private:
    Camera &m_camera;
    const bool m_readOnly;
};

namespace {

std::unique_ptr<ParamArray> makeParameters(const std::shared_ptr<Camera> &camera, GenApi::IPort &port)
{
    auto map = OrvGenApi::NodeMap::fromString(camera->spec().description);
    map->connect(&port);
    return std::make_unique<ParamArray>(std::move(map), [camera] { return camera->isPluggedIn(); });
}

} // namespace

DeviceSession::DeviceSession(std::shared_ptr<Camera> camera, bool readOnly)
    : m_camera(std::move(camera))
    , m_port(std::make_unique<Port>(*m_camera, readOnly))
    , m_parameters(makeParameters(m_camera, *m_port))
{
}

DeviceSession::~DeviceSession() = default;

void DeviceSession::invalidate()
{
    m_parameters->GetNodeMap()->InvalidateNodes();
}

} // namespace OrvCameraApi
