#include <OrvCameraGuiApi/widgets/valueaccessible.h>

#include <OrvCameraGuiApi/widgets/sliderparts.h>

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *composites[] = {"QtOrvSlider", "QtOrvDoubleSlider", "QtOrvSpinBox", "QtOrvSliderSpinBox",
                                      "QtOrvGainSlider"};

/** The widget that \a part is a part of; null when it stands for itself. */
QWidget *compositeOf(const QWidget *part)
{
    QWidget *const parent = part->parentWidget();
    const auto isParent = [parent](const char *name) { return parent->inherits(name); };
    return parent && std::any_of(std::begin(composites), std::end(composites), isParent) ? parent : nullptr;
}

/** What \a widget says it is called; empty when it does not. */
QString nameOf(const QWidget *widget)
{
    if (!widget->accessibleName().isEmpty())
        return widget->accessibleName();
    for (const char *caption : {"leftLabelText", "topLabelText"}) {
        QString text = widget->property(caption).toString();
        if (!text.isEmpty())
            return text.remove(QLatin1Char('&'));
    }
    return {};
}

class ValueAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /** The numbers are properties of \a source, which outlives \a widget or is the same. */
    ValueAccessible(QWidget *widget, QAccessible::Role role, QObject *source)
        : QAccessibleWidget(widget, role)
        , m_source(source)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return currentValue().toString();
        if (kind != QAccessible::Name)
            return QAccessibleWidget::text(kind);
        QString name = nameOf(widget());
        if (name.isEmpty())
            name = QAccessibleWidget::text(kind); // of a label beside it
        QWidget *const composite = name.isEmpty() ? compositeOf(widget()) : nullptr;
        return composite ? QAccessible::queryAccessibleInterface(composite)->text(kind) : name;
    }

    QVariant currentValue() const override { return m_source->property("value"); }
    void setCurrentValue(const QVariant &value) override { m_source->setProperty("value", value); }
    QVariant minimumValue() const override { return m_source->property("minimum"); }
    QVariant maximumValue() const override { return m_source->property("maximum"); }
    QVariant minimumStepSize() const override { return m_source->property("singleStep"); }

private:
    QObject *const m_source;
};

/** Asked for every class of an object in turn, the most derived first. */
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (auto *slider = qobject_cast<KeyAwareSlider *>(object))
        return slider->parent() ? new ValueAccessible(slider, QAccessible::Slider, slider->parent()) : nullptr;
    const auto isAsked = [&className](const char *name) { return className == QLatin1String(name); };
    if (!object->isWidgetType() || std::none_of(std::begin(composites), std::end(composites), isAsked))
        return nullptr;
    auto *const widget = static_cast<QWidget *>(object);
    return new ValueAccessible(widget, QAccessible::Grouping, widget);
}

struct Installation
{
    Installation() { QAccessible::installFactory(makeInterface); }
    ~Installation() { QAccessible::removeFactory(makeInterface); }
    Q_DISABLE_COPY(Installation)
};

} // namespace

void installValueAccessibility()
{
    static const Installation installation;
}
