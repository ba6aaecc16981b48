#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <QLabel>
#include <QPixmap>

using namespace DialogTest;
using OrvGui::OrvCamConfigStrobeDialog;

class OrvCamConfigStrobeDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void timesNeedTheirStrobe();
    void sliderCoversShortAndLongTimes();
    void pictureFollowsTheReferences();
    void pictureNeedsBothReferences();
    void survivesTheCameraWhileEdited();
    void disablesWhatTheCameraLacks();
    void keepsTheRulesOfFeatureDialogs();
};

namespace {

QString pictureOf(const QWidget &dialog)
{
    const QImage shown = part<QLabel>(dialog, "lblStrobeImage")->pixmap(Qt::ReturnByValue).toImage();
    for (const char *const name :
         {"strobeBothExp", "strobe1Exp_strobe2Read", "strobe1Read_strobe2Exp", "strobeBothRead"}) {
        if (shown == QPixmap(QStringLiteral(":/images/%1.bmp").arg(QLatin1String(name))).toImage())
            return QLatin1String(name);
    }
    return {};
}

} // namespace

void OrvCamConfigStrobeDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigStrobeDialogTest::bindsBothWays_data()
{
    addBindings({{"Strobe1Mode", "cmBoxStrobe1Mode", "Off", "On"},
                 {"Strobe2Mode", "cmBoxStrobe2Mode", "Off", "On"},
                 {"Strobe1Reference", "cmBoxStrobe1Ref", "ReadoutStart", "ExposureStart"},
                 {"Strobe2Reference", "cmBoxStrobe2Ref", "ExposureStart", "ReadoutStart"},
                 {"OUT1Polarity", "cmBoxOut1Polarity", "ActiveLow", "ActiveHigh"},
                 {"OUT2Polarity", "cmBoxOut2Polarity", "ActiveHigh", "ActiveLow"},
                 {"OUT1Selector", "cmBoxOut1Selector", "Strobe2", "Strobe1"},
                 {"OUT2Selector", "cmBoxOut2Selector", "Exposure", "TriggerPulse"},
                 // Numbers that are and numbers that are not positions of the sliders.
                 {"Strobe1Delay", "spBoxStrobe1Delay", "1000", "0"},
                 {"Strobe2Delay", "spBoxStrobe2Delay", "123457", "1000000"},
                 {"Strobe1Width", "spBoxStrobe1Width", "1", "54321"},
                 {"Strobe2Width", "spBoxStrobe2Width", "999999", "1001"}});
}

void OrvCamConfigStrobeDialogTest::bindsBothWays()
{
    const Camera camera;
    QVERIFY(camera.set("Strobe2Mode", "On"));
    checkBinding<OrvCamConfigStrobeDialog>(camera);
}

void OrvCamConfigStrobeDialogTest::timesNeedTheirStrobe()
{
    const Camera camera;
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(show(dialog));
    for (const QByteArray strobe : {"Strobe1", "Strobe2"}) {
        auto *const mode = part<QComboBox>(dialog, "cmBox" + strobe + "Mode");
        for (const char *const state : {"On", "Off", "On"}) {
            enterInto(mode, state);
            const bool isOn = qstrcmp(state, "On") == 0;
            QCOMPARE(part<QWidget>(dialog, "spBox" + strobe + "Delay")->isEnabled(), isOn);
            QCOMPARE(part<QWidget>(dialog, "spBox" + strobe + "Width")->isEnabled(), isOn);
        }
    }
}

void OrvCamConfigStrobeDialogTest::sliderCoversShortAndLongTimes()
{
    const Camera camera;
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const delay = part<QtOrvSliderSpinBox>(dialog, "spBoxStrobe1Delay");
    QCOMPARE(delay->leftLabelText(),
             OrvTest::translated("OrvGui::OrvCamConfigStrobeDialog", "Delay [%1s]:").arg(QChar(0x3bc)));
    QCOMPARE(part<QtOrvSliderSpinBox>(dialog, "spBoxStrobe2Width")->leftLabelText(),
             OrvTest::translated("OrvGui::OrvCamConfigStrobeDialog", "Width [%1s]:").arg(QChar(0x3bc)));
    QSlider *const slider = delay->slider()->slider();
    camera.takeWrites();
    QTest::keyClick(slider, Qt::Key_Home);
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(camera.value("Strobe1Delay"), QStringLiteral("1"));
    QTest::keyClick(slider, Qt::Key_End);
    QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(camera.value("Strobe1Delay").toInt() < 999000); // the steps are as large as the times
    QCOMPARE(camera.takeWrites(), 4);
    QCOMPARE(shownBy(delay), camera.value("Strobe1Delay"));
}

