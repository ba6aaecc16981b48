// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/editorhandler.h>

#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/** Sets only what differs: a box shows its value again with everything that is set. */
template <typename Editor>
class Fit
{
public:
    Fit(Editor &editor, const Editor &fresh)
        : m_editor(editor)
        , m_fresh(fresh)
    {
    }

    template <typename Getter, typename Setter>
    void take(Getter getter, Setter setter)
    {
        const auto wanted = (m_fresh.*getter)();
        if ((m_editor.*getter)() == wanted)
            return;
        (m_editor.*setter)(wanted);
        m_isChanged = true;
    }

    void takeRange()
    {
        const auto minimum = m_fresh.minimum();
        const auto maximum = m_fresh.maximum();
        const bool isSame = !(m_editor.minimum() < minimum) && !(minimum < m_editor.minimum())
            && !(m_editor.maximum() < maximum) && !(maximum < m_editor.maximum());
        if (isSame)
            return;
        m_editor.setRange(minimum, maximum);
        m_isChanged = true;
    }

    EditorFit result() const { return m_isChanged ? EditorFit::Changed : EditorFit::Same; }

private:
    Editor &m_editor;
    const Editor &m_fresh;
    bool m_isChanged = false;
};

/** The handler of the class \a Editor and those derived from it. */
template <typename Editor>
class HandlerOf : public EditorHandler
{
public:
    bool handles(const QWidget &editor) const final { return qobject_cast<const Editor *>(&editor); }

protected:
    ~HandlerOf() = default;
    static Editor &cast(QWidget &editor) { return static_cast<Editor &>(editor); }
    static const Editor &cast(const QWidget &editor) { return static_cast<const Editor &>(editor); }
};

class DefaultHandler final : public HandlerOf<QWidget>
{
public:
    bool isDefault() const override { return true; }
};

class ComboBoxHandler final : public HandlerOf<QComboBox>
{
public:
    bool shows(const QVariant &value) const override
    {
        const int type = value.userType();
        return type == QMetaType::Bool || type == QMetaType::ULongLong || type >= QMetaType::User;
    }

    void load(QWidget &editor, const QVariant &value) const override
    {
        setCurrent(cast(editor), cast(editor).findData(withoutWrapper(value)));
    }

    bool showNothing(QWidget &editor) const override
    {
        setCurrent(cast(editor), -1);
        return true;
    }

    QVariant value(const QWidget &editor) const override { return cast(editor).currentData(Qt::UserRole); }

    /** The item, as several may have the same data. */
    QVariant content(const QWidget &editor) const override { return cast(editor).currentIndex(); }
    bool hasBadEntry(const QWidget &editor) const override { return cast(editor).currentIndex() < 0; }

    bool connectEntries(QWidget &editor, ControlData::Kind kind, const QObject *context,
                        const std::function<void(After)> &commit) const override;
    EditorFit fit(QWidget &editor, const QWidget &fresh) const override;

private:
    static void setCurrent(QComboBox &box, int index)
    {
        box.setCurrentIndex(index);
        box.update(); // not left to the signals, which are blocked
    }
};

bool ComboBoxHandler::connectEntries(QWidget &editor, ControlData::Kind kind, const QObject *context,
                                     const std::function<void(After)> &commit) const
{
    if (kind != ControlData::ComboBox)
        return false;
    // A new combo box shows its first item, which is not the value of a feature that cannot be read.
    cast(editor).setCurrentIndex(-1);
    QObject::connect(&cast(editor), qOverload<int>(&QComboBox::currentIndexChanged), context,
                     [commit] { commit(After::Closes); });
    return true;
}

bool hasSameItems(const QComboBox &a, const QComboBox &b)
{
    bool isSame = a.count() == b.count();
    for (int i = 0; isSame && i < a.count(); ++i)
        isSame = a.itemText(i) == b.itemText(i) && a.itemData(i) == b.itemData(i);
    return isSame;
}

