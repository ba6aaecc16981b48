// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigeserver.h"

#include <algorithm>
#include <cstdio>
#include <random>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace OrvTest {

namespace {

constexpr std::uint16_t success = 0;
constexpr std::uint16_t notImplemented = 0x8001;
constexpr std::uint16_t invalidParameter = 0x8002;
constexpr std::uint16_t invalidAddress = 0x8003;
constexpr std::uint16_t badAlignment = 0x8005;
constexpr std::uint16_t accessDenied = 0x8006;
constexpr std::uint16_t pendingAcknowledge = 0x89;

constexpr std::size_t headerSize = 8;
constexpr std::size_t recordSize = 248;

std::uint32_t numberIn(const std::uint8_t *data, int size)
{
    std::uint32_t number = 0;
    for (int i = 0; i < size; ++i)
        number = number << 8 | data[i];
    return number;
}

void append(GigeServer::Bytes &bytes, std::uint32_t number, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.push_back(std::uint8_t(number >> shift));
}

/** -1 if the address is taken, or is not one of the loopback network: nothing may leave this host. */
int boundSocket(std::uint32_t address, std::uint16_t port)
{
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_port = htons(port);
    local.sin_addr.s_addr = htonl(address);
    const int descriptor = address >> 24 == 127 ? ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0) : -1;
    if (descriptor >= 0 && ::bind(descriptor, reinterpret_cast<const sockaddr *>(&local), sizeof local) != 0) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

std::uint16_t portOf(int descriptor)
{
    sockaddr_in local{};
    socklen_t size = sizeof local;
    ::getsockname(descriptor, reinterpret_cast<sockaddr *>(&local), &size);
    return ntohs(local.sin_port);
}

GigeServer::Bytes acknowledge(std::uint16_t status, std::uint32_t code, std::size_t length, std::uint32_t id)
{
    GigeServer::Bytes packet;
    append(packet, status, 2);
    append(packet, code, 2);
    append(packet, std::uint32_t(length), 2);
    append(packet, id, 2);
    return packet;
}

} // namespace

std::uint32_t loopbackAddress()
{
    std::random_device random;
    std::uniform_int_distribution<std::uint32_t> part(1, 254);
    return 127U << 24 | part(random) << 16 | part(random) << 8 | part(random);
}

GigeServer::GigeServer(std::uint32_t address, std::uint16_t port)
    : m_address(address)
    , m_memory(0x10000)
{
    m_sockets[0] = boundSocket(address, port);
    m_port = portOf(m_sockets[0]);
    m_sockets[1] = boundSocket(address, 0);
    [[maybe_unused]] const int failed = ::pipe2(m_wake.data(), O_CLOEXEC | O_NONBLOCK);
    setNumber(0x0000, 0x00010002);
    setNumber(DeviceMode, 0x80000001); // UTF-8
    setMac(0x020000000000 | address);
    setNumber(0x0010, 7);
    setNumber(0x0014, 5);
    setNumber(CurrentAddress, address);
    setNumber(CurrentMask, 0xFF000000);
    setNumber(Capabilities, 7); // several registers in one packet, writing to memory, and packets sent again
    setNumber(HeartbeatTimeout, 3000);
    m_thread = std::thread([this] { run(); });
}

GigeServer::~GigeServer()
{
    ::close(m_wake[1]);
    m_thread.join();
    ::close(m_wake[0]);
    for (const int descriptor : m_sockets) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
}

void GigeServer::setFaults(const Faults &faults)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_faults = faults;
}

int GigeServer::count(Command command) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    int sum = 0;
    for (const auto &[counted, count] : m_counts)
        sum += command == AnyCommand || command == counted ? count : 0;
    return sum;
}

int GigeServer::countInFreeMemory() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_countInFreeMemory;
}

void GigeServer::clearCounts()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_counts.clear();
    m_countInFreeMemory = 0;
}

std::uint32_t GigeServer::value(std::uint32_t address) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return number(address);
}

void GigeServer::setValue(std::uint32_t address, std::uint32_t value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    setNumber(address, value);
}

void GigeServer::setText(const Text &text, const std::string &value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    put(text.first, text.second, value);
}

void GigeServer::setMac(std::uint64_t mac)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    setNumber(0x0008, std::uint32_t(mac >> 32) & 0xFFFF);
    setNumber(0x000C, std::uint32_t(mac));
}

void GigeServer::setMemory(std::uint32_t address, const std::string &bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    put(address, bytes.size(), bytes);
}

void GigeServer::setDescription(const std::string &bytes, const std::string &name, std::uint32_t url)
{
    constexpr std::uint32_t address = 0x8000;
    setMemory(address, bytes);
    std::array<char, 32> numbers{};
    std::snprintf(numbers.data(), numbers.size(), ";%X;%zX", address, bytes.size());
    setUrl(url, "Local:" + name + numbers.data());
}

