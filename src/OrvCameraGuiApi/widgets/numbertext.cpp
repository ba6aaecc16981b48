// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/numbertext.h>

#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/localesigns.h>

#include <QDoubleSpinBox>
#include <QSpinBox>

#include <cmath>
#include <string>

namespace {

using LocaleSigns::sole;

constexpr char32_t MinusSign = 0x2212;

/** How a locale writes, asked for once for a whole text. */
struct Writing
{
    explicit Writing(const QLocale &locale)
        : minus(sole(locale.negativeSign()).unicode())
        , plus(sole(locale.positiveSign()).unicode())
        , zero(QString(locale.zeroDigit()).toStdU32String()[0])
        , marks(LocaleSigns::marks(locale.negativeSign()) + LocaleSigns::marks(locale.positiveSign()))
    {
    }

    const char32_t minus;
    const char32_t plus;
    const char32_t zero;
    const QString marks;
};

/** \a c in ASCII if it is a digit or a sign; separators stay as they are. */
char32_t ascii(char32_t c, const Writing &writing)
{
    if (writing.zero <= c && c <= writing.zero + 9)
        return U'0' + (c - writing.zero);
    if (c == MinusSign || c == writing.minus)
        return U'-';
    return c == writing.plus ? U'+' : c;
}

bool isDecimalSign(QChar c, const QLocale &locale)
{
    return c == QLatin1Char('.') || c == sole(locale.decimalPoint());
}

/** A single sign in ASCII. */
bool isSign(QChar c)
{
    return c == QLatin1Char('-') || c == QLatin1Char('+');
}

/** Reads digits, signs and exponents only: QString::toDouble() alone would take "inf" and "nan". */
std::optional<double> plainDouble(const QString &text)
{
    for (const QChar c : text) {
        if (!QStringLiteral("0123456789+-.eE").contains(c))
            return std::nullopt;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

int digitsBehindPoint(const QString &text, QChar point)
{
    const auto place = text.indexOf(point);
    return place < 0 ? 0 : int(text.size() - place - 1);
}

/** Reads the decimal sign of the locale. A point is refused in a locale that has another sign. */
std::optional<double> localDouble(QString text, const QLocale &locale)
{
    const QChar point = sole(locale.decimalPoint());
    if (point != QLatin1Char('.') && text.contains(QLatin1Char('.')))
        return std::nullopt;
    return plainDouble(text.replace(point, QLatin1Char('.')));
}

/** Reads group separators that stand where the locale puts them. */
std::optional<double> groupedDouble(const QString &text, const QLocale &locale)
{
    QLocale strict = locale;
    strict.setNumberOptions(QLocale::DefaultNumberOptions);
    bool isNumber = false;
    const double number = strict.toDouble(text.trimmed(), &isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

template <typename Box>
QString withoutAffixes(const Box &box, const QString &text)
{
    const auto first = text.startsWith(box.prefix()) ? box.prefix().size() : 0;
    const bool hasSuffix = text.size() - first >= box.suffix().size() && text.endsWith(box.suffix());
    const auto end = text.size() - (hasSuffix ? box.suffix().size() : 0);
    return text.mid(first, end - first);
}

template <typename Box>
bool isSpecial(const Box &box, const QString &text)
{
    return !box.specialValueText().isEmpty() && text == box.specialValueText();
}

/** The verdict on a beginning. A sign is Invalid if no number of the range has it. */
template <typename Box>
QValidator::State judgeUnfinished(const Box &box, const QString &number, const QLocale &locale, bool mayBeNegative)
{
    const bool isPositive = NumberText::plain(number, locale).startsWith(QLatin1Char('+'));
    const bool isForbidden =
        (NumberText::isNegative(number, locale) && !mayBeNegative) || (isPositive && box.maximum() < 0);
    return isForbidden || box.minimum() == box.maximum() ? QValidator::Invalid : QValidator::Intermediate;
}

/** The verdict on a number. It is Intermediate if more digits may bring it into the range. */
template <typename Box, typename Number>
QValidator::State judgeNumber(const Box &box, Number number)
{
    if (box.minimum() <= number && number <= box.maximum())
        return QValidator::Acceptable;
    const bool isTooFar = number >= 0 ? number > box.maximum() : number < box.minimum();
    return isTooFar || box.minimum() == box.maximum() ? QValidator::Invalid : QValidator::Intermediate;
}

/** Puts prefix and suffix back around the number in \a text, as the base class does; \a pos moves along. */
template <typename Box>
QString takeNumber(const Box &box, QString &text, int &pos)
{
    const QString bare = withoutAffixes(box, text);
    if (!text.startsWith(box.prefix()))
        pos += int(box.prefix().size());
    QString number = bare.trimmed();
    const int blanksBefore = int(bare.indexOf(number));
    pos -= qBound(0, pos - int(box.prefix().size()), blanksBefore);
    text = box.prefix() + number + box.suffix();
    pos = qMin(pos, int(text.size()));
    return number;
}

/** A decimal sign typed before the decimal sign only moves the cursor behind it. */
void mergeDecimalSigns(const QDoubleSpinBox &box, const QLocale &locale, QString &text, int pos)
{
    const int first = int(box.prefix().size());
    const int end = int(text.size() - box.suffix().size());
    if (pos > first && pos < end && isDecimalSign(text.at(pos), locale) && isDecimalSign(text.at(pos - 1), locale))
        text.remove(pos, 1);
}

int fractionDigits(const QString &text, const QLocale &locale)
{
    const QString number = NumberText::plain(text, locale);
    const int local = digitsBehindPoint(number, sole(locale.decimalPoint()));
    return local > 0 || NumberText::hasGroups(locale) ? local : digitsBehindPoint(number, QLatin1Char('.'));
}

} // namespace

bool NumberText::hasGroups(const QLocale &locale)
{
    return !(locale.numberOptions() & QLocale::OmitGroupSeparator);
}

QLocale NumberText::localeOf(const QAbstractSpinBox &box)
{
    QLocale locale = box.locale();
    if (!box.isGroupSeparatorShown())
        locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

QString NumberText::plain(const QString &text, const QLocale &locale)
{
    const Writing writing(locale);
    std::u32string result;
    for (const char32_t c : text.toStdU32String()) {
        const bool isMark = c <= 0xffff && writing.marks.contains(QChar(ushort(c)));
        if (!isMark)
            result += ascii(c, writing);
    }
    return QString::fromStdU32String(result);
}

std::optional<qint64> NumberText::toInteger(const QString &text, const QLocale &locale, int base)
{
    bool isNumber = false;
    qint64 number = text.toLongLong(&isNumber, base);
    if (!isNumber && base == 10) {
        QString digits = plain(text, locale).trimmed();
        if (hasGroups(locale))
            digits.remove(sole(locale.groupSeparator()));
        number = digits.toLongLong(&isNumber, base);
    }
    return isNumber ? std::optional<qint64>(number) : std::nullopt;
}

std::optional<double> NumberText::toDouble(const QString &text, const QLocale &locale, int decimals)
{
    const QString number = plain(text, locale).trimmed();
    // So many digits follow no decimal point, so the point is a group separator.
    const bool isPointOfGroups = hasGroups(locale) && digitsBehindPoint(number, QLatin1Char('.')) > decimals;
    std::optional<double> result;
    if (!isPointOfGroups)
        result = plainDouble(number);
    if (!result)
        result = localDouble(number, locale);
    if (result || !hasGroups(locale))
        return result;
    result = groupedDouble(text, locale);
    const bool isBeingEdited = isPointOfGroups || number.contains(sole(locale.decimalPoint()));
    if (!result && isBeingEdited) // the separators fall in place with the next commit
        result = localDouble(QString(number).remove(sole(locale.groupSeparator())), locale);
    return result;
}

bool NumberText::isUnfinished(const QString &text, const QLocale &locale, int decimals)
{
    QString rest = plain(text, locale).trimmed();
    if (!rest.isEmpty() && isSign(rest.at(0)))
        rest.remove(0, 1);
    if (decimals > 0 && !rest.isEmpty() && isDecimalSign(rest.at(0), locale))
        rest.remove(0, 1);
    return rest.isEmpty();
}

bool NumberText::isNegative(const QString &text, const QLocale &locale)
{
    return plain(text, locale).startsWith(QLatin1Char('-'));
}

QString NumberText::numberPart(const QSpinBox &box, const QString &text)
{
    return withoutAffixes(box, text).trimmed();
}

QString NumberText::numberPart(const QDoubleSpinBox &box, const QString &text)
{
    return withoutAffixes(box, text).trimmed();
}

std::optional<int> NumberText::typedNumber(const QSpinBox &box, const QString &text)
{
    if (isSpecial(box, text))
        return box.minimum();
    const auto number = toInteger(numberPart(box, text), localeOf(box), box.displayIntegerBase());
    return number && Integers::fitsInt(*number) ? std::optional<int>(int(*number)) : std::nullopt;
}

std::optional<double> NumberText::typedNumber(const QDoubleSpinBox &box, const QString &text)
{
    return isSpecial(box, text) ? box.minimum() : toDouble(numberPart(box, text), localeOf(box), box.decimals());
}

std::optional<int> NumberText::typedNumber(const QSpinBox &box)
{
    return typedNumber(box, box.text());
}

std::optional<double> NumberText::typedNumber(const QDoubleSpinBox &box)
{
    return typedNumber(box, box.text());
}

QValidator::State NumberText::judge(const QSpinBox &box, QString &text, int &pos)
{
    const QLocale locale = localeOf(box);
    const QString number = takeNumber(box, text, pos);
    if (isUnfinished(number, locale))
        return judgeUnfinished(box, number, locale, box.minimum() < 0);
    const auto typed = toInteger(number, locale, box.displayIntegerBase());
    // Also "-0" is Invalid where no number is negative.
    if (!typed || (isNegative(number, locale) && box.minimum() >= 0))
        return QValidator::Invalid;
    return judgeNumber(box, *typed);
}

QValidator::State NumberText::judge(const QDoubleSpinBox &box, QString &text, int &pos)
{
    const QLocale locale = localeOf(box);
    takeNumber(box, text, pos);
    mergeDecimalSigns(box, locale, text, pos);
    const QString number = numberPart(box, text);
    if (isUnfinished(number, locale, box.decimals()))
        return judgeUnfinished(box, number, locale, box.minimum() <= 0); // also a negative zero
    const auto typed = toDouble(number, locale, box.decimals());
    if (!typed || fractionDigits(number, locale) > box.decimals())
        return QValidator::Invalid;
    return judgeNumber(box, *typed);
}
