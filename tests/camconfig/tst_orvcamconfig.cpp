// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "configwindow.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QGridLayout>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>

#include <thread>

using namespace ConfigTest;
using DialogTest::Camera;
using DialogTest::part;
using SimTest::monochrome;
using SimTest::twoFrame;

namespace {

QString fromForm(const char *text)
{
    return OrvTest::translated("OrvCamConfigMainWindow", text);
}

/** Until the timer has been at work so often after whatever was done before, however late it is each time. */
void waitForSteps(int count)
{
    QEventLoop loop;
    for (int i = -3; i < count; ++i) {
        QTimer::singleShot(OrvGui::periods().status, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

void waitForAStep()
{
    waitForSteps(1);
}

/** The two-frame camera with something added to the register of its frame mode. */
const char *plugInCameraWithMode(const char *addition)
{
    const QByteArray begin = "<IntReg Name=\"FrameModeReg\" NameSpace=\"Custom\">\n    <Address>0x400</Address>"
                             "<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>";
    return DialogTest::plugInChangedCamera({}, {{begin, begin + addition}});
}

/** "A", "B" or both: the frames whose column is kept up to date by what it looks like, and by what it says. */
QString framesRead(const OrvCamConfig &window)
{
    const QColor grey = window.palette().color(QPalette::Disabled, QPalette::Text);
    QString read;
    for (const char *const frame : {"A", "B"}) {
        for (const char *const name : {"Size", "Fps", "Ftm", "Exp"}) {
            const QByteArray field = QByteArray("lineEdit") + name + "Frame" + frame;
            const auto *const edit = part<QLineEdit>(window, field.constData());
            const bool isGrey = edit->palette().color(QPalette::Text) == grey;
            if (isGrey == edit->toolTip().isEmpty() || edit->accessibleDescription() != edit->toolTip())
                return edit->objectName();
            if (!isGrey && !read.contains(QLatin1String(frame)))
                read += QLatin1String(frame);
        }
    }
    return read;
}

/** Which of a dialog, its button and its menu entry are seen or checked. */
QString openParts(const OrvCamConfig &window, const Parts &parts)
{
    QString open;
    if (dialogOf(window, parts)->isVisible())
        open += QLatin1Char('d');
    if (part<QPushButton>(window, parts.button)->isChecked())
        open += QLatin1Char('b');
    if (part<QAction>(window, parts.action)->isChecked())
        open += QLatin1Char('a');
    return open;
}

/** Whether there is a camera behind the controls of a dialog. */
bool isUsable(const OrvCamConfig &window, const Parts &parts)
{
    const auto controls = dialogOf(window, parts)->findChildren<QWidget *>();
    return std::any_of(controls.begin(), controls.end(), [](const QWidget *control) {
        const bool isControl = qobject_cast<const QComboBox *>(control) || qobject_cast<const QCheckBox *>(control);
        return isControl && control->isEnabled();
    });
}

QString aboutText(const OrvCamConfig &window, const char *label)
{
    return part<QLabel>(*part<QDialog>(window, "OrvCamConfigAboutDialog"), label)->text();
}

} // namespace

class OrvCamConfigTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void followsTheFrameMode()
    {
        const std::tuple<const char *, const char *, QString, QString> rows[] = {{"FrameA", "FrameA", frameA, noInfo},
                                                                                 {"FrameB", "FrameB", noInfo, frameB},
                                                                                 {"FrameAB", "FrameA", frameA, frameB},
                                                                                 {"FrameAB", "FrameB", frameA, frameB}};
        const Camera camera;
        for (const auto &[mode, selected, columnA, columnB] : rows) {
            QVERIFY(camera.set("FrameMode", mode));
            QVERIFY(camera.set("FrameAB_Selector", selected));
            camera.takeWrites();
            OrvCamConfig window(camera.device());
            window.show();
            QVERIFY(temperature(window).toInt() >= 41); // taken when shown
            waitForAStep();
            QCOMPARE(column(window, "A"), columnA);
            QCOMPARE(column(window, "B"), columnB);
            QCOMPARE(camera.value("FrameAB_Selector"), QLatin1String(selected));
            QCOMPARE(camera.takeWrites(), qstrcmp(mode, "FrameAB") == 0 ? 2 : 0); // the selector to and fro
        }
        QVERIFY(camera.refuse("FrameAB_Selector"));
        const OrvCamConfig window(camera.device());
        QTRY_COMPARE(column(window, "B"), frameB);
        QCOMPARE(column(window, "A"), noInfo); // the other frame, which cannot be selected
        QVERIFY(!DialogTest::shownMessage());
        for (const auto &[name, unit] :
             {std::pair("FrameTime", "\u03bcs"), {"Exposure", "\u03bcs"}, {"Temperature", "\u00b0C"}})
            QCOMPARE(part<QLabel>(window, (QByteArray("lbl") + name).constData())->text(), QString::fromUtf8(unit));
    }

    /** To read both frames refreshes all that is shown of them. */
    void whatIsTypedOutlivesAReport()
    {
        const Camera camera;
        OrvCamConfig window(camera.device());
        window.show();
        trigger(window, "actionFrame_A_B");
        QDialog *const frames = dialogOf(window, dialogs[0]);
        QVERIFY(QTest::qWaitForWindowActive(frames));
        auto *const lines = part<QtOrvSpinBox>(*frames, "spBoxExposureLines")->spinBox();
        waitForSteps(10);
        DialogTest::type(lines, "25");
        camera.takeWrites();
        QVERIFY(camera.set("FrameMode", "FrameAB")); // as it is
        waitForSteps(5);
        QCOMPARE(lines->text(), QStringLiteral("25"));
        QCOMPARE(camera.takeWrites(), 1);
        QTest::keyClick(lines, Qt::Key_Return);
        QCOMPARE(camera.value("Frame_ExposureLines"), QStringLiteral("25"));
        QTRY_COMPARE(OrvSim::writeCount(twoFrame), std::uint64_t(3)); // now the selector has gone to and fro
    }

    /** A camera may report its mode with each poll, and with each write of the selector. */
    void countsRepeatedModesOnce()
    {
        for (const char *const addition : {"<PollingTime>1000</PollingTime>",
                                           "<pInvalidator>FrameAB_SelectorReg</pInvalidator>"
                                           "<PollingTime>1000</PollingTime>"}) {
            OrvSim::reset();
            const Camera camera(plugInCameraWithMode(addition));
            SimTest::Sink reports;
            camera.enumeration("FrameMode")->RegisterEvent(&reports);
            const OrvCamConfig window(camera.device());
            QTimer polls;
            connect(&polls, &QTimer::timeout, &window, [&] { camera.params()->GetNodeMap()->Poll(1000); });
            polls.start(OrvGui::periods().status);
            waitForSteps(100);
            QTRY_VERIFY(reports.count > 50);
            QCOMPARE(camera.takeWrites(), 2);
            polls.stop();

            // After a while a report counts again, the next ones do not.
            camera.set("FrameMode", "FrameA");
            camera.set("FrameMode", "FrameAB");
            waitForSteps(10);
            for (const int writes : {3, 1, 1}) {
                camera.takeWrites();
                camera.set("FrameMode", "FrameAB");
                waitForSteps(10);
                QCOMPARE(camera.takeWrites(), writes);
            }
            camera.enumeration("FrameMode")->UnregisterEvent(&reports);
        }
    }

    /** The frame that the selector shows is the one that is kept up to date, and nothing is written for it. */
    void greysWhatIsNotRead()
    {
        const Camera camera;
        const Camera less(monochrome);
        OrvCamConfig window(camera.device());
        QTRY_COMPARE(column(window, "B"), frameB);
        QCOMPARE(framesRead(window), QStringLiteral("A"));
        camera.takeWrites();
        QVERIFY(camera.set("FrameAB_Selector", "FrameB"));
        QVERIFY(camera.set("Frame_Height", "240"));
        QTRY_COMPARE(column(window, "B"), QStringLiteral("640x240 384.62 2600 2000"));
        QCOMPARE(column(window, "A"), frameA);
        QCOMPARE(framesRead(window), QStringLiteral("B"));
        QCOMPARE(camera.takeWrites(), 2);
        for (const char *const mode : {"FrameB", "FrameA"}) {
            QVERIFY(camera.set("FrameMode", mode));
            QTRY_COMPARE(framesRead(window), QString(QLatin1Char(mode[5])));
        }
        QVERIFY(part<QLineEdit>(window, "lineEditSizeFrameB")->toolTip().contains(fromForm("Frame A")));
        window.SetDevice(less.device());
        QCOMPARE(framesRead(window), QStringLiteral("AB"));
    }

    void survivesWhoeverHearsOfTheSelector()
    {
        const Camera camera;
        QPointer<OrvCamConfig> window = new OrvCamConfig(camera.device());
        OrvGenParam::Enum *const selector = camera.enumeration("FrameAB_Selector");
        SimTest::Sink sink([&](OrvGenParam::Param *) { window->SetDevice(nullptr); });
        selector->RegisterEvent(&sink);
        QTRY_COMPARE(sink.count, 1);
        QCOMPARE(column(*window, "A"), noInfo);
        selector->UnregisterEvent(&sink);

        SimTest::Sink destroyer([&](OrvGenParam::Param *) { delete window; });
        window->SetDevice(camera.device());
        selector->RegisterEvent(&destroyer);
        QTRY_VERIFY(!window);
        selector->UnregisterEvent(&destroyer);
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
    }

    void hasOneColumnForOneFrame()
    {
        const Camera less(monochrome);
        const Camera full;
        OrvCamConfig window(less.device());
        window.show();
        const auto checkColumns = [&](int columns) {
            auto *const grid = part<QGridLayout>(window, "gridLayout");
            for (const char *const name : {"Size", "Fps", "Ftm", "Exp"}) {
                const QByteArray field = QByteArray("lineEdit") + name + "Frame";
                int row, column, rows, span;
                grid->getItemPosition(grid->indexOf(part<QWidget>(window, (field + 'A').constData())), &row, &column,
                                      &rows, &span);
                QCOMPARE(span, 3 - columns);
                QCOMPARE(part<QWidget>(window, (field + 'B').constData())->isVisible(), columns == 2);
            }
            for (const char *const name : {"lblFrameB", "pushBtnFrameAB"})
                QCOMPARE(part<QWidget>(window, name)->isVisible(), columns == 2);
            QCOMPARE(part<QAction>(window, "actionFrame_A_B")->isVisible(), columns == 2);
        };
        checkColumns(1);
        QTRY_COMPARE(column(window, "A"), monochromeFrame);
        window.SetDevice(full.device());
        checkColumns(2);
        trigger(window, "actionFrame_A_B");
        window.SetDevice(less.device());
        checkColumns(1);
        QCOMPARE(openParts(window, dialogs[0]), QString());
        QCOMPARE(column(window, "B"), noInfo);
    }

    void leavesOutWhatCannotBeRead()
    {
        const Camera camera(DialogTest::plugInChangedCamera({"CurrentExposureTime", "DeviceModelName", "FrameMode"}));
        const OrvCamConfig window(camera.device());
        QTRY_COMPARE(column(window, "A"), QStringLiteral("1920x1080 50.00 20000 "));
        QCOMPARE(statusText(window), unknown());
        QVERIFY(!temperature(window).isEmpty());
        for (const char *const feature : {"Frame_Height", "CurrentTemperature"})
            QVERIFY(OrvSim::setFault("CHANGED", feature, OrvSim::Fault::FailRead));
        camera.params()->GetNodeMap()->InvalidateNodes();
        QTRY_COMPARE(temperature(window), QString());
        QVERIFY(column(window, "A").startsWith(QLatin1Char(' ')));

        const Camera bare(DialogTest::plugInBareCamera());
        OrvCamConfig empty(bare.device());
        empty.show();
        waitForAStep();
        QCOMPARE(column(empty, "A") + temperature(empty), noInfo);
        QCOMPARE(OrvGui::framesPerSecond(0), QStringLiteral("0.00"));
    }

    void tellsOfTheCamera()
    {
        const Camera camera(DialogTest::plugInChangedCamera({"EpcsID", "DeviceUserID"}));
        OrvCamConfig window(camera.device());
        window.show();
        trigger(window, "actionAbout");
        auto *const about = part<QDialog>(window, "OrvCamConfigAboutDialog");
        QVERIFY(about->isVisible());
        const QString year = QString::number(QDate::currentDate().year());
        QVERIFY(aboutText(window, "lblCopyright").contains(QChar(0xa9) + QStringLiteral(" ") + year));
        const QString notAvailable = OrvTest::translated("OrvGui::OrvCamConfigAboutDialog", "N/A");
        const std::pair<const char *, const char *> values[] = {{"lblAppName", "OrvCameraConfiguration"},
                                                                {"lblAppVersion", "1.4.0 (build 2230) "},
                                                                {"lblDeviceModelName", "TF-2000C"},
                                                                {"lblDeviceUserDefinedName", nullptr},
                                                                {"lblRgsID", "4660"},
                                                                {"lblEpcsID", nullptr},
                                                                {"lblSensorType", "BayerRG"}};
        for (const auto &[label, text] : values)
            QCOMPARE(aboutText(window, label), text ? QString(QLatin1String(text)) : notAvailable);
        trigger(window, "actionDisconnect"); // while it is open
        QCOMPARE(aboutText(window, "lblRgsID"), notAvailable);
        QTest::mouseClick(part<QPushButton>(*about, "okButton"), Qt::LeftButton);
        QVERIFY(!about->isVisible());
    }

    void opensAndClosesDialogs()
    {
        const Camera camera;
        OrvCamConfig window(camera.device());
        Parts parts = {};
        QDialog *dialog = nullptr;
        const auto click = [&] { QTest::mouseClick(part<QWidget>(window, parts.button), Qt::LeftButton); };
        const auto choose = [&] { trigger(window, parts.action); };
        const std::function<void()> openers[] = {click, choose, [&] { dialog->show(); }};
        const std::function<void()> closers[] = {click,
                                                 choose,
                                                 [&] { QTest::keyClick(dialog, Qt::Key_Escape); },
                                                 [&] { dialog->close(); },
                                                 [&] { dialog->hide(); },
                                                 [&] { dialog->done(QDialog::Accepted); },
                                                 [&] { window.close(); },
                                                 [&] { trigger(window, "actionQuit"); }};
        for (const Parts &each : dialogs) {
            parts = each;
            dialog = dialogOf(window, parts);
            for (std::size_t i = 0; i < std::size(closers); ++i) {
                window.show();
                openers[i % std::size(openers)]();
                QCOMPARE(openParts(window, parts), QStringLiteral("dba"));
                closers[i]();
                QCOMPARE(openParts(window, parts), QString());
            }
        }
    }

    void losesAndFindsTheCamera()
    {
        const Camera camera;
        OrvCamConfig window(camera.device());
        window.show();
        for (const Parts &parts : dialogs)
            trigger(window, parts.action);
        trigger(window, "actionAbout");
        const auto icon = [&] {
            return part<QLabel>(window, "lblConnectionIcon")->pixmap(Qt::ReturnByValue).toImage();
        };
        const QImage connected = icon();
        const std::size_t sinks = OrvSim::liveObjects().sinks;
        for (const bool isThere : {true, false, true}) {
            if (!isThere)
                QVERIFY(OrvSim::unplug(twoFrame));
            else if (OrvSim::liveObjects().sinks == 0)
                QVERIFY(OrvSim::replug(twoFrame));
            QTRY_COMPARE(column(window, "B"), isThere ? frameB : noInfo);
            QCOMPARE(column(window, "A"), isThere ? frameA : noInfo);
            QCOMPARE(statusText(window) == disconnected(), !isThere);
            QCOMPARE(temperature(window).isEmpty(), !isThere);
            QCOMPARE(icon() == connected, isThere);
            QCOMPARE(aboutText(window, "lblRgsID") == QStringLiteral("4660"), isThere);
            QCOMPARE(part<QWidget>(window, "groupBox")->isEnabled(), isThere);
            QCOMPARE(OrvSim::liveObjects().sinks, isThere ? sinks : 0);
            QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(2));
            for (const Parts &parts : dialogs)
                QVERIFY(dialogOf(window, parts)->isVisible() && isUsable(window, parts) == isThere);
        }
    }

    /** The loss may have gone by unseen, between two steps. */
    void waitsForTheParametersOfAReturn()
    {
        const Camera camera;
        OrvCamConfig window(camera.device());
        window.show();
        trigger(window, "actionColor");
        const std::pair<bool, OrvSim::Parameters> rows[] = {{true, OrvSim::Parameters::Null},
                                                            {false, OrvSim::Parameters::Error},
                                                            {false, OrvSim::Parameters::ArrayWithError}};
        for (const auto &[isLossSeen, answer] : rows) {
            QTRY_COMPARE(column(window, "B"), frameB);
            QTRY_VERIFY(!temperature(window).isEmpty());
            OrvSim::setParameters(twoFrame, answer);
            QVERIFY(OrvSim::unplug(twoFrame));
            if (isLossSeen)
                QTRY_COMPARE(statusText(window), disconnected());
            QVERIFY(OrvSim::replug(twoFrame));
            waitForSteps(3);
            QCOMPARE(statusText(window), disconnected());
            QCOMPARE(column(window, "A") + column(window, "B") + temperature(window), noInfo + noInfo);
            QVERIFY(!isUsable(window, dialogs[5]));
            OrvSim::setParameters(twoFrame, OrvSim::Parameters::Normal);
            QTRY_COMPARE(statusText(window), QStringLiteral("TF-2000C"));
            QVERIFY(isUsable(window, dialogs[5]));
        }
        // Another event ends it.
        OrvSim::setParameters(twoFrame, OrvSim::Parameters::Null);
        QVERIFY(OrvSim::unplug(twoFrame) && OrvSim::replug(twoFrame));
        waitForAStep();
        QVERIFY(OrvSim::unplug(twoFrame));
        OrvSim::setParameters(twoFrame, OrvSim::Parameters::Normal);
        waitForSteps(3);
        QCOMPARE(statusText(window), disconnected());
    }

    void hearsOfEventsFromOtherThreads()
    {
        OrvSim::setEventsFromOtherThread(true);
        const Camera camera;
        auto window = std::make_unique<OrvCamConfig>(camera.device());
        window->show();
        std::atomic<bool> isOver{false};
        const auto plugAgainAndAgain = [&] {
            for (int i = 0; i < 200; ++i) {
                OrvSim::unplug(twoFrame);
                OrvSim::replug(twoFrame);
            }
            OrvSim::waitForEvents();
            isOver = true;
        };
        std::thread cables(plugAgainAndAgain);
        QTRY_VERIFY_WITH_TIMEOUT(isOver, 30000);
        cables.join();
        QTRY_COMPARE(column(*window, "B"), frameB);

        // While the window goes.
        cables = std::thread(plugAgainAndAgain);
        for (int i = 0; i < 10; ++i)
            window = std::make_unique<OrvCamConfig>(camera.device());
        window.reset();
        cables.join();
        QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(0));
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
    }

