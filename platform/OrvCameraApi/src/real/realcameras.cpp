// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

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

std::string refusalOn(const std::string &adapter, const std::string &reason)
{
    return "Cameras on " + adapter + " cannot be asked: " + reason + ". A firewall may forbid UDP to port "
        + std::to_string(Gvcp::port) + '.';
}

/** The sentence for \a adapters on which nobody has answered, if there are any. */
std::string silenceOn(const std::vector<std::string> &adapters)
{
    constexpr std::size_t most = 4; // that are named
    if (adapters.empty())
        return {};
    std::string text = "No camera has answered on " + adapters.front();
    for (std::size_t i = 1; i < std::min(adapters.size(), most); ++i)
        text.append(", ").append(adapters[i]);
    text += adapters.size() > most ? " and others" : "";
    text += ". If one is connected, a firewall may drop its answers, which come from UDP port ";
    return text + std::to_string(Gvcp::port) + '.';
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

    std::vector<std::string> problems() const;

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
        if (const std::shared_ptr<UsbInterface> usb = m_usb.lock())
            usb->retire();
        m_usb.reset();
    }

    bool isWanted(const NetAdapter &adapter) const;
    std::vector<NetAdapter> wantedAdapters() const;
    std::shared_ptr<GigeInterface> interfaceFor(const std::string &id, const NetAdapter &adapter,
                                                std::vector<std::uint32_t> addresses) const;
    std::shared_ptr<UsbInterface> usb() const;
    void retireOthers(const Interfaces &listed) const;
    std::vector<std::string> mistakes() const;

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
    retireOthers(interfaces);
    interfaces.push_back(usb());
    return interfaces;
}

/** Adapters that have gone, or have other addresses, are not looked at any more. */
void RealCameras::retireOthers(const Interfaces &listed) const
{
    for (auto each = m_adapters.begin(); each != m_adapters.end();) {
        const std::shared_ptr<GigeInterface> interface = each->second.lock();
        const bool isListed = std::find(listed.begin(), listed.end(), interface) != listed.end();
        if (interface && !isListed)
            interface->discovery()->retire();
        each = isListed ? std::next(each) : m_adapters.erase(each);
    }
}

/** The words of the choice that mean nothing here. */
std::vector<std::string> RealCameras::mistakes() const
{
    std::vector<std::string> mistakes;
    for (const std::string &address : m_discovery.addresses) {
        if (!addressIn(address))
            mistakes.push_back('"' + address + "\" is not the IPv4 address of a camera.");
    }
    const std::vector<NetAdapter> all = netAdapters();
    for (const std::string &name : m_discovery.adapters) {
        const bool isThere = std::any_of(all.begin(), all.end(), [&name](const NetAdapter &adapter) {
            return name == adapter.name || addressIn(name) == adapter.address;
        });
        if (!isThere)
            mistakes.push_back("There is no network adapter \"" + name + "\" with an IPv4 address.");
    }
    return mistakes;
}

std::vector<std::string> RealCameras::problems() const
{
    std::vector<std::string> silent;
    bool isAnyDevice = false;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::shared_ptr<UsbInterface> usb = m_usb.lock();
    if (!usb)
        return {};
    std::vector<std::string> problems = mistakes();
    for (const auto &[id, weak] : m_adapters) {
        const std::shared_ptr<GigeInterface> interface = weak.lock();
        if (!interface)
            continue;
        const GigeDiscovery &discovery = *interface->discovery();
        const std::string where = discovery.adapter().name + " (" + dotted(discovery.adapter().address) + ')';
        if (const std::string refusal = discovery.refusal(); !refusal.empty())
            problems.push_back(refusalOn(where, refusal));
        if (discovery.isSilent())
            silent.push_back(where);
        isAnyDevice |= !discovery.devices().empty();
        for (std::string &taken : interface->takenDevices())
            problems.push_back(std::move(taken));
    }
    if (!isAnyDevice) // one that is connected elsewhere is no problem of the other adapters
        problems.push_back(silenceOn(silent));
    problems.push_back(usb->problem());
    problems.erase(std::remove(problems.begin(), problems.end(), std::string()), problems.end());
    return problems;
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
        options.open = [](std::uint32_t local, const Endpoint &device, const IsWanted &isWanted,
                          const IsFetching &isFetching) {
            return openGigeCamera(local, device, isWanted, isFetching, AravisModule::openGige);
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
        options.list = [] {
            UsbDiscovery::Found found = AravisModule::usbCameras();
            if (found.problem.empty())
                found.problem = usbPermissionProblem("/");
            return found;
        };
        options.open = [](const std::string &id, const IsWanted &isWanted) {
            try {
                return AravisModule::openUsb(id, isWanted);
            } catch (const LinkError &error) {
                const std::string problem = usbPermissionProblem("/");
                throw LinkError(error.kind(), error.what() + (problem.empty() ? "" : ". " + problem));
            }
        };
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
