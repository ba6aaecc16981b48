// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <held.h>

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <chrono>
#include <cstring>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

/** Helpers of the tests that use the simulated cameras. */
namespace SimTest {

using namespace std::chrono_literals;

using OrvTest::Held;

constexpr const char *twoFrame = "ORV-GIGE-0001";
constexpr const char *stray = "ORV-GIGE-0002";
constexpr const char *monochrome = "ORV-USB3-0001";

inline Held<OrvCam::System> getSystem()
{
    return Held<OrvCam::System>(OrvCam_GetSystem());
}

/** The entries of a list, none for a null list. Releases the list. */
template <typename Entry, typename List>
std::vector<Entry *> entriesOf(List *list)
{
    std::vector<Entry *> entries;
    if (!list)
        return entries;
    for (Entry *entry = list->GetFirst(); entry; entry = list->GetNext())
        entries.push_back(entry);
    list->Release();
    return entries;
}

inline std::vector<OrvCam::Interface *> interfacesOf(OrvCam::System &system)
{
    return entriesOf<OrvCam::Interface>(system.GetInterfaceList(OrvCam::AllInterfaceTypes));
}

inline std::vector<OrvCam::DeviceInfo *> devicesOf(OrvCam::Interface &interface)
{
    return entriesOf<OrvCam::DeviceInfo>(interface.GetDeviceInfoList());
}

/** The description of the device with that identifier, or null. */
inline OrvCam::DeviceInfo *findDevice(OrvCam::System &system, const char *id)
{
    for (OrvCam::Interface *interface : interfacesOf(system)) {
        for (OrvCam::DeviceInfo *device : devicesOf(*interface)) {
            if (device->GetID() && std::strcmp(device->GetID(), id) == 0)
                return device;
        }
    }
    return nullptr;
}

inline Held<OrvCam::Device> open(const char *id, OrvCamErr *err = nullptr)
{
    const Held<OrvCam::System> system = getSystem();
    return Held<OrvCam::Device>(OrvCam_CreateDevice(findDevice(*system, id), OrvCam::DeviceAccessControl, err));
}

/** Counts notifications and runs an action in each. */
class Sink : public OrvGenParam::ParamEventSink
{
public:
    explicit Sink(std::function<void(OrvGenParam::Param *)> action = {})
        : m_action(std::move(action))
    {
    }

    void OnParameterUpdate(OrvGenParam::Param *param) override
    {
        ++count;
        if (m_action)
            m_action(param);
    }

    int count = 0;

private:
    std::function<void(OrvGenParam::Param *)> m_action;
};

} // namespace SimTest
