#include "orvtest.h"

#include "pseudolanguage.h"

#include <QStringList>

#include <mutex>
#include <optional>

namespace OrvTest {

namespace {

/** What the offscreen platform says on every run, by its exact text. */
const char *const platformNoise[] = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
};

struct Watch
{
    std::mutex mutex;
    QStringList expected;
    QStringList unexpected;
    QtMessageHandler next = nullptr;
};

Watch &watch()
{
    static Watch instance;
    return instance;
}

void noteMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    Watch &w = watch();
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        for (const char *noise : platformNoise) {
            if (text == QLatin1String(noise))
                return;
        }
        const std::lock_guard<std::mutex> lock(w.mutex);
        if (w.expected.removeOne(text))
            return;
        w.unexpected.append(text);
    }
    if (w.next)
        w.next(type, context, text);
}

} // namespace

void TestCase::expectWarning(const QString &text)
{
    const std::lock_guard<std::mutex> lock(watch().mutex);
    watch().expected.append(text);
}

void TestCase::init()
{
    // QTest installs its handler when the run starts; the watch has to sit in front of it.
    const QtMessageHandler previous = qInstallMessageHandler(noteMessage);
    if (previous != noteMessage)
        watch().next = previous;
}

void TestCase::cleanup()
{
    QStringList unexpected;
    QStringList missing;
    {
        const std::lock_guard<std::mutex> lock(watch().mutex);
        unexpected.swap(watch().unexpected);
        missing.swap(watch().expected);
    }
    QVERIFY2(unexpected.isEmpty(),
             qPrintable(QLatin1String("unexpected warning: ") + unexpected.join(QLatin1String(" | "))));
    QVERIFY2(missing.isEmpty(), qPrintable(QLatin1String("missing warning: ") + missing.join(QLatin1String(" | "))));
}

QString translated(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

int runTests(QObject *test, int argc, char **argv)
{
    std::optional<PseudoLanguage> language;
    if (qEnvironmentVariable("ORV_TEST_LANGUAGE") == QLatin1String("pseudo"))
        QCoreApplication::installTranslator(&language.emplace(QStringLiteral(CATALOGUE)));
    const int failures = QTest::qExec(test, argc, argv);
    qInstallMessageHandler(nullptr);
    return failures;
}

} // namespace OrvTest
