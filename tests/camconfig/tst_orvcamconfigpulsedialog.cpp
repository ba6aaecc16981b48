#include "dialogrules.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QToolButton>

using namespace DialogTest;
using OrvGui::OrvCamConfigPulseDialog;

class OrvCamConfigPulseDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsBothWays_data();
    void bindsBothWays();
    void tellsDelayAndFrequency_data();
    void tellsDelayAndFrequency();
    void startsAndStops();
    void pulsesAreCountedOnlyWhenSent();
    void slidersLieAcross();
    void survivesTheCameraWhileEdited();
    void disablesWhatTheCameraLacks();
    void keepsTheRulesOfFeatureDialogs();
};

namespace {

/** What the button offers and which lamp is lit. */
QString generatorState(const QWidget &dialog)
{
    const QImage lamp = part<QLabel>(dialog, "lblPulseEnable")->pixmap(Qt::ReturnByValue).toImage();
    const QString text = part<QPushButton>(dialog, "pushBtnPulseEnable")->text();
    for (const char *const color : {"green", "red"}) {
        if (lamp == QPixmap(QStringLiteral(":/icons/%1ball.ico").arg(QLatin1String(color))).toImage())
            return text + QLatin1Char(' ') + QLatin1String(color);
    }
    return text;
}

QString running()
{
    return OrvTest::translated("OrvGui::OrvCamConfigPulseDialog", "Stop") + QStringLiteral(" green");
}

QString resting()
{
    return OrvTest::translated("OrvGui::OrvCamConfigPulseDialog", "Start") + QStringLiteral(" red");
}

} // namespace

void OrvCamConfigPulseDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigPulseDialogTest::bindsBothWays_data()
{
    addBindings({{"PulseGenGranularity", "cmBoxGranularity", "x10us", "x100us"},
                 {"PulseGenPeriod", "spBoxPeriod", "20000", "1000"},
                 {"PulseGenWidth", "spBoxWidth", "123457", "1"},
                 {"PulseGenNumPulses", "spBoxNumPulses", "65536", "7"},
                 {"PulseGenMode", "radioBtnSend", "Continuous", "NumberOfPulses"},
                 {"PulseGenEnable", "pushBtnPulseEnable", "true", "false"}});
}

void OrvCamConfigPulseDialogTest::bindsBothWays()
{
    const Camera camera;
    QVERIFY(camera.set("PulseGenMode", "NumberOfPulses"));
    checkBinding<OrvCamConfigPulseDialog>(camera);
}

void OrvCamConfigPulseDialogTest::tellsDelayAndFrequency_data()
{
    QTest::addColumn<QByteArray>("period");
    QTest::addColumn<QByteArray>("width");
    QTest::addColumn<QString>("delay");
    QTest::addColumn<QString>("frequency");
    const auto row = [](const char *period, const char *width, const char *delay, const char *frequency) {
        QTest::newRow(period) << QByteArray(period) << QByteArray(width) << QString::fromLatin1(delay)
                              << QString::fromLatin1(frequency);
    };
    row("1000", "300", "700", "1000.000000");
    row("3", "1000000", "-999997", "333333.333333");
    row("1000000", "1", "999999", "1.000000");
    row("0", "5", "-5", "0.000000");
    row("-2", "5", "-7", "-500000.000000");
    row("2147483647", "-2147483648", "2147483647", "0.000466");
    row("-2147483648", "2147483647", "-2147483648", "-0.000466");
}

void OrvCamConfigPulseDialogTest::tellsDelayAndFrequency()
{
    QFETCH(QByteArray, period);
    QFETCH(QByteArray, width);
    const QByteArray range = "<Min>-2147483648</Min><Max>2147483647</Max>";
    const QByteArray widthRegister = "<pValue>PulseGenWidthReg</pValue>";
    const QByteArray periodRegister = "<pValue>PulseGenPeriodReg</pValue>";
    const QByteArray oldRange = "<Min>1</Min><Max>1000000</Max>";
    const auto signedRegister = [](const char *address) {
        const QByteArray head = QByteArray("<Address>") + address
            + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>";
        return QPair<QByteArray, QByteArray>(head + "Unsigned", head + "Signed");
    };
    const Camera camera(plugInChangedCamera({},
                                            {{widthRegister + oldRange, widthRegister + range},
                                             {periodRegister + oldRange, periodRegister + range},
                                             signedRegister("0x2404"),
                                             signedRegister("0x2408")}));
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    const auto *const delay = part<QLineEdit>(dialog, "lineEditDelay");
    const auto *const frequency = part<QLineEdit>(dialog, "lineEditFreq");
    QVERIFY(delay->isReadOnly() && frequency->isReadOnly());
    QCOMPARE(delay->text(), QStringLiteral("700"));
    enterInto(part<QWidget>(dialog, "spBoxPeriod"), period);
    QVERIFY(camera.set("PulseGenWidth", width));
    QTEST(delay->text(), "delay");
    QTEST(frequency->text(), "frequency");
}

