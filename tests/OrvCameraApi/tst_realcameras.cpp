// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"

#include <fakecamera.h>
#include <gigeserver.h>
#include <orvtest.h>

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <GenApi/INodeMap.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTreeView>

#include <atomic>
#include <malloc.h>

namespace {

using namespace SimTest;
using OrvTest::FakeCamera;
using OrvTest::GigeServer;
using OrvTransports::Step;

const char description[] = R"(<RegisterDescription ModelName="Small" VendorName="Somebody" SchemaMajorVersion="1"
    SchemaMinorVersion="1" SchemaSubMinorVersion="0">
  <Category Name="Root"><pFeature>Width</pFeature><pFeature>Wide</pFeature></Category>
  <IntReg Name="Width"><Address>0x20000</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <IntReg Name="Wide"><Address>0x20000</Address><Length>8</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Port Name="Device"/>
</RegisterDescription>
)";

const char archive[] = // of one with the width only
    "UEsDBBQAAAAIAAAAIQDRc/TIAQEAAMoBAAAFAAAAZC54bWxtUdFqwzAMfM9XBP+As7FH1dCtHQzaUhLWPju2SDwSO9juWP9+iuOu"
    "FKYX6+50SIehxs6EiH6DQXkzReNsuXcah4McccWaUQ4DK09otfOZciO2Tl9Z2ageR7mXX86f0AeyrtgTK0qqLBn7IGW6ubSPSsUE"
    "ueBNRuycv5bLotq5yARM7yjjxaM4Gx174H8Y+M2Q3B82UpjsTbNkXmvtMQRR/TxXVMBvBOzQdrEXL8BzB2ulSJnDi/pMk3cI09H5"
    "KDb4bRTSBQmlnHSz6mU7oDi4ucX5qMxAYzorPm2gBzXwBGFrtZF2PuHVdAsAfieBLzlSpHlPDrTsZlwUwP/5M1H8AlBLAQIUAxQA"
    "AAAIAAAAIQDRc/TIAQEAAMoBAAAFAAAAAAAAAAAAAACAAQAAAABkLnhtbFBLBQYAAAAAAQABADMAAAAkAQAAAAA=";

constexpr std::uint32_t widthRegister = 0x20000;
constexpr int camerasAtOnce = 5;

/** A camera with that description. */
class SmallCamera : public GigeServer
{
public:
    explicit SmallCamera(std::uint32_t address = OrvTest::loopbackAddress())
        : GigeServer(address)
    {
        setDescription(description);
        setMemory(widthRegister, std::string("\0\0\1\0\0\0\0\0", 8));
    }
};

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

} // namespace

Q_DECLARE_METATYPE(GigeServer::Faults)

namespace {

class TestRealCameras : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!OrvTransports::canReachRealCameras() || !FakeCamera::isInstalled())
            QSKIP("real cameras are left out, or there is no program that stands for one");
    }

    void nothingIsLeftOver(); // the first: links to killed cameras take seconds to end
    void camerasAreListedAndEdited();
    void descriptions_data();
    void descriptions();
    void cameraOfAnotherProgram();
    void slowOrForbidden_data();
    void slowOrForbidden();
    void addresses();
    void lossIsNoticedAndHealed();
    void twoCamerasAtOnce();

private:
    OrvCam::DeviceInfo *findCamera(OrvCam::System &system, const std::string &address = {});
    void useCameras(bool areKilled);
};

/** From now on only the cameras at these addresses are asked. */
Held<OrvCam::System> systemWith(const std::vector<std::string> &addresses)
{
    OrvTransports::use(OrvTransports::Cameras::Real, {{}, addresses});
    return getSystem();
}

Held<OrvCam::System> systemWith(const GigeServer &server)
{
    return systemWith({dottedText(server.address())});
}

