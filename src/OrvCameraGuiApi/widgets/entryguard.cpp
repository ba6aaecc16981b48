#include <OrvCameraGuiApi/widgets/entryguard.h>

#include <OrvCameraGuiApi/widgets/guardedfield.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

/** Judges what is typed into a box of Qt's own. */
class PlainBoxValidator : public QValidator
{
public:
    explicit PlainBoxValidator(QAbstractSpinBox *box)
        : QValidator(box)
        , m_box(box)
    {
    }

    State validate(QString &text, int &pos) const override
    {
        if (const auto *const doubles = qobject_cast<const QDoubleSpinBox *>(m_box))
            return NumberText::judge(*doubles, text, pos);
        const auto *const wholes = qobject_cast<const QSpinBox *>(m_box);
        return wholes ? NumberText::judge(*wholes, text, pos) : Acceptable;
    }

private:
    const QAbstractSpinBox *const m_box;
};

bool readsByItself(const QAbstractSpinBox *box)
{
    const bool isQts = qobject_cast<const QSpinBox *>(box) || qobject_cast<const QDoubleSpinBox *>(box);
    return !isQts || qobject_cast<const QtOrvSpinBoxVal *>(box) || qobject_cast<const QtOrvDoubleSpinBoxVal *>(box);
}

bool isReturn(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

bool isStep(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

bool isDeletion(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
}

/** By the rule of a line edit: with Ctrl and Alt, which are AltGr, a key types as well. */
bool isCharacter(const QKeyEvent *event)
{
    const bool isCommand = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
    return !isCommand && !event->text().isEmpty() && event->text().at(0).isPrint();
}

bool isSelecting(const QKeyEvent *event)
{
    if (event->matches(QKeySequence::SelectAll))
        return true;
    const bool moves = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right || event->key() == Qt::Key_Home
        || event->key() == Qt::Key_End;
    return moves && (event->modifiers() & Qt::ShiftModifier);
}

/** What an edit of the text may come of. */
bool isInput(QEvent::Type type)
{
    return type == QEvent::KeyPress || type == QEvent::InputMethod || type == QEvent::ContextMenu
        || type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease;
}

/** Whether \a text is \a former but for one piece that was taken away. */
bool isShortened(const QString &former, const QString &text)
{
    if (text.size() >= former.size())
        return false;
    int same = 0;
    while (same < text.size() && text.at(same) == former.at(same))
        ++same;
    return former.endsWith(text.midRef(same));
}

/** A unit is whatever the camera says. */
QString asPlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

} // namespace

EntryGuard *EntryGuard::of(const QAbstractSpinBox *box)
{
    return box ? box->findChild<EntryGuard *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

EntryGuard *EntryGuard::install(QAbstractSpinBox *box)
{
    EntryGuard *const guard = of(box);
    if (guard || !box)
        return guard;
    std::unique_ptr<GuardedField> field = makeGuardedField(box);
    return field ? new EntryGuard(box, std::move(field)) : nullptr;
}

void EntryGuard::remove(QAbstractSpinBox *box)
{
    EntryGuard *const guard = of(box);
    if (!guard)
        return;
    guard->withdrawLimits();
    guard->handBackReading();
    if (box->focusPolicy() == Qt::StrongFocus)
        box->setFocusPolicy(guard->m_formerPolicy);
    delete guard;
}

EntryGuard::EntryGuard(QAbstractSpinBox *box, std::unique_ptr<GuardedField> field)
    : QObject(box)
    , m_box(box)
    , m_edit(box->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly))
    , m_field(std::move(field))
    , m_formerPolicy(box->focusPolicy())
{
    if (!readsByItself(box))
        takeOverReading();
    box->setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus
    box->installEventFilter(this);
    m_edit->installEventFilter(this);
    m_hadSelection = m_edit->hasSelectedText();
    connect(m_edit, &QLineEdit::textEdited, this, &EntryGuard::onTextEdited);
    connect(m_edit, &QLineEdit::inputRejected, this, &EntryGuard::onInputRejected);
    // Of an edit this comes last: what it says before is what was selected when the edit began.
    connect(m_edit, &QLineEdit::selectionChanged, this, [this] { m_hadSelection = m_edit->hasSelectedText(); });
    m_field->whenChanged(this, [this] { onValueChanged(); });
}

EntryGuard::~EntryGuard() = default;

void EntryGuard::takeOverReading()
{
    m_formerValidator = m_edit->validator();
    m_validator = new PlainBoxValidator(m_box);
    m_edit->setValidator(m_validator);
    m_hadTracking = m_box->keyboardTracking();
    m_box->setKeyboardTracking(false);
}

void EntryGuard::handBackReading()
{
    if (!m_validator)
        return;
    if (m_edit && m_edit->validator() == m_validator)
        m_edit->setValidator(m_formerValidator);
    delete m_validator;
    m_box->setKeyboardTracking(m_hadTracking);
}

bool EntryGuard::isTouched() const
{
    // A text that is not the typed one was put there by the program.
    return m_isTouched && m_edit && m_edit->text() == m_typedText;
}

bool EntryGuard::commit()
{
    if (m_isBlocked || !isTouched())
        return false;
    const GuardedField::Entry entry = m_field->entry();
    if (entry != GuardedField::Entry::Number) {
        drop();
        if (entry == GuardedField::Entry::NoNumber)
            tellLimits();
        return false;
    }
    withdrawLimits();
    m_isTouched = false;
    m_typedText.clear();
    const QPointer<EntryGuard> alive(this);
    if (!m_field->commit() && alive)
        Q_EMIT entered();
    return true;
}

void EntryGuard::drop()
{
    if (!hasEntry())
        return;
    m_isTouched = false;
    m_isBlocked = false;
    withdrawLimits();
    m_field->restore();
}

bool EntryGuard::eventFilter(QObject *watched, QEvent *event)
{
    // A line edit that says so is none any more.
    if (event->type() == QEvent::Destroy || !m_edit)
        return false;
    if (isInput(event->type()))
        m_textBefore = m_edit->text();
    if (watched == m_box)
        return filterBox(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        m_hasNewSelection = true;
        m_isRefusalOfNumber = true;
        break;
    default:
        break;
    }
    return false;
}

bool EntryGuard::filterBox(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape || !hasEntry())
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return filterKey(static_cast<QKeyEvent *>(event));
    case QEvent::InputMethod:
    case QEvent::ContextMenu: // its commands may follow
        m_isRefusalOfNumber = true;
        m_hasNewSelection = m_hasNewSelection || event->type() == QEvent::ContextMenu;
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        beforeStep();
        return false;
    case QEvent::Wheel:
        if (m_box->hasFocus()) {
            beforeStep();
            return false;
        }
        event->ignore();
        return true;
    case QEvent::FocusOut:
        return filterFocusOut(static_cast<QFocusEvent *>(event));
    case QEvent::ActivationChange:
        return filterDeactivation();
    case QEvent::Hide:
        if (event->spontaneous())
            return hasEntry(); // the box is still there when its window comes back
        drop();
        return false;
    case QEvent::EnabledChange:
        if (!m_box->isEnabled())
            drop();
        return false;
    case QEvent::ReadOnlyChange:
        if (m_box->isReadOnly())
            drop();
        return false;
    case QEvent::Close:
    case QEvent::LocaleChange:
        drop();
        return false;
    default:
        return false;
    }
}

