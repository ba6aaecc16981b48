// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "ui_settings.h"

#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <orvtest.h>

#include <QBuffer>
#include <QUndoStack>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerSettingsInterface>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiTools/QUiLoader>

namespace {

QWidget *load(const QString &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(PLUGIN)).absolutePath());
    QBuffer buffer;
    buffer.setData(form.toUtf8());
    buffer.open(QIODevice::ReadOnly);
    return loader.load(&buffer);
}

/** Checks the settings of the form in \a window, which all differ from those of a new widget. */
void checkSettings(const QWidget &window)
{
    const auto *const box64 = window.findChild<QtOrvSpinBoxVal64 *>(QStringLiteral("box64"));
    QVERIFY(!box64->keyboardTracking() && !box64->selectWhenStepping() && box64->validateStepping());
    QVERIFY(!box64->ignoreFocusOut() && !box64->buttonTracking() && box64->isEntryGuarded());
    const auto *const box = window.findChild<QtOrvSpinBoxVal *>(QStringLiteral("box"));
    QVERIFY(box->validate() && !box->validateTyping() && box->isEntryGuarded());
    const auto *const doubleBox = window.findChild<QtOrvDoubleSpinBoxVal *>(QStringLiteral("doubleBox"));
    QVERIFY(doubleBox->validate() && !doubleBox->validateTyping() && doubleBox->isEntryGuarded());
}

/** The settings of Qt Designer, as long as this object lives. */
class DesignerSettings : public QDesignerSettingsInterface
{
public:
    void beginGroup(const QString &group) override { m_groups.append(group); }
    void endGroup() override { m_groups.removeLast(); }
    bool contains(const QString &key) const override { return m_values.contains(path(key)); }
    void setValue(const QString &key, const QVariant &value) override { m_values.insert(path(key), value); }
    QVariant value(const QString &key, const QVariant &standard) const override
    {
        return m_values.value(path(key), standard);
    }
    void remove(const QString &key) override { m_values.remove(path(key)); }

private:
    QString path(const QString &key) const { return (m_groups + QStringList(key)).join(QLatin1Char('/')); }

    QStringList m_groups;
    QHash<QString, QVariant> m_values;
};

/** Qt Designer with the plug-in. Its property editor is made once: Qt crashes now and then when it makes another one.
 */
struct DesignerCore
{
    DesignerCore()
    {
        // No other plug-ins, whatever is installed.
        QCoreApplication::setLibraryPaths({QFileInfo(QStringLiteral(PLUGIN)).dir().filePath(QStringLiteral(".."))});
        core.reset(QDesignerComponents::createFormEditor(nullptr));
        core->setSettingsManager(new DesignerSettings);
        core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core.data(), &window));
        new QDesignerIntegration(core.data(), core.data());
        QDesignerComponents::initializePlugins(core.data());
    }

    QScopedPointer<QDesignerFormEditorInterface> core;
    QWidget window; // of the property editor, which does not outlive the rest
};

/** A form in Qt Designer with a widget called "it". */
class Designer
{
public:
    Designer(const DesignerCore &designer, const QString &className)
        : m_core(designer.core.data())
        , m_form(m_core->formWindowManager()->createFormWindow())
    {
        m_form->setContents(QStringLiteral("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"form\"><widget "
                                           "class=\"%1\" name=\"it\"/></widget></ui>")
                                .arg(className));
    }

    QWidget *widget() const { return m_form->mainContainer()->findChild<QWidget *>(QStringLiteral("it")); }
    QDesignerPropertySheetExtension *sheet() const
    {
        return qt_extension<QDesignerPropertySheetExtension *>(m_core->extensionManager(), widget());
    }
    QDesignerDynamicPropertySheetExtension *dynamicSheet() const
    {
        return qt_extension<QDesignerDynamicPropertySheetExtension *>(m_core->extensionManager(), widget());
    }

    /** As the property editor does. */
    void edit(const char *name, const QVariant &value)
    {
        const int index = sheet()->indexOf(QLatin1String(name));
        QVERIFY2(index >= 0, name);
        m_form->cursor()->setWidgetProperty(widget(), QLatin1String(name), value);
    }
    QString property(const char *name) const
    {
        return sheet()->property(sheet()->indexOf(QLatin1String(name))).toString();
    }

