#include "bindings.h"
#include "dialogtest.h"

#include <cutwidget.h>

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QStandardItemModel>
#include <QToolButton>

#include <thread>

using namespace DialogTest;
using Bindings::Walk;
using OrvGui::OrvCamConfigColorDialog;
using OrvGui::OrvCamConfigFrameABDialog;
using OrvGui::OrvCamConfigOutputDialog;
using OrvGui::OrvCamConfigPulseDialog;
using OrvGui::OrvCamConfigStrobeDialog;
using OrvGui::OrvCamConfigTriggerDialog;

namespace {

using OrvGui::FeatureDialog;
using Check = void (*)(const FeatureDialog &feature);

/** The layouts have caught up with what the device brought, and everything fits. */
void checkNothingIsCut(QWidget &window)
{
    QVERIFY(show(window));
    QTRY_COMPARE(cutWidget(window), QString());
}

/** Enter commits and clicks nothing; the dialog tells once that it closes, whatever closes it. */
void checkKeysAndClosing(const FeatureDialog &feature)
{
    const Camera camera;
    const std::unique_ptr<QDialog> dialog(feature.make(camera.device(), nullptr));
    int closed = 0;
    feature.onClosing(*dialog, dialog.get(), [&] { ++closed; });
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (const QPushButton *const button : buttons)
        QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
    const std::function<void()> ways[] = {
        [&] { QTest::keyClick(dialog.get(), Qt::Key_Escape); }, [&] { dialog->close(); },
        [&] {
            feature.setDevice(*dialog, nullptr); // a camera that goes does not hold it open
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
        }};
    for (const auto &way : ways) {
        closed = 0;
        QVERIFY(show(*dialog));
        way();
        QVERIFY(dialog->isHidden());
        QCOMPARE(closed, 1);
    }
}

/**
 * However often the device changes, what is registered at cameras is what one device needs, and in the end nothing. A
 * device without parameters, or with an error beside them, is none.
 */
void checkDevicesInTurn(const FeatureDialog &feature)
{
    {
        const Camera camera;
        const std::unique_ptr<QDialog> dialog(feature.make(camera.device(), nullptr));
        const std::size_t sinks = OrvSim::liveObjects().sinks;
        QVERIFY(sinks > 0);
        QVERIFY(feature.setDevice(*dialog, camera.device()));
        QCOMPARE(OrvSim::liveObjects().sinks, sinks);
        for (int i = 0; i < 10; ++i) {
            const Camera other(i % 2 ? SimTest::twoFrame : SimTest::monochrome);
            QVERIFY(feature.setDevice(*dialog, other.device()));
            QVERIFY(i % 2 == 0 || OrvSim::liveObjects().sinks == sinks);
            QVERIFY(feature.setDevice(*dialog, camera.device())); // before the other one goes
        }
        QCOMPARE(OrvSim::liveObjects().sinks, sinks);
        for (const auto answer :
             {OrvSim::Parameters::Null, OrvSim::Parameters::Error, OrvSim::Parameters::ArrayWithError}) {
            OrvSim::setParameters(SimTest::twoFrame, answer);
            QVERIFY(!feature.setDevice(*dialog, camera.device()));
            QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
        }
        OrvSim::setParameters(SimTest::twoFrame, OrvSim::Parameters::Normal);
        QVERIFY(feature.setDevice(*dialog, camera.device()));
    }
    QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
}

/** On the camera without features, without a camera and on the full one everything fits and only the last is used. */
void checkCameras(const FeatureDialog &feature)
{
    const Camera bare(plugInBareCamera());
    const Camera monochrome(SimTest::monochrome);
    const Camera full;
    const std::unique_ptr<QDialog> dialog(feature.make(nullptr, nullptr));
    const bool hasDialogState = !dialog->isEnabled(); // others have but controls that cannot be used
    for (OrvCam::Device *const device :
         {static_cast<OrvCam::Device *>(nullptr), full.device(), bare.device(), monochrome.device(), full.device()}) {
        QCOMPARE(feature.setDevice(*dialog, device), device != nullptr);
        QCOMPARE(dialog->isEnabled(), device || !hasDialogState);
        checkNothingIsCut(*dialog);
        int usable = 0;
        const auto widgets = dialog->findChildren<QWidget *>();
        for (QWidget *const widget : widgets) {
            const bool isControl = widget->inherits("QComboBox") || widget->inherits("QCheckBox")
                || widget->inherits("QtOrvSpinBox") || widget->inherits("QtOrvSliderSpinBox")
                || widget->inherits("QPushButton");
            usable += isControl && widget->isEnabled();
            if (device == bare.device() && (widget->inherits("QComboBox") || widget->inherits("QCheckBox")))
                QVERIFY2(QStringLiteral("false").contains(shownBy(widget)), qPrintable(widget->objectName()));
        }
        if (device != monochrome.device())
            QCOMPARE(usable > 0, device == full.device());
    }
}

/** A camera goes while all controls are being edited: nothing is written or told, and it comes back as it was. */
void checkCameraThatGoes(const FeatureDialog &feature)
{
    const Camera camera;
    const std::unique_ptr<QDialog> dialog(feature.make(camera.device(), nullptr));
    QVERIFY(show(*dialog));
    const auto widgets = dialog->findChildren<QWidget *>();
    const auto shown = [&] {
        QStringList all;
        for (QWidget *const widget : widgets) {
            if (widget->inherits("QComboBox") || widget->inherits("QtOrvSliderSpinBox"))
                all.append(shownBy(widget));
        }
        return all;
    };
    const QStringList before = shown();
    feature.setDevice(*dialog, nullptr); // of whose numbers and choices nothing is left
    for (QWidget *const widget : widgets) {
        const auto *const field = qobject_cast<QAbstractSpinBox *>(widget);
        QVERIFY(!field || (field->text().isEmpty() && !field->isEnabled()));
        QVERIFY(!widget->inherits("QComboBox") || shownBy(widget).isEmpty());
        QVERIFY(!widget->inherits("QGroupBox") || !widget->isEnabled());
    }
    QVERIFY(feature.setDevice(*dialog, camera.device()));
    QCOMPARE(shown(), before);
    camera.takeWrites();
    QVERIFY(OrvSim::unplug(SimTest::twoFrame));
    for (QWidget *const widget : widgets) {
        if (widget->objectName() == QLatin1String("spinbox"))
            enter(widget, "77");
        else if (widget->inherits("QComboBox"))
            QTest::keyClick(widget, Qt::Key_Down);
        else if (widget->inherits("QAbstractButton") && !widget->inherits("QToolButton"))
            clickMark(widget);
    }
    QVERIFY(!shownMessage());
    QCOMPARE(camera.takeWrites(), 0);
    QVERIFY(!feature.setDevice(*dialog, nullptr));
    QVERIFY(OrvSim::replug(SimTest::twoFrame));
    QVERIFY(feature.setDevice(*dialog, camera.device()));
    QCOMPARE(shown(), before);
}

/** Which parts of the trigger dialog can be used: the switch, the lists, the button; "-" for what cannot. */
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

/** The name of the picture that a label shows, of those named. */
QString pictureOf(const QWidget &dialog, const char *label, const QStringList &names)
{
    const QImage shown = part<QLabel>(dialog, label)->pixmap(Qt::ReturnByValue).toImage();
    for (const QString &name : names) {
        if (shown == QPixmap(QLatin1Char(':') + name).toImage())
            return name.section(QLatin1Char('/'), -1);
    }
    return {};
}

/** What the button of the pulse generator offers and which lamp is lit. */
QString generatorState(const QWidget &dialog)
{
    return part<QPushButton>(dialog, "pushBtnPulseEnable")->text() + QLatin1Char(' ')
        + pictureOf(dialog, "lblPulseEnable",
                    {QStringLiteral("/icons/greenball.ico"), QStringLiteral("/icons/redball.ico")});
}

QString running()
{
    return OrvTest::translated("OrvGui::OrvCamConfigPulseDialog", "Stop") + QStringLiteral(" greenball.ico");
}

QString resting()
{
    return OrvTest::translated("OrvGui::OrvCamConfigPulseDialog", "Start") + QStringLiteral(" redball.ico");
}

QString strobePicture(const QWidget &dialog)
{
    return pictureOf(dialog, "lblStrobeImage",
                     {QStringLiteral("/images/strobeBothExp.bmp"), QStringLiteral("/images/strobe1Exp_strobe2Read.bmp"),
                      QStringLiteral("/images/strobe1Read_strobe2Exp.bmp"),
                      QStringLiteral("/images/strobeBothRead.bmp")});
}

} // namespace