void OrvCamConfigStrobeDialogTest::pictureFollowsTheReferences()
{
    const Camera camera;
    const Camera other(SimTest::monochrome);
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobe1Exp_strobe2Read"));
    auto *const first = part<QComboBox>(dialog, "cmBoxStrobe1Ref");
    auto *const second = part<QComboBox>(dialog, "cmBoxStrobe2Ref");
    enterInto(second, "ExposureStart");
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
    enterInto(first, "ReadoutStart");
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobe1Read_strobe2Exp"));
    QVERIFY(camera.set("Strobe2Reference", "ReadoutStart"));
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothRead"));

    QVERIFY(other.set("Strobe2Reference", "ExposureStart"));
    QVERIFY(dialog.SetDevice(other.device()));
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
    QVERIFY(camera.set("Strobe1Reference", "ReadoutStart")); // no longer shown
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
    for (const QString &name : {QStringLiteral("strobeBothExp"), QStringLiteral("strobe1Exp_strobe2Read"),
                                QStringLiteral("strobe1Read_strobe2Exp"), QStringLiteral("strobeBothRead")}) {
        const QPixmap fine(QStringLiteral(":/images/%1@2x.bmp").arg(name));
        QCOMPARE(fine.size(), 2 * QPixmap(QStringLiteral(":/images/%1.bmp").arg(name)).size());
        QCOMPARE(fine.devicePixelRatio(), 2.0);
    }
}

/** While a reference cannot be set the picture stays; what it missed shows when both can be set again. */
void OrvCamConfigStrobeDialogTest::pictureNeedsBothReferences()
{
    {
        const Camera camera(plugInChangedCamera({"Strobe2Reference"}));
        OrvCamConfigStrobeDialog dialog(camera.device());
        QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
        QVERIFY(camera.set("Strobe1Reference", "ReadoutStart"));
        QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
    }
    OrvSim::reset();
    const char *const end = "</DisplayName>";
    const Camera camera(plugInChangedCamera(
        {}, {{QByteArray("Strobe2 Reference") + end, QByteArray("2") + end + "<pIsLocked>Strobe2IsOff</pIsLocked>"}}));
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(!part<QWidget>(dialog, "cmBoxStrobe2Ref")->isEnabled());
    QVERIFY(camera.set("Strobe1Reference", "ReadoutStart"));
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothExp"));
    QVERIFY(camera.set("Strobe2Mode", "On"));
    QCOMPARE(pictureOf(dialog), QStringLiteral("strobeBothRead"));
}

void OrvCamConfigStrobeDialogTest::survivesTheCameraWhileEdited()
{
    for (const bool isTold : {false, true}) {
        const Camera camera;
        OrvCamConfigStrobeDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const delay = part<QtOrvSliderSpinBox>(dialog, "spBoxStrobe1Delay");
        type(delay->spinBox(), "77");
        camera.takeWrites();
        QVERIFY(OrvSim::unplug(SimTest::twoFrame));
        if (isTold)
            QVERIFY(!dialog.SetDevice(nullptr));
        QTest::keyClick(delay->spinBox(), Qt::Key_Return);
        QVERIFY(!shownMessage());
        QCOMPARE(camera.takeWrites(), 0);
        QVERIFY(OrvSim::replug(SimTest::twoFrame));
        QCOMPARE(camera.value("Strobe1Delay"), QStringLiteral("100"));
        QVERIFY(dialog.SetDevice(camera.device()));
        QCOMPARE(shownBy(delay), QStringLiteral("100"));
    }
}

void OrvCamConfigStrobeDialogTest::disablesWhatTheCameraLacks()
{
    const Camera full;
    const Camera bare(plugInBareCamera());
    OrvCamConfigStrobeDialog dialog(full.device());
    QVERIFY(dialog.SetDevice(bare.device()));
    const auto controls = dialog.findChildren<QComboBox *>();
    QCOMPARE(controls.size(), 8);
    for (const QComboBox *const control : controls)
        QVERIFY(!control->isEnabled() && control->currentText().isEmpty());
    const auto times = dialog.findChildren<QtOrvSliderSpinBox *>();
    for (const QtOrvSliderSpinBox *const control : times)
        QVERIFY(!control->isEnabled());
}

void OrvCamConfigStrobeDialogTest::keepsTheRulesOfFeatureDialogs()
{
    checkFeatureDialog<OrvCamConfigStrobeDialog>();
}

ORV_TEST_MAIN(OrvCamConfigStrobeDialogTest)

#include "tst_orvcamconfigstrobedialog.moc"
