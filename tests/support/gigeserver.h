// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace OrvTest {

/** An address of the loopback network at random: programs that run at once do not meet. */
std::uint32_t loopbackAddress();

/**
 * The control channel of a GigE Vision device, in a thread of its own: bootstrap registers, plain memory, one
 * controller, and faults on demand. It takes the packets apart by itself, so that it does not share the mistakes of
 * what it tests. Any thread may use it.
 */
class GigeServer
{
public:
    using Bytes = std::vector<std::uint8_t>;

    enum Command : std::uint16_t {
        AnyCommand = 0,
        Discovery = 0x02,
        ForceIp = 0x04,
        ReadRegister = 0x80,
        WriteRegister = 0x82,
        ReadMemory = 0x84,
        WriteMemory = 0x86
    };

    enum class Sender { Itself, OtherPort };

    enum Register : std::uint32_t {
        DeviceMode = 0x0004,
        CurrentAddress = 0x0024,
        CurrentMask = 0x0034,
        CurrentGateway = 0x0044,
        FirstUrl = 0x0200,
        SecondUrl = 0x0400,
        Capabilities = 0x0934,
        HeartbeatTimeout = 0x0938,
        ControlPrivilege = 0x0A00,
        ControllerAddress = 0x0A14,
        FreeMemory = 0x1000 ///< and all above
    };

    /** The address and the length of a text. */
    using Text = std::pair<std::uint32_t, std::uint32_t>;
    static constexpr Text manufacturer{0x0048, 32};
    static constexpr Text model{0x0068, 32};
    static constexpr Text version{0x0088, 32};
    static constexpr Text information{0x00A8, 48};
    static constexpr Text serialNumber{0x00D8, 16};
    static constexpr Text userDefinedName{0x00E8, 16};

    struct Faults
    {
        Command only = AnyCommand; ///< the command that the faults are for
        bool isSilent = false;
        int lost = 0; ///< requests that get no answer, from now on
        std::chrono::milliseconds delay{0}; ///< of an answer
        std::uint16_t pending = 0; ///< milliseconds that a pending acknowledge asks for, before the answer
        std::uint32_t cut = 0; ///< bytes that the payload of an answer lacks; its length field agrees
        std::uint16_t idError = 0; ///< added to the request id of an answer
        std::uint16_t commandError = 0; ///< added to the command that an answer names
        Sender sender = Sender::Itself;
        std::uint16_t status = 0; ///< of an answer; the request is not performed unless it is 0
        bool deniesControl = false;
        bool answersControllerOnly = false; ///< while there is one
    };

    /** Bound to \a address of the loopback network, with a port of the system's choice for 0. */
    explicit GigeServer(std::uint32_t address, std::uint16_t port = 3956);
    ~GigeServer();
    GigeServer(const GigeServer &) = delete;
    GigeServer &operator=(const GigeServer &) = delete;

    bool isOpen() const { return m_sockets[0] >= 0; }
    std::uint32_t address() const { return m_address; }
    std::uint16_t port() const { return m_port; }

    /** Replaces all faults. */
    void setFaults(const Faults &faults);

    /** Requests that have arrived since the last clearCounts(), answered or not. */
    int count(Command command = AnyCommand) const;

    /** Those among them that read or write above the bootstrap registers. */
    int countInFreeMemory() const;
    void clearCounts();

    std::uint32_t value(std::uint32_t address) const;
    void setValue(std::uint32_t address, std::uint32_t value);

    /** Cut at the length of the text, with zeros behind. */
    void setText(const Text &text, const std::string &value);

    void setMac(std::uint64_t mac);

    void setMemory(std::uint32_t address, const std::string &bytes);

    /** Puts a description into the free memory, and where it is into the URL at \a url. */
    void setDescription(const std::string &bytes, const std::string &name = "device.xml", std::uint32_t url = FirstUrl);

    /** \a address is FirstUrl or SecondUrl. */
    void setUrl(std::uint32_t address, const std::string &url) { setText({address, 512}, url); }

private:
    using Clock = std::chrono::steady_clock;
    using Endpoint = std::pair<std::uint32_t, std::uint16_t>;

    struct Request
    {
        Endpoint from;
        std::uint16_t command;
        std::uint16_t id;
        Bytes payload;
    };

    struct Answer
    {
        int socket;
        Endpoint to;
        Bytes packet;
    };

    void run();
    void sendWhatIsDue();
    void receive();
    void answer(const Request &request);
    std::uint16_t perform(const Request &request, Bytes &payload);
    std::uint16_t readRegisters(const Bytes &addresses, Bytes &values) const;
    std::uint16_t readMemory(const Bytes &what, Bytes &data) const;
    std::uint16_t write(const Endpoint &from, std::uint32_t address, const std::uint8_t *data, std::size_t size);
    std::uint16_t takeControl(const Endpoint &from, std::uint32_t privilege);
    void expireControl();
    bool forceIp(const Bytes &payload);
    bool isInMemory(std::uint32_t address, std::size_t size) const;
    std::uint32_t number(std::uint32_t address) const;
    void setNumber(std::uint32_t address, std::uint32_t value);
    void put(std::uint32_t address, std::size_t size, const std::string &bytes);

    const std::uint32_t m_address;
    std::uint16_t m_port = 0;
    std::array<int, 2> m_sockets{-1, -1}; ///< by Sender
    std::array<int, 2> m_wake{-1, -1};

    mutable std::mutex m_mutex;
    Bytes m_memory;
    Faults m_faults;
    std::map<std::uint16_t, int> m_counts;
    int m_countInFreeMemory = 0;
    Endpoint m_controller; ///< while the control privilege is taken
    Clock::time_point m_controllerSeen;
    std::multimap<Clock::time_point, Answer> m_due;

    std::thread m_thread; ///< the last, because it uses the others
};

} // namespace OrvTest
