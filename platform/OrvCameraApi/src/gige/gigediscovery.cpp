// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigediscovery.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace OrvCameraApi {

namespace {

constexpr std::uint32_t everyone = 0xFFFFFFFF; // 255.255.255.255 stays on the adapter

/** The access that an answer to the question for ControlPrivilege leaves to others. */
std::int32_t accessIn(const Gvcp::Acknowledge &answer)
{
    const std::optional<std::vector<std::uint32_t>> privilege = Gvcp::registersIn(answer.payload, 1);
    if (answer.status != Gvcp::Status::Success || !privilege || (privilege->front() & Gvcp::ExclusiveAccess))
        return OrvCam::AccessStatusNoAccess;
    return privilege->front() == 0 ? OrvCam::AccessStatusReadWrite : OrvCam::AccessStatusReadOnly;
}

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
    for (const Seen &seen : m_seen)
        devices.push_back(seen.device);
    return devices;
}

std::optional<FoundDevice> GigeDiscovery::find(std::uint64_t mac) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const Seen &seen : m_seen) {
        if (seen.device.record.mac == mac)
            return seen.device;
    }
    return std::nullopt;
}

OrvCamErr GigeDiscovery::forceIp(std::uint64_t mac, const IpConfiguration &configuration)
{
    const std::optional<FoundDevice> device = find(mac);
    if (!device)
        return OrvCamErr_NoDevice;
    const std::optional<Gvcp::Status> status = askForIp(*device, configuration);
    if (!status)
        return OrvCamErr_NoDevice;
    if (*status == Gvcp::Status::AccessDenied)
        return OrvCamErr_InvalidState;
    if (*status != Gvcp::Status::Success)
        return OrvCamErr_UnknownError;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto seen = place(mac);
        if (seen != m_seen.end() && configuration.address != 0) {
            FoundDevice &forced = seen->device;
            forced.record.ip = configuration;
            forced.endpoint.address = configuration.address;
            const bool isReachable = m_adapter.contains(configuration.address);
            if (!isReachable)
                forced.accessStatus = OrvCam::AccessStatusIpSubnetMismatch;
            else if (forced.accessStatus == OrvCam::AccessStatusIpSubnetMismatch)
                forced.accessStatus = OrvCam::AccessStatusReadWrite;
            seen->isForced = true;
            if (!m_options.broadcasts || m_isRetired)
                m_furtherAddresses.push_back(configuration.address);
        }
    }
    lookNow();
    return OrvCamErr_Ok;
}

/** The answer may come from the old address or from the new one; others may send anything. */
std::optional<Gvcp::Status> GigeDiscovery::askForIp(const FoundDevice &device,
                                                    const IpConfiguration &configuration) const
{
    constexpr int attempts = 3;
    constexpr std::chrono::milliseconds once(300);
    constexpr std::uint16_t id = 1; // of the only question by this socket
    UdpSocket socket({m_adapter.address, 0});
    if (!socket.isOpen())
        return std::nullopt;
    // A device outside the subnet hears nothing else than a broadcast.
    const bool isBroadcast = broadcasts();
    socket.useAdapter(m_adapter.index);
    if (isBroadcast)
        socket.allowBroadcast();
    const Endpoint to = isBroadcast ? Endpoint{everyone, m_options.port} : device.endpoint;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        socket.send(Gvcp::forceIp(id, device.record.mac, configuration), to);
        const auto deadline = UdpSocket::Clock::now() + once;
        while (const std::optional<Datagram> datagram = socket.receive(deadline)) {
            const std::optional<Gvcp::Acknowledge> answer =
                Gvcp::acknowledgeIn(datagram->bytes.data(), datagram->bytes.size());
            const std::uint32_t from = datagram->from.address;
            if (answer && answer->id == id && answer->command == Gvcp::Command::ForceIp
                && datagram->from.port == device.endpoint.port
                && (from == device.endpoint.address || from == configuration.address))
                return answer->status;
        }
    }
    return std::nullopt;
}

