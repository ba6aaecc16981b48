#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

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
    const QValidator::State state = QSpinBox::validate(text, pos);
    return m_validateTyping ? state : qMin(state, QValidator::Intermediate);
}

void QtOrvSpinBoxVal::setValue(int value)
{
    QSpinBox::setValue(m_validate ? doValidation(value) : value);
}

void QtOrvSpinBoxVal::keyPressEvent(QKeyEvent *event)
{
    const bool commits = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (commits && !m_validateTyping && !isReadOnly()) {
        bool isNumber = false;
        const int number = lineEdit()->text().toInt(&isNumber, 10);
        if (isNumber) {
            setValue(number);
            event->accept();
            return;
        }
    }
    QSpinBox::keyPressEvent(event);
}
