// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gvcp.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <tuple>

namespace OrvCameraApi::Gvcp {

namespace {

constexpr std::uint8_t key = 0x42;
constexpr std::uint8_t acknowledgeWanted = 0x01;
constexpr std::uint8_t broadcastAllowed = 0x10;
constexpr std::size_t headerSize = 8;
constexpr std::size_t discoverySize = 248;

/** Appends numbers, most significant byte first. */
class Writer
{
public:
    Writer(std::uint8_t flags, Command command, std::uint16_t id)
    {
        m_packet = {key, flags};
        add16(std::uint16_t(command));
        add16(0);
        add16(id);
    }

    void add16(std::uint32_t number)
    {
        m_packet.push_back(std::uint8_t(number >> 8));
        m_packet.push_back(std::uint8_t(number));
    }

    void add32(std::uint32_t number)
    {
        add16(number >> 16);
        add16(number);
    }

    void add(const std::uint8_t *bytes, std::size_t count) { m_packet.insert(m_packet.end(), bytes, bytes + count); }
    void skip(std::size_t count) { m_packet.insert(m_packet.end(), count, 0); }

    Packet take()
    {
        const std::size_t length = m_packet.size() - headerSize;
        m_packet[4] = std::uint8_t(length >> 8);
        m_packet[5] = std::uint8_t(length);
        return std::move(m_packet);
    }

private:
    Packet m_packet;
};

std::uint32_t number16(const std::uint8_t *data)
{
    return std::uint32_t(data[0]) << 8 | data[1];
}

std::uint32_t number32(const std::uint8_t *data)
{
    return number16(data) << 16 | number16(data + 2);
}

/** The bytes of the UTF-8 character there; 0 if there is none. */
std::size_t utf8Length(const std::uint8_t *at, const std::uint8_t *end)
{
    const std::uint8_t first = *at;
    if (first < 0x80)
        return 1;
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (length == 0 || std::size_t(end - at) < length)
        return 0;
    // Neither longer than needed, nor half of a UTF-16 pair, nor above U+10FFFF.
    const std::uint8_t lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const std::uint8_t highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (at[1] < lowest || at[1] > highest)
        return 0;
    const auto goesOn = [](std::uint8_t byte) { return (byte & 0xC0) == 0x80; };
    return std::all_of(at + 1, at + length, goesOn) ? length : 0;
}

/**
 * A text field ends at its first zero. Bytes outside ASCII are Latin-1 unless the device says UTF-8. A character that
 * was cut off, and whatever else is none, is shown as such.
 */
std::string textIn(const std::uint8_t *field, std::size_t size, bool isUtf8)
{
    std::string text;
    const std::uint8_t *const end = std::find(field, field + size, 0);
    while (field != end) {
        const std::size_t length = isUtf8 ? utf8Length(field, end) : *field < 0x80;
        if (length > 0) {
            text.append(field, field + length);
        } else if (isUtf8) {
            text += "\xEF\xBF\xBD";
        } else {
            text += char(0xC0 | *field >> 6);
            text += char(0x80 | (*field & 0x3F));
        }
        field += std::max<std::size_t>(length, 1);
    }
    return text;
}

bool startsWith(std::string_view text, std::string_view lowerCase)
{
    const auto isSame = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? char(a - 'A' + 'a') : a) == b; };
    return text.size() >= lowerCase.size()
        && std::equal(lowerCase.begin(), lowerCase.end(), text.begin(),
                      [&isSame](char lower, char given) { return isSame(given, lower); });
}

