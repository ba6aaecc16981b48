#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QLabel>

#include <thread>

using namespace DialogTest;
using OrvGui::OrvCamConfigColorDialog;

namespace {

/** The dialog on the color camera. */
struct ColorDialog
{
    Camera camera;
    OrvCamConfigColorDialog dialog{camera.device()};
    QComboBox *const mode = part<QComboBox>(dialog, "cmBoxWhiteBalance");
    QComboBox *const speed = part<QComboBox>(dialog, "cmBoxTrackingSpeed");
    QtOrvSpinBox *const red = part<QtOrvSpinBox>(dialog, "spBoxRed");
    QtOrvSpinBox *const green = part<QtOrvSpinBox>(dialog, "spBoxGreen");
    QtOrvSpinBox *const blue = part<QtOrvSpinBox>(dialog, "spBoxBlue");
};

} // namespace

class OrvCamConfigColorDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesWhatTheUserDoes();
    void showsWhatTheCameraReports();
    void unitySetsTheGainToOne_data();
    void unitySetsTheGainToOne();
    void statisticsFollowWhileTheUserTypes();
    void statisticsAreAsWideAsTheLargestCoefficient();
    void controlsFollowTheMode();
    void isDisabledWhereTheCameraLacksFeatures();
    void tellsRefusedWrites();
    void outlivesItsCamera();
    void hearsOtherThreads();
    void keepsTheRulesOfFeatureDialogs();
    void cutsNothing();
};

void OrvCamConfigColorDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigColorDialogTest::writesWhatTheUserDoes()
{
    ColorDialog d;
    QVERIFY(show(d.dialog));
    d.camera.takeWrites();
    QVERIFY(chooseByInitial(d.mode, "Auto"));
    QCOMPARE(d.camera.value("BalanceWhiteAuto"), QStringLiteral("Auto"));
    QCOMPARE(d.camera.takeWrites(), 1);
    QVERIFY(chooseByInitial(d.speed, "Fast"));
    QCOMPARE(d.camera.value("AutoTrackingSpeed"), QStringLiteral("Fast"));
    QCOMPARE(d.camera.takeWrites(), 1);
    QVERIFY(d.camera.set("BalanceWhiteAuto", "Off"));
    d.camera.takeWrites();
    const std::pair<QtOrvSpinBox *, const char *> coefficients[] = {
        {d.red, "RedCoefficient"}, {d.green, "GreenCoefficient"}, {d.blue, "BlueCoefficient"}};
    for (const auto &[spinBox, feature] : coefficients) {
        enter(spinBox->spinBox(), "1234");
        QCOMPARE(d.camera.value(feature), QStringLiteral("1234"));
        QCOMPARE(d.camera.takeWrites(), 1);
        QVERIFY(!d.dialog.isHidden()); // Enter commits and does nothing else
    }
}

void OrvCamConfigColorDialogTest::showsWhatTheCameraReports()
{
    ColorDialog d;
    d.camera.takeWrites();
    QVERIFY(d.camera.set("BlueCoefficient", "77"));
    QVERIFY(d.camera.set("RedCoefficient", "4095"));
    QVERIFY(d.camera.set("GreenCoefficient", "0"));
    QVERIFY(d.camera.set("BalanceWhiteAuto", "Auto"));
    QVERIFY(d.camera.set("AutoTrackingSpeed", "Slow"));
    QCOMPARE(d.mode->currentText(), QStringLiteral("Auto"));
    QCOMPARE(d.speed->currentText(), QStringLiteral("Slow"));
    QCOMPARE(d.red->value(), 4095);
    QCOMPARE(d.green->value(), 0);
    QCOMPARE(d.blue->value(), 77);
    QCOMPARE(d.camera.takeWrites(), 5); // ours
}

void OrvCamConfigColorDialogTest::unitySetsTheGainToOne_data()
{
    QTest::addColumn<QString>("color");
    for (const char *const color : {"Red", "Green", "Blue"})
        QTest::newRow(color) << QString::fromLatin1(color);
}

