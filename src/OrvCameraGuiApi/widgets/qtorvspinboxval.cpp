#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <OrvCameraGuiApi/widgets/boxreading.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>
#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QKeyEvent>
#include <QLineEdit>

#include <limits>

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
    if (guarded)
        EntryGuard::install(this);
    else
        EntryGuard::remove(this);
}

void QtOrvSpinBoxVal::setLineEditText(const QString &text)
{
    lineEdit()->setText(text);
}

void QtOrvSpinBoxVal::stepBy(int steps)
{
    using Limits = std::numeric_limits<int>;
    const qint64 target = value() + qint64(singleStep()) * steps;
    setValue(int(qBound<qint64>(Limits::min(), target, Limits::max())));
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
    const bool isUntouched = text == prefix() + textFromValue(value()) + suffix();
    return isUntouched ? value() : BoxReading::valueFromText(*this, text);
}

void QtOrvSpinBoxVal::setValue(int value)
{
    QSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isWhole = prefix().isEmpty() && suffix().isEmpty();
    if (isReturn && isWhole && !m_validateTyping && !isReadOnly()) {
        // What shows the value is that, also in another base.
        const bool isUntouched = text() == textFromValue(value());
        const std::optional<int> number = isUntouched ? value() : NumberText::typedNumber(*this);
        if (number) {
            setValue(*number);
            event->accept();
            return;
        }
    }
    QSpinBox::keyPressEvent(event);
}
