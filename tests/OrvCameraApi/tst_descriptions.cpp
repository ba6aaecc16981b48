#include "simtest.h"

#include <orvtest.h>

#include <GenApi/GenApi.h>

using namespace SimTest;

/** The descriptions that come with the simulation, read through the engine and the port. */
class TestDescriptions : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void everyFeatureAnswers_data();
    void everyFeatureAnswers();
    void accessFollowsModes_data();
    void accessFollowsModes();
    void timesFollowTheRegisters();
    void versionsAreThere();
    void registersLiveByBeingRead();
    void interfaceFeaturesFollowTheSelector();
};

namespace {

/** Reads every feature and warns unless exactly those in \a failing fail. Returns the names of those without access. */
QStringList readAll(GenApi::INodeMap &map, const QStringList &failing)
{
    GenApi::NodeList_t nodes;
    map.GetNodes(nodes);
    QStringList silent;
    QStringList failed;
    for (GenApi::INode *node : nodes) {
        const QString name = QString::fromUtf8(node->GetName().c_str());
        const GenApi::EAccessMode access = node->GetAccessMode();
        if (!node->IsFeature() || node->GetPrincipalInterfaceType() == GenApi::intfICategory)
            continue;
        if (access != GenApi::RO && access != GenApi::RW) {
            silent << name;
            continue;
        }
        try {
            // A command has nothing to read.
            if (node->GetPrincipalInterfaceType() != GenApi::intfICommand)
                dynamic_cast<GenApi::IValue &>(*node).ToString(true, true);
        } catch (const GenICam::GenericException &failure) {
            failed << name;
            if (!failing.contains(name))
                qWarning("%s: %s", qPrintable(name), failure.what());
        }
    }
    if (failed != failing)
        qWarning("failed: %s", qPrintable(failed.join(QLatin1Char(' '))));
    silent.sort();
    return silent;
}

} // namespace

void TestDescriptions::everyFeatureAnswers_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("failing");
    QTest::addColumn<QString>("silent");

    QTest::newRow("two-frame camera")
        << "ORV-GIGE-0001"
        << "KindReadFails"
        << "AcquisitionFrameCount AcquisitionFrameRate GevPersistentDefaultGateway GevPersistentIPAddress "
           "GevPersistentSubnetMask KindNotImplemented KindUnavailable KindWriteOnly TriggerSoftware";
    QTest::newRow("monochrome camera") << "ORV-USB3-0001" << QString()
                                       << "AcquisitionFrameCount AcquisitionFrameRate TriggerSoftware";
    QTest::newRow("network adapter") << "ORV-ETH-0" << QString() << QString();
    QTest::newRow("host controller") << "ORV-XHCI-0" << QString() << QString();
    QTest::newRow("frame grabber") << "ORV-CL-0" << QString() << "DeviceAccessStatus DeviceSelector";
}

void TestDescriptions::everyFeatureAnswers()
{
    QFETCH(const QString, owner);
    QFETCH(const QString, failing);
    QFETCH(const QString, silent);
    const Held<OrvCam::System> system = getSystem();
    Held<OrvCam::Device> device;
    OrvGenParam::Array *array = nullptr;
    for (OrvCam::Interface *interface : interfacesOf(*system)) {
        if (owner == QLatin1String(interface->GetID()))
            array = interface->GetParameters(nullptr);
    }
    if (!array) {
        device = open(qPrintable(owner));
        QVERIFY(device);
        array = device->GetCameraParameters(nullptr);
    }
    QVERIFY(array);
    const auto words = [](const QString &text) { return text.split(QLatin1Char(' '), Qt::SkipEmptyParts); };
    QCOMPARE(readAll(*array->GetNodeMap(), words(failing)), words(silent));
}

void TestDescriptions::accessFollowsModes_data()
{
    for (const char *column : {"feature", "mode", "closed", "open"})
        QTest::addColumn<QString>(column);
    const auto row = [](const char *feature, const char *mode, const char *closed, const char *open) {
        QTest::newRow(feature) << QString::fromLatin1(feature) << QString::fromLatin1(mode)
                               << QString::fromLatin1(closed) << QString::fromLatin1(open);
    };
    row("TriggerSource", "TriggerMode", "Off", "On");
    row("TriggerActivation", "TriggerMode", "Off", "On");
    row("TriggerDebounce", "TriggerMode", "Off", "On");
    row("TriggerSoftware", "TriggerMode", "Off", "On");
    row("Strobe2Delay", "Strobe2Mode", "Off", "On");
    row("PulseGenNumPulses", "PulseGenMode", "Continuous", "NumberOfPulses");
    row("Frame_WdrE2", "Frame_WdrEnable", "false", "true");
    row("Frame_WdrP1", "Frame_WdrEnable", "false", "true");
    row("RedCoefficient", "BalanceWhiteAuto", "Auto", "Off");
    row("HotPixelThreshold", "HotPixelCorrection", "Static", "Dynamic");
    row("GevPersistentIPAddress", "GevCurrentIPConfigurationPersistentIP", "false", "true");
}

