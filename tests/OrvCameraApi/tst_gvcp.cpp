// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigelink.h"
#include "gvcpreader.h"

#include <gigeserver.h>
#include <orvtest.h>

#include <atomic>
#include <future>

using namespace OrvCameraApi;
using namespace std::chrono_literals;
using OrvTest::GigeServer;

namespace {

using Faults = GigeServer::Faults;

QByteArray hex(const Gvcp::Packet &packet)
{
    return QByteArray(reinterpret_cast<const char *>(packet.data()), int(packet.size())).toHex();
}

/** In memory of exactly its size, so that the address sanitizer sees what reads on. */
Gvcp::Packet bytes(const QByteArray &hex)
{
    const QByteArray raw = QByteArray::fromHex(hex);
    return {raw.begin(), raw.end()};
}

std::string textOf(const Gvcp::Packet &packet)
{
    return {packet.begin(), packet.end()};
}

/** Short enough for tests of what never comes, and long enough for a machine that is busy. */
constexpr GvcpPatience shortPatience{100ms, 3, 1000ms};

/** What becomes of a read; "link" if only the link may. */
QByteArray outcomeOf(GvcpReader &reader, std::uint32_t address, std::uint32_t length, void *buffer)
{
    try {
        return reader.read(buffer, address, length, UdpSocket::Clock::now() + 10s) ? "read" : "link";
    } catch (const LinkError &error) {
        return error.kind() == LinkError::Kind::Silent ? "silent" : "failed";
    }
}

} // namespace

Q_DECLARE_METATYPE(Faults)

