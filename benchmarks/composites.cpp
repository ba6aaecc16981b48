// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "measure.h"

#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <QSpinBox>

#include <cmath>

namespace {

constexpr int values = 100000;
constexpr int highest = 1000; // values go up to it and start again, so that each is another one
constexpr double fineStep = 0.1; // of a step of the numbers with decimals
constexpr int repetitions = 7;

/** What a form does without a composite: the two connected by hand, each after the other, the spin box telling. */
class BareIntegers : public QWidget
{
public:
    BareIntegers()
    {
        auto *const layout = new QHBoxLayout(this);
        layout->addWidget(&m_slider);
        layout->addWidget(&m_spinBox);
        m_slider.setRange(0, highest);
        m_spinBox.setRange(0, highest);
        connect(&m_slider, &QSlider::valueChanged, &m_spinBox, &QSpinBox::setValue);
        connect(&m_spinBox, QOverload<int>::of(&QSpinBox::valueChanged), &m_slider, &QSlider::setValue);
    }

    void setValue(int value) { m_slider.setValue(value); }
    int value() const { return m_spinBox.value(); }
    template <typename Count>
    void onChange(Count count)
    {
        connect(&m_spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, count);
    }

private:
    QSlider m_slider{Qt::Horizontal};
    QSpinBox m_spinBox;
};

class BareDoubles : public QWidget
{
public:
    BareDoubles()
    {
        auto *const layout = new QHBoxLayout(this);
        layout->addWidget(&m_slider);
        layout->addWidget(&m_spinBox);
        m_slider.setRange(0, highest);
        m_spinBox.setDecimals(3);
        m_spinBox.setRange(0, highest * fineStep);
        connect(&m_slider, &QSlider::valueChanged, this,
                [this](int position) { m_spinBox.setValue(position * fineStep); });
        connect(&m_spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this](double value) { m_slider.setValue(int(std::lround(value / fineStep))); });
    }

    void setValue(double value) { m_slider.setValue(int(std::lround(value / fineStep))); }
    double value() const { return m_spinBox.value(); }
    template <typename Count>
    void onChange(Count count)
    {
        connect(&m_spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, count);
    }

private:
    QSlider m_slider{Qt::Horizontal};
    QDoubleSpinBox m_spinBox;
};

template <typename Composite>
class Ours : public Composite
{
public:
    using Number = decltype(std::declval<Composite>().value());

    explicit Ours(Number step)
    {
        this->setSingleStep(step);
        this->setRange(0, highest * step);
    }
    template <typename Count>
    void onChange(Count count)
    {
        QObject::connect(this, QOverload<Number>::of(&Composite::valueChanged), this, count);
    }
};

template <typename Widget, typename Number>
double millisecondsToSet(Widget &widget, Number step)
{
    int changes = 0;
    widget.onChange([&changes] { ++changes; });
    widget.resize(400, 60);
    const double milliseconds = millisecondsOf([&] {
        for (int i = 0; i < values; ++i)
            widget.setValue((i + 1) % highest * step);
    });
    require(changes == values && std::abs(double(widget.value() - values % highest * step)) < 1e-9, "values were lost");
    return milliseconds;
}

template <typename Composite, typename Bare, typename Number>
void measure(Table &table, const char *what, Number step)
{
    Samples ours;
    Samples other;
    for (int i = 0; i < repetitions; ++i) {
        Ours<Composite> composite(step);
        ours.add(millisecondsToSet(composite, step));
        Bare bare;
        other.add(millisecondsToSet(bare, step));
    }
    table.add(QStringLiteral("%1 values through %2").arg(values).arg(QLatin1String(what)), QStringLiteral("ms"),
              ours.median(), other.median(), 1.5);
}

} // namespace

/** The composites beside bare pairs: orv-composites-benchmark */
int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Table table;
    measure<QtOrvSpinBox, BareIntegers>(table, "QtOrvSpinBox", 1);
    measure<QtOrvSliderSpinBox, BareIntegers>(table, "QtOrvSliderSpinBox", 1);
    measure<QtOrvGainSlider, BareDoubles>(table, "QtOrvGainSlider", fineStep);
    table.print();
    return 0;
}
