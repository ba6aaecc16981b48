#include "simdevice.h"

#include "answers.h"
#include "camera.h"
#include "devicesession.h"
#include "simdeviceinfo.h"

#include <utility>

namespace OrvCameraApi {

namespace {

/** Why the camera cannot be opened now; success when it can. */
OrvCamErr obstacle(const Camera &camera)
{
    const std::int32_t status = camera.accessStatus();
    if (!camera.isPluggedIn() || status == OrvCam::AccessStatusIpSubnetMismatch)
        return OrvCamErr_NoDevice;
    return status == OrvCam::AccessStatusNoAccess ? OrvCamErr_InvalidState : camera.openRefusal();
}

} // namespace

SimDevice::SimDevice(std::shared_ptr<DeviceSession> session)
    : m_session(std::move(session))
{
}

SimDevice::~SimDevice() = default;

SimDevice *SimDevice::open(const SimDeviceInfo &info, OrvCamErr *err)
{
    const std::shared_ptr<Camera> &camera = info.camera();
    const OrvCamErr reason = obstacle(*camera);
    tell(err, reason);
    if (reason != OrvCamErr_Ok)
        return nullptr;
    const bool readOnly = camera->accessStatus() == OrvCam::AccessStatusReadOnly;
    const auto session = std::make_shared<DeviceSession>(camera, readOnly);
    camera->addSession(session);
    return new SimDevice(session);
}

void SimDevice::Release()
{
    m_session->events().removeAll();
    delete this;
}

OrvCamErr SimDevice::RegisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    if (!callback)
        return OrvCamErr_InvalidArgument;
    m_session->events().add(eventId, callback, context);
    return OrvCamErr_Ok;
}

OrvCamErr SimDevice::UnregisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    m_session->events().remove(eventId, callback, context);
    return OrvCamErr_Ok;
}

OrvGenParam::Array *SimDevice::GetCameraParameters(OrvCamErr *err)
{
    const Camera &camera = m_session->camera();
    if (camera.isPluggedIn())
        return parametersAs(camera.parameters(), &m_session->parameters(), err);
    tell(err, OrvCamErr_NoDevice);
    return nullptr;
}

} // namespace OrvCameraApi
