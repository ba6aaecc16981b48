// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtTest>

#include <QApplication>

namespace OrvTest {

/**
 * Base of every test class: a Qt warning that a test did not announce fails that test, whichever thread it came from.
 *
 * A derived class that needs its own init() or cleanup() calls these first.
 */
class TestCase : public QObject
{
    Q_OBJECT

public:
    /** The next warning with exactly this text is wanted; the test fails when it does not come. */
    static void expectWarning(const QString &text);

protected Q_SLOTS:
    void init();
    void cleanup();
};

/**
 * The library's text for \a text in the language of the test: the text itself, or its translation in the run with the
 * pseudo language (see orv_add_test()).
 */
QString translated(const char *context, const char *text);

/** Installs the warning watch around QTest::qExec(), and the pseudo language when the environment asks for it. */
int runTests(QObject *test, int argc, char **argv);

} // namespace OrvTest

/** main() of a test program whose only class is \a TestClass. */
#define ORV_TEST_MAIN(TestClass)                                                                                       \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QApplication app(argc, argv);                                                                                  \
        TestClass test;                                                                                                \
        return OrvTest::runTests(&test, argc, argv);                                                                   \
    }

/** The same without an application object, for code that needs no event loop. */
#define ORV_PLAIN_TEST_MAIN(TestClass)                                                                                 \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        TestClass test;                                                                                                \
        return OrvTest::runTests(&test, argc, argv);                                                                   \
    }