std::vector<GigeDiscovery::Seen>::iterator GigeDiscovery::place(std::uint64_t mac)
{
    return std::find_if(m_seen.begin(), m_seen.end(),
                        [mac](const Seen &seen) { return seen.device.record.mac == mac; });
}

void GigeDiscovery::retire()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (std::exchange(m_isRetired, true))
        return;
    for (const Seen &seen : m_seen)
        m_furtherAddresses.push_back(seen.device.endpoint.address);
}

void GigeDiscovery::lookNow()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isHurried = true;
    }
    m_changed.notify_all();
}

std::string GigeDiscovery::refusal() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_refusal.value_or("");
}

bool GigeDiscovery::isSilent() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_refusal && m_emptyRounds >= m_options.missable;
}

void GigeDiscovery::run()
{
    m_socket.useAdapter(m_adapter.index);
    if (m_options.broadcasts)
        m_socket.allowBroadcast();
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
    std::map<std::uint64_t, FoundDevice> answers;
    const std::uint16_t id = nextId();
    const std::optional<std::string> refusal = ask(id);
    const auto deadline = UdpSocket::Clock::now() + m_options.patience;
    while (!refusal) {
        const std::optional<Datagram> datagram = m_socket.receive(deadline);
        if (!datagram)
            break;
        take(*datagram, id, answers);
    }
    askForAccess(answers);
    publish(std::move(answers), refusal);
}

std::uint16_t GigeDiscovery::nextId()
{
    if (++m_id == 0)
        m_id = 1;
    return m_id;
}

/** Why nobody could be asked, if that is so; empty if there is nobody to ask. */
std::optional<std::string> GigeDiscovery::ask(std::uint16_t id) const
{
    const std::vector<std::uint32_t> single = addresses();
    const bool isBroadcast = broadcasts();
    if (single.empty() && !isBroadcast)
        return "";
    bool isAnyone = isBroadcast && m_socket.send(Gvcp::discovery(id, true), {everyone, m_options.port});
    int error = errno;
    for (const std::uint32_t address : single) {
        isAnyone |= m_socket.send(Gvcp::discovery(id, false), {address, m_options.port});
        error = errno;
    }
    if (isAnyone)
        return std::nullopt;
    return m_socket.isOpen() ? std::generic_category().message(error) : "The adapter has another address now";
}

bool GigeDiscovery::broadcasts() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_options.broadcasts && !m_isRetired;
}

/** Those that are asked one by one. */
std::vector<std::uint32_t> GigeDiscovery::addresses() const
{
    std::vector<std::uint32_t> all = m_options.addresses;
    const std::lock_guard<std::mutex> lock(m_mutex);
    all.insert(all.end(), m_furtherAddresses.begin(), m_furtherAddresses.end());
    return all;
}

/** Anyone may send anything: at most a thousand devices are taken, and the first answer for a MAC address counts. */
void GigeDiscovery::take(const Datagram &datagram, std::uint16_t id,
                         std::map<std::uint64_t, FoundDevice> &answers) const
{
    constexpr std::size_t most = 1000;
    const std::vector<std::uint32_t> asked = addresses();
    if (!broadcasts() && std::find(asked.begin(), asked.end(), datagram.from.address) == asked.end())
        return;
    const std::optional<Gvcp::Acknowledge> answer = Gvcp::acknowledgeIn(datagram.bytes.data(), datagram.bytes.size());
    if (!answer || answer->id != id || answer->command != Gvcp::Command::Discovery
        || answer->status != Gvcp::Status::Success || datagram.from.port != m_options.port || answers.size() >= most)
        return;
    if (const std::optional<Gvcp::DeviceRecord> record = Gvcp::deviceRecordIn(answer->payload))
        answers.try_emplace(record->mac, FoundDevice{*record, datagram.from});
}

