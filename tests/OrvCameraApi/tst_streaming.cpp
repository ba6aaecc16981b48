// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"
#include "streamtest.h"

#include <orvtest.h>

#include <GenApi/GenApi.h>

#include <atomic>
#include <cmath>
#include <functional>
#include <numeric>
#include <thread>

using Change = std::function<bool(const OrvStreams::Frame &before, const OrvStreams::Frame &after)>;
Q_DECLARE_METATYPE(Change)

namespace {

using namespace SimTest;
using OrvStreams::Frame;
using OrvStreams::State;
using OrvStreams::Stream;

const char plainCamera[] = R"(<RegisterDescription ModelName="Plain" VendorName="Somebody" SchemaMajorVersion="1"
    SchemaMinorVersion="1" SchemaSubMinorVersion="0">
  <Category Name="Root"><pFeature>Width</pFeature></Category>
  <IntReg Name="Width"><Address>0x10</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <IntReg Name="Height"><Address>0x14</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <IntReg Name="PixelFormat"><Address>0x18</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <FloatReg Name="AcquisitionFrameRate"><Address>0x1C</Address><Length>4</Length><AccessMode>RW</AccessMode>
    <pPort>Device</pPort><Endianess>BigEndian</Endianess></FloatReg>
  <IntReg Name="RateBits"><Address>0x1C</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Command Name="AcquisitionStart"><pValue>Acquisition</pValue><CommandValue>1</CommandValue></Command>
  <Command Name="AcquisitionStop"><pValue>Acquisition</pValue><CommandValue>0</CommandValue></Command>
  <IntReg Name="Acquisition"><Address>0x20</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Enumeration Name="TestPattern"><EnumEntry Name="HorizontalRamp"><Value>0</Value></EnumEntry><Value>0</Value>
  </Enumeration>
  <Port Name="Device"/>
</RegisterDescription>)";
constexpr const char *plain = "PLAIN";

/** A simulated camera that is open, and its stream. */
struct Camera : StreamedCamera
{
    explicit Camera(const char *id)
        : StreamedCamera(open(id))
    {
    }
};

double mean(const Frame &frame)
{
    return std::accumulate(frame.data, frame.data + frame.size, 0.0) / double(frame.size);
}

/** The bits of component \a i of a line, by the facts of its format. */
unsigned component(const Frame &frame, const QByteArray &kind, unsigned bits, std::size_t i)
{
    const std::uint8_t *const data = frame.data;
    unsigned value = 0;
    if (kind == "p") {
        for (std::size_t bit = 0; bit < bits; ++bit)
            value |= (data[(i * bits + bit) / 8] >> ((i * bits + bit) % 8) & 1U) << bit;
    } else if (kind == "Packed") {
        const std::uint8_t *const pair = data + i / 2 * 3;
        value = unsigned(pair[i % 2 * 2]) << (bits - 8) | (pair[1] >> (i % 2 * 4) & ((1U << (bits - 8)) - 1));
    } else {
        value = bits == 8 ? data[i] : data[2 * i] | unsigned(data[2 * i + 1]) << 8;
    }
    return value;
}

class TestStreaming : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
        OrvSim::DeviceSpec spec = OrvSim::cameraFromText(plainCamera);
        spec.name = plain;
        spec.id = plain;
        spec.powerUp = "set Width 301\nset Height 3\nset PixelFormat 17301505\nset AcquisitionFrameRate 200";
        QVERIFY(OrvSim::addDevice("ORV-CL-0", spec));
    }

    void knobs_data();
    void knobs();
    void formats_data();
    void formats();
    void sizes_data();
    void sizes();
    void featuresAreLockedMeanwhile();
    void countedRuns();
    void rates();
    void oneStreamOfACamera();
    void buffersInUse();
    void lossAndReturn();
    void releaseWhileRunning();
    void lossWhileStarting();
    void cameraThatHangs();
    void listener();
    void startsAndStopsFromThreads();
    void registersThatChangeMeanwhile();
};

