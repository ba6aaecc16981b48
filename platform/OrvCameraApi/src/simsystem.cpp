#include "simsystem.h"

#include "hostinterface.h"
#include "livecounts.h"
#include "siminterface.h"
#include "simlist.h"
#include "world.h"

#include <algorithm>

namespace OrvCameraApi {

namespace {

std::mutex &referenceMutex()
{
    static std::mutex mutex;
    return mutex;
}

SimSystem *theSystem = nullptr; // guarded by referenceMutex()

/** Bit 0 of a mask stands for type 1 and so on; types that have no bit are in the full mask only. */
bool isInMask(std::int32_t type, std::uint32_t mask)
{
    return mask == OrvCam::AllInterfaceTypes || (type >= 1 && type <= 8 && (mask >> (type - 1) & 1) != 0);
}

} // namespace

SimSystem::SimSystem() = default;
SimSystem::~SimSystem() = default;

SimSystem *SimSystem::acquire()
{
    if (!World::instance().isSystemAvailable())
        return nullptr;
    const std::lock_guard<std::mutex> lock(referenceMutex());
    if (!theSystem)
        theSystem = new SimSystem;
    ++liveCounts().systemReferences;
    return theSystem;
}

void SimSystem::Release()
{
    const std::lock_guard<std::mutex> lock(referenceMutex());
    if (--liveCounts().systemReferences > 0)
        return;
    theSystem = nullptr;
    delete this;
}

OrvCam::InterfaceList *SimSystem::GetInterfaceList(std::uint32_t typeMask)
{
    const OrvSim::Lists lists = World::instance().interfaceLists();
    const std::vector<std::shared_ptr<HostInterface>> present = World::instance().interfacesPluggedIn();
    if (lists == OrvSim::Lists::Null || (lists == OrvSim::Lists::Normal && present.empty()))
        return nullptr;
    std::vector<OrvCam::Interface *> listed;
    for (const std::shared_ptr<HostInterface> &host : present) {
        if (lists == OrvSim::Lists::Normal && isInMask(host->spec().type, typeMask))
            listed.push_back(objectFor(host));
    }
    return new SimList<OrvCam::InterfaceList, OrvCam::Interface>(std::move(listed));
}

SimInterface *SimSystem::objectFor(const std::shared_ptr<HostInterface> &host)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known =
        std::find_if(m_interfaces.begin(), m_interfaces.end(),
                     [&host](const std::unique_ptr<SimInterface> &object) { return &object->host() == host.get(); });
    if (known != m_interfaces.end())
        return known->get();
    m_interfaces.push_back(std::make_unique<SimInterface>(host));
    return m_interfaces.back().get();
}

} // namespace OrvCameraApi
