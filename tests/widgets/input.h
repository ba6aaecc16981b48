// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <utility>

/** The point where the mouse takes hold of a slider. */
inline QPoint handle(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = slider.sliderPosition();
    option.upsideDown = slider.orientation() == Qt::Vertical;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
}

/** Types characters that no key of QTest stands for, too; "\b" is Backspace. */
inline void typeOn(QWidget *widget, const QString &text)
{
    for (const char32_t c : text.toStdU32String()) {
        if (c == '\b') {
            QTest::keyClick(widget, Qt::Key_Backspace);
            continue;
        }
        for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent key(kind, QChar::isDigit(c) ? 0 : int(c), Qt::NoModifier, QString::fromUcs4(&c, 1));
            QApplication::sendEvent(widget, &key);
        }
    }
}

/** Types over what the box shows. */
inline void type(QAbstractSpinBox *box, const QString &text)
{
    box->selectAll();
    typeOn(box, text);
}

/** Turns the wheel over the middle of \a widget; whether it takes that. */
inline bool turnWheel(QWidget *widget, int steps)
{
    const QPoint place = widget->rect().center();
    QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(widget, &wheel);
    return wheel.isAccepted();
}

/** Notes the values, ranges and, in quotes, texts that a widget announces. */
template <typename Widget>
class SignalLog : public QObject
{
public:
    using Number = decltype(std::declval<Widget>().value());

    explicit SignalLog(Widget &widget)
    {
        connect(&widget, QOverload<Number>::of(&Widget::valueChanged), this, [this](Number value) {
            values.append(value);
            m_log += QStringLiteral("%1 ").arg(value);
        });
    }
    void noteTexts(Widget &widget)
    {
        connect(&widget, QOverload<const QString &>::of(&Widget::valueChanged), this,
                [this](const QString &text) { m_log += QStringLiteral("'%1' ").arg(text); });
    }
    void noteRanges(Widget &widget)
    {
        connect(&widget, &Widget::rangeChanged, this,
                [this](Number from, Number to) { m_log += QStringLiteral("%1..%2 ").arg(from).arg(to); });
    }
    QString take() { return std::exchange(m_log, QString()).trimmed(); }
    void clear() { take(), values.clear(); }

    QVector<Number> values;

private:
    QString m_log;
};

/** A window with a focused field, whose signals are noted, and another widget. */
template <typename Field>
class FieldWindow : public QWidget
{
public:
    explicit FieldWindow(typename SignalLog<Field>::Number value)
    {
        auto *const layout = new QVBoxLayout(this);
        layout->addWidget(&field);
        layout->addWidget(&other);
        field.setValue(value);
        resize(400, 100);
        show();
        field.setFocus(Qt::OtherFocusReason);
        log.clear();
    }
    bool isReady() { return QTest::qWaitForWindowActive(this) && field.hasFocus(); }
    QString takeLog() { return log.take(); }

    Field field;
    QLineEdit other;
    QLineEdit *const edit = field.template findChild<QLineEdit *>();
    SignalLog<Field> log{field};
};
