#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigframeabdialog.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include <set>
#include <thread>

using namespace DialogTest;
using OrvGui::OrvCamConfigFrameABDialog;

namespace {

/** A control, or a group of radio buttons, as a user meets it. */
class Control
{
public:
    Control(const QWidget &dialog, const QString &name)
        : m_widget(dialog.findChild<QWidget *>(name))
        , m_group(dialog.findChild<QButtonGroup *>(name))
    {
    }

    bool isEnabled() const { return m_group ? m_group->buttons().first()->isEnabled() : m_widget->isEnabled(); }

    QString shown() const
    {
        if (m_group)
            return m_group->checkedButton() ? m_group->checkedButton()->text() : QString();
        if (auto *const box = qobject_cast<QComboBox *>(m_widget))
            return box->currentText();
        if (auto *const tabs = qobject_cast<QTabWidget *>(m_widget))
            return tabs->tabText(tabs->currentIndex());
        if (auto *const check = qobject_cast<QCheckBox *>(m_widget))
            return QVariant(check->isChecked()).toString();
        return m_widget->property("value").toString();
    }

    void set(const QByteArray &value) const
    {
        if (m_group)
            clickButton(QString::fromLatin1(value));
        else if (auto *const box = qobject_cast<QComboBox *>(m_widget))
            step(box, QString::fromLatin1(value));
        else if (auto *const tabs = qobject_cast<QTabWidget *>(m_widget))
            clickTab(tabs->tabBar(), QString::fromLatin1(value));
        else if (auto *const check = qobject_cast<QCheckBox *>(m_widget))
            QTest::keyClick(check, Qt::Key_Space);
        else
            enter(m_widget->findChild<QWidget *>(QStringLiteral("spinbox")), value);
    }

    /** By one key, if it is a neighbour or at an end. */
    static void step(QComboBox *box, const QString &text)
    {
        const int target = box->findText(text);
        if (target == 0 || target == box->count() - 1)
            return QTest::keyClick(box, target == 0 ? Qt::Key_Home : Qt::Key_End);
        while (box->currentIndex() != target && box->isEnabled())
            QTest::keyClick(box, box->currentIndex() < target ? Qt::Key_Down : Qt::Key_Up);
    }

    static void clickTab(QTabBar *bar, const QString &text)
    {
        for (int i = 0; i < bar->count(); ++i) {
            if (bar->tabText(i) == text)
                QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(i).center());
        }
    }

private:
    void clickButton(const QString &text) const
    {
        const auto buttons = m_group->buttons();
        for (QAbstractButton *const button : buttons) {
            if (button->text() == text)
                QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        }
    }

    QWidget *const m_widget;
    QButtonGroup *const m_group;
};

QString shownTime(const QWidget &dialog)
{
    return Control(dialog, QStringLiteral("spBoxExposureTime")).shown();
}

} // namespace

class OrvCamConfigFrameABDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void aMissingFeatureDisablesItsControl_data();
    void aMissingFeatureDisablesItsControl();
    void exposureTimeIsSplitAndPutTogether();
    void exposureTimeShowsWhatTheCameraTakes();
    void exposureTimeNeedsLinesAndClocks();
    void exposureTimeOfOddClocks_data();
    void exposureTimeOfOddClocks();
    void exposureTimesBeyond32Bits();
    void fixedPeriodFollowsTheClock();
    void digitalGain();
    void digitalGainWithOneFeature();
    void frameModeOfTheUser();
    void frameModeOfAnotherWindow();
    void pagesComeBack();
    void whatIsTypedStaysWithItsFrame();
    void aCameraThatGoesWhileItIsWritten();
    void hearsOtherThreads();
    void tellsTheSizeOfTheImage();
    void captions();
    void keepsTheRulesOfFeatureDialogs();
    void cutsNothing();
};

void OrvCamConfigFrameABDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigFrameABDialogTest::bindsBothWays_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("entered"); // one step away in lists
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("reported");
    QTest::addColumn<QByteArray>("shown");
    const auto converted = [](const char *feature, const char *control, const char *entered, const char *written,
                              const char *reported, const char *shown) {
        QTest::newRow(feature) << QString::fromLatin1(control) << QByteArray(entered) << QByteArray(written)
                               << QByteArray(reported) << QByteArray(shown);
    };
    const auto row = [&](const char *feature, const char *control, const char *entered, const char *reported) {
        converted(feature, control, entered, entered, reported, reported);
    };
    row("FrameAB_Selector", "tabFrames", "FrameB", "FrameA");
    row("FrameMode", "cmBoxFrameMode", "FrameA", "FrameAB");
    row("Frame_SubsamplingM", "cmBoxSubsamplingM", "M2", "M1");
    row("Frame_SubsamplingP", "cmBoxSubsamplingP", "P8", "P2");
    row("Frame_Averaging", "cmBoxAveraging", "Average2", "Average4");
    row("Frame_WdrP1", "cmBoxWdrP1", "Percent50", "Percent90");
    row("Frame_WdrP2", "cmBoxWdrP2", "Percent25", "Percent90");
    row("Frame_WdrP3", "cmBoxWdrP3", "Percent90", "Percent25");
    row("ShutterMode", "btnGroupShutter", "Rolling", "Global");
    row("SensorADCBitDepth", "btnGroupBitDepth", "Bits8", "Bits10");
    row("Frame_ExposureControl", "btnGroupExposureControl", "TriggerWidth", "Timed");
    row("Frame_DecimationMode", "btnGroupDecimation", "Averaging", "Off");
    row("Frame_AnalogGain", "btnGroupAnalogGain", "x4", "x8");
    row("Frame_ExposureLines", "spBoxExposureLines", "20", "7");
    row("Frame_ExposureClocks", "spBoxExposureClocks", "100", "1599");
    row("Frame_OffsetX", "spBoxOffsetX", "320", "16");
    row("Frame_OffsetY", "spBoxOffsetY", "100", "2");
    row("Frame_Width", "spBoxWidth", "1280", "64");
    row("Frame_Height", "spBoxHeight", "480", "1024");
    row("Frame_WdrE1", "spBoxWdrE1", "11", "4095");
    row("Frame_WdrE2", "spBoxWdrE2", "12", "0");
    row("Frame_WdrE3", "spBoxWdrE3", "13", "1");
    converted("Frame_FixedFramePeriodValue", "spBoxFixedPeriod", "30000", "3000", "1000", "10000");
    row("Frame_BlackLevel", "spBoxBlackLevel", "100", "0");
    row("Frame_FixedFramePeriodEnable", "chBoxFixedPeriod", "false", "true");
    row("Frame_WdrEnable", "chBoxWdr", "false", "true");
    row("Frame_LineTime", "spBoxDualLineTime", "2000", "65535");
    row("NumberOfFrameAs", "spBoxNumFrameAs", "3", "255");
    row("NumberOfFrameBs", "spBoxNumFrameBs", "4", "1");
}

void OrvCamConfigFrameABDialogTest::bindsBothWays()
{
    QFETCH(QString, control);
    QFETCH(QByteArray, entered);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, reported);
    QFETCH(QByteArray, shown);
    const char *const feature = QTest::currentDataTag();
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device())); // twice makes no second write
    QVERIFY(show(dialog));
    // What other features lock becomes available under the open dialog.
    for (const auto &[name, value] : {std::pair("Frame_WdrEnable", "true"),
                                      {"Frame_DecimationMode", "Subsampling"},
                                      {"Frame_SubsamplingP", "P4"},
                                      {"Frame_Width", "640"},
                                      {"Frame_Height", "600"}})
        QVERIFY(camera.set(name, value));
    const Control widget(dialog, control);
    QVERIFY(widget.isEnabled());
    camera.takeWrites();

    widget.set(entered);
    QCOMPARE(camera.value(feature), QString::fromLatin1(written));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(camera.set(feature, reported));
    QCOMPARE(widget.shown(), QString::fromLatin1(shown));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(!shownMessage());

    QVERIFY(camera.refuse(feature));
    if (qobject_cast<QComboBox *>(dialog.findChild<QWidget *>(control)))
        QTest::keyClick(dialog.findChild<QWidget *>(control), entered < reported ? Qt::Key_Up : Qt::Key_Down);
    else
        widget.set(entered);
    QCOMPARE(takeMessage(), refusal(feature, "GenICam: Generic error"));
    QCOMPARE(camera.value(feature), QString::fromLatin1(reported));
}