Q_DECLARE_METATYPE(const FeatureDialog *)

class FeatureDialogsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void keepsTheRules_data();
    void keepsTheRules();
    void colorUnity();
    void colorFollowsTheBalance();
    void colorStatistics();
    void colorErrorOutlivesTheDialog();
    void outputThresholdsAndFormats();
    void outputHidesTheCameraLinkGroup();
    void pulseDelayAndFrequency();
    void pulseStartsAndStops();
    void pulseSlidersLieAcross();
    void strobeTimes();
    void strobePictureFollowsTheReferences();
    void strobePictureNeedsBothReferences();
    void triggerByUserAndCamera();
    void triggerRulesDecideAlone();
    void triggerOfOtherCameras();
};

void FeatureDialogsTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void FeatureDialogsTest::bindsBothWays_data()
{
    QTest::addColumn<Walk>("walk");
    const QVector<Walk> walks = Bindings::all();
    for (const Walk &walk : walks)
        QTest::newRow(walk.row.feature) << walk;
}

/**
 * A feature and its control are in step: what the user sets is written once, what the camera reports is shown, and
 * nothing is written for that. A write that the camera refuses is told. Without the feature the control is disabled.
 */
void FeatureDialogsTest::bindsBothWays()
{
    QFETCH(Walk, walk);
    const auto &[make, given, row] = walk;
    const auto shownAs = [&row = row](const QByteArray &value) { return row.shownAs(value); };
    const Camera camera;
    const std::unique_ptr<QDialog> dialog(make(camera.device()));
    QVERIFY(show(*dialog));
    for (const auto &[feature, value] : given) // what they lock and unlock follows in the open dialog
        QVERIFY(camera.set(feature, value));
    QWidget *const widget = control(*dialog, row.control);
    QVERIFY(widget && widget->isEnabled());
    QCOMPARE(shownBy(widget), QLatin1String(shownAs(camera.value(row.feature).toLatin1())));
    camera.takeWrites();

    enterInto(widget, shownAs(row.next));
    QCOMPARE(camera.value(row.feature), QLatin1String(row.next));
    QCOMPARE(shownBy(widget), QLatin1String(shownAs(row.next)));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(camera.set(row.feature, row.reported));
    QCOMPARE(shownBy(widget), QLatin1String(shownAs(row.reported)));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(!shownMessage());

    QVERIFY(camera.refuse(row.feature));
    if (auto *const box = qobject_cast<QComboBox *>(widget))
        QTest::keyClick(box, box->findText(QLatin1String(row.next)) < box->currentIndex() ? Qt::Key_Up : Qt::Key_Down);
    else
        enterInto(widget, shownAs(row.next));
    QVERIFY(shownMessage());
    QCOMPARE(shownMessage()->parentWidget()->parentWidget(), widget->parentWidget()); // it, or a button of its group
    QCOMPARE(takeMessage(), refusal(row.feature, "GenICam: Generic error"));
    QVERIFY(!shownMessage());
    QCOMPARE(camera.value(row.feature), QLatin1String(row.reported));

    const Camera without(plugInChangedCamera({row.feature}));
    for (const auto &[feature, value] : given)
        without.set(feature, value);
    const std::unique_ptr<QDialog> poor(make(without.device()));
    const bool hasOwnRule = qobject_cast<OrvCamConfigTriggerDialog *>(poor.get());
    QCOMPARE(control(*poor, row.control)->isEnabled(), hasOwnRule);
}

