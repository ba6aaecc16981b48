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
    void namedFeaturesAreThere_data();
    void namedFeaturesAreThere();
    void accessFollowsModes_data();
    void accessFollowsModes();
    void framesHaveBanksOfTheirOwn();
    void timesFollowTheRegisters();
    void registersLiveByBeingRead();
    void interfaceFeaturesFollowTheSelector();
};

namespace {

/** Fails on features that do not answer, but for those in \a failing; returns the names of those without access. */
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

void TestDescriptions::namedFeaturesAreThere_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("names");

    QTest::newRow("integers")
        << "Int"
        << "CurrentTemperature CurrentExposureTime CurrentFrameTime Width Height RgsID FpgaID EpcsID FirmwareImage "
           "CustomerID FamilyID XmlVersion PixelClock Frame_LineTime Frame_ExposureLines Frame_ExposureClocks "
           "Frame_DigitalCourseGain Frame_DigitalFineGain Frame_OffsetX Frame_OffsetY Frame_Width Frame_Height "
           "Frame_WdrE1 Frame_WdrE2 Frame_WdrE3 Frame_FixedFramePeriodValue Frame_BlackLevel NumberOfFrameAs "
           "NumberOfFrameBs Frame_WidthActual Frame_HeightActual RedCoefficient GreenCoefficient BlueCoefficient "
           "DefectPixelThreshold HotPixelThreshold Strobe1Delay Strobe2Delay Strobe1Width Strobe2Width "
           "PulseGenPeriod PulseGenWidth PulseGenNumPulses";
    QTest::newRow("enumerations")
        << "Enum"
        << "FrameAB_Selector FrameMode SensorType TriggerMode Frame_SubsamplingM Frame_SubsamplingP Frame_Averaging "
           "Frame_WdrP1 Frame_WdrP2 Frame_WdrP3 ShutterMode SensorADCBitDepth SensorADCBitDepth11 "
           "Frame_ExposureControl Frame_DecimationMode Frame_AnalogGain BalanceWhiteAuto AutoTrackingSpeed "
           "PixelFormat TestPattern LUTSelector DefectPixelCorrection HotPixelCorrection Strobe1Mode Strobe2Mode "
           "Strobe1Reference Strobe2Reference OUT1Polarity OUT2Polarity OUT1Selector OUT2Selector TriggerSource "
           "TriggerActivation TriggerDebounce PulseGenGranularity PulseGenMode";
    QTest::newRow("booleans")
        << "Boolean"
        << "Frame_FixedFramePeriodEnable Frame_WdrEnable LUTEnable ReverseX ReverseY PulseGenEnable";
    QTest::newRow("strings") << "String"
                             << "DeviceVendorName DeviceModelName DeviceFamilyName DeviceVersion "
                                "DeviceFirmwareVersion DeviceManufacturerInfo DeviceSerialNumber DeviceUserID";
    QTest::newRow("commands") << "Command"
                              << "TriggerSoftware";
}

void TestDescriptions::namedFeaturesAreThere()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, names);
    const Held<OrvCam::Device> device = open(twoFrame);
    OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
    for (const QString &name : names.split(QLatin1Char(' '))) {
        const QByteArray bytes = name.toUtf8();
        const bool found = (kind == QLatin1String("Int") && array->GetInt(bytes, nullptr))
            || (kind == QLatin1String("Enum") && array->GetEnum(bytes, nullptr))
            || (kind == QLatin1String("Boolean") && array->GetBoolean(bytes, nullptr))
            || (kind == QLatin1String("String") && array->GetString(bytes, nullptr))
            || (kind == QLatin1String("Command") && array->GetCommand(bytes, nullptr));
        QVERIFY2(found, bytes);
    }
}

void TestDescriptions::accessFollowsModes_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("closed");
    QTest::addColumn<QString>("open");

    QTest::newRow("trigger") << "TriggerSource"
                             << "TriggerMode"
                             << "Off"
                             << "On";
    QTest::newRow("edge") << "TriggerActivation"
                          << "TriggerMode"
                          << "Off"
                          << "On";
    QTest::newRow("debounce") << "TriggerDebounce"
                              << "TriggerMode"
                              << "Off"
                              << "On";
    QTest::newRow("software trigger") << "TriggerSoftware"
                                      << "TriggerMode"
                                      << "Off"
                                      << "On";
    QTest::newRow("strobe delay") << "Strobe2Delay"
                                  << "Strobe2Mode"
                                  << "Off"
                                  << "On";
    QTest::newRow("pulse count") << "PulseGenNumPulses"
                                 << "PulseGenMode"
                                 << "Continuous"
                                 << "NumberOfPulses";
    QTest::newRow("wide dynamic range") << "Frame_WdrE2"
                                        << "Frame_WdrEnable"
                                        << "false"
                                        << "true";
    QTest::newRow("knee point") << "Frame_WdrP1"
                                << "Frame_WdrEnable"
                                << "false"
                                << "true";
    QTest::newRow("white balance") << "RedCoefficient"
                                   << "BalanceWhiteAuto"
                                   << "Auto"
                                   << "Off";
    QTest::newRow("threshold") << "HotPixelThreshold"
                               << "HotPixelCorrection"
                               << "Static"
                               << "Dynamic";
    QTest::newRow("persistent address") << "GevPersistentIPAddress"
                                        << "GevCurrentIPConfigurationPersistentIP"
                                        << "false"
                                        << "true";
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

void TestDescriptions::framesHaveBanksOfTheirOwn()
{
    const Held<OrvCam::Device> device = open(twoFrame);
    OrvGenParam::Array *const array = device->GetCameraParameters(nullptr);
    OrvGenParam::Enum *const selector = array->GetEnum("FrameAB_Selector", nullptr);
    OrvGenParam::Int *const lines = array->GetInt("Frame_ExposureLines", nullptr);

    QCOMPARE(selector->GetValueStr(nullptr), "FrameA");
    QCOMPARE(lines->SetValue(20), OrvCamErr_Ok);
    QCOMPARE(selector->SetValueStr("FrameB"), OrvCamErr_Ok);
    QCOMPARE(lines->GetValue(nullptr), std::int64_t(200));
    QCOMPARE(array->GetIntegerValue("Width", nullptr), std::int64_t(640));
    QCOMPARE(lines->SetValue(300), OrvCamErr_Ok);
    QCOMPARE(selector->SetValueStr("FrameA"), OrvCamErr_Ok);
    QCOMPARE(lines->GetValue(nullptr), std::int64_t(20));
    QCOMPARE(array->GetIntegerValue("Width", nullptr), std::int64_t(1920));
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
