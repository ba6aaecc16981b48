// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/accessibletext.h>

#include <QAbstractSpinBox>
#include <QLineEdit>

void ShownText::selection(int, int *start, int *end) const
{
    *start = *end = 0;
}

QRect ShownText::characterRect(int) const
{
    return QRect(m_widget->mapToGlobal(QPoint(0, 0)), m_widget->size());
}

int ShownText::offsetAtPoint(const QPoint &) const
{
    return -1;
}

/** No part of the text has attributes. */
QString ShownText::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

SpinBoxText::SpinBoxText(QAbstractSpinBox *spinBox)
    : ShownText(spinBox)
    , m_spinBox(spinBox)
{
}

/** The present line edit. The spin box may be given another one, but always has one. */
QLineEdit *SpinBoxText::edit() const
{
    return m_spinBox->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
}

QString SpinBoxText::shownText() const
{
    return edit()->displayText();
}

int SpinBoxText::selectionCount() const
{
    return edit()->hasSelectedText() ? 1 : 0;
}

void SpinBoxText::selection(int index, int *start, int *end) const
{
    ShownText::selection(index, start, end);
    if (index != 0 || selectionCount() == 0)
        return;
    *start = edit()->selectionStart();
    *end = edit()->selectionEnd();
}

void SpinBoxText::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

/** Takes any numbers: a tool may make them up. */
void SpinBoxText::select(int start, int end)
{
    const int first = qBound(0, start, characterCount());
    edit()->setSelection(first, qBound(first, end, characterCount()) - first);
}

void SpinBoxText::removeSelection(int index)
{
    if (index == 0)
        edit()->deselect();
}

void SpinBoxText::setSelection(int index, int start, int end)
{
    if (index == 0)
        select(start, end);
}

int SpinBoxText::cursorPosition() const
{
    return edit()->cursorPosition();
}

void SpinBoxText::setCursorPosition(int position)
{
    edit()->setCursorPosition(position);
}

QRect SpinBoxText::characterRect(int offset) const
{
    const QString text = shownText();
    const QFontMetrics metrics = edit()->fontMetrics();
    const QRect cursor = edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int x = cursor.x() + metrics.horizontalAdvance(text.left(offset))
        - metrics.horizontalAdvance(text.left(edit()->cursorPosition()));
    const QSize size(metrics.horizontalAdvance(text.mid(offset, 1)), cursor.height());
    return QRect(edit()->mapToGlobal(QPoint(x, cursor.y())), size);
}

int SpinBoxText::offsetAtPoint(const QPoint &point) const
{
    const QPoint place = edit()->mapFromGlobal(point);
    return edit()->rect().contains(place) ? edit()->cursorPositionAt(place) : -1;
}

void SpinBoxText::replaceText(int start, int end, const QString &text)
{
    if (m_spinBox->isReadOnly() || !m_spinBox->isEnabled())
        return;
    select(start, end);
    edit()->insert(text);
}
