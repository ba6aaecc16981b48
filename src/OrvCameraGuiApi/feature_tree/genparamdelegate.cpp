// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>

#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/editorhandler.h>
#include <OrvCameraGuiApi/feature_tree/featurehandler.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSignalBlocker>

#include <cmath>
#include <memory>

namespace {

/** Whether \a widget is \a owner, a part of it or a window that it has opened, such as a pop-up. */
bool belongsTo(const QWidget *widget, const QWidget *owner)
{
    while (widget && widget != owner)
        widget = widget->parentWidget();
    return widget;
}

/** Exact, unlike the comparison of variants: numbers differ however near they are, and nothing is converted. */
bool isSame(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType())
        return false;
    if (a.userType() != QMetaType::Double)
        return a == b;
    const double first = a.toDouble();
    const double second = b.toDouble();
    return !(first < second || first > second) && std::isnan(first) == std::isnan(second);
}

/** For assistive tools; the line edit of a spin box is called like that. */
void nameAfterFeature(QWidget *editor, const QModelIndex &index)
{
    if (!editor)
        return;
    const QString name = index.sibling(index.row(), GenParamTreeModel::NameColumn).data().toString();
    editor->setAccessibleName(name);
    if (QLineEdit *const field = EditorHandler::of(*editor).textField(*editor))
        field->setAccessibleName(name);
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
}

