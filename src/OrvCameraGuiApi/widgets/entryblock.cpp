// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/entryblock.h>

#include <OrvCameraGuiApi/widgets/guardedfield.h>
#include <OrvCameraGuiApi/widgets/keys.h>

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace {

/** Whether the text may change by an event of this kind. */
bool isInput(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::InputMethod || type == QEvent::ContextMenu
        || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease;
}

/** Whether \a text is \a former with one piece taken away. */
bool isShortened(const QString &former, const QString &text)
{
    if (text.size() >= former.size())
        return false;
    int same = 0;
    while (same < text.size() && text.at(same) == former.at(same))
        ++same;
    return former.endsWith(text.mid(same));
}

} // namespace

EntryBlock::EntryBlock(QLineEdit *edit, const GuardedField &field)
    : m_edit(edit)
    , m_field(field)
    , m_hadSelection(edit->hasSelectedText())
{
}

void EntryBlock::followBox(const QEvent &event)
{
    if (isInput(event.type()))
        m_textBefore = m_edit->text();
    if (event.type() == QEvent::InputMethod || event.type() == QEvent::ContextMenu)
        m_isRefusalOfNumber = true;
    if (event.type() == QEvent::ContextMenu) // it has a command that selects
        m_hasNewSelection = true;
}

void EntryBlock::followEdit(const QEvent &event)
{
    if (isInput(event.type()))
        m_textBefore = m_edit->text();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        m_hasNewSelection = true;
        m_isRefusalOfNumber = true;
        break;
    default:
        break;
    }
}

void EntryBlock::followKey(const QKeyEvent &event)
{
    m_isRefusalOfNumber = concernsNumber(event);
    m_isUndoing = Keys::isUndo(event);
    m_hasNewSelection = m_hasNewSelection || Keys::isSelection(event);
}

void EntryBlock::followSelection()
{
    m_hadSelection = m_edit->hasSelectedText();
}

bool EntryBlock::refuses(const QKeyEvent &event) const
{
    const bool inserts = Keys::isCharacter(event) || event.matches(QKeySequence::Paste);
    const bool replaces = m_hasNewSelection && m_edit->hasSelectedText();
    return m_isBlocked && inserts && !replaces;
}

bool EntryBlock::inputRejected()
{
    if (!m_isRefusalOfNumber || m_edit->isReadOnly())
        return false;
    m_isBlocked = true;
    m_hasNewSelection = false;
    return true;
}

bool EntryBlock::textEdited(const QString &text)
{
    const bool isPutRight = m_isUndoing || (m_hadSelection && m_hasNewSelection) || isShortened(m_textBefore, text);
    m_textBefore = text;
    m_isBlocked = m_isBlocked && !isPutRight;
    return !m_isBlocked;
}

/** An input without a character of its own, such as a text from the clipboard, counts as a number. */
bool EntryBlock::concernsNumber(const QKeyEvent &event) const
{
    const int cursor = m_edit->cursorPosition();
    if (Keys::isDeletion(event) && !m_edit->hasSelectedText())
        return event.key() == Qt::Key_Backspace ? cursor > m_field.numberStart() : cursor < m_field.numberEnd();
    if (!Keys::isCharacter(event))
        return true;
    const QString text = event.text();
    return std::any_of(text.begin(), text.end(), [this](QChar c) { return isOfNumber(c); });
}

/** Whether \a c is a digit, a sign, or the decimal sign or group separator of any locale. */
bool EntryBlock::isOfNumber(QChar c) const
{
    constexpr QChar minusSign(0x2212);
    constexpr QChar arabicDecimalSign(0x066b);
    constexpr QChar arabicSeparator(0x066c);
    if (c.isDigit() || c == minusSign || c == arabicDecimalSign || c == arabicSeparator)
        return true;
    const char ascii = c.toLower().toLatin1();
    if (ascii == '+' || ascii == '-' || ascii == '.' || ascii == ',')
        return true;
    return (ascii >= 'a' && ascii - 'a' + 10 < m_field.base()) || (ascii == 'e' && m_field.hasExponent());
}