/** The packets of the control protocol, and requests to a device. */
class TestGvcp : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_server = std::make_unique<GigeServer>(OrvTest::loopbackAddress(), std::uint16_t(0));
        QVERIFY(m_server->isOpen());
        m_client = makeClient(shortPatience);
    }

    void commands()
    {
        QCOMPARE(hex(Gvcp::discovery(0x1234, false)), QByteArray("4201000200001234"));
        QCOMPARE(hex(Gvcp::discovery(1, true)), QByteArray("4211000200000001"));
        QCOMPARE(hex(Gvcp::readRegisters(2, {0x0A00, 0x12345678})), QByteArray("420100800008000200000a0012345678"));
        QCOMPARE(hex(Gvcp::writeRegister(3, 0x0A00, 2)), QByteArray("420100820008000300000a0000000002"));
        QCOMPARE(hex(Gvcp::readMemory(4, 0x200, 512)), QByteArray("42010084000800040000020000000200"));
        const QByteArray gap(24, '0');
        QCOMPARE(hex(Gvcp::forceIp(0xFFFF, 0x0000123456789ABC, {0x0A000001, 0xFF000000, 0x0A0000FE})),
                 "420100040038ffff0000123456789abc" + gap + "0a000001" + gap + "ff000000" + gap + "0a0000fe");
    }

    void acknowledges_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<bool>("isOne");
        QTest::addColumn<QByteArray>("payload");
        QTest::newRow("nothing") << QByteArray() << false << QByteArray();
        QTest::newRow("half a header") << QByteArray("00000081000400") << false << QByteArray();
        QTest::newRow("no payload") << QByteArray("8006008100000001") << true << QByteArray();
        QTest::newRow("payload") << QByteArray("000000810004000112345678") << true << QByteArray("12345678");
        QTest::newRow("bytes behind") << QByteArray("00000081000400011234567899") << true << QByteArray("12345678");
        QTest::newRow("a byte is missing") << QByteArray("0000008100040001123456") << false << QByteArray();
        QTest::newRow("the longest length") << QByteArray("00000081ffff000112345678") << false << QByteArray();
        QTest::newRow("a command") << QByteArray("4201008000040001123456") << false << QByteArray();
        QTest::newRow("code 0") << QByteArray("0000000000000001") << false << QByteArray();
    }

    void acknowledges()
    {
        QFETCH(QByteArray, datagram);
        const Gvcp::Packet packet = bytes(datagram);
        const std::optional<Gvcp::Acknowledge> acknowledge = Gvcp::acknowledgeIn(packet.data(), packet.size());
        QTEST(acknowledge.has_value(), "isOne");
        if (!acknowledge)
            return;
        QTEST(hex(acknowledge->payload), "payload");
        QCOMPARE(acknowledge->command, Gvcp::Command::ReadRegister);
        QCOMPARE(acknowledge->id, std::uint16_t(1));
        QCOMPARE(std::uint32_t(acknowledge->status), datagram.left(4).toUInt(nullptr, 16));
    }

    void payloads()
    {
        QCOMPARE(Gvcp::registersIn(bytes("0102030405060708"), 2).value(),
                 (std::vector<std::uint32_t>{0x01020304, 0x05060708}));
        QVERIFY(!Gvcp::registersIn(bytes("0102030405060708"), 1));
        QVERIFY(!Gvcp::registersIn(bytes("01020304050607"), 2));
        QVERIFY(!Gvcp::registersIn({}, 1));
        QCOMPARE(int(Gvcp::pendingTime(bytes("0000fffe")).value()), 0xFFFE);
        QVERIFY(!Gvcp::pendingTime(bytes("0000ff")));
    }

    void deviceRecords();
    void urls();
    void requests_data();
    void requests();
    void readsAtOnce();
    void readsOfParts();
    void busyCameraIsAlive();

    void manyRegistersInFewPackets()
    {
        std::vector<std::uint32_t> addresses;
        std::vector<std::uint32_t> expected;
        for (std::uint32_t i = 0; i < 300; ++i) {
            addresses.push_back(GigeServer::FreeMemory + 4 * i);
            expected.push_back(i * 0x01010101);
            m_server->setValue(addresses.back(), expected.back());
        }
        QCOMPARE(m_client->readRegisters(addresses).value(), expected);
        QCOMPARE(m_server->count(GigeServer::ReadRegister), 3);
        QVERIFY(m_client->readRegisters({})->empty());
        addresses.back() = 0xFFFFFFFC;
        QVERIFY(!m_client->readRegisters(addresses));
        QCOMPARE(m_server->count(), 6); // a refusal is not asked again
    }

    void memory()
    {
        std::string all(5000, ' ');
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = char(i * 7 % 251);
        m_server->setMemory(GigeServer::FreeMemory, all);
        for (const auto &[length, packets] : {std::pair{0U, 0}, {1U, 1}, {536U, 1}, {537U, 2}, {5000U, 10}}) {
            m_server->clearCounts();
            QCOMPARE(textOf(m_client->readMemory(GigeServer::FreeMemory, length).value()), all.substr(0, length));
            QCOMPARE(m_server->count(GigeServer::ReadMemory), packets);
        }
    }

    void memoryThatIsNotThere()
    {
        QVERIFY(!m_client->readMemory(0xFFFFFE00, 0x400)); // its end is beyond the last address
        QVERIFY(!m_client->readMemory(GigeServer::FreeMemory + 2, 4));
        Faults faults;
        faults.cut = 1;
        m_server->setFaults(faults);
        QVERIFY(!m_client->readMemory(GigeServer::FreeMemory, 4));
    }

    void identifiersAreNeverZero()
    {
        for (int i = 0; i <= 0x10000; ++i)
            QVERIFY(m_client->nextId() != 0);
    }

    /** Datagrams that come without end do not keep anyone beyond the deadline. */
    void deadlineAmongDatagrams()
    {
        const UdpSocket socket({OrvTest::loopbackAddress(), 0});
        QVERIFY(socket.send({1}, socket.local()));
        const std::optional<Datagram> datagram = socket.receive(UdpSocket::Clock::now() + 20s);
        QVERIFY(datagram && datagram->from == socket.local() && datagram->bytes == Gvcp::Packet{1});
        QVERIFY(socket.send({2}, socket.local()));
        QVERIFY(!socket.receive(UdpSocket::Clock::now()));
        QVERIFY(socket.send(Gvcp::Packet(4000), socket.local())); // more than the protocol has
        QVERIFY(socket.send({3}, socket.local()));
        QCOMPARE(socket.receive(UdpSocket::Clock::now() + 20s)->bytes, Gvcp::Packet{2});
        QCOMPARE(socket.receive(UdpSocket::Clock::now() + 20s)->bytes, Gvcp::Packet{3});
    }