    /** What came before the timer looked counts no more, and what was the former camera's does not count for the next.
     */
    void keepsTheLastEvent()
    {
        const Camera camera;
        const Camera other(monochrome);
        OrvCamConfig window(camera.device());
        QTRY_COMPARE(column(window, "B"), frameB);
        QVERIFY(OrvSim::unplug(twoFrame));
        QVERIFY(OrvSim::replug(twoFrame));
        waitForAStep();
        QCOMPARE(statusText(window), QStringLiteral("TF-2000C"));
        QVERIFY(OrvSim::unplug(twoFrame));
        window.SetDevice(other.device());
        waitForAStep();
        QCOMPARE(statusText(window), QStringLiteral("SF-1300M"));
        QVERIFY(OrvSim::unplug(monochrome));
        window.SetDevice(other.device()); // the same once more: what it told stands
        QTRY_COMPARE(statusText(window), disconnected());
    }

    void staysWithoutACamera()
    {
        const std::function<void()> reasons[] = {[] { OrvSim::setSystemAvailable(false); }, cancelWhenAsked,
                                                 [] { chooseWhenAsked(twoFrame); }}; // which cannot be opened
        for (const auto &prepare : reasons) {
            OrvSim::reset();
            prepare();
            OrvSim::refuseToOpen(twoFrame, OrvCamErr_NoDevice);
            OrvCamConfig window(nullptr);
            window.show();
            waitForAStep();
            QCOMPARE(statusText(window), disconnected());
            QCOMPARE(column(window, "A") + temperature(window), noInfo);
            trigger(window, "actionDisconnect");
            QVERIFY(isNothingHeld());
        }
    }

