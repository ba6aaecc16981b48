#pragma once

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>

#include <QAbstractSpinBox>

/** How the two boxes that are made of Qt's go about their text. */
namespace BoxReading {

/** Ends a text that fixup() offers as the value's, for validate() to take off. Nobody types a noncharacter. */
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
 * The base class would take the bound nearest to 0 for whatever it does not accept. That is left to it for a number
 * that lies outside the range. \a valueText is what the box shows for its value.
 */
template <typename Box>
void fixup(const Box &box, QString &text, const QString &valueText)
{
    if (box.correctionMode() != QAbstractSpinBox::CorrectToNearestValue)
        return;
    if (!box.validateTyping() || EntryGuard::of(&box) || !NumberText::typedNumber(box, text))
        text = valueText + ValueMark;
}

/** What is no number of the range is what the base class makes of it. */
template <typename Box>
auto valueFromText(const Box &box, const QString &text)
{
    const auto number = NumberText::typedNumber(box, text);
    if (number && box.minimum() <= *number && *number <= box.maximum())
        return *number;
    return box.maximum() > 0 ? box.minimum() : box.maximum();
}

} // namespace BoxReading