void OrvCamConfigColorDialogTest::unitySetsTheGainToOne()
{
    QFETCH(QString, color);
    ColorDialog d;
    const QByteArray feature = (color + QStringLiteral("Coefficient")).toLatin1();
    auto *const unity = d.dialog.findChild<QPushButton *>(QStringLiteral("pushBtn%1Unity").arg(color));
    auto *const spinBox = d.dialog.findChild<QtOrvSpinBox *>(QStringLiteral("spBox") + color);
    QVERIFY(d.dialog.SetDevice(d.camera.device())); // a second time; the button still acts once
    QVERIFY(show(d.dialog));
    QVERIFY(d.camera.set(feature, "999"));
    d.camera.takeWrites();
    QTest::mouseClick(unity, Qt::LeftButton);
    QCOMPARE(spinBox->value(), 256);
    QCOMPARE(d.camera.value(feature), QStringLiteral("256"));
    QCOMPARE(d.camera.takeWrites(), 1);
    QVERIFY(d.camera.set("BalanceWhiteAuto", "Auto"));
    QVERIFY(!unity->isEnabled());
}

void OrvCamConfigColorDialogTest::statisticsFollowWhileTheUserTypes()
{
    ColorDialog d;
    QVERIFY(show(d.dialog));
    auto *const shown = part<QLabel>(d.dialog, "lblRedCoef");
    QCOMPARE(shown->text(), d.camera.value("RedCoefficient"));
    type(d.red->spinBox(), "12");
    QVERIFY(d.camera.set("RedCoefficient", "300"));
    QCOMPARE(shown->text(), QStringLiteral("300"));
    QCOMPARE(part<QLabel>(d.dialog, "lblGreenCoef")->text(), d.camera.value("GreenCoefficient"));
    QVERIFY(d.camera.set("BlueCoefficient", "301"));
    QCOMPARE(part<QLabel>(d.dialog, "lblBlueCoef")->text(), QStringLiteral("301"));
}

void OrvCamConfigColorDialogTest::statisticsAreAsWideAsTheLargestCoefficient()
{
    ColorDialog d;
    QCOMPARE(d.red->maximum(), 4095);
    for (const char *const name : {"lblRedCoef", "lblGreenCoef", "lblBlueCoef"}) {
        auto *const label = part<QLabel>(d.dialog, name);
        const QFontMetrics metrics = label->fontMetrics();
        const int width =
            metrics.horizontalAdvance(QStringLiteral("4095")) + metrics.horizontalAdvance(QLatin1Char(' '));
        QCOMPARE(label->minimumWidth(), width);
        QCOMPARE(label->maximumWidth(), width);
    }
}

void OrvCamConfigColorDialogTest::controlsFollowTheMode()
{
    ColorDialog d;
    QVERIFY(show(d.dialog));
    QVERIFY(d.red->isEnabled() && !d.speed->isEnabled());
    QVERIFY(chooseByInitial(d.mode, "Auto"));
    QVERIFY(!d.red->isEnabled() && !d.green->isEnabled() && !d.blue->isEnabled() && d.speed->isEnabled());
    QVERIFY(d.camera.set("BalanceWhiteAuto", "Off"));
    QVERIFY(d.red->isEnabled() && d.green->isEnabled() && d.blue->isEnabled() && !d.speed->isEnabled());
}

void OrvCamConfigColorDialogTest::isDisabledWhereTheCameraLacksFeatures()
{
    ColorDialog d;
    const auto controls = [&] {
        QWidgetList enabled;
        for (QWidget *const control : d.dialog.findChildren<QWidget *>()) {
            const bool isControl =
                control->inherits("QComboBox") || control->inherits("QtOrvSpinBox") || control->inherits("QPushButton");
            if (isControl && control->isEnabled())
                enabled.append(control);
        }
        return enabled;
    };
    QCOMPARE(controls().size(), 7); // without the tracking speed
    const Camera monochrome(SimTest::monochrome);
    QVERIFY(d.dialog.SetDevice(monochrome.device()));
    QVERIFY(controls().isEmpty());
    QVERIFY(!part<QLabel>(d.dialog, "lblRedCoef")->isEnabled());
    QVERIFY(d.dialog.SetDevice(d.camera.device()));
    QCOMPARE(controls().size(), 7);
    QVERIFY(!d.dialog.SetDevice(nullptr));
    QVERIFY(controls().isEmpty());
    QVERIFY(d.dialog.isEnabled());
}

