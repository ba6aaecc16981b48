#pragma once

#include <QLocale>
#include <QString>
#include <QValidator>

#include <optional>

class QAbstractSpinBox;
class QDoubleSpinBox;
class QSpinBox;

/**
 * How the fields for numbers read what a person types. A number may be written plainly, with a point, or as the field's
 * locale writes it, with its digits and signs; where both could be meant, the plain reading goes first. Group
 * separators are refused unless the field shows them: a 1.5 that is taken for 15 would be another number.
 */
namespace NumberText {

/** The locale that \a box writes its number in; it omits group separators unless the box shows them. */
QLocale localeOf(const QAbstractSpinBox &box);

/** Whether \a locale writes group separators, which then may be typed, too. */
bool hasGroups(const QLocale &locale);

/** The whole of \a text as an integer; none when it is anything else. Only base 10 knows locales. */
std::optional<qint64> toInteger(const QString &text, const QLocale &locale, int base = 10);

/**
 * The whole of \a text as a finite number; none when it is anything else. A text with more than \a decimals digits
 * behind a point is not plain where groups are shown.
 */
std::optional<double> toDouble(const QString &text, const QLocale &locale, int decimals);

/** Whether \a text, which is no number yet, can become one: nothing, a sign, or with \a decimals a decimal sign. */
bool isUnfinished(const QString &text, const QLocale &locale, int decimals = 0);

/** Whether \a text begins with any minus sign. */
bool isNegative(const QString &text, const QLocale &locale);

/** The text that \a box shows or \a text, without prefix and suffix and the blanks around the number. @{ */
QString numberPart(const QSpinBox &box, const QString &text);
QString numberPart(const QDoubleSpinBox &box, const QString &text);
/** @} */

/**
 * The number in \a text, which has prefix and suffix; none when it is no number or an unfinished one. The special value
 * text is the minimum. The range is not looked at. @{
 */
std::optional<int> typedNumber(const QSpinBox &box, const QString &text);
std::optional<double> typedNumber(const QDoubleSpinBox &box, const QString &text);
/** @} */

/** The same for what \a box shows now. @{ */
std::optional<int> typedNumber(const QSpinBox &box);
std::optional<double> typedNumber(const QDoubleSpinBox &box);
/** @} */

/**
 * What validate() of the base class answers, but read as above: it judges by the range, and puts prefix and suffix back
 * where an edit has taken them away as a whole. @{
 */
QValidator::State judge(const QSpinBox &box, QString &text, int &pos);
QValidator::State judge(const QDoubleSpinBox &box, QString &text, int &pos);
/** @} */

} // namespace NumberText
