#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QStandardItemModel>

using namespace DialogTest;
using OrvGui::OrvCamConfigOutputDialog;

class OrvCamConfigOutputDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void thresholdsNeedTheirCorrection();
    void formatsFollowTheDepth();
    void tellsRefusedWrites();
    void hidesTheCameraLinkGroup();
    void controlsAreDisabledWhereTheCameraLacksFeatures();
    void isDisabledWithoutADevice();
    void keepsTheRulesOfFeatureDialogs();
    void cutsNothing();
};

void OrvCamConfigOutputDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigOutputDialogTest::bindsBothWays_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("next"); // what the user sets: for a list, the item after the current one
    QTest::addColumn<QByteArray>("reported");
    const auto row = [](const char *feature, const char *control, const char *next, const char *reported) {
        QTest::newRow(feature) << QString::fromLatin1(control) << QByteArray(next) << QByteArray(reported);
    };
    row("PixelFormat", "cmBoxPixelFormat", "BayerRG10", "BayerRG12");
    row("SensorADCBitDepth11", "cmBoxTaps", "Taps4", "Taps1");
    row("SensorADCBitDepth", "cmBoxDepth", "Bits12", "Bits8");
    row("TestPattern", "cmBoxTestMode", "GreyHorizontalRamp", "Checkerboard");
    row("LUTSelector", "cmBoxLut", "LUT2", "LUT1");
    row("DefectPixelCorrection", "cmBoxDpc", "Dynamic", "Off");
    row("HotPixelCorrection", "cmBoxHpc", "Dynamic", "Off");
    row("DefectPixelThreshold", "spBoxDpcDynThres", "77", "4095");
    row("HotPixelThreshold", "spBoxHpcDynThres", "78", "0");
    row("LUTEnable", "chBoxEnableLut", "true", "false");
    row("ReverseX", "chBoxHorMirror", "true", "false");
    row("ReverseY", "chBoxVerMirror", "true", "false");
}

void OrvCamConfigOutputDialogTest::bindsBothWays()
{
    QFETCH(QString, control);
    QFETCH(QByteArray, next);
    QFETCH(QByteArray, reported);
    const char *const feature = QTest::currentDataTag();
    const Camera camera;
    camera.set("DefectPixelCorrection", qstrcmp(feature, "DefectPixelThreshold") == 0 ? "Dynamic" : "Static");
    camera.set("HotPixelCorrection", qstrcmp(feature, "HotPixelThreshold") == 0 ? "Dynamic" : "Static");
    if (qstrcmp(feature, "SensorADCBitDepth") == 0)
        camera.set("SensorADCBitDepth", "Bits10");
    OrvCamConfigOutputDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device())); // twice makes no second write
    QVERIFY(show(dialog));
    auto *const widget = part<QWidget>(dialog, control.toLatin1());
    QVERIFY(widget && widget->isEnabled());
    QCOMPARE(shownBy(widget), camera.value(feature));
    camera.takeWrites();

    enterInto(widget, next);
    QCOMPARE(camera.value(feature), QString::fromLatin1(next));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(camera.set(feature, reported));
    QCOMPARE(shownBy(widget), QString::fromLatin1(reported));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(!shownMessage());
}

void OrvCamConfigOutputDialogTest::thresholdsNeedTheirCorrection()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    QVERIFY(show(dialog));
    const std::pair<const char *, const char *> pairs[] = {{"cmBoxDpc", "spBoxDpcDynThres"},
                                                           {"cmBoxHpc", "spBoxHpcDynThres"}};
    for (const auto &[mode, threshold] : pairs) {
        auto *const box = part<QComboBox>(dialog, mode);
        auto *const spinBox = part<QtOrvSpinBox>(dialog, threshold);
        QCOMPARE(spinBox->leftLabelText(), QStringLiteral("Dyn.Thres.:"));
        QVERIFY(choose(box, "Dynamic"));
        QVERIFY(spinBox->isEnabled());
        QVERIFY(choose(box, "Off"));
        QVERIFY(!spinBox->isEnabled());
    }
}

