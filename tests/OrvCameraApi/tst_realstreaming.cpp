// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"
#include "streamtest.h"

#include <fakecamera.h>
#include <orvtest.h>

#include <OrvCameraApi/transports.h>

#include <algorithm>
#include <vector>

namespace {

using namespace SimTest;
using OrvStreams::Frame;
using OrvStreams::State;
using OrvStreams::Stream;
using OrvTest::FakeCamera;
using OrvTransports::Step;

class TestRealStreaming : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!OrvTransports::canReachRealCameras() || !FakeCamera::isInstalled())
            QSKIP("real cameras are left out, or there is no program that stands for one");
        OrvTransports::use(OrvTransports::Cameras::Real, {{}, {FakeCamera::address}});
    }

    void pictures();
    void oneStreamOfACamera();
    void packetsThatGetLost();
    void buffersInUse();
    void lossAndReturn();
    void releaseWhileRunning();
};

bool isConnected(OrvCam::Device &device, int timeout = 5000)
{
    return QTest::qWaitFor([&] { return OrvTransports::progressOf(device).step == Step::Connected; }, timeout);
}

/** The camera once it is found, connected. */
Held<OrvCam::Device> openCamera()
{
    const Held<OrvCam::System> system = getSystem();
    OrvCam::DeviceInfo *info = nullptr;
    const bool isFound = QTest::qWaitFor([&] {
        for (OrvCam::Interface *interface : interfacesOf(*system)) {
            for (OrvCam::DeviceInfo *device : devicesOf(*interface))
                info = device;
        }
        return info != nullptr;
    });
    Held<OrvCam::Device> device(isFound ? OrvCam_CreateDevice(info, OrvCam::DeviceAccessControl, nullptr) : nullptr);
    return device && isConnected(*device) ? std::move(device) : nullptr;
}

#define OPEN(camera)                                                                                                   \
    Held<OrvCam::Device> camera##Device = openCamera();                                                                \
    QVERIFY(camera##Device);                                                                                           \
    StreamedCamera camera(std::move(camera##Device));

void TestRealStreaming::pictures()
{
    const FakeCamera fake;
    OPEN(camera)
    camera.stream->start();
    std::vector<std::shared_ptr<const Frame>> frames;
    QVERIFY(QTest::qWaitFor([&] {
        if (std::shared_ptr<const Frame> frame = camera.stream->take())
            frames.push_back(std::move(frame));
        return frames.size() == 3;
    }));
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("1"));
    QCOMPARE(frames[0]->pixelFormat, 0x01080001U);
    QCOMPARE(frames[0]->width, 512U);
    QCOMPARE(frames[0]->height, 512U);
    QCOMPARE(frames[0]->size, std::size_t(512 * 512));
    QVERIFY(frames[2]->number >= 2 && frames[2]->number > frames[1]->number);
    QVERIFY(!std::equal(frames[0]->data, frames[0]->data + frames[0]->size, frames[1]->data)); // it moves
    camera.stream->stop();
    QVERIFY(camera.stops());
    QCOMPARE(camera.stream->failure(), std::string());
    QCOMPARE(camera.stream->statistics().lost, 0ULL);
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("0"));

    camera.set("Width", "256");
    camera.set("PixelFormat", "Mono16");
    const std::shared_ptr<const Frame> frame = camera.picture();
    QVERIFY2(frame, camera.stream->failure().c_str());
    QCOMPARE(frame->size, std::size_t(256 * 512 * 2));
    QCOMPARE(frame->number, std::uint64_t(0));
    QCOMPARE(camera.text("AcquisitionMode"), QByteArray("Continuous"));
    camera.set("Width", "512");
    camera.set("PixelFormat", "Mono8");
}

void TestRealStreaming::oneStreamOfACamera()
{
    const FakeCamera fake;
    OPEN(first)
    OPEN(second)
    first.stream->start();
    QVERIFY(first.receives());
    QVERIFY(!second.picture());
    QCOMPARE(second.stream->failure(), std::string("The pictures of this camera are shown elsewhere already"));
    QVERIFY(first.receives(3));
    second.device.reset();
    QVERIFY(first.receives(3));
}

void TestRealStreaming::packetsThatGetLost()
{
    const FakeCamera fake({QStringLiteral("-r"), QStringLiteral("100")}); // of 1000; a picture has 181
    OPEN(camera)
    camera.stream->start(4);
    QVERIFY(camera.stops(15000));
    const OrvStreams::Statistics statistics = camera.stream->statistics();
    QVERIFY(statistics.lost > 0);
    QVERIFY(statistics.received + statistics.lost >= 4);
}

void TestRealStreaming::buffersInUse()
{
    const FakeCamera fake;
    OPEN(camera)
    std::vector<std::shared_ptr<const Frame>> kept;
    camera.stream->start();
    const auto keep = [&] {
        if (std::shared_ptr<const Frame> frame = camera.stream->take())
            kept.push_back(std::move(frame));
    };
    QVERIFY(QTest::qWaitFor([&] {
        keep();
        return camera.stream->statistics().lost > 0;
    }));
    const std::uint64_t number = kept.back()->number;
    kept.clear();
    QVERIFY(camera.receives());
    keep();
    QVERIFY(!kept.empty() && kept.back()->number > number + 1);
    QVERIFY(camera.stream->statistics().lost < 100); // frames, which have 181 packets each
    camera.stream.reset();
    QVERIFY(*std::max_element(kept.back()->data, kept.back()->data + kept.back()->size) > 0); // longer than the stream
}

void TestRealStreaming::lossAndReturn()
{
    FakeCamera fake;
    OPEN(camera)
    camera.stream->start();
    QVERIFY(camera.receives());
    fake.kill();
    QVERIFY(camera.stops(15000));
    QCOMPARE(camera.stream->failure(), std::string("The connection to the camera was lost"));
    QVERIFY(!camera.picture());
    QCOMPARE(camera.stream->failure(), std::string("The camera is not connected"));
    fake.start();
    QVERIFY(isConnected(*camera.device, 15000));
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("0"));
    QVERIFY2(camera.picture(), camera.stream->failure().c_str());
}

void TestRealStreaming::releaseWhileRunning()
{
    const FakeCamera fake;
    for (int round = 0; round < 3; ++round) {
        OPEN(camera)
        camera.stream->start();
        if (round != 0)
            QVERIFY(camera.receives());
        camera.device.reset();
        QCOMPARE(camera.stream->state(), State::Stopped);
    }
    OPEN(next)
    QVERIFY2(next.picture(), next.stream->failure().c_str());
}

} // namespace

ORV_PLAIN_TEST_MAIN(TestRealStreaming)

#include "tst_realstreaming.moc"
