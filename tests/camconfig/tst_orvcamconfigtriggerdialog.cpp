#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

#include <QCheckBox>

#include <array>
#include <thread>
#include <utility>

using namespace DialogTest;
using OrvGui::OrvCamConfigTriggerDialog;

class OrvCamConfigTriggerDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void switchesTriggering();
    void triggersBySoftware();
    void rulesFollowTheCamera();
    void rulesDecideAlone();
    void rulesHoldForMissingFeatures();
    void nothingIsLeftOfTheFormerCamera();
    void survivesTheCameraWhileEdited();
    void keepsTheRulesOfFeatureDialogs();
};

namespace {

const std::array<const char *, 3> lists = {"cmBoxSource", "cmBoxEdge", "cmBoxDebounce"};

/** Which parts can be used: the switch, the lists, the button; a letter each, "-" for what cannot. */
QString enabledParts(const QWidget &dialog)
{
    const std::pair<const char *, char> parts[] = {{"chBoxEnable", 'E'},
                                                   {"cmBoxSource", 's'},
                                                   {"cmBoxEdge", 'e'},
                                                   {"cmBoxDebounce", 'd'},
                                                   {"pushBtnSoftwareTrigger", 'T'}};
    QString enabled;
    for (const auto &[name, letter] : parts)
        enabled.append(QLatin1Char(part<QWidget>(dialog, name)->isEnabled() ? letter : '-'));
    return enabled;
}

const QString all = QStringLiteral("EsedT");
const QString allButTheButton = QStringLiteral("Esed-");
const QString theSwitch = QStringLiteral("E----");

} // namespace

void OrvCamConfigTriggerDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigTriggerDialogTest::bindsBothWays_data()
{
    addBindings({{"TriggerSource", "cmBoxSource", "PulseGenerator", "IN2"},
                 {"TriggerActivation", "cmBoxEdge", "FallingEdge", "RisingEdge"},
                 {"TriggerDebounce", "cmBoxDebounce", "Us50", "Us100"}});
}

void OrvCamConfigTriggerDialogTest::bindsBothWays()
{
    const Camera camera;
    QVERIFY(camera.set("TriggerMode", "On"));
    checkBinding<OrvCamConfigTriggerDialog>(camera);
}

void OrvCamConfigTriggerDialogTest::switchesTriggering()
{
    const Camera camera;
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    auto *const enable = part<QCheckBox>(dialog, "chBoxEnable");
    QCOMPARE(enabledParts(dialog), theSwitch);
    camera.takeWrites();
    clickMark(enable);
    QCOMPARE(camera.value("TriggerMode"), QStringLiteral("On"));
    QCOMPARE(enabledParts(dialog), all);
    QTest::keyClick(enable, Qt::Key_Space);
    QCOMPARE(camera.value("TriggerMode"), QStringLiteral("Off"));
    QCOMPARE(enabledParts(dialog), theSwitch);
    QCOMPARE(camera.takeWrites(), 2);

    QVERIFY(camera.refuse("TriggerMode"));
    QTest::keyClick(enable, Qt::Key_Space);
    QCOMPARE(takeMessage(), refusal("TriggerMode", "GenICam: Generic error"));
    QVERIFY(!enable->isChecked()); // the camera has told that it is still off
    QCOMPARE(enabledParts(dialog), theSwitch);
}

