// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QLocale>
#include <QString>
#include <QValidator>

#include <optional>

class QAbstractSpinBox;
class QDoubleSpinBox;
class QSpinBox;

/**
 * How all fields for numbers read typed text. A person may write a number plainly, in ASCII with a point, or as the
 * locale of the field writes it. The plain reading goes first where both are possible. Group separators are refused
 * unless the field shows them, because a 1.5 read as 15 is another number.
 */
namespace NumberText {

/** The locale in which \a box writes its number. It omits group separators unless the box shows them. */
QLocale localeOf(const QAbstractSpinBox &box);

/** Whether \a locale writes group separators, so that they may be typed. */
bool hasGroups(const QLocale &locale);

/**
 * \a text with digits and signs in ASCII and without the marks of the direction that \a locale puts beside a sign,
 * which need not be typed. Separators stay as they are.
 */
QString plain(const QString &text, const QLocale &locale);

/** The integer that all of \a text stands for, if any. Only base 10 is read by the locale. */
std::optional<qint64> toInteger(const QString &text, const QLocale &locale, int base = 10);

/**
 * The finite number that all of \a text stands for, if any. If \a locale shows groups, a point followed by
 * more than \a decimals digits is a group separator.
 */
std::optional<double> toDouble(const QString &text, const QLocale &locale, int decimals);

/** Whether \a text is the beginning of a number: empty, a sign or, with \a decimals, a decimal sign. */
bool isUnfinished(const QString &text, const QLocale &locale, int decimals = 0);

/** Whether \a text begins with a minus sign, plain or local. */
bool isNegative(const QString &text, const QLocale &locale);

/** \a text without prefix and suffix and without the blanks around the number. @{ */
QString numberPart(const QSpinBox &box, const QString &text);
QString numberPart(const QDoubleSpinBox &box, const QString &text);
/** @} */

/**
 * The number in \a text between prefix and suffix, if any, whatever the range. The special value text stands for the
 * minimum. @{
 */
std::optional<int> typedNumber(const QSpinBox &box, const QString &text);
std::optional<double> typedNumber(const QDoubleSpinBox &box, const QString &text);
/** @} */

/** The same for the text on show. @{ */
std::optional<int> typedNumber(const QSpinBox &box);
std::optional<double> typedNumber(const QDoubleSpinBox &box);
/** @} */

/**
 * The verdict of the base class's validate(), for the text read as above: judges by the range, and puts back prefix and
 * suffix that an edit has taken away. @{
 */
QValidator::State judge(const QSpinBox &box, QString &text, int &pos);
QValidator::State judge(const QDoubleSpinBox &box, QString &text, int &pos);
/** @} */

} // namespace NumberText