void GigeServer::run()
{
    for (;;) {
        std::array<pollfd, 2> waiting = {{{m_sockets[0], POLLIN, 0}, {m_wake[0], POLLIN, 0}}};
        int timeout = -1;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            sendWhatIsDue();
            if (!m_due.empty()) {
                const auto left = m_due.begin()->first - Clock::now();
                timeout = int(std::max<std::int64_t>(0, std::chrono::ceil<std::chrono::milliseconds>(left).count()));
            }
        }
        ::poll(waiting.data(), waiting.size(), timeout);
        if (waiting[1].revents)
            return;
        if (waiting[0].revents)
            receive();
    }
}

void GigeServer::sendWhatIsDue()
{
    while (!m_due.empty() && m_due.begin()->first <= Clock::now()) {
        const Answer &due = m_due.begin()->second;
        sockaddr_in to{};
        to.sin_family = AF_INET;
        to.sin_port = htons(due.to.second);
        to.sin_addr.s_addr = htonl(due.to.first);
        ::sendto(due.socket, due.packet.data(), due.packet.size(), MSG_NOSIGNAL,
                 reinterpret_cast<const sockaddr *>(&to), sizeof to);
        m_due.erase(m_due.begin());
    }
}

void GigeServer::receive()
{
    Bytes packet(2048);
    sockaddr_in from{};
    socklen_t size = sizeof from;
    const ssize_t count =
        ::recvfrom(m_sockets[0], packet.data(), packet.size(), 0, reinterpret_cast<sockaddr *>(&from), &size);
    if (count < ssize_t(headerSize) || packet[0] != 0x42)
        return;
    packet.resize(std::size_t(count));
    const Request request{{ntohl(from.sin_addr.s_addr), ntohs(from.sin_port)},
                          std::uint16_t(numberIn(packet.data() + 2, 2)),
                          std::uint16_t(numberIn(packet.data() + 6, 2)),
                          Bytes(packet.begin() + headerSize, packet.end())};
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_counts[request.command];
    if (request.command >= ReadRegister && request.payload.size() >= 4)
        m_countInFreeMemory += numberIn(request.payload.data(), 4) >= FreeMemory ? 1 : 0;
    if (numberIn(packet.data() + 4, 2) == request.payload.size() && request.id != 0)
        answer(request);
}

/** Performs the request, and lays its acknowledge among those that are sent when their time has come. */
void GigeServer::answer(const Request &request)
{
    const bool areFaultsFor = m_faults.only == AnyCommand || m_faults.only == request.command;
    const Faults faults = areFaultsFor ? m_faults : Faults{};
    if (faults.isSilent)
        return;
    if (faults.lost > 0) {
        --m_faults.lost;
        return;
    }
    expireControl();
    if (request.from == m_controller)
        m_controllerSeen = Clock::now();
    Bytes payload;
    if (request.command == ForceIp && !forceIp(request.payload))
        return;
    const bool isForeign = m_controller != Endpoint{} && request.from != m_controller;
    const std::uint16_t status = faults.status != 0 ? faults.status
        : faults.answersControllerOnly && isForeign ? accessDenied
                                                    : perform(request, payload);
    if (status != success)
        payload.clear();
    payload.resize(payload.size() - std::min<std::size_t>(payload.size(), faults.cut));
    Bytes packet =
        acknowledge(status, request.command + 1U + faults.commandError, payload.size(), request.id + faults.idError);
    packet.insert(packet.end(), payload.begin(), payload.end());

    const int socket = m_sockets[std::size_t(faults.sender)];
    const Clock::time_point now = Clock::now();
    if (faults.pending != 0) {
        Bytes pending = acknowledge(success, pendingAcknowledge, 4, request.id);
        append(pending, faults.pending, 4);
        m_due.insert({now, {socket, request.from, std::move(pending)}});
    }
    m_due.insert({now + faults.delay, {socket, request.from, std::move(packet)}});
}

/** The status, and what follows the header if that is success. */
std::uint16_t GigeServer::perform(const Request &request, Bytes &payload)
{
    const Bytes &given = request.payload;
    std::uint16_t status = success;
    switch (request.command) {
    case Discovery:
        payload.assign(m_memory.begin(), m_memory.begin() + recordSize);
        return success;
    case ForceIp:
        return success;
    case ReadRegister:
        return readRegisters(given, payload);
    case ReadMemory:
        return readMemory(given, payload);
    case WriteRegister:
        if (given.empty() || given.size() % 8 != 0)
            return invalidParameter;
        for (std::uint32_t at = 0; at < given.size() && status == success; at += 8) {
            status = write(request.from, numberIn(given.data() + at, 4), given.data() + at + 4, 4);
            payload = {0, 0, 0, std::uint8_t(at / 8 + 1)}; // registers that were written
        }
        return status;
    case WriteMemory:
        if (given.size() <= 4 || given.size() > 540 || given.size() % 4 != 0)
            return invalidParameter;
        append(payload, std::uint32_t(given.size() - 4), 4);
        return write(request.from, numberIn(given.data(), 4), given.data() + 4, given.size() - 4);
    default:
        return notImplemented;
    }
}