/** The camera at \a address, or any, once it is found; null after a while. */
OrvCam::DeviceInfo *TestRealCameras::findCamera(OrvCam::System &system, const std::string &address)
{
    OrvCam::DeviceInfo *found = nullptr;
    [&] {
        QTRY_VERIFY([&] {
            for (OrvCam::Interface *interface : interfacesOf(system)) {
                for (OrvCam::DeviceInfo *device : devicesOf(*interface))
                    found = address.empty() || address == device->GetIPAddress(nullptr) ? device : found;
            }
            return found;
        }());
    }();
    return found;
}

void TestRealCameras::camerasAreListedAndEdited()
{
    FakeCamera fake;
    const Held<OrvCam::System> system = systemWith({FakeCamera::address});
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
    QTest::newRow("in the second place") << QByteArray(description) << QByteArray("SECOND") << QByteArray();
    QTest::newRow("file") << QByteArray(description) << QByteArray("FILE:camera.xml") << QByteArray("is not fetched");
    QTest::newRow("beyond the memory") << QByteArray(description) << QByteArray("local:a.zip;FFFFFF00;80")
                                       << QByteArray("does not answer");
}

void TestRealCameras::descriptions()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, url);
    QFETCH(QByteArray, failure);
    SmallCamera server;
    server.setDescription(bytes.toStdString(), bytes.startsWith("PK") ? "camera.zip" : "camera.xml");
    if (url == "SECOND")
        server.setUrl(GigeServer::FirstUrl, "Http://example.org/camera.xml");
    if (url == "CAPITALS")
        server.setDescription(bytes.toStdString(), "CAMERA.ZIP");
    else if (url == "SECOND")
        server.setDescription(bytes.toStdString(), "camera.xml", GigeServer::SecondUrl);
    else if (!url.isEmpty())
        server.setUrl(GigeServer::FirstUrl, url.toStdString());
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    OpenCamera camera(info);
    QVERIFY(camera.device);
    if (failure.isEmpty()) {
        QTRY_COMPARE(camera.connected.load(), 1);
        QCOMPARE(camera.width()->GetValue(nullptr), 256);
        QCOMPARE(camera.width()->SetValue(0x12345678), OrvCamErr_Ok);
        QCOMPARE(server.value(widthRegister), 0x12345678U);
    } else {
        QTRY_VERIFY(QByteArray::fromStdString(OrvTransports::progressOf(*camera.device).failure).contains(failure));
        QCOMPARE(camera.connected.load(), 0);
    }
}

void TestRealCameras::cameraOfAnotherProgram()
{
    SmallCamera server;
    server.setValue(GigeServer::ControlPrivilege, 2);
    server.setValue(GigeServer::ControllerAddress, 0x7F000009);
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    QTRY_COMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadOnly));
    OpenCamera camera(info);
    QTRY_COMPARE(camera.connected.load(), 1);
    QCOMPARE(camera.width()->GetValue(nullptr), 256);
    QVERIFY(!camera.width()->IsWritable());
    QCOMPARE(camera.width()->SetValue(1), OrvCamErr_GenICamAccessError);
    const auto problems = [] { return QByteArray::fromStdString(OrvTransports::problems().front()); };
    QTRY_VERIFY(!OrvTransports::problems().empty() && problems().endsWith("another program at 127.0.0.9."));

    server.setValue(GigeServer::ControlPrivilege, 0); // the other program has ended
    QTRY_COMPARE(camera.connected.load(), 2);
    QVERIFY(camera.width()->IsWritable());
    QCOMPARE(camera.width()->SetValue(1), OrvCamErr_Ok);
    QTRY_VERIFY(OrvTransports::problems().empty());

    OrvTransports::use(OrvTransports::Cameras::Real, {{"nowhere7"}, {"camera.example"}});
    const Held<OrvCam::System> mistaken = getSystem();
    interfacesOf(*mistaken);
    QCOMPARE(OrvTransports::problems().size(), std::size_t(2));
    OrvTransports::use(OrvTransports::Cameras::Simulated);
    QVERIFY(OrvTransports::problems().empty());
}

