// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "widgetspage.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>

#include <limits>

namespace {

constexpr int listedSignals = 1000;

QString textOf(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

template <typename Number>
QString textOf(Number number)
{
    return QString::number(number);
}

template <typename Widget>
Widget *named(Widget *widget, const QString &name)
{
    widget->setObjectName(name);
    widget->setAccessibleName(name);
    return widget;
}

/** A slider over a wide range on a scale of \a type. */
QtOrvSlider *makeScale(QtOrvSlider::ScaleType type, Qt::Orientation orientation, const QString &name)
{
    auto *const slider = named(new QtOrvSlider(orientation), name);
    slider->setRange(0, 50000);
    slider->setScaleType(type);
    return slider;
}

QWidget *underTitle(const QString &title, QWidget *widget)
{
    auto *const column = new QWidget;
    auto *const layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *const label = new QLabel(title);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
    layout->addWidget(widget, 1);
    return column;
}

} // namespace

WidgetsPage::WidgetsPage(QWidget *parent)
    : QWidget(parent)
    , m_signals(new QPlainTextEdit)
{
    m_signals->setReadOnly(true);
    m_signals->setMaximumBlockCount(listedSignals);
    m_signals->setObjectName(QStringLiteral("signals"));
    m_signals->setAccessibleName(tr("Signals"));
    auto *const upper = new QHBoxLayout;
    upper->addWidget(createSpinBoxes(), 1);
    upper->addWidget(createSliders(), 1);
    auto *const listBox = new QGroupBox(tr("Signals"));
    (new QVBoxLayout(listBox))->addWidget(m_signals);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(upper);
    layout->addWidget(createComposites());
    layout->addWidget(listBox, 1);
}

template <typename Sender, typename Class, typename... Arguments>
void WidgetsPage::list(Sender *sender, const QString &name, void (Class::*signal)(Arguments...))
{
    connect(sender, signal, this, [this, sender, name](Arguments... arguments) {
        const QStringList texts{textOf(arguments)...};
        m_signals->appendPlainText(
            QStringLiteral("%1: %2(%3)").arg(sender->objectName(), name, texts.join(QStringLiteral(", "))));
    });
}

template <typename Slider>
void WidgetsPage::listSlider(Slider *slider)
{
    list(slider, QStringLiteral("focusOut"), &Slider::focusOut);
    list(slider, QStringLiteral("valueChanged"), &Slider::valueChanged);
    list(slider, QStringLiteral("sliderPressed"), &Slider::sliderPressed);
    list(slider, QStringLiteral("sliderMoved"), &Slider::sliderMoved);
    list(slider, QStringLiteral("sliderReleased"), &Slider::sliderReleased);
    list(slider, QStringLiteral("rangeChanged"), &Slider::rangeChanged);
}

template <typename Composite>
void WidgetsPage::listComposite(Composite *composite)
{
    using Number = decltype(composite->value());
    list(composite, QStringLiteral("valueChanged"), QOverload<Number>::of(&Composite::valueChanged));
    list(composite, QStringLiteral("valueChanged"), QOverload<const QString &>::of(&Composite::valueChanged));
    list(composite, QStringLiteral("rangeChanged"), &Composite::rangeChanged);
}

QWidget *WidgetsPage::createSpinBoxes()
{
    auto *const group = new QGroupBox(tr("Spin Boxes"));
    auto *const form = new QFormLayout(group);
    addSpinBoxes(*form);
    return group;
}

void WidgetsPage::addSpinBoxes(QFormLayout &form)
{
    const struct
    {
        QString title;
        int base;
    } wide[] = {{tr("64 bits"), 10}, {tr("64 bits, hexadecimal"), 16}};
    for (const auto &variant : wide) {
        auto *const box = named(new QtOrvSpinBoxVal64, variant.title);
        box->setRange(std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max());
        box->setDisplayIntegerBase(variant.base);
        list(box, QStringLiteral("valueChanged"), QOverload<long long>::of(&QtOrvSpinBoxVal64::valueChanged));
        list(box, QStringLiteral("valueChanged"), QOverload<const QString &>::of(&QtOrvSpinBoxVal64::valueChanged));
        box->setValue(0x123456789abLL);
        form.addRow(variant.title, box);
    }
    for (const bool validates : {false, true}) {
        const QString title = validates ? tr("Steps of 8, Return") : tr("Integer");
        auto *const box = named(new QtOrvSpinBoxVal, title);
        box->setRange(0, 1000);
        box->setSingleStep(validates ? 8 : 1);
        box->setValidate(validates);
        box->setValidateTyping(!validates);
        list(box, QStringLiteral("valueChanged"), QOverload<int>::of(&QtOrvSpinBoxVal::valueChanged));
        form.addRow(title, box);
    }
    for (const bool validates : {false, true}) {
        const QString title = validates ? tr("Steps of 0.25, Return") : tr("With decimals");
        auto *const box = named(new QtOrvDoubleSpinBoxVal, title);
        box->setSingleStep(0.25);
        box->setValidate(validates);
        box->setValidateTyping(!validates);
        list(box, QStringLiteral("valueChanged"), QOverload<double>::of(&QtOrvDoubleSpinBoxVal::valueChanged));
        form.addRow(title, box);
    }
}

QWidget *WidgetsPage::createSliders()
{
    auto *const group = new QGroupBox(tr("Sliders"));
    auto *const row = new QHBoxLayout;
    auto *const form = new QFormLayout;
    addScales(*row);
    addHorizontalSliders(*form);
    auto *const layout = new QVBoxLayout(group);
    layout->addLayout(row, 1);
    layout->addLayout(form);
    return group;
}

void WidgetsPage::addScales(QHBoxLayout &row)
{
    const struct
    {
        QString title;
        QtOrvSlider::ScaleType type;
    } scales[] = {
        {tr("Linear"), QtOrvSlider::Linear}, {tr("Log10"), QtOrvSlider::Log10}, {tr("Sqrt"), QtOrvSlider::Sqrt}};
    for (const auto &scale : scales) {
        QtOrvSlider *const slider = makeScale(scale.type, Qt::Vertical, scale.title);
        listSlider(slider);
        slider->setValue(1000);
        row.addWidget(underTitle(scale.title, slider));
    }
    auto *const slider = named(new QtOrvDoubleSlider(Qt::Vertical), tr("Double"));
    listSlider(slider);
    row.addWidget(underTitle(slider->objectName(), slider));
}

void WidgetsPage::addHorizontalSliders(QFormLayout &form)
{
    QtOrvSlider *const scale = makeScale(QtOrvSlider::Log10, Qt::Horizontal, tr("Log10, horizontal"));
    listSlider(scale);
    form.addRow(scale->objectName(), scale);

    auto *const decimals = named(new QtOrvDoubleSlider(Qt::Horizontal), tr("Steps of 0.3"));
    decimals->setDecimals(1);
    decimals->setRange(-1, 1);
    decimals->setSingleStep(0.3);
    listSlider(decimals);
    form.addRow(decimals->objectName(), decimals);

    auto *const bare = named(new QtOrvSlider(Qt::Horizontal), tr("Without labels"));
    bare->setMinLabelVisiable(false);
    bare->setMaxLabelVisiable(false);
    listSlider(bare);
    form.addRow(bare->objectName(), bare);
}

QWidget *WidgetsPage::createComposites()
{
    auto *const group = new QGroupBox(tr("Spin Boxes With Sliders"));
    auto *const grid = new QGridLayout(group);
    const struct
    {
        QString title;
        Qt::Orientation orientation;
        bool readOnly;
    } popUps[] = {{tr("Pop-&up:"), Qt::Vertical, false},
                  {tr("Pop-up, &horizontal:"), Qt::Horizontal, false},
                  {tr("&Read-only:"), Qt::Vertical, true}};
    int column = 0;
    for (const auto &variant : popUps) {
        auto *const box = new QtOrvSpinBox(variant.orientation);
        box->setObjectName(QString(variant.title).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
        box->setLeftLabelText(variant.title);
        listComposite(box);
        box->setReadOnly(variant.readOnly);
        box->setValue(25);
        grid->setColumnStretch(column, 1);
        grid->addWidget(box, 0, column++);
    }

    auto *const exposure = new QtOrvSliderSpinBox;
    exposure->setObjectName(tr("Exposure"));
    exposure->setLeftLabelText(tr("&Exposure:"));
    exposure->setRange(0, 50000);
    exposure->slider()->setScaleType(QtOrvSlider::Log10);
    exposure->spinBox()->setSuffix(tr(" us"));
    listComposite(exposure);
    exposure->setValue(1000);
    grid->addWidget(exposure, 1, 0, 1, 3);

    auto *const gain = new QtOrvGainSlider;
    gain->setObjectName(tr("Gain"));
    gain->setTopLabelText(tr("&Gain in decibels, steps of a quarter"));
    gain->setDecimals(2);
    gain->setRange(-6, 24);
    gain->setSingleStep(0.25);
    gain->setValidate(true);
    listComposite(gain);
    gain->setValue(3.3);
    grid->addWidget(gain, 2, 0, 1, 3);
    return group;
}