    /** The saved properties of the widget: names and values. */
    QMap<QString, QString> saved() const
    {
        QMap<QString, QString> properties;
        QXmlStreamReader reader(m_form->contents());
        bool isIt = false;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement())
                continue;
            const QXmlStreamAttributes attributes = reader.attributes();
            if (reader.name() == QLatin1String("widget"))
                isIt = attributes.value(QLatin1String("name")) == QLatin1String("it");
            if (!isIt || reader.name() != QLatin1String("property"))
                continue;
            QString name = attributes.value(QLatin1String("name")).toString();
            if (attributes.hasAttribute(QLatin1String("stdset")))
                name += QStringLiteral(" without a setter");
            reader.readNextStartElement();
            properties.insert(name, reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified());
        }
        properties.remove(QStringLiteral("geometry"));
        return properties;
    }
    void reset(const char *name) { m_form->cursor()->resetWidgetProperty(widget(), QLatin1String(name)); }
    void undo() { m_form->commandHistory()->undo(); }
    QString contents() const { return m_form->contents(); }
    void setContents(const QString &contents) { m_form->setContents(contents); }

private:
    QDesignerFormEditorInterface *const m_core;
    const QScopedPointer<QDesignerFormWindowInterface> m_form;
};

using Saved = QMap<QString, QString>;

} // namespace