void OrvCamConfigOutputDialogTest::formatsFollowTheDepth()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    auto *const box = part<QComboBox>(dialog, "cmBoxPixelFormat");
    const auto isChoosable = [&](const char *format) {
        const int row = box->findText(QLatin1String(format));
        return row >= 0 && qobject_cast<QStandardItemModel *>(box->model())->item(row)->isEnabled();
    };
    QVERIFY(isChoosable("BayerRG8") && isChoosable("BayerRG12"));
    QVERIFY(camera.set("SensorADCBitDepth", "Bits10"));
    QVERIFY(isChoosable("BayerRG10") && !isChoosable("BayerRG12"));
    QVERIFY(camera.set("SensorADCBitDepth", "Bits8"));
    QVERIFY(isChoosable("BayerRG8") && !isChoosable("BayerRG10"));
    QVERIFY(camera.set("SensorADCBitDepth", "Bits12"));
    QVERIFY(isChoosable("BayerRG12"));
}

void OrvCamConfigOutputDialogTest::tellsRefusedWrites()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    QVERIFY(show(dialog));
    const std::pair<const char *, const char *> refused[] = {
        {"TestPattern", "cmBoxTestMode"}, {"HotPixelThreshold", "spBoxHpcDynThres"}, {"ReverseX", "chBoxHorMirror"}};
    for (const auto &[feature, control] : refused) {
        QVERIFY(camera.refuse(feature));
        auto *const widget = part<QWidget>(dialog, control);
        const QString before = camera.value(feature);
        if (auto *const box = qobject_cast<QComboBox *>(widget))
            QTest::keyClick(box, Qt::Key_Down); // one step; each would be told
        else
            enterInto(widget, "5");
        QVERIFY(shownMessage());
        QCOMPARE(shownMessage()->parentWidget(), widget);
        QCOMPARE(takeMessage(), refusal(feature, "GenICam: Generic error"));
        QCOMPARE(camera.value(feature), before);
    }
}

void OrvCamConfigOutputDialogTest::hidesTheCameraLinkGroup()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    QCOMPARE(dialog.size(), QSize(314, 495));
    QVERIFY(show(dialog));
    auto *const group = part<QGroupBox>(dialog, "groupBox");
    QVERIFY(!group->isVisible());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(!group->isVisible());
}

void OrvCamConfigOutputDialogTest::controlsAreDisabledWhereTheCameraLacksFeatures()
{
    const char *const name = plugInBareCamera();
    QVERIFY(name);
    const Camera camera(name);
    OrvCamConfigOutputDialog dialog(nullptr);
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(dialog.isEnabled());
    const auto widgets = dialog.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (widget->inherits("QComboBox") || widget->inherits("QtOrvSpinBox") || widget->inherits("QCheckBox"))
            QVERIFY2(!widget->isEnabled(), qPrintable(widget->objectName()));
    }
    checkNothingIsCut(dialog);
    QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
}

void OrvCamConfigOutputDialogTest::isDisabledWithoutADevice()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(nullptr);
    QVERIFY(!dialog.isEnabled());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(dialog.isEnabled());
    QVERIFY(!dialog.SetDevice(nullptr));
    QVERIFY(!dialog.isEnabled());
    QVERIFY(camera.set("TestPattern", "Checkerboard"));
    QCOMPARE(part<QComboBox>(dialog, "cmBoxTestMode")->currentText(), QStringLiteral("Off"));
}

void OrvCamConfigOutputDialogTest::keepsTheRulesOfFeatureDialogs()
{
    const Camera camera;
    checkKeysAndClosing<OrvCamConfigOutputDialog>(camera.device());
    checkDevicesInTurn<OrvCamConfigOutputDialog>(SimTest::twoFrame);
    checkNoParameters<OrvCamConfigOutputDialog>(SimTest::twoFrame);
}

void OrvCamConfigOutputDialogTest::cutsNothing()
{
    const Camera color;
    const Camera monochrome(SimTest::monochrome);
    OrvCamConfigOutputDialog dialog(nullptr);
    checkNothingIsCut(dialog);
    // The items of the box come after it was first shown.
    for (OrvCam::Device *const device : {monochrome.device(), color.device()}) {
        QVERIFY(dialog.SetDevice(device));
        checkNothingIsCut(dialog);
    }
    auto *const spinBox = part<QtOrvSpinBox>(dialog, "spBoxDpcDynThres");
    dialog.hide();
    QVERIFY(show(dialog));
    QCOMPARE(spinBox->slider()->height(), spinBox->sizeHint().width() - spinBox->leftLabel()->width());
}

ORV_TEST_MAIN(OrvCamConfigOutputDialogTest)

#include "tst_orvcamconfigoutputdialog.moc"
