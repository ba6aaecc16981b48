#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>

#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>

namespace {

struct Result
{
    int status = -1;
    QString out;
    QString err;
};

/** Runs the explorer to its end, in an environment without a display, for a person whose files are in \a home. */
Result explore(const QStringList &arguments, const QString &home = QDir::homePath())
{
    const QTemporaryDir runtimeDir; // Qt complains when there is none
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir.path());
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/.config"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EXPLORER), arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

QString dataFile(const char *name)
{
    return QStringLiteral(TEST_DATA "/") + QLatin1String(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ExplorerTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void printsWhatIsAskedFor();
    void rejectsInOneLine_data();
    void rejectsInOneLine();
    void drawsItsWindow_data();
    void drawsItsWindow();
    void drawsWithoutAnyonesSettings();
    void speaksTheFirstLanguage_data();
    void speaksTheFirstLanguage();
};

void ExplorerTest::printsWhatIsAskedFor()
{
    const Result help = explore({QStringLiteral("--help")});
    QCOMPARE(help.status, 0);
    QCOMPARE(help.err, QString());
    for (const char *option :
         {"--xml <FILE>", "--camera <ID>", "--screenshot <DIR>", "--language <LANGUAGE>", "--help", "--version"})
        QVERIFY2(help.out.contains(QLatin1String(option)), option);

    const Result version = explore({QStringLiteral("--version")});
    QCOMPARE(version.status, 0);
    QCOMPARE(version.out, QStringLiteral("orv-camera-explorer " ORV_VERSION "\n"));
}

void ExplorerTest::rejectsInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("told");
    const auto row = [](const char *name, const QStringList &arguments, const QString &told) {
        QTest::newRow(name) << arguments << told;
    };
    const QString missing = dataFile("missing.xml");
    const QString malformed = dataFile("malformed.xml");
    const QString directory = dataFile("");
    const QString target = QDir::tempPath();
    const QString shot = QStringLiteral("--screenshot");
    const QString xml = QStringLiteral("--xml");

    row("unknown option", {QStringLiteral("--frobnicate")}, QStringLiteral("frobnicate"));
    row("option without value", {xml}, QStringLiteral("xml"));
    row("empty value", {QStringLiteral("--camera=")}, QStringLiteral("--camera"));
    row("unknown language", {QStringLiteral("--language"), QStringLiteral("tlh")}, QStringLiteral("zh_CN"));
    row("stray argument", {QStringLiteral("camera.xml")}, QStringLiteral("camera.xml"));
    row("two sources", {xml, malformed, QStringLiteral("--camera"), QStringLiteral("X")}, QStringLiteral("--camera"));
    row("no display", {}, shot);
    row("unknown camera", {shot, target, QStringLiteral("--camera"), QStringLiteral("nobody")},
        QStringLiteral("'nobody'"));
    row("missing file", {shot, target, xml, missing}, missing);
    row("directory", {shot, target, xml, directory}, directory);
    row("malformed file", {shot, target, xml, malformed}, malformed + QStringLiteral(":7"));
    row("no place to write", {shot, malformed, xml, dataFile("probe.xml")}, malformed);
}

void ExplorerTest::rejectsInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, told);
    const Result result = explore(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.out, QString());
    QVERIFY2(result.err.startsWith(QLatin1String("orv-camera-explorer: ")), qPrintable(result.err));
    QVERIFY2(result.err.contains(told), qPrintable(result.err));
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
}

void ExplorerTest::drawsItsWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("pictures");
    const auto list = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
    QStringList pictures = list("explorer widgets filteroptions filter errors about configwindow");
    for (const OrvGui::FeatureDialog &dialog : OrvGui::featureDialogs())
        pictures.append(QLatin1String(dialog.kind));
    QTest::newRow("simulated camera") << QStringList() << pictures + list("setip selectcamera");
    QTest::newRow("description") << QStringList{QStringLiteral("--xml"), dataFile("probe.xml")}
                                 << list("explorer widgets filteroptions filter errors setip selectcamera");
}

void ExplorerTest::drawsItsWindow()
{
    QFETCH(QStringList, arguments);
    const QTemporaryDir target;
    const QString dir = target.filePath(QStringLiteral("made/on/demand"));
    Result result = explore(arguments + QStringList{QStringLiteral("--screenshot"), dir});
    result.err.remove(QStringLiteral("This plugin does not support propagateSizeHints()\n")); // of shown dialogs
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);

    QFETCH(QStringList, pictures);
    QStringList files;
    for (const QString &picture : pictures)
        files.append(QStringLiteral("%1/%2.png").arg(dir, picture));
    QCOMPARE(result.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts), files);
    for (const QString &file : qAsConst(files)) {
        const QImage image(file);
        QVERIFY(!image.isNull());
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                colors.insert(image.pixel(x, y));
        }
        QVERIFY2(colors.size() > 10, "the picture shows no text");
    }
}

/** Pictures are the same for everyone, and leave no trace. */
void ExplorerTest::drawsWithoutAnyonesSettings()
{
    const QTemporaryDir home;
    const QTemporaryDir target;
    const QString file = home.filePath(QStringLiteral(".config/OrvCameraGuiApi/orv-camera-explorer.conf"));
    const auto draw = [&](const QString &name) {
        explore({QStringLiteral("--screenshot"), target.filePath(name)}, home.path());
        return QImage(target.filePath(name + QStringLiteral("/explorer.png"))).size();
    };
    const auto files = [&home] {
        QStringList all;
        for (QDirIterator found(home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             found.hasNext();)
            all.append(found.next());
        return all;
    };
    const QSize size = draw(QStringLiteral("without"));
    QVERIFY(!size.isEmpty());
    QCOMPARE(files(), QStringList());

    QWidget other;
    other.resize(500, 400);
    QSettings settings(file, QSettings::IniFormat);
    settings.setValue(QStringLiteral("window/geometry"), other.saveGeometry());
    settings.sync();
    const QByteArray before = contentOf(file);
    QVERIFY(!before.isEmpty());
    QCOMPARE(draw(QStringLiteral("with")), size);
    QCOMPARE(files(), QStringList(file));
    QCOMPARE(contentOf(file), before);
}

void ExplorerTest::speaksTheFirstLanguage_data()
{
    QTest::addColumn<QByteArray>("system");
    QTest::addColumn<QByteArray>("languages");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("English before German")
        << QByteArray("en_US.UTF-8") << QByteArray("en_US:de") << QStringLiteral("en");
    QTest::newRow("of another country") << QByteArray("de_AT.UTF-8") << QByteArray() << QStringLiteral("de");
}

void ExplorerTest::speaksTheFirstLanguage()
{
    QFETCH(QByteArray, system);
    QFETCH(QByteArray, languages);
    QFETCH(QString, spoken);
    const QTemporaryDir target;
    const auto draw = [&](const QString &name, const QStringList &arguments) {
        explore(arguments + QStringList{QStringLiteral("--screenshot"), target.filePath(name)});
        return QImage(target.filePath(name + QStringLiteral("/trigger.png")));
    };
    const QImage expected = draw(QStringLiteral("asked"), {QStringLiteral("--language"), spoken});
    qunsetenv("LC_ALL");
    qunsetenv("LC_MESSAGES");
    qputenv("LANG", system);
    qputenv("LANGUAGE", languages);
    const QImage drawn = draw(QStringLiteral("system"), {});
    qputenv("LANG", "C.UTF-8");
    QVERIFY(!expected.isNull());
    QCOMPARE(drawn, expected);
}

ORV_TEST_MAIN(ExplorerTest)
#include "tst_explorer.moc"
