// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#include <algorithm>

namespace {

bool isWildcard(QChar c)
{
    return c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('[') || c == QLatin1Char(']');
}

/** Names are nearly always ASCII. */
ushort toLower(ushort c)
{
    if (c < 0x80)
        return c >= 'A' && c <= 'Z' ? ushort(c + ('a' - 'A')) : c;
    return QChar(c).toLower().unicode();
}

/** In it there is one way only to ignore case. */
bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/** \a pattern without "*" at both ends if the rest is plain text, empty otherwise. */
QString textBetweenStars(const QString &pattern)
{
    int first = 0;
    int end = int(pattern.size());
    while (first < end && pattern[first] == QLatin1Char('*'))
        ++first;
    while (first < end && pattern[end - 1] == QLatin1Char('*'))
        --end;
    const QString text = pattern.mid(first, end - first);
    const bool isPlain =
        std::none_of(text.begin(), text.end(), [](QChar c) { return isWildcard(c) || c == QLatin1Char('\\'); });
    return isPlain ? text : QString();
}

} // namespace

WildcardMatcher::WildcardMatcher()
{
    parse();
}

void WildcardMatcher::setPattern(const QString &pattern)
{
    m_pattern = pattern;
    parse();
}

void WildcardMatcher::setCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    m_sensitivity = sensitivity;
    parse();
}

bool WildcardMatcher::matchesAll() const
{
    return m_isValid && std::all_of(m_elements.begin(), m_elements.end(), [](const Element &element) {
               return element.kind == AnyText;
           });
}

/**
 * Beyond ASCII there are three ways to ignore case, intentionally, as QRegExp has them: plain text is searched by its
 * case folding, sets also take the upper and the lower case of a character, all else compares lower case. They differ
 * in few characters: "ς" finds "Σ", "ς*" does not. Two answers of QRegExp are not repeated: "İ" is not found in itself,
 * and a title case letter ("ǅ") is in no set that names it.
 */
bool WildcardMatcher::isIn(const QString &text) const
{
    if (!m_search.pattern().isEmpty() && (m_isPlain || isAscii(text)))
        return m_search.indexIn(text) >= 0;
    return matchesWhole(text, true);
}

bool WildcardMatcher::isAll(const QString &text) const
{
    return matchesWhole(text, false);
}

void WildcardMatcher::parse()
{
    m_elements.clear();
    m_sets.clear();
    m_isValid = true;
    for (int at = 0; at < m_pattern.size() && m_isValid;) {
        const QChar c = m_pattern[at];
        if (c == QLatin1Char('\\')) {
            at = parseBackslashes(at);
        } else if (c == QLatin1Char('[')) {
            at = parseSet(at);
        } else {
            m_isValid = c != QLatin1Char(']');
            if (isWildcard(c))
                m_elements.push_back({c == QLatin1Char('*') ? AnyText : AnyCharacter, 0, 0});
            else
                addCharacter(c);
            ++at;
        }
    }
    const QString text = textBetweenStars(m_pattern);
    m_isPlain = text == m_pattern;
    m_search = QStringMatcher(m_isPlain || isAscii(text) ? text : QString(), m_sensitivity);
}

/** Parses the backslashes from \a at on and the character that they escape; where to go on. */
int WildcardMatcher::parseBackslashes(int at)
{
    for (; at < m_pattern.size() && m_pattern[at] == QLatin1Char('\\'); ++at)
        addCharacter(QLatin1Char('\\'));
    if (at == m_pattern.size())
        return at;
    if (!isWildcard(m_pattern[at]))
        addCharacter(QLatin1Char('\\'));
    addCharacter(m_pattern[at]);
    return at + 1;
}

/** Parses the set from its "[" on, at \a at; where to go on. */
int WildcardMatcher::parseSet(int at)
{
    const int size = int(m_pattern.size());
    CharacterSet set;
    ++at;
    if (at < size && m_pattern[at] == QLatin1Char('^')) {
        set.isNegated = true;
        ++at;
    }
    const int first = at;
    while (at < size && (at == first || m_pattern[at] != QLatin1Char(']'))) {
        const bool isRange =
            at + 2 < size && m_pattern[at + 1] == QLatin1Char('-') && m_pattern[at + 2] != QLatin1Char(']');
        const ushort from = m_pattern[at].unicode();
        const ushort to = m_pattern[isRange ? at + 2 : at].unicode();
        set.ranges.push_back(std::minmax({from, to}));
        at += isRange ? 3 : 1;
    }
    m_isValid = at < size;
    m_elements.push_back({Set, 0, m_sets.size()});
    m_sets.push_back(std::move(set));
    return at + 1;
}

void WildcardMatcher::addCharacter(QChar c)
{
    const ushort character = c.unicode();
    m_elements.push_back({Character, m_sensitivity == Qt::CaseInsensitive ? toLower(character) : character, 0});
}

bool WildcardMatcher::CharacterSet::contains(ushort character) const
{
    return std::any_of(ranges.begin(), ranges.end(), [character](const std::pair<ushort, ushort> &range) {
        return character >= range.first && character <= range.second;
    });
}

bool WildcardMatcher::matchesSet(const CharacterSet &set, ushort character) const
{
    bool isIn = set.contains(character);
    if (!isIn && m_sensitivity == Qt::CaseInsensitive)
        isIn = set.contains(toLower(character)) || set.contains(QChar(character).toUpper().unicode());
    return isIn != set.isNegated;
}

bool WildcardMatcher::matches(const Element &element, ushort character) const
{
    switch (element.kind) {
    case Character:
        return element.character == (m_sensitivity == Qt::CaseInsensitive ? toLower(character) : character);
    case Set:
        return matchesSet(m_sets[element.set], character);
    default:
        return true;
    }
}

/**
 * Walks text and pattern at once; after a mismatch the last "*" takes one character more. That is enough: an earlier
 * one could only give the rest less room. With \a inside any text may stand before and after.
 */
bool WildcardMatcher::matchesWhole(const QString &text, bool inside) const
{
    if (!m_isValid)
        return false;
    const size_t count = m_elements.size();
    size_t element = 0;
    size_t afterStar = 0;
    bool hasStar = inside;
    int at = 0;
    int starEnd = 0;
    while (at < text.size()) {
        if (inside && element == count)
            return true;
        if (element < count && m_elements[element].kind == AnyText) {
            hasStar = true;
            afterStar = ++element;
            starEnd = at;
        } else if (element < count && matches(m_elements[element], text[at].unicode())) {
            ++element;
            ++at;
        } else if (hasStar) {
            element = afterStar;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    const auto isStar = [](const Element &rest) { return rest.kind == AnyText; };
    return std::all_of(m_elements.begin() + std::ptrdiff_t(element), m_elements.end(), isStar);
}