void FeatureDialogsTest::keepsTheRules_data()
{
    QTest::addColumn<const FeatureDialog *>("feature");
    for (const FeatureDialog &feature : OrvGui::featureDialogs())
        QTest::newRow(feature.kind) << &feature;
}

void FeatureDialogsTest::keepsTheRules()
{
    QFETCH(const FeatureDialog *, feature);
    for (const Check check : {checkKeysAndClosing, checkDevicesInTurn, checkCameras, checkCameraThatGoes}) {
        OrvSim::reset();
        check(*feature);
    }
}

void FeatureDialogsTest::colorUnity()
{
    const Camera camera;
    OrvCamConfigColorDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device())); // a second time; the buttons still act once
    QVERIFY(show(dialog));
    for (const QByteArray color : {"Red", "Green", "Blue"}) {
        auto *const unity = part<QPushButton>(dialog, "pushBtn" + color + "Unity");
        QVERIFY(camera.set(color + "Coefficient", "999"));
        camera.takeWrites();
        QTest::mouseClick(unity, Qt::LeftButton);
        QCOMPARE(shownBy(part<QWidget>(dialog, "spBox" + color)), QStringLiteral("256"));
        QCOMPARE(camera.value(color + "Coefficient"), QStringLiteral("256"));
        QCOMPARE(camera.takeWrites(), 1);
        for (const char *const mode : {"Auto", "Off"}) {
            enterInto(part<QWidget>(dialog, "cmBoxWhiteBalance"), mode);
            const bool isManual = qstrcmp(mode, "Off") == 0;
            QCOMPARE(unity->isEnabled(), isManual);
            QCOMPARE(part<QWidget>(dialog, "spBox" + color)->isEnabled(), isManual);
            QCOMPARE(part<QWidget>(dialog, "cmBoxTrackingSpeed")->isEnabled(), !isManual);
        }
    }
}