private:
    std::unique_ptr<GvcpClient> makeClient(const GvcpPatience &patience) const
    {
        return std::make_unique<GvcpClient>(0x7F000001, Endpoint{m_server->address(), m_server->port()}, patience);
    }

    std::unique_ptr<GvcpReader> makeReader()
    {
        m_isWanted = true;
        return std::make_unique<GvcpReader>(
            0x7F000001, Endpoint{m_server->address(), m_server->port()}, [this] { return m_isWanted.load(); },
            shortPatience);
    }

    std::atomic<bool> m_isWanted{true};
    std::unique_ptr<GigeServer> m_server;
    std::unique_ptr<GvcpClient> m_client;
};

void TestGvcp::deviceRecords()
{
    Gvcp::Packet payload(247, 0xE4); // no text has an end
    QVERIFY(!Gvcp::deviceRecordIn(payload));
    payload.resize(248, 0xE4);
    std::optional<Gvcp::DeviceRecord> record = Gvcp::deviceRecordIn(payload);
    QCOMPARE(record->mac, std::uint64_t(0xE4E4E4E4E4E4));
    QCOMPARE(record->ip.gateway, 0xE4E4E4E4);
    for (const auto &[text, length] : {std::pair{record->manufacturer, 32},
                                       {record->model, 32},
                                       {record->version, 32},
                                       {record->serialNumber, 16},
                                       {record->userDefinedName, 16}})
        QCOMPARE(QString::fromStdString(text), QString(length, QChar(0xE4))); // Latin-1

    const QByteArray name = QString::fromUtf8("Käse").toUtf8();
    std::fill(payload.begin() + 0xE8, payload.end(), 0);
    std::copy(name.begin(), name.end(), payload.begin() + 0xE8);
    payload[6] = 0;
    payload[7] = 1; // UTF-8
    payload.push_back('x');
    record = Gvcp::deviceRecordIn(payload);
    QCOMPARE(record->userDefinedName, name.toStdString());
    QCOMPARE(QString::fromStdString(record->model), QString(32, QChar::ReplacementCharacter));
}

void TestGvcp::urls()
{
    const auto fileIn = [](const std::string &url) {
        // A register of 512 bytes holds it, and what an earlier text has left.
        return Gvcp::localFileIn(url + std::string("\0;1;1", 5));
    };
    const std::tuple<const char *, const char *, std::uint32_t, std::uint32_t> files[] = {
        {"Local:camera.xml;200000;1a2B", "camera.xml", 0x200000, 0x1A2B},
        {"LOCAL:///Camera V1.2.ZIP;0;1?SchemaVersion=1.1.0", "Camera V1.2.ZIP", 0, 1},
        {"local:a.zip;FFFFFFFF;1", "a.zip", 0xFFFFFFFF, 1},
        {"local:a.zip;000000000010;04000000", "a.zip", 0x10, 0x4000000},
    };
    for (const auto &[url, name, address, length] : files) {
        const std::optional<Gvcp::DescriptionFile> file = fileIn(url);
        QVERIFY2(file && file->name == name && file->address == address && file->length == length, url);
        QCOMPARE(file->isArchive(), file->name != "camera.xml");
    }
    for (const char *url : {"",
                            "local:",
                            "local",
                            "ocal:a.xml;1;1",
                            "File:camera.xml;1;1",
                            "http://192.0.2.1/camera.xml",
                            "local:a.xml",
                            "local:a.xml;1",
                            "local:a.xml;;1",
                            "local:a.xml;1;",
                            "local:a.xml;1;0",
                            "local:a.xml;1;4000001", // more than 64 MiB
                            "local:a.xml;FFFFFFFF;2", // beyond the last address
                            "local:a.xml;100000000;1",
                            "local:a.xml;1;100000001",
                            "local:a.xml;0x1;1",
                            "local:a.xml;-1;1",
                            "local:a.xml;+1;1",
                            "local:a.xml; 1;1",
                            "local:a.xml;1;1;1",
                            "local:a.xml;1;1g",
                            "local:a.xml?;1;1"})
        QVERIFY2(!fileIn(url), url);
}

