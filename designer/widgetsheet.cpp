// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "widgetsheet.h"

#include <QScopedValueRollback>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

namespace {

const QLatin1String minimumName("minimum");
const QLatin1String maximumName("maximum");
const QLatin1String valueName("value");

bool isNumber(const QString &name)
{
    return name == minimumName || name == maximumName || name == valueName;
}

} // namespace

WidgetSheet::WidgetSheet(QWidget *widget, QDesignerPropertySheetExtension *sheet,
                         QDesignerDynamicPropertySheetExtension *dynamicSheet, QObject *parent)
    : QObject(parent)
    , m_widget(widget)
    , m_sheet(sheet)
    , m_dynamicSheet(dynamicSheet)
    , m_edits(editsOf(widget))
{
    const QString group = QString::fromLatin1(widget->metaObject()->className());
    for (const Switch &control : m_edits->switches)
        m_switches.append({control, control.isOn(widget), group});
}

const WidgetSheet::SwitchRow *WidgetSheet::rowAt(int index) const
{
    const int row = index - m_sheet->count();
    return row >= 0 && row < m_switches.size() ? &m_switches.at(row) : nullptr;
}

WidgetSheet::SwitchRow *WidgetSheet::rowAt(int index)
{
    const int row = index - m_sheet->count();
    return row >= 0 && row < m_switches.size() ? &m_switches[row] : nullptr;
}

int WidgetSheet::indexOf(const QString &name) const
{
    for (int i = 0; i < m_switches.size(); ++i) {
        if (m_switches.at(i).control.name == name)
            return m_sheet->count() + i;
    }
    return m_sheet->indexOf(name);
}

QString WidgetSheet::propertyName(int index) const
{
    const SwitchRow *const row = rowAt(index);
    return row ? row->control.name : m_sheet->propertyName(index);
}

QString WidgetSheet::propertyGroup(int index) const
{
    const SwitchRow *const row = rowAt(index);
    return row ? row->group : m_sheet->propertyGroup(index);
}

void WidgetSheet::setPropertyGroup(int index, const QString &group)
{
    if (SwitchRow *const row = rowAt(index))
        row->group = group;
    else
        m_sheet->setPropertyGroup(index, group);
}

bool WidgetSheet::hasReset(int index) const
{
    return rowAt(index) || m_sheet->hasReset(index);
}

bool WidgetSheet::reset(int index)
{
    if (SwitchRow *const row = rowAt(index)) {
        row->control.set(m_widget, row->isOnByDefault);
        row->changed = false;
        return true;
    }
    m_entered.remove(m_sheet->propertyName(index));
    const bool isReset = m_sheet->reset(index);
    applyEntered();
    return isReset;
}

bool WidgetSheet::isVisible(int index) const
{
    const SwitchRow *const row = rowAt(index);
    return row ? row->visible : m_sheet->isVisible(index);
}

void WidgetSheet::setVisible(int index, bool visible)
{
    if (SwitchRow *const row = rowAt(index))
        row->visible = visible;
    else
        m_sheet->setVisible(index, visible);
}

bool WidgetSheet::isAttribute(int index) const
{
    const SwitchRow *const row = rowAt(index);
    return row ? row->attribute : m_sheet->isAttribute(index);
}

void WidgetSheet::setAttribute(int index, bool attribute)
{
    if (SwitchRow *const row = rowAt(index))
        row->attribute = attribute;
    else
        m_sheet->setAttribute(index, attribute);
}

QVariant WidgetSheet::property(int index) const
{
    if (const SwitchRow *const row = rowAt(index))
        return row->control.isOn(m_widget);
    const auto found = m_entered.constFind(m_sheet->propertyName(index));
    return found != m_entered.constEnd() ? *found : m_sheet->property(index);
}