std::uint16_t GigeServer::readRegisters(const Bytes &addresses, Bytes &values) const
{
    if (addresses.empty() || addresses.size() > 540 || addresses.size() % 4 != 0)
        return invalidParameter;
    for (std::size_t at = 0; at < addresses.size(); at += 4) {
        const std::uint32_t address = numberIn(addresses.data() + at, 4);
        if (address % 4 != 0)
            return badAlignment;
        if (!isInMemory(address, 4))
            return invalidAddress;
        append(values, number(address), 4);
    }
    return success;
}

std::uint16_t GigeServer::readMemory(const Bytes &what, Bytes &data) const
{
    const std::uint32_t count = what.size() == 8 ? numberIn(what.data() + 6, 2) : 0;
    if (count == 0 || count > 536)
        return invalidParameter;
    const std::uint32_t address = numberIn(what.data(), 4);
    if (address % 4 != 0 || count % 4 != 0)
        return badAlignment;
    if (!isInMemory(address, count))
        return invalidAddress;
    append(data, address, 4);
    data.insert(data.end(), m_memory.begin() + address, m_memory.begin() + address + count);
    return success;
}

std::uint16_t GigeServer::write(const Endpoint &from, std::uint32_t address, const std::uint8_t *data, std::size_t size)
{
    if (address % 4 != 0)
        return badAlignment;
    if (!isInMemory(address, size))
        return invalidAddress;
    if (address == ControlPrivilege && size == 4)
        return takeControl(from, numberIn(data, 4));
    if (from != m_controller)
        return accessDenied;
    std::copy(data, data + size, m_memory.begin() + address);
    return success;
}

std::uint16_t GigeServer::takeControl(const Endpoint &from, std::uint32_t privilege)
{
    const bool isFree = number(ControlPrivilege) == 0;
    if (m_faults.deniesControl || (!isFree && from != m_controller))
        return accessDenied;
    setNumber(ControlPrivilege, privilege);
    setNumber(ControllerAddress, privilege == 0 ? 0 : from.first);
    m_controller = privilege == 0 ? Endpoint{} : from;
    m_controllerSeen = Clock::now();
    return success;
}

void GigeServer::expireControl()
{
    if (m_controller == Endpoint{}
        || Clock::now() - m_controllerSeen < std::chrono::milliseconds(number(HeartbeatTimeout)))
        return;
    m_controller = {};
    setNumber(ControlPrivilege, 0);
    setNumber(ControllerAddress, 0);
}

/** False for the MAC address of another device, which answers itself. */
bool GigeServer::forceIp(const Bytes &payload)
{
    if (payload.size() != 56 || numberIn(payload.data() + 2, 2) != number(0x0008)
        || numberIn(payload.data() + 4, 4) != number(0x000C))
        return false;
    if (numberIn(payload.data() + 20, 4) == 0)
        return true; // its own choice of an address is the one that it has
    setNumber(CurrentAddress, numberIn(payload.data() + 20, 4));
    setNumber(CurrentMask, numberIn(payload.data() + 36, 4));
    setNumber(CurrentGateway, numberIn(payload.data() + 52, 4));
    return true;
}

bool GigeServer::isInMemory(std::uint32_t address, std::size_t size) const
{
    return size <= m_memory.size() && address <= m_memory.size() - size;
}

std::uint32_t GigeServer::number(std::uint32_t address) const
{
    return isInMemory(address, 4) ? numberIn(m_memory.data() + address, 4) : 0;
}

void GigeServer::setNumber(std::uint32_t address, std::uint32_t value)
{
    Bytes bytes;
    append(bytes, value, 4);
    put(address, 4, std::string(bytes.begin(), bytes.end()));
}

/** The memory grows to the end of what is put into it, up to a multiple of 4. */
void GigeServer::put(std::uint32_t address, std::size_t size, const std::string &bytes)
{
    m_memory.resize(std::max(m_memory.size(), (address + size + 3) / 4 * 4));
    const auto place = m_memory.begin() + address;
    std::fill(place, place + std::ptrdiff_t(size), std::uint8_t(0));
    std::copy_n(bytes.begin(), std::min(size, bytes.size()), place);
}

} // namespace OrvTest
