#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>

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
    const QValidator::State state = QDoubleSpinBox::validate(text, pos);
    return m_validateTyping ? state : qMin(state, QValidator::Intermediate);
}

void QtOrvDoubleSpinBoxVal::setValue(double value)
{
    if (!std::isnan(value))
        QDoubleSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvDoubleSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool commits = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (commits && !m_validateTyping && !isReadOnly() && singleStep() != 0) {
        bool isNumber = false;
        const double number = lineEdit()->text().toDouble(&isNumber);
        if (isNumber && !std::isnan(number)) {
            setValue(number);
            event->accept();
            return;
        }
    }
    QDoubleSpinBox::keyPressEvent(event);
}
