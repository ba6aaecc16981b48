#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>

#include <OrvCameraGuiApi/feature_tree/controldata.h>
#include <OrvCameraGuiApi/feature_tree/editorfit.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QPushButton>
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

/** Where text is typed; null in an editor without. */
QLineEdit *textFieldOf(QWidget *editor)
{
    auto *const field = qobject_cast<QLineEdit *>(editor);
    return field || !qobject_cast<QAbstractSpinBox *>(editor) ? field : editor->findChild<QLineEdit *>();
}

/** A validator may put a text right. */
bool hasAcceptableText(QWidget *editor)
{
    if (auto *const edit = qobject_cast<QLineEdit *>(editor)) {
        if (edit->hasAcceptableInput() || !edit->validator())
            return edit->hasAcceptableInput();
        QString text = edit->text();
        edit->validator()->fixup(text);
        edit->setText(text);
        return edit->hasAcceptableInput();
    }
    const auto *const box = qobject_cast<const QAbstractSpinBox *>(editor);
    QString text = box ? box->text() : QString();
    int position = 0;
    return !box || box->validate(text, position) == QValidator::Acceptable;
}

/** Of which nothing may be written, whoever asks: a view that changes its current item does not ask a validator. */
bool hasBadEntry(const QWidget *editor)
{
    if (const auto *const box = qobject_cast<const QComboBox *>(editor))
        return box->currentIndex() < 0;
    const auto *const edit = qobject_cast<const QLineEdit *>(editor);
    return edit && !edit->hasAcceptableInput();
}

/** What the model would be given: a combo box's item data, else the property that views go by. */
QVariant valueOf(const QWidget *editor)
{
    const auto *const box = qobject_cast<const QComboBox *>(editor);
    return box ? box->currentData(Qt::UserRole) : editor->metaObject()->userProperty().read(editor);
}