void OrvCamConfigFrameABDialogTest::aMissingFeatureDisablesItsControl_data()
{
    bindsBothWays_data();
}

void OrvCamConfigFrameABDialogTest::aMissingFeatureDisablesItsControl()
{
    QFETCH(QString, control);
    const QByteArray feature = QTest::currentDataTag();
    const Camera whole;
    const Camera poor(plugInChangedCamera({feature.constData()}));
    QVERIFY(whole.device() && poor.device());
    OrvCamConfigFrameABDialog dialog(whole.device());
    const auto disabled = [&] {
        std::set<QString> names;
        for (const QWidget *const widget : dialog.findChildren<QWidget *>()) {
            const bool isControl = widget->inherits("QtOrvSpinBox") || widget->inherits("QtOrvSliderSpinBox")
                || widget->inherits("QtOrvGainSlider") || widget->inherits("QComboBox") || widget->inherits("QCheckBox")
                || widget->inherits("QTabWidget");
            if (isControl && !widget->isEnabled())
                names.insert(widget->objectName());
        }
        for (const QButtonGroup *const group : dialog.findChildren<QButtonGroup *>()) {
            if (!group->buttons().first()->isEnabled())
                names.insert(group->objectName());
        }
        return names;
    };
    std::set<QString> expected = disabled();
    QVERIFY(dialog.SetDevice(poor.device()));
    expected.insert(control);
    if (feature == "Frame_ExposureLines" || feature == "Frame_ExposureClocks")
        expected.insert(QStringLiteral("spBoxExposureTime"));
    QCOMPARE(disabled(), expected);
}

void OrvCamConfigFrameABDialogTest::exposureTimeIsSplitAndPutTogether()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
    QVERIFY(time->isEnabled());
    QCOMPARE(time->value(), 105); // (10 * 1600 + 800) / 160
    QCOMPARE(time->maximum(), 20000); // the fixed period
    camera.takeWrites();

    enter(time->spinBox(), "231");
    QCOMPARE(camera.value("Frame_ExposureLines"), QStringLiteral("23"));
    QCOMPARE(camera.value("Frame_ExposureClocks"), QStringLiteral("160"));
    QCOMPARE(camera.takeWrites(), 2);
    QCOMPARE(time->value(), 231);
    enter(time->spinBox(), "235"); // as many lines
    QCOMPARE(camera.value("Frame_ExposureClocks"), QStringLiteral("800"));
    QCOMPARE(camera.takeWrites(), 1);
    type(time->spinBox(), "17"); // not committed
    QCOMPARE(camera.takeWrites(), 0);
    QTest::keyClick(time->spinBox(), Qt::Key_Return);
    QCOMPARE(camera.takeWrites(), 2);

    QVERIFY(camera.set("Frame_ExposureLines", "7"));
    QCOMPARE(time->value(), 77); // (7 * 1600 + 1120) / 160
    QCOMPARE(camera.takeWrites(), 1);
    Control(dialog, QStringLiteral("chBoxFixedPeriod")).set({});
    QCOMPARE(time->maximum(), 655359); // (65535 * 1600 + 1599) / 160
    QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "true"));
    QVERIFY(camera.set("Frame_FixedFramePeriodValue", "500"));
    QCOMPARE(time->maximum(), 5000);
    QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
    QCOMPARE(time->value(), 2000);
    QCOMPARE(time->maximum(), 655359);
    QCOMPARE(camera.takeWrites(), 4);
}

