// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/ip4proposal.h>

namespace {

constexpr unsigned int up = 1;
constexpr unsigned int down = ~0U; // which is -1 where addresses wrap round

/** From beside the adapter on; 0 when the subnet ends first. */
unsigned int nextFree(unsigned int adapter, unsigned int mask, unsigned int step, const QVector<unsigned int> &taken)
{
    // So many addresses cannot all be taken.
    int left = int(taken.size()) + 3;
    for (unsigned int address = adapter + step; left > 0 && ((address ^ adapter) & mask) == 0;
         address += step, --left) {
        const bool isHost = !isNetworkAddress(address, mask) && !isBroadcastAddress(address, mask);
        if (isHost && address != adapter && !taken.contains(address))
            return address;
    }
    return 0;
}

} // namespace

bool hasOnlyHosts(unsigned int mask)
{
    return (~mask & (~mask - 1)) == 0;
}

bool isNetworkAddress(unsigned int address, unsigned int mask)
{
    return !hasOnlyHosts(mask) && (address & ~mask) == 0;
}

bool isBroadcastAddress(unsigned int address, unsigned int mask)
{
    return !hasOnlyHosts(mask) && (address | mask) == ~0U;
}

unsigned int proposedAddress(unsigned int adapter, unsigned int mask, const QVector<unsigned int> &taken)
{
    constexpr unsigned int lastOctet = 0xff;
    constexpr unsigned int middle = 128;
    const unsigned int step = (adapter & lastOctet) > middle ? down : up;
    if (!taken.contains(adapter + step))
        return adapter + step;
    if (const unsigned int address = nextFree(adapter, mask, step, taken))
        return address;
    const unsigned int address = nextFree(adapter, mask, ~step + 1, taken);
    return address ? address : adapter + step;
}
