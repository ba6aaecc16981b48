// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include "pseudolanguage.h"

#include <QStringList>

#include <mutex>
#include <optional>

namespace OrvTest {

namespace {

/** What platform and QTest say on every run, by its exact text. */
const char *const platformNoise[] = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
    "This plugin does not support grabbing the keyboard",
    // QTest, of keys that nobody is meant to take, as those after Escape; that of Qt 5 passes the message handler by.
    "Keyboard event not accepted by receiving widget",
};

/** Said of scripts that no font of the machine has, as those of the digits of some locales. */
const QLatin1String fontNoise("  OpenType support missing for ");

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
        const std::lock_guard<std::mutex> lock(w.mutex);
        if (w.expected.removeOne(text) || text.startsWith(fontNoise))
            return;
        for (const char *noise : platformNoise) {
            if (text == QLatin1String(noise))
                return;
        }
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