/** Whether \a event makes a box step: one of Qt's would step from the typed text as it reads it itself. */
bool isStep(const QEvent &event)
{
    if (event.type() == QEvent::MouseButtonPress)
        return true;
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

/** Of a number; null for every other editor. */
EntryGuard *guardOf(const QWidget *editor)
{
    return EntryGuard::of(qobject_cast<const QAbstractSpinBox *>(editor));
}

/** The value that an editor was loaded with, and what the user has done since; a child of the editor. */
class EditorSession : public QObject
{
    Q_OBJECT

public:
    static EditorSession *find(const QWidget *editor);
    static EditorSession &of(QWidget *editor);

    bool isTouched() const;
    bool isLoaded() const { return m_isLoaded; }
    bool isLoadedWith(const QVariant &value) const { return m_isLoaded && isSame(m_loadedValue, value); }
    void setLoaded(const QModelIndex &index, const QVariant &value);
    /** The cell that was loaded last; invalid when it is gone. */
    QModelIndex index() const { return m_index; }

    /** \a confirmed: the user has ended the entry with Enter. */
    void setConfirmed(bool confirmed) { m_isConfirmed = confirmed && m_isTouched; }
    bool hasEntry(const QModelIndex &index) const;

    /** An entry is written once, even if that fails; the feature's value may replace it from now on. */
    void beginWriting();

    /** A mouse button was pressed on the editor. @{ */
    void setPressed() { m_isPressed = true; }
    bool isPressed() const { return m_isPressed; }
    /** @} */

private:
    explicit EditorSession(QWidget *editor);

    QWidget *const m_editor;
    const EditorHandler &m_handler;
    QPersistentModelIndex m_index;
    QVariant m_loadedValue; ///< the feature's
    QVariant m_loadedContent; ///< what the editor made of it
    bool m_isLoaded = false;
    bool m_isTouched = false;
    bool m_isConfirmed = false;
    bool m_isPressed = false;
};

EditorSession::EditorSession(QWidget *editor)
    : QObject(editor)
    , m_editor(editor)
    , m_handler(EditorHandler::of(*editor))
{
    const auto touch = [this] { m_isTouched = true; };
    // The guard knows whether the text typed into a number is an entry: it may be taken back.
    if (const EntryGuard *const guard = guardOf(editor))
        connect(guard, &EntryGuard::entered, this, [this] { m_isTouched = m_isConfirmed = true; });
    else if (const QLineEdit *const field = m_handler.textField(*editor))
        connect(field, &QLineEdit::textEdited, this, touch);
    // Signals are blocked while a value is loaded: the user causes those that come.
    m_handler.connectSteps(*editor, this, touch);
}

EditorSession *EditorSession::find(const QWidget *editor)
{
    return editor ? editor->findChild<EditorSession *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

EditorSession &EditorSession::of(QWidget *editor)
{
    EditorSession *const session = find(editor);
    return session ? *session : *new EditorSession(editor);
}

bool EditorSession::isTouched() const
{
    const EntryGuard *const guard = guardOf(m_editor);
    return m_isTouched || (guard && (guard->isTouched() || guard->isBlocked()));
}

void EditorSession::setLoaded(const QModelIndex &index, const QVariant &value)
{
    m_index = index;
    m_loadedValue = value;
    m_loadedContent = m_handler.content(*m_editor);
    m_isLoaded = true;
}

/** An editor that nothing was ever loaded into always has one. */
bool EditorSession::hasEntry(const QModelIndex &index) const
{
    if (!m_isLoaded || !isSame(m_handler.content(*m_editor), m_loadedContent))
        return true;
    return m_isConfirmed && !isSame(m_handler.value(*m_editor), withoutWrapper(index.data(Qt::EditRole)));
}

void EditorSession::beginWriting()
{
    m_loadedValue.clear();
    m_loadedContent = m_handler.content(*m_editor);
    m_isTouched = false;
    m_isConfirmed = false;
}

/**
 * Shows that there is no value where it cannot be read: a text that says so is not to be edited, nor is the number that
 * a box has all the same, which would be taken for the feature's. False when there is a value to be loaded.
 */
bool showsPlaceholder(QWidget &editor, const QModelIndex &index, const QVariant &value)
{
    const EditorHandler &handler = EditorHandler::of(editor);
    const bool isText = value.userType() == QMetaType::QString;
    const bool hasValue = value.isValid() && !isText;
    if (!hasValue && handler.showNothing(editor))
        return true;
    QLineEdit *const field = handler.textField(editor);
    if (!field)
        return false;
    const bool isEditable = hasValue || (field == &editor && isText && canRead(featureAt(index)));
    field->setPlaceholderText(isEditable ? QString() : isText ? value.toString() : index.data().toString());
    if (!isEditable) {
        const QSignalBlocker quiet(field); // a box would take it for typed
        field->clear();
    }
    return !isEditable;
}

/** False when none of the model's editors shows \a value. An editor that shows other values stays as it is. */
bool load(QWidget &editor, const QVariant &value)
{
    const EditorHandler *const handler = EditorHandler::forValue(value);
    if (handler && handler->handles(editor))
        handler->load(editor, value);
    return handler;
}

/** Both may be null. */
void refineEditor(QWidget *editor, GenApi::IValue *feature)
{
    if (editor && feature)
        failureOf([&] { FeatureHandler::of(feature).refineEditor(*editor, *feature); });
}

} // namespace

/** Ends the editing of an editor at a press of a mouse button outside it; a child of the editor. */
class GenParamDelegate::MouseTracker : public QObject
{
public:
    MouseTracker(const GenParamDelegate *delegate, QWidget *editor)
        : QObject(editor)
        , m_delegate(delegate)
        , m_editor(editor)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QPointer<const GenParamDelegate> m_delegate;
    QWidget *const m_editor;
};

/** \a watched gets the press too, unless it is destroyed by then. */
bool GenParamDelegate::MouseTracker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || !watched->isWidgetType())
        return false;
    // Not underMouse(): an editor that has just appeared under the mouse does not know it yet.
    if (belongsTo(static_cast<QWidget *>(watched), m_editor))
        return false;
    const QPointer<QObject> receiver(watched);
    QCoreApplication::instance()->removeEventFilter(this);
    if (m_delegate)
        m_delegate->releaseFocus(m_editor);
    return !receiver;
}

GenParamDelegate::GenParamDelegate(QObject *parent)
    : ReadableDelegate(parent)
{
}

GenParamDelegate::~GenParamDelegate() = default;

QWidget *GenParamDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QPersistentModelIndex edited(index);
    const auto control = index.data(GenParamTreeModel::ControlDataRole).value<ControlData>();
    // Reading may have taken the feature away: OpenCalls.
    if (index.isValid() && !edited.isValid()) {
        delete control.editor;
        return nullptr;
    }
    if (!control.editor) {
        QWidget *const editor = ReadableDelegate::createEditor(parent, option, index);
        nameAfterFeature(editor, index);
        refineEditor(editor, featureAt(index));
        captureMouseForEditor(editor);
        return editor;
    }
    refineEditor(control.editor, featureAt(index));
    control.editor->setParent(parent);
    nameAfterFeature(control.editor, index);
    // Else one without a cursor of its own takes over the viewport's, which may be that of a column's edge.
    if (!control.editor->testAttribute(Qt::WA_SetCursor))
        control.editor->setCursor(Qt::ArrowCursor);
    connectEditor(control.editor, control.kind);
    return control.editor;
}

