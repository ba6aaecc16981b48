#pragma once

#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

/**
 * The spin box of a composite: with validate(), a typed number counts as the nearest one on the grid while it is being
 * typed, and becomes that on show when the typing ends. What a program sets through the base class stays as it is.
 */
class InnerSpinBox : public QtOrvSpinBoxVal
{
public:
    using QtOrvSpinBoxVal::QtOrvSpinBoxVal;

protected:
    int valueFromText(const QString &text) const override
    {
        const int number = QtOrvSpinBoxVal::valueFromText(text);
        return validate() ? doValidation(number) : number;
    }
};

/** The same for numbers with decimals. */
class InnerDoubleSpinBox : public QtOrvDoubleSpinBoxVal
{
public:
    using QtOrvDoubleSpinBoxVal::QtOrvDoubleSpinBoxVal;

    double valueFromText(const QString &text) const override
    {
        const double number = QtOrvDoubleSpinBoxVal::valueFromText(text);
        return validate() ? doValidation(number) : number;
    }
};