std::optional<std::uint32_t> hexadecimal(std::string_view text)
{
    std::uint32_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (fault != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

} // namespace

Packet discovery(std::uint16_t id, bool mayBroadcast)
{
    return Writer(mayBroadcast ? acknowledgeWanted | broadcastAllowed : acknowledgeWanted, Command::Discovery, id)
        .take();
}

Packet forceIp(std::uint16_t id, std::uint64_t mac, const IpConfiguration &configuration)
{
    Writer writer(acknowledgeWanted, Command::ForceIp, id);
    writer.skip(2);
    writer.add16(std::uint32_t(mac >> 32));
    writer.add32(std::uint32_t(mac));
    for (const std::uint32_t number : {configuration.address, configuration.mask, configuration.gateway}) {
        writer.skip(12);
        writer.add32(number);
    }
    return writer.take();
}

Packet readRegisters(std::uint16_t id, const std::vector<std::uint32_t> &addresses)
{
    Writer writer(acknowledgeWanted, Command::ReadRegister, id);
    for (const std::uint32_t address : addresses)
        writer.add32(address);
    return writer.take();
}

Packet writeRegister(std::uint16_t id, std::uint32_t address, std::uint32_t value)
{
    Writer writer(acknowledgeWanted, Command::WriteRegister, id);
    writer.add32(address);
    writer.add32(value);
    return writer.take();
}

Packet readMemory(std::uint16_t id, std::uint32_t address, std::uint16_t count)
{
    Writer writer(acknowledgeWanted, Command::ReadMemory, id);
    writer.add32(address);
    writer.skip(2);
    writer.add16(count);
    return writer.take();
}

Packet writeMemory(std::uint16_t id, std::uint32_t address, const std::uint8_t *bytes, std::size_t count)
{
    Writer writer(acknowledgeWanted, Command::WriteMemory, id);
    writer.add32(address);
    writer.add(bytes, count);
    return writer.take();
}

std::optional<Acknowledge> acknowledgeIn(const std::uint8_t *data, std::size_t size)
{
    if (size < headerSize)
        return std::nullopt;
    const std::size_t length = number16(data + 4);
    const std::uint32_t code = number16(data + 2);
    if (length > size - headerSize || (code & 1) == 0)
        return std::nullopt;
    Acknowledge acknowledge;
    acknowledge.status = Status(number16(data));
    acknowledge.command = Command(code - 1);
    acknowledge.id = std::uint16_t(number16(data + 6));
    acknowledge.payload.assign(data + headerSize, data + headerSize + length);
    return acknowledge;
}

std::optional<std::vector<std::uint32_t>> registersIn(const Packet &payload, std::size_t count)
{
    if (payload.size() != count * 4)
        return std::nullopt;
    std::vector<std::uint32_t> values;
    for (std::size_t at = 0; at < payload.size(); at += 4)
        values.push_back(number32(payload.data() + at));
    return values;
}

std::optional<std::uint16_t> pendingTime(const Packet &payload)
{
    if (payload.size() < 4)
        return std::nullopt;
    return std::uint16_t(number16(payload.data() + 2));
}

bool DeviceRecord::operator==(const DeviceRecord &other) const
{
    const auto all = [](const DeviceRecord &record) {
        return std::tie(record.mac, record.ip.address, record.ip.mask, record.ip.gateway, record.manufacturer,
                        record.model, record.version, record.serialNumber, record.userDefinedName);
    };
    return all(*this) == all(other);
}

std::optional<DeviceRecord> deviceRecordIn(const Packet &payload)
{
    if (payload.size() < discoverySize)
        return std::nullopt;
    const std::uint8_t *const registers = payload.data();
    const bool isUtf8 = number16(registers + 0x06) == 1;
    DeviceRecord record;
    record.mac = std::uint64_t(number16(registers + 0x0A)) << 32 | number32(registers + 0x0C);
    record.ip = {number32(registers + 0x24), number32(registers + 0x34), number32(registers + 0x44)};
    record.manufacturer = textIn(registers + 0x48, 32, isUtf8);
    record.model = textIn(registers + 0x68, 32, isUtf8);
    record.version = textIn(registers + 0x88, 32, isUtf8);
    record.serialNumber = textIn(registers + 0xD8, 16, isUtf8);
    record.userDefinedName = textIn(registers + 0xE8, 16, isUtf8);
    return record;
}

/** Names are written in any case. */
bool DescriptionFile::isArchive() const
{
    constexpr std::size_t size = 4;
    return name.size() >= size && startsWith(std::string_view(name).substr(name.size() - size), ".zip");
}

std::optional<DescriptionFile> localFileIn(const std::string &url)
{
    std::string_view rest = url;
    rest = rest.substr(0, rest.find('\0'));
    rest = rest.substr(0, rest.find('?'));
    if (!startsWith(rest, "local:"))
        return std::nullopt;
    rest.remove_prefix(6);
    while (!rest.empty() && rest.front() == '/')
        rest.remove_prefix(1);
    const std::size_t first = rest.find(';');
    const std::size_t second = first == std::string_view::npos ? first : rest.find(';', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    const std::optional<std::uint32_t> address = hexadecimal(rest.substr(first + 1, second - first - 1));
    const std::optional<std::uint32_t> length = hexadecimal(rest.substr(second + 1));
    if (!address || !length || *length == 0 || *length > mostDescription || *length - 1 > UINT32_MAX - *address)
        return std::nullopt;
    return DescriptionFile{std::string(rest.substr(0, first)), *address, *length};
}

} // namespace OrvCameraApi::Gvcp
