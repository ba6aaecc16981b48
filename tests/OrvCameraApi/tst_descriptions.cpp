// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simtest.h"

#include <orvtest.h>

#include <GenApi/GenApi.h>

#include <tuple>

using namespace SimTest;

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

    void everyFeatureAnswers()
    {
        // The owner, what cannot be read, what is not to be read.
        const std::tuple<const char *, const char *, const char *> rows[] = {
            {twoFrame, "KindReadFails",
             "AcquisitionFrameCount AcquisitionFrameRate GevPersistentDefaultGateway GevPersistentIPAddress "
             "GevPersistentSubnetMask KindNotImplemented KindUnavailable KindWriteOnly TriggerSoftware"},
            {monochrome, "", "AcquisitionFrameCount AcquisitionFrameRate TriggerSoftware"},
            {"ORV-ETH-0", "", ""},
            {"ORV-XHCI-0", "", ""},
            {"ORV-CL-0", "", "DeviceAccessStatus DeviceSelector"},
        };
        const auto words = [](const char *text) {
            return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        };
        const Held<OrvCam::System> system = getSystem();
        for (const auto &[owner, failing, silent] : rows) {
            const Held<OrvCam::Device> device = open(owner);
            OrvGenParam::Array *array = device ? device->GetCameraParameters(nullptr) : nullptr;
            for (OrvCam::Interface *interface : interfacesOf(*system)) {
                if (std::strcmp(owner, interface->GetID()) == 0)
                    array = interface->GetParameters(nullptr);
            }
            QVERIFY2(array, owner);
            QCOMPARE(readAll(*array->GetNodeMap(), words(failing)), words(silent));
        }
    }

    void registersLiveByBeingRead()
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
};

ORV_TEST_MAIN(TestDescriptions)
#include "tst_descriptions.moc"
