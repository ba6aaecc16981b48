// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "netadapter.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <netpacket/packet.h>

namespace OrvCameraApi {

namespace {

std::uint32_t addressOf(const sockaddr *address)
{
    sockaddr_in internet{};
    if (address)
        std::memcpy(&internet, address, sizeof internet);
    return ntohl(internet.sin_addr.s_addr);
}

std::uint64_t macOf(const sockaddr *address)
{
    sockaddr_ll link{};
    std::memcpy(&link, address, sizeof link);
    if (link.sll_halen != 6)
        return 0;
    std::uint64_t mac = 0;
    for (int byte = 0; byte < 6; ++byte)
        mac = mac << 8 | link.sll_addr[byte];
    return mac;
}

} // namespace

std::vector<NetAdapter> netAdapters()
{
    ifaddrs *first = nullptr;
    if (::getifaddrs(&first) != 0)
        return {};
    const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> owned(first, &::freeifaddrs);

    std::vector<NetAdapter> adapters;
    std::map<std::string, std::uint64_t> macs;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || !(entry->ifa_flags & IFF_UP))
            continue;
        if (entry->ifa_addr->sa_family == AF_PACKET) {
            macs[entry->ifa_name] = macOf(entry->ifa_addr);
        } else if (entry->ifa_addr->sa_family == AF_INET) {
            NetAdapter adapter;
            adapter.name = entry->ifa_name;
            adapter.index = ::if_nametoindex(entry->ifa_name);
            adapter.address = addressOf(entry->ifa_addr);
            adapter.mask = addressOf(entry->ifa_netmask);
            adapter.isLoopback = (entry->ifa_flags & IFF_LOOPBACK) != 0;
            adapters.push_back(std::move(adapter));
        }
    }
    for (NetAdapter &adapter : adapters)
        adapter.mac = macs[adapter.name];
    return adapters;
}

} // namespace OrvCameraApi