/** The camera says that it is done only if it is asked. */
void FeatureDialogsTest::colorFollowsTheBalance()
{
    const Camera camera;
    OrvCamConfigColorDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const balance = part<QComboBox>(dialog, "cmBoxWhiteBalance");
    enterInto(balance, "Auto");
    QVERIFY(!part<QWidget>(dialog, "spBoxRed")->isEnabled());
    QVERIFY(OrvSim::setRegister(SimTest::twoFrame, "BalanceWhiteAuto", "0"));
    QTRY_COMPARE_WITH_TIMEOUT(balance->currentText(), QStringLiteral("Off"), 20000);
    QVERIFY(part<QWidget>(dialog, "spBoxRed")->isEnabled());
}

void FeatureDialogsTest::colorStatistics()
{
    const Camera camera;
    OrvCamConfigColorDialog dialog(camera.device());
    QVERIFY(show(dialog));
    for (const QByteArray color : {"Red", "Green", "Blue"}) {
        const auto *const shown = part<QLabel>(dialog, "lbl" + color + "Coef");
        const QFontMetrics metrics = shown->fontMetrics();
        QCOMPARE(shown->minimumWidth(),
                 metrics.horizontalAdvance(QStringLiteral("4095")) + metrics.horizontalAdvance(QLatin1Char(' ')));
        QCOMPARE(shown->maximumWidth(), shown->minimumWidth());
        QCOMPARE(shown->text(), camera.value(color + "Coefficient"));
        type(part<QtOrvSpinBox>(dialog, "spBox" + color)->spinBox(), "12");
        QVERIFY(camera.set(color + "Coefficient", "300"));
        QCOMPARE(shown->text(), QStringLiteral("300"));
        std::thread([&] { camera.set(color + "Coefficient", "301"); }).join();
        QCOMPARE(shown->text(), QStringLiteral("300")); // widgets belong to this thread
        QTRY_COMPARE(shown->text(), QStringLiteral("301"));
    }
    const Camera monochrome(SimTest::monochrome);
    QVERIFY(dialog.SetDevice(monochrome.device()));
    QVERIFY(!part<QLabel>(dialog, "lblRedCoef")->isEnabled());
}

