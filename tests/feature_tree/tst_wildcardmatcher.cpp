// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#if QT_VERSION_MAJOR < 6
#include <QRandomGenerator>
#include <QRegExp>
#endif

namespace {

WildcardMatcher matcherOf(const QString &pattern, Qt::CaseSensitivity sensitivity)
{
    WildcardMatcher matcher;
    matcher.setPattern(pattern);
    matcher.setCaseSensitivity(sensitivity);
    return matcher;
}

#if QT_VERSION_MAJOR < 6
QString randomText(QRandomGenerator &random, const QString &letters, int longest)
{
    const QVector<uint> characters = letters.toUcs4();
    QString text;
    for (int length = random.bounded(longest + 1); length > 0; --length)
        text += QString::fromUcs4(&characters[random.bounded(characters.size())], 1);
    return text;
}
#endif

} // namespace

class TestWildcardMatcher : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Where an engine that tries all ways would not come to an end. */
    void endsSoon()
    {
        const WildcardMatcher matcher = matcherOf(QStringLiteral("a*[a-z]").repeated(50), Qt::CaseInsensitive);
        QVERIFY(!matcher.isAll(QString(2000, QLatin1Char('a')) + QLatin1Char('1')));
    }

#if QT_VERSION_MAJOR < 6 // Qt 6 does not have that expression
    void answersAsTheRegularExpression()
    {
        const QString letterSets[] = {
            QStringLiteral("ab*?"),
            QStringLiteral("aZ[]^-\\*?"),
            QStringLiteral("aAbB*?[]^-\\.$(){}|+ s\u017fkK\u212a\u00df\u1e9ei\u0131\u03a3\u03c2\u03c3\u66dd\u00b5"
                           "\u01c4\u01c6\u00e5\u00c5\u212b\U00010400\U00010428"),
        };
        QRandomGenerator random(1);
        for (int i = 0; i < 60000; ++i) {
            const QString &letters = letterSets[i % 3];
            const QString pattern = randomText(random, letters, i % 2 ? 3 : 7);
            const QString text = randomText(random, letters, 8);
            const Qt::CaseSensitivity sensitivity = i % 5 < 3 ? Qt::CaseInsensitive : Qt::CaseSensitive;
            const QRegExp expected(pattern, sensitivity, QRegExp::Wildcard);
            const WildcardMatcher matcher = matcherOf(pattern, sensitivity);
            const QByteArray what = (pattern + QLatin1String(" in ") + text).toUtf8();
            QVERIFY2(matcher.isIn(text) == (expected.indexIn(text) >= 0), what);
            QVERIFY2(matcher.isAll(text) == expected.exactMatch(text), what);
            QVERIFY2(matcher.matchesAll() == (pattern.count(QLatin1Char('*')) == pattern.size()), what);
        }
    }

#endif

    /** Answers of that expression which nobody can want. */
    void findsWhatThePatternNames()
    {
        const QString dotted = QStringLiteral("\u0130");
        QVERIFY(matcherOf(dotted, Qt::CaseInsensitive).isIn(dotted));
        QVERIFY(!matcherOf(QStringLiteral("[a-c]"), Qt::CaseSensitive).isIn(QStringLiteral("-")));
        const QString digraph = QStringLiteral("\u01c5");
        QVERIFY(matcherOf(QLatin1Char('[') + digraph + QLatin1Char(']'), Qt::CaseInsensitive).isAll(digraph));
    }
};

ORV_PLAIN_TEST_MAIN(TestWildcardMatcher)
#include "tst_wildcardmatcher.moc"