/** A whole period leaves no room for the read-out: the camera takes a line less. */
void OrvCamConfigFrameABDialogTest::exposureTimeShowsWhatTheCameraTakes()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
    for (int i = 0; i < 2; ++i) {
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

void OrvCamConfigFrameABDialogTest::exposureTimeNeedsLinesAndClocks()
{
    const QByteArray name = "<DisplayName>Frame Exposure Clocks</DisplayName>";
    const Camera camera(plugInChangedCamera({}, {{name, name + "<pIsLocked>Frame_WdrIsOff</pIsLocked>"}}));
    OrvCamConfigFrameABDialog dialog(camera.device());
    const Control time(dialog, QStringLiteral("spBoxExposureTime"));
    QVERIFY(!time.isEnabled());
    QVERIFY(camera.set("Frame_ExposureLines", "20"));
    QVERIFY(camera.set("Frame_WdrEnable", "true"));
    QVERIFY(time.isEnabled());
    QCOMPARE(time.shown(), QStringLiteral("205"));
    QVERIFY(camera.set("Frame_WdrEnable", "false"));
    QVERIFY(!time.isEnabled());
}

void OrvCamConfigFrameABDialogTest::exposureTimeOfOddClocks_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QByteArray>("value"); // none: reading fails
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("writes"); // when 100 is entered
    QTest::newRow("half the clock") << QByteArray("PixelClockReg") << QByteArray("80") << "210" << 2;
    QTest::newRow("no clock") << QByteArray("PixelClockReg") << QByteArray("0") << "0" << 0;
    QTest::newRow("a clock that cannot be read") << QByteArray("PixelClockReg") << QByteArray() << "105" << 1;
    QTest::newRow("no line time") << QByteArray("Frame_LineTimeReg") << QByteArray("0") << "5" << 0;
}

void OrvCamConfigFrameABDialogTest::exposureTimeOfOddClocks()
{
    QFETCH(QByteArray, node);
    QFETCH(QByteArray, value);
    QFETCH(QString, shown);
    QFETCH(int, writes);
    const char *const id =
        plugInChangedCamera({},
                            {{"<pMax>Frame_ExposureClocksMax</pMax>", "<Max>99999</Max>"},
                             {"<pValue>PixelClockReg</pValue><Min>1</Min>", "<pValue>PixelClockReg</pValue>"}});
    const Camera camera(id);
    QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "false"));
    if (value.isNull())
        QVERIFY(OrvSim::setFault(id, node.toStdString(), OrvSim::Fault::FailRead));
    else
        QVERIFY(OrvSim::setRegister(id, node.toStdString(), value.toStdString()));
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(shownTime(dialog), shown);
    camera.takeWrites();
    Control(dialog, QStringLiteral("spBoxExposureTime")).set("100");
    QCOMPARE(camera.takeWrites(), writes);
}

void OrvCamConfigFrameABDialogTest::exposureTimesBeyond32Bits()
{
    const Camera camera;
    QVERIFY(camera.set("Frame_FixedFramePeriodEnable", "false"));
    QVERIFY(camera.set("Frame_LineTime", "65535"));
    QVERIFY(camera.set("Frame_ExposureLines", "65535"));
    QVERIFY(OrvSim::setRegister(SimTest::twoFrame, "PixelClock", "1"));
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const time = part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime");
    QCOMPARE(time->value(), 2147483647); // of 4294837425
    QCOMPARE(time->maximum(), 2147483647);
    enter(time->spinBox(), "2147483646");
    QCOMPARE(camera.value("Frame_ExposureLines"), QStringLiteral("32768"));
    QCOMPARE(camera.value("Frame_ExposureClocks"), QStringLiteral("32766"));
    QCOMPARE(time->value(), 2147483646);
}