void TestStreaming::knobs_data()
{
    const Change brighter = [](const Frame &a, const Frame &b) { return mean(b) > mean(a) + 2; };
    const Change darker = [](const Frame &a, const Frame &b) { return mean(b) < mean(a) - 1; };
    QTest::addColumn<QByteArray>("camera");
    QTest::addColumn<QByteArrayList>("entries");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *camera, const QByteArrayList &entries, const Change &change) {
        QTest::newRow(entries.join(' ').constData()) << QByteArray(camera) << entries << change;
    };
    row(monochrome, {"ExposureTime=20000"}, brighter);
    row(monochrome, {"ExposureTime=10"}, darker);
    row(monochrome, {"Gain=12"}, brighter);
    row(monochrome, {"BlackLevel=255"}, brighter);
    row(monochrome, {"ReverseX=1"}, [](const Frame &a, const Frame &b) {
        return std::equal(a.data, a.data + a.width, std::make_reverse_iterator(b.data + b.width));
    });
    row(monochrome, {"ReverseY=1"},
        [](const Frame &a, const Frame &b) { return std::equal(a.data, a.data + a.width, b.data + b.size - b.width); });
    row(monochrome, {"Width=640", "OffsetX=320", "Height=400", "OffsetY=128"}, [](const Frame &a, const Frame &b) {
        const std::uint8_t *const corner = a.data + 128 * a.width + 320;
        return b.width == 640 && b.height == 400 && std::equal(corner, corner + 640, b.data);
    });
    row(monochrome, {"TestPattern=GreyVerticalRamp"},
        [](const Frame &, const Frame &b) { return b.data[b.size - 1] == 255 && b.data[b.width] == 1; });
    row(twoFrame, {"Frame_DecimationMode=Averaging"}, [](const Frame &a, const Frame &b) {
        return b.width == 960 && b.height == 540 && b.data[2] == a.data[4] && b.data[800] == a.data[1600];
    });
    row(twoFrame, {"Frame_ExposureLines=0"}, darker);
    row(twoFrame, {"Frame_AnalogGain=x8"}, brighter);
    row(twoFrame, {"Frame_DigitalCourseGain=2"}, brighter);
    row(twoFrame, {"Frame_DigitalFineGain=-32"}, darker);
    row(twoFrame, {"Frame_BlackLevel=500"}, brighter);
    row(twoFrame, {"RedCoefficient=800"}, brighter);
    row(twoFrame, {"BlueCoefficient=0"}, darker);
    row(twoFrame, {"FrameAB_Selector=FrameB"}, [](const Frame &, const Frame &b) { return b.width == 640; });
}

void TestStreaming::knobs()
{
    QFETCH(QByteArray, camera);
    QFETCH(QByteArrayList, entries);
    QFETCH(Change, change);
    const Camera open(camera.constData());
    const std::shared_ptr<const Frame> before = open.picture();
    QVERIFY2(before, open.stream->failure().c_str());
    QVERIFY(mean(*before) > 30 && mean(*before) < 200);
    for (const QByteArray &entry : entries)
        open.set(entry.left(entry.indexOf('=')).constData(), entry.mid(entry.indexOf('=') + 1).constData());
    const std::shared_ptr<const Frame> after = open.picture();
    QVERIFY(after);
    QVERIFY(change(*before, *after));
}

