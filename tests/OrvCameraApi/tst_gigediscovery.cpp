// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "gigediscovery.h"

#include <gigeserver.h>
#include <orvtest.h>

#include <QElapsedTimer>

#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <algorithm>

using namespace OrvCameraApi;
using namespace std::chrono_literals;
using OrvTest::GigeServer;

namespace {

using Faults = GigeServer::Faults;

constexpr int missable = 6;

} // namespace

Q_DECLARE_METATYPE(Faults)

/** Discovery by address; nothing leaves the loopback network. */
class TestGigeDiscovery : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_first = std::make_unique<GigeServer>(OrvTest::loopbackAddress(), std::uint16_t(0));
        m_second = std::make_unique<GigeServer>(OrvTest::loopbackAddress(), m_first->port());
        QVERIFY(m_first->isOpen() && m_second->isOpen());
        m_first->setMac(1);
        m_second->setMac(2);
        m_adapter = {};
        m_adapter.name = "lo";
        m_adapter.address = OrvTest::loopbackAddress();
        m_adapter.mask = 0xFF000000;
        m_options = {};
        m_options.broadcasts = false;
        m_options.addresses = {m_first->address()};
        m_options.port = m_first->port();
        m_options.period = 60ms;
        m_options.patience = 50ms;
        m_options.missable = missable;
    }

    void cleanup()
    {
        m_discovery.reset();
        TestCase::cleanup();
    }

    void whatADeviceTells()
    {
        m_first->setText(GigeServer::manufacturer, "Somebody");
        m_first->setText(GigeServer::model, std::string(40, 'M')); // fills its field
        m_first->setText(GigeServer::version, "1.0");
        m_first->setText(GigeServer::serialNumber, "0815");
        m_first->setText(GigeServer::userDefinedName, "K\xC3\xA4se");
        m_first->setValue(GigeServer::CurrentGateway, 0x7F000001);
        look();
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
        const FoundDevice device = m_discovery->devices().front();
        Gvcp::DeviceRecord expected;
        expected.mac = 1;
        expected.ip = {m_first->address(), 0xFF000000, 0x7F000001};
        expected.manufacturer = "Somebody";
        expected.model = std::string(32, 'M');
        expected.version = "1.0";
        expected.serialNumber = "0815";
        expected.userDefinedName = "K\xC3\xA4se";
        QVERIFY(device.record == expected);
        QVERIFY((device.endpoint == Endpoint{m_first->address(), m_first->port()}));
        QVERIFY(m_discovery->refusal().empty() && !m_discovery->isSilent());

        m_first->setText(GigeServer::userDefinedName, "K\xE4se");
        m_first->setValue(GigeServer::DeviceMode, 0x80000000); // Latin-1
        m_first->setText(GigeServer::serialNumber, "");
        QTRY_VERIFY(onlyDevice().record.serialNumber.empty());
        QCOMPARE(onlyDevice().record.userDefinedName, expected.userDefinedName);
    }

    void accessStatus()
    {
        look();
        const std::vector<std::pair<std::uint32_t, std::int32_t>> rows = {
            {1, OrvCam::AccessStatusNoAccess}, // exclusive
            {2, OrvCam::AccessStatusReadOnly}, // control
            {3, OrvCam::AccessStatusNoAccess},
            {0, OrvCam::AccessStatusReadWrite},
        };
        for (const auto &[privilege, status] : rows) {
            m_first->setValue(GigeServer::ControlPrivilege, privilege);
            QTRY_COMPARE(onlyDevice().accessStatus, status);
        }
        Faults faults;
        faults.only = GigeServer::ReadRegister;
        faults.isSilent = true;
        m_first->setFaults(faults);
        QTRY_COMPARE(onlyDevice().accessStatus, std::int32_t(OrvCam::AccessStatusNoAccess));
    }

    void otherSubnet()
    {
        m_adapter.mask = 0xFFFFFFFF;
        look();
        QTRY_COMPARE(onlyDevice().accessStatus, std::int32_t(OrvCam::AccessStatusIpSubnetMismatch));
        QCOMPARE(m_first->count(GigeServer::ReadRegister), 0); // a device that cannot be reached is not asked
    }

    void twoDevices()
    {
        m_options.addresses = {m_second->address(), m_first->address()};
        look();
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(2));
        const std::vector<FoundDevice> devices = m_discovery->devices();
        QCOMPARE(devices[0].endpoint.address, m_first->address()); // by MAC address
        QCOMPARE(devices[1].endpoint.address, m_second->address());
        m_second->setMac(1); // a copy of the first
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
    }

    void lostAnswers()
    {
        look();
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
        Faults faults;
        faults.only = GigeServer::Discovery;
        faults.lost = missable / 2;
        m_first->setFaults(faults);
        m_first->clearCounts();
        bool isAlwaysThere = true;
        QTRY_VERIFY((isAlwaysThere &= m_discovery->devices().size() == 1, m_first->count(GigeServer::Discovery) > 5));
        QVERIFY(isAlwaysThere);

        faults.isSilent = true;
        m_first->clearCounts();
        m_first->setFaults(faults);
        QTRY_VERIFY(m_discovery->devices().empty());
        QVERIFY(m_first->count(GigeServer::Discovery) >= missable);
        m_first->setFaults({});
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
    }

    void strangeAnswers_data();
    void strangeAnswers();

    /** An adapter that has lost its address, or that the system does not give to us. */
    void blockedAdapter()
    {
        m_adapter.address = 0xC0000201; // of no host
        look();
        QTRY_COMPARE(m_discovery->refusal(), std::string("The adapter has another address now"));
        QVERIFY(m_discovery->devices().empty());
        QCOMPARE(m_first->count(), 0);
    }

    void lookNow()
    {
        m_options.period = 60s;
        look();
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
        m_first->setText(GigeServer::version, "2.0");
        m_discovery->lookNow();
        QTRY_COMPARE(onlyDevice().record.version, std::string("2.0"));
    }

    /** Neither the pause between two rounds nor a round that waits for answers keeps the end. */
    void endsAtOnce()
    {
        QElapsedTimer timer;
        timer.start();
        m_options.period = 60s;
        look();
        QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
        m_options.patience = 60s;
        look();
        QTRY_VERIFY(m_first->count(GigeServer::Discovery) == 2);
        m_discovery.reset();
        QVERIFY(timer.elapsed() < 50'000);
    }

private:
    void look() { m_discovery = std::make_unique<GigeDiscovery>(m_adapter, m_options); }

    FoundDevice onlyDevice() const
    {
        const std::vector<FoundDevice> devices = m_discovery->devices();
        return devices.size() == 1 ? devices.front() : FoundDevice{};
    }

    std::unique_ptr<GigeServer> m_first;
    std::unique_ptr<GigeServer> m_second;
    NetAdapter m_adapter;
    GigeDiscovery::Options m_options;
    std::unique_ptr<GigeDiscovery> m_discovery;
};

void TestGigeDiscovery::strangeAnswers_data()
{
    QTest::addColumn<Faults>("faults");
    const auto row = [](const char *name, const std::function<void(Faults &)> &change) {
        Faults faults;
        change(faults);
        QTest::newRow(name) << faults;
    };
    row("other port", [](Faults &faults) { faults.sender = GigeServer::Sender::OtherPort; });
    row("other request", [](Faults &faults) { faults.idError = 0x8000; });
    row("other command", [](Faults &faults) { faults.commandError = 2; });
}

void TestGigeDiscovery::strangeAnswers()
{
    QFETCH(Faults, faults);
    m_first->setFaults(faults);
    look();
    QTRY_VERIFY(m_first->count(GigeServer::Discovery) >= 3);
    QVERIFY(m_discovery->devices().empty());
    m_first->setFaults({});
    QTRY_COMPARE(m_discovery->devices().size(), std::size_t(1));
}

ORV_PLAIN_TEST_MAIN(TestGigeDiscovery)
#include "tst_gigediscovery.moc"