void OrvCamConfigTriggerDialogTest::triggersBySoftware()
{
    const Camera camera;
    QVERIFY(camera.set("TriggerMode", "On"));
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    auto *const button = part<QPushButton>(dialog, "pushBtnSoftwareTrigger");
    QCOMPARE(button->text(), OrvTest::translated("OrvCamConfigTriggerDialog", "Software\nTrigger"));
    camera.takeWrites();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(button->isEnabled());
    QVERIFY(camera.refuse("TriggerSoftware"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(takeMessage(), refusal("TriggerSoftware", "GenICam: Generic error"));

    auto *const source = part<QComboBox>(dialog, "cmBoxSource");
    enterInto(source, "IN1");
    QCOMPARE(enabledParts(dialog), allButTheButton);
    enterInto(source, "Software");
    QCOMPARE(enabledParts(dialog), all);
}

void OrvCamConfigTriggerDialogTest::rulesFollowTheCamera()
{
    const Camera camera;
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(camera.set("TriggerMode", "On"));
    QCOMPARE(enabledParts(dialog), all);
    QVERIFY(camera.set("TriggerSource", "IN2"));
    QCOMPARE(enabledParts(dialog), allButTheButton);
    QVERIFY(camera.set("TriggerSource", "Software"));
    QCOMPARE(enabledParts(dialog), all);
    QVERIFY(camera.set("TriggerMode", "Off"));
    QCOMPARE(enabledParts(dialog), theSwitch);
    std::thread([&] { camera.set("TriggerMode", "On"); }).join();
    QCOMPARE(enabledParts(dialog), theSwitch); // widgets belong to this thread
    QTRY_COMPARE(enabledParts(dialog), all);
}

/** On cameras whose features think otherwise. */
void OrvCamConfigTriggerDialogTest::rulesDecideAlone()
{
    const auto displayed = [](const char *name) { return QByteArray(name) + "</DisplayName>"; };
    const QByteArray lock = "<pIsLocked>TriggerIsOff</pIsLocked>";
    const QByteArray never = "<pIsLocked>TriggerIsBySoftware</pIsLocked>";
    const Camera camera(plugInChangedCamera({"TriggerSoftware"},
                                            {{displayed("Trigger Activation") + lock, displayed("Edge")},
                                             {displayed("Trigger Debounce") + lock, displayed("Time") + never}}));
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(enabledParts(dialog), theSwitch);
    QVERIFY(camera.set("TriggerActivation", "FallingEdge")); // can be written while off
    QCOMPARE(shownBy(part<QWidget>(dialog, "cmBoxEdge")), QStringLiteral("FallingEdge"));
    QCOMPARE(enabledParts(dialog), theSwitch);
    QVERIFY(camera.set("TriggerMode", "On")); // locks the debounce time, and there is no command
    QCOMPARE(enabledParts(dialog), all);
    QVERIFY(camera.set("TriggerActivation", "RisingEdge"));
    QCOMPARE(enabledParts(dialog), all);
    camera.takeWrites();
    enterInto(part<QWidget>(dialog, "cmBoxDebounce"), "Us50");
    QTest::mouseClick(part<QWidget>(dialog, "pushBtnSoftwareTrigger"), Qt::LeftButton);
    QCOMPARE(camera.takeWrites(), 0);
    QVERIFY(!shownMessage());
}

/** Lists without a feature have nothing to choose from, but the switch enables them all the same. */
void OrvCamConfigTriggerDialogTest::rulesHoldForMissingFeatures()
{
    const Camera less(plugInChangedCamera({"TriggerSource", "TriggerActivation", "TriggerDebounce"}));
    OrvCamConfigTriggerDialog dialog(less.device());
    QCOMPARE(enabledParts(dialog), theSwitch);
    QVERIFY(less.set("TriggerMode", "On"));
    QCOMPARE(enabledParts(dialog), allButTheButton);
    for (const char *const list : lists)
        QCOMPARE(part<QComboBox>(dialog, list)->count(), 0);
}

void OrvCamConfigTriggerDialogTest::nothingIsLeftOfTheFormerCamera()
{
    const Camera bare(plugInBareCamera());
    const Camera camera;
    QVERIFY(camera.set("TriggerMode", "On"));
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(bare.device()));
    QVERIFY(dialog.isEnabled());
    QCOMPARE(enabledParts(dialog), QStringLiteral("-----"));
    QVERIFY(!part<QCheckBox>(dialog, "chBoxEnable")->isChecked());
    QCOMPARE(part<QComboBox>(dialog, "cmBoxSource")->count(), 0);
    QVERIFY(dialog.SetDevice(bare.device()));
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(enabledParts(dialog), all);
}

void OrvCamConfigTriggerDialogTest::survivesTheCameraWhileEdited()
{
    const Camera camera;
    QVERIFY(camera.set("TriggerMode", "On"));
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QVERIFY(OrvSim::unplug(SimTest::twoFrame));
    for (const char *const list : lists)
        QTest::keyClick(part<QWidget>(dialog, list), Qt::Key_Down);
    clickMark(part<QWidget>(dialog, "chBoxEnable"));
    QVERIFY(!shownMessage());
    QVERIFY(!dialog.SetDevice(nullptr));
    QVERIFY(OrvSim::replug(SimTest::twoFrame));
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(enabledParts(dialog), all);
}

void OrvCamConfigTriggerDialogTest::keepsTheRulesOfFeatureDialogs()
{
    checkFeatureDialog<OrvCamConfigTriggerDialog>();
}

ORV_TEST_MAIN(OrvCamConfigTriggerDialogTest)

#include "tst_orvcamconfigtriggerdialog.moc"
