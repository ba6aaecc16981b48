// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"

#include <orvtest.h>

#include <GenApi/GenApi.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

using namespace SimTest;

namespace {

/** Remembers the events of a device. */
struct Log
{
    std::mutex mutex;
    QVector<quint32> events;
    std::thread::id thread;

    void note(quint32 event)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        events.append(event);
        thread = std::this_thread::get_id();
    }
};

void noteConnected(const void *, unsigned long, void *context)
{
    static_cast<Log *>(context)->note(OrvCam::EventDeviceConnected);
}

void noteDisconnected(const void *, unsigned long, void *context)
{
    static_cast<Log *>(context)->note(OrvCam::EventDeviceDisconnected);
}

void watch(OrvCam::Device &device, Log &log)
{
    QCOMPARE(device.RegisterEvent(OrvCam::EventDeviceConnected, noteConnected, &log), OrvCamErr_Ok);
    QCOMPARE(device.RegisterEvent(OrvCam::EventDeviceDisconnected, noteDisconnected, &log), OrvCamErr_Ok);
}

} // namespace

/** Opened devices: opening, events, loss and return, registers that fail or hang. */
class TestDevice : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void cleanup()
    {
        OrvSim::reset();
        const OrvSim::LiveObjects live = OrvSim::liveObjects();
        QCOMPARE(live.devices, std::size_t(0));
        QCOMPARE(live.eventCallbacks, std::size_t(0));
        QCOMPARE(live.systemReferences, std::size_t(0));
        TestCase::cleanup();
    }

    void opening()
    {
        const std::tuple<int, OrvCamErr, OrvCamErr> rows[] = {
            {OrvCam::AccessStatusReadWrite, OrvCamErr_Ok, OrvCamErr_Ok},
            {55, OrvCamErr_Ok, OrvCamErr_Ok}, // unknown
            {OrvCam::AccessStatusNoAccess, OrvCamErr_Ok, OrvCamErr_InvalidState},
            {OrvCam::AccessStatusIpSubnetMismatch, OrvCamErr_Ok, OrvCamErr_NoDevice},
            {OrvCam::AccessStatusReadWrite, OrvCamErr_WrongConfiguration, OrvCamErr_WrongConfiguration},
        };
        for (const auto &[status, refusal, expected] : rows) {
            QVERIFY(OrvSim::setAccessStatus(twoFrame, status));
            QVERIFY(OrvSim::refuseToOpen(twoFrame, refusal));
            OrvCamErr err = OrvCamErr_UnknownError;
            const Held<OrvCam::Device> device = open(twoFrame, &err);
            QCOMPARE(err, expected);
            QCOMPARE(device != nullptr, expected == OrvCamErr_Ok);
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(device ? 1 : 0));
            QVERIFY(!open("nobody", &err));
            QCOMPARE(err, OrvCamErr_InvalidArgument);
            QVERIFY(!OrvCam_CreateDevice(nullptr, OrvCam::DeviceAccessControl, nullptr));
        }
    }

    void readOnlyDevices()
    {
        OrvSim::setAccessStatus(twoFrame, OrvCam::AccessStatusReadOnly);
        const Held<OrvCam::Device> device = open(twoFrame);
        OrvGenParam::Int *const level = device->GetCameraParameters(nullptr)->GetInt("Frame_BlackLevel", nullptr);
        QVERIFY(level->IsReadable());
        QVERIFY(!level->IsWritable());
        QCOMPARE(level->GetValue(nullptr), std::int64_t(16));
        QCOMPARE(level->SetValue(17), OrvCamErr_GenICamAccessError);
    }

    void eventsOfUnpluggingAndReplugging()
    {
        const Held<OrvCam::Device> device = open(twoFrame);
        const Held<OrvCam::Device> other = open(monochrome);
        Log log;
        Log otherLog;
        watch(*device, log);
        watch(*device, log); // the same again is one registration
        watch(*other, otherLog);
        QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(4));
        for (int i = 0; i < 2; ++i)
            OrvSim::unplug(twoFrame);
        OrvSim::replug(twoFrame);
        QCOMPARE(log.events, (QVector<quint32>{1004, 1003}));
        QCOMPARE(log.thread, std::this_thread::get_id());
        QVERIFY(otherLog.events.isEmpty());

        device->UnregisterEvent(OrvCam::EventDeviceConnected, noteConnected, &log);
        device->UnregisterEvent(OrvCam::EventDeviceConnected, noteConnected, &log);
        OrvSim::unplug("ORV-ETH-0");
        OrvSim::replug("ORV-ETH-0");
        QCOMPARE(log.events, (QVector<quint32>{1004, 1003, 1004}));
        QCOMPARE(device->RegisterEvent(OrvCam::EventDeviceConnected, nullptr, &log), OrvCamErr_InvalidArgument);
    }

    void eventsFromOtherThreads()
    {
        const Held<OrvCam::Device> device = open(twoFrame);
        Log log;
        watch(*device, log);
        OrvSim::setEventsFromOtherThread(true);
        for (int i = 0; i < 3; ++i) {
            OrvSim::unplug(twoFrame);
            OrvSim::replug(twoFrame);
        }
        OrvSim::waitForEvents();
        QCOMPARE(log.events, (QVector<quint32>{1004, 1003, 1004, 1003, 1004, 1003}));
        QVERIFY(log.thread != std::this_thread::get_id());
        OrvSim::unplug(twoFrame);
        OrvSim::setEventsFromOtherThread(false); // delivers the rest
        QCOMPARE(log.events.size(), 7);
    }

    void unregisteringWaitsForTheCallback()
    {
        struct Rendezvous
        {
            std::mutex mutex;
            std::condition_variable changed;
            bool entered = false;
            bool mayLeave = false;
            std::atomic<bool> left{false};

            static void meet(const void *, unsigned long, void *context)
            {
                auto &self = *static_cast<Rendezvous *>(context);
                std::unique_lock<std::mutex> lock(self.mutex);
                self.entered = true;
                self.changed.notify_all();
                self.changed.wait(lock, [&self] { return self.mayLeave; });
                self.left = true;
            }
        };
        const Held<OrvCam::Device> device = open(twoFrame);
        Rendezvous meeting;
        device->RegisterEvent(OrvCam::EventDeviceDisconnected, Rendezvous::meet, &meeting);
        OrvSim::setEventsFromOtherThread(true);
        OrvSim::unplug(twoFrame);
        {
            std::unique_lock<std::mutex> lock(meeting.mutex);
            meeting.changed.wait(lock, [&meeting] { return meeting.entered; });
        }
        std::atomic<bool> leftBeforeReturn{false};
        std::thread leaving([&] {
            device->UnregisterEvent(OrvCam::EventDeviceDisconnected, Rendezvous::meet, &meeting);
            leftBeforeReturn = meeting.left.load();
        });
        // Unregistered already, but the call is still running.
        QTRY_COMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(0));
        {
            const std::lock_guard<std::mutex> lock(meeting.mutex);
            meeting.mayLeave = true;
            meeting.changed.notify_all();
        }
        leaving.join();
        QVERIFY(leftBeforeReturn);
    }

    void callbacksThatUnregisterOrRelease()
    {
        struct Context
        {
            OrvCam::Device *device;
            int calls;

            static void unregister(const void *, unsigned long, void *context)
            {
                auto &self = *static_cast<Context *>(context);
                ++self.calls;
                self.device->UnregisterEvent(OrvCam::EventDeviceDisconnected, unregister, context);
            }
            static void release(const void *, unsigned long, void *context)
            {
                auto &self = *static_cast<Context *>(context);
                ++self.calls;
                self.device->Release();
            }
        };
        for (const bool elsewhere : {false, true}) {
            OrvSim::setEventsFromOtherThread(elsewhere);
            Context context{open(twoFrame).release(), 0};
            context.device->RegisterEvent(OrvCam::EventDeviceDisconnected, Context::unregister, &context);
            context.device->RegisterEvent(OrvCam::EventDeviceConnected, Context::release, &context);
            OrvSim::unplug(twoFrame);
            OrvSim::replug(twoFrame);
            OrvSim::unplug(twoFrame);
            OrvSim::replug(twoFrame);
            OrvSim::waitForEvents();
            QCOMPARE(context.calls, 2);
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
        }
    }

    void lossAndReturn()
    {
        const Held<OrvCam::Device> device = open(twoFrame);
        OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
        OrvGenParam::Int *const level = array->GetInt("Frame_BlackLevel", nullptr);
        OrvGenParam::Enum *const mode = array->GetEnum("FrameMode", nullptr);
        QCOMPARE(level->SetValue(99), OrvCamErr_Ok);
        Sink sink;
        level->RegisterEvent(&sink);
        OrvSim::unplug(twoFrame);

        OrvCamErr err = OrvCamErr_Ok;
        QCOMPARE(level->GetValue(&err), std::int64_t(0));
        QCOMPARE(err, OrvCamErr_NoDevice);
        QCOMPARE(level->SetValue(5), OrvCamErr_NoDevice);
        QVERIFY(!mode->GetValueStr(&err));
        QCOMPARE(array->GetCommand("TriggerSoftware", nullptr)->Execute(), OrvCamErr_NoDevice);
        QVERIFY(!level->IsAvailable() && !level->IsReadable() && !level->IsWritable());
        QCOMPARE(level->GetName(), "Frame_BlackLevel");
        QVERIFY(!device->GetCameraParameters(&err));
        QCOMPARE(err, OrvCamErr_NoDevice);
        GenApi::INode *const node = array->GetNodeMap()->GetNode("CurrentTemperature");
        QVERIFY_EXCEPTION_THROWN(GenApi::CIntegerPtr(node)->GetValue(), GenICam::GenericException);

        QVERIFY(OrvSim::setRegister(twoFrame, "Frame_BlackLevel", "7"));
        OrvSim::replug(twoFrame);
        QCOMPARE(device->GetCameraParameters(nullptr), array);
        QCOMPARE(level->GetValue(nullptr), std::int64_t(7));
        QCOMPARE(sink.count, 1); // on return everything is asked for again
        QCOMPARE(level->SetValue(8), OrvCamErr_Ok);
        QCOMPARE(sink.count, 2);
        level->UnregisterEvent(&sink);
    }
};

ORV_TEST_MAIN(TestDevice)
#include "tst_device.moc"
