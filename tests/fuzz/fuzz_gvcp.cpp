// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// What a GigE Vision device answers. An input is a datagram, the payload of an acknowledge and a URL, all at once.

#include "fuzzer.h"

#include <gvcp.h>

#include <QByteArray>
#include <QRegularExpression>

using namespace OrvCameraApi;

namespace {

std::size_t number16(const std::uint8_t *data)
{
    return std::size_t(data[0] * 256 + data[1]);
}

bool isUtf8(const std::string &text)
{
    const std::string behind = 'a' + text; // at the beginning a byte order mark would be dropped
    return QString::fromStdString(behind).toStdString() == behind;
}

/** A command has the form that every device understands. */
void check(const Gvcp::Packet &packet, std::size_t payload)
{
    FUZZ_REQUIRE(packet.size() == 8 + payload && packet.size() <= Gvcp::largestPacket);
    FUZZ_REQUIRE(packet[0] == 0x42 && (packet[1] & 1) == 1 && number16(packet.data() + 4) == payload);
    FUZZ_REQUIRE(number16(packet.data() + 6) == 0x1234);
    FUZZ_REQUIRE(!Gvcp::acknowledgeIn(packet.data(), packet.size()));
}

void checkRecord(const Gvcp::Packet &payload)
{
    const std::optional<Gvcp::DeviceRecord> record = Gvcp::deviceRecordIn(payload);
    FUZZ_REQUIRE(record.has_value() == (payload.size() >= 248));
    if (!record)
        return;
    FUZZ_REQUIRE(record->mac >> 48 == 0);
    const bool saysUtf8 = number16(payload.data() + 6) == 1;
    const auto checkText = [saysUtf8](const std::string &text, std::size_t field) {
        FUZZ_REQUIRE(text.size() <= (saysUtf8 ? 3 : 2) * field);
        FUZZ_REQUIRE(text.find('\0') == std::string::npos);
        FUZZ_REQUIRE(isUtf8(text));
    };
    checkText(record->manufacturer, 32);
    checkText(record->model, 32);
    checkText(record->version, 32);
    checkText(record->serialNumber, 16);
    checkText(record->userDefinedName, 16);
    FUZZ_REQUIRE(*record == *Gvcp::deviceRecordIn(payload));
    check(Gvcp::forceIp(0x1234, record->mac, record->ip), 56);
}

void checkRegisters(const Gvcp::Packet &payload)
{
    const std::size_t count = payload.size() / 4;
    const std::optional<std::vector<std::uint32_t>> values = Gvcp::registersIn(payload, count);
    FUZZ_REQUIRE(values.has_value() == (payload.size() % 4 == 0));
    FUZZ_REQUIRE(!Gvcp::registersIn(payload, count + 1));
    FUZZ_REQUIRE(Gvcp::pendingTime(payload).has_value() == (payload.size() >= 4));
    if (!values || count == 0 || count > Gvcp::mostRegisters)
        return;
    const Gvcp::Packet packet = Gvcp::readRegisters(0x1234, *values);
    check(packet, payload.size());
    FUZZ_REQUIRE(std::equal(payload.begin(), payload.end(), packet.begin() + 8));
    check(Gvcp::writeRegister(0x1234, values->front(), values->back()), 8);
    check(Gvcp::readMemory(0x1234, values->front(), std::uint16_t(values->back())), 8);
    check(Gvcp::discovery(0x1234, values->front() % 2 == 0), 0);
}

/** The verdict on a URL against a reading of the text by other means. */
void checkUrl(const std::string &url)
{
    static const QRegularExpression form(
        QStringLiteral("\\Alocal:/*([^;?]*);0*([0-9a-f]{1,8});0*([0-9a-f]{1,8})(\\?.*)?\\z"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const std::optional<Gvcp::DescriptionFile> file = Gvcp::localFileIn(url);
    const QString text = QString::fromLatin1(url.c_str());
    const QRegularExpressionMatch match = form.match(text);
    const quint64 address = match.captured(2).toULongLong(nullptr, 16);
    const quint64 length = match.captured(3).toULongLong(nullptr, 16);
    const bool isFile =
        match.hasMatch() && length >= 1 && length <= Gvcp::mostDescription && address + length <= 0x100000000;
    FUZZ_REQUIRE(file.has_value() == isFile);
    if (!file)
        return;
    FUZZ_REQUIRE(QString::fromLatin1(file->name.data(), int(file->name.size())) == match.captured(1));
    FUZZ_REQUIRE(file->address == address && file->length == length);
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const Gvcp::Packet all(data, data + size);
    const std::optional<Gvcp::Acknowledge> acknowledge = Gvcp::acknowledgeIn(all.data(), size);
    if (acknowledge) {
        const std::size_t length = number16(data + 4);
        FUZZ_REQUIRE(length <= size - 8 && acknowledge->payload == Gvcp::Packet(data + 8, data + 8 + length));
        FUZZ_REQUIRE(std::size_t(acknowledge->command) + 1 == number16(data + 2));
        checkRecord(acknowledge->payload);
        checkRegisters(acknowledge->payload);
    }
    checkRecord(all);
    checkRegisters(all);
    checkUrl(std::string(data, data + size));
    return 0;
}