void TestGvcp::requests_data()
{
    QTest::addColumn<Faults>("faults");
    QTest::addColumn<QByteArray>("outcome"); // of a reader; a client knows answered or not
    QTest::addColumn<int>("packets");
    const auto row = [](const char *name, const char *outcome, int packets,
                        const std::function<void(Faults &)> &change) {
        Faults faults;
        change(faults);
        QTest::newRow(name) << faults << QByteArray(outcome) << packets;
    };
    row("two are lost", "read", 3, [](Faults &faults) { faults.lost = 2; });
    row("three are lost", "silent", 3, [](Faults &faults) { faults.lost = 3; });
    row("slow", "read", 3, [](Faults &faults) { faults.delay = 250ms; });
    row("pending", "read", 1, [](Faults &faults) {
        faults.pending = 900;
        faults.delay = 300ms; // thrice as long as a packet is waited for
    });
    row("pending for ever", "silent", 1, [](Faults &faults) {
        faults.pending = 0xFFFF;
        faults.delay = 60s;
    });
    row("pending and forgotten", "silent", 3, [](Faults &faults) {
        faults.pending = 50;
        faults.delay = 60s;
    });
    row("short", "failed", 1, [](Faults &faults) { faults.cut = 4; });
    row("busy", "failed", 1, [](Faults &faults) { faults.status = 0x8007; });
    row("denied", "link", 1, [](Faults &faults) { faults.status = 0x8006; });
    row("other request", "silent", 3, [](Faults &faults) { faults.idError = 1; });
    row("other command", "silent", 3, [](Faults &faults) { faults.commandError = 2; });
    row("other port", "silent", 3, [](Faults &faults) { faults.sender = GigeServer::Sender::OtherPort; });
}

void TestGvcp::requests()
{
    QFETCH(Faults, faults);
    QFETCH(QByteArray, outcome);
    m_server->setFaults(faults);
    const auto values = m_client->readRegisters({GigeServer::CurrentAddress, GigeServer::CurrentMask});
    QTEST(m_server->count(), "packets");
    QCOMPARE(values.has_value(), outcome == "read");
    if (values)
        QCOMPARE(*values, (std::vector<std::uint32_t>{m_server->address(), 0xFF000000}));

    const std::unique_ptr<GvcpReader> reader = makeReader();
    std::uint32_t read = 0x12345678;
    m_server->setFaults(faults);
    m_server->clearCounts();
    QCOMPARE(outcomeOf(*reader, GigeServer::CurrentMask, 4, &read), outcome);
    QTEST(m_server->count(), "packets");
    QCOMPARE(read, outcome == "read" ? 0xFFU : 0x12345678U); // in the camera's order of bytes
    QCOMPARE(reader->isCameraBusy(), faults.pending == 0xFFFF);
    m_server->setFaults({});
    QVERIFY(m_client->readRegisters({0})); // what has come too late does not disturb
    QCOMPARE(outcomeOf(*reader, GigeServer::CurrentMask, 4, &read), QByteArray("read"));
}

