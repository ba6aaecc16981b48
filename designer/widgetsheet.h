#pragma once

#include "widgetedits.h"

#include <QHash>
#include <QPointer>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

/**
 * What the property editor of Qt Designer shows of a widget: what it would show by itself, and then the switches of the
 * widget, which are saved like any property.
 *
 * The bounds and the value are what a person has entered. The widget may have to move one of them for the sake of
 * another, which is not to find its way into the form.
 */
class WidgetSheet : public QObject,
                    public QDesignerPropertySheetExtension,
                    public QDesignerDynamicPropertySheetExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension QDesignerDynamicPropertySheetExtension)

public:
    /** \a sheet and \a dynamicSheet are Qt Designer's own for \a widget, and live as long as that. */
    WidgetSheet(QWidget *widget, QDesignerPropertySheetExtension *sheet,
                QDesignerDynamicPropertySheetExtension *dynamicSheet, QObject *parent);

    int count() const override { return m_sheet->count() + m_switches.size(); }
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
    QHash<QString, QVariant> m_entered; ///< by name: bounds and value, as far as they were set here
};

/** Makes these sheets, in front of Qt Designer's own factory. */
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

    mutable bool m_isAsking = false; ///< for the extension that would be there without this factory
    mutable QHash<QObject *, QPointer<QObject>> m_sheets; ///< one is the answer to both interfaces
};
