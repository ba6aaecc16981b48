#pragma once

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
class QValidator;

/**
 * Sees to it that a spin box takes what a person entered as a whole, and nothing else: not what is left of a number
 * when a key was refused, nor what stands there untouched, nor the nearest number to one that cannot be.
 *
 * After a refused digit, sign or decimal sign, or a refused text from the clipboard, the limits are told beside the box
 * and to assistive tools, and nothing is committed until the text is put right: by Backspace, Delete, text in the place
 * of text selected since, undo or Escape. More digits do not put it right and are not taken.
 *
 * Return and Enter commit a typed number within the range. For any other text they show the value again and tell the
 * limits, for no text they show the value again. An untouched box they leave as it is, and go on to the dialog. Escape
 * shows the value again and goes on only where nothing was typed. Leaving the box commits what its class commits then,
 * as a whole too; it is no leaving when a menu, a modal window or another program takes the focus. Another locale, and
 * being disabled, made read-only or hidden, drop what was typed. The wheel over a box without the focus is left to what
 * is around it.
 *
 * A child of its box, which is for numbers, also one of Qt's own: such a box reads by NumberText as long as it has the
 * guard, and has no keyboard tracking then.
 */
class EntryGuard : public QObject
{
    Q_OBJECT

public:
    /** The guard of \a box, made if there is none; null for no box, or one that is not for numbers. */
    static EntryGuard *install(QAbstractSpinBox *box);
    static void remove(QAbstractSpinBox *box);
    /** The guard of \a box; null when there is none. */
    static EntryGuard *of(const QAbstractSpinBox *box);

    ~EntryGuard() override;

    /** Whether a person has changed the text, and it was neither committed nor dropped since. */
    bool isTouched() const;
    /** Whether a key was refused; nothing is committed until that is put right. */
    bool isBlocked() const { return m_isBlocked; }

    /**
     * Ends the entry as Return does, for who calls interpretText() otherwise, which knows nothing of the guard. Does
     * nothing to an untouched or blocked box. Whether a number was committed.
     */
    bool commit();
    /** Shows the value again if anything else was typed; what was refused is forgotten. */
    void drop();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** A person has committed a typed number that is the value already, so that valueChanged() did not tell it. */
    void entered();

private:
    EntryGuard(QAbstractSpinBox *box, std::unique_ptr<GuardedField> field);
    void takeOverReading();
    void handBackReading();

    bool filterBox(QEvent *event);
    bool filterKey(QKeyEvent *event);
    bool filterReturn(QKeyEvent *event);
    bool filterTyping(QKeyEvent *event);
    bool filterFocusOut(QFocusEvent *event);
    bool filterDeactivation();
    void beforeStep();
    void leave();
    bool isLeaving(Qt::FocusReason reason) const;
    bool hasEntry() const { return m_isBlocked || isTouched(); }

    void onTextEdited(const QString &text);
    void onInputRejected();
    void onValueChanged();
    bool concernsNumber(const QKeyEvent *event) const;
    bool isOfNumber(QChar c) const;

    void tellLimits();
    void withdrawLimits();

    QAbstractSpinBox *const m_box;
    const QPointer<QLineEdit> m_edit;
    const std::unique_ptr<GuardedField> m_field;
    QPointer<const QValidator> m_formerValidator;
    QPointer<QValidator> m_validator; ///< null for a box that reads by itself
    bool m_hadTracking = false;
    Qt::FocusPolicy m_formerPolicy;

    bool m_isTouched = false;
    QString m_typedText;
    bool m_isAnnounced = false; ///< the value has changed by the key that is going on
    bool m_isBlocked = false;
    QString m_textBefore; ///< the edit that is going on
    bool m_isRefusalOfNumber = true; ///< a refusal of the input that is going on concerns the number
    bool m_isUndoing = false;
    bool m_hadSelection = false; ///< before the edit that is going on
    bool m_hasNewSelection = false; ///< one made since a key was refused
    QString m_toldText; ///< empty while the limits are not told
    QString m_formerDescription;
};
