// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QStringMatcher>

#include <utility>
#include <vector>

/**
 * Matches names against a wildcard pattern, as QRegExp does in wildcard syntax.
 *
 * - "*" is any text, "?" any character, a character of UTF-16 as everywhere in Qt.
 * - "[...]" is a character of a set of characters and ranges; "[^...]" is one that is not in it. A "]" at the beginning
 *   of a set and a "-" at either end stand for themselves. A range may run backwards.
 * - A bracket without a partner makes the pattern invalid: it matches nothing.
 * - After backslashes "*", "?", "[" and "]" stand for themselves, and so do the backslashes. Before any other character
 *   one more backslash is asked for, intentionally.
 *
 * Matching takes at most the product of the two lengths.
 */
class WildcardMatcher
{
public:
    /** The pattern "*", case-insensitive. */
    WildcardMatcher();

    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern);
    void setCaseSensitivity(Qt::CaseSensitivity sensitivity);

    /** Whether every text has a match, so that none need be asked for. */
    bool matchesAll() const;

    /** Whether the pattern matches somewhere inside \a text. */
    bool isIn(const QString &text) const;

    /** Whether the pattern matches the whole of \a text. */
    bool isAll(const QString &text) const;

private:
    struct CharacterSet
    {
        bool contains(ushort character) const;

        bool isNegated = false;
        std::vector<std::pair<ushort, ushort>> ranges; ///< from and to
    };
    enum Kind { Character, AnyCharacter, AnyText, Set };
    struct Element
    {
        Kind kind;
        ushort character; ///< in lower case where case does not count
        size_t set; ///< its place in m_sets
    };

    void parse();
    int parseBackslashes(int at);
    int parseSet(int at);
    void addCharacter(QChar c);
    bool matches(const Element &element, ushort character) const;
    bool matchesSet(const CharacterSet &set, ushort character) const;
    bool matchesWhole(const QString &text, bool inside) const;

    QString m_pattern = QStringLiteral("*");
    Qt::CaseSensitivity m_sensitivity = Qt::CaseInsensitive;
    bool m_isValid = true;
    std::vector<Element> m_elements;
    std::vector<CharacterSet> m_sets;
    QStringMatcher m_search; ///< empty unless the pattern is plain text, or that between "*"
    bool m_isPlain = false; ///< it is plain text
};