void FeatureDialogsTest::colorErrorOutlivesTheDialog()
{
    const Camera camera;
    auto dialog = std::make_unique<OrvCamConfigColorDialog>(camera.device());
    QVERIFY(show(*dialog));
    QVERIFY(camera.refuse("GreenCoefficient"));
    enterInto(part<QWidget>(*dialog, "spBoxGreen"), "700");
    QVERIFY(!dialog->SetDevice(nullptr));
    QCOMPARE(takeMessage(), refusal("GreenCoefficient", "GenICam: Generic error"));
    QVERIFY(dialog->SetDevice(camera.device()));
    enterInto(part<QWidget>(*dialog, "spBoxGreen"), "700");
    const QPointer<QMessageBox> message = shownMessage();
    QVERIFY(message);
    dialog.reset();
    QVERIFY(!message);
}

void FeatureDialogsTest::outputThresholdsAndFormats()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    QVERIFY(show(dialog));
    for (const QByteArray correction : {"Dpc", "Hpc"}) {
        auto *const threshold = part<QtOrvSpinBox>(dialog, "spBox" + correction + "DynThres");
        QCOMPARE(threshold->leftLabelText(), OrvTest::translated("OrvGui::OrvCamConfigOutputDialog", "Dyn.Thres.:"));
        QCOMPARE(threshold->slider()->height(), threshold->sizeHint().width() - threshold->leftLabel()->width());
        for (const char *const mode : {"Dynamic", "Off"}) {
            enterInto(part<QWidget>(dialog, "cmBox" + correction), mode);
            QCOMPARE(threshold->isEnabled(), qstrcmp(mode, "Dynamic") == 0);
        }
    }
    auto *const box = part<QComboBox>(dialog, "cmBoxPixelFormat");
    const std::pair<const char *, const char *> depths[] = {
        {"Bits10", "BayerRG8 BayerRG10"}, {"Bits8", "BayerRG8"}, {"Bits12", "BayerRG8 BayerRG10 BayerRG12"}};
    for (const auto &[depth, formats] : depths) {
        QVERIFY(camera.set("SensorADCBitDepth", depth));
        QStringList choosable;
        for (int i = 0; i < box->count(); ++i) {
            if (qobject_cast<QStandardItemModel *>(box->model())->item(i)->isEnabled())
                choosable.append(box->itemText(i));
        }
        QCOMPARE(choosable.filter(QStringLiteral("Bayer")).join(QLatin1Char(' ')), QLatin1String(formats));
    }
}

void FeatureDialogsTest::outputHidesTheCameraLinkGroup()
{
    const Camera camera;
    OrvCamConfigOutputDialog dialog(camera.device());
    QCOMPARE(dialog.size(), QSize(314, 495));
    QVERIFY(show(dialog));
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(!part<QGroupBox>(dialog, "groupBox")->isVisible());
}

