#include "simtest.h"

#include <fakecamera.h>
#include <gigeserver.h>
#include <orvtest.h>

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <GenApi/INodeMap.h>

#include <QElapsedTimer>

#include <atomic>

namespace {

using namespace SimTest;
using OrvTest::FakeCamera;
using OrvTest::GigeServer;
using OrvTransports::Step;

const char description[] = R"(<RegisterDescription ModelName="Small" VendorName="Somebody" SchemaMajorVersion="1"
    SchemaMinorVersion="1" SchemaSubMinorVersion="0">
  <Category Name="Root"><pFeature>Width</pFeature></Category>
  <IntReg Name="Width"><Address>0x20000</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Port Name="Device"/>
</RegisterDescription>
)";

const char archive[] = // of it
    "UEsDBBQAAAAIAAAAIQDRc/TIAQEAAMoBAAAFAAAAZC54bWxtUdFqwzAMfM9XBP+As7FH1dCtHQzaUhLWPju2SDwSO9juWP9+iuOu"
    "FKYX6+50SIehxs6EiH6DQXkzReNsuXcah4McccWaUQ4DK09otfOZciO2Tl9Z2ageR7mXX86f0AeyrtgTK0qqLBn7IGW6ubSPSsUE"
    "ueBNRuycv5bLotq5yARM7yjjxaM4Gx174H8Y+M2Q3B82UpjsTbNkXmvtMQRR/TxXVMBvBOzQdrEXL8BzB2ulSJnDi/pMk3cI09H5"
    "KDb4bRTSBQmlnHSz6mU7oDi4ucX5qMxAYzorPm2gBzXwBGFrtZF2PuHVdAsAfieBLzlSpHlPDrTsZlwUwP/5M1H8AlBLAQIUAxQA"
    "AAAIAAAAIQDRc/TIAQEAAMoBAAAFAAAAAAAAAAAAAACAAQAAAABkLnhtbFBLBQYAAAAAAQABADMAAAAkAQAAAAA=";

/** The camera as an application has it, with its events counted. */
class OpenCamera
{
public:
    explicit OpenCamera(OrvCam::DeviceInfo *info)
        : device(OrvCam_CreateDevice(info, OrvCam::DeviceAccessControl, &err))
    {
        if (device) {
            device->RegisterEvent(OrvCam::EventDeviceConnected, count, &connected);
            device->RegisterEvent(OrvCam::EventDeviceDisconnected, count, &disconnected);
        }
    }

    OrvGenParam::Array *parameters() { return device->GetCameraParameters(nullptr); }
    OrvGenParam::Int *width() { return parameters()->GetInt("Width", nullptr); }

    std::atomic<int> connected{0};
    std::atomic<int> disconnected{0};
    OrvCamErr err = OrvCamErr_Ok;
    const Held<OrvCam::Device> device;

private:
    static void count(const void *, unsigned long, void *counter) { ++*static_cast<std::atomic<int> *>(counter); }
};

std::string dottedText(std::uint32_t address)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(address >> 24)
        .arg(address >> 16 & 0xFF)
        .arg(address >> 8 & 0xFF)
        .arg(address & 0xFF)
        .toStdString();
}

class TestRealCameras : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!OrvTransports::canReachRealCameras() || !FakeCamera::isInstalled())
            QSKIP("real cameras are left out, or there is no program that stands for one");
    }

    void camerasAreListedAndEdited();
    void descriptions_data();
    void descriptions();
    void cameraOfAnotherProgram();
    void closedAndOpenedAgain();
    void addresses();
    void lossIsNoticedAndHealed_data();
    void lossIsNoticedAndHealed();

private:
    OrvCam::DeviceInfo *findCamera(OrvCam::System &system);
};

/** From now on only the camera at \a address is asked. */
Held<OrvCam::System> systemWith(const std::string &address)
{
    OrvTransports::use(OrvTransports::Cameras::Real, {{}, {address}});
    return getSystem();
}

Held<OrvCam::System> systemWith(const GigeServer &server)
{
    return systemWith(dottedText(server.address()));
}