void TestDescriptions::accessFollowsModes()
{
    QFETCH(const QString, feature);
    QFETCH(const QString, mode);
    QFETCH(const QString, closed);
    QFETCH(const QString, open);
    const Held<OrvCam::Device> device = SimTest::open(twoFrame);
    GenApi::INodeMap *const map = device->GetCameraParameters(nullptr)->GetNodeMap();
    GenApi::INode *const node = map->GetNode(qPrintable(feature));
    const GenApi::CValuePtr modeValue(map->GetNode(qPrintable(mode)));
    const auto isWritable = [node] {
        return node->GetAccessMode() == GenApi::RW || node->GetAccessMode() == GenApi::WO;
    };
    for (const bool opened : {false, true, false}) {
        modeValue->FromString(qPrintable(opened ? open : closed));
        QCOMPARE(isWritable(), opened);
    }
}

void TestDescriptions::timesFollowTheRegisters()
{
    const Held<OrvCam::Device> device = open(twoFrame);
    OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
    const auto value = [array](const char *name) { return array->GetIntegerValue(name, nullptr); };

    QCOMPARE(value("CurrentExposureTime"), std::int64_t((10 * 1600 + 800) / 160));
    QCOMPARE(value("CurrentFrameTime"), std::int64_t(2000 * 1600 / 160));
    QCOMPARE(array->SetIntegerValue("Frame_ExposureLines", 100), OrvCamErr_Ok);
    QCOMPARE(array->SetIntegerValue("Frame_FixedFramePeriodValue", 4000), OrvCamErr_Ok);
    QCOMPARE(value("CurrentExposureTime"), std::int64_t((100 * 1600 + 800) / 160));
    QCOMPARE(value("CurrentFrameTime"), std::int64_t(40000));
    QCOMPARE(array->GetBoolean("Frame_FixedFramePeriodEnable", nullptr)->SetValue(false), OrvCamErr_Ok);
    QCOMPARE(value("CurrentFrameTime"), std::int64_t((1080 + 20) * 1600 / 160));
}

/** Windows show these as a group; no test of theirs names them. */
void TestDescriptions::versionsAreThere()
{
    const Held<OrvCam::Device> device = open(twoFrame);
    for (const char *name : {"RgsID", "FpgaID", "EpcsID", "FirmwareImage", "CustomerID", "FamilyID", "XmlVersion"})
        QVERIFY2(device->GetCameraParameters(nullptr)->GetInt(name, nullptr), name);
}

void TestDescriptions::registersLiveByBeingRead()
{
    const Held<OrvCam::Device> device = open(twoFrame);
    OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
    QSet<std::int64_t> temperatures;
    for (int i = 0; i < 30; ++i)
        temperatures.insert(array->GetIntegerValue("CurrentTemperature", nullptr));
    QCOMPARE(temperatures, (QSet<std::int64_t>{41, 42, 43, 44, 45, 46, 47}));

    const GenApi::CCommandPtr reset(array->GetNodeMap()->GetNode("DeviceReset"));
    reset->Execute();
    QVERIFY(!reset->IsDone());
    QVERIFY(!reset->IsDone());
    QVERIFY(reset->IsDone());

    OrvGenParam::Enum *const balance = array->GetEnum("BalanceWhiteAuto", nullptr);
    QCOMPARE(balance->SetValueStr("Once"), OrvCamErr_Ok);
    for (const char *const expected : {"Once", "Once", "Off", "Off"})
        QCOMPARE(balance->GetValueStr(nullptr), expected);
    QCOMPARE(balance->SetValueStr("Auto"), OrvCamErr_Ok);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(balance->GetValueStr(nullptr), "Auto");
}

void TestDescriptions::interfaceFeaturesFollowTheSelector()
{
    const Held<OrvCam::System> system = getSystem();
    OrvGenParam::Array *const array = interfacesOf(*system).front()->GetParameters(nullptr);
    const auto value = [array](const char *name) { return array->GetIntegerValue(name, nullptr); };

    for (const int row : {0, 1, 0}) {
        QCOMPARE(array->SetIntegerValue("DeviceSelector", row), OrvCamErr_Ok);
        QCOMPARE(value("GevDeviceMACAddress"), std::int64_t(0x02005E200001 + row));
    }
    QCOMPARE(value("GevDeviceForceGateway"), std::int64_t(0xC0A80AFE));
    QCOMPARE(value("GevInterfaceMACAddress"), std::int64_t(0x02005E100001));
    QCOMPARE(value("GevInterfaceSubnetIPAddress"), std::int64_t(0xC0A80A01));
    QCOMPARE(value("GevInterfaceSubnetMask"), std::int64_t(0xFFFFFF00));

    QCOMPARE(array->SetIntegerValue("DeviceSelector", 2), OrvCamErr_GenICamOutOfRange);
    QVERIFY(OrvSim::unplug(twoFrame));
    QCOMPARE(value("GevDeviceMACAddress"), std::int64_t(0x02005E200002));
    QVERIFY(OrvSim::unplug(stray));
    QCOMPARE(array->SetIntegerValue("DeviceSelector", 0), OrvCamErr_GenICamAccessError);
}

ORV_TEST_MAIN(TestDescriptions)
#include "tst_descriptions.moc"
