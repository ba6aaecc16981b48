// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/keys.h>

#include <QKeyEvent>

bool Keys::isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool Keys::isStep(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

bool Keys::isDeletion(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
}

bool Keys::isCharacter(const QKeyEvent &event)
{
    const bool isCommand = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

bool Keys::isSelection(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return event.modifiers() & Qt::ShiftModifier;
    default:
        return event.matches(QKeySequence::SelectAll);
    }
}

bool Keys::isUndo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}