/** Each thread gets what it has asked for, also beside one that waits for a slow register. */
void TestGvcp::readsAtOnce()
{
    const std::unique_ptr<GvcpReader> reader = makeReader();
    Faults faults;
    faults.only = GigeServer::ReadMemory;
    faults.pending = 60'000;
    faults.delay = 500ms;
    m_server->setFaults(faults);
    const auto slow = std::async(std::launch::async, [&] {
        std::uint64_t value = 0;
        return outcomeOf(*reader, GigeServer::FreeMemory, 8, &value);
    });
    std::vector<std::future<int>> readers;
    for (std::uint32_t id = 1; id <= 4; ++id) {
        const std::uint32_t address = GigeServer::FreeMemory + 4 * id;
        m_server->setValue(address, id << 24); // the lowest byte comes last
        readers.push_back(std::async(std::launch::async, [&reader, address, id] {
            int right = 0;
            for (int i = 0; i < 100; ++i) {
                std::uint32_t value = 0;
                right += outcomeOf(*reader, address, 4, &value) == "read" && value == id ? 1 : 0;
            }
            return right;
        }));
    }
    for (std::future<int> &each : readers)
        QCOMPARE(each.get(), 100);
    QVERIFY(slow.wait_for(0s) != std::future_status::ready);
    slow.wait();
}

/** Bytes that do not begin or end where packets do, and those that are in no memory. */
void TestGvcp::readsOfParts()
{
    const std::unique_ptr<GvcpReader> reader = makeReader();
    std::string all(2000, ' ');
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = char(i * 7 % 251);
    m_server->setMemory(GigeServer::FreeMemory, all);
    for (const auto &[offset, length] : {std::pair{0U, 1U}, {3U, 2U}, {5U, 3U}, {1U, 1500U}, {7U, 0U}}) {
        std::string read(length, ' ');
        QCOMPARE(outcomeOf(*reader, GigeServer::FreeMemory + offset, length, read.data()), QByteArray("read"));
        QCOMPARE(read, all.substr(offset, length));
    }
    std::uint64_t nothing = 0;
    m_server->clearCounts();
    QCOMPARE(outcomeOf(*reader, 0xFFFFFFFC, 8, &nothing), QByteArray("failed"));
    QCOMPARE(m_server->count(), 0);
    m_isWanted = false;
    QCOMPARE(outcomeOf(*reader, 0, 4, &nothing), QByteArray("failed"));
    QCOMPARE(m_server->count(), 0);
}

void TestGvcp::busyCameraIsAlive()
{
    const auto always = [] { return true; };
    const auto cannot = [](std::uint32_t, std::uint32_t, bool, const IsWanted &) -> std::unique_ptr<CameraLink> {
        throw LinkError(LinkError::Kind::Failed, "Another library is not needed");
    };
    m_server->setDescription("<RegisterDescription/>");
    m_server->setValue(GigeServer::HeartbeatTimeout, 60'000);
    const std::unique_ptr<CameraLink> link = openGigeCamera(
        0x7F000001, {m_server->address(), m_server->port()}, always, [] {}, cannot);
    Faults faults;
    faults.answersControllerOnly = true;
    m_server->setFaults(faults);
    QVERIFY(link->isAlive());

    faults = {};
    faults.pending = 60'000;
    faults.delay = 60s; // until it has been asked twice
    m_server->setFaults(faults);
    std::uint32_t value = 0;
    QVERIFY_EXCEPTION_THROWN(link->directReader()->read(&value, 0, 4, UdpSocket::Clock::now() + 200ms), LinkError);
    m_server->clearCounts();
    auto alive = std::async(std::launch::async, [&link] { return link->isAlive(); });
    QTRY_COMPARE(m_server->count(GigeServer::ReadRegister), 2);
    m_server->setFaults({});
    QVERIFY(alive.get());
}

ORV_PLAIN_TEST_MAIN(TestGvcp)
#include "tst_gvcp.moc"
