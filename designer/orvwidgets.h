// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/** A widget in the widget box of Qt Designer; owned by the collection. */
class OrvWidget : public QDesignerCustomWidgetInterface
{
public:
    using Create = QWidget *(*)(QWidget *parent);

    /** Texts for people, already translated, and the properties of a new widget in the XML of a form. */
    struct Texts
    {
        QString toolTip;
        QString whatsThis;
        QString properties;
    };

    OrvWidget(const QString &className, Create create, Texts texts);

    QString name() const override { return m_className; }
    QString group() const override;
    QString toolTip() const override { return m_texts.toolTip; }
    QString whatsThis() const override { return m_texts.whatsThis; }
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;

private:
    const QString m_className;
    const Create m_create;
    const Texts m_texts;
};

/** All value-entry widgets, as one plug-in. */
class OrvWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit OrvWidgets(QObject *parent = nullptr);
    ~OrvWidgets() override;

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return m_widgets; }

private:
    template <typename Widget>
    void add(const QString &toolTip, const QString &whatsThis, const QString &properties);
    void addSpinBoxes();
    void addSliders();
    void addComposites();

    QList<QDesignerCustomWidgetInterface *> m_widgets;
};