void OrvCamConfigFrameABDialogTest::fixedPeriodFollowsTheClock()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const period = part<QtOrvSliderSpinBox>(dialog, "spBoxFixedPeriod");
    QCOMPARE(period->value(), 20000);
    QCOMPARE(period->minimum(), 1000);
    QCOMPARE(period->maximum(), 655350);
    QCOMPARE(period->singleStep(), 10);
    QVERIFY(camera.set("Frame_LineTime", "3200"));
    QCOMPARE(period->value(), 40000);
    QCOMPARE(period->singleStep(), 20);
    QCOMPARE(shownTime(dialog), QStringLiteral("205")); // (10 * 3200 + 800) / 160
    QCOMPARE(camera.value("Frame_FixedFramePeriodValue"), QStringLiteral("2000"));
    enter(period->spinBox(), "50000");
    QCOMPARE(camera.value("Frame_FixedFramePeriodValue"), QStringLiteral("2500"));
    QVERIFY(camera.set("Frame_LineTime", "1601"));
    QVERIFY(camera.set("Frame_FixedFramePeriodValue", "1000"));
    QCOMPARE(period->value(), 10006); // 10006.25, between steps of 10 from 1001
    QCOMPARE(part<QtOrvSliderSpinBox>(dialog, "spBoxExposureTime")->maximum(), 10006);
}

void OrvCamConfigFrameABDialogTest::digitalGain()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const gain = part<QtOrvGainSlider>(dialog, "gainDigital");
    QCOMPARE(gain->minimum(), 0.5);
    QCOMPARE(gain->maximum(), 15.875);
    QCOMPARE(gain->singleStep(), 0.125);
    QCOMPARE(gain->value(), 1.0);
    camera.takeWrites();

    const std::tuple<const char *, const char *, const char *> entries[] = {
        {"3", "1", "32"}, {"0.5", "0", "-32"}, {"15.875", "3", "63"}, {"2", "1", "0"}};
    for (const auto &[entered, coarse, fine] : entries) {
        enter(gain->spinBox(), entered);
        QCOMPARE(camera.value("Frame_DigitalCourseGain"), QLatin1String(coarse));
        QCOMPARE(camera.value("Frame_DigitalFineGain"), QLatin1String(fine));
        QCOMPARE(gain->value(), QByteArray(entered).toDouble());
        QCOMPARE(camera.takeWrites(), 2);
    }
    QVERIFY(camera.set("Frame_DigitalCourseGain", "2"));
    QCOMPARE(gain->value(), 4.0);
    QVERIFY(camera.set("Frame_DigitalFineGain", "-16"));
    QCOMPARE(gain->value(), 3.0);
    QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
    QCOMPARE(gain->value(), 3.0); // (1 + 32 / 64) * 2
    QCOMPARE(camera.takeWrites(), 3);

    QVERIFY(camera.set("Frame_DigitalFineGain", "5")); // between the steps of what is entered
    QCOMPARE(gain->value(), 2.156); // (1 + 5 / 64) * 2

    QVERIFY(camera.refuse("Frame_DigitalCourseGain"));
    enter(gain->spinBox(), "7");
    QVERIFY(!shownMessage());
    QCOMPARE(camera.value("Frame_DigitalFineGain"), QStringLiteral("48"));
}

void OrvCamConfigFrameABDialogTest::digitalGainWithOneFeature()
{
    {
        const Camera camera(plugInChangedCamera({"Frame_DigitalCourseGain"}));
        OrvCamConfigFrameABDialog dialog(camera.device());
        QVERIFY(show(dialog));
        auto *const gain = part<QtOrvGainSlider>(dialog, "gainDigital");
        QVERIFY(gain->isEnabled());
        QCOMPARE(gain->maximum(), 1 + 63 / 64.0);
        enter(gain->spinBox(), "1.5");
        QCOMPARE(camera.value("Frame_DigitalFineGain"), QStringLiteral("32"));
    }
    OrvSim::reset();
    const Camera camera(plugInChangedCamera({"Frame_DigitalFineGain"}));
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const gain = part<QtOrvGainSlider>(dialog, "gainDigital");
    QVERIFY(gain->isEnabled());
    QCOMPARE(gain->minimum(), 1.0);
    QCOMPARE(gain->maximum(), 8.0);
    enter(gain->spinBox(), "5");
    QCOMPARE(camera.value("Frame_DigitalCourseGain"), QStringLiteral("2"));
}

