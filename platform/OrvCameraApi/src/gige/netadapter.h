// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace OrvCameraApi {

/** An IPv4 address of a network adapter of this host. An adapter with several addresses counts once for each. */
struct NetAdapter
{
    std::string name; ///< of the system: "eth0"
    unsigned index = 0; ///< of the system
    std::uint64_t mac = 0; ///< 48 bits; 0 if it has none
    std::uint32_t address = 0; ///< the first dotted part is the most significant byte
    std::uint32_t mask = 0;
    bool isLoopback = false;

    bool contains(std::uint32_t other) const { return (other & mask) == (address & mask); }
};

/** The adapters that are up now, in the system's order; empty if the system refuses. */
std::vector<NetAdapter> netAdapters();

} // namespace OrvCameraApi