void TestRealCameras::slowOrForbidden_data()
{
    QTest::addColumn<GigeServer::Faults>("faults");
    QTest::addColumn<bool>("isRead");
    GigeServer::Faults faults;
    faults.answersControllerOnly = true;
    QTest::newRow("for the controller only") << faults << true;
    faults = {};
    faults.only = GigeServer::ReadMemory;
    faults.delay = std::chrono::milliseconds(400);
    QTest::newRow("slow") << faults << true;
    faults.delay = std::chrono::milliseconds(1500);
    QTest::newRow("slower") << faults << false;
    faults.isSilent = true;
    QTest::newRow("silent") << faults << false;
}

/** A register that is not as the others are does not lose the camera. */
void TestRealCameras::slowOrForbidden()
{
    QFETCH(GigeServer::Faults, faults);
    QFETCH(bool, isRead);
    SmallCamera server;
    const Held<OrvCam::System> system = systemWith(server);
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    OpenCamera camera(info);
    QTRY_COMPARE(camera.connected.load(), 1);
    OrvGenParam::Array *const parameters = camera.parameters();
    server.setFaults(faults);
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = parameters->GetInt("Wide", nullptr)->GetValue(&err);
    QCOMPARE(err == OrvCamErr_Ok, isRead);
    QCOMPARE(value, isRead ? std::int64_t(256) << 32 : 0);
    server.clearCounts();
    QTRY_VERIFY(camera.width()->GetValue(&err) == 256 && err == OrvCamErr_Ok);
    QTRY_VERIFY(server.count(GigeServer::ReadRegister) > 4); // has been asked whether it lives
    QCOMPARE(camera.width()->SetValue(512), OrvCamErr_Ok);
    QCOMPARE(camera.width()->GetValue(nullptr), 512);
    QVERIFY(camera.connected == 1 && camera.disconnected == 0);
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

void TestRealCameras::lossIsNoticedAndHealed()
{
    FakeCamera fake;
    const Held<OrvCam::System> system = systemWith({FakeCamera::address});
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

    fake.stop();
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

    fake.goOn();
    QTRY_VERIFY_WITH_TIMEOUT(camera.connected == 2, 15000);
    QCOMPARE(read(), OrvCamErr_Ok);
}

void TestRealCameras::twoCamerasAtOnce()
{
    FakeCamera fake;
    const SmallCamera server(0x7F000002);
    const Held<OrvCam::System> system = systemWith({FakeCamera::address, dottedText(server.address())});
    OrvCam::DeviceInfo *const firstInfo = findCamera(*system, FakeCamera::address);
    OrvCam::DeviceInfo *const secondInfo = findCamera(*system, dottedText(server.address()));
    QVERIFY(firstInfo && secondInfo);
    OpenCamera first(firstInfo);
    OpenCamera second(secondInfo);
    QTRY_VERIFY(first.connected == 1 && second.connected == 1);
    QCOMPARE(first.width()->SetValue(128), OrvCamErr_Ok);

    fake.kill();
    int value = 0;
    QTRY_VERIFY(second.width()->SetValue(++value) != OrvCamErr_Ok || first.disconnected == 1);
    QCOMPARE(server.value(widthRegister), std::uint32_t(value));
    QVERIFY(second.connected == 1 && second.disconnected == 0);
}

/** A camera with its tree. */
class ShownCamera : public OpenCamera
{
public:
    using OpenCamera::OpenCamera;

    Step step() const { return OrvTransports::progressOf(*device).step; }

    /** Shows the features, as soon as there are any, and changes the width there. */
    bool edit(int value)
    {
        view.setParams(parameters());
        view.show();
        OrvGenParam::Int *const edited = width();
        edited->RegisterEvent(&m_sink);
        QAbstractItemModel &model = *view.treeView()->model();
        m_sink.count = 0;
        const bool isSet = model.setData(model.index(0, 1), value, Qt::EditRole) && m_sink.count == 1;
        edited->UnregisterEvent(&m_sink);
        return isSet && edited->GetValue(nullptr) == value;
    }

    OrvGui::OrvGenParamTreeView view;

private:
    Sink m_sink;
};

/** Opened, edited, killed if \a areKilled, and closed: some cameras at once. */
void TestRealCameras::useCameras(bool areKilled)
{
    std::vector<std::uint32_t> places(camerasAtOnce);
    std::generate(places.begin(), places.end(), OrvTest::loopbackAddress);
    std::vector<std::string> addresses(camerasAtOnce);
    std::transform(places.begin(), places.end(), addresses.begin(), dottedText);
    std::vector<std::unique_ptr<SmallCamera>> servers;
    const auto start = [&] {
        for (const std::uint32_t place : places)
            servers.push_back(std::make_unique<SmallCamera>(place));
    };
    start();
    const Held<OrvCam::System> system = systemWith(addresses);
    std::vector<std::unique_ptr<ShownCamera>> cameras;
    for (const std::string &address : addresses) {
        cameras.push_back(std::make_unique<ShownCamera>(findCamera(*system, address)));
        QVERIFY(cameras.back()->device);
    }
    const auto areAll = [&cameras](Step step) {
        return std::all_of(cameras.begin(), cameras.end(), [&](const auto &camera) { return camera->step() == step; });
    };
    const auto areEdited = [&cameras](int value) {
        return std::all_of(cameras.begin(), cameras.end(), [&](const auto &camera) { return camera->edit(value); });
    };
    QTRY_VERIFY(areAll(Step::Connected));
    QVERIFY(areEdited(1));
    cameras.front().reset(); // its link is no other program, nor is one that is given up
    OpenCamera(findCamera(*system, addresses.front()));
    cameras.front() = std::make_unique<ShownCamera>(findCamera(*system, addresses.front()));
    QTRY_VERIFY(areAll(Step::Connected));
    QVERIFY(areEdited(2));
    if (areKilled) {
        servers.clear();
        QVERIFY(!cameras.front()->edit(3));
        QTRY_VERIFY(areAll(Step::Lost));
        for (const auto &camera : cameras)
            camera->view.clearParams();
        cameras.pop_back();
        start();
        QTRY_VERIFY_WITH_TIMEOUT(areAll(Step::Connected), 15000);
        QVERIFY(areEdited(4));
    }
    cameras.clear();
    QTRY_VERIFY(std::all_of(servers.begin(), servers.end(),
                            [](const auto &server) { return server->value(GigeServer::ControlPrivilege) == 0; }));
}

/** Threads and files of this process, and objects of applications. */
std::vector<std::size_t> holdings()
{
    const auto count = [](const char *directory) {
        return std::size_t(QDir(QLatin1String(directory)).entryList(QDir::AllEntries | QDir::System).size());
    };
    const OrvSim::LiveObjects live = OrvSim::liveObjects();
    return {count("/proc/self/task"), count("/proc/self/fd"), live.systemReferences + live.lists + live.devices,
            live.eventCallbacks + live.sinks + live.nodeCallbacks};
}

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2(); // zeros with a sanitizer, which looks for leaks by itself
    return info.uordblks + info.hblkhd;
}

/** For as many cameras as ORV_ROUNDS says; the suite uses a handful. */
void TestRealCameras::nothingIsLeftOver()
{
    constexpr std::size_t fluctuation = 256 * 1024; // of other people's caches
    const int rounds = std::max(camerasAtOnce, qEnvironmentVariableIntValue("ORV_ROUNDS"));
    useCameras(false); // what the first use loads stays
    std::vector<std::size_t> before;
    int settled = 0;
    QTRY_VERIFY((settled = std::exchange(before, holdings()) == before ? settled + 1 : 0) >= 5);
    const std::size_t heap = heapInUse();
    for (int round = 0; round < rounds && !QTest::currentTestFailed(); round += camerasAtOnce) {
        useCameras(true);
        QTRY_COMPARE(holdings(), before);
        QVERIFY2(heapInUse() < heap + fluctuation, qPrintable(QString::number(heapInUse() - heap)));
    }
}

} // namespace

ORV_TEST_MAIN(TestRealCameras)
#include "tst_realcameras.moc"
