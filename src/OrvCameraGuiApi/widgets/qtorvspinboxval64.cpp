#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/guardedfield.h>
#include <OrvCameraGuiApi/widgets/int64validator.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <QAccessible>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr long long Smallest = std::numeric_limits<long long>::min();
constexpr long long Largest = std::numeric_limits<long long>::max();

/** Where steps lead: the number, pinned to 64 bits, and on which side (-1 or 1) it would have left them, else 0. */
struct Target
{
    long long value;
    int overflow;
};

Target moved(long long from, int steps, long long singleStep)
{
    long long delta = 0;
    long long value = 0;
    if (!__builtin_mul_overflow(singleStep, steps, &delta) && !__builtin_add_overflow(from, delta, &value))
        return {value, 0};
    const bool upward = (steps < 0) == (singleStep < 0);
    return upward ? Target{Largest, 1} : Target{Smallest, -1};
}

bool isStepKey(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

class QtOrvSpinBoxVal64Private
{
public:
    /** Follows the box's own events for what starts and ends typing and stepping; consumes none of them. */
    class EventAnalyzer : public QObject
    {
    public:
        explicit EventAnalyzer(QtOrvSpinBoxVal64Private *d)
            : m_d(d)
        {
        }

        bool eventFilter(QObject *watched, QEvent *event) override;

    private:
        void keyPressed(const QKeyEvent *event);
        void keyReleased(const QKeyEvent *event);

        QtOrvSpinBoxVal64Private *const m_d;
    };

    /** The line edit's validator: refuses edits that would damage prefix or suffix and leaves the rest to the box. */
    class AffixGuard : public QValidator
    {
    public:
        explicit AffixGuard(const QtOrvSpinBoxVal64Private *d)
            : m_d(d)
        {
        }

        State validate(QString &text, int &pos) const override;

    private:
        const QtOrvSpinBoxVal64Private *const m_d;
        mutable bool m_wasOutside = false; ///< the last text let through is a number outside the range
    };

    /** What the box is for its EntryGuard. */
    class Field : public GuardedField
    {
    public:
        explicit Field(QtOrvSpinBoxVal64 *box)
            : m_d(box->d.data())
        {
        }

        Entry entry() const override;
        bool commit() override;
        void restore() override { m_d->show(m_d->value); }
        bool commitsOnLeaving() const override { return m_d->q->keyboardTracking() || !m_d->ignoreFocusOut; }
        int numberStart() const override { return m_d->prefix.size(); }
        int numberEnd() const override { return m_d->numberEnd(); }
        int base() const override { return m_d->displayIntegerBase; }
        bool hasExponent() const override { return false; }
        QString minimumText() const override { return m_d->displayText(m_d->minimum); }
        QString maximumText() const override { return m_d->displayText(m_d->maximum); }
        void whenChanged(QObject *context, const std::function<void()> &slot) const override;

    private:
        QtOrvSpinBoxVal64Private *const m_d;
    };

    explicit QtOrvSpinBoxVal64Private(QtOrvSpinBoxVal64 *owner);
    void init();

    QLineEdit *edit() const { return q->lineEdit(); }
    const Int64Validator &localizedValidator();

    QString displayText(long long number) const;
    QString numberPart(const QString &text) const;
    QString ungrouped(QString number) const;
    std::optional<long long> shownNumber();
    bool hasAffixes(const QString &text) const;
    int numberEnd() const;

    bool isInRange(long long number) const { return minimum <= number && number <= maximum; }
    long long wrapped(const Target &target) const;
    long long snapped(long long number) const;

    void show(long long number);
    void refresh();
    void commit(long long number);
    void accept(long long number);
    void recommit();
    void commitText(bool discard);

    void startHolding();
    void stopHolding();
    void focusLost();
    void stepPending(const Target &target);
    void stepValue(const Target &target);

    void applyRange(long long bottom, long long top);
    void invalidateSizeHints();
    const QSize &sizeHint(QSize &cached) const;
    QSize measuredSize() const;

    void onTextEdited();
    void keepCursorInNumber(int oldPosition, int newPosition);
    void keepSelectionInNumber();

    QString prefix;
    QString suffix;
    long long minimum = 0;
    long long maximum = 99;
    long long singleStep = 1;
    long long value = 0;
    long long pendingValue = 0; ///< what the box shows: the value, or the steps of a held button that are not committed
    int displayIntegerBase = 10;
    bool selectWhenStepping = true;
    bool validateStepping = false;
    bool ignoreFocusOut = true;
    bool buttonHeld = false; ///< a step button or step key is down
    bool edited = false; ///< text was typed and not yet committed
    bool buttonTracking = true;
    Int64Validator validator;
    QSize cachedSizeHint;
    QSize cachedMinimumSizeHint;
    QtOrvSpinBoxVal64 *const q;

    QString shownText; ///< what stood in the line edit for pendingValue when the box last wrote it
    EventAnalyzer eventAnalyzer;
    AffixGuard affixGuard;
};

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

/** A widget is not told when its group separators are switched, so the validator gets the locale when it is asked. */
const Int64Validator &QtOrvSpinBoxVal64Private::localizedValidator()
{
    validator.setLocale(NumberText::localeOf(*q));
    return validator;
}

QString QtOrvSpinBoxVal64Private::displayText(long long number) const
{
    return prefix + q->textFromValue(number) + suffix;
}

/** Cut out by length: any text may come here, also one shorter than prefix and suffix, which leaves nothing. */
QString QtOrvSpinBoxVal64Private::numberPart(const QString &text) const
{
    return text.mid(prefix.size(), qMax(0, text.size() - prefix.size() - suffix.size()));
}

/** Separators of a box that shows them fall in place later: while the text is edited they may stand anywhere. */
QString QtOrvSpinBoxVal64Private::ungrouped(QString number) const
{
    const QLocale locale = NumberText::localeOf(*q);
    if (displayIntegerBase == 10 && NumberText::hasGroups(locale))
        number.remove(locale.groupSeparator());
    return number;
}

/** The number of the range that stands in the box. */
std::optional<long long> QtOrvSpinBoxVal64Private::shownNumber()
{
    const QString text = edit()->text();
    bool isNumber = true;
    long long number = pendingValue;
    // A text that nobody touched is not read back: it may be from before a change of the base.
    if (edited || text != shownText) {
        number = localizedValidator().toInt64(ungrouped(numberPart(text)), &isNumber);
        isNumber = isNumber && hasAffixes(text);
    }
    return isNumber && isInRange(number) ? std::optional<long long>(number) : std::nullopt;
}

bool QtOrvSpinBoxVal64Private::hasAffixes(const QString &text) const
{
    return text.size() >= prefix.size() + suffix.size() && text.startsWith(prefix) && text.endsWith(suffix);
}

/** Cursor position behind the last character of the number on show. */
int QtOrvSpinBoxVal64Private::numberEnd() const
{
    return edit()->displayText().size() - suffix.size();
}

long long QtOrvSpinBoxVal64Private::wrapped(const Target &target) const
{
    if (target.overflow < 0 || target.value < minimum)
        return maximum;
    return target.overflow > 0 || target.value > maximum ? minimum : target.value;
}

/** \a number, which lies in the range, moved to the nearest grid point. Unsigned, as a range can span all 64 bits. */
long long QtOrvSpinBoxVal64Private::snapped(long long number) const
{
    if (!validateStepping || singleStep <= 0 || number == minimum || number == maximum)
        return number;
    const auto step = static_cast<quint64>(singleStep);
    const quint64 excess = (static_cast<quint64>(number) - static_cast<quint64>(minimum)) % step;
    if (excess == 0)
        return number;
    if (excess < step / 2)
        return number - static_cast<long long>(excess);
    const quint64 room = static_cast<quint64>(maximum) - static_cast<quint64>(number);
    return step - excess < room ? number + static_cast<long long>(step - excess) : maximum;
}

/** Puts \a number in the place of whatever was shown or typed. */
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

/** Makes up an untouched text anew where the base or the group separators have changed since. */
void QtOrvSpinBoxVal64Private::refresh()
{
    if (edited || edit()->text() != shownText || displayText(pendingValue) == shownText)
        return;
    const bool wasSelected = edit()->hasSelectedText();
    show(pendingValue);
    if (wasSelected)
        q->selectAll();
}

void QtOrvSpinBoxVal64Private::commit(long long number)
{
    if (isInRange(number))
        accept(number);
}

void QtOrvSpinBoxVal64Private::accept(long long number)
{
    number = snapped(number);
    show(number);
    if (number == value)
        return;
    value = number;
    q->update();
    QAccessibleValueChangeEvent valueEvent(q, value);
    QAccessible::updateAccessibility(&valueEvent);

    const QString text = shownText;
    Q_EMIT q->valueChanged(number);
    if (value == number) // else a slot has set another value, which is announced already
        Q_EMIT q->valueChanged(text);
}

/** The display text is made up anew, also for a value that a new range has left outside. */
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

void QtOrvSpinBoxVal64Private::startHolding()
{
    if (edited && !q->keyboardTracking())
        commitText(ignoreFocusOut);
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
    if (edited && !q->keyboardTracking())
        commitText(ignoreFocusOut);
    // The release goes to whoever has the focus then, so the matching one may never come.
    stopHolding();
}

/** Without wrapping the shown number may leave the range, intentionally: its commit is then refused. */
void QtOrvSpinBoxVal64Private::stepPending(const Target &target)
{
    show(q->wrapping() ? wrapped(target) : target.value);
}

void QtOrvSpinBoxVal64Private::stepValue(const Target &target)
{
    if (q->wrapping())
        accept(wrapped(target));
    else if (target.overflow == 0)
        commit(target.value); // a step beyond a bound is dropped, it does not end there, intentionally
}

void QtOrvSpinBoxVal64Private::applyRange(long long bottom, long long top)
{
    minimum = bottom;
    maximum = qMax(bottom, top);
    validator.setRange(bottom, top);
    invalidateSizeHints();
    q->update();
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
    constexpr int longestNumber = 20; // characters; more than that scrolls
    constexpr int cursorWidth = 2; // pixels

    q->ensurePolished();
    const QFontMetrics metrics(q->fontMetrics());
    const QString fixedPart = prefix + suffix + QLatin1Char(' ');
    int width = 0;
    for (const long long bound : {minimum, maximum})
        width = qMax(width, metrics.horizontalAdvance(q->textFromValue(bound).left(longestNumber) + fixedPart));
    if (!q->specialValueText().isEmpty())
        width = qMax(width, metrics.horizontalAdvance(q->specialValueText() + fixedPart));

    QStyleOptionSpinBox option;
    q->initStyleOption(&option);
    // The application's global strut is left out: Qt has deprecated it, and it is empty unless someone sets it.
    const QSize contents(width + cursorWidth, edit()->sizeHint().height());
    return q->style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, q);
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
        edit()->setCursorPosition(qMax(prefix.size(), numberEnd() - behindCursor));
}

