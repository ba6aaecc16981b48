// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <array>

#include <fcntl.h>
#include <unistd.h>

namespace {

/** Without a display. */
void start(QProcess &process, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ORV_CAMERAS"})
        environment.remove(QLatin1String(variable));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EXPLORER), arguments);
}

struct Result
{
    int status = -1;
    QByteArray out;
    QByteArray err;
};

Result run(const QString &arguments, const QByteArray &input = {})
{
    QProcess process;
    start(process, QProcess::splitCommand(arguments));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class ScriptsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void worksWithoutAWindow()
    {
        const std::tuple<int, const char *, const char *, const char *> rows[] = {
            {0, "--list",
             "ORV-GIGE-0001\tTF-2000C (SN0001)\tfree\nORV-GIGE-0002\tTF-2000C (SN0002)\tout of "
             "reach\nORV-USB3-0001\tSF-1300M (SN0101)\tfree\n",
             ""},
            {0, "--simulated --get DeviceUserID --set \"DeviceUserID=a=\303\244 b\" --get DeviceUserID --get Width",
             "Line 1\na=\303\244 b\n1920\n", ""},
            {0, "--camera ORV-USB3-0001 --set Gain=3.3 --get Gain", "3.3\n", ""},
            {0, "--xml " TEST_DATA "/probe.xml --set Answer=7 --get Answer", "7\n", ""},
            {0, "--set AcquisitionStop=1", "", ""},
            {1, "--set Width", "", "NAME=VALUE"},
            {1, "--get=", "", "--get"},
            {1, "--get Width --screenshot x", "", "--screenshot"},
            {1, "--list --get Width", "", "--list"},
            {1, "--real --simulated", "", "--simulated"},
            {1, "--xml x.xml --snap x", "", "--snap"},
            {2, "--camera nobody --get Width", "", "'nobody'"},
            {2, "--xml " TEST_DATA "/malformed.xml --get Width", "", "malformed.xml:7"},
            {0, "--camera ORV-USB3-0001 --language de --set Gain=3.14159 --get Gain", "3.1\n", "Gain"},
            {3, "--get DeviceUserID --get Nobody --get Width", "Line 1\n", "'Nobody'"},
            {3, "--set Width=3", "", "only be read"},
            {3, "--get Root", "", "'Root'"},
            {5, "--load /no/such/file", "", "/no/such/file"},
            {5, "--save /no/such/file", "", "/no/such/file"},
        };
        for (const auto &[status, arguments, out, err] : rows) {
            const Result result = run(QString::fromUtf8(arguments));
            QVERIFY2(result.status == status, arguments + result.err);
            QCOMPARE(result.out, QByteArray(out));
            QVERIFY2(result.err.contains(err) && result.err.isEmpty() == !*err, result.err);
        }
    }

    void savesAndLoads()
    {
        const Result saved = run(QStringLiteral("--camera ORV-USB3-0001 --save -"));
        QCOMPARE(saved.status, 0);
        QVERIFY2(saved.out.startsWith("# {05D8C294-") && saved.out.contains("\nGain\t6.0\n"), saved.out);
        QByteArray changed = saved.out;
        changed.replace("\nGain\t6.0\n", "\nGain\t4.5\n");
        const QString load = QStringLiteral("--camera ORV-USB3-0001 --load - --get Gain");
        const Result loaded = run(load, changed);
        QCOMPARE(loaded.status, 0);
        QCOMPARE(loaded.out, QByteArray("4.5\n"));
        const Result refused = run(load, changed + "Nobody\t1\n");
        QCOMPARE(refused.status, 3);
        QVERIFY2(refused.err.contains("Nobody: wanted '1'"), refused.err);
        QCOMPARE(run(load, "nonsense").status, 5);
        const int directory = ::open("/", O_RDONLY | O_CLOEXEC);
        const int standard = ::dup(STDIN_FILENO);
        ::dup2(directory, STDIN_FILENO);
        QProcess process;
        process.setInputChannelMode(QProcess::ForwardedInputChannel);
        start(process, QProcess::splitCommand(load));
        QVERIFY(process.waitForFinished());
        ::dup2(standard, STDIN_FILENO);
        ::close(directory);
        ::close(standard);
        QCOMPARE(process.exitCode(), 5);
        QVERIFY(process.readAllStandardError().contains("directory")); // no empty file
    }

    void takesPictures()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("picture.png"));
        const Result result = run(QStringLiteral("--camera ORV-USB3-0001 --snap %1").arg(path));
        QVERIFY2(result.status == 0, result.err);
        QVERIFY(QImage(path).width() > 100);
        QCOMPARE(run(QStringLiteral("--snap /no/such/file")).status, 5);
    }

    void isInterrupted()
    {
        QProcess process;
        start(process,
              {QStringLiteral("--get"), QStringLiteral("Width"), QStringLiteral("--load"), QStringLiteral("-"),
               QStringLiteral("--get"), QStringLiteral("Height")});
        QVERIFY(process.waitForReadyRead());
        process.terminate(); // standard input does not end
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 4);
        QCOMPARE(process.readAllStandardOutput(), QByteArray("1920\n"));
    }
};

ORV_PLAIN_TEST_MAIN(ScriptsTest)
#include "tst_scripts.moc"
