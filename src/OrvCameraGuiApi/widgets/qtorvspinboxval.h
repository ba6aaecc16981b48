// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QSpinBox>

/**
 * A QSpinBox with two more switches: validate() keeps the value on the grid of its steps, and without validateTyping()
 * a typed text becomes the value only by Return or Enter.
 *
 * There are, intentionally, no properties of its own. The inherited user property "value" is that of the base class and
 * sets without snapping, also from a delegate or a QDataWidgetMapper. So does setValue() when it is called through a
 * QSpinBox.
 *
 * GUI thread only.
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvSpinBoxVal : public QSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "07/20/16")

public:
    /** Range, step and value as in a new QSpinBox; \a parent owns the box and may be null. */
    explicit QtOrvSpinBoxVal(QWidget *parent = nullptr);

    /**
     * Whether values set through this class are snapped to minimum() + k * singleStep(); off by default. Switching it
     * leaves the current value as it is.
     */
    bool validate() const { return m_validate; }
    void setValidate(bool validate) { m_validate = validate; }

    /** Whether typed text may become the value before Return or Enter is pressed; on by default. */
    bool validateTyping() const { return m_validateTyping; }
    void setValidateTyping(bool validate) { m_validateTyping = validate; }

    /**
     * Whether the box takes an entry as a whole or not at all; off by default. A refused key then shows the limits, and
     * nothing is committed until the text is put right. Return leaves an untouched box alone. A text that is no number
     * of the range is replaced by the value, never by another number. The wheel over a box without the focus commits
     * nothing, nor does another locale, range or state.
     */
    bool isEntryGuarded() const;
    void setEntryGuarded(bool guarded);

    /**
     * \a value moved to the nearest grid point, at most the maximum. A value half a step (rounded down) above a point
     * goes up. Minimum and maximum themselves stay, on the grid or off it. With a single step of 0 nothing moves.
     */
    int doValidation(int value) const;

    /** Shows \a text without reading it: value and signals do not follow. */
    void setLineEditText(const QString &text);

    /**
     * Sets the value moved by \a steps times singleStep(), snapped with validate(). setValue() limits it to the range;
     * wrapping() has no part in it, intentionally. Typed text that is not the value yet is given up.
     */
    void stepBy(int steps) override;

    /** The verdict on \a text, read as by valueFromText(). Without validateTyping() it is at most Intermediate. */
    QValidator::State validate(QString &text, int &pos) const override;
    /** Puts the text of the value in the place of a text that the base class would correct to another number. */
    void fixup(QString &text) const override;

public Q_SLOTS:
    /** Sets \a value, snapped with validate(), then limited to the range. Hides the base class's slot, which only
     * limits. */
    void setValue(int value);

protected:
    /**
     * The number in \a text, which has prefix and suffix. It may be written plainly or as the locale writes it; group
     * separators are refused unless they are shown.
     */
    int valueFromText(const QString &text) const override;

    /**
     * Without validateTyping(), Return and Enter set the number that the whole text stands for: plain, or in the locale
     * of the widget without group separators. The key goes no further then. Any other text is left to the base class,
     * which commits nothing; so is a text with a prefix or suffix, intentionally.
     */
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_validate = false;
    bool m_validateTyping = true;
};
