// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <OrvCameraGuiApi/widgets/boxreading.h>
#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>
#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QKeyEvent>
#include <QLineEdit>

QtOrvSpinBoxVal::QtOrvSpinBoxVal(QWidget *parent)
    : QSpinBox(parent)
{
    installValueAccessibility();
}

int QtOrvSpinBoxVal::doValidation(int value) const
{
    return snappedToGrid(value, minimum(), maximum(), singleStep());
}

bool QtOrvSpinBoxVal::isEntryGuarded() const
{
    return EntryGuard::of(this);
}

void QtOrvSpinBoxVal::setEntryGuarded(bool guarded)
{
    EntryGuard::setInstalled(this, guarded);
}

void QtOrvSpinBoxVal::setLineEditText(const QString &text)
{
    lineEdit()->setText(text);
}

void QtOrvSpinBoxVal::stepBy(int steps)
{
    const qint64 target = value() + qint64(singleStep()) * steps;
    setValue(Integers::clampedToInt(target));
    selectAll(); // as the base class does
}

QValidator::State QtOrvSpinBoxVal::validate(QString &text, int &pos) const
{
    return BoxReading::validate(*this, text, pos);
}

void QtOrvSpinBoxVal::fixup(QString &text) const
{
    BoxReading::fixup(*this, text, prefix() + textFromValue(value()) + suffix());
}

int QtOrvSpinBoxVal::valueFromText(const QString &text) const
{
    return BoxReading::valueFromText(*this, text, prefix() + textFromValue(value()) + suffix());
}

void QtOrvSpinBoxVal::setValue(int value)
{
    QSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    if (BoxReading::setTypedNumber(this, *event, textFromValue(value())))
        event->accept();
    else
        QSpinBox::keyPressEvent(event);
}
