#pragma once

#include <QRegExp>
#include <QString>
#include <QStringMatcher>

/**
 * Matches names against a wildcard pattern with the answers of QRegExp in wildcard syntax, without running its engine
 * for what nearly all patterns are made of: plain characters, "*" and "?".
 */
class WildcardMatcher
{
public:
    /** The pattern "*", case-insensitive. */
    WildcardMatcher();

    QString pattern() const { return m_regExp.pattern(); }
    void setPattern(const QString &pattern);
    void setCaseSensitivity(Qt::CaseSensitivity sensitivity);

    /** Whether every text has a match, so that none need be asked for. */
    bool matchesAll() const;

    /** Whether the pattern matches somewhere inside \a text. */
    bool isIn(const QString &text) const;

    /** Whether the pattern matches the whole of \a text. */
    bool isAll(const QString &text) const;

private:
    void prepare();
    bool canMatch(const QString &text) const;
    bool matchesWhole(const QString &text, const QString &glob) const;

    QRegExp m_regExp;
    QString m_glob; ///< the pattern, in lower case where case does not count; null when only QRegExp can answer
    QString m_searchGlob; ///< the same with any text around it
    QString m_literal; ///< what isIn() searches, where that is a plain text
    QStringMatcher m_search;
};
