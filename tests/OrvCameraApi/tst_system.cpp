// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"

#include <orvtest.h>

using namespace SimTest;

namespace {

const char smallDescription[] = R"(<RegisterDescription ModelName="Small" VendorName="Somebody" SchemaMajorVersion="1"
    SchemaMinorVersion="1" SchemaSubMinorVersion="0">
  <Category Name="Root"><pFeature>Level</pFeature></Category>
  <IntReg Name="Level"><Address>0x10</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
    <Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
  <Port Name="Device"/>
</RegisterDescription>)";

} // namespace

/** The simulated system: its lists, interfaces and device descriptions, and changes of them. */
class TestSystem : public OrvTest::TestCase
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
        const OrvSim::LiveObjects live = OrvSim::liveObjects();
        QCOMPARE(live.lists, std::size_t(0));
        QCOMPARE(live.systemReferences, std::size_t(0));
        TestCase::cleanup();
    }

    void referencesAreCounted()
    {
        OrvCam::System *const first = OrvCam_GetSystem();
        OrvCam::System *const second = OrvCam_GetSystem();
        QCOMPARE(first, second);
        QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(2));
        first->Release();
        QVERIFY(findDevice(*second, twoFrame));
        second->Release();

        OrvSim::clear();
        QVERIFY(!getSystem()->GetInterfaceList(OrvCam::AllInterfaceTypes));
        OrvSim::setSystemAvailable(false);
        QVERIFY(!OrvCam_GetSystem());
        QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
    }

    void objectsOutliveWhatTheyDescribe()
    {
        const Held<OrvCam::System> system = getSystem();
        OrvCam::Interface *const adapter = interfacesOf(*system).front();
        OrvCam::DeviceInfo *const camera = findDevice(*system, twoFrame);
        const char *const address = camera->GetIPAddress(nullptr);
        OrvGenParam::Array *const array = adapter->GetParameters(nullptr);
        QVERIFY(OrvSim::unplug("ORV-ETH-0"));
        QVERIFY(!OrvSim::replug(twoFrame)); // its interface is gone

        QCOMPARE(interfacesOf(*system).size(), std::size_t(2));
        QCOMPARE(adapter->GetID(), "ORV-ETH-0");
        QCOMPARE(camera->GetID(), twoFrame);
        QCOMPARE(address, "192.168.10.11");
        OrvCamErr err = OrvCamErr_Ok;
        QVERIFY(!camera->GetIPAddress(&err));
        QCOMPARE(err, OrvCamErr_NoDevice);
        QCOMPARE(camera->ForceIP(1, 2, 3), OrvCamErr_NoDevice);
        QVERIFY(!adapter->GetParameters(&err));
        QCOMPARE(err, OrvCamErr_NoDevice);
        QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), OrvCamErr_NoDevice);
        QVERIFY(!adapter->GetDeviceInfoList());
        QCOMPARE(adapter->ReEnumerateDevices(nullptr, 200), OrvCamErr_NoDevice);
        QVERIFY(!OrvCam_CreateDevice(camera, OrvCam::DeviceAccessControl, &err));
        QCOMPARE(err, OrvCamErr_NoDevice);

        QVERIFY(OrvSim::replug("ORV-ETH-0"));
        QCOMPARE(interfacesOf(*system).front(), adapter);
        QCOMPARE(findDevice(*system, twoFrame), camera);
        OrvSim::reset();
        QVERIFY(findDevice(*system, twoFrame) != camera);
        QCOMPARE(camera->GetID(), twoFrame);
    }

    void enumerationTellsChanges()
    {
        const Held<OrvCam::System> system = getSystem();
        OrvCam::Interface *const adapter = interfacesOf(*system).front();
        const auto changed = [adapter] {
            bool flag = false;
            return adapter->ReEnumerateDevices(&flag, 200) == OrvCamErr_Ok && flag;
        };
        QVERIFY(changed());
        QVERIFY(!changed());
        OrvSim::unplug(stray);
        QVERIFY(changed());
        QVERIFY(!changed());
        OrvSim::replug(stray);
        OrvSim::swapDevices(stray, twoFrame);
        QVERIFY(changed());
    }

    void forcedAddresses()
    {
        constexpr std::int32_t foreign = OrvCam::AccessStatusIpSubnetMismatch;
        const std::tuple<std::uint32_t, std::uint32_t, std::int32_t> rows[] = {
            {0xC0A80A0C, 0xFFFFFF00, OrvCam::AccessStatusReadWrite}, // in the subnet
            {0xC0A80B0C, 0xFFFFFF00, foreign},
            {0xC0A80A0C, 0xFFFF0000, foreign},
            {0xC0A80A01, 0xFFFFFF00, foreign}, // the adapter's own
        };
        for (const auto &[address, mask, status] : rows) {
            OrvSim::reset();
            const Held<OrvCam::System> system = getSystem();
            for (const char *id : {stray, twoFrame}) {
                OrvCam::DeviceInfo *const camera = findDevice(*system, id);
                const QByteArray before = camera->GetIPAddress(nullptr);
                const char *const kept = camera->GetIPAddress(nullptr);
                QCOMPARE(camera->ForceIP(address, mask, 0), OrvCamErr_Ok);
                QCOMPARE(camera->GetAccessStatus(), status);
                QCOMPARE(camera->GetGateway(nullptr), "0.0.0.0");
                QCOMPARE(QByteArray(kept), before);
                const Held<OrvCam::Device> device = open(id);
                QCOMPARE(device != nullptr, status == OrvCam::AccessStatusReadWrite);
                if (device) {
                    OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
                    QCOMPARE(array->GetIntegerValue("GevCurrentIPAddress", nullptr), std::int64_t(address));
                }
            }
        }
    }

    void unusableCameras()
    {
        const std::tuple<const char *, const char *, const char *> rows[] = {
            {"", "", ""},
            {smallDescription, "\nsot Level 1", "power-up:2: unknown statement"},
            {smallDescription, "set Depth 1", "power-up:1: no such register"},
            {smallDescription, "drift Level 2 1 1", "power-up:1: the ends are exchanged"},
            {smallDescription, "set Level much", "power-up:1: "},
        };
        for (const auto &[description, powerUp, reason] : rows) {
            OrvSim::DeviceSpec spec = OrvSim::cameraFromText(description);
            spec.name = "unusable";
            spec.powerUp = powerUp;
            std::string error;
            QVERIFY(!OrvSim::addDevice("ORV-CL-0", spec, &error));
            QVERIFY2(!error.empty() && error.find(reason) == 0, error.c_str());
            QVERIFY(!OrvSim::addDevice("ORV-CL-0", spec));
            QVERIFY(!OrvSim::unplug("unusable"));
        }
    }
};

ORV_TEST_MAIN(TestSystem)
#include "tst_system.moc"