/** The two ends are handled differently, intentionally: back to the old place before the number, to its end behind. */
void QtOrvSpinBoxVal64Private::keepCursorInNumber(int oldPosition, int newPosition)
{
    const int end = numberEnd();
    if (end < prefix.size())
        return; // a text from elsewhere, without room for a number
    if (newPosition < prefix.size())
        edit()->setCursorPosition(qBound(prefix.size(), oldPosition, end));
    else if (newPosition > end)
        edit()->setCursorPosition(end);
}

/** Whatever selects text (mouse, keys, menu, the base class when focus comes by Tab) selects of the number only. */
void QtOrvSpinBoxVal64Private::keepSelectionInNumber()
{
    const int end = numberEnd();
    if (!edit()->hasSelectedText() || end < prefix.size())
        return;
    const int first = qBound(prefix.size(), edit()->selectionStart(), end);
    const int last = qBound(prefix.size(), edit()->selectionEnd(), end);
    if (first == edit()->selectionStart() && last == edit()->selectionEnd())
        return;
    const bool cursorFirst = edit()->cursorPosition() == edit()->selectionStart();
    if (cursorFirst)
        edit()->setSelection(last, first - last);
    else
        edit()->setSelection(first, last - first);
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
        keyPressed(static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease:
        keyReleased(static_cast<QKeyEvent *>(event));
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

void QtOrvSpinBoxVal64Private::EventAnalyzer::keyPressed(const QKeyEvent *event)
{
    m_d->refresh();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_d->commitText(false);
    else if (isStepKey(event->key()) && !event->isAutoRepeat())
        m_d->startHolding();
}

void QtOrvSpinBoxVal64Private::EventAnalyzer::keyReleased(const QKeyEvent *event)
{
    if (isStepKey(event->key()) && !event->isAutoRepeat())
        m_d->stopHolding();
}

QValidator::State QtOrvSpinBoxVal64Private::AffixGuard::validate(QString &text, int &pos) const
{
    if (!m_d->hasAffixes(text))
        return Invalid;
    State state = m_d->q->validate(text, pos);
    bool isOutside = false;
    // A value that a new range has left outside is shown, and edited digit by digit. Were it Invalid, the line edit
    // would let everything pass from then on.
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
    bool isAnnounced = false;
    QObject context;
    whenChanged(&context, [&isAnnounced] { isAnnounced = true; });
    m_d->commitText(false);
    return isAnnounced;
}

void QtOrvSpinBoxVal64Private::Field::whenChanged(QObject *context, const std::function<void()> &slot) const
{
    QObject::connect(m_d->q, QOverload<long long>::of(&QtOrvSpinBoxVal64::valueChanged), context, slot);
}

std::unique_ptr<GuardedField> makeGuardedField(QtOrvSpinBoxVal64 *box)
{
    return std::make_unique<QtOrvSpinBoxVal64Private::Field>(box);
}

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
    if (guarded)
        EntryGuard::install(this);
    else
        EntryGuard::remove(this);
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
    const bool pending = d->buttonHeld && !d->buttonTracking;
    const Target target = moved(pending ? d->pendingValue : d->value, steps, d->singleStep);
    if (pending)
        d->stepPending(target);
    else
        d->stepValue(target);
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
    const int end = d->numberEnd();
    if (end >= d->prefix.size())
        lineEdit()->setSelection(end, d->prefix.size() - end);
}

void QtOrvSpinBoxVal64::clear()
{
    lineEdit()->setText(d->prefix + d->suffix);
    lineEdit()->setCursorPosition(d->prefix.size());
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