void OrvCamConfigColorDialogTest::tellsRefusedWrites()
{
    ColorDialog d;
    QVERIFY(show(d.dialog));
    QVERIFY(d.camera.refuse("GreenCoefficient"));
    QVERIFY(d.camera.refuse("BalanceWhiteAuto"));
    enter(d.green->spinBox(), "700");
    QVERIFY(shownMessage());
    QCOMPARE(shownMessage()->parentWidget(), d.green);
    QCOMPARE(takeMessage(), refusal("GreenCoefficient", "GenICam: Generic error"));
    QCOMPARE(d.camera.value("GreenCoefficient"), QStringLiteral("256"));
    QTest::keyClick(d.mode, Qt::Key_End);
    QVERIFY(shownMessage());
    QCOMPARE(shownMessage()->parentWidget(), d.mode);
    QCOMPARE(takeMessage(), refusal("BalanceWhiteAuto", "GenICam: Generic error"));
}

void OrvCamConfigColorDialogTest::outlivesItsCamera()
{
    auto d = std::make_unique<ColorDialog>();
    QVERIFY(show(d->dialog));
    type(d->red->spinBox(), "700");
    OrvSim::unplug(SimTest::twoFrame);
    QTest::keyClick(d->red->spinBox(), Qt::Key_Return); // too late
    OrvSim::replug(SimTest::twoFrame);
    QCOMPARE(d->camera.value("RedCoefficient"), QStringLiteral("380"));

    QVERIFY(d->camera.refuse("GreenCoefficient"));
    enter(d->green->spinBox(), "700");
    QVERIFY(!d->dialog.SetDevice(nullptr) && !d->green->isEnabled());
    QCOMPARE(takeMessage(), refusal("GreenCoefficient", "GenICam: Generic error"));
    QVERIFY(d->dialog.SetDevice(d->camera.device()) && d->green->isEnabled());
    enter(d->green->spinBox(), "700");
    const QPointer<QMessageBox> message = shownMessage();
    QVERIFY(message);
    d.reset();
    QVERIFY(!message);
}

void OrvCamConfigColorDialogTest::hearsOtherThreads()
{
    ColorDialog d;
    auto *const shown = part<QLabel>(d.dialog, "lblRedCoef");
    std::thread([&] { d.camera.set("RedCoefficient", "300"); }).join();
    QTRY_COMPARE(shown->text(), QStringLiteral("300"));
    QTRY_COMPARE(d.red->value(), 300);
    std::thread([&] { d.camera.set("RedCoefficient", "301"); }).join();
    d.dialog.SetDevice(nullptr);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(d.red->value(), 300);
}

void OrvCamConfigColorDialogTest::keepsTheRulesOfFeatureDialogs()
{
    const Camera camera;
    checkKeysAndClosing<OrvCamConfigColorDialog>(camera.device());
    checkDevicesInTurn<OrvCamConfigColorDialog>(SimTest::twoFrame);
    checkNoParameters<OrvCamConfigColorDialog>(SimTest::twoFrame);
}

void OrvCamConfigColorDialogTest::cutsNothing()
{
    const Camera monochrome(SimTest::monochrome);
    ColorDialog d;
    checkNothingIsCut(d.dialog);
    d.dialog.SetDevice(monochrome.device());
    checkNothingIsCut(d.dialog);
    // The pop-up slider is as long as the field is wide.
    QCOMPARE(d.red->slider()->height(), d.red->sizeHint().width());
    d.dialog.SetDevice(nullptr);
    checkNothingIsCut(d.dialog);
}

ORV_TEST_MAIN(OrvCamConfigColorDialogTest)

#include "tst_orvcamconfigcolordialog.moc"
