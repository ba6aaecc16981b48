// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "gvcp.h"
#include "netadapter.h"
#include "udpsocket.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** A device that has answered on an adapter. */
struct FoundDevice
{
    Gvcp::DeviceRecord record;
    Endpoint endpoint; ///< where it answers
    std::int32_t accessStatus = 0; ///< an OrvCam::AccessStatus
    std::uint32_t controller = 0; ///< address of the program that controls it, if it tells
    int untold = 0; ///< rounds since it told who controls it
};

/**
 * Looks for devices on one adapter, with a thread of its own, as long as this object lives. Any thread may use it; none
 * of its functions except forceIp() waits for the network.
 */
class GigeDiscovery
{
public:
    struct Options
    {
        std::vector<std::uint32_t> addresses; ///< asked one by one
        bool broadcasts = true; ///< asks everyone on the adapter as well
        std::uint16_t port = Gvcp::port;
        std::chrono::milliseconds period{1000}; ///< between the beginnings of two rounds
        std::chrono::milliseconds patience{250}; ///< for the answers of a round
        int missable = 3; ///< rounds without an answer after which a device is gone
    };

    GigeDiscovery(NetAdapter adapter, Options options);
    ~GigeDiscovery();
    GigeDiscovery(const GigeDiscovery &) = delete;
    GigeDiscovery &operator=(const GigeDiscovery &) = delete;

    const NetAdapter &adapter() const { return m_adapter; }

    /** The devices that are known now; those found later stand further back. */
    std::vector<FoundDevice> devices() const;

    /** The device with that MAC address, if it is known now. */
    std::optional<FoundDevice> find(std::uint64_t mac) const;

    /**
     * Gives the device another address for now. Waits for its acknowledge, at most 0.9 s: OrvCamErr_NoDevice if there
     * is none, OrvCamErr_InvalidState if the device refuses because another program controls it, OrvCamErr_UnknownError
     * if it refuses for other reasons. The answers of devices() follow at once.
     */
    OrvCamErr forceIp(std::uint64_t mac, const IpConfiguration &configuration);

    /** From now on only the devices that are known are asked, and nothing is broadcast. */
    void retire();

    /** The next round begins at once. */
    void lookNow();

    /** Why the system lets nobody be asked, for people; empty if it does, or if nobody is to be asked. */
    std::string refusal() const;

    /** Whether nobody has answered for some rounds. */
    bool isSilent() const;

private:
    struct Seen
    {
        FoundDevice device;
        int missed = 0;
        bool isForced = false; ///< an address that came after the question of the round that is running
    };

    void run();
    void lookAround();
    std::optional<std::string> ask(std::uint16_t id) const;
    bool broadcasts() const;
    std::vector<std::uint32_t> addresses() const;
    void take(const Datagram &datagram, std::uint16_t id, std::map<std::uint64_t, FoundDevice> &answers) const;
    void askForAccess(std::map<std::uint64_t, FoundDevice> &devices);
    template <typename Take>
    void askEach(std::vector<FoundDevice *> open, std::uint32_t address, const Take &take);
    std::uint16_t nextId();
    std::optional<Gvcp::Status> askForIp(const FoundDevice &device, const IpConfiguration &configuration) const;
    std::vector<Seen>::iterator place(std::uint64_t mac);
    void publish(std::map<std::uint64_t, FoundDevice> &&answers, std::optional<std::string> refusal);

    const NetAdapter m_adapter;
    const Options m_options;
    UdpSocket m_socket;
    std::uint16_t m_id = 0; ///< of the thread, as m_socket

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Seen> m_seen; ///< in the order in which they were found
    std::vector<std::uint32_t> m_furtherAddresses; ///< that are asked one by one
    bool m_isRetired = false;
    std::optional<std::string> m_refusal; ///< of the system, to ask anyone in the last round
    int m_emptyRounds = 0; ///< one after the other
    bool m_isHurried = false;
    bool m_isEnding = false;

    std::thread m_thread; ///< the last, because it uses the others
};

} // namespace OrvCameraApi