void WidgetSheet::setProperty(int index, const QVariant &value)
{
    if (SwitchRow *const row = rowAt(index)) {
        row->control.set(m_widget, value.toBool());
        return;
    }
    const QString name = m_sheet->propertyName(index);
    if (isNumber(name))
        m_entered.insert(name, value);
    else
        m_sheet->setProperty(index, value);
    applyEntered();
}

bool WidgetSheet::isChanged(int index) const
{
    const SwitchRow *const row = rowAt(index);
    return row ? row->changed : m_sheet->isChanged(index);
}

void WidgetSheet::setChanged(int index, bool changed)
{
    if (SwitchRow *const row = rowAt(index))
        row->changed = changed;
    else
        m_sheet->setChanged(index, changed);
}

bool WidgetSheet::isEnabled(int index) const
{
    return rowAt(index) || m_sheet->isEnabled(index);
}

bool WidgetSheet::dynamicPropertiesAllowed() const
{
    return m_dynamicSheet->dynamicPropertiesAllowed();
}

int WidgetSheet::addDynamicProperty(const QString &name, const QVariant &value)
{
    return canAddDynamicProperty(name) ? m_dynamicSheet->addDynamicProperty(name, value) : -1;
}

bool WidgetSheet::removeDynamicProperty(int index)
{
    return !rowAt(index) && m_dynamicSheet->removeDynamicProperty(index);
}

bool WidgetSheet::isDynamicProperty(int index) const
{
    return !rowAt(index) && m_dynamicSheet->isDynamicProperty(index);
}

bool WidgetSheet::canAddDynamicProperty(const QString &name) const
{
    return !rowAt(indexOf(name)) && m_dynamicSheet->canAddDynamicProperty(name);
}

QVariant WidgetSheet::entered(const QString &name) const
{
    return m_entered.value(name, m_widget->property(name.toLatin1().constData()));
}

/** Shows the bounds and the value as the form would set them. */
void WidgetSheet::applyEntered()
{
    if (m_entered.contains(minimumName) || m_entered.contains(maximumName))
        m_edits->setRange(m_widget, entered(minimumName), entered(maximumName));
    if (m_entered.contains(valueName))
        m_widget->setProperty("value", m_entered.value(valueName));
}

WidgetSheetFactory::WidgetSheetFactory(QExtensionManager *manager)
    : QExtensionFactory(manager)
{
}

void WidgetSheetFactory::registerAt(QDesignerFormEditorInterface *core)
{
    QExtensionManager *const manager = core ? core->extensionManager() : nullptr;
    if (!manager || manager->findChild<WidgetSheetFactory *>(QString(), Qt::FindDirectChildrenOnly))
        return;
    auto *const factory = new WidgetSheetFactory(manager);
    manager->registerExtensions(factory, Q_TYPEID(QDesignerPropertySheetExtension));
    manager->registerExtensions(factory, Q_TYPEID(QDesignerDynamicPropertySheetExtension));
}

QObject *WidgetSheetFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    const bool isSheet =
        iid == Q_TYPEID(QDesignerPropertySheetExtension) || iid == Q_TYPEID(QDesignerDynamicPropertySheetExtension);
    auto *const widget = qobject_cast<QWidget *>(object);
    if (!isSheet || !widget || m_isAsking || !editsOf(widget))
        return nullptr;
    if (QObject *const made = m_sheets.value(object))
        return made;
    const QScopedValueRollback<bool> guard(m_isAsking, true);
    auto *const sheet = qt_extension<QDesignerPropertySheetExtension *>(extensionManager(), object);
    auto *const dynamicSheet = qt_extension<QDesignerDynamicPropertySheetExtension *>(extensionManager(), object);
    if (!sheet || !dynamicSheet)
        return nullptr;
    auto *const made = new WidgetSheet(widget, sheet, dynamicSheet, parent);
    m_sheets.insert(object, made);
    connect(object, &QObject::destroyed, this, [this, object] { delete m_sheets.take(object).data(); });
    return made;
}
