// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/qtorvspinboxval64private.h>

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/keys.h>
#include <OrvCameraGuiApi/widgets/localesigns.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>

#include <QAccessible>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QStyle>
#include <QStyleOptionSpinBox>

QtOrvSpinBoxVal64Private::QtOrvSpinBoxVal64Private(QtOrvSpinBoxVal64 *owner)
    : validator(minimum, maximum)
    , q(owner)
    , eventAnalyzer(this)
    , affixGuard(this)
{
}

void QtOrvSpinBoxVal64Private::init()
{
    validator.setBase(displayIntegerBase);
    q->installEventFilter(&eventAnalyzer);
    edit()->setValidator(&affixGuard);
    show(value);

    QObject::connect(edit(), &QLineEdit::textEdited, &eventAnalyzer, [this] { onTextEdited(); });
    QObject::connect(edit(), &QLineEdit::selectionChanged, &eventAnalyzer, [this] { keepSelectionInNumber(); });
    QObject::connect(edit(), &QLineEdit::cursorPositionChanged, &eventAnalyzer,
                     [this](int oldPosition, int newPosition) { keepCursorInNumber(oldPosition, newPosition); });
}

QString QtOrvSpinBoxVal64Private::displayText(long long number) const
{
    return prefix + q->textFromValue(number) + suffix;
}

/** Cut out by length, from any text; a text shorter than prefix and suffix has no number. */
QString QtOrvSpinBoxVal64Private::numberPart(const QString &text) const
{
    return text.mid(prefix.size(), qMax(0, text.size() - prefix.size() - suffix.size()));
}

/** While a text is edited its group separators may stand anywhere; they fall in place with the next commit. */
QString QtOrvSpinBoxVal64Private::ungrouped(QString number) const
{
    const QLocale locale = NumberText::localeOf(*q);
    if (displayIntegerBase == 10 && NumberText::hasGroups(locale))
        number.remove(LocaleSigns::sole(locale.groupSeparator()));
    return number;
}

bool QtOrvSpinBoxVal64Private::hasAffixes(const QString &text) const
{
    return text.size() >= prefix.size() + suffix.size() && text.startsWith(prefix) && text.endsWith(suffix);
}

/** Less than numberStart() for a text that has no room for a number. */
int QtOrvSpinBoxVal64Private::numberEnd() const
{
    return int(edit()->displayText().size() - suffix.size());
}

/** The validator gets the locale when it is asked: no event reports that group separators were switched. */
const Int64Validator &QtOrvSpinBoxVal64Private::localizedValidator()
{
    validator.setLocale(NumberText::localeOf(*q));
    return validator;
}

/** The number in the line edit, if it lies in the range. */
std::optional<long long> QtOrvSpinBoxVal64Private::shownNumber()
{
    const QString text = edit()->text();
    bool isNumber = true;
    long long number = pendingValue;
    // An untouched text is not read back: it may be from before a change of the base.
    if (edited || text != shownText) {
        number = localizedValidator().toInt64(ungrouped(numberPart(text)), &isNumber);
        isNumber = isNumber && hasAffixes(text);
    }
    return isNumber && isInRange(number) ? std::optional<long long>(number) : std::nullopt;
}

/** Replaces whatever was shown or typed. */
void QtOrvSpinBoxVal64Private::show(long long number)
{
    pendingValue = number;
    edited = false;
    shownText = displayText(number);
    if (edit()->text() == shownText)
        return; // the cursor stays where the user types, and typing can be undone
    edit()->setText(shownText);
    edit()->setCursorPosition(numberEnd());
}

/** Brings an untouched text up to date with the base and the group separators. */
void QtOrvSpinBoxVal64Private::refresh()
{
    if (edited || edit()->text() != shownText || displayText(pendingValue) == shownText)
        return;
    const bool wasSelected = edit()->hasSelectedText();
    show(pendingValue);
    if (wasSelected)
        q->selectAll();
}

void QtOrvSpinBoxVal64Private::onTextEdited()
{
    edited = true;
    if (!q->keyboardTracking())
        return;
    const EntryGuard *const guard = EntryGuard::of(q);
    if (guard && (guard->isBlocked() || !shownNumber()))
        return; // waits to be put right or completed
    const QString typed = edit()->text();
    const int behindCursor = numberEnd() - edit()->cursorPosition();
    commitText(false);
    if (edit()->text() != typed) // group separators fell in place: the cursor stays before the same digits
        edit()->setCursorPosition(qMax(numberStart(), numberEnd() - behindCursor));
}