void OrvCamConfigFrameABDialogTest::frameModeOfTheUser()
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

    Control(dialog, QStringLiteral("spBoxLineTime")).set("2000");
    QCOMPARE(camera.value("Frame_LineTime"), QStringLiteral("2000"));
    QTest::keyClick(mode, Qt::Key_End);
    QVERIFY(areEnabled(true, true, false));
    QCOMPARE(Control(dialog, QStringLiteral("spBoxDualLineTime")).shown(), QStringLiteral("2000"));
    QTest::qWait(0);
    QCOMPARE(camera.takeWrites(), 2);
}

void OrvCamConfigFrameABDialogTest::frameModeOfAnotherWindow()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const tabs = part<QTabWidget>(dialog, "tabFrames");
    camera.takeWrites();
    QVERIFY(camera.set("FrameMode", "FrameB"));
    QCOMPARE(tabs->currentIndex(), 1);
    QVERIFY(!tabs->isTabEnabled(0) && tabs->isTabEnabled(1));
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
    QVERIFY(dialog.SetDevice(camera.device())); // begins with the mode that it finds
    QVERIFY(tabs->isTabEnabled(0) && !tabs->isTabEnabled(1));
    QVERIFY(part<QWidget>(dialog, "spBoxLineTime")->isEnabled());
}

void OrvCamConfigFrameABDialogTest::pagesComeBack()
{
    const char *const frameB = "<EnumEntry Name=\"FrameB\" NameSpace=\"Custom\"><Value>1</Value></EnumEntry>\n"
                               "    <pValue>FrameAB_SelectorReg</pValue>";
    const Camera single(plugInChangedCamera({}, {{frameB, "<pValue>FrameAB_SelectorReg</pValue>"}}));
    const Camera both;
    OrvCamConfigFrameABDialog dialog(single.device());
    auto *const tabs = part<QTabWidget>(dialog, "tabFrames");
    QWidget *const pageA = part<QWidget>(dialog, "pageA");
    QWidget *const pageB = part<QWidget>(dialog, "pageB");
    QCOMPARE(tabs->count(), 1);
    for (OrvCam::Device *const device : {both.device(), single.device(), both.device()})
        QVERIFY(dialog.SetDevice(device));
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->widget(0), pageA);
    QCOMPARE(tabs->widget(1), pageB);
    QVERIFY(show(dialog));
    Control(dialog, QStringLiteral("tabFrames")).set("FrameB");
    QCOMPARE(both.value("FrameAB_Selector"), QStringLiteral("FrameB"));
    QVERIFY(pageB->isVisible());
    QVERIFY(dialog.SetDevice(single.device()));
    QVERIFY(!dialog.SetDevice(nullptr));
    QCOMPARE(tabs->count(), 2);
    QVERIFY(!tabs->isEnabled());
}

void OrvCamConfigFrameABDialogTest::whatIsTypedStaysWithItsFrame()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QVERIFY(camera.set("Frame_Width", "640")); // the same in both: no refresh of the field takes the text away
    QWidget *const field = part<QtOrvSpinBox>(dialog, "spBoxWidth")->spinBox();
    type(field, "1280");
    Control(dialog, QStringLiteral("tabFrames")).set("FrameB");
    QCOMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameB"));
    camera.takeWrites();
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(camera.takeWrites(), 0);
}

void OrvCamConfigFrameABDialogTest::aCameraThatGoesWhileItIsWritten()
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
        Control(dialog, QLatin1String(control)).set(entered);
        camera.integer(first)->UnregisterEvent(&sink);
        QVERIFY(isReplaced);
        QCOMPARE(other.takeWrites(), 0);
    }

    QVERIFY(dialog.SetDevice(camera.device()));
    type(part<QtOrvSpinBox>(dialog, "spBoxWidth")->spinBox(), "640");
    OrvSim::unplug(SimTest::twoFrame);
    QTest::keyClick(part<QtOrvSpinBox>(dialog, "spBoxWidth")->spinBox(), Qt::Key_Return);
    Control(dialog, QStringLiteral("spBoxExposureTime")).set("50");
    Control(dialog, QStringLiteral("gainDigital")).set("2");
    Control(dialog, QStringLiteral("cmBoxFrameMode")).set("FrameA");
    QVERIFY(!dialog.SetDevice(nullptr));
    QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
}