void GenParamDelegate::connectEditor(QWidget *editor, ControlData::Kind kind) const
{
    // The operation is const, but the delegate emits signals for the editor later.
    auto *const self = const_cast<GenParamDelegate *>(this);
    const auto commit = [self, editor](EditorHandler::After after) {
        const QPointer<QWidget> alive(editor);
        Q_EMIT self->commitData(editor);
        if (alive && after == EditorHandler::After::Closes)
            Q_EMIT self->closeEditor(editor, NoHint);
    };
    if (EditorHandler::of(*editor).connectEntries(*editor, kind, this, commit))
        return;
    // Typing alone changes no value: a text that is no number would leave behind the number that it began with.
    if (auto *const number = qobject_cast<QAbstractSpinBox *>(editor)) {
        number->setKeyboardTracking(false);
        EntryGuard::install(number);
    }
    captureMouseForEditor(editor);
}

void GenParamDelegate::captureMouseForEditor(QWidget *editor) const
{
    if (editor)
        QCoreApplication::instance()->installEventFilter(new MouseTracker(this, editor));
}

void GenParamDelegate::releaseFocus(QWidget *editor) const
{
    QWidget *const focus = QApplication::focusWidget();
    if (belongsTo(focus, editor))
        focus->clearFocus();
    else
        editor->clearFocus();
}

void GenParamDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (!editor)
        return;
    EditorSession &session = EditorSession::of(editor);
    if (session.isTouched())
        return;
    const OpenCalls::Call call;
    const QPersistentModelIndex edited(index);
    const bool isFitted = session.isLoaded() && fitToFeature(editor, index);
    const QVariant value = index.data(Qt::EditRole);
    // Polling often reports a value that is still the same. Cursor and selection stay as they are then.
    if (!isFitted && session.isLoadedWith(withoutWrapper(value)))
        return;
    const EditorHandler &handler = EditorHandler::of(*editor);
    QLineEdit *const field = handler.textField(*editor);
    const bool isSelected = field && field->hasSelectedText();
    {
        const QSignalBlocker quiet(editor);
        handler.includeValue(*editor, value);
        if (!showsPlaceholder(*editor, index, value) && !load(*editor, value))
            ReadableDelegate::setEditorData(editor, index);
    }
    // The next key replaces the new value as it would have replaced the old one.
    if (isSelected)
        field->selectAll();
    session.setLoaded(edited, withoutWrapper(value));
    if (index.isValid() && !edited.isValid()) {
        // No view has it any more, and none may be asked to close it.
        editor->removeEventFilter(const_cast<GenParamDelegate *>(this));
        OpenCalls::retire(editor);
    }
}

/** Range, increment, choices and unit may have changed with the value. True when the editor had to be changed. */
bool GenParamDelegate::fitToFeature(QWidget *editor, const QModelIndex &index) const
{
    const std::unique_ptr<QWidget> fresh(index.data(GenParamTreeModel::ControlDataRole).value<ControlData>().editor);
    if (!fresh)
        return false;
    const EditorHandler &handler = EditorHandler::of(*fresh);
    refineEditor(fresh.get(), featureAt(index));
    handler.includeValue(*fresh, index.data(Qt::EditRole));
    const QSignalBlocker quiet(editor);
    const EditorFit fit = handler.handles(*editor) ? handler.fit(*editor, *fresh) : EditorFit::OtherClass;
    if (fit != EditorFit::OtherClass)
        return fit == EditorFit::Changed;
    // Not at once: the caller goes on using the editor.
    const auto close = [self = QPointer<GenParamDelegate>(const_cast<GenParamDelegate *>(this)), editor] {
        if (self)
            Q_EMIT self->closeEditor(editor, NoHint);
    };
    QMetaObject::invokeMethod(editor, close, Qt::QueuedConnection);
    return false;
}

std::optional<QModelIndex> GenParamDelegate::editedIndex(const QWidget *editor)
{
    const EditorSession *const session = EditorSession::find(editor);
    return session ? std::optional<QModelIndex>(session->index()) : std::nullopt;
}

void GenParamDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    // A view may have got another model meanwhile, which would take the index for its own.
    if (!editor || !model || index.model() != model)
        return;
    const OpenCalls::Call call;
    EditorSession &session = EditorSession::of(editor);
    const EditorHandler &handler = EditorHandler::of(*editor);
    if (handler.isButton()) {
        if (handler.takePress(*editor)) {
            session.beginWriting();
            model->setData(index, true, Qt::EditRole);
        }
        return;
    }
    if (!commitTyped(editor) || handler.hasBadEntry(*editor) || !session.hasEntry(index))
        return;
    session.beginWriting();
    if (handler.isDefault())
        ReadableDelegate::setModelData(editor, model, index);
    else
        model->setData(index, handler.value(*editor), Qt::EditRole);
}

/**
 * A typed integer counts only with Enter, a typed fraction always, the rest of a number that was cut off never. False
 * when the typed text does not count; a number that was reached by steps before is dropped with it.
 */
bool GenParamDelegate::commitTyped(QWidget *editor) const
{
    const bool countsWhenLeft = EditorHandler::of(*editor).countsWhenLeft();
    EntryGuard *const guard = guardOf(editor);
    if (guard && (guard->isTouched() || guard->isBlocked()))
        return countsWhenLeft && guard->commit();
    auto *const number = qobject_cast<QAbstractSpinBox *>(editor);
    if (countsWhenLeft && number && !guard && EditorSession::of(editor).isTouched())
        number->interpretText();
    return true;
}

void GenParamDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    if (editor)
        editor->setGeometry(option.rect);
}

void GenParamDelegate::destroyEditor(QWidget *editor, const QModelIndex &) const
{
    OpenCalls::retire(editor);
}

bool GenParamDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *const editor = qobject_cast<QWidget *>(watched);
    if (editor && event->type() == QEvent::Wheel) {
        // An editor may lie under the mouse only because its row is current: the wheel is meant for the view.
        event->ignore();
        return true;
    }
    // A combo box would search among its items for it.
    if (editor && event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Find)) {
        event->ignore();
        return true;
    }
    if (editor && event->type() == QEvent::MouseButtonPress)
        EditorSession::of(editor).setPressed();
    // The second press of the double click that opened a box must not step it: an arrow may have appeared under it.
    if (editor && event->type() == QEvent::MouseButtonDblClick && guardOf(editor)
        && !EditorSession::of(editor).isPressed())
        return true;
    if (editor && isStep(*event) && guardOf(editor))
        commitTyped(editor);
    if (editor && event->type() == QEvent::KeyPress && isEnter(*static_cast<QKeyEvent *>(event)))
        return filterEnter(editor, static_cast<QKeyEvent *>(event));
    return ReadableDelegate::eventFilter(watched, event);
}

bool GenParamDelegate::filterEnter(QWidget *editor, QKeyEvent *event)
{
    // A key held too long executes a command once.
    const EditorHandler &handler = EditorHandler::of(*editor);
    if (handler.isButton()) {
        if (!event->isAutoRepeat())
            handler.press(*editor);
        return true;
    }
    if (guardOf(editor))
        return filterEnterOfNumber(editor);
    const bool isAcceptable = handler.hasAcceptableText(*editor);
    EditorSession::of(editor).setConfirmed(isAcceptable);
    if (isAcceptable)
        endEditingSoon(editor);
    return !isAcceptable; // else the editor handles the key too
}

/** From the event loop, unless the editor is destroyed by then: Qt would use it nevertheless. */
void GenParamDelegate::endEditingSoon(QWidget *editor)
{
    const auto end = [self = QPointer<GenParamDelegate>(this), editor] {
        const QPointer<QWidget> alive(editor);
        if (self)
            Q_EMIT self->commitData(editor);
        if (self && alive)
            Q_EMIT self->closeEditor(editor);
    };
    QMetaObject::invokeMethod(editor, end, Qt::QueuedConnection);
}

/** A text that is no number in the range leaves the editor open, and the limits are shown beside it. */
bool GenParamDelegate::filterEnterOfNumber(QWidget *editor)
{
    EntryGuard &guard = *guardOf(editor);
    if (guard.isBlocked())
        return false;
    if (guard.isTouched() && !guard.commit()) {
        const QModelIndex index = EditorSession::of(editor).index();
        if (index.isValid())
            setEditorData(editor, index);
        return true;
    }
    // Steps back to the number that was loaded are an entry too if the feature has another number by now.
    EditorSession::of(editor).setConfirmed(true);
    endEditingSoon(editor);
    return true;
}

#include "genparamdelegate.moc"
