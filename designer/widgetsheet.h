// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "widgetedits.h"

#include <QHash>
#include <QPointer>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

/**
 * The properties of a widget in the property editor of Qt Designer: its own, and after them its switches, which are
 * saved like properties.
 *
 * Bounds and value are kept as a person entered them. The widget may have to move one for the sake of another; such a
 * move must not get into the form.
 */
class WidgetSheet : public QObject,
                    public QDesignerPropertySheetExtension,
                    public QDesignerDynamicPropertySheetExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension QDesignerDynamicPropertySheetExtension)

public:
    /** \a sheet and \a dynamicSheet are Qt Designer's own for \a widget and live as long as it does. */
    WidgetSheet(QWidget *widget, QDesignerPropertySheetExtension *sheet,
                QDesignerDynamicPropertySheetExtension *dynamicSheet, QObject *parent);

    int count() const override { return m_sheet->count() + int(m_switches.size()); }
    int indexOf(const QString &name) const override;
    QString propertyName(int index) const override;
    QString propertyGroup(int index) const override;
    void setPropertyGroup(int index, const QString &group) override;
    bool hasReset(int index) const override;
    bool reset(int index) override;
    bool isVisible(int index) const override;
    void setVisible(int index, bool visible) override;
    bool isAttribute(int index) const override;
    void setAttribute(int index, bool attribute) override;
    QVariant property(int index) const override;
    void setProperty(int index, const QVariant &value) override;
    bool isChanged(int index) const override;
    void setChanged(int index, bool changed) override;
    bool isEnabled(int index) const override;

    bool dynamicPropertiesAllowed() const override;
    int addDynamicProperty(const QString &name, const QVariant &value) override;
    bool removeDynamicProperty(int index) override;
    bool isDynamicProperty(int index) const override;
    bool canAddDynamicProperty(const QString &name) const override;

private:
    struct SwitchRow
    {
        Switch control;
        bool isOnByDefault;
        QString group;
        bool visible = true;
        bool attribute = false;
        bool changed = false;
    };

    const SwitchRow *rowAt(int index) const;
    SwitchRow *rowAt(int index);
    QVariant entered(const QString &name) const;
    void applyEntered();

    QWidget *const m_widget;
    QDesignerPropertySheetExtension *const m_sheet;
    QDesignerDynamicPropertySheetExtension *const m_dynamicSheet;
    const WidgetEdits *const m_edits;
    QVector<SwitchRow> m_switches;
    QHash<QString, QVariant> m_entered; ///< bounds and value that were set here, by name
};

/** Makes these sheets. Qt Designer asks it before its own factory. */
class WidgetSheetFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    /** To be called for each widget of the plug-in; registers once. */
    static void registerAt(QDesignerFormEditorInterface *core);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    explicit WidgetSheetFactory(QExtensionManager *manager);

    mutable bool m_isAsking = false; ///< for the extension of the next factory
    mutable QHash<QObject *, QPointer<QObject>> m_sheets; ///< one sheet serves both interfaces
};