bool EntryGuard::filterKey(QKeyEvent *event)
{
    if (isReturn(event))
        return filterReturn(event);
    if (event->key() == Qt::Key_Escape) {
        const bool restores = hasEntry();
        drop();
        return restores;
    }
    if (isStep(event))
        beforeStep();
    return filterTyping(event);
}

bool EntryGuard::filterReturn(QKeyEvent *event)
{
    event->accept();
    if (m_isBlocked) {
        tellLimits();
        return true;
    }
    event->setAccepted(isTouched());
    // What keyboard tracking has committed may stand there in another form than the value's.
    if (!isTouched() && m_edit->text() == m_typedText)
        m_field->restore();
    const QPointer<EntryGuard> alive(this);
    commit();
    if (!alive)
        return true;
    // The rest of what the box does itself.
    m_box->selectAll();
    Q_EMIT m_box->editingFinished();
    if (alive && m_edit)
        Q_EMIT m_edit->returnPressed();
    return true;
}

bool EntryGuard::filterTyping(QKeyEvent *event)
{
    m_isAnnounced = false;
    m_isRefusalOfNumber = concernsNumber(event);
    m_isUndoing = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
    m_hasNewSelection = m_hasNewSelection || isSelecting(event);
    const bool inserts = isCharacter(event) || event->matches(QKeySequence::Paste);
    const bool replaces = m_hasNewSelection && m_edit->hasSelectedText();
    if (!m_isBlocked || !inserts || replaces)
        return false;
    tellLimits();
    event->accept();
    return true;
}

/** What is not in the key, such as a text to be pasted, is taken for a number. */
bool EntryGuard::concernsNumber(const QKeyEvent *event) const
{
    const int cursor = m_edit->cursorPosition();
    if (isDeletion(event) && !m_edit->hasSelectedText())
        return event->key() == Qt::Key_Backspace ? cursor > m_field->numberStart() : cursor < m_field->numberEnd();
    if (!isCharacter(event))
        return true;
    const QString text = event->text();
    return std::any_of(text.begin(), text.end(), [this](QChar c) { return isOfNumber(c); });
}

