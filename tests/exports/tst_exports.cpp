// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <utility>

namespace {

/** What the tool prints, line by line; nothing when it fails. */
QStringList linesOf(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/** The functions and classes that the library defines for others; a class stands for all that belongs to it. */
QStringList exportedNames()
{
    const QRegularExpression line(QStringLiteral("^[0-9a-f]+ (\\w) (.+?)(@@" SYMBOLS ")?$"));
    // What the compiler adds to a class, the class or function with its namespace, its member or parameters.
    const QRegularExpression symbol(QStringLiteral("^(?:vtable for |typeinfo for |typeinfo name for |non-virtual thunk "
                                                   "to )?((?:OrvGui::)?\\w+)(::[~\\w]+)?(\\(|$| )"));
    QStringList names;
    for (const QString &text : linesOf(
             QStringLiteral(NM),
             {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("-C"), QStringLiteral(LIBRARY)})) {
        const QRegularExpressionMatch match = line.match(text);
        if (match.captured(1) == QLatin1String("A")) // the name of the version itself
            continue;
        const QRegularExpressionMatch parts = symbol.match(match.captured(2));
        names.append(parts.hasMatch() && !match.captured(3).isEmpty() ? parts.captured(1) : match.captured(2));
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

/** Whether it is the class or the C function of a feature dialog, which has a header where all of them have. */
bool isOfFeatureDialog(const QString &name)
{
    const QRegularExpression pattern(QStringLiteral("^(?:OrvGui::OrvCamConfig|Show)(\\w+)Dialog$"));
    const QString dialog = pattern.match(name).captured(1).toLower();
    return QFile::exists(QStringLiteral(HEADERS "/camconfig/dialogs/orvcamconfig%1dialog.h").arg(dialog));
}

} // namespace

class ExportsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exportsThePublicNamesAndNothingElse();
    void needsNoFurtherLibraries();
};

void ExportsTest::exportsThePublicNamesAndNothingElse()
{
    QFile list(QStringLiteral(EXPORTED_NAMES));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QStringList expected = QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList names = exportedNames();
    for (const QString &name : names) { // the list has those that were released
        if (isOfFeatureDialog(name) && !expected.contains(name))
            expected.append(name);
    }
    expected.sort();
    QCOMPARE(names, expected);
}

void ExportsTest::needsNoFurtherLibraries()
{
    const QRegularExpression needed(QStringLiteral("\\(NEEDED\\).*\\[(.+)\\]"));
    const QRegularExpression allowed(QStringLiteral("^(lib(Qt" QT_STRINGIFY(
        QT_VERSION_MAJOR) "(Widgets|Gui|Core)|OrvGenApi|OrvCameraApi|stdc\\+\\+|m|gcc_s|c|asan|ubsan|tsan)"
                          "|ld-linux.*)\\.so")); // the C library's loader for what is local to a thread
    QStringList libraries;
    for (const QString &line : linesOf(QStringLiteral(READELF), {QStringLiteral("-d"), QStringLiteral(LIBRARY)})) {
        const QRegularExpressionMatch match = needed.match(line);
        if (match.hasMatch())
            libraries.append(match.captured(1));
    }
    QVERIFY(!libraries.isEmpty());
    for (const QString &library : std::as_const(libraries))
        QVERIFY2(allowed.match(library).hasMatch(), qPrintable(library));
}

ORV_TEST_MAIN(ExportsTest)
#include "tst_exports.moc"