/** What tells whether an editor was changed: of a combo box the item, as several may have the same data. */
QVariant contentOf(const QWidget *editor)
{
    const auto *const box = qobject_cast<const QComboBox *>(editor);
    return box ? box->currentIndex() : valueOf(editor);
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

GenApi::IValue *featureOf(const QModelIndex &index)
{
    return index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
}

QVariant withoutWrapper(const QVariant &value)
{
    return value.userType() == qMetaTypeId<VariantData>() ? value.value<VariantData>().value : value;
}

/** For assistive tools; the line edit of a spin box is called like that. */
void nameAfterFeature(QWidget *editor, const QModelIndex &index)
{
    if (!editor)
        return;
    const QString name = index.sibling(index.row(), GenParamTreeModel::NameColumn).data().toString();
    editor->setAccessibleName(name);
    if (QLineEdit *const field = textFieldOf(editor))
        field->setAccessibleName(name);
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Enter || event.key() == Qt::Key_Return;
}

/** What a box of Qt's own steps from: it would read what is typed in its own way. */
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

/** What an editor was loaded with and what the user has done to it since; a child of the editor. */
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
    /** Of what was loaded last; invalid when that has gone. */
    QModelIndex index() const { return m_index; }

    /** \a confirmed: the user has ended the entry with Enter. */
    void setConfirmed(bool confirmed) { m_isConfirmed = confirmed && m_isTouched; }
    bool hasEntry(const QModelIndex &index) const;

    /** Whatever comes of it, an entry is written once; the live value may then take its place. */
    void beginWriting();

    /** A mouse button was pressed on the editor. @{ */
    void setPressed() { m_isPressed = true; }
    bool isPressed() const { return m_isPressed; }
    /** @} */

private:
    explicit EditorSession(QWidget *editor);

    QWidget *const m_editor;
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
{
    const auto touch = [this] { m_isTouched = true; };
    // What is typed into a number is the guard's to tell: it may come to nothing again.
    if (const EntryGuard *const guard = guardOf(editor))
        connect(guard, &EntryGuard::entered, this, [this] { m_isTouched = m_isConfirmed = true; });
    else if (const QLineEdit *const field = textFieldOf(editor))
        connect(field, &QLineEdit::textEdited, this, touch);
    // Loading keeps the editor quiet: what it emits is the user's doing.
    if (const auto *const box = qobject_cast<QtOrvSpinBoxVal64 *>(editor))
        connect(box, qOverload<long long>(&QtOrvSpinBoxVal64::valueChanged), this, touch);
    else if (const auto *const doubleBox = qobject_cast<QDoubleSpinBox *>(editor))
        connect(doubleBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this, touch);
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
    m_loadedContent = contentOf(m_editor);
    m_isLoaded = true;
}

/** An editor that nothing was ever loaded into always has one. */
bool EditorSession::hasEntry(const QModelIndex &index) const
{
    if (!m_isLoaded || !isSame(contentOf(m_editor), m_loadedContent))
        return true;
    return m_isConfirmed && !isSame(valueOf(m_editor), withoutWrapper(index.data(Qt::EditRole)));
}

void EditorSession::beginWriting()
{
    m_loadedValue.clear();
    m_loadedContent = contentOf(m_editor);
    m_isTouched = false;
    m_isConfirmed = false;
}

template <typename Editor, typename Value>
void setValueOf(QWidget *editor, void (Editor::*setter)(Value), const QVariant &value)
{
    if (auto *const expected = qobject_cast<Editor *>(editor))
        (expected->*setter)(value.value<std::decay_t<Value>>());
}

/**
 * What stands in the place of a value that cannot be read is nothing to be edited. Nor is the number that a box has
 * nevertheless: it would be taken for the feature's.
 */
bool showsPlaceholder(QWidget *editor, const QModelIndex &index, const QVariant &value)
{
    const bool isText = value.userType() == QMetaType::QString;
    if (value.isValid() && !isText) {
        if (QLineEdit *const field = textFieldOf(editor))
            field->setPlaceholderText(QString());
        return false;
    }
    if (auto *const box = qobject_cast<QComboBox *>(editor)) {
        box->setCurrentIndex(-1);
        box->update();
        return true;
    }
    QLineEdit *const field = textFieldOf(editor);
    if (!field)
        return false;
    const bool hasValue = field == editor && isText && canRead(featureOf(index));
    field->setPlaceholderText(hasValue ? QString() : isText ? value.toString() : index.data().toString());
    if (!hasValue) {
        const QSignalBlocker quiet(field); // a box would think of it as typed
        field->clear();
    }
    return !hasValue;
}

/** False when \a value is of a type that none of the model's editors shows. */
bool load(QWidget *editor, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::LongLong:
        setValueOf(editor, &QtOrvSpinBoxVal64::setValue, value);
        return true;
    case QMetaType::Double:
        setValueOf(editor, &QDoubleSpinBox::setValue, value);
        return true;
    case QMetaType::QString:
        setValueOf(editor, &QLineEdit::setText, value);
        return true;
    default:
        break;
    }
    if (value.userType() != QMetaType::Bool && value.userType() != QMetaType::ULongLong
        && value.userType() < QMetaType::User)
        return false;
    if (auto *const box = qobject_cast<QComboBox *>(editor)) {
        box->setCurrentIndex(box->findData(withoutWrapper(value)));
        box->update(); // not left to the signals, which are held
    }
    return true;
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

/** The press goes on to \a watched, unless that is gone by then. */
bool GenParamDelegate::MouseTracker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress || !watched->isWidgetType())
        return false;
    // Who gets the press tells where the mouse is: an editor that has just appeared under it does not know yet.
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
    // What is read to make an editor may have taken the feature away.
    if (index.isValid() && !edited.isValid()) {
        delete control.editor;
        return nullptr;
    }
    if (!control.editor) {
        QWidget *const editor = ReadableDelegate::createEditor(parent, option, index);
        nameAfterFeature(editor, index);
        refineEditor(editor, featureOf(index));
        captureMouseForEditor(editor);
        return editor;
    }
    refineEditor(control.editor, featureOf(index));
    control.editor->setParent(parent);
    nameAfterFeature(control.editor, index);
    // Else one without a cursor of its own takes over the viewport's, which may be that of a column's edge.
    if (!control.editor->testAttribute(Qt::WA_SetCursor))
        control.editor->setCursor(Qt::ArrowCursor);
    connectEditor(control.editor, control.kind);
    return control.editor;
}

