// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QPointer>
#include <QString>

class GuardedField;
class QEvent;
class QKeyEvent;
class QLineEdit;

/**
 * Knows whether the number in a line edit has lost a key. After a refused digit, sign or decimal sign the text is
 * blocked, until an edit puts it right: one that shortens it, undoes, or replaces text selected since the refusal.
 *
 * The guard hands on what happens in the box and its line edit, in the order in which it happens.
 */
class EntryBlock
{
public:
    /** \a field outlives this object. */
    EntryBlock(QLineEdit *edit, const GuardedField &field);

    bool isBlocked() const { return m_isBlocked; }
    void lift() { m_isBlocked = false; }

    /** An event comes to the box, or to its line edit, which have not seen it yet. @{ */
    void followBox(const QEvent &event);
    void followEdit(const QEvent &event);
    /** @} */
    /** A key comes to the box that is neither Return nor Escape. */
    void followKey(const QKeyEvent &event);
    /** The selection has changed; of an edit this is the last report. */
    void followSelection();
    /** Whatever is refused next concerns the number. */
    void expectNumber() { m_isRefusalOfNumber = true; }

    /** Whether \a event must not reach the line edit, because it would add to a blocked text. */
    bool refuses(const QKeyEvent &event) const;

    /** The line edit has refused an input. Whether that blocks the text. */
    bool inputRejected();
    /** The line edit has taken an edit, which has led to \a text. Whether that lets the text be committed. */
    bool textEdited(const QString &text);

private:
    bool concernsNumber(const QKeyEvent &event) const;
    bool isOfNumber(QChar c) const;

    const QPointer<QLineEdit> m_edit;
    const GuardedField &m_field;
    bool m_isBlocked = false;
    bool m_isRefusalOfNumber = true; ///< a refusal of the present input concerns the number
    QString m_textBefore; ///< the present edit
    bool m_isUndoing = false;
    bool m_hadSelection; ///< before the present edit
    bool m_hasNewSelection = false; ///< a person has selected text since a key was refused
};
