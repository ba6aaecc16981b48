#pragma once

#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <QKeyEvent>

/**
 * The spin box of a composite, made of \a Box. With validate(), a typed number counts as the nearest one on the grid
 * while it is being typed, and becomes that on show when the typing ends; what a program sets through the base class
 * stays as it is. Without validateTyping(), Return reads a typed number beside prefix and suffix, too.
 */
template <typename Box, typename Number>
class InnerBox : public Box
{
public:
    using Box::Box;

    Number valueFromText(const QString &text) const override
    {
        const Number number = Box::valueFromText(text);
        return Box::validate() && isTouched(text) ? this->doValidation(number) : number;
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        const bool hasAffixes = !this->prefix().isEmpty() || !this->suffix().isEmpty();
        const bool hasGrid = this->singleStep() != Number(0); // without one the base class is asked, as ever
        if (isReturn && hasAffixes && hasGrid && !this->validateTyping() && !this->isReadOnly()) {
            const std::optional<Number> number = NumberText::typedNumber(*this);
            if (number) {
                if (isTouched(this->text()))
                    this->setValue(*number);
                event->accept();
                return;
            }
        }
        Box::keyPressEvent(event);
    }

private:
    bool isTouched(const QString &text) const
    {
        return text != this->prefix() + this->textFromValue(this->value()) + this->suffix();
    }
};

using InnerSpinBox = InnerBox<QtOrvSpinBoxVal, int>;
using InnerDoubleSpinBox = InnerBox<QtOrvDoubleSpinBoxVal, double>;