/** Before the number the cursor goes back to its old place, behind the number to the number's end, intentionally. */
void QtOrvSpinBoxVal64Private::keepCursorInNumber(int oldPosition, int newPosition)
{
    const int end = numberEnd();
    if (end < numberStart())
        return;
    if (newPosition < numberStart())
        edit()->setCursorPosition(qBound(numberStart(), oldPosition, end));
    else if (newPosition > end)
        edit()->setCursorPosition(end);
}

/** Mouse, keys, menu and the base class (when focus comes by Tab) may select the affixes, too. */
void QtOrvSpinBoxVal64Private::keepSelectionInNumber()
{
    const int end = numberEnd();
    if (!edit()->hasSelectedText() || end < numberStart())
        return;
    const int first = qBound(numberStart(), edit()->selectionStart(), end);
    const int last = qBound(numberStart(), edit()->selectionEnd(), end);
    if (first == edit()->selectionStart() && last == edit()->selectionEnd())
        return;
    const bool cursorFirst = edit()->cursorPosition() == edit()->selectionStart();
    if (cursorFirst)
        edit()->setSelection(last, first - last);
    else
        edit()->setSelection(first, last - first);
}

void QtOrvSpinBoxVal64Private::applyRange(long long bottom, long long top)
{
    minimum = bottom;
    maximum = qMax(bottom, top);
    validator.setRange(bottom, top);
    invalidateSizeHints();
    q->update();
}

void QtOrvSpinBoxVal64Private::commit(long long number)
{
    if (isInRange(number))
        accept(number);
}

/** Commits \a number, which lies in the range. */
void QtOrvSpinBoxVal64Private::accept(long long number)
{
    if (validateStepping)
        number = snappedToGrid(number, minimum, maximum, singleStep);
    show(number);
    if (number == value)
        return;
    value = number;
    announce();
}

void QtOrvSpinBoxVal64Private::announce()
{
    q->update();
    QAccessibleValueChangeEvent valueEvent(q, value);
    QAccessible::updateAccessibility(&valueEvent);

    const long long number = value;
    const QString text = shownText;
    Q_EMIT q->valueChanged(number);
    if (value == number) // else a slot has set another value, which is announced already
        Q_EMIT q->valueChanged(text);
}

/** Rebuilds the display text, also of a value that a new range has left outside. */
void QtOrvSpinBoxVal64Private::recommit()
{
    if (isInRange(value))
        accept(value);
    else
        show(value);
    invalidateSizeHints();
}

void QtOrvSpinBoxVal64Private::commitText(bool discard)
{
    const std::optional<long long> number = discard ? std::nullopt : shownNumber();
    if (number)
        accept(*number);
    else
        show(value);
}

/** The focus, the mouse or a step key ends the typing that waits. */
void QtOrvSpinBoxVal64Private::endTyping()
{
    if (edited && !q->keyboardTracking())
        commitText(ignoreFocusOut);
}

void QtOrvSpinBoxVal64Private::stepBy(int steps)
{
    const bool isPending = buttonHeld && !buttonTracking;
    const StepTarget target = stepped(isPending ? pendingValue : value, steps, singleStep);
    if (isPending) // without wrapping the shown number may leave the range, intentionally: its commit is then refused
        show(q->wrapping() ? target.wrapped(minimum, maximum) : target.value);
    else if (q->wrapping())
        accept(target.wrapped(minimum, maximum));
    else if (target.overflow == 0)
        commit(target.value); // a step beyond a bound is dropped, it does not end there, intentionally
}

void QtOrvSpinBoxVal64Private::startHolding()
{
    endTyping();
    buttonHeld = true;
}

void QtOrvSpinBoxVal64Private::stopHolding()
{
    if (!buttonHeld)
        return;
    buttonHeld = false;
    if (buttonTracking)
        return;
    commit(pendingValue); // refused outside the range; the shown number then stays, intentionally
    if (pendingValue != value && EntryGuard::of(q))
        show(value);
}

