// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <OrvCameraGuiApi/widgets/accessiblefactory.h>
#include <OrvCameraGuiApi/widgets/accessibletext.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/sliderparts.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>
#include <QRegularExpression>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *composites[] = {"QtOrvSlider", "QtOrvDoubleSlider", "QtOrvSpinBox", "QtOrvSliderSpinBox",
                                      "QtOrvGainSlider"};
constexpr const char *sliders[] = {"QtOrvSlider", "QtOrvDoubleSlider"};
constexpr const char *spinBoxes[] = {"QtOrvSpinBoxVal", "QtOrvDoubleSpinBoxVal", "QtOrvSpinBoxVal64"};

template <std::size_t Size>
bool isOneOf(const QWidget *widget, const char *const (&classes)[Size])
{
    const auto isIt = [widget](const char *name) { return widget->inherits(name); };
    return std::any_of(std::begin(classes), std::end(classes), isIt);
}

/** The widget that \a part is a part of; null when it stands for itself. */
QWidget *wholeOf(const QWidget *part)
{
    QWidget *const parent = part->parentWidget();
    return parent && (isOneOf(parent, composites) || isOneOf(parent, spinBoxes)) ? parent : nullptr;
}

/** The text of a label without mnemonic and final colon. */
QString spoken(QString text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    text = text.replace(mnemonic, QStringLiteral("\\1")).simplified();
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1).trimmed() : text;
}

/** The name that \a widget gives itself; empty if none. */
QString nameOf(const QWidget *widget)
{
    if (!widget->accessibleName().isEmpty())
        return widget->accessibleName();
    for (const char *caption : {"leftLabelText", "topLabelText"}) {
        QString text = spoken(widget->property(caption).toString());
        if (!text.isEmpty())
            return text;
    }
    return {};
}

/** A widget that takes the name of its whole unless it has one of its own. */
class PartAccessible : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        QString name = nameOf(widget());
        if (!name.isEmpty())
            return name;
        QWidget *const whole = wholeOf(widget());
        return whole ? partName(QAccessible::queryAccessibleInterface(whole)->text(kind))
                     : spoken(QAccessibleWidget::text(kind)); // that of a label beside it
    }

private:
    /** The slider and the button that opens it need a name apart from that of the spin box. */
    QString partName(const QString &whole) const
    {
        if (!isOneOf(widget(), sliders) && !widget()->inherits("QToolButton"))
            return whole;
        return whole.isEmpty() ? QtOrvSpinBox::tr("Slider") : QtOrvSpinBox::tr("%1 slider").arg(whole);
    }
};

class ValueAccessible : public PartAccessible, public QAccessibleValueInterface
{
public:
    /** Reads the numbers from properties of \a source, which is \a widget or outlives it. */
    ValueAccessible(QWidget *widget, QAccessible::Role role, QObject *source)
        : PartAccessible(widget, role)
        , m_source(source)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return PartAccessible::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString() : PartAccessible::text(kind);
    }

    QVariant currentValue() const override { return m_source->property("value"); }
    void setCurrentValue(const QVariant &value) override { m_source->setProperty("value", value); }
    QVariant minimumValue() const override { return m_source->property("minimum"); }
    QVariant maximumValue() const override { return m_source->property("maximum"); }
    QVariant minimumStepSize() const override { return m_source->property("singleStep"); }

private:
    QObject *const m_source;
};

/** A spin box that offers the text of its line edit; tools do not see the line edit itself. */
class SpinBoxAccessible : public ValueAccessible
{
public:
    explicit SpinBoxAccessible(QAbstractSpinBox *spinBox)
        : ValueAccessible(spinBox, QAccessible::SpinBox, spinBox)
        , m_text(spinBox)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(&m_text);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface *>(&m_text);
        return ValueAccessible::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_text.shownText() : ValueAccessible::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ValueAccessible::state();
        const bool isReadOnly = static_cast<QAbstractSpinBox *>(object())->isReadOnly();
        state.readOnly = isReadOnly;
        state.editable = !isReadOnly;
        state.selectableText = true;
        return state;
    }

private:
    SpinBoxText m_text;
};

class ButtonAccessible : public PartAccessible
{
public:
    explicit ButtonAccessible(QToolButton *button)
        : PartAccessible(button, QAccessible::Button)
    {
    }

    QStringList actionNames() const override
    {
        QStringList names = PartAccessible::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            static_cast<QToolButton *>(object())->click();
        else
            PartAccessible::doAction(action);
    }
};

/** The line edit of a spin box, which some tools find all the same; it answers with the text of the spin box. */
class InnerEditAccessible : public PartAccessible
{
public:
    explicit InnerEditAccessible(QWidget *edit)
        : PartAccessible(edit, QAccessible::EditableText)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        const bool isText = type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface;
        return isText ? spinBox()->interface_cast(type) : PartAccessible::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? spinBox()->text(kind) : PartAccessible::text(kind);
    }

private:
    QAccessibleInterface *spinBox() const { return QAccessible::queryAccessibleInterface(widget()->parentWidget()); }
};

/** Qt calls this for every class of an object, the most derived first. */
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (auto *slider = qobject_cast<KeyAwareSlider *>(object))
        return slider->parent() ? new ValueAccessible(slider, QAccessible::Slider, slider->parent()) : nullptr;
    if (!object->isWidgetType())
        return nullptr;
    auto *const widget = static_cast<QWidget *>(object);
    if (auto *button = qobject_cast<QToolButton *>(object))
        return wholeOf(button) ? new ButtonAccessible(button) : nullptr;
    if (qobject_cast<QLineEdit *>(object))
        return wholeOf(widget) ? new InnerEditAccessible(widget) : nullptr;
    const auto isAsked = [&className](const char *name) { return className == QLatin1String(name); };
    if (std::any_of(std::begin(composites), std::end(composites), isAsked))
        return new ValueAccessible(widget, QAccessible::Grouping, widget);
    if (std::any_of(std::begin(spinBoxes), std::end(spinBoxes), isAsked))
        return new SpinBoxAccessible(static_cast<QAbstractSpinBox *>(object));
    return nullptr;
}

} // namespace

void installValueAccessibility()
{
    static const AccessibleFactory factory(makeInterface);
    factory.install();
}
