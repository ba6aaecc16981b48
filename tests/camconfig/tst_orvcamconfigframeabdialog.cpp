// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "dialogtest.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigframeabdialog.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QLabel>
#include <QTabWidget>

using namespace DialogTest;
using OrvGui::OrvCamConfigFrameABDialog;

namespace {

QString shownTime(const QWidget &dialog)
{
    return shownBy(part<QWidget>(dialog, "spBoxExposureTime"));
}

} // namespace

class OrvCamConfigFrameABDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void exposureTimeIsSplitAndPutTogether()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
        QCOMPARE(time->value(), 105); // (10 * 1600 + 800) / 160
        QCOMPARE(time->maximum(), 20000); // the fixed period
        const std::tuple<const char *, const char *, const char *, int> entries[] = {
            {"231", "23", "160", 2}, {"235", "23", "800", 1}}; // as many lines
        for (const auto &[entered, lines, clocks, writes] : entries) {
            camera.takeWrites();
            enter(time->spinBox(), entered);
            QCOMPARE(camera.value("Frame_ExposureLines"), QLatin1String(lines));
            QCOMPARE(camera.value("Frame_ExposureClocks"), QLatin1String(clocks));
            QCOMPARE(camera.takeWrites(), writes);
            QCOMPARE(shownTime(dialog), QLatin1String(entered));
        }
        QVERIFY(camera.set("Frame_ExposureLines", "7"));
        QCOMPARE(time->value(), 75); // (7 * 1600 + 800) / 160
        enterInto(part<QWidget>(dialog, "chBoxFixedPeriod"), {});
        QCOMPARE(time->maximum(), 655359); // (65535 * 1600 + 1599) / 160
        QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "true"));
        QVERIFY(camera.set("Frame_FixedFramePeriodValue", "500"));
        QCOMPARE(time->maximum(), 5000);
        QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
        QCOMPARE(time->value(), 2000);
        QCOMPARE(time->maximum(), 655359);
        QCOMPARE(camera.takeWrites(), 5);
    }

    /** A whole period leaves no room for the read-out: the camera takes a line less. */
    void exposureTimeShowsWhatTheCameraTakes()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
        for (int i = 0; i < 2; ++i) { // each time
            enter(time->spinBox(), "20000");
            QCOMPARE(camera.value("Frame_ExposureLines"), QStringLiteral("1999"));
            QCOMPARE(camera.value("Frame_ExposureClocks"), QStringLiteral("0"));
            QCOMPARE(time->value(), 19990);
        }
        QVERIFY(camera.refuse("Frame_ExposureLines"));
        enter(time->spinBox(), "105");
        QCOMPARE(takeMessage(), refusal("Frame_ExposureLines", "GenICam: Generic error"));
        QCOMPARE(shownTime(dialog), camera.value("CurrentExposureTime"));
        QCOMPARE(camera.value("Frame_ExposureClocks"), QStringLiteral("800"));
    }

    void exposureTimeNeedsLinesAndClocks()
    {
        const QByteArray name = "<DisplayName>Frame Exposure Clocks</DisplayName>";
        const Camera camera(plugInChangedCamera({}, {{name, name + "<pIsLocked>Frame_WdrIsOff</pIsLocked>"}}));
        OrvCamConfigFrameABDialog dialog(camera.device());
        const auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
        for (const char *const isUnlocked : {"false", "true", "false"}) {
            QVERIFY(camera.set("Frame_WdrEnable", isUnlocked));
            QCOMPARE(QVariant(!time->spinBox()->isReadOnly()).toString(), QLatin1String(isUnlocked));
            QCOMPARE(QVariant(time->slider()->isEnabled()).toString(), QLatin1String(isUnlocked));
            QVERIFY(time->isEnabled());
            QCOMPARE(time->value(), 105); // shown all the same
        }
    }

    void exposureTimeOfOddClocks()
    {
        const QByteArray value = "<pValue>PixelClockReg</pValue>";
        for (const bool isReadable : {true, false}) {
            OrvSim::reset();
            const char *const id = plugInChangedCamera({}, {{value + "<Min>1</Min>", value}});
            const Camera camera(id);
            QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "false"));
            QVERIFY(isReadable ? OrvSim::setRegister(id, "PixelClockReg", "0")
                               : OrvSim::setFault(id, "PixelClockReg", OrvSim::Fault::FailRead));
            OrvCamConfigFrameABDialog dialog(camera.device());
            QVERIFY(show(dialog));
            QCOMPARE(shownTime(dialog), isReadable ? QStringLiteral("0") : QStringLiteral("105"));
            camera.takeWrites();
            enterInto(part<QWidget>(dialog, "spBoxExposureTime"), "100");
            QCOMPARE(camera.takeWrites(), isReadable ? 0 : 1);
        }
    }

    void exposureTimesBeyond32Bits()
    {
        const Camera camera;
        QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "false"));
        QVERIFY(camera.set("Frame_LineTime", "65535"));
        QVERIFY(camera.set("Frame_ExposureLines", "65535"));
        QVERIFY(OrvSim::setRegister(SimTest::twoFrame, "PixelClock", "1"));
        OrvCamConfigFrameABDialog dialog(camera.device());
        QCOMPARE(shownTime(dialog), QStringLiteral("2147483647")); // of 4294837425
    }

    void fixedPeriodFollowsTheClock()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const period = part<QtOrvSliderSpinBox>(dialog, "spBoxFixedPeriod");
        QCOMPARE(period->value(), 20000);
        QVERIFY(camera.set("Frame_LineTime", "3200"));
        QCOMPARE(period->value(), 40000);
        QCOMPARE(period->singleStep(), 20);
        QCOMPARE(shownTime(dialog), QStringLiteral("205")); // (10 * 3200 + 800) / 160
        enter(period->spinBox(), "50000");
        QCOMPARE(camera.value("Frame_FixedFramePeriodValue"), QStringLiteral("2500"));
        QVERIFY(camera.set("Frame_LineTime", "1601"));
        QVERIFY(camera.set("Frame_FixedFramePeriodValue", "1000"));
        QCOMPARE(period->value(), 10006); // 10006.25, between steps of 10 from 1001
        QCOMPARE(part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime")->maximum(), 10006);
    }

    void digitalGain()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const gain = part<QtOrvGainSlider>(dialog, "gainDigital");
        const auto isMarked = [gain] { return OrvGui::ControlWatch::of(gain)->isMarked(); };
        const std::tuple<const char *, const char *, const char *> entries[] = {{"0.5", "0", "-32"}, {"2", "1", "0"}};
        for (const auto &[entered, coarse, fine] : entries) {
            camera.takeWrites();
            enter(gain->spinBox(), entered);
            QCOMPARE(camera.value("Frame_DigitalCourseGain"), QLatin1String(coarse));
            QCOMPARE(camera.value("Frame_DigitalFineGain"), QLatin1String(fine));
            QCOMPARE(gain->value(), QByteArray(entered).toDouble());
            QCOMPARE(camera.takeWrites(), 2);
        }
        QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
        QCOMPARE(gain->value(), 3.0); // (1 + 32 / 64) * 2
        QVERIFY(camera.set("Frame_DigitalFineGain", "5")); // between the steps of what is entered
        QCOMPARE(gain->value(), 2.156); // (1 + 5 / 64) * 2

        QVERIFY(camera.refuse("Frame_DigitalCourseGain"));
        enter(gain->spinBox(), "7");
        QVERIFY(!shownMessage());
        QCOMPARE(camera.value("Frame_DigitalFineGain"), QStringLiteral("48"));
        QCOMPARE(gain->value(), 3.5); // the half that was taken
        QVERIFY(isMarked() && gain->toolTip().contains(QStringLiteral("3.5")));
        QTest::keyClick(gain->spinBox(), Qt::Key_Escape);
        QVERIFY(!isMarked() && dialog.isVisible());
        enter(gain->spinBox(), "3"); // for which the half that can be written is enough
        QVERIFY(!isMarked());
        OrvSim::clearFaults(SimTest::twoFrame);

        QVERIFY(camera.set("Frame_DigitalCourseGain", "0"));
        for (int fine = -32; fine < 64; fine += 3) { // what is shown can be typed, and is what the camera has
            QVERIFY(camera.set("Frame_DigitalFineGain", QByteArray::number(fine)));
            const QString shown = gain->spinBox()->text();
            camera.takeWrites();
            enter(gain->spinBox(), shown.toUtf8());
            QCOMPARE(camera.takeWrites(), 0);
            QCOMPARE(gain->spinBox()->text(), shown);
        }
    }

    /** From a gain of 16 on a step of 0.125 is less than what the camera can tell apart. */
    void digitalGainIsSteppedThrough()
    {
        const QByteArray range = "<pValue>Frame_DigitalCourseGainReg</pValue><Min>0</Min><Max>";
        const Camera camera(plugInChangedCamera({}, {{range + '3', range + '5'}}));
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        QVERIFY(camera.set("Frame_DigitalCourseGain", "4"));
        QTest::keyClick(part<QtOrvGainSlider>(dialog, "gainDigital")->spinBox(), Qt::Key_Up);
        QCOMPARE(camera.value("Frame_DigitalFineGain"), QStringLiteral("1"));
    }

    void digitalGainWithOneFeature()
    {
        const std::tuple<const char *, const char *, double, double, const char *, const char *> cameras[] = {
            {"Frame_DigitalCourseGain", "Frame_DigitalFineGain", 0.5, 1 + 63 / 64.0, "1.5", "32"},
            {"Frame_DigitalFineGain", "Frame_DigitalCourseGain", 1, 8, "5", "2"}};
        for (const auto &[missing, other, minimum, maximum, entered, written] : cameras) {
            OrvSim::reset();
            const Camera camera(plugInChangedCamera({missing}));
            OrvCamConfigFrameABDialog dialog(camera.device());
            QVERIFY(show(dialog));
            auto *const gain = part<QtOrvGainSlider>(dialog, "gainDigital");
            QVERIFY(gain->isEnabled());
            QCOMPARE(gain->minimum(), minimum);
            QCOMPARE(gain->maximum(), maximum);
            enterInto(gain, entered);
            QCOMPARE(camera.value(other), QLatin1String(written));
        }
    }

    /** Neither 0 nor what was last known is the camera's. */
    void whatCannotBeReadIsNotShown()
    {
        const Camera camera;
        for (const char *const feature : {"Frame_ExposureLines", "Frame_DigitalCourseGain"})
            QVERIFY(OrvSim::setFault(SimTest::twoFrame, feature, OrvSim::Fault::FailRead));
        OrvCamConfigFrameABDialog dialog(camera.device());
        for (const char *const control : {"spBoxExposureTime", "gainDigital"})
            QCOMPARE(part<QAbstractSpinBox>(*part<QWidget>(dialog, control), "spinbox")->text(), QString());
    }

    void frameModeOfTheUser()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const mode = part<QComboBox>(dialog, "cmBoxFrameMode");
        auto *const tabs = part<QTabWidget>(dialog, "tabFrames");
        const auto areEnabled = [&](bool pageA, bool pageB, bool single) {
            return tabs->isTabEnabled(0) == pageA && tabs->isTabEnabled(1) == pageB
                && part<QWidget>(dialog, "spBoxLineTime")->isEnabled() == single
                && part<QWidget>(dialog, "spBoxDualLineTime")->isEnabled() != single
                && part<QWidget>(dialog, "spBoxNumFrameAs")->isEnabled() != single
                && part<QWidget>(dialog, "spBoxNumFrameBs")->isEnabled() != single;
        };
        QVERIFY(areEnabled(true, true, false));
        camera.takeWrites();
        QTest::keyClick(mode, Qt::Key_Up); // frame B alone
        QCOMPARE(camera.value("FrameMode"), QStringLiteral("FrameB"));
        QCOMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameB"));
        QVERIFY(areEnabled(false, true, true));
        QCOMPARE(shownTime(dialog), QStringLiteral("2000"));
        QTest::keyClick(mode, Qt::Key_Up);
        QCOMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameA"));
        QVERIFY(areEnabled(true, false, true));
        QCOMPARE(camera.takeWrites(), 4);

        enterInto(part<QWidget>(dialog, "spBoxLineTime"), "2000");
        QCOMPARE(camera.value("Frame_LineTime"), QStringLiteral("2000"));
        QTest::keyClick(mode, Qt::Key_End);
        QVERIFY(areEnabled(true, true, false));
        QCOMPARE(shownBy(part<QWidget>(dialog, "spBoxDualLineTime")), QStringLiteral("2000"));
        QTest::qWait(0);
        QCOMPARE(camera.takeWrites(), 2);
        QVERIFY(camera.refuse("FrameMode")); // the mode that stays decides
        QTest::keyClick(mode, Qt::Key_Up);
        QVERIFY(!takeMessage().isEmpty());
        QCOMPARE(camera.takeWrites(), 1);
        QVERIFY(areEnabled(true, true, false));
    }

    void frameModeOfAnotherWindow()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const tabs = part<QTabWidget>(dialog, "tabFrames");
        camera.takeWrites();
        QVERIFY(camera.set("FrameMode", "FrameB"));
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(camera.takeWrites(), 1); // a refresh writes nothing
        QTRY_COMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameB")); // but what is edited is what is shown
        QVERIFY(!tabs->isTabEnabled(0) && tabs->isTabEnabled(1));
        QCOMPARE(camera.takeWrites(), 1);

        QVERIFY(camera.set("FrameAB_Selector", "FrameA")); // which is not taken, but is edited from now on
        QCOMPARE(tabs->currentIndex(), 0);
        QVERIFY(tabs->isTabEnabled(0) && tabs->isTabEnabled(1));
        QTest::qWait(0);
        QCOMPARE(camera.takeWrites(), 1);

        QVERIFY(!dialog.SetDevice(nullptr));
        QVERIFY(camera.set("FrameMode", "FrameA"));
        QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
        camera.takeWrites();
        for (const int writes : {1, 0}) { // begins with the mode that it finds, and selects its frame once
            QVERIFY(dialog.SetDevice(camera.device()));
            QCOMPARE(camera.takeWrites(), writes);
        }
        QVERIFY(tabs->isTabEnabled(0) && !tabs->isTabEnabled(1));
        QVERIFY(part<QWidget>(dialog, "spBoxLineTime")->isEnabled());
    }

    void pagesComeBack()
    {
        const QByteArray value = "<pValue>FrameAB_SelectorReg</pValue>";
        const QByteArray frameB =
            "<EnumEntry Name=\"FrameB\" NameSpace=\"Custom\"><Value>1</Value></EnumEntry>\n    " + value;
        const Camera single(plugInChangedCamera({}, {{frameB, value}}));
        const Camera both;
        OrvCamConfigFrameABDialog dialog(single.device());
        auto *const tabs = part<QTabWidget>(dialog, "tabFrames");
        QCOMPARE(tabs->count(), 1);
        for (OrvCam::Device *const device : {both.device(), single.device(), both.device()})
            QVERIFY(dialog.SetDevice(device));
        QCOMPARE(tabs->count(), 2);
        QVERIFY(show(dialog));
        enterInto(part<QWidget>(dialog, "tabFrames"), "FrameB");
        QCOMPARE(both.value("FrameAB_Selector"), QStringLiteral("FrameB"));
        QVERIFY(part<QWidget>(dialog, "pageB")->isVisible());
        QVERIFY(dialog.SetDevice(single.device()));
        QVERIFY(!dialog.SetDevice(nullptr));
        QCOMPARE(tabs->count(), 2);
        QVERIFY(!tabs->isEnabled());
    }

    void whatIsTypedStaysWithItsFrame()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        QVERIFY(camera.set("Frame_Width", "640")); // the same in both: no refresh of the field takes the text away
        QWidget *const field = part<QtOrvSpinBox>(dialog, "spBoxWidth")->spinBox();
        type(field, "1280");
        enterInto(part<QWidget>(dialog, "tabFrames"), "FrameB");
        QCOMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameB"));
        camera.takeWrites();
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(camera.takeWrites(), 0);
    }

    void aCameraThatIsReplacedWhileItIsWritten()
    {
        const Camera camera;
        const Camera other(plugInChangedCamera({}));
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        // The other camera takes its place between the two writes of a time and of a gain.
        const std::tuple<const char *, const char *, const char *> edits[] = {
            {"spBoxExposureTime", "Frame_ExposureLines", "231"}, {"gainDigital", "Frame_DigitalCourseGain", "3"}};
        for (const auto &[control, first, entered] : edits) {
            QVERIFY(dialog.SetDevice(camera.device()));
            bool isReplaced = false;
            SimTest::Sink sink([&](OrvGenParam::Param *) { isReplaced = dialog.SetDevice(other.device()); });
            camera.integer(first)->RegisterEvent(&sink);
            other.takeWrites();
            enterInto(part<QWidget>(dialog, control), entered);
            camera.integer(first)->UnregisterEvent(&sink);
            QVERIFY(isReplaced);
            QCOMPARE(other.takeWrites(), 0);
        }
    }

    void showsTheActualSize()
    {
        const Camera camera;
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(camera.set("Frame_DecimationMode", "Averaging"));
        QCOMPARE(part<QLabel>(dialog, "lblSizeActual")->text(), QStringLiteral("960 × 540"));
        QVERIFY(!dialog.SetDevice(nullptr));
        QCOMPARE(part<QLabel>(dialog, "lblSizeActual")->text(), QString());
    }
};

ORV_TEST_MAIN(OrvCamConfigFrameABDialogTest)

#include "tst_orvcamconfigframeabdialog.moc"