void FeatureDialogsTest::pulseDelayAndFrequency()
{
    const auto ranged = [](const char *feature, const char *range) {
        return QByteArray("<pValue>PulseGen") + feature + "Reg</pValue>" + range;
    };
    const char *const range = "<Min>-2147483648</Min><Max>2147483647</Max>";
    const char *const oldRange = "<Min>1</Min><Max>1000000</Max>";
    const auto signedRegister = [](const char *address) {
        const QByteArray head = QByteArray("<Address>") + address
            + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>";
        return QPair<QByteArray, QByteArray>(head + "Unsigned", head + "Signed");
    };
    const Camera camera(plugInChangedCamera({},
                                            {{ranged("Width", oldRange), ranged("Width", range)},
                                             {ranged("Period", oldRange), ranged("Period", range)},
                                             signedRegister("0x2404"),
                                             signedRegister("0x2408")}));
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    const auto *const delay = part<QLineEdit>(dialog, "lineEditDelay");
    const auto *const frequency = part<QLineEdit>(dialog, "lineEditFreq");
    QVERIFY(delay->isReadOnly() && frequency->isReadOnly());
    QCOMPARE(delay->text(), QStringLiteral("700"));
    const std::tuple<const char *, const char *, const char *, const char *> rows[] = {
        {"3", "1000000", "-999997", "333333.333333"},
        {"1000000", "1", "999999", "1.000000"},
        {"0", "5", "-5", "0.000000"},
        {"2147483647", "-2147483648", "2147483647", "0.000466"},
        {"-2147483648", "2147483647", "-2147483648", "-0.000466"}};
    for (const auto &[period, width, shownDelay, shownFrequency] : rows) {
        enterInto(part<QWidget>(dialog, "spBoxPeriod"), period);
        QVERIFY(camera.set("PulseGenWidth", width));
        QCOMPARE(delay->text(), QLatin1String(shownDelay));
        QCOMPARE(frequency->text(), QLatin1String(shownFrequency));
    }
}

void FeatureDialogsTest::pulseStartsAndStops()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    QCOMPARE(generatorState(dialog), resting());
    QTest::mouseClick(part<QWidget>(dialog, "pushBtnPulseEnable"), Qt::LeftButton);
    QCOMPARE(generatorState(dialog), running());
    QVERIFY(camera.set("PulseGenEnable", "false"));
    QCOMPARE(generatorState(dialog), resting());
    for (const QString &state : {running(), resting(), running()}) {
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&dialog, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(generatorState(dialog), state);
        QCOMPARE(camera.value("PulseGenEnable"), QVariant(state == running()).toString());
    }
    QVERIFY(camera.refuse("PulseGenEnable"));
    QTest::mouseClick(part<QWidget>(dialog, "pushBtnPulseEnable"), Qt::LeftButton);
    QVERIFY(!takeMessage().isEmpty());
    QCOMPARE(generatorState(dialog), running());
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(generatorState(dialog), running());
    const Camera bare(plugInBareCamera());
    QVERIFY(dialog.SetDevice(bare.device()));
    QCOMPARE(generatorState(dialog), resting());
}

void FeatureDialogsTest::pulseSlidersLieAcross()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(dialog.maximumSize(), dialog.size());
    for (const char *const label : {"lblWidth", "lblPeriod", "lblDelay"})
        QVERIFY(part<QLabel>(dialog, label)->text().endsWith(QStringLiteral(" [\u03bcs]:")));
    for (const char *const name : {"spBoxPeriod", "spBoxWidth", "spBoxNumPulses"}) {
        const auto *const spinBox = part<QtOrvSpinBox>(dialog, name);
        QCOMPARE(spinBox->sliderOrientation(), Qt::Horizontal);
        QCOMPARE(spinBox->slider()->width(), spinBox->sizeHint().width());
    }
    auto *const period = part<QtOrvSpinBox>(dialog, "spBoxPeriod");
    expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
    QTest::mouseClick(period->toolButton(), Qt::LeftButton);
    QTest::keyClick(period->slider()->slider(), Qt::Key_Home);
    QTest::keyClick(period->slider()->slider(), Qt::Key_Up);
    QCOMPARE(camera.value("PulseGenPeriod"), QStringLiteral("2"));
    period->slider()->hide();

    for (const char *const mode : {"radioBtnSend", "radioBtnContinious"}) { // pulses are counted when sent
        clickMark(part<QWidget>(dialog, mode));
        QCOMPARE(part<QWidget>(dialog, "spBoxNumPulses")->isEnabled(), qstrcmp(mode, "radioBtnSend") == 0);
    }
}