void TestStreaming::formats_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<unsigned>("bits");
    QTest::addColumn<std::uint32_t>("first");
    QTest::addColumn<std::uint32_t>("last");
    const auto row = [](const char *name, const char *kind, unsigned bits, std::uint32_t first,
                        std::uint32_t last = 0) {
        QTest::newRow(name) << QByteArray(kind) << bits << first << std::max(first, last);
    };
    row("Mono8", "", 8, 0x01080001);
    row("Mono10", "", 10, 0x01100003);
    row("Mono12", "", 12, 0x01100005);
    row("Mono16", "", 16, 0x01100007);
    row("Mono10p", "p", 10, 0x010A0046);
    row("Mono12p", "p", 12, 0x010C0047);
    row("Mono10Packed", "Packed", 10, 0x010C0004);
    row("Mono12Packed", "Packed", 12, 0x010C0006);
    row("Bayer8", "", 8, 0x01080008, 0x0108000B);
    row("Bayer10", "", 10, 0x0110000C, 0x0110000F);
    row("Bayer12", "", 12, 0x01100010, 0x01100013);
    row("Bayer16", "", 16, 0x0110002E, 0x01100031);
    row("BayerGR10p", "p", 10, 0x010A0056);
    row("BayerRG12p", "p", 12, 0x010C0059);
    row("Bayer10Packed", "Packed", 10, 0x010C0026, 0x010C0029);
    row("Bayer12Packed", "Packed", 12, 0x010C002A, 0x010C002D);
    row("RGB8", "RGB", 8, 0x02180014, 0x02180015);
    row("YUV422_8", "YUYV", 8, 0x02100032);
    row("YUV422_8_UYVY", "UYVY", 8, 0x0210001F);
}

/** A grey ramp of an odd width, over three lines. */
void TestStreaming::formats()
{
    QFETCH(QByteArray, kind);
    QFETCH(unsigned, bits);
    QFETCH(std::uint32_t, first);
    QFETCH(std::uint32_t, last);
    const Camera camera(plain);
    for (std::uint32_t format = first; format <= last; ++format) {
        camera.set("PixelFormat", QByteArray::number(format).constData());
        const std::shared_ptr<const Frame> frame = camera.picture();
        QVERIFY2(frame, camera.stream->failure().c_str());
        QCOMPARE(frame->pixelFormat, format);
        QCOMPARE(frame->width, 301U);
        QCOMPARE(frame->size, std::size_t((301U * 3U * (format >> 16 & 0xFF) + 7) / 8));
        for (std::size_t i = 0; i < 903; ++i) {
            const auto grey = unsigned(std::lround(double(i % 301 % 256) / 255 * double((1U << bits) - 1)));
            if (kind == "RGB") {
                for (const std::size_t channel : {0U, 1U, 2U})
                    QCOMPARE(unsigned(frame->data[3 * i + channel]), grey);
            } else if (kind.size() == 4) {
                const std::size_t luma = kind == "YUYV" ? 0 : 1;
                QCOMPARE(unsigned(frame->data[2 * i + luma]), grey);
                QCOMPARE(unsigned(frame->data[2 * i + 1 - luma]), 128U);
            } else {
                QCOMPARE(component(*frame, kind, bits, i), grey);
            }
        }
    }
}

void TestStreaming::sizes_data()
{
    QTest::addColumn<QByteArray>("feature");
    QTest::addColumn<QByteArray>("value"); // empty: reading fails
    QTest::addColumn<QByteArray>("failure");
    QTest::newRow("no width") << QByteArray("Width") << QByteArray("0") << QByteArray("Width is 0");
    QTest::newRow("too wide") << QByteArray("Width") << QByteArray("4294967295") << QByteArray("Width is 4294967295");
    QTest::newRow("too many") << QByteArray("Height") << QByteArray("65536") << QByteArray();
    QTest::newRow("unreadable") << QByteArray("Height") << QByteArray() << QByteArray("Height cannot be read");
    QTest::newRow("unknown") << QByteArray("PixelFormat") << QByteArray("7") << QByteArray("format 7 is not simulated");
}

