#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QAbstractSpinBox>
#include <QScopedPointer>
#include <QString>

class QtOrvSpinBoxVal64Private;

/**
 * A spin box for signed 64-bit integers that tells apart what is shown from what is committed.
 *
 * It shows prefix, number and suffix. The number is in displayIntegerBase(): in base 10 as the widget's locale writes
 * it, with group separators only if setGroupSeparatorShown(true); in any other base as a minus sign for a negative
 * number, then lower-case digits. What it shows it also reads; base 10 may be typed plainly as well. Cursor and
 * selection keep to the number, and no edit can damage prefix or suffix.
 *
 * ## When a number is committed
 *
 * valueChanged() is emitted when a committed number differs from the last one, and only then:
 *
 * - setValue() commits its number, unless it lies outside the range: then nothing happens at all.
 * - Typing commits every in-range number at once while keyboardTracking() is on, and puts the value's text back for
 *   anything else. With keyboardTracking() off the typed text waits: Return and Enter commit it; loss of focus, a mouse
 *   press on the box and the keys Up, Down, Page Up and Page Down discard it, or commit it if ignoreFocusOut() is off.
 *   Text that is not an in-range number is replaced by the value's.
 * - Stepping commits every step. With buttonTracking() off, the steps of a held arrow button or step key are only
 *   shown, and the number they arrived at is committed on release, or when the focus is lost before. Like
 *   every commit this one is refused outside the range; the shown number then stays as it is.
 *
 * ## Properties by which views and assistive tools reach it
 *
 * "value" is the user property, so the box works as the editor of an item delegate and in a QDataWidgetMapper, and
 * assistive tools read and set "value", "minimum", "maximum" and "singleStep".
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

    /** The committed value: never a typed text that still waits, nor the steps of a button still held. */
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
     * What one step adds; 1 by default. Any number is taken: a negative one turns the direction round, and with 0 steps
     * lead nowhere. A step of 0 or less snaps nothing.
     */
    long long singleStep() const;
    void setSingleStep(long long step);

    /**
     * The range, 0 to 99 by default. A bound set beyond the other one takes that along; setRange() with the bounds
     * exchanged leaves \a minimum as the only number. The value and its text stay as they are, even outside the new
     * range, until the next commit.
     */
    long long minimum() const;
    void setMinimum(long long minimum);
    long long maximum() const;
    void setMaximum(long long maximum);
    void setRange(long long minimum, long long maximum);

    /**
     * Base of the number shown and typed, 2 to 36; 10 by default. Another base is ignored. The shown text is,
     * intentionally, not rebuilt at once but before it is next painted, edited or committed.
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
     * Whether committed numbers are snapped to minimum + k * singleStep; off by default. A number goes to the next grid
     * point when it is at least half a step (rounded down) above the one below, though never beyond the maximum.
     * Minimum and maximum themselves stay, on the grid or off it.
     */
    bool validateStepping() const;
    void setValidateStepping(bool validate);

    /** Whether every step of a held button or key is committed, not just the last on release; on by default. */
    bool buttonTracking() const;
    void setButtonTracking(bool track);

    /**
     * Whether the box takes entries as a whole only; off by default. After a key was refused it then tells its limits
     * and commits nothing until the text is put right. Return leaves an untouched box alone, and typed text that is no
     * number of the range waits for it, with keyboardTracking() too, and is replaced by the value. Neither the wheel
     * over a box without the focus nor another locale, range or state commits anything.
     */
    bool isEntryGuarded() const;
    void setEntryGuarded(bool guarded);

    /**
     * Both hints, in pixels, have room for the wider bound (of its first 20 characters) or the special value text, each
     * with prefix and suffix. They are measured anew after a change of range, prefix, suffix, font, style or locale.
     */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /** The verdict on the part of \a text that is left without the lengths of prefix and suffix. */
    QValidator::State validate(QString &text, int &pos) const override;
    /** Does nothing: a text that is no number is replaced when it would be committed. */
    void fixup(QString &text) const override;

    /**
     * Moves by \a steps times singleStep(). A step that would leave the range (or 64 bits) is dropped whole, it does
     * not stop at the bound, intentionally; with wrapping() it goes to the opposite bound. While a button or key is
     * held and buttonTracking() is off it moves only the shown number, which without wrapping() may leave the range.
     */
    void stepBy(int steps) override;
    /** None when read-only, both when wrapping(), else the directions in which the value has not reached the bound. */
    StepEnabled stepEnabled() const override;

    /** The number part as it is shown for \a value, without prefix and suffix. */
    virtual QString textFromValue(long long value) const;
    /** The number in \a text, which has prefix and suffix, or the minimum when it is not one within the range. */
    virtual long long valueFromText(const QString &text) const;

public Q_SLOTS:
    /** Commits \a value if it lies within the range. */
    void setValue(long long value);
    /** Selects the number, with the cursor at its start. */
    void selectAll();
    /** Empties the number on show; the value stays. */
    void clear() override;
    /**
     * Commits typed text as Return does. Hides the base class's slot, which does nothing for a class that is none of
     * Qt's own; so it must be called through this class, or by its name.
     */
    void interpretText();

Q_SIGNALS:
    void valueChanged(long long value);
    /** Follows the number's signal; \a text is all that is shown, with prefix and suffix. */
    void valueChanged(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    friend class QtOrvSpinBoxVal64Private;

    const QScopedPointer<QtOrvSpinBoxVal64Private> d;
};
