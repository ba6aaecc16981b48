#include "realcameras.h"

#include "aravismodule.h"
#include "gigeinterface.h"
#include "gigelink.h"
#include "usbinterface.h"
#include "usbpermission.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <set>
#include <utility>

#include <arpa/inet.h>

namespace OrvCameraApi {

namespace {

std::optional<std::uint32_t> addressIn(const std::string &text)
{
    in_addr address{};
    if (::inet_pton(AF_INET, text.c_str(), &address) != 1)
        return std::nullopt;
    return ntohl(address.s_addr);
}

std::vector<std::uint32_t> addressesIn(const std::vector<std::string> &texts)
{
    std::vector<std::uint32_t> addresses;
    for (const std::string &text : texts) {
        if (const std::optional<std::uint32_t> address = addressIn(text))
            addresses.push_back(*address);
    }
    return addresses;
}

/** Keeps interfaces only as long as others do, so that nothing is looked for when no system exists. */
class RealCameras final : public Backend
{
public:
    bool isAvailable() const override { return true; }
    std::optional<Interfaces> interfaces() const override;

    void setDiscovery(const OrvTransports::Discovery &discovery)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_discovery = discovery;
        retire();
    }

    std::vector<std::string> problems() const
    {
        std::vector<std::string> problems;
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const auto &[id, weak] : m_adapters) {
            if (const std::shared_ptr<GigeInterface> interface = weak.lock())
                problems.push_back(interface->discovery()->problem());
        }
        if (const std::shared_ptr<UsbInterface> interface = m_usb.lock())
            problems.push_back(interface->problem());
        problems.erase(std::remove(problems.begin(), problems.end(), std::string()), problems.end());
        return problems;
    }

    void stopLooking()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        retire();
    }

private:
    /** What has been looked for until now goes on with the cameras that are known, which may be open. */
    void retire()
    {
        for (const std::weak_ptr<GigeDiscovery> &weak : std::exchange(m_running, {})) {
            if (const std::shared_ptr<GigeDiscovery> discovery = weak.lock())
                discovery->retire();
        }
        m_adapters.clear();
    }

    bool isWanted(const NetAdapter &adapter) const;
    std::vector<NetAdapter> wantedAdapters() const;
    std::shared_ptr<GigeInterface> interfaceFor(const std::string &id, const NetAdapter &adapter,
                                                std::vector<std::uint32_t> addresses) const;
    std::shared_ptr<UsbInterface> usb() const;

    mutable std::mutex m_mutex;
    OrvTransports::Discovery m_discovery;
    mutable std::map<std::string, std::weak_ptr<GigeInterface>> m_adapters; ///< by identifier and address
    mutable std::weak_ptr<UsbInterface> m_usb;
    mutable std::vector<std::weak_ptr<GigeDiscovery>> m_running;
};

bool RealCameras::isWanted(const NetAdapter &adapter) const
{
    const auto isNamed = [&adapter](const std::string &name) {
        return name == adapter.name || addressIn(name) == adapter.address;
    };
    if (!m_discovery.adapters.empty())
        return std::any_of(m_discovery.adapters.begin(), m_discovery.adapters.end(), isNamed);
    return !adapter.isLoopback;
}

/** Where only some cameras are asked, the adapters near to them, if there are any. */
std::vector<NetAdapter> RealCameras::wantedAdapters() const
{
    const std::vector<NetAdapter> all = netAdapters();
    const std::vector<std::uint32_t> asked = addressesIn(m_discovery.addresses);
    std::vector<NetAdapter> wanted;
    std::vector<NetAdapter> near;
    for (const NetAdapter &adapter : all) {
        const bool isNear = std::any_of(asked.begin(), asked.end(),
                                        [&adapter](std::uint32_t address) { return adapter.contains(address); });
        if (isNear && (m_discovery.adapters.empty() || isWanted(adapter)))
            near.push_back(adapter);
        if (isWanted(adapter))
            wanted.push_back(adapter);
    }
    return near.empty() ? wanted : near;
}

std::optional<Backend::Interfaces> RealCameras::interfaces() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Interfaces interfaces;
    const std::vector<NetAdapter> adapters = wantedAdapters();
    std::vector<std::uint32_t> open = addressesIn(m_discovery.addresses);
    for (auto adapter = adapters.begin(); adapter != adapters.end(); ++adapter) {
        // Each camera is asked by the first adapter that it is near to; the last one asks for all others.
        std::vector<std::uint32_t> near;
        const bool isLast = adapter + 1 == adapters.end();
        const auto reaches = [&](std::uint32_t address) { return isLast || adapter->contains(address); };
        std::copy_if(open.begin(), open.end(), std::back_inserter(near), reaches);
        open.erase(std::remove_if(open.begin(), open.end(), reaches), open.end());
        const bool isAlone = std::count_if(adapters.begin(), adapters.end(),
                                           [&](const NetAdapter &other) { return other.name == adapter->name; })
            == 1;
        const std::string id = isAlone ? adapter->name : adapter->name + '/' + dotted(adapter->address);
        interfaces.push_back(interfaceFor(id, *adapter, std::move(near)));
    }
    interfaces.push_back(usb());
    return interfaces;
}

std::shared_ptr<GigeInterface> RealCameras::interfaceFor(const std::string &id, const NetAdapter &adapter,
                                                         std::vector<std::uint32_t> addresses) const
{
    std::weak_ptr<GigeInterface> &weak = m_adapters[id + ' ' + dotted(adapter.address) + ' ' + dotted(adapter.mask)];
    std::shared_ptr<GigeInterface> interface = weak.lock();
    if (!interface) {
        GigeInterface::Options options;
        options.discovery.broadcasts = m_discovery.addresses.empty();
        options.discovery.addresses = std::move(addresses);
        options.open = [](std::uint32_t local, const Endpoint &device, const IsWanted &isWanted) {
            return openGigeCamera(local, device, isWanted, AravisModule::openGige);
        };
        interface = std::make_shared<GigeInterface>(id, adapter, options);
        weak = interface;
        m_running.push_back(interface->discovery());
    }
    return interface;
}

std::shared_ptr<UsbInterface> RealCameras::usb() const
{
    std::shared_ptr<UsbInterface> interface = m_usb.lock();
    if (!interface) {
        UsbInterface::Options options;
        options.list = [] { return UsbDiscovery::Found{AravisModule::usbCameras(), usbPermissionProblem("/")}; };
        options.open = AravisModule::openUsb;
        interface = std::make_shared<UsbInterface>(std::move(options));
        m_usb = interface;
    }
    return interface;
}

RealCameras &theCameras()
{
    static RealCameras cameras;
    return cameras;
}

} // namespace

Backend &realCameras()
{
    return theCameras();
}

void setDiscovery(const OrvTransports::Discovery &discovery)
{
    theCameras().setDiscovery(discovery);
}

std::vector<std::string> problemsOfRealCameras()
{
    return theCameras().problems();
}

void stopLooking()
{
    theCameras().stopLooking();
}

} // namespace OrvCameraApi
