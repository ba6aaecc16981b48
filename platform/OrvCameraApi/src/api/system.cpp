// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "system.h"

#include "livecounts.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <utility>

namespace OrvCameraApi {

namespace {

std::mutex &referenceMutex()
{
    static std::mutex mutex;
    return mutex;
}

System *theSystem = nullptr; // guarded by referenceMutex()

/** Bit 0 of a mask stands for type 1 and so on. Types without a bit are in the full mask only. */
bool isInMask(std::int32_t type, std::uint32_t mask)
{
    return mask == OrvCam::AllInterfaceTypes || (type >= 1 && type <= 8 && (mask >> (type - 1) & 1) != 0);
}

} // namespace

System::System() = default;
System::~System() = default;

System *System::acquire(const std::vector<Backend *> &backends)
{
    std::vector<Backend *> available;
    std::copy_if(backends.begin(), backends.end(), std::back_inserter(available),
                 [](const Backend *backend) { return backend->isAvailable(); });
    if (available.empty())
        return nullptr;
    const std::lock_guard<std::mutex> lock(referenceMutex());
    if (!theSystem)
        theSystem = new System;
    {
        const std::lock_guard<std::mutex> backendsLock(theSystem->m_mutex);
        theSystem->m_backends = std::move(available);
    }
    ++liveCounts().systemReferences;
    return theSystem;
}

void System::Release()
{
    {
        const std::lock_guard<std::mutex> lock(referenceMutex());
        if (--liveCounts().systemReferences > 0)
            return;
        theSystem = nullptr;
    }
    delete this; // transports may wait for their threads
}

OrvCam::InterfaceList *System::GetInterfaceList(std::uint32_t typeMask)
{
    std::vector<Backend *> backends;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        backends = m_backends;
    }
    bool isAnyList = false;
    std::vector<OrvCam::Interface *> listed;
    for (const Backend *backend : backends) {
        const std::optional<Backend::Interfaces> interfaces = backend->interfaces();
        if (!interfaces)
            continue;
        isAnyList = true;
        for (const std::shared_ptr<BackendInterface> &source : *interfaces) {
            if (isInMask(source->type(), typeMask))
                listed.push_back(m_interfaces.objectFor(source));
        }
    }
    return isAnyList ? new ObjectList<OrvCam::InterfaceList, OrvCam::Interface>(std::move(listed)) : nullptr;
}

} // namespace OrvCameraApi
