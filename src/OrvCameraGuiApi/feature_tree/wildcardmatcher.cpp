#include <OrvCameraGuiApi/feature_tree/wildcardmatcher.h>

#include <algorithm>

namespace {

/** Beyond ASCII QRegExp folds case in one way or another, as it chooses to search; not where there is no case. */
bool foldsInOneWay(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 0x80
            || (!c.isSurrogate() && c.toLower() == c && c.toUpper() == c && c.toCaseFolded() == c);
    });
}

/** What is to be found, if that is a plain text; empty otherwise. */
QString literalOf(const QString &glob)
{
    int first = 0;
    int end = glob.size();
    while (first < end && glob[first] == QLatin1Char('*'))
        ++first;
    while (first < end && glob[end - 1] == QLatin1Char('*'))
        --end;
    const QString text = glob.mid(first, end - first);
    return text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?')) ? QString() : text;
}

} // namespace

WildcardMatcher::WildcardMatcher()
    : m_regExp(QStringLiteral("*"), Qt::CaseInsensitive, QRegExp::Wildcard)
{
    prepare();
}

void WildcardMatcher::setPattern(const QString &pattern)
{
    m_regExp.setPattern(pattern);
    prepare();
}

void WildcardMatcher::setCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    m_regExp.setCaseSensitivity(sensitivity);
    prepare();
}

void WildcardMatcher::prepare()
{
    m_glob = QString();
    m_searchGlob = QString();
    m_literal = QString();
    const QString pattern = m_regExp.pattern();
    // Sets of characters, brackets without a partner and backslashes are left to QRegExp.
    if (pattern.contains(QLatin1Char('[')) || pattern.contains(QLatin1Char(']')) || pattern.contains(QLatin1Char('\\')))
        return;
    const bool foldsCase = m_regExp.caseSensitivity() == Qt::CaseInsensitive;
    if (foldsCase && !foldsInOneWay(pattern))
        return;
    m_glob = foldsCase ? pattern.toLower() : pattern;
    if (m_glob.isNull())
        m_glob = QLatin1String("");
    m_searchGlob = QLatin1Char('*') + m_glob + QLatin1Char('*');
    m_literal = literalOf(m_glob);
    m_search = QStringMatcher(m_literal, m_regExp.caseSensitivity());
}

bool WildcardMatcher::matchesAll() const
{
    if (m_glob.isNull())
        return false;
    for (const QChar c : m_glob) {
        if (c != QLatin1Char('*'))
            return false;
    }
    return true;
}

bool WildcardMatcher::isIn(const QString &text) const
{
    if (!canMatch(text))
        return m_regExp.indexIn(text) >= 0;
    return m_literal.isEmpty() ? matchesWhole(text, m_searchGlob) : m_search.indexIn(text) >= 0;
}

bool WildcardMatcher::isAll(const QString &text) const
{
    return canMatch(text) ? matchesWhole(text, m_glob) : m_regExp.exactMatch(text);
}

bool WildcardMatcher::canMatch(const QString &text) const
{
    return !m_glob.isNull() && (m_regExp.caseSensitivity() == Qt::CaseSensitive || foldsInOneWay(text));
}

/** Walks text and pattern at once; after a mismatch the last "*" takes one character more. */
bool WildcardMatcher::matchesWhole(const QString &text, const QString &glob) const
{
    const bool foldCase = m_regExp.caseSensitivity() == Qt::CaseInsensitive;
    int at = 0;
    int in = 0;
    int starIn = -1;
    int starAt = 0;
    while (at < text.size()) {
        if (in < glob.size() && glob[in] == QLatin1Char('*')) {
            starIn = ++in;
            starAt = at;
            continue;
        }
        const QChar c = foldCase ? text[at].toLower() : text[at];
        if (in < glob.size() && (glob[in] == QLatin1Char('?') || glob[in] == c)) {
            ++in;
            ++at;
            continue;
        }
        if (starIn < 0)
            return false;
        in = starIn;
        at = ++starAt;
    }
    while (in < glob.size() && glob[in] == QLatin1Char('*'))
        ++in;
    return in == glob.size();
}
