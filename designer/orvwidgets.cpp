// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvwidgets.h"

#include "widgetedits.h"
#include "widgetsheet.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QIcon>

#include <utility>

namespace {

const QLatin1String prefix("QtOrv");

QString horizontal()
{
    return QStringLiteral("<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>");
}

QString leftCaption(const QString &text)
{
    return QStringLiteral("<property name=\"leftLabelText\"><string>%1</string></property>").arg(text.toHtmlEscaped());
}

} // namespace

OrvWidget::OrvWidget(const QString &className, Create create, Texts texts)
    : m_className(className)
    , m_create(create)
    , m_texts(std::move(texts))
{
}

QString OrvWidget::group() const
{
    return OrvWidgets::tr("Camera Values");
}

QString OrvWidget::includeFile() const
{
    return QStringLiteral("OrvCameraGuiApi/widgets/%1.h").arg(m_className.toLower());
}

QIcon OrvWidget::icon() const
{
    return QIcon(QStringLiteral(":/orvwidgets/%1.png").arg(m_className.toLower()));
}

QWidget *OrvWidget::createWidget(QWidget *parent)
{
    QWidget *const widget = m_create(parent);
    followDynamicProperties(widget);
    return widget;
}

void OrvWidget::initialize(QDesignerFormEditorInterface *core)
{
    WidgetSheetFactory::registerAt(core);
}

QString OrvWidget::domXml() const
{
    QString objectName = m_className.mid(prefix.size());
    objectName[0] = objectName[0].toLower();
    return QStringLiteral(
               "<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget><customwidgets><customwidget>"
               "<class>%1</class><propertyspecifications>"
               "<stringpropertyspecification name=\"leftLabelText\" type=\"singleline\"/>"
               "<stringpropertyspecification name=\"topLabelText\" type=\"singleline\"/>"
               "<stringpropertyspecification name=\"prefix\" type=\"singleline\"/>"
               "<stringpropertyspecification name=\"suffix\" type=\"singleline\"/>"
               "</propertyspecifications></customwidget></customwidgets></ui>")
        .arg(m_className, objectName, m_texts.properties);
}

OrvWidgets::OrvWidgets(QObject *parent)
    : QObject(parent)
{
    addSpinBoxes();
    addSliders();
    addComposites();
}

OrvWidgets::~OrvWidgets()
{
    qDeleteAll(m_widgets);
}

template <typename Widget>
void OrvWidgets::add(const QString &toolTip, const QString &whatsThis, const QString &properties)
{
    const OrvWidget::Create create = [](QWidget *parent) -> QWidget * { return new Widget(parent); };
    m_widgets.append(
        new OrvWidget(QLatin1String(Widget::staticMetaObject.className()), create, {toolTip, whatsThis, properties}));
}

void OrvWidgets::addSpinBoxes()
{
    add<QtOrvSpinBoxVal64>(
        tr("Spin box for 64-bit integers"),
        tr("Takes integers of up to 64 bits, in any base, and tells apart what is shown from what is "
           "committed."),
        QStringLiteral("<property name=\"maximum\"><number>99</number></property>"));
    add<QtOrvSpinBoxVal>(tr("Spin box for integers on a grid"),
                         tr("A spin box that can keep its value on the grid of its steps, and typed text from taking "
                            "effect before Return is pressed."),
                         QString());
    add<QtOrvDoubleSpinBoxVal>(tr("Spin box for numbers on a grid"),
                               tr("A spin box for numbers with decimals that can keep its value on the grid of its "
                                  "steps, and typed text from taking effect before Return is pressed."),
                               QString());
}

void OrvWidgets::addSliders()
{
    add<QtOrvSlider>(tr("Slider for integers with a linear, logarithmic or square-root scale"),
                     tr("A slider between its bounds, with a scale that can give wide ranges fine control at their low "
                        "end."),
                     horizontal());
    add<QtOrvDoubleSlider>(tr("Slider for numbers with decimals"),
                           tr("A slider between its bounds, with a position for every step."), horizontal());
}

void OrvWidgets::addComposites()
{
    add<QtOrvSpinBox>(tr("Spin box with a slider that pops up"),
                      tr("A spin box for integers with a button that opens a slider, and with captions."),
                      leftCaption(tr("Value:")));
    add<QtOrvSliderSpinBox>(tr("Slider and spin box for integers"),
                            tr("A slider and a spin box in step, with captions. A drag takes effect when the slider is "
                               "released."),
                            leftCaption(tr("Value:")));
    add<QtOrvGainSlider>(tr("Slider and spin box for numbers with decimals"),
                         tr("A slider and a spin box in step, with captions. A drag takes effect when the slider is "
                            "released."),
                         leftCaption(tr("Gain:")));
}
