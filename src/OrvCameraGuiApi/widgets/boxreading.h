// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/keys.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>

#include <QAbstractSpinBox>

/** How the spin boxes derived from Qt's read and correct their text. */
namespace BoxReading {

/** Marks a text by which fixup() offers the value; validate() takes it off. Nobody types a noncharacter. */
constexpr QChar ValueMark(0xfdd0);

template <typename Box>
QValidator::State validate(const Box &box, QString &text, int &pos)
{
    if (text.endsWith(ValueMark)) {
        text.chop(1);
        return QValidator::Acceptable;
    }
    const QValidator::State state = NumberText::judge(box, text, pos);
    const EntryGuard *const guard = EntryGuard::of(&box);
    const bool mayCommit = box.validateTyping() && !(guard && guard->isBlocked());
    return mayCommit ? state : qMin(state, QValidator::Intermediate);
}

/**
 * Offers \a valueText, the text of the box for its value. The base class would take the bound nearest to 0 for any text
 * that it does not accept; only a number outside the range is left to it.
 */
template <typename Box>
void fixup(const Box &box, QString &text, const QString &valueText)
{
    if (box.correctionMode() != QAbstractSpinBox::CorrectToNearestValue)
        return;
    if (!box.validateTyping() || EntryGuard::of(&box) || !NumberText::typedNumber(box, text))
        text = valueText + ValueMark;
}

/**
 * The number in \a text. An untouched text, equal to \a valueText, is the value; a text that is no number of the range
 * is what the base class makes of it.
 */
template <typename Box>
auto valueFromText(const Box &box, const QString &text, const QString &valueText)
{
    if (text == valueText)
        return box.value();
    const auto number = NumberText::typedNumber(box, text);
    if (number && box.minimum() <= *number && *number <= box.maximum())
        return *number;
    return box.maximum() > 0 ? box.minimum() : box.maximum();
}

/**
 * Sets the number that a box without validateTyping() shows when Return is pressed. Whether there is one; a text beside
 * a prefix or suffix is none, intentionally. \a valueText is the text for the value, in whatever base.
 */
template <typename Box>
bool setTypedNumber(Box *box, const QKeyEvent &event, const QString &valueText)
{
    const bool hasAffixes = !box->prefix().isEmpty() || !box->suffix().isEmpty();
    if (!Keys::isReturn(event) || hasAffixes || box->validateTyping() || box->isReadOnly())
        return false;
    const auto number = box->text() == valueText ? std::make_optional(box->value()) : NumberText::typedNumber(*box);
    if (number)
        box->setValue(*number);
    return number.has_value();
}

} // namespace BoxReading
