// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/keys.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <QKeyEvent>

#include <optional>

/**
 * The spin box of a composite, made of \a Box. With validate(), a typed number counts as the nearest one on the grid
 * while it is typed, and is shown so when the typing ends. A number off the grid that a program sets through the base
 * class stays. Without validateTyping(), Return also reads a number that stands between prefix and suffix.
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
        const std::optional<Number> number = numberToEnter(*event);
        if (!number) {
            Box::keyPressEvent(event);
            return;
        }
        if (isTouched(this->text()))
            this->setValue(*number);
        event->accept();
    }

private:
    /** None where the base class is to decide: that reads a text without affixes itself, and any text without a grid.
     */
    std::optional<Number> numberToEnter(const QKeyEvent &event) const
    {
        const bool hasAffixes = !this->prefix().isEmpty() || !this->suffix().isEmpty();
        const bool hasGrid = this->singleStep() != Number(0);
        const bool isEntry = Keys::isReturn(event) && !this->validateTyping() && !this->isReadOnly();
        return isEntry && hasAffixes && hasGrid ? NumberText::typedNumber(*this) : std::nullopt;
    }

    bool isTouched(const QString &text) const
    {
        return text != this->prefix() + this->textFromValue(this->value()) + this->suffix();
    }
};

using InnerSpinBox = InnerBox<QtOrvSpinBoxVal, int>;
using InnerDoubleSpinBox = InnerBox<QtOrvDoubleSpinBoxVal, double>;
