// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/entryguard.h>

#include <OrvCameraGuiApi/widgets/guardedfield.h>
#include <OrvCameraGuiApi/widgets/keys.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace {

/** A person who goes to a menu, a modal window or another program comes back to what was typed. */
bool isLeaving(Qt::FocusReason reason)
{
    if (reason != Qt::ActiveWindowFocusReason)
        return reason != Qt::PopupFocusReason;
    const QWidget *const window = QApplication::activeWindow();
    return window && !window->isModal() && !QApplication::activeModalWidget();
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
    guard->release();
    delete guard;
}

void EntryGuard::setInstalled(QAbstractSpinBox *box, bool installed)
{
    if (installed)
        install(box);
    else
        remove(box);
}

EntryGuard::EntryGuard(QAbstractSpinBox *box, std::unique_ptr<GuardedField> field)
    : QObject(box)
    , m_box(box)
    , m_edit(box->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly))
    , m_field(std::move(field))
    , m_formerPolicy(box->focusPolicy())
    , m_block(m_edit, *m_field)
    , m_limits(box)
{
    if (PlainReading::isNeededBy(box))
        m_plainReading.emplace(box, m_edit);
    box->setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus
    box->installEventFilter(this);
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textEdited, this, &EntryGuard::onTextEdited);
    connect(m_edit, &QLineEdit::inputRejected, this, &EntryGuard::onInputRejected);
    connect(m_edit, &QLineEdit::selectionChanged, this, [this] { m_block.followSelection(); });
    m_field->whenChanged(this, [this] { onValueChanged(); });
}

EntryGuard::~EntryGuard() = default;

/** Leaves the box as it was found. Not called when the box itself goes. */
void EntryGuard::release()
{
    drop();
    m_limits.hide();
    if (m_plainReading)
        m_plainReading->handBack();
    if (m_box->focusPolicy() == Qt::StrongFocus)
        m_box->setFocusPolicy(m_formerPolicy);
}

bool EntryGuard::isTouched() const
{
    // A text other than the typed one was set by the program.
    return m_isTouched && m_edit && m_edit->text() == m_typedText;
}

bool EntryGuard::commit()
{
    if (isBlocked() || !isTouched())
        return false;
    const GuardedField::Entry entry = m_field->entry();
    if (entry != GuardedField::Entry::Number) {
        drop();
        if (entry == GuardedField::Entry::NoNumber)
            showLimits();
        return false;
    }
    m_limits.hide();
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
    m_block.lift();
    m_limits.hide();
    m_field->restore();
}

bool EntryGuard::eventFilter(QObject *watched, QEvent *event)
{
    // Events come until the end, when only the QWidget is left of the box or of its line edit.
    const bool isWhole =
        watched == m_box ? bool(qobject_cast<QAbstractSpinBox *>(watched)) : watched->inherits("QLineEdit");
    if (!isWhole || !m_edit)
        return false;
    if (watched == m_box)
        return filterBox(event);
    m_block.followEdit(*event);
    return false;
}

bool EntryGuard::filterBox(QEvent *event)
{
    m_block.followBox(*event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return filterShortcut(static_cast<QKeyEvent *>(event));
    case QEvent::KeyPress:
        return filterKey(static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        beforeStep();
        return false;
    case QEvent::Wheel:
        return filterWheel(event);
    case QEvent::FocusOut:
        return filterFocusOut(static_cast<QFocusEvent *>(event));
    case QEvent::ActivationChange:
        return filterDeactivation();
    case QEvent::Hide:
        return filterHide(event);
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

/** Escape belongs to an entry before it belongs to a shortcut of the window. */
bool EntryGuard::filterShortcut(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !hasEntry())
        return false;
    event->accept();
    return true;
}

bool EntryGuard::filterKey(QKeyEvent *event)
{
    if (Keys::isReturn(*event))
        return filterReturn(event);
    if (event->key() == Qt::Key_Escape)
        return filterEscape();
    if (Keys::isStep(*event))
        beforeStep();
    return filterTyping(event);
}

bool EntryGuard::filterReturn(QKeyEvent *event)
{
    event->accept();
    if (isBlocked()) {
        showLimits();
        return true;
    }
    event->setAccepted(isTouched());
    // A text that keyboard tracking has committed may have another form than the value's.
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

bool EntryGuard::filterEscape()
{
    const bool restores = hasEntry();
    drop();
    return restores;
}

bool EntryGuard::filterTyping(QKeyEvent *event)
{
    m_isAnnounced = false;
    m_block.followKey(*event);
    if (!m_block.refuses(*event))
        return false;
    showLimits();
    event->accept();
    return true;
}

bool EntryGuard::filterWheel(QEvent *event)
{
    if (m_box->hasFocus()) {
        beforeStep();
        return false;
    }
    event->ignore();
    return true;
}

bool EntryGuard::filterHide(const QEvent *event)
{
    if (event->spontaneous()) // the window is minimized, and comes back with the entry
        return hasEntry();
    drop();
    return false;
}

bool EntryGuard::filterFocusOut(QFocusEvent *event)
{
    if (!hasEntry())
        return false;
    if (isLeaving(event->reason())) {
        leave();
        return false;
    }
    // The box would commit; its line edit only has to hide the cursor.
    m_edit->event(event);
    m_box->update();
    return true;
}

/** A box also commits when its window is no longer the active one. */
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

/** A step starts from the value unless the box shows a number that can be committed. */
void EntryGuard::beforeStep()
{
    m_block.expectNumber();
    const bool isNumber = !m_plainReading && m_field->entry() == GuardedField::Entry::Number;
    if (isBlocked() || (isTouched() && !isNumber))
        drop();
}

void EntryGuard::leave()
{
    const bool mayCommit = !isBlocked() && m_box->isEnabled() && m_field->commitsOnLeaving();
    const GuardedField::Entry entry = m_field->entry();
    if (mayCommit && entry == GuardedField::Entry::Number) {
        commit();
        return;
    }
    drop();
    if (mayCommit && entry == GuardedField::Entry::NoNumber) {
        // Queued: a tool tip does not outlive a change of the focus.
        QMetaObject::invokeMethod(
            this, [this] { showLimits(); }, Qt::QueuedConnection);
    }
}

void EntryGuard::onTextEdited(const QString &text)
{
    m_typedText = text;
    m_isTouched = !m_isAnnounced;
    if (m_block.textEdited(text))
        m_limits.hide();
}

void EntryGuard::onInputRejected()
{
    if (m_block.inputRejected())
        showLimits();
}

/** The value that a tracked key leads to is announced before or after textEdited(), depending on the class. */
void EntryGuard::onValueChanged()
{
    m_isTouched = false;
    if (m_isAnnounced)
        return;
    m_isAnnounced = true;
    QMetaObject::invokeMethod(
        this, [this] { m_isAnnounced = false; }, Qt::QueuedConnection);
}

void EntryGuard::showLimits()
{
    m_limits.show(tr("Enter a number from %1 to %2.").arg(m_field->minimumText(), m_field->maximumText()));
}
