// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAccessible>

class QAbstractSpinBox;
class QLineEdit;
class QWidget;

/** Offers the text of a control to assistive tools, to be read as a whole. */
class ShownText : public QAccessibleTextInterface
{
public:
    /** \a widget outlives this object. */
    explicit ShownText(QWidget *widget)
        : m_widget(widget)
    {
    }

    virtual QString shownText() const = 0;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QString text(int start, int end) const override { return shownText().mid(start, end - start); }
    int characterCount() const override { return int(shownText().size()); }
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int, int) override { }
    QString attributes(int offset, int *start, int *end) const override;

private:
    QWidget *const m_widget;
};

/** Offers the text of a spin box, which a tool can select and edit as well. */
class SpinBoxText : public ShownText, public QAccessibleEditableTextInterface
{
public:
    /** \a spinBox outlives this object; its line edit need not. */
    explicit SpinBoxText(QAbstractSpinBox *spinBox);

    QString shownText() const override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;

    /** \name Edits as if typed: the validator decides, a read-only or disabled box refuses them @{ */
    void deleteText(int start, int end) override { replaceText(start, end, QString()); }
    void insertText(int offset, const QString &text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString &text) override;
    /** @} */

private:
    QLineEdit *edit() const;
    void select(int start, int end);

    QAbstractSpinBox *const m_spinBox;
};
