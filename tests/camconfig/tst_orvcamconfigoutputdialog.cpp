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
    addBindings({{"PixelFormat", "cmBoxPixelFormat", "BayerRG10", "BayerRG12"},
                 {"SensorADCBitDepth11", "cmBoxTaps", "Taps4", "Taps1"},
                 {"SensorADCBitDepth", "cmBoxDepth", "Bits12", "Bits8"},
                 {"TestPattern", "cmBoxTestMode", "GreyHorizontalRamp", "Checkerboard"},
                 {"LUTSelector", "cmBoxLut", "LUT2", "LUT1"},
                 {"DefectPixelCorrection", "cmBoxDpc", "Dynamic", "Off"},
                 {"HotPixelCorrection", "cmBoxHpc", "Dynamic", "Off"},
                 {"DefectPixelThreshold", "spBoxDpcDynThres", "77", "4095"},
                 {"HotPixelThreshold", "spBoxHpcDynThres", "78", "0"},
                 {"LUTEnable", "chBoxEnableLut", "true", "false"},
                 {"ReverseX", "chBoxHorMirror", "true", "false"},
                 {"ReverseY", "chBoxVerMirror", "true", "false"}});
}

void OrvCamConfigOutputDialogTest::bindsBothWays()
{
    const char *const feature = QTest::currentDataTag();
    const Camera camera;
    camera.set("DefectPixelCorrection", qstrcmp(feature, "DefectPixelThreshold") == 0 ? "Dynamic" : "Static");
    camera.set("HotPixelCorrection", qstrcmp(feature, "HotPixelThreshold") == 0 ? "Dynamic" : "Static");
    if (qstrcmp(feature, "SensorADCBitDepth") == 0)
        camera.set("SensorADCBitDepth", "Bits10");
    checkBinding<OrvCamConfigOutputDialog>(camera);
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
        QCOMPARE(spinBox->leftLabelText(), OrvTest::translated("OrvGui::OrvCamConfigOutputDialog", "Dyn.Thres.:"));
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
    const Camera former;
    QVERIFY(former.set("ReverseX", "true"));
    OrvCamConfigOutputDialog dialog(former.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(dialog.isEnabled());
    const auto widgets = dialog.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (widget->inherits("QComboBox") || widget->inherits("QtOrvSpinBox") || widget->inherits("QCheckBox"))
            QVERIFY2(!widget->isEnabled(), qPrintable(widget->objectName()));
    }
    for (const char *const control : {"cmBoxPixelFormat", "spBoxHpcDynThres", "chBoxHorMirror"})
        QVERIFY2(QStringList({QString(), QStringLiteral("0"), QStringLiteral("false")})
                     .contains(shownBy(part<QWidget>(dialog, control))),
                 control);
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