/** The camera, once it is found; null after a while. */
OrvCam::DeviceInfo *TestRealCameras::findCamera(OrvCam::System &system)
{
    OrvCam::DeviceInfo *found = nullptr;
    [&] {
        QTRY_VERIFY([&] {
            for (OrvCam::Interface *interface : interfacesOf(system)) {
                for (OrvCam::DeviceInfo *device : devicesOf(*interface))
                    found = device;
            }
            return found;
        }());
    }();
    return found;
}

void TestRealCameras::camerasAreListedAndEdited()
{
    FakeCamera fake;
    const Held<OrvCam::System> system = systemWith(FakeCamera::address);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    QCOMPARE(info->GetModel(), "Fake");
    QCOMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadWrite));
    QCOMPARE(info->GetIPAddress(nullptr), FakeCamera::address);

    QElapsedTimer clock;
    clock.start();
    OpenCamera camera(info);
    QVERIFY(camera.device);
    QVERIFY2(clock.elapsed() < 500, "opening has waited for the network");
    QTRY_COMPARE(camera.connected.load(), 1);
    QVERIFY(OrvTransports::progressOf(*camera.device).step == Step::Connected);
    QCOMPARE(camera.width()->SetValue(256), OrvCamErr_Ok);
    QCOMPARE(camera.width()->GetValue(nullptr), 256);
    QCOMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadWrite));
    OpenCamera second(info);
    QVERIFY(second.parameters());
    QCOMPARE(second.width()->GetValue(nullptr), 256);
}

void TestRealCameras::descriptions_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("url"); // empty: where the bytes are
    QTest::addColumn<QByteArray>("failure");
    const QByteArray zip = QByteArray::fromBase64(archive);
    QTest::newRow("plain") << QByteArray(description) << QByteArray() << QByteArray();
    QTest::newRow("archive") << zip << QByteArray() << QByteArray();
    QTest::newRow("capitals") << zip << QByteArray("CAPITALS") << QByteArray();
    QTest::newRow("damaged archive") << zip.left(200) << QByteArray() << QByteArray("ZIP archive");
    QTest::newRow("web") << QByteArray(description) << QByteArray("Http://example.org/camera.xml")
                         << QByteArray("is not fetched from elsewhere: \"Http://example.org/camera.xml\"");
    QTest::newRow("file") << QByteArray(description) << QByteArray("FILE:camera.xml") << QByteArray("is not fetched");
    QTest::newRow("beyond the memory") << QByteArray(description) << QByteArray("local:a.zip;FFFFFF00;80")
                                       << QByteArray("does not answer");
}

void TestRealCameras::descriptions()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, failure);
    GigeServer server(OrvTest::loopbackAddress());
    server.setDescription(bytes.toStdString(), bytes.startsWith("PK") ? "camera.zip" : "camera.xml");
    if (url == "CAPITALS")
        server.setDescription(bytes.toStdString(), "CAMERA.ZIP");
    else if (!url.isEmpty())
        server.setUrl(GigeServer::FirstUrl, url.toStdString());
    server.setMemory(0x20000, std::string("\0\0\1\0", 4));
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    OpenCamera camera(info);
    QVERIFY(camera.device);
    if (failure.isEmpty()) {
        QTRY_COMPARE(camera.connected.load(), 1);
        QCOMPARE(camera.width()->GetValue(nullptr), 256);
        QCOMPARE(camera.width()->SetValue(0x12345678), OrvCamErr_Ok);
        QCOMPARE(server.value(0x20000), 0x12345678U);
    } else {
        QTRY_VERIFY(QByteArray::fromStdString(OrvTransports::progressOf(*camera.device).failure).contains(failure));
        QCOMPARE(camera.connected.load(), 0);
    }
}

