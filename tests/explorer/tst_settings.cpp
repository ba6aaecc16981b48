// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerasource.h"
#include "explorerwindow.h"
#include "orvtest.h"
#include "settings/settingscompare.h"
#include "settings/settingsjob.h"
#include "settings/settingsmenu.h"
#include "settings/settingsreport.h"
#include "settings/settingssaver.h"
#include "settings/valuetext.h"

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using State = SettingResult::State;

const char *const camera = "SETTINGS";
const QByteArray head = "# {05D8C294-F295-4dfb-9D01-096BD04049F4}\n";

void set(const CameraSource &source, const char *name, const char *value)
{
    dynamic_cast<GenApi::IValue &>(*source.nodeMap()->GetNode(name)).FromString(value);
}

QByteArray valueOf(const CameraSource &source, const char *name)
{
    return dynamic_cast<GenApi::IValue &>(*source.nodeMap()->GetNode(name)).ToString(false, true).c_str();
}

/** "NAME=VALUE ..." in their order. */
void setAll(const CameraSource &source, const char *values)
{
    for (const QByteArray &each : QByteArray(values).split(' '))
        set(source, each.left(each.indexOf('=')).constData(), each.mid(each.indexOf('=') + 1).constData());
}

QByteArray linesOf(const SettingsFile &file)
{
    QByteArray lines;
    for (const Setting &setting : file.settings)
        lines += (lines.isEmpty() ? "" : " ") + setting.name + '=' + setting.value;
    return lines;
}

SettingsFile fileOf(const QByteArray &lines)
{
    return parseSettings(head + QByteArray(lines).replace('=', '\t').replace(' ', '\n'));
}

std::unique_ptr<CameraSource> openSettings()
{
    return openCamera(QLatin1String(camera));
}

} // namespace

class SettingsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
        OrvSim::DeviceSpec spec = OrvSim::cameraFromFile(TEST_DATA "/settings.xml");
        spec.name = camera;
        spec.id = camera;
        spec.powerUp =
            "set WidthReg 60\nset OffsetReg 40\nset LowerReg 1\nset UpperReg 9\nset RateReg 12\nset RowReg 1\n";
        std::string error;
        QVERIFY2(OrvSim::addDevice("ORV-ETH-0", spec, &error), error.c_str());
    }

    void readsFiles()
    {
        const QByteArray nul("B\t2\0\n", 5);
        const std::array<QByteArray, 3> rows[] = {
            {head + "# Device = X::Y\nA\t1\nB\t\tx \n", "A=1 B=\tx ", ""},
            {"\xEF\xBB\xBF" + head + "A\t1\r\n\r\nB\t2", "A=1 B=2", ""},
            {"A\t1\n", "A=1", "The head of a settings file is missing."},
            {head + "A\t{S=1\tT=x}\t5\nB\t{a}\t\n", "A={S=1\tT=x}\t5 B={a}\t", ""},
            {head + "A\n" + nul + "C\t3\n", "C=3",
             "Line 2: The line is no setting: 'A'.|Line 3: The line has a NUL byte."},
            {head + "A\t" + QByteArray(1 << 20, 'x') + "\nB\t1", "B=1", "Line 2: The line is too long."},
        };
        for (const auto &[text, lines, remarks] : rows) {
            const SettingsFile file = parseSettings(text);
            QCOMPARE(linesOf(file), lines);
            QCOMPARE(file.remarks.join(QLatin1Char('|')), QString::fromUtf8(remarks));
        }
        QCOMPARE(parseSettings(rows[0][0]).device, QStringLiteral("X::Y"));
        QVERIFY_EXCEPTION_THROWN(parseSettings("GIF89a"), SettingsError);
        QVERIFY_EXCEPTION_THROWN(readSettings(QStringLiteral(TEST_DATA)), SettingsError);
        QVERIFY_EXCEPTION_THROWN(writeSettings({}, QStringLiteral("/dev/full")), SettingsError);
        const auto stop = [](int, int, const QByteArray &) { throw SettingsInterrupted(); };
        QVERIFY_EXCEPTION_THROWN(parseSettings(QByteArray("A\t1\n").repeated(2000), stop), SettingsInterrupted);

        const QTemporaryDir directory; // a pipe is written, not replaced
        const QString path = directory.filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        const int reader = ::open(QFile::encodeName(path).constData(), O_RDWR);
        writeSettings({}, path);
        QByteArray written(head.size(), '?');
        QCOMPARE(::read(reader, written.data(), std::size_t(written.size())), ssize_t(head.size()));
        ::close(reader);
        QCOMPARE(written, head);
    }

    void comparesValues()
    {
        const std::tuple<const char *, const char *, GenApi::EInterfaceType, bool> rows[] = {
            {"1.5", "1.50", GenApi::intfIFloat, true},
            {"1.5", "1.51", GenApi::intfIFloat, false},
            {"2e3", "2000", GenApi::intfIFloat, true},
            {"1e+06", "1000001", GenApi::intfIFloat, false},
            {"nan", "nan", GenApi::intfIFloat, true},
            {"inf", "1", GenApi::intfIFloat, false},
            {"0xFF", "255", GenApi::intfIInteger, true},
            {"010", "10", GenApi::intfIInteger, true},
            {"-1", "0xFFFFFFFFFFFFFFFF", GenApi::intfIInteger, true},
            {"1", "1.0", GenApi::intfIInteger, false},
            {"true", "1", GenApi::intfIBoolean, true},
            {"1", "01", GenApi::intfIString, false},
        };
        for (const auto &[wanted, has, kind, isSame] : rows)
            QVERIFY2(isSameValue(wanted, has, kind) == isSame, wanted);
        QVERIFY(isSameValue("1.50", "1.5") && isSameValue("0x1F", "0X01f") && !isSameValue("1.5", "1.50001"));
        QVERIFY(!isSameValue("007", "7") && !isSameValue("-1", "18446744073709551615"));
        QCOMPARE(lastDigitOf(1e6, GenApi::fnAutomatic, 6), 10.0);
        QCOMPARE(lastDigitOf(0, GenApi::fnFixed, 1), 0.1);
        QCOMPARE(lastDigitOf(1500, GenApi::fnScientific, 2), 10.0);
    }

    void savesWhatBelongsToIt()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        setAll(*source, "Title=\xC3\xA4\tx Bank=B Cell=5 Bank=A");
        OrvSim::resetCounts(camera);
        const QByteArray all = "Offset=40 Width=60 Lower=1 Upper=9 Rate=1.5 Title=\xC3\xA4\tx Flag=0 Guarded=0 "
                               "Bank=A Row=0 Cell=0 Row=1 Cell=0 Row=2 Cell=0 Row=1 Level=0 "
                               "Bank=B Row=0 Cell=5 Row=1 Cell=0 Row=2 Cell=0 Row=0 Level=0 Bank=A Row=1 "
                               "Late=3 Early=0";
        const SettingsFile file = SettingsSaver(*source->nodeMap(), {}).save();
        QCOMPARE(linesOf(file), all);
        QCOMPARE(file.remarks, QStringList());
        QCOMPARE(OrvSim::writeCount(camera), 9U); // the selectors alone
        QCOMPARE(valueOf(*source, "Bank") + valueOf(*source, "Row"), QByteArray("A1"));

        // What fails takes nothing with it.
        set(*source, "Flag", "1"); // locks
        OrvSim::setFault(camera, "RateReg", OrvSim::Fault::FailRead);
        OrvSim::setFault(camera, "BankReg", OrvSim::Fault::FailWrite);
        set(*source, "Title", "two\nlines");
        const SettingsFile part = SettingsSaver(*source->nodeMap(), {}).save();
        QCOMPARE(linesOf(part),
                 QByteArray("Offset=40 Width=60 Lower=1 Upper=9 Flag=1 Bank=A Row=0 Cell=0 Row=1 Cell=0 "
                            "Row=2 Cell=0 Row=1 Level=0 Bank=A Row=1 Late=3 Early=0"));
        QCOMPARE(part.remarks.size(), 3);
        for (const char *name : {"Rate: ", "Title: ", "Bank: What 'B' selects is not saved: "})
            QVERIFY2(part.remarks.join(QLatin1Char('\n')).contains(QLatin1String(name)), name);
    }

    void tellsWhatCannotBeAsked()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        OrvSim::setFault(camera, "FlagReg", OrvSim::Fault::FailRead); // which locks Guarded
        const QStringList remarks = SettingsSaver(*source->nodeMap(), {}).save().remarks;
        QVERIFY2(remarks.join(QLatin1Char('\n')).contains(QLatin1String("Guarded: ")),
                 qPrintable(remarks.join(QLatin1Char('\n'))));
    }

    void everythingComesBack()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        setAll(*source, "Flag=1 Bank=B Row=2 Cell=9 Level=4 Bank=A");
        const SettingsFile saved = parseSettings(textOf(SettingsSaver(*source->nodeMap(), {}).save()));
        setAll(*source,
               "Flag=0 Guarded=3 Offset=0 Width=100 Lower=0 Upper=0 Rate=0.1 Title=y Row=0 Cell=1 "
               "Bank=B Row=1 Cell=2 Level=3");
        SettingsLoader loader(*source->nodeMap(), saved);
        loader.load({});
        for (const SettingResult &result : loader.results())
            QVERIFY2(result.state != State::Different, qPrintable(nameWithContext(result.setting.name, {})));
        QVERIFY(loader.isComplete());
        QCOMPARE(linesOf(SettingsSaver(*source->nodeMap(), {}).save()), linesOf(saved));
        loader.putBack({});
        QCOMPARE(valueOf(*source, "Width") + ' ' + valueOf(*source, "Upper") + ' ' + valueOf(*source, "Title") + ' '
                     + valueOf(*source, "Bank") + valueOf(*source, "Level"),
                 QByteArray("100 0 y B3"));
    }

    /** Each under the entries of the others, whatever was done. */
    void selectorsInsideOthersComeBack()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        setAll(*source, "Bank=B Row=0 Bank=A");
        SettingsLoader loader(*source->nodeMap(), fileOf("Bank=B Row=2 Cell=7 Row=1 Bank=A"));
        const auto row = [&] {
            set(*source, "Bank", "B");
            const QByteArray value = valueOf(*source, "Row");
            set(*source, "Bank", "A");
            return value;
        };
        loader.look({});
        QCOMPARE(row(), QByteArray("0"));
        int count = 0;
        const auto stop = [&count](int, int, const QByteArray &feature) {
            if (feature == "Cell" && ++count == 3)
                throw SettingsInterrupted();
        };
        loader.load(stop);
        QVERIFY(!loader.isComplete());
        QCOMPARE(row(), QByteArray("0"));
        loader.load({});
        QCOMPARE(row(), QByteArray("1"));
        loader.putBack({});
        QCOMPARE(row(), QByteArray("0"));
    }

    void textsKeepBraces()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        SettingsLoader loader(*source->nodeMap(),
                              parseSettings(head + "Title\t{Width=8}\tx\nCell\t{Bank=B\tRow=2}\t7\nBank\tB\n"));
        loader.load({});
        QCOMPARE(valueOf(*source, "Title") + valueOf(*source, "Width"), QByteArray("{Width=8}\tx60"));
        QCOMPARE(valueOf(*source, "Row") + valueOf(*source, "Cell"), QByteArray("27"));
    }

    void tellsWhatWasSetButNotReadAgain()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        SettingsLoader loader(*source->nodeMap(), fileOf("Private=6 Width=50"));
        int count = 0;
        loader.load([&count](int, int, const QByteArray &feature) {
            if (feature == "Private" && ++count == 3)
                OrvSim::setFault(camera, "PrivateReg", OrvSim::Fault::FailRead);
        });
        QCOMPARE(loader.results().at(0).state, State::Set);
        QVERIFY(loader.results().at(0).reason.contains(QLatin1String("It was set, and could not be read")));
    }

    void isPutBackInTwoParts()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        SettingsLoader loader(*source->nodeMap(), fileOf("Guarded=5 Private=6"));
        loader.load({});
        loader.putBack([](int, int, const QByteArray &feature) {
            if (feature == "Private")
                throw SettingsInterrupted();
        });
        QVERIFY(!loader.isComplete());
        QCOMPARE(loader.results().at(0).state, State::Set);
        QCOMPARE(loader.results().at(1).reason, QStringLiteral("It was not tried."));
        loader.putBack({});
        QVERIFY(loader.isComplete());
        QCOMPARE(valueOf(*source, "Guarded") + valueOf(*source, "Private"), QByteArray("00"));
    }

    /** Whatever is thrown. */
    void jobsSurviveTheirWork()
    {
        SettingsJob job(
            QStringLiteral("Job"), [](const SettingsProgress &) { throw 7; }, nullptr);
        QSignalSpy ended(&job, &SettingsJob::ended);
        QTRY_COMPARE(ended.count(), 1);
        QVERIFY(!job.failure().isEmpty());
    }

    void tellsWhatCannotBeSet()
    {
        const std::array<const char *, 3> rows[] = {
            {"Width=70", "60", "maximum"},
            {"Offset=0 Width=70", "70", ""},
            {"Fixed=8", "7", "only be read"},
            {"Flag=1 Guarded=3", "0", "only be read"},
            {"Reset=1", "", "no feature"},
            {"Nobody=1", "", "no feature"},
            {"Nobody=1 Nobody=2", "", "no feature"},
            {"WidthReg=99", "", "no feature"},
            {"GevLink=1", "", "connection"},
            {"Alias=8 Private=6 Alias=8", "6", "Another setting"},
            {"Rate=1.3", "1.2", ""},
            {"Rate=1.4", "1.4", ""},
            {"Rate=x", "1.5", "x"},
            {"Bank=C Level=1", "", "'Bank' cannot be set to 'C'"},
            {"Private=6", "6", ""},
            {"Guarded=1 Guarded=2", "2", ""},
            {"Upper=20 Lower=15", "15", ""},
        };
        for (const auto &[lines, has, reason] : rows) {
            init();
            const std::unique_ptr<CameraSource> source = openSettings();
            SettingsLoader loader(*source->nodeMap(), fileOf(lines));
            loader.load({});
            const QVector<SettingResult> results = loader.results();
            const QByteArray last = QByteArray(lines).split(' ').constLast();
            const auto result = std::find_if(results.begin(), results.end(), [&](const SettingResult &each) {
                return last.startsWith(each.setting.name + '=');
            });
            QVERIFY2(result != results.end(), lines);
            QCOMPARE(result->has, QByteArray(has));
            QVERIFY2(result->reason.contains(QLatin1String(reason)) && result->reason.isEmpty() == !*reason,
                     qPrintable(result->reason));
        }
    }

    /** By its user, or because the camera goes. */
    void isInterrupted()
    {
        const std::unique_ptr<CameraSource> source = openSettings();
        for (const bool isLost : {false, true}) {
            int count = 0;
            const auto stop = [&](int, int, const QByteArray &feature) {
                count += feature == "Cell" ? 1 : 0;
                if (count == 2 && isLost)
                    OrvSim::unplug(camera);
                else if (count == 2)
                    throw SettingsInterrupted();
            };
            if (isLost) {
                SettingsLoader loader(*source->nodeMap(), fileOf("Guarded=5 Bank=B Row=2 Cell=7 Bank=A Row=0"));
                loader.load(stop);
                for (const SettingResult &result : loader.results())
                    QCOMPARE(result.reason.isEmpty(), false);
                init();
                const std::unique_ptr<CameraSource> another = openSettings();
                count = 0;
                SettingsSaver saver(*another->nodeMap(), stop);
                QVERIFY_EXCEPTION_THROWN(saver.save(), SettingsError);
                QVERIFY(saver.remarks().join(QLatin1Char('\n')).contains(QLatin1String("could not be put back")));
                return;
            }
            QVERIFY_EXCEPTION_THROWN(SettingsSaver(*source->nodeMap(), stop).save(), SettingsInterrupted);
            QCOMPARE(valueOf(*source, "Bank") + valueOf(*source, "Row"), QByteArray("A1"));
            SettingsLoader loader(*source->nodeMap(), fileOf("Guarded=5 Bank=B Row=2 Cell=7 Bank=A Row=0"));
            count = 0;
            loader.load(stop);
            QVERIFY(!loader.isComplete() && loader.hasWritten());
            QCOMPARE(valueOf(*source, "Bank") + valueOf(*source, "Row"), QByteArray("A1"));
            QCOMPARE(loader.results().at(0).state, State::Set);
            QCOMPARE(loader.results().at(1).reason, QStringLiteral("It was not tried."));
            loader.putBack({});
            QVERIFY(loader.isComplete());
            QCOMPARE(valueOf(*source, "Guarded"), QByteArray("0"));
        }
    }

    void comparesFiles()
    {
        const auto compared = [](const QVector<SettingDifference> &differences) {
            QStringList lines;
            for (const SettingDifference &each : differences)
                lines << QStringLiteral("%1 %2|%3")
                             .arg(nameWithContext(each.name, each.context), QString::fromUtf8(each.left),
                                  QString::fromUtf8(each.right));
            return lines.join(QLatin1Char('\n'));
        };
        const QString differences = QStringLiteral("A 1|\nGain (GainSelector=R) 1|2\nD 007|7\nB |3");
        QCOMPARE(compared(compareSettings(
                     fileOf("A=1 GainSelector=R Gain=1 GainSelector=G Gain=5 C=1.0 D=007"),
                     fileOf("GainSelector=G Gain=5 GainSelector=R Gain=2 GainSelector=G B=3 C=1.00 D=7"), {})),
                 differences);
        const std::unique_ptr<CameraSource> source = openSettings();
        QStringList remarks;
        SettingsFile file = fileOf("Nobody=1 Bank=B Cell=4 Bank=A Width=50");
        file.settings += SettingsSaver(*source->nodeMap(), {}).save().settings.mid(2);
        QCOMPARE(compared(compareWithCamera(file, *source->nodeMap(), remarks, {})),
                 QStringLiteral("Nobody 1|\nWidth 50|60\nOffset |40"));
        const QString few = compared(compareWithCamera(fileOf("Level=0"), *source->nodeMap(), remarks, {}));
        QVERIFY(few.contains(QLatin1String("Level (Bank=B)")) && !few.contains(QLatin1String("Level (Bank=A)")));
    }

    /** Another camera, the end of the window, the loss of the camera. */
    void survivesWhatHappensMeanwhile()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("camera.gps"));
        const std::function<void(ExplorerWindow &)> happenings[] = {
            [](ExplorerWindow &window) { window.showCamera(QStringLiteral("ORV-USB3-0001")); },
            [](ExplorerWindow &) {},
            [](ExplorerWindow &window) {
                OrvSim::unplug(camera);
                QTRY_VERIFY(!window.findChild<SettingsJob *>());
                OrvSim::replug(camera);
            },
        };
        writeSettings(SettingsSaver(*openSettings()->nodeMap(), {}).save(), path);
        for (const auto &happens : happenings) {
            for (const auto &operation : {&SettingsMenu::saveTo, &SettingsMenu::loadFrom, &SettingsMenu::compareWith}) {
                ExplorerWindow window(openSettings());
                window.show();
                auto *const menu = window.findChild<SettingsMenu *>();
                (menu->*operation)(path);
                QVERIFY(window.findChild<SettingsJob *>());
                happens(window);
            }
        }
        QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
        QVERIFY(!readSettings(path).settings.isEmpty());
    }

    /** The whole way, with keys. */
    void worksInTheWindow()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("camera.gps"));
        std::unique_ptr<CameraSource> source = openSettings();
        const CameraSource &shown = *source;
        ExplorerWindow window(std::move(source));
        window.show();
        const auto *const view = window.findChild<OrvGui::OrvGenParamTreeView *>();
        const auto choose = [&](const char *action) {
            QTRY_VERIFY(!window.findChild<SettingsJob *>());
            window.findChild<QAction *>(QLatin1String(action))->trigger();
            auto *const dialog = window.findChild<QFileDialog *>();
            QVERIFY(dialog);
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
            QTRY_VERIFY(!window.findChild<QFileDialog *>() && !window.findChild<SettingsJob *>());
        };
        const auto report = [&] { return window.findChild<SettingsReport *>(); };
        choose("saveSettings");
        const SettingsFile saved = readSettings(path);
        QCOMPARE(saved.settings.size(), 30);

        SettingsFile changed = saved;
        changed.settings[0].value = "5";
        changed.settings.append({"Nobody", "1", 0});
        writeSettings(changed, path);
        choose("compareSettings");
        QTRY_VERIFY(report());
        auto *const list = report()->findChild<QTreeView *>();
        QCOMPARE(list->model()->rowCount(), 2);
        const_cast<OrvGui::OrvGenParamTreeView *>(view)->setFilterText(QStringLiteral("Width"));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(view->treeView()->currentIndex().data(OrvGui::OrvGenParamTreeView::FeatureNameRole).toString(),
                 QStringLiteral("Offset"));
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().contains(QLatin1String("Offset\t5\t40")));
        QTest::keyClick(report(), Qt::Key_Escape);
        QTRY_VERIFY(!report());

        choose("loadSettings");
        QTRY_VERIFY(report());
        QVERIFY(report()->findChild<QLabel *>(QStringLiteral("summary"))->text().startsWith(QLatin1String("1 of ")));
        QCOMPARE(valueOf(shown, "Offset"), QByteArray("5"));
        QTest::mouseClick(report()->findChild<QPushButton *>(QStringLiteral("putBack")), Qt::LeftButton);
        QTRY_COMPARE(valueOf(shown, "Offset"), QByteArray("40"));
        QTRY_VERIFY(!window.findChild<SettingsJob *>());
        QTest::keyClick(report(), Qt::Key_Escape);
        QTRY_VERIFY(!report());
        choose("loadSettings");
        QTRY_VERIFY(report());
        const auto *const button = report()->findChild<QPushButton *>(QStringLiteral("putBack"));
        QVERIFY(button->isEnabled());

        OrvSim::setRegister(camera, "TLParamsLocked", "1");
        const QSignalSpy wanted(window.findChild<SettingsMenu *>(), &SettingsMenu::stopWanted);
        choose("loadSettings");
        QTRY_VERIFY(window.findChild<QMessageBox *>());
        for (QAbstractButton *each : window.findChild<QMessageBox *>()->buttons()) {
            if (each->text().contains(QLatin1String("Stop")))
                QTest::mouseClick(each, Qt::LeftButton);
        }
        QCOMPARE(wanted.size(), 1);
        OrvSim::setRegister(camera, "TLParamsLocked", "0");
        QTRY_COMPARE(window.findChildren<SettingsReport *>().size(), 2);

        changed.device = QStringLiteral("Someone::Else");
        writeSettings(changed, path);
        choose("loadSettings");
        QTRY_VERIFY(window.findChild<QMessageBox *>());
        QTest::keyClick(window.findChild<QMessageBox *>(), Qt::Key_Escape);
        window.showCamera(QStringLiteral("ORV-USB3-0001")); // while a report can be there
        QVERIFY(!button->isEnabled());

        window.findChild<SettingsMenu *>()->loadFrom(directory.path()); // as little as a pipe
        QTRY_VERIFY(window.findChild<QMessageBox *>());
    }
};

ORV_TEST_MAIN(SettingsTest)
#include "tst_settings.moc"