EditorFit ComboBoxHandler::fit(QWidget &editor, const QWidget &fresh) const
{
    QComboBox &box = cast(editor);
    const QComboBox &wanted = cast(fresh);
    if (hasSameItems(box, wanted))
        return EditorFit::Same;
    box.clear();
    for (int i = 0; i < wanted.count(); ++i)
        box.addItem(wanted.itemText(i), wanted.itemData(i));
    box.setCurrentIndex(-1); // the first entry need not be the feature's
    return EditorFit::Changed;
}

/** A click is kept as the button's mark "modified" until it is written. */
class PushButtonHandler final : public HandlerOf<QPushButton>
{
public:
    bool connectEntries(QWidget &editor, ControlData::Kind kind, const QObject *context,
                        const std::function<void(After)> &commit) const override
    {
        if (kind != ControlData::PushButton)
            return false;
        QPushButton &button = cast(editor);
        QObject::connect(&button, &QPushButton::clicked, context, [&button, commit] {
            button.setWindowModified(true);
            commit(After::StaysOpen);
        });
        return true;
    }

    bool isButton() const override { return true; }
    void press(QWidget &editor) const override { cast(editor).click(); }

    bool takePress(QWidget &editor) const override
    {
        const bool wasPressed = editor.isWindowModified();
        editor.setWindowModified(false);
        return wasPressed;
    }
};

class SpinBox64Handler final : public HandlerOf<QtOrvSpinBoxVal64>
{
public:
    bool shows(const QVariant &value) const override { return value.userType() == QMetaType::LongLong; }
    void load(QWidget &editor, const QVariant &value) const override { cast(editor).setValue(value.toLongLong()); }

    void connectSteps(QWidget &editor, const QObject *context, const std::function<void()> &changed) const override
    {
        QObject::connect(&cast(editor), qOverload<long long>(&QtOrvSpinBoxVal64::valueChanged), context, changed);
    }

    void includeValue(QWidget &editor, const QVariant &value) const override
    {
        QtOrvSpinBoxVal64 &box = cast(editor);
        const qint64 number = value.toLongLong();
        if (shows(value) && (number < box.minimum() || number > box.maximum()))
            box.setRange(std::min<qint64>(number, box.minimum()), std::max<qint64>(number, box.maximum()));
    }

    EditorFit fit(QWidget &editor, const QWidget &fresh) const override
    {
        Fit<QtOrvSpinBoxVal64> fit(cast(editor), cast(fresh));
        fit.take(&QtOrvSpinBoxVal64::displayIntegerBase, &QtOrvSpinBoxVal64::setDisplayIntegerBase);
        fit.take(&QtOrvSpinBoxVal64::singleStep, &QtOrvSpinBoxVal64::setSingleStep);
        fit.take(&QtOrvSpinBoxVal64::validateStepping, &QtOrvSpinBoxVal64::setValidateStepping);
        fit.takeRange();
        return fit.result();
    }
};

class DoubleSpinBoxHandler final : public HandlerOf<QDoubleSpinBox>
{
public:
    bool shows(const QVariant &value) const override { return value.userType() == QMetaType::Double; }
    void load(QWidget &editor, const QVariant &value) const override { cast(editor).setValue(value.toDouble()); }
    bool countsWhenLeft() const override { return true; }

    void connectSteps(QWidget &editor, const QObject *context, const std::function<void()> &changed) const override
    {
        QObject::connect(&cast(editor), qOverload<double>(&QDoubleSpinBox::valueChanged), context, changed);
    }

    void includeValue(QWidget &editor, const QVariant &value) const override;

    EditorFit fit(QWidget &editor, const QWidget &fresh) const override
    {
        Fit<QDoubleSpinBox> fit(cast(editor), cast(fresh));
        fit.take(&QDoubleSpinBox::decimals, &QDoubleSpinBox::setDecimals); // first: the range is rounded to them
        fit.take(&QDoubleSpinBox::singleStep, &QDoubleSpinBox::setSingleStep);
        fit.take(&QDoubleSpinBox::suffix, &QDoubleSpinBox::setSuffix);
        fit.takeRange();
        return fit.result();
    }
};

