// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "device.h"

#include "backend.h"
#include "deviceinfo.h"
#include "genapierror.h"
#include "session.h"

#include <utility>

namespace OrvCameraApi {

Device::Device(std::shared_ptr<Session> session)
    : m_session(std::move(session))
{
}

Device::~Device() = default;

Device *Device::open(const DeviceInfo &info, std::int32_t accessMode, OrvCamErr *err)
{
    std::shared_ptr<Session> session;
    OrvCamErr refusal = OrvCamErr_Ok;
    const OrvCamErr failure = errorOf([&] {
        if (std::unique_ptr<Connection> connection = info.source().open(accessMode, refusal))
            session = Session::start(std::move(connection));
    });
    setError(err, failure ? failure : refusal);
    return session ? new Device(std::move(session)) : nullptr;
}

void Device::Release()
{
    m_session->closeStreams();
    m_session->events().removeAll();
    delete this;
}

OrvCamErr Device::RegisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    if (!callback)
        return OrvCamErr_InvalidArgument;
    m_session->events().add(eventId, callback, context);
    return OrvCamErr_Ok;
}

OrvCamErr Device::UnregisterEvent(std::uint32_t eventId, OrvCam::DeviceEventCallback callback, void *context)
{
    m_session->events().remove(eventId, callback, context);
    return OrvCamErr_Ok;
}

OrvGenParam::Array *Device::GetCameraParameters(OrvCamErr *err)
{
    return m_session->parameters().get(err);
}

} // namespace OrvCameraApi