    void asksForACamera()
    {
        OrvTest::whenOpen<OrvCameraSelectorDialog>([](OrvCameraSelectorDialog &selector) {
            QCOMPARE(selector.windowTitle(), OrvTest::translated("OrvGui::OrvCamConfig", "Select a device"));
            QVERIFY(selector.isPollChecked());
            choose(selector, twoFrame);
        });
        {
            const Camera callers(monochrome);
            OrvCamConfig window(nullptr);
            QCOMPARE(statusText(window), QStringLiteral("TF-2000C"));
            window.show();
            trigger(window, "actionStrobe");
            const OrvSim::LiveObjects live = OrvSim::liveObjects();
            QVector<OrvCam::Device *> announced;
            QObject::connect(&window, &OrvCamConfig::deviceChanged, &window, [&](OrvCam::Device *device) {
                announced.append(device);
                QCOMPARE(window.device(), device);
            });
            cancelWhenAsked();
            trigger(window, "actionConnect");
            QVERIFY(announced.isEmpty());
            for (int i = 0; i < 2; ++i) { // the same again
                QCOMPARE(statusText(window), QStringLiteral("TF-2000C"));
                QVERIFY(dialogOf(window, dialogs[3])->isVisible() && isUsable(window, dialogs[3]));
                QCOMPARE(OrvSim::liveObjects().devices, std::size_t(2));
                QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(1));
                QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(2));
                QCOMPARE(OrvSim::liveObjects().sinks, live.sinks);
                chooseWhenAsked(twoFrame);
                trigger(window, "actionConnect");
                QTRY_COMPARE(column(window, "B"), frameB);
            }
            trigger(window, "actionDisconnect");
            QCOMPARE(statusText(window), disconnected());
            QVERIFY(!isUsable(window, dialogs[3]));
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(1));
            QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
            // Each device is announced, even at the address of the one before.
            QCOMPARE(announced.size(), 3);
            QVERIFY(announced.first() && announced.at(1) && !announced.last());
            chooseWhenAsked(twoFrame);
            trigger(window, "actionConnect");
            window.SetDevice(callers.device());
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(1));
        }
        QVERIFY(isNothingHeld());
    }

    /** When the chosen one cannot be opened. The status bar tells why, until the next thing happens. */
    void goesBackToTheFormerCamera()
    {
        enum Former { None, Callers, Own, OwnGone, OwnRefuses, Same };
        for (const Former former : {None, Callers, Own, OwnGone, OwnRefuses, Same}) {
            OrvSim::reset();
            {
                const bool isBack = former == Callers || former == Own;
                const Camera camera;
                if (former != Callers)
                    former == None ? cancelWhenAsked() : chooseWhenAsked(twoFrame);
                OrvCamConfig window(former == Callers ? camera.device() : nullptr);
                window.show();
                if (former == OwnGone)
                    OrvSim::unplug(twoFrame);
                if (former == OwnRefuses || former == Same)
                    OrvSim::refuseToOpen(twoFrame, OrvCamErr_InvalidState);
                const OrvSim::LiveObjects live = OrvSim::liveObjects();
                OrvSim::refuseToOpen(monochrome, OrvCamErr_InvalidState);
                chooseWhenAsked(former == Same ? twoFrame : monochrome);
                trigger(window, "actionConnect");
                auto *const bar = part<QStatusBar>(window, "statusbar");
                const QString reason = OrvTest::translated("OrvGui::OrvCamConfigMapper", "Invalid state");
                QVERIFY(bar->currentMessage().contains(reason));
                const int needed = bar->fontMetrics().horizontalAdvance(bar->currentMessage()) + 1;
                QVERIFY(bar->minimumWidth() >= qMin(needed, window.screen()->availableGeometry().width()));
                QVERIFY(!QApplication::activeModalWidget());
                QCOMPARE(statusText(window), isBack ? QStringLiteral("TF-2000C") : disconnected());
                QVERIFY(
                    !isBack
                    || (OrvSim::liveObjects().sinks == live.sinks && OrvSim::liveObjects().devices == live.devices));
                OrvSim::refuseToOpen(monochrome, OrvCamErr_Ok);
                chooseWhenAsked(monochrome);
                trigger(window, "actionConnect");
                QTRY_COMPARE(column(window, "A"), monochromeFrame);
                QCOMPARE(bar->currentMessage(), QString());
            }
            QVERIFY(isNothingHeld());
        }
    }

    void survivesWhatHappensWhileItAsks()
    {
        const auto whenAsked = [](const std::function<void(OrvCameraSelectorDialog &)> &action) {
            OrvTest::whenOpen<OrvCameraSelectorDialog>(action);
        };
        {
            const Camera camera;
            QPointer<OrvCamConfig> window = new OrvCamConfig(camera.device());
            window->show();
            whenAsked([&](OrvCameraSelectorDialog &) { delete window; });
            trigger(*window, "actionConnect");
            QVERIFY(!window);

            window = new OrvCamConfig(camera.device());
            window->show();
            whenAsked([&](OrvCameraSelectorDialog &selector) {
                trigger(*window, "actionConnect"); // asks no second time
                OrvSim::unplug(twoFrame);
                window->SetDevice(nullptr);
                choose(selector, monochrome);
            });
            trigger(*window, "actionConnect");
            QTRY_COMPARE(statusText(*window), QStringLiteral("SF-1300M"));
            whenAsked([&](OrvCameraSelectorDialog &) { window->close(); });
            trigger(*window, "actionConnect");
            QCOMPARE(statusText(*window), QStringLiteral("SF-1300M"));
            delete window;

            const auto parent = new QWidget;
            parent->show();
            whenAsked([&](OrvCameraSelectorDialog &) { delete parent; });
            const OrvCamConfig orphan(nullptr, parent);
            QVERIFY(!orphan.parent());
            QCOMPARE(statusText(orphan), disconnected());
        }
        QVERIFY(isNothingHeld());
    }

private:
    const QScopedValueRollback<std::chrono::milliseconds> m_period{OrvGui::periods().status,
                                                                   std::chrono::milliseconds(5)};
};

ORV_TEST_MAIN(OrvCamConfigTest)

#include "tst_orvcamconfig.moc"