void OrvCamConfigPulseDialogTest::startsAndStops()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device()));
    QVERIFY(show(dialog));
    auto *const button = part<QPushButton>(dialog, "pushBtnPulseEnable");
    QCOMPARE(generatorState(dialog), resting());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(generatorState(dialog), running());
    QVERIFY(camera.set("PulseGenEnable", "false"));
    QCOMPARE(generatorState(dialog), resting());
    for (const QString &state : {running(), resting(), running()}) {
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&dialog, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(generatorState(dialog), state);
        QCOMPARE(camera.value("PulseGenEnable"), QVariant(state == running()).toString());
    }
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(generatorState(dialog), running());
}

void OrvCamConfigPulseDialogTest::pulsesAreCountedOnlyWhenSent()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const number = part<QtOrvSpinBox>(dialog, "spBoxNumPulses");
    auto *const send = part<QAbstractButton>(dialog, "radioBtnSend");
    QVERIFY(!number->isEnabled() && send->isEnabled());
    clickMark(send);
    QCOMPARE(camera.value("PulseGenMode"), QStringLiteral("NumberOfPulses"));
    QVERIFY(number->isEnabled());
    clickMark(part<QWidget>(dialog, "radioBtnContinious"));
    QVERIFY(!number->isEnabled());
}

void OrvCamConfigPulseDialogTest::slidersLieAcross()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(dialog.maximumSize(), dialog.size());
    for (const char *const label : {"lblWidth", "lblPeriod", "lblDelay"})
        QVERIFY(part<QLabel>(dialog, label)->text().endsWith(QStringLiteral(" [%1s]:").arg(QChar(0x3bc))));
    for (const char *const name : {"spBoxPeriod", "spBoxWidth", "spBoxNumPulses"}) {
        const auto *const spinBox = part<QtOrvSpinBox>(dialog, name);
        QCOMPARE(spinBox->sliderOrientation(), Qt::Horizontal);
        QCOMPARE(spinBox->slider()->width(), spinBox->sizeHint().width());
    }
    auto *const period = part<QtOrvSpinBox>(dialog, "spBoxPeriod");
    expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
    QTest::mouseClick(period->toolButton(), Qt::LeftButton);
    QVERIFY(period->slider()->isVisible());
    QTest::keyClick(period->slider()->slider(), Qt::Key_Home);
    QTest::keyClick(period->slider()->slider(), Qt::Key_Up);
    QCOMPARE(camera.value("PulseGenPeriod"), QStringLiteral("2"));
}

void OrvCamConfigPulseDialogTest::survivesTheCameraWhileEdited()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    auto *const period = part<QtOrvSpinBox>(dialog, "spBoxPeriod");
    type(period->spinBox(), "77");
    QVERIFY(OrvSim::unplug(SimTest::twoFrame));
    QTest::mouseClick(part<QWidget>(dialog, "pushBtnPulseEnable"), Qt::LeftButton);
    QTest::keyClick(period->spinBox(), Qt::Key_Return);
    QVERIFY(!shownMessage());
    QVERIFY(!dialog.SetDevice(nullptr));
    QVERIFY(OrvSim::replug(SimTest::twoFrame));
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(shownBy(period), QStringLiteral("1000"));
    QCOMPARE(generatorState(dialog), resting());
}

void OrvCamConfigPulseDialogTest::disablesWhatTheCameraLacks()
{
    const Camera bare(plugInBareCamera());
    const Camera full;
    QVERIFY(full.set("PulseGenEnable", "true"));
    OrvCamConfigPulseDialog dialog(full.device());
    QVERIFY(dialog.SetDevice(bare.device()));
    QVERIFY(dialog.isEnabled());
    for (const char *const name : {"cmBoxGranularity", "spBoxPeriod", "spBoxWidth", "spBoxNumPulses",
                                   "radioBtnContinious", "radioBtnSend", "pushBtnPulseEnable"})
        QVERIFY2(!part<QWidget>(dialog, name)->isEnabled(), name);
    QCOMPARE(generatorState(dialog), resting());
}

void OrvCamConfigPulseDialogTest::keepsTheRulesOfFeatureDialogs()
{
    checkFeatureDialog<OrvCamConfigPulseDialog>();
}

ORV_TEST_MAIN(OrvCamConfigPulseDialogTest)

#include "tst_orvcamconfigpulsedialog.moc"