class tst_OrvWidgets : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Qt Designer leaves settings behind. */
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
        m_designer.reset(new DesignerCore);
    }
    void cleanupTestCase() { m_designer.reset(); }

    void everyWidgetHasAnEntryThatWorks()
    {
        QPluginLoader plugin(QStringLiteral(PLUGIN));
        auto *const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin.instance());
        QVERIFY2(collection, qPrintable(plugin.errorString()));
        QStringList names;
        QSet<QString> groups;
        for (QDesignerCustomWidgetInterface *entry : collection->customWidgets()) {
            names.append(entry->name());
            groups.insert(entry->group());
            QVERIFY(!entry->toolTip().isEmpty() && !entry->whatsThis().isEmpty() && !entry->isContainer());
            QVERIFY(!entry->icon().pixmap(24).isNull());
            QVERIFY(QFile::exists(QStringLiteral(INCLUDES "/") + entry->includeFile()));
            QScopedPointer<QWidget> created(entry->createWidget(nullptr));
            QCOMPARE(QLatin1String(created->metaObject()->className()), entry->name());
            const QScopedPointer<QWidget> loaded(load(entry->domXml()));
            QVERIFY(loaded);
            QCOMPARE(QLatin1String(loaded->metaObject()->className()), entry->name());
        }
        names.sort();
        QCOMPARE(
            names.join(QLatin1Char(' ')),
            QStringLiteral("QtOrvDoubleSlider QtOrvDoubleSpinBoxVal QtOrvGainSlider QtOrvSlider QtOrvSliderSpinBox "
                           "QtOrvSpinBox QtOrvSpinBoxVal QtOrvSpinBoxVal64"));
        QCOMPARE(groups.size(), 1);
    }

    void aCompiledFormAndALoadedOneSetTheSwitches()
    {
        QWidget compiled;
        Ui::Settings ui;
        ui.setupUi(&compiled);
        checkSettings(compiled);
        QFile form(QStringLiteral(FORM));
        QVERIFY(form.open(QIODevice::ReadOnly));
        const QScopedPointer<QWidget> loaded(load(QString::fromUtf8(form.readAll())));
        QVERIFY(loaded);
        checkSettings(*loaded);
    }

    void theSwitchesAreEditedAndSavedInDesigner()
    {
        const struct
        {
            const char *className, *name;
            bool isOn;
        } rows[] = {
            {"QtOrvSpinBoxVal64", "selectWhenStepping", true}, {"QtOrvSpinBoxVal64", "validateStepping", false},
            {"QtOrvSpinBoxVal64", "ignoreFocusOut", true},     {"QtOrvSpinBoxVal64", "buttonTracking", true},
            {"QtOrvSpinBoxVal64", "entryGuarded", false},      {"QtOrvSpinBoxVal", "validate", false},
            {"QtOrvSpinBoxVal", "validateTyping", true},       {"QtOrvSpinBoxVal", "entryGuarded", false},
            {"QtOrvDoubleSpinBoxVal", "validate", false},      {"QtOrvDoubleSpinBoxVal", "validateTyping", true},
            {"QtOrvDoubleSpinBoxVal", "entryGuarded", false}};
        for (const auto &row : rows) {
            Designer designer(*m_designer, QLatin1String(row.className));
            QVERIFY(designer.widget() && designer.widget()->inherits(row.className));
            const auto text = [](bool on) { return on ? QStringLiteral("true") : QStringLiteral("false"); };
            QCOMPARE(designer.property(row.name), text(row.isOn));
            QCOMPARE(designer.saved(), Saved());
            designer.edit(row.name, !row.isOn);
            designer.edit("maximum", 50);
            const Saved expected = {{QLatin1String(row.name), text(!row.isOn)},
                                    {QStringLiteral("maximum"), designer.property("maximum")}};
            QCOMPARE(designer.saved().value(QLatin1String(row.name)), text(!row.isOn));
            QCOMPARE(designer.saved().keys(), expected.keys());
            designer.setContents(designer.contents());
            QCOMPARE(designer.property(row.name), text(!row.isOn));
            QCOMPARE(designer.saved().keys(), expected.keys());
            designer.reset(row.name);
            QCOMPARE(designer.property(row.name), text(row.isOn));
            QVERIFY(!designer.saved().contains(QLatin1String(row.name)));
            designer.undo();
            QCOMPARE(designer.saved().value(QLatin1String(row.name)), text(!row.isOn));
        }
    }

    void propertiesThatAPersonAddsStandBesideTheSwitches()
    {
        Designer designer(*m_designer, QStringLiteral("QtOrvSpinBoxVal64"));
        QVERIFY(!designer.dynamicSheet()->canAddDynamicProperty(QStringLiteral("validateStepping")));
        const int index = designer.dynamicSheet()->addDynamicProperty(QStringLiteral("mine"), 3);
        QCOMPARE(designer.sheet()->propertyName(index), QStringLiteral("mine"));
        QVERIFY(designer.dynamicSheet()->isDynamicProperty(index));
        designer.edit("validateStepping", true);
        QCOMPARE(designer.saved().keys(),
                 (QStringList{QStringLiteral("mine without a setter"), QStringLiteral("validateStepping")}));
    }

    void oneBoundThatIsEditedMovesNothingElse()
    {
        const char *const classes[] = {"QtOrvSpinBoxVal64",  "QtOrvSpinBoxVal",   "QtOrvDoubleSpinBoxVal",
                                       "QtOrvSlider",        "QtOrvDoubleSlider", "QtOrvSpinBox",
                                       "QtOrvSliderSpinBox", "QtOrvGainSlider"};
        for (const char *const className : classes) {
            Designer designer(*m_designer, QLatin1String(className));
            const bool hasScale = designer.sheet()->indexOf(QStringLiteral("scaleType")) >= 0;
            designer.edit("minimum", 10);
            designer.edit("maximum", 60);
            designer.edit("value", 42);
            if (hasScale)
                designer.widget()->setProperty("scaleType", QtOrvSlider::Log10);
            for (const int maximum : {5000, 30, 5, 2000}) {
                designer.edit("maximum", maximum);
                const Saved saved = designer.saved();
                QCOMPARE(saved.keys(),
                         (QStringList{QStringLiteral("maximum"), QStringLiteral("minimum"), QStringLiteral("value")}));
                QCOMPARE(saved.value(QStringLiteral("maximum")).toDouble(), double(maximum));
                QCOMPARE(saved.value(QStringLiteral("minimum")).toDouble(), 10.0);
                QCOMPARE(saved.value(QStringLiteral("value")).toDouble(), 42.0);
            }
            designer.undo(); // all edits of the bound at once
            QCOMPARE(designer.saved().value(QStringLiteral("maximum")).toDouble(), 60.0);
            designer.edit("maximum", 2000);
            QCOMPARE(designer.widget()->property("minimum").toDouble(), 10.0);
            QCOMPARE(designer.widget()->property("maximum").toDouble(), 2000.0);
            QVERIFY(qAbs(designer.widget()->property("value").toDouble() - 42) <= 2); // of the nearest position
        }
    }

private:
    QTemporaryDir m_home;
    QScopedPointer<DesignerCore> m_designer;
};

ORV_TEST_MAIN(tst_OrvWidgets)
#include "tst_orvwidgets.moc"
