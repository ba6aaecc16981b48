#include "gigediscovery.h"

#include "gvcpclient.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

namespace {

constexpr std::uint32_t everyone = 0xFFFFFFFF; // 255.255.255.255 stays on the adapter

// Of the register ControlPrivilege.
constexpr std::uint32_t exclusive = 1;

} // namespace

GigeDiscovery::GigeDiscovery(NetAdapter adapter, Options options)
    : m_adapter(std::move(adapter))
    , m_options(std::move(options))
    , m_socket({m_adapter.address, 0})
    , m_thread([this] { run(); })
{
}

GigeDiscovery::~GigeDiscovery()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_socket.wake();
    m_thread.join();
}

std::vector<FoundDevice> GigeDiscovery::devices() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<FoundDevice> devices;
    for (const auto &[mac, seen] : m_seen)
        devices.push_back(seen.device);
    return devices;
}

void GigeDiscovery::lookNow()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isHurried = true;
    }
    m_changed.notify_all();
}

bool GigeDiscovery::isBlocked() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isBlocked;
}

bool GigeDiscovery::isEnding() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isEnding;
}

void GigeDiscovery::run()
{
    if (m_options.broadcasts)
        m_socket.allowBroadcast(m_adapter.index);
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isEnding) {
        const auto next = UdpSocket::Clock::now() + m_options.period;
        m_isHurried = false;
        lock.unlock();
        lookAround();
        lock.lock();
        m_changed.wait_until(lock, next, [this] { return m_isEnding || m_isHurried; });
    }
}

/** One round: a question to everyone, the answers that come in time, and who controls each device. */
void GigeDiscovery::lookAround()
{
    if (++m_id == 0)
        m_id = 1;
    std::map<std::uint64_t, FoundDevice> answers;
    const bool isAsked = m_socket.isOpen() && ask(m_id);
    const auto deadline = UdpSocket::Clock::now() + m_options.patience;
    while (isAsked) {
        const std::optional<Datagram> datagram = m_socket.receive(deadline);
        if (!datagram)
            break;
        take(*datagram, m_id, answers);
    }
    for (auto &[mac, device] : answers) {
        if (isEnding())
            return;
        device.accessStatus = accessStatusOf(device);
    }
    publish(std::move(answers), !isAsked);
}

/** Whether anyone could be asked. */
bool GigeDiscovery::ask(std::uint16_t id) const
{
    bool isAnyone = false;
    if (m_options.broadcasts)
        isAnyone = m_socket.send(Gvcp::discovery(id, true), {everyone, m_options.port});
    for (const std::uint32_t address : m_options.addresses)
        isAnyone |= m_socket.send(Gvcp::discovery(id, false), {address, m_options.port});
    return isAnyone;
}

/** Anyone may send anything: at most a thousand devices are taken, and the first answer for a MAC address counts. */
void GigeDiscovery::take(const Datagram &datagram, std::uint16_t id,
                         std::map<std::uint64_t, FoundDevice> &answers) const
{
    constexpr std::size_t most = 1000;
    const std::vector<std::uint32_t> &asked = m_options.addresses;
    if (!m_options.broadcasts && std::find(asked.begin(), asked.end(), datagram.from.address) == asked.end())
        return;
    const std::optional<Gvcp::Acknowledge> answer = Gvcp::acknowledgeIn(datagram.bytes.data(), datagram.bytes.size());
    if (!answer || answer->id != id || answer->command != Gvcp::Command::Discovery
        || answer->status != Gvcp::Status::Success || datagram.from.port != m_options.port || answers.size() >= most)
        return;
    if (const std::optional<Gvcp::DeviceRecord> record = Gvcp::deviceRecordIn(answer->payload))
        answers.try_emplace(record->mac, FoundDevice{*record, datagram.from, 0});
}

std::int32_t GigeDiscovery::accessStatusOf(const FoundDevice &device) const
{
    if (!m_adapter.contains(device.record.ip.address))
        return OrvCam::AccessStatusIpSubnetMismatch;
    GvcpClient client(m_adapter.address, device.endpoint, {std::chrono::milliseconds(100), 1, m_options.patience});
    const std::optional<std::vector<std::uint32_t>> privilege = client.readRegisters({Gvcp::ControlPrivilege});
    if (!privilege)
        return OrvCam::AccessStatusNoAccess;
    if (privilege->front() == 0)
        return OrvCam::AccessStatusReadWrite;
    return privilege->front() & exclusive ? OrvCam::AccessStatusNoAccess : OrvCam::AccessStatusReadOnly;
}

/** A packet may be lost: a device stays until it has missed several rounds. */
void GigeDiscovery::publish(std::map<std::uint64_t, FoundDevice> &&answers, bool isBlocked)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isBlocked = isBlocked;
    for (auto seen = m_seen.begin(); seen != m_seen.end();) {
        if (answers.count(seen->first) == 0 && ++seen->second.missed >= m_options.missable)
            seen = m_seen.erase(seen);
        else
            ++seen;
    }
    for (auto &[mac, device] : answers)
        m_seen[mac] = {std::move(device), 0};
}

} // namespace OrvCameraApi