void TestStreaming::sizes()
{
    QFETCH(QByteArray, feature);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, failure);
    const Camera camera(plain);
    if (value.isEmpty())
        QVERIFY(OrvSim::setFault(plain, feature.constData(), OrvSim::Fault::FailRead));
    else
        camera.set(feature.constData(), value.constData());
    const std::shared_ptr<const Frame> frame = camera.picture();
    const QByteArray told = QByteArray::fromStdString(camera.stream->failure());
    QVERIFY2(failure.isEmpty() ? frame && told.isEmpty() : told.contains(failure), told.constData());
    if (failure.isEmpty()) { // 301 x 65536; four times that is too much
        camera.set("Width", "65536");
        QVERIFY(!camera.picture());
        QVERIFY(QByteArray::fromStdString(camera.stream->failure()).contains("too large"));
    }
}

void TestStreaming::featuresAreLockedMeanwhile()
{
    const Camera camera(monochrome);
    const GenApi::CNodePtr width(camera.map().GetNode("Width"));
    camera.stream->start();
    QVERIFY(camera.receives());
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("1"));
    QVERIFY(!GenApi::IsWritable(width));
    QVERIFY_EXCEPTION_THROWN(camera.set("PixelFormat", "Mono8"), GenICam::AccessException);
    QVERIFY(OrvSim::setFault(monochrome, "Gain", OrvSim::Fault::FailRead)); // makes no difference
    QVERIFY(OrvSim::setFault(monochrome, "WidthReg", OrvSim::Fault::FailRead));
    camera.map().InvalidateNodes();
    QVERIFY(camera.stops());
    QVERIFY(QByteArray::fromStdString(camera.stream->failure()).startsWith("Width cannot be read"));
    OrvSim::clearFaults(monochrome);
    QVERIFY(GenApi::IsWritable(width));
    camera.stream->start();
    QVERIFY(camera.receives());
    QVERIFY(camera.stream->failure().empty());
    camera.stream->stop();
    QVERIFY(camera.stops());
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("0"));
    const std::uint64_t writes = OrvSim::writeCount(monochrome);
    QCOMPARE(writes, 4ULL); // two starts, two stops
    camera.stream->stop();
    QCOMPARE(OrvSim::writeCount(monochrome), writes);
}

void TestStreaming::countedRuns()
{
    const Camera camera(monochrome);
    camera.stream->start(3);
    QVERIFY(camera.stops());
    QCOMPARE(camera.stream->statistics().received, 3ULL);
    QCOMPARE(camera.stream->take()->number, 2ULL);
    QVERIFY(!camera.stream->take());
    camera.set("AcquisitionMode", "MultiFrame");
    camera.set("AcquisitionFrameCount", "2");
    for (const std::uint64_t frames : {0U, 1U, 5U}) {
        camera.stream->start(frames);
        QVERIFY(camera.stops());
        QCOMPARE(camera.stream->statistics().received, frames == 1 ? 1ULL : 2ULL);
        QCOMPARE(camera.text("AcquisitionMode"), QByteArray("MultiFrame"));
    }
}

void TestStreaming::rates()
{
    const Camera camera(plain);
    // NaN, infinity, -1, 0, 1e30
    for (const char *const rate : {"2143289344", "2139095040", "3212836864", "0", "1900671690"}) {
        QVERIFY(OrvSim::setRegister(plain, "RateBits", rate));
        camera.map().InvalidateNodes();
        camera.stream->start(2);
        QVERIFY2(camera.stops(), rate);
        QCOMPARE(camera.text("Acquisition"), QByteArray("0")); // one register for start and stop
    }
    camera.set("AcquisitionFrameRate", "1e-30");
    camera.stream->start();
    QTRY_COMPARE(camera.stream->state(), State::Running);
    QCOMPARE(camera.text("Acquisition"), QByteArray("1"));
    camera.stream->stop(); // wakes the thread; a picture takes ten seconds
    QVERIFY(camera.stops());
    QCOMPARE(camera.stream->statistics().received, 0ULL);
}

