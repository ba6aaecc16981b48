#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QDoubleSpinBox>

/**
 * A QDoubleSpinBox that can keep its value on the grid of its steps, and typed text from becoming the value by itself.
 *
 * validate() makes whatever is set through this class snap to minimum() + k * singleStep(). validateTyping() tells
 * whether typed text may become the value while it is being typed; without it only Return and Enter make it so.
 *
 * There are, intentionally, no properties of its own. The inherited user property "value" is the base class's: it sets
 * without snapping, from a delegate or a QDataWidgetMapper too, and so does setValue() called through a QDoubleSpinBox.
 *
 * GUI thread only.
 */
class ORV_CAMERAGUIAPI_EXPORT QtOrvDoubleSpinBoxVal : public QDoubleSpinBox
{
    Q_OBJECT
    Q_CLASSINFO("version", "1.0.1")
    Q_CLASSINFO("date", "08/01/16")

public:
    /** Range, step, decimals and value as in a new QDoubleSpinBox; \a parent owns the box and may be null. */
    explicit QtOrvDoubleSpinBoxVal(QWidget *parent = nullptr);

    /** Whether values are snapped to the grid; off by default. Switching it leaves the current value as it is. */
    bool validate() const { return m_validate; }
    void setValidate(bool validate) { m_validate = validate; }

    /** Whether typed text may become the value before Return or Enter is pressed; on by default. */
    bool validateTyping() const { return m_validateTyping; }
    void setValidateTyping(bool validate) { m_validateTyping = validate; }

    /**
     * Whether the box takes entries as a whole only; off by default. After a key was refused it then tells its limits
     * and commits nothing until the text is put right. Return leaves an untouched box alone, and what is no number of
     * the range is replaced by the value, never by another number. Neither the wheel over a box without the focus nor
     * another locale, range or state commits anything.
     */
    bool isEntryGuarded() const;
    void setEntryGuarded(bool guarded);

    /**
     * \a value moved to the nearest grid point, at most the maximum; minimum and maximum themselves stay, on the grid
     * or off it. Half a step above a point goes to the next. The grid is not rounded to decimals(). Nothing moves with
     * a single step of 0, nor where there is no finite answer.
     */
    double doValidation(double value) const;

    /** Shows \a text without reading it: neither value nor signals follow. */
    void setLineEditText(const QString &text);

    /**
     * Sets the value moved by \a steps times singleStep(), snapped with validate(). What lies outside the range is left
     * to setValue(); wrapping() has no other part in it, intentionally. Typed text that has not become the value is
     * given up.
     */
    void stepBy(int steps) override;

    /**
     * The base class's verdict on \a text read as below, but without validateTyping() nothing is better than
     * Intermediate.
     */
    QValidator::State validate(QString &text, int &pos) const override;
    /** Offers the value's text where the base class would correct a text that is no number to another number. */
    void fixup(QString &text) const override;
    /**
     * The number in \a text, which has prefix and suffix. It may be written with a point or as the locale writes it;
     * group separators are refused unless they are shown.
     */
    double valueFromText(const QString &text) const override;

public Q_SLOTS:
    /**
     * Sets \a value, snapped with validate(), then limited to the range and rounded to decimals(); NaN is ignored.
     * Hides the base class's slot, which does not snap.
     */
    void setValue(double value);

protected:
    /**
     * Without validateTyping() Return and Enter set the whole text, read in the C locale first, then in the widget's
     * without group separators. They go no further then. A text that is no number, which includes any beside a prefix
     * or suffix, intentionally, is left to the base class, and so is every text while singleStep() is 0: nothing is
     * committed.
     */
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_validate = false;
    bool m_validateTyping = true;
};