void TestRealCameras::cameraOfAnotherProgram()
{
    GigeServer server(OrvTest::loopbackAddress());
    server.setDescription(description);
    server.setMemory(0x20000, std::string("\0\0\1\0", 4));
    server.setValue(GigeServer::ControlPrivilege, 2);
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    QTRY_COMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadOnly));
    OpenCamera camera(info);
    QTRY_COMPARE(camera.connected.load(), 1);
    QCOMPARE(camera.width()->GetValue(nullptr), 256);
    QVERIFY(!camera.width()->IsWritable());
    QCOMPARE(camera.width()->SetValue(1), OrvCamErr_GenICamAccessError);

    server.setValue(GigeServer::ControlPrivilege, 0); // the other program has ended
    QTRY_COMPARE(camera.connected.load(), 2);
    QVERIFY(camera.width()->IsWritable());
    QCOMPARE(camera.width()->SetValue(1), OrvCamErr_Ok);
}

/** The link that is being closed is no other program. */
void TestRealCameras::closedAndOpenedAgain()
{
    GigeServer server(OrvTest::loopbackAddress());
    server.setDescription(description);
    server.setMemory(0x20000, std::string(4, '\0'));
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    for (int i = 1; i < 4; ++i) {
        OpenCamera camera(info);
        QVERIFY(camera.device);
        QTRY_VERIFY(camera.parameters());
        QCOMPARE(camera.width()->SetValue(i), OrvCamErr_Ok);
    }
}

void TestRealCameras::addresses()
{
    GigeServer server(OrvTest::loopbackAddress());
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(info->ForceIP(0x0A000001, 0xFF000000, 0x0A0000FE), OrvCamErr_Ok);
    QCOMPARE(info->GetIPAddress(nullptr), "10.0.0.1");
    QCOMPARE(info->GetGateway(nullptr), "10.0.0.254");
    QCOMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusIpSubnetMismatch));
    QVERIFY(!OpenCamera(info).device);
    GigeServer::Faults faults;
    faults.isSilent = true;
    server.setFaults(faults);
    QCOMPARE(info->ForceIP(0x7F000002, 0xFF000000, 0), OrvCamErr_NoDevice);
    QVERIFY(clock.elapsed() < 1000);
}

void TestRealCameras::lossIsNoticedAndHealed_data()
{
    QTest::addColumn<bool>("isKilled");
    QTest::newRow("stopped and continued") << false;
    QTest::newRow("killed and started again") << true;
}

void TestRealCameras::lossIsNoticedAndHealed()
{
    QFETCH(bool, isKilled);
    FakeCamera fake;
    const Held<OrvCam::System> system = systemWith(FakeCamera::address);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    OpenCamera camera(info);
    QTRY_VERIFY(camera.connected == 1);
    OrvGenParam::Int *const width = camera.width();
    GenApi::INodeMap *const nodeMap = camera.parameters()->GetNodeMap();
    const auto read = [width, nodeMap] {
        OrvCamErr err = OrvCamErr_Ok;
        nodeMap->InvalidateNodes();
        width->GetValue(&err);
        return err;
    };
    QCOMPARE(read(), OrvCamErr_Ok);

    isKilled ? fake.kill() : fake.stop();
    QElapsedTimer clock;
    clock.start();
    qint64 longest = 0;
    while (camera.disconnected == 0 && clock.elapsed() < 10000) {
        const qint64 before = clock.elapsed();
        read();
        longest = std::max(longest, clock.elapsed() - before);
        QTest::qWait(10);
    }
    QCOMPARE(camera.disconnected.load(), 1);
    QVERIFY2(clock.elapsed() < 4000, "the loss was noticed too late");
    QVERIFY2(longest < 1500, "an access has waited too long");
    QVERIFY(OrvTransports::progressOf(*camera.device).step == Step::Lost);
    QCOMPARE(read(), OrvCamErr_NoDevice);

    isKilled ? fake.start() : fake.goOn();
    QTRY_VERIFY_WITH_TIMEOUT(camera.connected == 2, 15000);
    QCOMPARE(read(), OrvCamErr_Ok);
}

} // namespace

ORV_TEST_MAIN(TestRealCameras)
#include "tst_realcameras.moc"
