// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <array>
#include <utility>

namespace {

struct Result
{
    int status = -1;
    QString out;
    QString err;
};

/** Runs the explorer to its end, in an environment without a display. */
Result explore(const QStringList &arguments)
{
    const QTemporaryDir runtimeDir; // Qt complains when there is none
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir.path());
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

} // namespace

class ExplorerTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rejectsInOneLine()
    {
        const auto row = [](int status, const QStringList &arguments, const QString &told) {
            const Result result = explore(arguments);
            QCOMPARE(result.status, status);
            QCOMPARE(result.out, QString());
            QVERIFY2(result.err.startsWith(QLatin1String("orv-camera-explorer: ")), qPrintable(result.err));
            QVERIFY2(result.err.contains(told), qPrintable(result.err));
            QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
        };
        const QString missing = dataFile("missing.xml");
        const QString malformed = dataFile("malformed.xml");
        const QString directory = dataFile("");
        const QString target = QDir::tempPath();
        const QString shot = QStringLiteral("--screenshot");
        const QString xml = QStringLiteral("--xml");

        row(1, {QStringLiteral("--frobnicate")}, QStringLiteral("frobnicate"));
        row(1, {xml}, QStringLiteral("xml"));
        row(1, {QStringLiteral("--camera=")}, QStringLiteral("--camera"));
        row(1, {QStringLiteral("--language"), QStringLiteral("tlh")}, QStringLiteral("zh_CN"));
        row(1, {QStringLiteral("camera.xml")}, QStringLiteral("camera.xml"));
        row(1, {xml, malformed, QStringLiteral("--camera"), QStringLiteral("X")}, QStringLiteral("--camera"));
        row(1, {}, shot);
        row(2, {shot, target, QStringLiteral("--camera"), QStringLiteral("nobody")}, QStringLiteral("'nobody'"));
        row(2, {shot, target, xml, missing}, missing);
        row(2, {shot, target, xml, directory}, directory);
        row(2, {shot, target, xml, malformed}, malformed + QStringLiteral(":7"));
        row(5, {shot, malformed, xml, dataFile("probe.xml")}, malformed);
    }

    void drawsItsWindow()
    {
        const auto list = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
        QStringList ofACamera = list("explorer widgets filteroptions filter errors picture about configwindow");
        for (const OrvGui::FeatureDialog &dialog : OrvGui::featureDialogs())
            ofACamera.append(QLatin1String(dialog.kind));
        const std::pair<QStringList, QStringList> rows[] = {
            {QStringList(), ofACamera + list("setip selectcamera")},
            {{QStringLiteral("--xml"), dataFile("probe.xml")},
             list("explorer widgets filteroptions filter errors setip selectcamera")},
        };
        for (const auto &[arguments, pictures] : rows) {
            const QTemporaryDir target;
            const QString dir = target.filePath(QStringLiteral("made/on/demand"));
            Result result = explore(arguments + QStringList{QStringLiteral("--screenshot"), dir});
            result.err.remove(
                QStringLiteral("This plugin does not support propagateSizeHints()\n")); // of shown dialogs
            QCOMPARE(result.err, QString());
            QCOMPARE(result.status, 0);
            QStringList files;
            for (const QString &picture : pictures)
                files.append(QStringLiteral("%1/%2.png").arg(dir, picture));
            QCOMPARE(result.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts), files);
            for (const QString &file : std::as_const(files)) {
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
    }

    void speaksTheFirstLanguage()
    {
        // The system's language, those that are liked as well, the one that is spoken.
        const std::array<const char *, 3> rows[] = {{"en_US.UTF-8", "en_US:de", "en"}, {"de_AT.UTF-8", "", "de"}};
        for (const auto &[system, languages, spoken] : rows) {
            const QTemporaryDir target;
            const auto draw = [&](const QString &name, const QStringList &arguments) {
                explore(arguments + QStringList{QStringLiteral("--screenshot"), target.filePath(name)});
                return QImage(target.filePath(name + QStringLiteral("/trigger.png")));
            };
            const QImage expected =
                draw(QStringLiteral("asked"), {QStringLiteral("--language"), QLatin1String(spoken)});
            qunsetenv("LC_ALL");
            qunsetenv("LC_MESSAGES");
            qputenv("LANG", system);
            qputenv("LANGUAGE", languages);
            const QImage drawn = draw(QStringLiteral("system"), {});
            qputenv("LANG", "C.UTF-8");
            QVERIFY(!expected.isNull());
            QCOMPARE(drawn, expected);
        }
    }
};

ORV_TEST_MAIN(ExplorerTest)
#include "tst_explorer.moc"