void FeatureDialogsTest::strobeTimes()
{
    const Camera camera;
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(show(dialog));
    for (const QByteArray strobe : {"Strobe1", "Strobe2"}) {
        for (const char *const state : {"Off", "On"}) {
            enterInto(part<QWidget>(dialog, "cmBox" + strobe + "Mode"), state);
            for (const char *const time : {"Delay", "Width"}) {
                auto *const spinBox = part<QtOrvSliderSpinBox>(dialog, "spBox" + strobe + time);
                QCOMPARE(spinBox->isEnabled(), qstrcmp(state, "On") == 0);
                const QByteArray caption = QByteArray(time) + " [%1s]:";
                QCOMPARE(spinBox->leftLabelText(),
                         OrvTest::translated("OrvGui::OrvCamConfigStrobeDialog", caption).arg(QChar(0x3bc)));
            }
        }
    }
    QSlider *const slider = part<QtOrvSliderSpinBox>(dialog, "spBoxStrobe1Delay")->slider()->slider();
    camera.takeWrites();
    QTest::keyClick(slider, Qt::Key_Home);
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(camera.value("Strobe1Delay"), QStringLiteral("1"));
    QTest::keyClick(slider, Qt::Key_End);
    QTest::keyClick(slider, Qt::Key_Left);
    QVERIFY(camera.value("Strobe1Delay").toInt() < 999000); // the steps are as large as the times
    QCOMPARE(camera.takeWrites(), 4);
}

void FeatureDialogsTest::strobePictureFollowsTheReferences()
{
    const Camera camera;
    const Camera other(SimTest::monochrome);
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(show(dialog));
    const std::tuple<const char *, const char *, const char *> steps[] = {
        {"cmBoxStrobe2Ref", "ReadoutStart", "strobe1Exp_strobe2Read"},
        {"cmBoxStrobe2Ref", "ExposureStart", "strobeBothExp"},
        {"cmBoxStrobe1Ref", "ReadoutStart", "strobe1Read_strobe2Exp"},
        {"cmBoxStrobe2Ref", "ReadoutStart", "strobeBothRead"}};
    for (const auto &[box, reference, picture] : steps) {
        enterInto(part<QWidget>(dialog, box), reference);
        const QString name = QLatin1String(picture);
        QCOMPARE(strobePicture(dialog), name + QStringLiteral(".bmp"));
        const QPixmap fine(QStringLiteral(":/images/%1@2x.bmp").arg(name));
        QCOMPARE(fine.size(), 2 * QPixmap(QStringLiteral(":/images/%1.bmp").arg(name)).size());
        QCOMPARE(fine.devicePixelRatio(), 2.0);
    }
    QVERIFY(other.set("Strobe2Reference", "ExposureStart"));
    QVERIFY(dialog.SetDevice(other.device()));
    QVERIFY(camera.set("Strobe2Reference", "ExposureStart")); // no longer shown
    QCOMPARE(strobePicture(dialog), QStringLiteral("strobeBothExp.bmp"));
}

/** While a reference cannot be set the picture stays; what it missed shows when both can be set again. */
void FeatureDialogsTest::strobePictureNeedsBothReferences()
{
    const char *const end = "</DisplayName>";
    const Camera camera(plugInChangedCamera(
        {}, {{QByteArray("Strobe2 Reference") + end, QByteArray("2") + end + "<pIsLocked>Strobe2IsOff</pIsLocked>"}}));
    OrvCamConfigStrobeDialog dialog(camera.device());
    QVERIFY(!part<QWidget>(dialog, "cmBoxStrobe2Ref")->isEnabled());
    QVERIFY(camera.set("Strobe1Reference", "ReadoutStart"));
    QCOMPARE(strobePicture(dialog), QStringLiteral("strobeBothExp.bmp"));
    QVERIFY(camera.set("Strobe2Mode", "On"));
    QCOMPARE(strobePicture(dialog), QStringLiteral("strobeBothRead.bmp"));
}