void TestStreaming::oneStreamOfACamera()
{
    const Camera first(twoFrame);
    const Camera second(twoFrame);
    first.stream->start();
    QVERIFY(first.receives());
    QVERIFY(!second.picture());
    QCOMPARE(second.stream->failure(), std::string("The pictures of this camera are shown elsewhere already"));
    QCOMPARE(second.text("TLParamsLocked"), QByteArray("0"));
    QVERIFY(first.receives(3));
    first.stream->stop();
    QVERIFY(first.stops());
    QVERIFY(second.picture());
}

void TestStreaming::buffersInUse()
{
    const Camera camera(plain);
    std::vector<std::shared_ptr<const Frame>> kept;
    camera.stream->start();
    QTRY_VERIFY([&] {
        if (std::shared_ptr<const Frame> frame = camera.stream->take())
            kept.push_back(std::move(frame));
        return camera.stream->statistics().lost > 3;
    }());
    QVERIFY(kept.size() < 8);
    const std::uint64_t number = kept.back()->number;
    kept.clear();
    QVERIFY(QTest::qWaitFor([&] {
        const std::shared_ptr<const Frame> frame = camera.stream->take();
        return frame && frame->number > number + 3;
    }));
    camera.stream->start(7); // without effect while it runs
    camera.stream->stop();
    camera.stream->start(2); // once it has stopped
    QVERIFY(camera.stops());
    QCOMPARE(camera.stream->statistics().received, 2ULL);
}

void TestStreaming::lossAndReturn()
{
    const Camera camera(monochrome);
    camera.stream->start();
    QVERIFY(camera.receives());
    OrvSim::unplug(monochrome);
    const std::uint64_t writes = OrvSim::writeCount(monochrome);
    OrvSim::replug(monochrome); // at once
    QVERIFY(camera.stops());
    QCOMPARE(camera.stream->failure(), std::string("The connection to the camera was lost"));
    QCOMPARE(OrvSim::writeCount(monochrome), writes);
    QCOMPARE(camera.text("TLParamsLocked"), QByteArray("0"));
    OrvSim::unplug(monochrome);
    QVERIFY(!camera.picture());
    QCOMPARE(camera.stream->failure(), std::string("The camera is not connected"));
    OrvSim::replug(monochrome);
    QVERIFY(camera.picture());
    camera.stream->start();
    QVERIFY(camera.receives());
    OrvSim::reset(); // tells nobody
    QVERIFY(camera.stops());
}

void TestStreaming::releaseWhileRunning()
{
    Camera camera(monochrome);
    camera.stream->start();
    QVERIFY(camera.receives());
    const std::shared_ptr<const Frame> kept = camera.stream->take();
    camera.device.reset();
    QCOMPARE(OrvSim::writeCount(monochrome), 2ULL);
    QVERIFY(camera.stops());
    QVERIFY(!camera.picture());
    QCOMPARE(camera.stream->failure(), std::string("The device has been released"));
    camera.stream.reset();
    QCOMPARE(OrvSim::writeCount(monochrome), 2ULL);
    if (kept)
        QVERIFY(mean(*kept) > 0);

    Camera other(monochrome); // released by the stream's own thread
    std::atomic<bool> isReleased{false};
    other.stream->setListener([&] {
        if (other.stream->take() && !isReleased.exchange(true))
            other.device.reset();
    });
    other.stream->start();
    QTRY_VERIFY(isReleased);
    QVERIFY(other.stops());
    QCOMPARE(OrvSim::writeCount(monochrome), 4ULL);

    Camera again(monochrome); // started again while it is released
    again.stream->setListener([&] {
        if (again.stream->state() == State::Stopping)
            again.stream->start();
    });
    again.stream->start();
    QVERIFY(again.receives());
    again.device.reset();
    QVERIFY(again.stops());
    QCOMPARE(OrvSim::writeCount(monochrome), 6ULL);
}

