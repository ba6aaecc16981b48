// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "interface.h"

#include <utility>

namespace OrvCameraApi {

Interface::Interface(std::shared_ptr<BackendInterface> source)
    : m_source(std::move(source))
    , m_parameters(*m_source)
{
}

Interface::~Interface() = default;

OrvCam::DeviceInfoList *Interface::GetDeviceInfoList()
{
    const std::optional<BackendInterface::Devices> devices = m_source->devices();
    if (!devices)
        return nullptr;
    std::vector<OrvCam::DeviceInfo *> listed;
    for (const std::shared_ptr<BackendDevice> &device : *devices)
        listed.push_back(m_devices.objectFor(device, *this));
    return new ObjectList<OrvCam::DeviceInfoList, OrvCam::DeviceInfo>(std::move(listed));
}

OrvCamErr Interface::ReEnumerateDevices(bool *changed, std::uint32_t timeout)
{
    bool isChanged = false;
    const OrvCamErr err = m_source->reEnumerate(isChanged, timeout);
    if (changed)
        *changed = isChanged;
    return err;
}

const char *Interface::GetDescription()
{
    return textOf(m_source->texts().description);
}

std::int32_t Interface::GetType()
{
    return m_source->type();
}

const char *Interface::GetID()
{
    return textOf(m_source->texts().id);
}

const char *Interface::GetVersion()
{
    return textOf(m_source->texts().version);
}

OrvGenParam::Array *Interface::GetParameters(OrvCamErr *err)
{
    return m_parameters.get(err);
}

} // namespace OrvCameraApi
