#include "dialogtest.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace DialogTest;
using OrvGui::OrvCamConfigPulseDialog;

class OrvCamConfigPulseDialogTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsTheGranularity();
    void followsTheCameraAlone();
    void showsNothingOfACameraThatIsGone();
};

namespace {

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

QString shown(const OrvCamConfigPulseDialog &dialog, const char *field)
{
    return part<QLineEdit>(dialog, field)->text();
}

const QString microseconds = QStringLiteral("\u03bcs");
const QString hertz = QStringLiteral("1000.000000");

} // namespace

void OrvCamConfigPulseDialogTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void OrvCamConfigPulseDialogTest::followsTheGranularity()
{
    const std::tuple<QByteArray, QString, QString> rows[] = {
        {"x10us", QStringLiteral("10 \u03bcs"), QStringLiteral("100.000000")},
        {"Granularity_250ns", QStringLiteral("250 ns"), QStringLiteral("4000.000000")},
        {"x1ns", QStringLiteral("ns"), QStringLiteral("1000000.000000")},
        {"x1ms", QStringLiteral("ms"), QStringLiteral("1.000000")},
        {"T20ms", QStringLiteral("20 ms"), QStringLiteral("0.050000")},
        {"x1s", QStringLiteral("s"), QStringLiteral("0.001000")},
        {"x2s", QStringLiteral("2 s"), QStringLiteral("0.000500")},
        {"x01us", microseconds, hertz},
        {"x18446744073709551615s", QStringLiteral("18446744073709551615 s"), QStringLiteral("0.000000")},
        {"x18446744073709551616s", microseconds, hertz}, // too large a number
        {"x0ms", microseconds, hertz},
        {"x10US", microseconds, hertz},
        {"us10", microseconds, hertz},
        {"Pixels", microseconds, hertz},
        {"x10usec", microseconds, hertz}};
    for (const auto &[entry, unit, frequency] : rows) {
        OrvSim::reset();
        const Camera camera(plugInChangedCamera({}, {{"\"x10us\"", '"' + entry + '"'}}));
        OrvCamConfigPulseDialog dialog(camera.device());
        QVERIFY(show(dialog));
        QCOMPARE(unitOf(dialog), microseconds); // of "x1us"
        QCOMPARE(shown(dialog, "lineEditFreq"), hertz);
        const QSize size = dialog.size();
        enterInto(part<QWidget>(dialog, "cmBoxGranularity"), entry.constData());
        QCOMPARE(camera.value("PulseGenGranularity"), QLatin1String(entry));
        QCOMPARE(unitOf(dialog), unit);
        QCOMPARE(shown(dialog, "lineEditFreq"), frequency);
        QCOMPARE(shown(dialog, "lineEditDelay"), QStringLiteral("700")); // in that unit, as period and width
        QCoreApplication::sendPostedEvents();
        QCOMPARE(dialog.size(), size);
        enterInto(part<QWidget>(dialog, "spBoxPeriod"), "2");
        QVERIFY(camera.set("PulseGenGranularity", "x1us"));
        QCOMPARE(unitOf(dialog), microseconds);
        QCOMPARE(shown(dialog, "lineEditFreq"), QStringLiteral("500000.000000"));
    }
}

void OrvCamConfigPulseDialogTest::followsTheCameraAlone()
{
    const Camera camera;
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QVERIFY(camera.refuse("PulseGenGranularity"));
    enterInto(part<QWidget>(dialog, "cmBoxGranularity"), "x10us");
    QVERIFY(!takeMessage().isEmpty());
    QCOMPARE(unitOf(dialog), microseconds);
    QCOMPARE(shown(dialog, "lineEditFreq"), hertz);
}

void OrvCamConfigPulseDialogTest::showsNothingOfACameraThatIsGone()
{
    const Camera camera;
    QVERIFY(camera.set("PulseGenGranularity", "x1000us"));
    QVERIFY(camera.set("PulseGenEnable", "true"));
    OrvCamConfigPulseDialog dialog(camera.device());
    QVERIFY(show(dialog));
    QCOMPARE(unitOf(dialog), QStringLiteral("1000 \u03bcs"));
    camera.takeWrites();
    QVERIFY(!dialog.SetDevice(nullptr));
    QCOMPARE(camera.takeWrites(), 0);
    QCOMPARE(unitOf(dialog), microseconds);
    for (const char *const field : {"lineEditDelay", "lineEditFreq"})
        QCOMPARE(shown(dialog, field), QString());
    QCOMPARE(part<QComboBox>(dialog, "cmBoxGranularity")->count(), 0);
    QVERIFY(!part<QPushButton>(dialog, "pushBtnPulseEnable")->isChecked());
    QVERIFY(!part<QGroupBox>(dialog, "groupBox")->isEnabled());
    QVERIFY(dialog.SetDevice(camera.device()));
    QCOMPARE(unitOf(dialog), QStringLiteral("1000 \u03bcs"));
    QCOMPARE(shown(dialog, "lineEditFreq"), QStringLiteral("1.000000"));
}

ORV_TEST_MAIN(OrvCamConfigPulseDialogTest)

#include "tst_orvcamconfigpulsedialog.moc"
