// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "widgetedits.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QDynamicPropertyChangeEvent>
#include <QHash>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

template <typename Widget>
Switch makeSwitch(const char *name, bool (Widget::*isOn)() const, void (Widget::*set)(bool))
{
    return {QString::fromLatin1(name), [isOn](const QWidget *it) { return (static_cast<const Widget *>(it)->*isOn)(); },
            [set](QWidget *it, bool on) { (static_cast<Widget *>(it)->*set)(on); }};
}

template <typename Widget>
void setRange(QWidget *widget, const QVariant &minimum, const QVariant &maximum)
{
    using Number = decltype(std::declval<Widget>().value());
    auto *const it = static_cast<Widget *>(widget);
    if constexpr (std::is_base_of_v<QAbstractSpinBox, Widget>) {
        it->setMinimum(minimum.value<Number>());
        it->setMaximum(maximum.value<Number>());
    } else { // setMinimum() and setMaximum() may take the other bound from a position
        it->setRange(minimum.value<Number>(), maximum.value<Number>());
    }
}

template <typename Box>
QVector<Switch> switchesOfBox()
{
    return {makeSwitch<Box>("validate", &Box::validate, &Box::setValidate),
            makeSwitch<Box>("validateTyping", &Box::validateTyping, &Box::setValidateTyping),
            makeSwitch<Box>("entryGuarded", &Box::isEntryGuarded, &Box::setEntryGuarded)};
}

QVector<Switch> switchesOfBox64()
{
    using Box = QtOrvSpinBoxVal64;
    return {makeSwitch<Box>("selectWhenStepping", &Box::selectWhenStepping, &Box::setSelectWhenStepping),
            makeSwitch<Box>("validateStepping", &Box::validateStepping, &Box::setValidateStepping),
            makeSwitch<Box>("ignoreFocusOut", &Box::ignoreFocusOut, &Box::setIgnoreFocusOut),
            makeSwitch<Box>("buttonTracking", &Box::buttonTracking, &Box::setButtonTracking),
            makeSwitch<Box>("entryGuarded", &Box::isEntryGuarded, &Box::setEntryGuarded)};
}

template <typename Widget>
void add(QHash<const QMetaObject *, WidgetEdits> *edits, const QVector<Switch> &switches = {})
{
    edits->insert(&Widget::staticMetaObject, {switches, setRange<Widget>});
}

QHash<const QMetaObject *, WidgetEdits> allEdits()
{
    QHash<const QMetaObject *, WidgetEdits> edits;
    add<QtOrvSpinBoxVal64>(&edits, switchesOfBox64());
    add<QtOrvSpinBoxVal>(&edits, switchesOfBox<QtOrvSpinBoxVal>());
    add<QtOrvDoubleSpinBoxVal>(&edits, switchesOfBox<QtOrvDoubleSpinBoxVal>());
    add<QtOrvSlider>(&edits);
    add<QtOrvDoubleSlider>(&edits);
    add<QtOrvSpinBox>(&edits);
    add<QtOrvSliderSpinBox>(&edits);
    add<QtOrvGainSlider>(&edits);
    return edits;
}

class DynamicProperties : public QObject
{
public:
    explicit DynamicProperties(QWidget *widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange && watched == parent())
            follow(static_cast<QWidget *>(watched), static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName());
        return QObject::eventFilter(watched, event);
    }

private:
    static void follow(QWidget *widget, const QByteArray &name)
    {
        const QVariant value = widget->property(name.constData());
        const WidgetEdits *const edits = editsOf(widget);
        if (!edits || !value.isValid()) // the property was removed
            return;
        for (const Switch &one : edits->switches) {
            if (one.name == QLatin1String(name))
                one.set(widget, value.toBool());
        }
    }
};

} // namespace

const WidgetEdits *editsOf(const QWidget *widget)
{
    static const QHash<const QMetaObject *, WidgetEdits> edits = allEdits();
    const auto found = edits.constFind(widget->metaObject());
    return found != edits.constEnd() ? &*found : nullptr;
}

void followDynamicProperties(QWidget *widget)
{
    const WidgetEdits *const edits = editsOf(widget);
    if (edits && !edits->switches.isEmpty())
        new DynamicProperties(widget);
}
