// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/int64validator.h>

#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/localesigns.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>

#include <QLocale>

namespace {

/** Whether the only separator does not cut off a group: it may be meant as a decimal sign. */
bool isAmbiguous(const QString &typed, const QLocale &locale)
{
    const QString text = NumberText::plain(typed, locale);
    constexpr int group = 3; // digits
    const QChar separator = LocaleSigns::sole(locale.groupSeparator());
    const auto place = text.indexOf(separator);
    if (place < 0 || !NumberText::hasGroups(locale) || text.count(separator) > 1)
        return false;
    return place == 0 || text.size() - place - 1 != group;
}

} // namespace

Int64Validator::Int64Validator(QObject *parent)
    : Int64Validator(Integers::Smallest64, Integers::Largest64, parent)
{
}

Int64Validator::Int64Validator(long long bottom, long long top, QObject *parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
{
}

long long Int64Validator::bottom() const
{
    return m_bottom;
}

void Int64Validator::setBottom(long long bottom)
{
    if (bottom == m_bottom)
        return;
    m_bottom = bottom;
    Q_EMIT bottomChanged(bottom);
    Q_EMIT changed();
}

long long Int64Validator::top() const
{
    return m_top;
}

void Int64Validator::setTop(long long top)
{
    if (top == m_top)
        return;
    m_top = top;
    Q_EMIT topChanged(top);
    Q_EMIT changed();
}

void Int64Validator::setRange(long long bottom, long long top)
{
    setBottom(bottom);
    setTop(top);
}

int Int64Validator::base() const
{
    return m_base;
}

void Int64Validator::setBase(int base)
{
    if (base >= 2 && base <= 36)
        m_base = base;
}

QValidator::State Int64Validator::validate(QString &text, int &pos) const
{
    Q_UNUSED(pos)
    if (text.isEmpty())
        return Intermediate;
    const QString plain = m_base == 10 ? NumberText::plain(text, locale()) : text;
    if (plain.isEmpty()) // no more than a mark of the direction
        return Intermediate;
    if (plain == QLatin1String("-"))
        return m_bottom < 0 ? Intermediate : Invalid;

    bool ok = false;
    const long long number = toInt64(text, &ok);
    if (ok)
        return judge(number);
    const bool isGroupBegun = m_base == 10 && isAmbiguous(text, locale()) && NumberText::toInteger(text, locale());
    return isGroupBegun ? Intermediate : Invalid;
}

long long Int64Validator::toInt64(const QString &text, bool *ok) const
{
    std::optional<qint64> number;
    if (m_base != 10 || !isAmbiguous(text, locale()))
        number = NumberText::toInteger(text, locale(), m_base);
    if (ok)
        *ok = number.has_value();
    return number.value_or(0);
}

QValidator::State Int64Validator::judge(long long number) const
{
    if (m_bottom < 0 && m_top < 0)
        return judgeInNegativeRange(number);
    if (m_bottom < 0)
        return m_bottom <= number && number <= m_top ? Acceptable : Invalid;
    if (number < 0)
        return Invalid;
    if (number < m_bottom)
        return Intermediate;
    return number > m_top ? Invalid : Acceptable;
}

QValidator::State Int64Validator::judgeInNegativeRange(long long number) const
{
    if (number <= m_top)
        return number < m_bottom ? Invalid : Acceptable;
    // The smallest 64-bit integer has no positive counterpart; every number is less than that would be.
    return m_bottom == Integers::Smallest64 || number <= -m_bottom ? Intermediate : Invalid;
}