/** Who controls each device; all are asked at once. One that does not tell stays as it was for some rounds. */
void GigeDiscovery::askForAccess(std::map<std::uint64_t, FoundDevice> &devices)
{
    std::vector<FoundDevice *> open;
    for (auto &[mac, device] : devices) {
        const std::optional<FoundDevice> former = find(mac);
        // Whoever answers to a broadcast is on the adapter's network, or says something that is not so.
        const bool isNear = !m_options.broadcasts || m_adapter.contains(device.endpoint.address);
        if (!isNear || !m_adapter.contains(device.record.ip.address)) {
            device.accessStatus = OrvCam::AccessStatusIpSubnetMismatch;
        } else {
            device.untold = former ? former->untold + 1 : m_options.missable;
            device.accessStatus =
                device.untold < m_options.missable ? former->accessStatus : std::int32_t(OrvCam::AccessStatusNoAccess);
            open.push_back(&device);
        }
    }
    askEach(open, Gvcp::ControlPrivilege, [](FoundDevice &device, const Gvcp::Acknowledge &answer) {
        device.accessStatus = accessIn(answer);
        device.untold = 0;
    });
    const auto isFree = [](const FoundDevice *device) {
        return device->untold > 0 || device->accessStatus == OrvCam::AccessStatusReadWrite;
    };
    open.erase(std::remove_if(open.begin(), open.end(), isFree), open.end());
    askEach(open, Gvcp::ControllerAddress, [](FoundDevice &device, const Gvcp::Acknowledge &answer) {
        const std::optional<std::vector<std::uint32_t>> controller = Gvcp::registersIn(answer.payload, 1);
        if (answer.status == Gvcp::Status::Success && controller)
            device.controller = controller->front();
    });
}

/** Asks all of \a open for a register at once, and gives each answer to \a take. */
template <typename Take>
void GigeDiscovery::askEach(std::vector<FoundDevice *> open, std::uint32_t address, const Take &take)
{
    constexpr int attempts = 2;
    const std::uint16_t id = nextId();
    for (int attempt = 0; attempt < attempts && !open.empty(); ++attempt) {
        for (const FoundDevice *device : open)
            m_socket.send(Gvcp::readRegisters(id, {address}), device->endpoint);
        const auto deadline = UdpSocket::Clock::now() + m_options.patience / attempts;
        while (!open.empty()) {
            const std::optional<Datagram> datagram = m_socket.receive(deadline);
            if (!datagram)
                break;
            const auto asked = std::find_if(open.begin(), open.end(), [&](const FoundDevice *device) {
                return device->endpoint == datagram->from;
            });
            const std::optional<Gvcp::Acknowledge> answer =
                Gvcp::acknowledgeIn(datagram->bytes.data(), datagram->bytes.size());
            if (asked == open.end() || !answer || answer->id != id || answer->command != Gvcp::Command::ReadRegister)
                continue;
            take(**asked, *answer);
            open.erase(asked);
        }
    }
}

/** A packet may be lost: a device stays until it has missed several rounds. */
void GigeDiscovery::publish(std::map<std::uint64_t, FoundDevice> &&answers, std::optional<std::string> refusal)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_refusal = std::move(refusal);
    m_emptyRounds = answers.empty() ? std::min(m_emptyRounds + 1, m_options.missable) : 0;
    for (Seen &seen : m_seen) {
        const auto answer = answers.find(seen.device.record.mac);
        if (answer == answers.end()) {
            ++seen.missed;
        } else {
            if (!std::exchange(seen.isForced, false))
                seen.device = std::move(answer->second);
            seen.missed = 0;
            answers.erase(answer);
        }
    }
    m_seen.erase(std::remove_if(m_seen.begin(), m_seen.end(),
                                [this](const Seen &seen) { return seen.missed >= m_options.missable; }),
                 m_seen.end());
    for (auto &[mac, device] : answers)
        m_seen.push_back({std::move(device)});
}

} // namespace OrvCameraApi
