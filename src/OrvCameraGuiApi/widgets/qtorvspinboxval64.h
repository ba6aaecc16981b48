// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QAbstractSpinBox>
#include <QScopedPointer>
#include <QString>

class QtOrvSpinBoxVal64Private;

/**
 * A spin box for signed 64-bit integers that separates the number on show from the committed value.
 *
 * It shows prefix, number and suffix. In base 10 the number is written in the widget's locale, with group separators
 * only after setGroupSeparatorShown(true). In any other base it has lower-case digits, after a minus sign if it is
 * negative. The box reads what it shows; base 10 may also be typed plainly. Cursor and selection stay within the
 * number, and no edit can damage prefix or suffix.
 *
 * ## When a number is committed
 *
 * valueChanged() is emitted when a committed number differs from the last one, and only then:
 *
 * - setValue() commits its number, unless that lies outside the range: then nothing happens at all.
 * - Typing with keyboardTracking() commits each number of the range at once, and shows the value again for anything
 *   else. Without keyboardTracking() the typed text waits. Return and Enter commit it. Loss of focus, a mouse press on
 *   the box and the keys Up, Down, Page Up and Page Down discard it, or commit it if ignoreFocusOut() is off. A text
 *   that is no number of the range is replaced by the value.
 * - Stepping commits every step. Without buttonTracking() the steps of a held arrow button or step key are only shown.
 *   The last number is committed on release, or when the focus is lost before. Like any commit it is refused outside
 *   the range; the shown number then stays.
 *
 * ## Properties
 *
 * "value" is the user property, so the box works as the editor of an item delegate and in a QDataWidgetMapper.
 * Assistive tools read and set "value", "minimum", "maximum" and "singleStep".
 *
 * GUI thread only. Numbers have no unit of their own; the suffix shows one. Arithmetic never overflows. A slot on
 * valueChanged() may change the box but not delete it (QObject::deleteLater() does).
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvSpinBoxVal64 : public QAbstractSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.0")
    Q_CLASSINFO("date", "03/29/2018")
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString cleanText READ cleanText)
    Q_PROPERTY(long long minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(long long maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(long long singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(long long value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int displayIntegerBase READ displayIntegerBase WRITE setDisplayIntegerBase)

public:
    /** Range 0 to 99, step 1, value 0, base 10; \a parent owns the box and may be null. */
    explicit QtOrvSpinBoxVal64(QWidget *parent = nullptr);
    ~QtOrvSpinBoxVal64() override;

    /** The committed value, not a typed text that waits nor the steps of a button still held. */
    long long value() const;

    /** Text before the number; empty by default. Setting it commits the current value again, so it may be snapped. */
    QString prefix() const;
    void setPrefix(const QString &prefix);
    void setPrefix(QString &&prefix);

    /** Text after the number; empty by default. Setting it commits the current value again, so it may be snapped. */
    QString suffix() const;
    void setSuffix(const QString &suffix);
    void setSuffix(QString &&suffix);

    /** The value in base 10, whatever the display base, without prefix, suffix and group separators. */
    QString cleanText() const;

    /**
     * The size of a step; 1 by default. Any number is taken: a negative step turns the direction round, a step of 0
     * leads nowhere. A step of 0 or less snaps nothing.
     */
    long long singleStep() const;
    void setSingleStep(long long step);

    /**
     * The range, 0 to 99 by default. A bound set beyond the other one moves that one along; setRange() with exchanged
     * bounds leaves \a minimum as the only number. The value and its text stay until the next commit, even outside the
     * new range.
     */
    long long minimum() const;
    void setMinimum(long long minimum);
    long long maximum() const;
    void setMaximum(long long maximum);
    void setRange(long long minimum, long long maximum);

    /**
     * The base of the number, 2 to 36; 10 by default. Any other base is ignored. The text on show is, intentionally,
     * not rebuilt at once but before it is next painted, edited or committed.
     */
    int displayIntegerBase() const;
    void setDisplayIntegerBase(int base);

    /** Whether the number is selected after every step and when the box gets the focus; on by default. */
    bool selectWhenStepping() const;
    void setSelectWhenStepping(bool select);

    /** Whether waiting text is discarded, not committed, when focus, mouse or step keys end typing; on by default. */
    bool ignoreFocusOut() const;
    void setIgnoreFocusOut(bool ignore);

    /**
     * Whether committed numbers are snapped to minimum + k * singleStep; off by default. A number at least half a step
     * (rounded down) above a grid point goes up, though never beyond the maximum. Minimum and maximum themselves stay,
     * on the grid or off it.
     */
    bool validateStepping() const;
    void setValidateStepping(bool validate);

    /** Whether every step of a held button or key is committed, not just the last on release; on by default. */
    bool buttonTracking() const;
    void setButtonTracking(bool track);

    /**
     * Whether the box takes an entry as a whole or not at all; off by default. A refused key then shows the limits, and
     * nothing is committed until the text is put right. Return leaves an untouched box alone. A text that is no number
     * of the range waits for Return, with keyboardTracking() too, and is then replaced by the value. The wheel over a
     * box without the focus commits nothing, nor does another locale, range or state.
     */
    bool isEntryGuarded() const;
    void setEntryGuarded(bool guarded);

    /**
     * In pixels. Both hints have room for the wider bound (its first 20 characters) or the special value text, with
     * prefix and suffix. They follow range, prefix, suffix, font, style and locale.
     */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /** The verdict on \a text without as many characters as prefix and suffix have. */
    QValidator::State validate(QString &text, int &pos) const override;
    /** Does nothing: a text that is no number is replaced by the value when it is committed. */
    void fixup(QString &text) const override;

    /**
     * Moves by \a steps times singleStep(). A step that would leave the range (or 64 bits) is dropped whole, it does
     * not stop at the bound, intentionally; with wrapping() it goes to the opposite bound. Without buttonTracking(),
     * while a button or key is held, only the shown number moves, and may leave the range unless wrapping().
     */
    void stepBy(int steps) override;
    /** None when read-only, both when wrapping(), else each direction in which the value has not reached the bound. */
    StepEnabled stepEnabled() const override;

    /** The text for \a value, without prefix and suffix. */
    virtual QString textFromValue(long long value) const;
    /** The number in \a text, which has prefix and suffix; the minimum if it is no number of the range. */
    virtual long long valueFromText(const QString &text) const;

public Q_SLOTS:
    /** Commits \a value if it lies within the range. */
    void setValue(long long value);
    /** Selects the number, with the cursor at its start. */
    void selectAll();
    /** Removes the number from the text; the value stays. */
    void clear() override;
    /**
     * Commits typed text as Return does. Hides the slot of the base class, which does nothing for classes other than
     * Qt's; so call it through this class, or by its name.
     */
    void interpretText();

Q_SIGNALS:
    void valueChanged(long long value);
    /** Follows the number's signal; \a text is the whole text, with prefix and suffix. */
    void valueChanged(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    friend class QtOrvSpinBoxVal64Private;

    const QScopedPointer<QtOrvSpinBoxVal64Private> d;
};
