// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "../measure.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace {

constexpr int repetitions = 11;

/** From the process's start to its end, which comes with the first paint. */
double millisecondsOfRun(const char *program, const QStringList &arguments = {})
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(program));
    const double milliseconds = millisecondsOf([&] {
        process.start(path, arguments);
        process.waitForFinished();
    });
    require(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, "a program did not paint");
    return milliseconds;
}

} // namespace

/** The start of whole programs beside a minimal one: benchmarks/run start */
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    Samples empty;
    Samples tree;
    Samples explorer;
    // The first of each only brings the files into memory.
    for (int i = 0; i <= repetitions; ++i) {
        const double plain = millisecondsOfRun("orv-start-emptytree");
        const double ours = millisecondsOfRun("orv-start-cameratree");
        const double whole = millisecondsOfRun("orv-start-cameratree", {QStringLiteral("explorer")});
        if (i == 0)
            continue;
        empty.add(plain);
        tree.add(ours);
        explorer.add(whole);
    }
    Table table;
    const QString unit = QStringLiteral("ms");
    table.add(QStringLiteral("start to the painted tree of a camera, beside an empty tree"), unit, tree.median(),
              empty.median(), 2.0);
    table.add(QStringLiteral("start of the explorer to its painted tree, beside an empty tree"), unit,
              explorer.median(), empty.median(), 2.0);
    table.print();
    return 0;
}
