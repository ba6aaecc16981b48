// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>

#include <OrvCameraGuiApi/widgets/boxreading.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>
#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QKeyEvent>
#include <QLineEdit>

#include <cmath>

QtOrvDoubleSpinBoxVal::QtOrvDoubleSpinBoxVal(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    installValueAccessibility();
}

double QtOrvDoubleSpinBoxVal::doValidation(double value) const
{
    return snappedToGrid(value, minimum(), maximum(), singleStep());
}

bool QtOrvDoubleSpinBoxVal::isEntryGuarded() const
{
    return EntryGuard::of(this);
}

void QtOrvDoubleSpinBoxVal::setEntryGuarded(bool guarded)
{
    EntryGuard::setInstalled(this, guarded);
}

void QtOrvDoubleSpinBoxVal::setLineEditText(const QString &text)
{
    lineEdit()->setText(text);
}

void QtOrvDoubleSpinBoxVal::stepBy(int steps)
{
    setValue(value() + singleStep() * steps);
    selectAll(); // as the base class does
}

QValidator::State QtOrvDoubleSpinBoxVal::validate(QString &text, int &pos) const
{
    return BoxReading::validate(*this, text, pos);
}

void QtOrvDoubleSpinBoxVal::fixup(QString &text) const
{
    BoxReading::fixup(*this, text, prefix() + textFromValue(value()) + suffix());
}

double QtOrvDoubleSpinBoxVal::valueFromText(const QString &text) const
{
    return BoxReading::valueFromText(*this, text, prefix() + textFromValue(value()) + suffix());
}

void QtOrvDoubleSpinBoxVal::setValue(double value)
{
    if (!std::isnan(value))
        QDoubleSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvDoubleSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    if (singleStep() != 0 && BoxReading::setTypedNumber(this, *event, textFromValue(value())))
        event->accept();
    else
        QDoubleSpinBox::keyPressEvent(event);
}
