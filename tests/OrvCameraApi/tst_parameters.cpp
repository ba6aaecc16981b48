// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"

#include <orvtest.h>

#include <GenApi/GenApi.h>
#include <OrvGenApi/testing/faults.h>

#include <atomic>
#include <limits>
#include <thread>

using namespace SimTest;

/** Parameters on top of nodes: kinds, errors, notifications. */
class TestParameters : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
        m_device = open(twoFrame);
        QVERIFY(m_device);
        m_array = m_device->GetCameraParameters(nullptr);
        QVERIFY(m_array);
    }

    void cleanup()
    {
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
        QCOMPARE(OrvSim::liveObjects().nodeCallbacks, std::size_t(0));
        m_device.reset();
        TestCase::cleanup();
    }

    void lookupsTellWhatIsWrong()
    {
        const std::pair<const char *, OrvCamErr> rows[] = {
            {"Frame_Width", OrvCamErr_Ok},
            {"Frame_Depth", OrvCamErr_GenICamUnknownParam},
            {"Frame_WidthReg", OrvCamErr_GenICamUnknownParam}, // no feature
            {"", OrvCamErr_GenICamUnknownParam},
            {nullptr, OrvCamErr_InvalidArgument},
            {"FrameMode", OrvCamErr_GenICamTypeInvalid},
            {"AcquisitionFrameRate", OrvCamErr_GenICamTypeInvalid},
            {"FrameControl", OrvCamErr_GenICamTypeInvalid},
        };
        for (const auto &[text, expected] : rows) {
            for (int i = 0; i < 2; ++i) { // known by then
                OrvCamErr err = OrvCamErr_UnknownError;
                QCOMPARE(m_array->GetInt(text, &err) != nullptr, expected == OrvCamErr_Ok);
                QCOMPARE(err, expected);
                QCOMPARE(m_array->GetInt(text, nullptr), m_array->GetInt(text, nullptr));
                m_array->GetIntegerValue(text, &err);
                QCOMPARE(err, expected);
            }
            if (expected != OrvCamErr_Ok)
                QCOMPARE(m_array->SetIntegerValue(text, 64), expected);
        }
    }

    void enumerations()
    {
        OrvGenParam::Enum *const source = m_array->GetEnum("TriggerSource", nullptr);
        QCOMPARE(source->GetEnumEntriesCount(nullptr), 4);
        OrvCamErr err = OrvCamErr_UnknownError;
        QCOMPARE(source->GetEnumEntryByIndex(3, &err)->GetValueStr(nullptr), "Software");
        QCOMPARE(err, OrvCamErr_Ok);
        QCOMPARE(source->GetEnumEntryByIndex(3, nullptr)->GetValue(nullptr), std::int64_t(3));
        for (const int outside : {-1, 4, std::numeric_limits<int>::max()}) {
            QVERIFY(!source->GetEnumEntryByIndex(outside, &err));
            QCOMPARE(err, OrvCamErr_InvalidIndex);
        }
        OrvGenParam::Enum *const mode = m_array->GetEnum("TriggerMode", nullptr);
        QCOMPARE(mode->SetValue(1), OrvCamErr_Ok);
        QCOMPARE(mode->GetValueStr(nullptr), "On");
        QCOMPARE(source->SetValueStr("IN2"), OrvCamErr_Ok);
        QCOMPARE(source->GetValue(nullptr), std::int64_t(1));
        QCOMPARE(source->SetValueStr(nullptr), OrvCamErr_InvalidArgument);
    }

    void refusedWritesChangeNothing()
    {
        const std::tuple<const char *, std::int64_t, OrvCamErr> rows[] = {
            {"Frame_BlackLevel", 1024, OrvCamErr_GenICamOutOfRange},
            {"Frame_Width", 65, OrvCamErr_GenICamOutOfRange}, // beside the step
            {"PixelClock", 100, OrvCamErr_GenICamAccessError}, // read only
            {"Strobe2Delay", 5, OrvCamErr_GenICamAccessError}, // locked
            {"KindWriteFails", 5, OrvCamErr_GenICamGenericError},
        };
        for (const auto &[name, value, expected] : rows) {
            const std::int64_t before = m_array->GetIntegerValue(name, nullptr);
            QCOMPARE(m_array->SetIntegerValue(name, value), expected);
            OrvCamErr err = OrvCamErr_UnknownError;
            QCOMPARE(m_array->GetIntegerValue(name, &err), before);
            QCOMPARE(err, OrvCamErr_Ok);
        }
        OrvGenParam::Enum *const balance = m_array->GetEnum("BalanceWhiteAuto", nullptr);
        QCOMPARE(balance->SetValueStr("Never"), OrvCamErr_GenICamInvalidArgument);
        QVERIFY(balance->SetValue(77) != OrvCamErr_Ok);
        QCOMPARE(balance->GetValueStr(nullptr), "Off");
    }

    void nothingIsThrown()
    {
        GenApi::INodeMap &map = *m_array->GetNodeMap();
        OrvGenParam::Int *const width = m_array->GetInt("Frame_Width", nullptr);
        OrvGenApi::testing::failGetter(map, "Frame_Width", "GetValue");
        OrvGenApi::testing::failGetter(map, "Frame_Width", "GetAccessMode");
        OrvGenApi::testing::failGetter(map, "Frame_Width", "RegisterCallback");
        OrvCamErr err = OrvCamErr_Ok;
        QCOMPARE(width->GetValue(&err), std::int64_t(0));
        QCOMPARE(err, OrvCamErr_GenICamGenericError);
        QVERIFY(!width->IsAvailable());
        Sink sink;
        QCOMPARE(width->RegisterEvent(&sink), OrvCamErr_GenICamGenericError);
        QCOMPARE(width->RegisterEvent(nullptr), OrvCamErr_InvalidArgument);
        OrvGenApi::testing::failGetter(map, "Frame_Height", "GetPrincipalInterfaceType");
        QVERIFY(!m_array->GetInt("Frame_Height", &err));
        QCOMPARE(err, OrvCamErr_GenICamGenericError);
        OrvGenApi::testing::clearFaults(map);
        QVERIFY(m_array->GetInt("Frame_Height", nullptr));

        QVERIFY(OrvSim::setFault(twoFrame, "DeviceUserID", OrvSim::Fault::FailRead));
        QVERIFY(!m_array->GetString("DeviceUserID", nullptr)->GetValue(&err));
        QCOMPARE(err, OrvCamErr_GenICamGenericError);
    }

    void accessOfEntriesFollowsTheCamera()
    {
        OrvGenParam::Enum *const format = m_array->GetEnum("PixelFormat", nullptr);
        OrvGenParam::EnumEntry *const deep = format->GetEnumEntryByIndex(3, nullptr);
        QCOMPARE(deep->GetValueStr(nullptr), "BayerRG12");
        QVERIFY(deep->IsAvailable());
        Sink sink;
        deep->RegisterEvent(&sink);
        QCOMPARE(m_array->GetEnum("SensorADCBitDepth", nullptr)->SetValue(8), OrvCamErr_Ok);
        QVERIFY(!deep->IsAvailable());
        QCOMPARE(sink.count, 1);
        QVERIFY(format->SetValueStr("BayerRG12") != OrvCamErr_Ok);
        deep->UnregisterEvent(&sink);
    }

    void aSinkIsToldOnce()
    {
        OrvGenParam::Int *const level = m_array->GetInt("Frame_BlackLevel", nullptr);
        std::vector<OrvGenParam::Param *> told;
        const std::thread::id caller = std::this_thread::get_id();
        Sink sink([&](OrvGenParam::Param *param) {
            QCOMPARE(std::this_thread::get_id(), caller);
            told.push_back(param);
        });
        QCOMPARE(level->UnregisterEvent(&sink), OrvCamErr_Ok);
        QCOMPARE(level->RegisterEvent(&sink), OrvCamErr_Ok);
        QCOMPARE(level->RegisterEvent(&sink), OrvCamErr_Ok);
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(1));
        QCOMPARE(level->SetValue(77), OrvCamErr_Ok);
        QCOMPARE(told, std::vector<OrvGenParam::Param *>{level});
        QVERIFY(level->SetValue(5000) != OrvCamErr_Ok);
        QCOMPARE(told.size(), std::size_t(1));
        QCOMPARE(level->UnregisterEvent(&sink), OrvCamErr_Ok);
        QCOMPARE(level->SetValue(78), OrvCamErr_Ok);
        QCOMPARE(told.size(), std::size_t(1));
    }

    void sinksThatLeaveDuringADelivery()
    {
        OrvGenParam::Int *const level = m_array->GetInt("Frame_BlackLevel", nullptr);
        Sink late;
        Sink comesBack;
        Sink leaves;
        Sink first([&](OrvGenParam::Param *) {
            level->UnregisterEvent(&first);
            level->UnregisterEvent(&leaves);
            level->UnregisterEvent(&comesBack);
            level->RegisterEvent(&comesBack);
            level->RegisterEvent(&late);
        });
        for (Sink *sink : {&first, &leaves, &comesBack})
            level->RegisterEvent(sink);
        QCOMPARE(level->SetValue(10), OrvCamErr_Ok);
        QCOMPARE((std::vector<int>{first.count, leaves.count, comesBack.count, late.count}),
                 (std::vector<int>{1, 0, 0, 0}));
        QCOMPARE(level->SetValue(11), OrvCamErr_Ok);
        QCOMPARE((std::vector<int>{first.count, leaves.count, comesBack.count, late.count}),
                 (std::vector<int>{1, 0, 1, 1}));
        level->UnregisterEvent(&comesBack);
        level->UnregisterEvent(&late);
    }

    void noNotificationAfterUnregistering()
    {
        OrvGenParam::Int *const level = m_array->GetInt("Frame_BlackLevel", nullptr);
        std::atomic<bool> stop{false};
        std::thread writer([&] {
            for (std::int64_t value = 0; !stop; value = (value + 1) % 1000)
                level->SetValue(value);
        });
        std::atomic<bool> toldTooLate{false};
        Sink stays;
        level->RegisterEvent(&stays);
        for (int i = 0; i < 50; ++i) {
            std::atomic<bool> told{false};
            std::atomic<bool> registered{true};
            Sink sink([&](OrvGenParam::Param *) {
                told = true;
                // Long enough for the other thread to come back from unregistering if nothing holds it.
                for (int turn = 0; turn < 200; ++turn) {
                    std::this_thread::yield();
                    toldTooLate = toldTooLate || !registered;
                }
            });
            level->RegisterEvent(&sink);
            while (!told)
                std::this_thread::yield();
            level->UnregisterEvent(&sink);
            registered = false;
        }
        level->UnregisterEvent(&stays);
        stop = true;
        writer.join();
        QVERIFY(!toldTooLate);
    }

private:
    Held<OrvCam::Device> m_device;
    OrvGenParam::Array *m_array = nullptr;
};

ORV_TEST_MAIN(TestParameters)
#include "tst_parameters.moc"