void DoubleSpinBoxHandler::includeValue(QWidget &editor, const QVariant &value) const
{
    if (!shows(value))
        return;
    QDoubleSpinBox &box = cast(editor);
    const double number = value.toDouble();
    const double half = 0.5 * std::pow(10, -box.decimals()); // the most that the box rounds away
    if (number < box.minimum() - half)
        box.setMinimum(number);
    else if (number > box.maximum() + half)
        box.setMaximum(number);
}

class LineEditHandler final : public HandlerOf<QLineEdit>
{
public:
    bool shows(const QVariant &value) const override { return value.userType() == QMetaType::QString; }
    void load(QWidget &editor, const QVariant &value) const override { cast(editor).setText(value.toString()); }
    bool hasBadEntry(const QWidget &editor) const override { return !cast(editor).hasAcceptableInput(); }
    QLineEdit *textField(QWidget &editor) const override { return &cast(editor); }

    bool hasAcceptableText(QWidget &editor) const override
    {
        QLineEdit &edit = cast(editor);
        if (!edit.hasAcceptableInput() && edit.validator()) {
            QString text = edit.text();
            edit.validator()->fixup(text);
            edit.setText(text);
        }
        return edit.hasAcceptableInput();
    }
};

/** The table of all handlers. */
const std::vector<const EditorHandler *> &allHandlers()
{
    static const ComboBoxHandler comboBox;
    static const PushButtonHandler pushButton;
    static const SpinBox64Handler spinBox64;
    static const DoubleSpinBoxHandler doubleSpinBox;
    static const LineEditHandler lineEdit;
    static const std::vector<const EditorHandler *> all = {&comboBox, &pushButton, &spinBox64, &doubleSpinBox,
                                                           &lineEdit};
    return all;
}

} // namespace

const EditorHandler &EditorHandler::of(const QWidget &editor)
{
    static const DefaultHandler fallback;
    for (const EditorHandler *const handler : allHandlers()) {
        if (handler->handles(editor))
            return *handler;
    }
    return fallback;
}

const EditorHandler *EditorHandler::forValue(const QVariant &value)
{
    for (const EditorHandler *const handler : allHandlers()) {
        if (handler->shows(value))
            return handler;
    }
    return nullptr;
}

bool EditorHandler::shows(const QVariant &) const
{
    return false;
}

void EditorHandler::load(QWidget &, const QVariant &) const { }

bool EditorHandler::showNothing(QWidget &) const
{
    return false;
}

QVariant EditorHandler::value(const QWidget &editor) const
{
    return editor.metaObject()->userProperty().read(&editor);
}

bool EditorHandler::hasBadEntry(const QWidget &) const
{
    return false;
}

bool EditorHandler::hasAcceptableText(QWidget &editor) const
{
    const auto *const box = qobject_cast<QAbstractSpinBox *>(&editor);
    QString text = box ? box->text() : QString();
    int position = 0;
    return !box || box->validate(text, position) == QValidator::Acceptable;
}

QLineEdit *EditorHandler::textField(QWidget &editor) const
{
    return qobject_cast<QAbstractSpinBox *>(&editor) ? editor.findChild<QLineEdit *>() : nullptr;
}

void EditorHandler::connectSteps(QWidget &, const QObject *, const std::function<void()> &) const { }

bool EditorHandler::connectEntries(QWidget &, ControlData::Kind, const QObject *,
                                   const std::function<void(After)> &) const
{
    return false;
}

void EditorHandler::press(QWidget &) const { }

bool EditorHandler::takePress(QWidget &) const
{
    return false;
}

void EditorHandler::includeValue(QWidget &, const QVariant &) const { }

EditorFit EditorHandler::fit(QWidget &editor, const QWidget &fresh) const
{
    return editor.metaObject() == fresh.metaObject() ? EditorFit::Same : EditorFit::OtherClass;
}
