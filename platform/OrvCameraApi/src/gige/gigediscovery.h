#pragma once

#include "gvcp.h"
#include "netadapter.h"
#include "udpsocket.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** A device that has answered on an adapter. */
struct FoundDevice
{
    Gvcp::DeviceRecord record;
    Endpoint endpoint; ///< where it answers
    std::int32_t accessStatus = 0; ///< an OrvCam::AccessStatus
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

    /** The devices that are known now, in the order of their MAC addresses. */
    std::vector<FoundDevice> devices() const;

    /** The next round begins at once. */
    void lookNow();

    /** Whether the network has refused questions, for instance because the adapter has lost its address. */
    bool isBlocked() const;

private:
    struct Seen
    {
        FoundDevice device;
        int missed = 0;
    };

    bool isEnding() const;
    void run();
    void lookAround();
    bool ask(std::uint16_t id) const;
    void take(const Datagram &datagram, std::uint16_t id, std::map<std::uint64_t, FoundDevice> &answers) const;
    std::int32_t accessStatusOf(const FoundDevice &device) const;
    void publish(std::map<std::uint64_t, FoundDevice> &&answers, bool isBlocked);

    const NetAdapter m_adapter;
    const Options m_options;
    UdpSocket m_socket;
    std::uint16_t m_id = 0; ///< of the thread, as m_socket

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::uint64_t, Seen> m_seen; ///< by MAC address
    bool m_isBlocked = false;
    bool m_isHurried = false;
    bool m_isEnding = false;

    std::thread m_thread; ///< the last, because it uses the others
};

} // namespace OrvCameraApi
