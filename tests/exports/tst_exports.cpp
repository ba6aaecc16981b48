#include "orvtest.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>

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

/** The names that the library defines for others, demangled, without its version. */
QStringList exportedNames()
{
    const QRegularExpression line(QStringLiteral("^[0-9a-f]+ (\\w) (.+?)(@@?\\w+)?$"));
    QStringList names;
    for (const QString &text : linesOf(
             QStringLiteral(NM),
             {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("-C"), QStringLiteral(LIBRARY)})) {
        const QRegularExpressionMatch match = line.match(text);
        if (match.captured(1) != QLatin1String("A")) // the name of the version itself
            names.append(match.captured(2));
    }
    return names;
}

} // namespace

class ExportsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exportsNothingButThePublicNames();
    void exportsWhateverAHeaderMarks();
    void needsNoFurtherLibraries();
};

void ExportsTest::exportsNothingButThePublicNames()
{
    const QRegularExpression function(
        QStringLiteral("^(CreateGenParamTreeViewFor(Nodemap|Array)[AW]|DestroyGenParamTreeView|SelectCamera[AW]|"
                       "Show(CamConfig|FrameAB|Color|Output|Strobe|Trigger|Pulse)Dialog)$"));
    const QRegularExpression member(QStringLiteral(
        "^((vtable|typeinfo( name)?) for |non-virtual thunk to )?"
        "(OrvGui::(I?OrvGenParamTreeView|OrvCameraSelectorDialog|OrvCamConfig((FrameAB|Color|Output|Strobe|Trigger|"
        "Pulse)"
        "Dialog)?|SelectCamera)|QtOrv(SpinBoxVal64|SpinBoxVal|DoubleSpinBoxVal|Slider|DoubleSlider|SpinBox|"
        "SliderSpinBox|GainSlider)|Int64Validator|IP4Validator)(::|\\(|$)"));
    QVERIFY(function.isValid() && member.isValid());
    const QStringList names = exportedNames();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QVERIFY2(function.match(name).hasMatch() || member.match(name).hasMatch(), qPrintable(name));
        QVERIFY2(!name.contains(QLatin1String("Private")), qPrintable(name));
    }
}

void ExportsTest::exportsWhateverAHeaderMarks()
{
    const QStringList names = exportedNames();
    const QRegularExpression marked(QStringLiteral("\\bclass ORV_CAMERAGUIAPI_EXPORT (\\w+)"));
    const QRegularExpression inNamespace(QStringLiteral("\\bnamespace OrvGui\\b"));
    QDirIterator headers(QStringLiteral(HEADERS), {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        QFile file(headers.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const QString scope = inNamespace.match(text).hasMatch() ? QStringLiteral("OrvGui::") : QString();
        for (QRegularExpressionMatchIterator it = marked.globalMatch(text); it.hasNext();) {
            const QString name = QStringLiteral("vtable for ") + scope + it.next().captured(1);
            QVERIFY2(names.contains(name), qPrintable(name));
        }
    }
}

void ExportsTest::needsNoFurtherLibraries()
{
    const QRegularExpression needed(QStringLiteral("\\(NEEDED\\).*\\[(.+)\\]"));
    const QRegularExpression allowed(
        QStringLiteral("^lib(Qt5(Widgets|Gui|Core)|OrvGenApi|OrvCameraApi|stdc\\+\\+|m|gcc_s|c|asan|ubsan|tsan)\\.so"));
    QStringList libraries;
    for (const QString &line : linesOf(QStringLiteral(READELF), {QStringLiteral("-d"), QStringLiteral(LIBRARY)})) {
        const QRegularExpressionMatch match = needed.match(line);
        if (match.hasMatch())
            libraries.append(match.captured(1));
    }
    QVERIFY(!libraries.isEmpty());
    for (const QString &library : qAsConst(libraries))
        QVERIFY2(allowed.match(library).hasMatch(), qPrintable(library));
}

ORV_TEST_MAIN(ExportsTest)
#include "tst_exports.moc"
