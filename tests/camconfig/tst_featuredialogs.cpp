// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "bindings.h"
#include "dialogtest.h"
#include "input.h"

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>

#include <thread>

using namespace DialogTest;
using Bindings::Walk;
using OrvGui::ControlWatch;
using OrvGui::OrvCamConfigColorDialog;
using OrvGui::OrvCamConfigFrameABDialog;
using OrvGui::OrvCamConfigOutputDialog;
using OrvGui::OrvCamConfigPulseDialog;
using OrvGui::OrvCamConfigStrobeDialog;
using OrvGui::OrvCamConfigTriggerDialog;

namespace {

using OrvGui::FeatureDialog;
using Check = void (*)(const FeatureDialog &feature);

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
    QDialog window; // closes at Escape, and not the part of it that gets the key
    QDialog *const part = feature.make(camera.device(), &window);
    part->setWindowFlags(Qt::Widget);
    QVERIFY(show(window));
    part->show();
    QTest::keyClick(part, Qt::Key_Escape);
    QVERIFY(window.isHidden() && !part->isHidden());
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
    const Camera bare(plugInBareCamera());
    for (OrvCam::Device *const device : {static_cast<OrvCam::Device *>(nullptr), bare.device()}) {
        QCOMPARE(feature.setDevice(*dialog, device), device != nullptr); // of the camera's values nothing is left
        for (QWidget *const widget : widgets) {
            const auto *const field = qobject_cast<QAbstractSpinBox *>(widget);
            const bool isChoice = widget->inherits("QComboBox") || widget->inherits("QCheckBox");
            QVERIFY(!field || (!field->isEnabled() && (device || field->text().isEmpty())));
            QVERIFY(!isChoice || (QStringLiteral("false").contains(shownBy(widget)) && !widget->isEnabled()));
            QVERIFY(device || !widget->inherits("QGroupBox") || !widget->isEnabled());
        }
        QVERIFY(feature.setDevice(*dialog, camera.device()));
        QCOMPARE(shown(), before);
    }
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

/** What stands in the brackets of all three times; empty when they are not the same. */
QString unitOf(const OrvCamConfigPulseDialog &dialog)
{
    QStringList units;
    for (const char *const name : {"lblWidth", "lblPeriod", "lblDelay"}) {
        const QString text = part<QLabel>(dialog, name)->text();
        units.append(text.mid(text.indexOf(QLatin1Char('[')) + 1).section(QLatin1Char(']'), 0, 0));
    }
    return units.count(units.first()) == 3 ? units.first() : QString();
}

QString shownIn(const OrvCamConfigPulseDialog &dialog, const char *field)
{
    return part<QLineEdit>(dialog, field)->text();
}

const QString microseconds = QStringLiteral("\u03bcs");
const QString hertz = QStringLiteral("1000.000000");

QString strobePicture(const QWidget &dialog)
{
    return pictureOf(dialog, "lblStrobeImage",
                     {QStringLiteral("/images/strobeBothExp.bmp"), QStringLiteral("/images/strobe1Exp_strobe2Read.bmp"),
                      QStringLiteral("/images/strobe1Read_strobe2Exp.bmp"),
                      QStringLiteral("/images/strobeBothRead.bmp")});
}

const char *const locales[] = {"C", "de_DE", "ar_EG"};

/** What bears the marks of a control: of radio buttons the one that is checked. */
QWidget *markedPart(QWidget *control)
{
    auto *const button = qobject_cast<QAbstractButton *>(control);
    return button && button->group() && button->group()->checkedButton() ? button->group()->checkedButton() : control;
}

bool isMarked(QWidget *control)
{
    const ControlWatch *const watch = ControlWatch::of(markedPart(control));
    return watch && watch->isMarked();
}

/** All that a hand does in a control without entering anything. */
void touch(QWidget *widget)
{
    widget->setFocus();
    if (!widget->hasFocus())
        return;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Shift})
        QTest::keyClick(widget, key);
    if (auto *const slider = qobject_cast<QSlider *>(widget))
        QTest::mouseClick(slider, Qt::LeftButton, {}, handle(*slider));
    for (const Qt::Key leave : {Qt::Key_Return, Qt::Key_Tab}) { // a number that was deleted is none
        if (qobject_cast<QAbstractSpinBox *>(widget)) {
            DialogTest::type(widget, "");
            QTest::keyClick(widget, Qt::Key_Delete);
            QTest::keyClick(widget, leave);
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(const FeatureDialog *)

class FeatureDialogsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        TestCase::cleanup();
    }

    void bindsBothWays_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<Walk>("walk");
        const QVector<Walk> walks = Bindings::all();
        for (const char *const locale : locales) {
            for (const Walk &walk : walks) {
                const bool isNumber = QByteArray(walk.row.control).startsWith("spBox");
                if (isNumber || locale == locales[0])
                    QTest::addRow("%s %s", locale, walk.row.feature) << QLocale(QLatin1String(locale)) << walk;
            }
        }
    }

    /**
     * A feature and its control are in step: what the user sets is written once, what the camera reports is shown, and
     * nothing is written for that. A write that the camera refuses is told, and what is not the camera's is marked.
     * Without the feature the control is disabled.
     */
    void bindsBothWays()
    {
        QFETCH(QLocale, locale);
        QFETCH(Walk, walk);
        const auto &[make, given, row] = walk;
        const auto shownAs = [&row = row](const QByteArray &value) { return row.shownAs(value); };
        QLocale::setDefault(locale);
        const Camera camera;
        const std::unique_ptr<QDialog> dialog(make(camera.device()));
        QVERIFY(show(*dialog));
        for (const auto &[feature, value] : given) // what they lock and unlock follows in the open dialog
            QVERIFY(camera.set(feature, value));
        QWidget *const widget = control(*dialog, row.control);
        QVERIFY(widget && widget->isEnabled());
        const auto isTrue = [&, feature = row.feature] {
            return shownBy(widget) == QLatin1String(shownAs(camera.value(feature).toLatin1()));
        };
        QVERIFY(isTrue());
        camera.takeWrites();

        enterInto(widget, shownAs(row.next));
        QCOMPARE(camera.value(row.feature), QLatin1String(row.next));
        QCOMPARE(shownBy(widget), QLatin1String(shownAs(row.next)));
        QCOMPARE(camera.takeWrites(), 1);
        QVERIFY(camera.set(row.feature, row.reported));
        QCOMPARE(shownBy(widget), QLatin1String(shownAs(row.reported)));
        QCOMPARE(camera.takeWrites(), 1);
        QVERIFY(!shownMessage() && !isMarked(widget));

        QVERIFY(camera.refuse(row.feature));
        if (auto *const box = qobject_cast<QComboBox *>(widget))
            QTest::keyClick(box,
                            box->findText(QLatin1String(row.next)) < box->currentIndex() ? Qt::Key_Up : Qt::Key_Down);
        else
            enterInto(widget, shownAs(row.next));
        QVERIFY(shownMessage());
        QCOMPARE(shownMessage()->parentWidget()->parentWidget(),
                 widget->parentWidget()); // it, or a button of its group
        QCOMPARE(takeMessage(), refusal(row.feature, "GenICam: Generic error"));
        QVERIFY(!shownMessage());
        QCOMPARE(camera.value(row.feature), QLatin1String(row.reported));
        QVERIFY(isTrue() || isMarked(widget));
        if (isMarked(widget))
            QTest::keyClick(widget->focusProxy() ? widget->focusProxy() : markedPart(widget), Qt::Key_Escape);
        QVERIFY(isTrue() && !isMarked(widget));
        QVERIFY(dialog->isVisible());

        const Camera without(plugInChangedCamera({row.feature}));
        for (const auto &[feature, value] : given)
            without.set(feature, value);
        const std::unique_ptr<QDialog> poor(make(without.device()));
        const bool hasOwnRule = qobject_cast<OrvCamConfigTriggerDialog *>(poor.get());
        QCOMPARE(control(*poor, row.control)->isEnabled(), hasOwnRule);
    }

    void nothingEnteredNothingWritten()
    {
        const QVector<Walk> walks = Bindings::all();
        for (int i = 0; i < walks.size(); ++i) {
            const Walk &walk = walks.at(i);
            if (i > 0 && walk.make == walks.at(i - 1).make)
                continue; // each dialog once, with what its features need
            for (const char *const locale : locales) {
                OrvSim::reset();
                QLocale::setDefault(QLocale(QLatin1String(locale)));
                const Camera camera;
                for (const auto &[feature, value] : walk.given)
                    QVERIFY(camera.set(feature, value));
                // Between the steps and the positions that a control can take by itself.
                for (const char *const feature : {"Frame_FixedFramePeriodValue", "Strobe2Width"})
                    camera.set(feature, "1003");
                camera.takeWrites();
                const std::unique_ptr<QDialog> dialog(walk.make(camera.device()));
                QVERIFY(show(*dialog));
                const auto widgets = dialog->findChildren<QWidget *>();
                for (QWidget *const widget : widgets) {
                    dialog->setFocus();
                    if (!widget->isVisible() || !widget->isEnabled() || widget->isWindow())
                        continue;
                    turnWheel(widget, -1);
                    touch(widget);
                    QVERIFY2(camera.takeWrites() == 0, qPrintable(widget->objectName()));
                }
                for (const char *const other : locales)
                    dialog->setLocale(QLocale(QLatin1String(other)));
                QVERIFY(camera.set("Frame_LineTime", "3200")); // ranges change
                QVERIFY(camera.set("Frame_DecimationMode", "Averaging"));
                QVERIFY(camera.set("Frame_FixedFramePeriodValue", "300"));
                QTest::qWait(0);
                QCOMPARE(camera.takeWrites(), 3);
                QVERIFY(!shownMessage());
            }
        }
    }

    void keepsTheRules_data()
    {
        QTest::addColumn<const FeatureDialog *>("feature");
        for (const FeatureDialog &feature : OrvGui::featureDialogs())
            QTest::newRow(feature.kind) << &feature;
    }

    void keepsTheRules()
    {
        QFETCH(const FeatureDialog *, feature);
        for (const Check check : {checkKeysAndClosing, checkDevicesInTurn, checkCameraThatGoes}) {
            OrvSim::reset();
            check(*feature);
        }
    }

    /** The camera says that its balance is done only if it is asked. */
    void colorUnityAndBalance()
    {
        const Camera camera;
        OrvCamConfigColorDialog dialog(camera.device());
        QVERIFY(dialog.SetDevice(camera.device())); // a second time; the buttons still act once
        QVERIFY(show(dialog));
        auto *const balance = part<QComboBox>(dialog, "cmBoxWhiteBalance");
        for (const QByteArray color : {"Red", "Green", "Blue"}) {
            auto *const unity = part<QPushButton>(dialog, "pushBtn" + color + "Unity");
            QVERIFY(camera.set(color + "Coefficient", "999"));
            camera.takeWrites();
            QTest::mouseClick(unity, Qt::LeftButton);
            QCOMPARE(shownBy(part<QWidget>(dialog, "spBox" + color)), QStringLiteral("256"));
            QCOMPARE(camera.value(color + "Coefficient"), QStringLiteral("256"));
            QCOMPARE(camera.takeWrites(), 1);
            for (const char *const mode : {"Auto", "Off"}) {
                enterInto(balance, mode);
                QCOMPARE(unity->isEnabled(), qstrcmp(mode, "Off") == 0);
            }
        }
        enterInto(balance, "Auto");
        QVERIFY(!part<QWidget>(dialog, "spBoxRed")->isEnabled());
        QVERIFY(OrvSim::setRegister(SimTest::twoFrame, "BalanceWhiteAuto", "0"));
        QTRY_COMPARE_WITH_TIMEOUT(balance->currentText(), QStringLiteral("Off"), 20000);
        QVERIFY(part<QWidget>(dialog, "spBoxRed")->isEnabled());
    }

    void colorStatistics()
    {
        const Camera camera;
        OrvCamConfigColorDialog dialog(camera.device());
        QVERIFY(show(dialog));
        for (const QByteArray color : {"Red", "Green", "Blue"}) {
            const auto *const shown = part<QLabel>(dialog, "lbl" + color + "Coef");
            QCOMPARE(shown->text(), camera.value(color + "Coefficient"));
            DialogTest::type(part<QtOrvSpinBox>(dialog, "spBox" + color)->spinBox(), "12");
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

    void pulseDelayAndFrequency()
    {
        const auto ranged = [](const char *feature, const char *range) {
            return QByteArray("<pValue>PulseGen") + feature + "Reg</pValue>" + range;
        };
        const char *const range = "<Min>0</Min><Max>4294967295</Max>";
        const char *const oldRange = "<Min>1</Min><Max>1000000</Max>";
        const Camera camera(plugInChangedCamera({},
                                                {{ranged("Width", oldRange), ranged("Width", range)},
                                                 {ranged("Period", oldRange), ranged("Period", range)}}));
        OrvCamConfigPulseDialog dialog(camera.device());
        QVERIFY(show(dialog));
        const auto *const period = part<QtOrvSpinBox>(dialog, "spBoxPeriod");
        QCOMPARE(period->slider()->width(), period->sizeHint().width());
        const std::tuple<const char *, const char *, const char *, const char *> rows[] = {
            {"3", "1000000", "-999997", "333333.333333"},
            {"0", "5", "-5", "0.000000"},
            {"1", "4294967295", "-2147483646", "1000000.000000"}};
        for (const auto &[entered, width, delay, frequency] : rows) {
            enterInto(part<QWidget>(dialog, "spBoxPeriod"), entered);
            QVERIFY(camera.set("PulseGenWidth", width));
            QCOMPARE(shownIn(dialog, "lineEditDelay"), QLatin1String(delay));
            QCOMPARE(shownIn(dialog, "lineEditFreq"), QLatin1String(frequency));
        }
    }

    void pulseStartsAndStops()
    {
        const Camera camera;
        OrvCamConfigPulseDialog dialog(camera.device());
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
        const Camera bare(plugInBareCamera());
        QVERIFY(dialog.SetDevice(bare.device()));
        QCOMPARE(generatorState(dialog), resting());
    }

    void pulseFollowsTheGranularity()
    {
        const std::tuple<QByteArray, QString, QString> rows[] = {
            {"x10us", QStringLiteral("10 \u03bcs"), QStringLiteral("100.000000")},
            {"Granularity_250ns", QStringLiteral("250 ns"), QStringLiteral("4000.000000")},
            {"x1ns", QStringLiteral("ns"), QStringLiteral("1000000.000000")},
            {"T20ms", QStringLiteral("20 ms"), QStringLiteral("0.050000")},
            {"x18446744073709551615s", QStringLiteral("18446744073709551615 s"), QStringLiteral("0.000000")},
            {"x18446744073709551616s", microseconds, hertz}, // too large a number
            {"x01us", microseconds, hertz},
            {"x0ms", microseconds, hertz},
            {"x10usec", microseconds, hertz}};
        for (const auto &[entry, unit, frequency] : rows) {
            OrvSim::reset();
            const Camera camera(plugInChangedCamera({}, {{"\"x10us\"", '"' + entry + '"'}}));
            OrvCamConfigPulseDialog dialog(camera.device());
            QVERIFY(show(dialog));
            QCOMPARE(unitOf(dialog), microseconds); // of "x1us"
            const QSize size = dialog.size();
            enterInto(part<QWidget>(dialog, "cmBoxGranularity"), entry.constData());
            QCOMPARE(unitOf(dialog), unit);
            QCOMPARE(shownIn(dialog, "lineEditFreq"), frequency);
            QCOMPARE(shownIn(dialog, "lineEditDelay"), QStringLiteral("700")); // in that unit, as period and width
            QCoreApplication::sendPostedEvents();
            QCOMPARE(dialog.size(), size);
            QVERIFY(camera.refuse("PulseGenGranularity")); // the camera's unit, whatever the list shows
            enterInto(part<QWidget>(dialog, "cmBoxGranularity"), "x1us");
            QVERIFY(!takeMessage().isEmpty());
            QCOMPARE(unitOf(dialog), unit);
        }
    }

    void pulseShowsNothingOfACameraThatIsGone()
    {
        const Camera camera;
        QVERIFY(camera.set("PulseGenGranularity", "x1000us"));
        QVERIFY(camera.set("PulseGenEnable", "true"));
        OrvCamConfigPulseDialog dialog(camera.device());
        QVERIFY(show(dialog));
        camera.takeWrites();
        for (const bool isGone : {false, true, false}) {
            QCOMPARE(dialog.SetDevice(isGone ? nullptr : camera.device()), !isGone);
            QCOMPARE(unitOf(dialog), isGone ? microseconds : QStringLiteral("1000 \u03bcs"));
            QCOMPARE(shownIn(dialog, "lineEditFreq"), isGone ? QString() : QStringLiteral("1.000000"));
            QCOMPARE(shownIn(dialog, "lineEditDelay").isEmpty(), isGone);
            QCOMPARE(part<QPushButton>(dialog, "pushBtnPulseEnable")->isChecked(), !isGone);
        }
        QCOMPARE(camera.takeWrites(), 0);
    }

    /** While a reference cannot be set the picture stays; what it missed shows when both can be set again. */
    void strobePictureFollowsTheReferences()
    {
        const char *const end = "</DisplayName>";
        const Camera camera(plugInChangedCamera(
            {},
            {{QByteArray("Strobe2 Reference") + end, QByteArray("2") + end + "<pIsLocked>Strobe2IsOff</pIsLocked>"}}));
        const Camera other(SimTest::monochrome);
        OrvCamConfigStrobeDialog dialog(camera.device());
        QVERIFY(show(dialog));
        QVERIFY(!part<QWidget>(dialog, "cmBoxStrobe2Ref")->isEnabled());
        for (const auto *const time : dialog.findChildren<QtOrvSliderSpinBox *>())
            QCOMPARE(time->slider()->scaleType(), QtOrvSlider::Log10); // steps as large as the times
        const std::tuple<const char *, const char *, const char *> steps[] = {
            {"cmBoxStrobe1Ref", "ReadoutStart", "strobeBothExp"},
            {"cmBoxStrobe2Mode", "On", "strobeBothRead"},
            {"cmBoxStrobe2Ref", "ExposureStart", "strobe1Read_strobe2Exp"},
            {"cmBoxStrobe1Ref", "ExposureStart", "strobeBothExp"},
            {"cmBoxStrobe2Ref", "ReadoutStart", "strobe1Exp_strobe2Read"}};
        for (const auto &[box, entry, picture] : steps) {
            enterInto(part<QWidget>(dialog, box), entry);
            QCOMPARE(strobePicture(dialog), QLatin1String(picture) + QStringLiteral(".bmp"));
        }
        QVERIFY(other.set("Strobe2Reference", "ExposureStart"));
        QVERIFY(dialog.SetDevice(other.device()));
        QVERIFY(camera.set("Strobe1Reference", "ReadoutStart")); // no longer shown
        QCOMPARE(strobePicture(dialog), QStringLiteral("strobeBothExp.bmp"));
    }

    void triggerByUserAndCamera()
    {
        const Camera camera;
        OrvCamConfigTriggerDialog dialog(camera.device());
        QVERIFY(dialog.SetDevice(camera.device()));
        QVERIFY(show(dialog));
        auto *const enable = part<QCheckBox>(dialog, "chBoxEnable");
        auto *const button = part<QPushButton>(dialog, "pushBtnSoftwareTrigger");
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
    }

    /** On cameras whose features think otherwise. */
    void triggerRulesDecideAlone()
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
        enterInto(part<QWidget>(dialog, "cmBoxDebounce"), "Us50");
        QCOMPARE(enabledParts(dialog), all);
        QTest::mouseClick(part<QWidget>(dialog, "pushBtnSoftwareTrigger"), Qt::LeftButton);
        QCOMPARE(camera.takeWrites(), 0);
        QVERIFY(!shownMessage());
    }
};

ORV_TEST_MAIN(FeatureDialogsTest)

#include "tst_featuredialogs.moc"