/** In a callback that is called without the lock of the node map. */
void TestStreaming::lossWhileStarting()
{
    const Camera camera(monochrome);
    GenApi::INodeMap &map = camera.map();
    bool isFree = false;
    const std::function<void(GenApi::INode *)> unplug = [&](GenApi::INode *) {
        std::thread([&] {
            isFree = map.GetLock().TryLock();
            if (isFree)
                map.GetLock().Unlock();
        }).join();
        OrvSim::unplug(monochrome);
    };
    GenApi::INode *const locked = map.GetNode("TLParamsLocked");
    const GenApi::CallbackHandleType callback = GenApi::Register(locked, unplug, GenApi::cbPostOutsideLock);
    QVERIFY(!camera.picture());
    QVERIFY(isFree);
    QCOMPARE(camera.stream->failure(), std::string("The connection to the camera was lost"));
    GenApi::Deregister(callback);
}

void TestStreaming::cameraThatHangs()
{
    Camera camera(monochrome);
    QVERIFY(OrvSim::setFault(monochrome, "AcquisitionStart", OrvSim::Fault::StallWrite));
    camera.stream->start();
    QVERIFY(OrvSim::waitUntilStalled(monochrome, 5s));
    QCOMPARE(camera.stream->state(), State::Starting);
    camera.stream.reset();
    camera.device.reset();
    const std::uint64_t writes = OrvSim::writeCount(monochrome);
    OrvSim::clearFaults(monochrome);
    Camera next(monochrome);
    QVERIFY(QTest::qWaitFor([&] { return next.picture() != nullptr; }));
    QCOMPARE(OrvSim::writeCount(monochrome), writes + 2);
}

void TestStreaming::listener()
{
    Camera camera(plain);
    std::atomic<int> calls{0};
    camera.stream->setListener([&calls] { ++calls; });
    camera.stream->start();
    QTRY_VERIFY(camera.stream->statistics().received > 5);
    QCOMPARE(calls.load(), 1); // until somebody looks
    camera.stream->take();
    QTRY_COMPARE(calls.load(), 2);
    std::atomic<int> stops{0};
    camera.stream->setListener([&] { // uses the stream, and throws
        stops += camera.stream->state() == State::Stopped ? 1 : 0;
        camera.stream->stop();
        throw std::runtime_error("none of its business");
    });
    QTRY_COMPARE(stops.load(), 1);
    camera.stream->setListener(nullptr);
    camera.stream->start();
    QVERIFY(camera.receives());
    QCOMPARE(calls.load(), 2);
}

void TestStreaming::startsAndStopsFromThreads()
{
    for (int round = 0; round < 5; ++round) {
        Camera camera(plain);
        std::vector<std::thread> threads;
        for (int i = 0; i < 3; ++i) {
            threads.emplace_back([&stream = *camera.stream, i] {
                for (int j = 0; j < 50; ++j) {
                    stream.start(std::uint64_t(j % 3));
                    stream.setListener([&stream] { stream.take(); });
                    if (i != 0)
                        stream.stop();
                }
            });
        }
        OrvSim::unplug(plain);
        OrvSim::replug(plain);
        for (std::thread &thread : threads)
            thread.join();
        camera.stream->setListener(nullptr);
        camera.stream->stop();
        QVERIFY(camera.stops());
        QVERIFY(camera.picture());
        camera.stream->start(); // and ends while it is starting
    }
}

void TestStreaming::registersThatChangeMeanwhile()
{
    const Camera camera(plain);
    OrvSim::setRegister(plain, "AcquisitionFrameRate", "1000");
    camera.stream->start();
    for (int i = 0; i < 300; ++i) {
        const QByteArray size = QByteArray::number(1 + i * 7919 % 400);
        QVERIFY(OrvSim::setRegister(plain, i % 2 != 0 ? "Width" : "Height", size.constData()));
        if (const std::shared_ptr<const Frame> frame = camera.stream->take())
            QCOMPARE(frame->size, std::size_t(frame->width) * frame->height);
    }
    QVERIFY(camera.receives());
}

} // namespace

ORV_PLAIN_TEST_MAIN(TestStreaming)

#include "tst_streaming.moc"
