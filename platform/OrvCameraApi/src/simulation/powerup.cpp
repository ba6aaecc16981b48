// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// A small language, one statement a line. Registers are named by their nodes, so the service map turns every name into
// addresses, and faults and moving registers are then kept by address.
#include "powerup.h"

#include <GenApi/GenApi.h>

#include <sstream>

namespace OrvCameraApi {

namespace {

[[noreturn]] void refuse(const char *reason)
{
    throw GenICam::InvalidArgumentException(reason, __FILE__, __LINE__);
}

template <typename... Number>
void readNumbers(std::istream &words, Number &...number)
{
    (words >> ... >> number);
    if (!words)
        refuse("a number is missing");
}

/** One statement; its words are read from a stream. */
class Statement
{
public:
    Statement(std::istream &words, ServiceMap &map, RegisterFile &registers, PortMonitor &monitor)
        : m_words(words)
        , m_map(map)
        , m_registers(registers)
        , m_monitor(monitor)
    {
    }

    void carryOut()
    {
        std::string verb;
        m_words >> verb >> m_node >> std::ws;
        if (verb == "set")
            set();
        else if (verb == "drift")
            drift();
        else if (verb == "clear")
            clear();
        else if (verb == "fail-read")
            m_monitor.addPermanent(range(), OrvSim::Fault::FailRead);
        else if (verb == "fail-write")
            m_monitor.addPermanent(range(), OrvSim::Fault::FailWrite);
        else
            refuse("unknown statement");
    }

private:
    AddressRange range()
    {
        const std::optional<AddressRange> found = m_map.find(m_node);
        if (!found)
            refuse("no such register");
        return *found;
    }

    void set()
    {
        std::string value;
        std::getline(m_words, value);
        range();
        m_map.set(m_node, value);
    }

    void drift()
    {
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        std::uint64_t step = 0;
        readNumbers(m_words, low, high, step);
        if (low > high)
            refuse("the ends are exchanged");
        m_registers.addDrift(range(), low, high, step);
    }

    void clear()
    {
        std::uint64_t value = 0;
        unsigned reads = 0;
        readNumbers(m_words, value, reads);
        m_registers.addSelfClearing(range(), value, reads);
    }

    std::istream &m_words;
    ServiceMap &m_map;
    RegisterFile &m_registers;
    PortMonitor &m_monitor;
    std::string m_node;
};

} // namespace

void powerUp(const std::string &statements, ServiceMap &map, RegisterFile &registers, PortMonitor &monitor)
{
    const ServiceMap::Alone alone(map); // the camera gets power just now
    std::istringstream lines(statements);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        std::istringstream words(line);
        if ((words >> std::ws).eof() || words.peek() == '#')
            continue;
        try {
            Statement(words, map, registers, monitor).carryOut();
        } catch (const GenICam::GenericException &failure) {
            const std::string reason = "power-up:" + std::to_string(number) + ": " + failure.GetDescription();
            throw GenICam::InvalidArgumentException(reason.c_str(), __FILE__, __LINE__);
        }
    }
}

} // namespace OrvCameraApi