void GenParamDelegate::connectEditor(QWidget *editor, int kind) const
{
    // Editors are made by a const operation, but what they have to say later comes from the delegate itself.
    auto *const self = const_cast<GenParamDelegate *>(this);
    if (auto *const button = qobject_cast<QPushButton *>(editor); button && kind == ControlData::PushButton) {
        connect(button, &QPushButton::clicked, this, [self, button] {
            button->setWindowModified(true);
            Q_EMIT self->commitData(button);
        });
    } else if (auto *const box = qobject_cast<QComboBox *>(editor); box && kind == ControlData::ComboBox) {
        // A new combo box shows its first item, which is not the value of a feature that cannot be read.
        box->setCurrentIndex(-1);
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, [self, box] {
            const QPointer<QComboBox> alive(box);
            Q_EMIT self->commitData(box);
            if (alive)
                Q_EMIT self->closeEditor(box, NoHint);
        });
    } else {
        // Typing alone changes no value: a text that is no number would leave behind what its beginning stood for.
        if (auto *const number = qobject_cast<QAbstractSpinBox *>(editor)) {
            number->setKeyboardTracking(false);
            EntryGuard::install(number);
        }
        captureMouseForEditor(editor);
    }
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
    // Polling reports many a value that is still the same: cursor and selection then stay as they are.
    if (!isFitted && session.isLoadedWith(withoutWrapper(value)))
        return;
    QLineEdit *const field = textFieldOf(editor);
    const bool isSelected = field && field->hasSelectedText();
    {
        const QSignalBlocker quiet(editor);
        includeValue(editor, value);
        if (!showsPlaceholder(editor, index, value) && !load(editor, value))
            ReadableDelegate::setEditorData(editor, index);
    }
    // What is typed next is to replace the new value as it would have replaced the old one.
    if (isSelected)
        field->selectAll();
    session.setLoaded(edited, withoutWrapper(value));
    if (index.isValid() && !edited.isValid()) {
        // No view has it any more, and none may be asked to close it.
        editor->removeEventFilter(const_cast<GenParamDelegate *>(this));
        OpenCalls::retire(editor);
    }
}

/** With the value its range, increment, choices and unit may have changed. Whether anything had to be changed here. */
bool GenParamDelegate::fitToFeature(QWidget *editor, const QModelIndex &index) const
{
    const std::unique_ptr<QWidget> fresh(index.data(GenParamTreeModel::ControlDataRole).value<ControlData>().editor);
    refineEditor(fresh.get(), featureOf(index));
    includeValue(fresh.get(), index.data(Qt::EditRole));
    const QSignalBlocker quiet(editor);
    const EditorFit fit = fitEditor(editor, fresh.get());
    if (fit != EditorFit::OtherClass)
        return fit == EditorFit::Changed;
    // Not at once: whoever reports the change goes on using the editor.
    const auto close = [self = QPointer<GenParamDelegate>(const_cast<GenParamDelegate *>(this)), editor] {
        if (self)
            Q_EMIT self->closeEditor(editor, NoHint);
    };
    QMetaObject::invokeMethod(editor, close, Qt::QueuedConnection);
    return false;
}

void GenParamDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    // Some view may have got another model meanwhile, which would take the index for its own.
    if (!editor || !model || index.model() != model)
        return;
    const OpenCalls::Call call;
    EditorSession &session = EditorSession::of(editor);
    if (auto *const button = qobject_cast<QPushButton *>(editor)) {
        if (!button->isWindowModified())
            return;
        button->setWindowModified(false);
        session.beginWriting();
        model->setData(index, true, Qt::EditRole);
        return;
    }
    if (!commitTyped(editor) || hasBadEntry(editor) || !session.hasEntry(index))
        return;
    session.beginWriting();
    if (qobject_cast<QComboBox *>(editor))
        model->setData(index, valueOf(editor), Qt::EditRole);
    else
        ReadableDelegate::setModelData(editor, model, index);
}

/**
 * An integer that is typed counts with Enter only, a fraction always; what is left of a cut-off number never does.
 * False when something is typed that does not count: what was stepped to before is given up by that.
 */
bool GenParamDelegate::commitTyped(QWidget *editor) const
{
    auto *const number = qobject_cast<QDoubleSpinBox *>(editor);
    EntryGuard *const guard = guardOf(editor);
    if (guard && (guard->isTouched() || guard->isBlocked()))
        return number && guard->commit();
    if (number && !guard && EditorSession::of(editor).isTouched())
        number->interpretText();
    return true;
}

void GenParamDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &) const
{
    if (editor)
        editor->setGeometry(option.rect);
}

/** The view gives it up in the middle of a write too, and whoever writes goes on using it. */
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
    // The second half of the double click that has opened a box is no press on the arrow that has come under the mouse.
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
    if (auto *const button = qobject_cast<QPushButton *>(editor)) {
        if (!event->isAutoRepeat()) // a key held too long executes once
            button->click();
        return true;
    }
    if (guardOf(editor))
        return filterEnterOfNumber(editor);
    const bool isAcceptable = hasAcceptableText(editor);
    EditorSession::of(editor).setConfirmed(isAcceptable);
    if (isAcceptable)
        endEditingSoon(editor);
    return !isAcceptable; // else the editor handles the key too
}

/** When the event loop runs next, unless the editor has gone by then: Qt would use it nevertheless. */
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

/** What cannot be entered leaves the editor open, with the limits beside it. */
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
    // Steps that led back to the number that was loaded are an entry too, if the feature has another one by now.
    EditorSession::of(editor).setConfirmed(true);
    endEditingSoon(editor);
    return true;
}

#include "genparamdelegate.moc"