void OrvCamConfigFrameABDialogTest::hearsOtherThreads()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    std::thread([&] { camera.set("Frame_ExposureLines", "20"); }).join();
    QCOMPARE(shownTime(dialog), QStringLiteral("105"));
    QTRY_COMPARE(shownTime(dialog), QStringLiteral("205"));
    std::thread([&] { camera.set("Frame_ExposureLines", "30"); }).join();
    QVERIFY(!dialog.SetDevice(nullptr));
    QTest::qWait(0); // what is on its way finds nobody
    QCOMPARE(shownTime(dialog), QStringLiteral("0"));
}

void OrvCamConfigFrameABDialogTest::tellsTheSizeOfTheImage()
{
    const Camera camera;
    OrvCamConfigFrameABDialog dialog(camera.device());
    auto *const size = part<QLabel>(dialog, "lblSizeActual");
    QCOMPARE(size->text(), QStringLiteral("1920 × 1080"));
    QVERIFY(camera.set("Frame_DecimationMode", "Averaging"));
    QCOMPARE(size->text(), QStringLiteral("960 × 540"));
    QVERIFY(!dialog.SetDevice(nullptr));
    QCOMPARE(size->text(), QString());
}

void OrvCamConfigFrameABDialogTest::captions()
{
    const OrvCamConfigFrameABDialog dialog(nullptr);
    const std::pair<const char *, const char *> texts[] = {{"spBoxDualLineTime", "Dual Video\nLine Time [pclk]:"},
                                                           {"spBoxLineTime", "Line Time [pclk]:"},
                                                           {"spBoxOffsetX", "OffsetX:"},
                                                           {"spBoxOffsetY", "OffsetY:"},
                                                           {"spBoxWidth", "Width: "},
                                                           {"spBoxHeight", "Height:"},
                                                           {"gainDigital", "Digital Gain:"},
                                                           {"spBoxBlackLevel", "Black Level:"},
                                                           {"spBoxExposureTime", "Exposure Time [%1s]:"}};
    for (const auto &[control, text] : texts) {
        const QString expected = OrvTest::translated("OrvGui::OrvCamConfigFrameABDialog", text)
                                     .replace(QLatin1String("%1"), QStringLiteral("\u03bc"));
        QCOMPARE(part<QWidget>(dialog, control)->property("leftLabelText").toString(), expected);
    }
}

void OrvCamConfigFrameABDialogTest::keepsTheRulesOfFeatureDialogs()
{
    {
        const Camera camera;
        checkKeysAndClosing<OrvCamConfigFrameABDialog>(camera.device());
    }
    checkDevicesInTurn<OrvCamConfigFrameABDialog>(SimTest::twoFrame);
    checkNoParameters<OrvCamConfigFrameABDialog>(SimTest::twoFrame);
    const Camera bare(plugInBareCamera());
    OrvCamConfigFrameABDialog dialog(bare.device());
    QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
    checkNothingIsCut(dialog);
}

void OrvCamConfigFrameABDialogTest::cutsNothing()
{
    const Camera color;
    const Camera monochrome(SimTest::monochrome);
    OrvCamConfigFrameABDialog dialog(nullptr);
    for (OrvCam::Device *const device : {static_cast<OrvCam::Device *>(nullptr), monochrome.device(), color.device()}) {
        dialog.SetDevice(device);
        checkNothingIsCut(dialog);
    }
}

ORV_TEST_MAIN(OrvCamConfigFrameABDialogTest)

#include "tst_orvcamconfigframeabdialog.moc"
