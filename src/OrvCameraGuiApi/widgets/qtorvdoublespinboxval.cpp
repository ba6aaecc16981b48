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
    if (guarded)
        EntryGuard::install(this);
    else
        EntryGuard::remove(this);
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
    const bool isUntouched = text == prefix() + textFromValue(value()) + suffix();
    return isUntouched ? value() : BoxReading::valueFromText(*this, text);
}

void QtOrvDoubleSpinBoxVal::setValue(double value)
{
    if (!std::isnan(value))
        QDoubleSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvDoubleSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isWhole = prefix().isEmpty() && suffix().isEmpty();
    if (isReturn && isWhole && !m_validateTyping && !isReadOnly() && singleStep() != 0) {
        // What shows the value is that, also in another base.
        const bool isUntouched = text() == textFromValue(value());
        const std::optional<double> number = isUntouched ? value() : NumberText::typedNumber(*this);
        if (number) {
            setValue(*number);
            event->accept();
            return;
        }
    }
    QDoubleSpinBox::keyPressEvent(event);
}