/** A digit, a sign or what is a decimal sign or a group separator anywhere. */
bool EntryGuard::isOfNumber(QChar c) const
{
    constexpr QChar minusSign(0x2212);
    constexpr QChar arabicDecimalSign(0x066b);
    constexpr QChar arabicSeparator(0x066c);
    if (c.isDigit() || c == minusSign || c == arabicDecimalSign || c == arabicSeparator)
        return true;
    const char ascii = c.toLower().toLatin1();
    if (ascii == '+' || ascii == '-' || ascii == '.' || ascii == ',')
        return true;
    return (ascii >= 'a' && ascii - 'a' + 10 < m_field->base()) || (ascii == 'e' && m_field->hasExponent());
}

/** A step starts from the value where what stands in the box is not to be committed. */
void EntryGuard::beforeStep()
{
    m_isRefusalOfNumber = true;
    const bool isNumber = !m_validator && m_field->entry() == GuardedField::Entry::Number;
    if (m_isBlocked || (isTouched() && !isNumber))
        drop();
}

/** Who goes to a menu, a modal window or another program comes back to what was typed. */
bool EntryGuard::isLeaving(Qt::FocusReason reason) const
{
    if (reason != Qt::ActiveWindowFocusReason)
        return reason != Qt::PopupFocusReason;
    const QWidget *const window = QApplication::activeWindow();
    return window && !window->isModal() && !QApplication::activeModalWidget();
}

bool EntryGuard::filterFocusOut(QFocusEvent *event)
{
    if (!hasEntry())
        return false;
    if (isLeaving(event->reason())) {
        leave();
        return false;
    }
    // The box would commit; only its cursor has to rest.
    m_edit->event(event);
    m_box->update();
    return true;
}

/** Boxes commit when their window ceases to be the active one, too. */
bool EntryGuard::filterDeactivation()
{
    if (m_box->isActiveWindow() || !hasEntry())
        return false;
    if (isLeaving(Qt::ActiveWindowFocusReason)) {
        leave();
        return false;
    }
    m_box->update();
    return true;
}

void EntryGuard::leave()
{
    const bool isEntry = !m_isBlocked && m_box->isEnabled() && m_field->commitsOnLeaving();
    if (!isEntry || m_field->entry() == GuardedField::Entry::Nothing) {
        drop();
    } else if (m_field->entry() == GuardedField::Entry::Number) {
        commit();
    } else {
        drop();
        // A tool tip does not outlive a change of the focus.
        QMetaObject::invokeMethod(
            this, [this] { tellLimits(); }, Qt::QueuedConnection);
    }
}

void EntryGuard::onTextEdited(const QString &text)
{
    const bool isPutRight = m_isUndoing || (m_hadSelection && m_hasNewSelection) || isShortened(m_textBefore, text);
    m_typedText = m_textBefore = text;
    m_isTouched = !m_isAnnounced;
    if (m_isBlocked && !isPutRight)
        return;
    m_isBlocked = false;
    withdrawLimits();
}

void EntryGuard::onInputRejected()
{
    if (!m_isRefusalOfNumber || m_box->isReadOnly())
        return;
    m_isBlocked = true;
    m_hasNewSelection = false;
    tellLimits();
}

/** The value that comes of the typing is told before or after that itself. */
void EntryGuard::onValueChanged()
{
    m_isTouched = false;
    if (m_isAnnounced)
        return;
    m_isAnnounced = true;
    QMetaObject::invokeMethod(
        this, [this] { m_isAnnounced = false; }, Qt::QueuedConnection);
}

void EntryGuard::tellLimits()
{
    if (!m_box->isVisible() || m_box->window()->isMinimized())
        return;
    const QString text = tr("Enter a number from %1 to %2.").arg(m_field->minimumText(), m_field->maximumText());
    if (m_toldText.isEmpty())
        m_formerDescription = m_box->accessibleDescription();
    m_toldText = text;
    m_box->setAccessibleDescription(text);
    QAccessibleEvent alert(m_box, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    QToolTip::showText(m_box->mapToGlobal(QPoint(0, m_box->height())), asPlainText(text), m_box);
}

void EntryGuard::withdrawLimits()
{
    if (m_toldText.isEmpty())
        return;
    const QString text = std::exchange(m_toldText, QString());
    if (m_box->accessibleDescription() == text)
        m_box->setAccessibleDescription(m_formerDescription);
    if (QToolTip::text() == asPlainText(text))
        QToolTip::hideText();
}