void QtOrvSpinBoxVal64Private::focusLost()
{
    endTyping();
    stopHolding(); // the widget with the focus gets the release: this box may never see it
}

void QtOrvSpinBoxVal64Private::invalidateSizeHints()
{
    cachedSizeHint = QSize();
    cachedMinimumSizeHint = QSize();
    q->updateGeometry();
}

const QSize &QtOrvSpinBoxVal64Private::sizeHint(QSize &cached) const
{
    if (cached.isEmpty())
        cached = measuredSize();
    return cached;
}

QSize QtOrvSpinBoxVal64Private::measuredSize() const
{
    constexpr int cursorWidth = 2; // pixels
    q->ensurePolished();
    QStyleOptionSpinBox option;
    q->initStyleOption(&option);
    // The application's global strut is left out: Qt has deprecated it, and it is empty unless someone sets it.
    const QSize contents(widestText() + cursorWidth, edit()->sizeHint().height());
    return q->style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, q);
}

/** In pixels. */
int QtOrvSpinBoxVal64Private::widestText() const
{
    constexpr int longestNumber = 20; // characters; a longer one scrolls
    const QFontMetrics metrics(q->fontMetrics());
    const QString fixedPart = prefix + suffix + QLatin1Char(' ');
    int width = 0;
    for (const long long bound : {minimum, maximum})
        width = qMax(width, metrics.horizontalAdvance(q->textFromValue(bound).left(longestNumber) + fixedPart));
    if (!q->specialValueText().isEmpty())
        width = qMax(width, metrics.horizontalAdvance(q->specialValueText() + fixedPart));
    return width;
}

bool QtOrvSpinBoxVal64Private::EventAnalyzer::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Paint:
        m_d->refresh();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the second press of two quick ones
        m_d->startHolding();
        break;
    case QEvent::MouseButtonRelease:
        m_d->stopHolding();
        break;
    case QEvent::KeyPress:
        keyPressed(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease:
        keyReleased(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::FocusIn:
        m_d->refresh();
        if (m_d->selectWhenStepping)
            m_d->q->selectAll();
        break;
    case QEvent::FocusOut:
        m_d->focusLost();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void QtOrvSpinBoxVal64Private::EventAnalyzer::keyPressed(const QKeyEvent &event)
{
    m_d->refresh();
    if (Keys::isReturn(event))
        m_d->commitText(false);
    else if (Keys::isStep(event) && !event.isAutoRepeat())
        m_d->startHolding();
}

void QtOrvSpinBoxVal64Private::EventAnalyzer::keyReleased(const QKeyEvent &event)
{
    if (Keys::isStep(event) && !event.isAutoRepeat())
        m_d->stopHolding();
}

/**
 * A value that a new range has left outside is shown, and can be edited digit by digit. Were it Invalid, the line edit
 * would let everything pass from then on.
 */
QValidator::State QtOrvSpinBoxVal64Private::AffixGuard::validate(QString &text, int &pos) const
{
    if (!m_d->hasAffixes(text))
        return Invalid;
    State state = m_d->q->validate(text, pos);
    bool isOutside = false;
    if (state == Invalid && (m_wasOutside || text == m_d->shownText)) {
        m_d->validator.toInt64(m_d->ungrouped(m_d->numberPart(text)), &isOutside);
        state = isOutside || text == m_d->shownText ? Intermediate : Invalid;
    }
    if (state != Invalid)
        m_wasOutside = isOutside;
    return state;
}

GuardedField::Entry QtOrvSpinBoxVal64Private::Field::entry() const
{
    if (m_d->numberPart(m_d->edit()->text()).isEmpty())
        return Entry::Nothing;
    return m_d->shownNumber() ? Entry::Number : Entry::NoNumber;
}

bool QtOrvSpinBoxVal64Private::Field::commit()
{
    return isAnnouncedBy([this] { m_d->commitText(false); });
}

void QtOrvSpinBoxVal64Private::Field::whenChanged(QObject *context, const std::function<void()> &slot) const
{
    QObject::connect(m_d->q, QOverload<long long>::of(&QtOrvSpinBoxVal64::valueChanged), context, slot);
}

std::unique_ptr<GuardedField> makeGuardedField(QtOrvSpinBoxVal64 *box)
{
    return std::make_unique<QtOrvSpinBoxVal64Private::Field>(box);
}
