#include <orvtest.h>

#include <QBuffer>
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

} // namespace

class tst_OrvWidgets : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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

    /** In the order in which Qt Designer writes them: one property may depend on another. */
    void aFormSetsTheProperties()
    {
        const struct
        {
            const char *className;
            QVector<std::pair<const char *, QString>> properties;
        } rows[] = {
            {"QtOrvSpinBoxVal64", {{"maximum", QStringLiteral("9000000000")}, {"value", QStringLiteral("8000000000")}}},
            {"QtOrvSpinBoxVal", {{"maximum", QStringLiteral("500")}, {"value", QStringLiteral("400")}}},
            {"QtOrvDoubleSpinBoxVal", {{"maximum", QStringLiteral("500")}, {"value", QStringLiteral("1.25")}}},
            {"QtOrvSlider",
             {{"orientation", QStringLiteral("Qt::Horizontal")},
              {"minimum", QStringLiteral("10")},
              {"maximum", QStringLiteral("1010")},
              {"log10Coef", QStringLiteral("50")},
              {"scaleType", QStringLiteral("QtOrvSlider::Log10")},
              {"maxLabelVisiable", QStringLiteral("false")},
              {"value", QStringLiteral("100")}}},
            {"QtOrvDoubleSlider",
             {{"decimals", QStringLiteral("1")},
              {"minimum", QStringLiteral("-1.5")},
              {"singleStep", QStringLiteral("0.5")},
              {"value", QStringLiteral("2.5")}}},
            {"QtOrvSpinBox",
             {{"minimum", QStringLiteral("150")},
              {"maximum", QStringLiteral("300")},
              {"validateTyping", QStringLiteral("false")},
              {"readOnly", QStringLiteral("true")},
              {"sliderOrientation", QStringLiteral("Qt::Horizontal")},
              {"value", QStringLiteral("200")}}},
            {"QtOrvSliderSpinBox",
             {{"singleStep", QStringLiteral("4")},
              {"validate", QStringLiteral("true")},
              {"leftLabelText", QStringLiteral("Left & right")},
              {"value", QStringLiteral("52")}}},
            {"QtOrvGainSlider",
             {{"decimals", QStringLiteral("2")},
              {"singleStep", QStringLiteral("0.25")},
              {"topLabelText", QStringLiteral("Gain")},
              {"value", QStringLiteral("0.75")}}},
        };
        for (const auto &row : rows) {
            QString form = QStringLiteral("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"form\"><layout "
                                          "class=\"QVBoxLayout\"><item><widget class=\"%1\" name=\"it\">")
                               .arg(QLatin1String(row.className));
            for (const auto &[name, text] : row.properties)
                form += QStringLiteral("<property name=\"%1\"><%2>%3</%2></property>")
                            .arg(QLatin1String(name), elementFor(text), text.toHtmlEscaped());
            const QScopedPointer<QWidget> loaded(
                load(form + QStringLiteral("</widget></item></layout></widget></ui>")));
            QVERIFY(loaded);
            const auto *const widget = loaded->findChild<QWidget *>(QStringLiteral("it"));
            QVERIFY(widget && widget->inherits(row.className));
            for (const auto &[name, text] : row.properties) {
                const QVariant value = widget->property(name);
                const QString shown = elementFor(text) == QLatin1String("enum")
                    ? QString::fromLatin1(enumerator(*widget, name).valueToKey(value.toInt()))
                    : value.toString();
                QCOMPARE(shown, text.section(QStringLiteral("::"), -1));
            }
        }
    }

private:
    static QString elementFor(const QString &text)
    {
        bool isNumber = false;
        text.toDouble(&isNumber);
        if (isNumber)
            return text.contains(QLatin1Char('.')) ? QStringLiteral("double")
                : text.size() > 9                  ? QStringLiteral("longLong")
                                                   : QStringLiteral("number");
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            return QStringLiteral("bool");
        return text.contains(QLatin1String("::")) ? QStringLiteral("enum") : QStringLiteral("string");
    }

    static QMetaEnum enumerator(const QWidget &widget, const char *property)
    {
        return widget.metaObject()->property(widget.metaObject()->indexOfProperty(property)).enumerator();
    }
};

ORV_TEST_MAIN(tst_OrvWidgets)
#include "tst_orvwidgets.moc"
