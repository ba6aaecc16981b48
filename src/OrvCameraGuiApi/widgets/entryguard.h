// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/entryblock.h>
#include <OrvCameraGuiApi/widgets/limitsnotice.h>
#include <OrvCameraGuiApi/widgets/plainreading.h>

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>

class GuardedField;
class QAbstractSpinBox;
class QFocusEvent;
class QKeyEvent;
class QLineEdit;

/**
 * Makes a spin box take a typed number as a whole or not at all. It never commits the rest of a number that lost a key,
 * an untouched text, or a number near one that is out of range.
 *
 * - A refused digit, sign or decimal sign, or a refused text from the clipboard, blocks the text. The limits are shown
 *   beside the box and told to assistive tools. Nothing is committed until the text is put right: by Backspace, Delete,
 *   undo, Escape, or text that replaces text selected since. More digits are not taken.
 * - Return and Enter commit a typed number within the range. Any other text is replaced by the value, and the limits
 *   are shown unless the text was empty. An untouched box stays as it is, and the key goes on to the dialog.
 * - Escape shows the value again. It goes on to the dialog only if nothing was typed.
 * - Leaving the box commits what the class of the box commits then, also as a whole. A menu, a modal window or another
 *   program that takes the focus does not count as leaving.
 * - Another locale drops what was typed. So does disabling, hiding or making the box read-only.
 * - The wheel over a box without the focus is left to the widgets around the box.
 *
 * The guard is a child of its box. It also serves Qt's own boxes for numbers: such a box reads by NumberText and has no
 * keyboard tracking while it is guarded.
 */
class EntryGuard : public QObject
{
    Q_OBJECT

public:
    /** The guard of \a box, made if there is none; null for no box, or for a box without a number. */
    static EntryGuard *install(QAbstractSpinBox *box);
    static void remove(QAbstractSpinBox *box);
    static void setInstalled(QAbstractSpinBox *box, bool installed);
    /** The guard of \a box; null when there is none. */
    static EntryGuard *of(const QAbstractSpinBox *box);

    ~EntryGuard() override;

    /** Whether a person has changed the text since it was last committed or dropped. */
    bool isTouched() const;
    /** Whether a key was refused; nothing is committed until that is put right. */
    bool isBlocked() const { return m_block.isBlocked(); }

    /**
     * Ends the entry as Return does, and returns whether a number was committed. Does nothing to an untouched or
     * blocked box. To be called in place of QAbstractSpinBox::interpretText(), which knows nothing of the guard.
     */
    bool commit();
    /** Shows the value again if anything else was typed, and forgets what was refused. */
    void drop();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** A person has committed the number that is the value already; the box emits no valueChanged() for that. */
    void entered();

private:
    EntryGuard(QAbstractSpinBox *box, std::unique_ptr<GuardedField> field);
    void release();

    bool filterBox(QEvent *event);
    bool filterShortcut(QKeyEvent *event);
    bool filterKey(QKeyEvent *event);
    bool filterReturn(QKeyEvent *event);
    bool filterEscape();
    bool filterTyping(QKeyEvent *event);
    bool filterWheel(QEvent *event);
    bool filterHide(const QEvent *event);
    bool filterFocusOut(QFocusEvent *event);
    bool filterDeactivation();

    void beforeStep();
    void leave();
    bool hasEntry() const { return isBlocked() || isTouched(); }

    void onTextEdited(const QString &text);
    void onInputRejected();
    void onValueChanged();
    void showLimits();

    QAbstractSpinBox *const m_box;
    const QPointer<QLineEdit> m_edit;
    const std::unique_ptr<GuardedField> m_field;
    const Qt::FocusPolicy m_formerPolicy;
    std::optional<PlainReading> m_plainReading; ///< for a box that does not read by NumberText itself
    EntryBlock m_block;
    LimitsNotice m_limits;

    bool m_isTouched = false;
    QString m_typedText;
    bool m_isAnnounced = false; ///< the value has changed by the present key
};
