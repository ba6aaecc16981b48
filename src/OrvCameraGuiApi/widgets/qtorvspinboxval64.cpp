// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64private.h>
#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QEvent>
#include <QLineEdit>
#include <QLocale>

#include <utility>

QtOrvSpinBoxVal64::QtOrvSpinBoxVal64(QWidget *parent)
    : QAbstractSpinBox(parent)
    , d(new QtOrvSpinBoxVal64Private(this))
{
    installValueAccessibility();
    d->init();
}

QtOrvSpinBoxVal64::~QtOrvSpinBoxVal64() = default;

long long QtOrvSpinBoxVal64::value() const
{
    return d->value;
}

void QtOrvSpinBoxVal64::setValue(long long value)
{
    d->commit(value);
}

QString QtOrvSpinBoxVal64::prefix() const
{
    return d->prefix;
}

void QtOrvSpinBoxVal64::setPrefix(const QString &prefix)
{
    setPrefix(QString(prefix));
}

void QtOrvSpinBoxVal64::setPrefix(QString &&prefix)
{
    d->prefix = std::move(prefix);
    d->recommit();
}

QString QtOrvSpinBoxVal64::suffix() const
{
    return d->suffix;
}

void QtOrvSpinBoxVal64::setSuffix(const QString &suffix)
{
    setSuffix(QString(suffix));
}

void QtOrvSpinBoxVal64::setSuffix(QString &&suffix)
{
    d->suffix = std::move(suffix);
    d->recommit();
}

QString QtOrvSpinBoxVal64::cleanText() const
{
    return QString::number(d->value);
}

long long QtOrvSpinBoxVal64::singleStep() const
{
    return d->singleStep;
}

void QtOrvSpinBoxVal64::setSingleStep(long long step)
{
    d->singleStep = step;
}

long long QtOrvSpinBoxVal64::minimum() const
{
    return d->minimum;
}

void QtOrvSpinBoxVal64::setMinimum(long long minimum)
{
    d->applyRange(minimum, qMax(minimum, d->maximum));
}

long long QtOrvSpinBoxVal64::maximum() const
{
    return d->maximum;
}

void QtOrvSpinBoxVal64::setMaximum(long long maximum)
{
    d->applyRange(qMin(d->minimum, maximum), maximum);
}

void QtOrvSpinBoxVal64::setRange(long long minimum, long long maximum)
{
    d->applyRange(minimum, maximum);
}

int QtOrvSpinBoxVal64::displayIntegerBase() const
{
    return d->displayIntegerBase;
}

void QtOrvSpinBoxVal64::setDisplayIntegerBase(int base)
{
    d->validator.setBase(base);
    d->displayIntegerBase = d->validator.base(); // the former one if it could not be used
    update();
}

bool QtOrvSpinBoxVal64::selectWhenStepping() const
{
    return d->selectWhenStepping;
}

void QtOrvSpinBoxVal64::setSelectWhenStepping(bool select)
{
    d->selectWhenStepping = select;
}

bool QtOrvSpinBoxVal64::ignoreFocusOut() const
{
    return d->ignoreFocusOut;
}

void QtOrvSpinBoxVal64::setIgnoreFocusOut(bool ignore)
{
    d->ignoreFocusOut = ignore;
}

bool QtOrvSpinBoxVal64::validateStepping() const
{
    return d->validateStepping;
}

void QtOrvSpinBoxVal64::setValidateStepping(bool validate)
{
    d->validateStepping = validate;
}

bool QtOrvSpinBoxVal64::buttonTracking() const
{
    return d->buttonTracking;
}

void QtOrvSpinBoxVal64::setButtonTracking(bool track)
{
    d->buttonTracking = track;
}

bool QtOrvSpinBoxVal64::isEntryGuarded() const
{
    return EntryGuard::of(this);
}

void QtOrvSpinBoxVal64::setEntryGuarded(bool guarded)
{
    EntryGuard::setInstalled(this, guarded);
}

QSize QtOrvSpinBoxVal64::sizeHint() const
{
    return d->sizeHint(d->cachedSizeHint);
}

QSize QtOrvSpinBoxVal64::minimumSizeHint() const
{
    return d->sizeHint(d->cachedMinimumSizeHint);
}

QValidator::State QtOrvSpinBoxVal64::validate(QString &text, int &pos) const
{
    QString number = d->ungrouped(d->numberPart(text));
    return d->localizedValidator().validate(number, pos);
}

void QtOrvSpinBoxVal64::fixup(QString &text) const
{
    Q_UNUSED(text)
}

void QtOrvSpinBoxVal64::stepBy(int steps)
{
    d->stepBy(steps);
    if (d->selectWhenStepping)
        selectAll();
    update();
}

QAbstractSpinBox::StepEnabled QtOrvSpinBoxVal64::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    if (wrapping())
        return StepUpEnabled | StepDownEnabled;
    StepEnabled enabled = StepNone;
    if (d->value > d->minimum)
        enabled |= StepDownEnabled;
    if (d->value < d->maximum)
        enabled |= StepUpEnabled;
    return enabled;
}

QString QtOrvSpinBoxVal64::textFromValue(long long value) const
{
    if (d->displayIntegerBase == 10)
        return NumberText::localeOf(*this).toString(value);
    // Negated without a sign: the smallest 64-bit integer has no positive counterpart.
    const auto bits = static_cast<quint64>(value);
    const QString digits = QString::number(value < 0 ? 0 - bits : bits, d->displayIntegerBase);
    return value < 0 ? QLatin1Char('-') + digits : digits;
}

long long QtOrvSpinBoxVal64::valueFromText(const QString &text) const
{
    QString number = d->ungrouped(d->numberPart(text));
    int pos = 0;
    const Int64Validator &validator = d->localizedValidator();
    return validator.validate(number, pos) == QValidator::Acceptable ? validator.toInt64(number) : d->minimum;
}

void QtOrvSpinBoxVal64::selectAll()
{
    const int start = d->numberStart();
    const int end = d->numberEnd();
    if (end >= start)
        lineEdit()->setSelection(end, start - end);
}

void QtOrvSpinBoxVal64::clear()
{
    lineEdit()->setText(d->prefix + d->suffix);
    lineEdit()->setCursorPosition(d->numberStart());
}

void QtOrvSpinBoxVal64::interpretText()
{
    if (EntryGuard *const guard = EntryGuard::of(this))
        guard->commit();
    else if (d->edited || lineEdit()->text() != d->shownText)
        d->commitText(false);
}

void QtOrvSpinBoxVal64::changeEvent(QEvent *event)
{
    QAbstractSpinBox::changeEvent(event);
    switch (event->type()) {
    case QEvent::LocaleChange:
        if (!d->edited)
            d->show(d->pendingValue);
        d->invalidateSizeHints();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->invalidateSizeHints();
        break;
    default:
        break;
    }
}
