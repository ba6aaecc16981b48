#include "simtest.h"

#include <fakecamera.h>
#include <orvtest.h>

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <GenApi/INodeMap.h>

#include <QElapsedTimer>

#include <atomic>

namespace {

using namespace SimTest;
using OrvTest::FakeCamera;
using OrvTransports::Step;

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

class TestRealCameras : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!OrvTransports::canReachRealCameras() || !FakeCamera::isInstalled())
            QSKIP("real cameras are left out, or there is no program that stands for one");
        OrvTransports::use(OrvTransports::Cameras::Real, {{}, {FakeCamera::address}});
    }

    void camerasAreListedAndEdited();
    void lossIsNoticedAndHealed_data();
    void lossIsNoticedAndHealed();

private:
    OrvCam::DeviceInfo *findCamera(OrvCam::System &system);
};

/** The fake camera, once it is found; null after a while. */
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
    const Held<OrvCam::System> system = getSystem();
    OrvCam::DeviceInfo *const info = findCamera(*system);
    QVERIFY(info);
    QCOMPARE(info->GetModel(), "Fake");
    QCOMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadWrite));
    QCOMPARE(info->GetIPAddress(nullptr), FakeCamera::address);

    QElapsedTimer clock;
    clock.start();
    OpenCamera camera(info);
    QVERIFY(camera.device);
    QVERIFY2(clock.elapsed() < 200, "opening has waited for the network");
    QTRY_COMPARE(camera.connected.load(), 1);
    QVERIFY(OrvTransports::progressOf(*camera.device).step == Step::Connected);
    QCOMPARE(camera.width()->SetValue(256), OrvCamErr_Ok);
    QCOMPARE(camera.width()->GetValue(nullptr), 256);
    QCOMPARE(info->GetAccessStatus(), std::int32_t(OrvCam::AccessStatusReadWrite));
    OpenCamera second(info);
    QVERIFY(second.parameters());
    QCOMPARE(second.width()->GetValue(nullptr), 256);
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
    const Held<OrvCam::System> system = getSystem();
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
    QVERIFY2(longest < 1200, "an access has waited too long");
    QVERIFY(OrvTransports::progressOf(*camera.device).step == Step::Lost);
    QCOMPARE(read(), OrvCamErr_NoDevice);

    isKilled ? fake.start() : fake.goOn();
    QTRY_VERIFY_WITH_TIMEOUT(camera.connected == 2, 15000);
    QCOMPARE(read(), OrvCamErr_Ok);
}

} // namespace

ORV_TEST_MAIN(TestRealCameras)
#include "tst_realcameras.moc"