void FeatureDialogsTest::triggerByUserAndCamera()
{
    const Camera camera;
    OrvCamConfigTriggerDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    auto *const enable = part<QCheckBox>(dialog, "chBoxEnable");
    auto *const button = part<QPushButton>(dialog, "pushBtnSoftwareTrigger");
    QCOMPARE(button->text(), OrvTest::translated("OrvCamConfigTriggerDialog", "Software\nTrigger"));
    QCOMPARE(enabledParts(dialog), theSwitch);
    camera.takeWrites();
    clickMark(enable);
    QCOMPARE(camera.value("TriggerMode"), QStringLiteral("On"));
    QCOMPARE(enabledParts(dialog), all);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(camera.takeWrites(), 2);
    QVERIFY(camera.refuse("TriggerSoftware"));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(takeMessage(), refusal("TriggerSoftware", "GenICam: Generic error"));
    enterInto(part<QWidget>(dialog, "cmBoxSource"), "IN1");
    QCOMPARE(enabledParts(dialog), allButTheButton);
    QVERIFY(camera.set("TriggerSource", "Software"));
    QCOMPARE(enabledParts(dialog), all);
    QTest::keyClick(enable, Qt::Key_Space);
    QCOMPARE(camera.value("TriggerMode"), QStringLiteral("Off"));
    QCOMPARE(enabledParts(dialog), theSwitch);
    std::thread([&] { camera.set("TriggerMode", "On"); }).join();
    QCOMPARE(enabledParts(dialog), theSwitch); // widgets belong to this thread
    QTRY_COMPARE(enabledParts(dialog), all);
    QVERIFY(camera.set("TriggerMode", "Off"));

    QVERIFY(camera.refuse("TriggerMode"));
    QTest::keyClick(enable, Qt::Key_Space);
    QCOMPARE(takeMessage(), refusal("TriggerMode", "GenICam: Generic error"));
    QVERIFY(!enable->isChecked()); // the camera has told that it is still off
    QCOMPARE(enabledParts(dialog), theSwitch);
}

/** On cameras whose features think otherwise. */
void FeatureDialogsTest::triggerRulesDecideAlone()
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
    QCOMPARE(enabledParts(dialog), theSwitch);
    QVERIFY(camera.set("TriggerMode", "On")); // locks the debounce time, and there is no command
    QCOMPARE(enabledParts(dialog), all);
    QVERIFY(camera.set("TriggerActivation", "RisingEdge"));
    QCOMPARE(enabledParts(dialog), all);
    camera.takeWrites();
    const QString debounce = camera.value("TriggerDebounce");
    enterInto(part<QWidget>(dialog, "cmBoxDebounce"), "Us50");
    QCOMPARE(shownBy(part<QWidget>(dialog, "cmBoxDebounce")), debounce); // which cannot be written
    QCOMPARE(enabledParts(dialog), all);
    QTest::mouseClick(part<QWidget>(dialog, "pushBtnSoftwareTrigger"), Qt::LeftButton);
    QCOMPARE(camera.takeWrites(), 0);
    QVERIFY(!shownMessage());
}

/** Lists without a feature have nothing to choose from, but the switch enables them all the same. */
void FeatureDialogsTest::triggerOfOtherCameras()
{
    const Camera bare(plugInBareCamera());
    const Camera less(plugInChangedCamera({"TriggerSource", "TriggerActivation", "TriggerDebounce"}));
    const Camera full;
    QVERIFY(full.set("TriggerMode", "On"));
    OrvCamConfigTriggerDialog dialog(full.device());
    QCOMPARE(enabledParts(dialog), all);
    QVERIFY(dialog.SetDevice(less.device()));
    QCOMPARE(enabledParts(dialog), theSwitch);
    QVERIFY(less.set("TriggerMode", "On"));
    QCOMPARE(enabledParts(dialog), allButTheButton);
    QVERIFY(dialog.SetDevice(bare.device()));
    QCOMPARE(enabledParts(dialog), QStringLiteral("-----"));
    QVERIFY(dialog.SetDevice(full.device()));
    QCOMPARE(enabledParts(dialog), all);
}

ORV_TEST_MAIN(FeatureDialogsTest)

#include "tst_featuredialogs.moc"
