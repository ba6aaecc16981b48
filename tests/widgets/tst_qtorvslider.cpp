// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "input.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <orvtest.h>

#include <QLabel>
#include <QSet>

#include <cmath>
#include <limits>

namespace {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr double Huge = std::numeric_limits<double>::max();
constexpr double Tiny = std::numeric_limits<double>::denorm_min();
constexpr auto Linear = QtOrvSlider::Linear;
constexpr auto Log10 = QtOrvSlider::Log10;
constexpr auto Sqrt = QtOrvSlider::Sqrt;

struct Setting
{
    QtOrvSlider::ScaleType type;
    double coef;
    int minimum, maximum, step;
    bool validate;
};

void apply(QtOrvSlider &slider, const Setting &setting)
{
    slider.setRange(setting.minimum, setting.maximum);
    slider.setSingleStep(setting.step);
    slider.setLog10Coef(setting.coef);
    slider.setScaleType(setting.type);
    slider.setValidate(setting.validate);
}

const Setting settings[] = {
    {Linear, 100, 0, 100, 1, false},  {Linear, 100, -50, 47, 10, true},
    {Linear, 100, 3, 9, 100, true},   {Linear, 100, Smallest, Largest, Largest, true},
    {Log10, 100, 0, 1000, 1, false},  {Log10, 100, -1000, 1003, 10, true},
    {Log10, 1, 0, 50000, 7, false},   {Log10, 0.01, 0, 50000, 7, false},
    {Log10, 1e12, 0, 50000, 7, true}, {Log10, 37.7, Smallest, Largest, 1 << 20, true},
    {Log10, 100, 5, 5, 1, true},      {Log10, 1, 5, 6, 1, false},
    {Log10, 1000, 0, 99, 10, true},   {Log10, 100, 0, 1000, 997, true},
    {Log10, 100, 0, 1000, 51, false}, {Sqrt, 100, 0, 10, 1, false},
    {Sqrt, 100, -7, 1000, 30, true},  {Sqrt, 100, Smallest, Largest, 1, false},
    {Sqrt, 100, 5, 6, 1, true},       {Sqrt, 100, 0, 2, 5, true},
    {Sqrt, 100, -3, -3, 5, false},    {Linear, 100, -50, 43, 10, true},
    {Log10, 2, 0, 2000, 50, true},    {Log10, 100, 0, 1003, 10, true},
    {Sqrt, 100, 0, 1003, 20, true},   {Linear, 100, -1, Largest, 1, false},
};

bool isOnGrid(const Setting &setting, int value)
{
    return !setting.validate || value == setting.minimum || value == setting.maximum
        || (qint64(value) - setting.minimum) % setting.step == 0;
}

/** Notes values and ranges. */
template <typename Slider>
class Recorder : public SignalLog<Slider>
{
public:
    explicit Recorder(Slider &slider)
        : SignalLog<Slider>(slider)
    {
        this->noteRanges(slider);
    }
};

/**
 * Goes from one bound to the other by keys and returns the values on the way, or nothing if it is too far. Every key
 * changes the value once, to one on the grid; by at least a step, except from a value off the grid.
 */
QSet<int> walk(QtOrvSlider &slider, const Setting &setting, bool up, Qt::Key key)
{
    slider.setValue(up ? setting.minimum : setting.maximum);
    const int bound = up ? setting.maximum : setting.minimum;
    const qint64 positions = qint64(slider.slider()->maximum()) - slider.slider()->minimum();
    QSet<int> values{slider.value()};
    if (positions / slider.slider()->singleStep() > 2000)
        return {};
    Recorder recorder(slider);
    while (slider.value() != bound && !QTest::currentTestFailed()) {
        const qint64 before = slider.value();
        recorder.values.clear();
        QTest::keyClick(slider.slider(), key);
        const qint64 way = up ? slider.value() - before : before - slider.value();
        const bool fromOffGrid = setting.validate && (before - setting.minimum) % setting.step != 0;
        values.insert(slider.value());
        [&] {
            QCOMPARE(recorder.values, QVector<int>{slider.value()});
            QVERIFY(way > 0 && isOnGrid(setting, slider.value()));
            QVERIFY(values.size() <= 2002); // no more keys than positions
            QVERIFY(way >= setting.step || fromOffGrid || slider.value() == bound);
        }();
    }
    return values;
}

struct DoubleSetting
{
    double minimum, maximum, step;
    int last; ///< position
};

const DoubleSetting doubleSettings[] = {
    {0, 1, 0.3, 4},
    {0, 0.9, 0.3, 3},
    {0, 1, 0.1, 10},
    {0, 100, 1, 100},
    {0.1, 0.4, 0.1, 3},
    {-0.7, 0.7, 0.1, 14},
    {-2.5, 1000, 0.333, 3011},
    {0, 0.005, 1, 1},
    {0.007, 0.007, 0.01, 0},
    {0, 1, 0.6, 2},
    {0, 0.001, 0.001, 1},
    {0.9, 1, 0.001, 100},
    {-1e6, 1e6, 999.999, 2001},
};

void apply(QtOrvDoubleSlider &slider, const DoubleSetting &setting)
{
    slider.setRange(setting.minimum, setting.maximum);
    slider.setSingleStep(setting.step);
}

} // namespace

class tst_QtOrvSlider : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** Worked out by hand: inner range, and for some values their position and what comes back. */
    void mapsAsWorkedOut()
    {
        const struct
        {
            Setting setting;
            int first, last, value, position, back;
        } rows[] = {
            {{Linear, 100, -50, 47, 10, true}, -50, 47, -46, -50, -50},
            {{Linear, 100, -50, 47, 10, true}, -50, 47, -45, -40, -40},
            {{Linear, 100, -50, 47, 10, true}, -50, 47, 46, 47, 47}, // capped
            {{Log10, 100, 0, 1000, 1, false}, 100, 300, 1, 104, 1}, // 10^1.04 = 10.96
            {{Log10, 100, 0, 1000, 1, false}, 100, 300, 500, 271, 503}, // 10^2.71 = 512.86
            {{Log10, 100, 0, 1000, 1, false}, 100, 300, 995, 300, 1000},
            {{Log10, 100, -500, 500, 100, true}, 100, 300, 8, 271, 0}, // 512.86 - 10 - 500 = 2.86
            {{Log10, 100, 0, 1005, 1, false}, 100, 301, 995, 300, 990},
            {{Log10, 100, Smallest, Largest, 1, false}, 100, 964, Smallest + 90, 200, Smallest + 90},
            {{Log10, 0.1, 0, 1, 1, false}, 0, 1, 1, 1, 1},
            {{Sqrt, 100, 0, 10, 1, false}, 0, 4, 7, 3, 9},
            {{Sqrt, 100, 0, 10, 1, false}, 0, 4, 10, 4, 10},
            {{Sqrt, 100, -5, 95, 1, false}, 0, 10, 20, 5, 20},
            {{Sqrt, 100, Smallest, Largest, 1, false}, 0, 65536, 0, 46341, 4633}, // 46341^2 = 2^31 + 4633
            {{Sqrt, 100, 0, 2, 1, false}, 0, 2, 1, 1, 1},
        };
        for (const auto &row : rows) {
            QtOrvSlider slider;
            apply(slider, row.setting);
            QCOMPARE(slider.slider()->minimum(), row.first);
            QCOMPARE(slider.slider()->maximum(), row.last);
            slider.setValue(row.value);
            QCOMPARE(slider.slider()->value(), row.position);
            QCOMPARE(slider.value(), row.back);
        }
    }

    void everyKeyChangesTheValue()
    {
        const std::tuple<Qt::Key, Qt::Key, Qt::LayoutDirection> keys[] = {
            {Qt::Key_Up, Qt::Key_Down, Qt::LeftToRight},
            {Qt::Key_Left, Qt::Key_Right, Qt::RightToLeft},
            {Qt::Key_PageUp, Qt::Key_PageDown, Qt::LeftToRight}};
        for (const auto &[upKey, downKey, direction] : keys) {
            for (const Setting &setting : settings) {
                QtOrvSlider slider(Qt::Horizontal);
                apply(slider, setting);
                slider.setLayoutDirection(direction);
                slider.setValue(Largest);
                QCOMPARE(slider.value(), setting.maximum);
                slider.setValue(Smallest);
                QCOMPARE(slider.value(), setting.minimum);
                const QSet<int> upward = walk(slider, setting, true, upKey);
                const QSet<int> downward = walk(slider, setting, false, downKey);
                const bool isStep = setting.validate && upKey != Qt::Key_PageUp;
                if (isStep)
                    QCOMPARE(downward, upward); // the same points of the grid
                if (isStep && setting.type == Linear && !upward.isEmpty()) { // all of them
                    const qint64 width = qint64(setting.maximum) - setting.minimum;
                    QCOMPARE(qint64(upward.size()), width / setting.step + 1 + (width % setting.step ? 1 : 0));
                }
            }
        }
    }

    /** More values than a slider takes positions: from 2^31 on, Qt divides by zero or loses the handle. */
    void aRangeOfMoreThanHalfTheIntegersIsScaled()
    {
        const std::pair<int, int> ranges[] = {
            {-1, Largest}, {Smallest, Largest}, {Smallest, 0}, {Smallest, Largest - 1}};
        for (const auto &[minimum, maximum] : ranges) {
            QtOrvSlider slider(Qt::Horizontal);
            slider.resize(300, 60);
            slider.show();
            QVERIFY(QTest::qWaitForWindowExposed(&slider));
            slider.setMinimum(minimum);
            slider.setMaximum(maximum);
            for (const int value : {minimum, minimum + 1, 12345, -1, maximum - 1, maximum, 12345}) {
                slider.setValue(value);
                QCOMPARE(slider.value(), qBound(minimum, value, maximum));
            }
            QTest::keyClick(slider.slider(), Qt::Key_Right);
            QCOMPARE(slider.value(), qBound(minimum, 12346, maximum));
            slider.setValue(minimum / 2 + maximum / 2);
            QVERIFY(qAbs(handle(*slider.slider()).x() - slider.slider()->width() / 2) < 3);
            slider.setMinimum(0);
            QCOMPARE(slider.maximum(), qMax(0, maximum));
        }
        QtOrvSlider widest; // that stays as it is
        widest.setRange(-1, Largest - 1);
        QCOMPARE(widest.slider()->minimum(), -1);
        QCOMPARE(widest.slider()->maximum(), Largest - 1);
    }

    void aPageFollowsTheRange()
    {
        QtOrvSlider slider;
        slider.setRange(0, 50000);
        QTest::keyClick(slider.slider(), Qt::Key_PageUp);
        QCOMPARE(slider.value(), 5000);
        slider.setRange(0, 30);
        slider.setSingleStep(4);
        QTest::keyClick(slider.slider(), Qt::Key_Home);
        QTest::keyClick(slider.slider(), Qt::Key_PageUp);
        QCOMPARE(slider.value(), 4);
        slider.slider()->setPageStep(8);
        slider.setRange(0, 1000);
        QTest::keyClick(slider.slider(), Qt::Key_PageUp);
        QCOMPARE(slider.value(), 12);
    }

    /** 51 has the position 179, which by itself stands for 52: 10^1.79 = 61.66. */
    void aSteppedValueStaysUntilAnotherIsSet()
    {
        QtOrvSlider slider;
        apply(slider, {Log10, 100, 0, 1000, 51, false});
        QTest::keyClick(slider.slider(), Qt::Key_Up);
        Recorder recorder(slider);
        slider.setValue(51);
        QCOMPARE(slider.value(), 51);
        slider.setSingleStep(50);
        slider.setValidate(true); // a new grid moves it, and a key leads on from there
        QCOMPARE(slider.value(), 50);
        QTest::keyClick(slider.slider(), Qt::Key_Up);
        slider.setValidate(false);
        slider.setValue(52);
        slider.setScaleType(Linear);
        QCOMPARE(recorder.take(), QStringLiteral("100 52"));
    }

    void settersTellOnceAndKeepTheValue()
    {
        QtOrvSlider slider;
        Recorder recorder(slider);
        slider.setValue(50);
        slider.setValue(50);
        QCOMPARE(recorder.take(), QStringLiteral("50"));
        slider.setRange(0, 100);
        QCOMPARE(recorder.take(), QString());
        slider.setRange(60, 2000);
        QCOMPARE(recorder.take(), QStringLiteral("60..2000 60"));
        slider.setRange(0, 1000);
        QCOMPARE(recorder.take(), QStringLiteral("0..1000"));
        slider.setScaleType(Sqrt);
        QCOMPARE(recorder.take(), QStringLiteral("64")); // of 8 x 8, not of anything on the way
        slider.setScaleType(Linear);
        slider.setScaleType(Log10);
        QCOMPARE(recorder.take(), QString()); // 10^1.87 = 74.1
        slider.setRange(200, 100);
        QCOMPARE(recorder.take(), QStringLiteral("200..200 200"));
        slider.setValidate(true);
        slider.setSingleStep(7);
        slider.setScaleType(QtOrvSlider::ScaleType(3)); // as all that follow, no use
        for (const double coef : {0.0, -1.0, qInf(), qQNaN()})
            slider.setLog10Coef(coef);
        QVERIFY(slider.scaleType() == Log10 && slider.log10Coef() == 100);
        QCOMPARE(recorder.take(), QString());
    }

    void oneBoundTakesTheOtherFromTheInnerSlider()
    {
        QtOrvSlider slider;
        slider.setMinimum(-20);
        slider.setMaximum(-30);
        QCOMPARE(slider.maximum(), -20);
        apply(slider, {Log10, 100, 0, 1000, 1, false});
        slider.setMaximum(2000);
        QCOMPARE(slider.minimum(), 100);
        slider.setMinimum(0);
        QCOMPARE(slider.maximum(), 328); // of 100..2000: 100 log10(1910) = 328.1, and 10^3.28 reaches 1900
    }

    void labelsAreWrittenAsTheLocaleHasIt()
    {
        const struct
        {
            const char *locale, *minimum /* without its sign */, *doubleMaximum;
        } rows[] = {{"de_DE", "1500", "1234,500"},
                    {"ar_EG", "\u0661\u0665\u0660\u0660", "\u0661\u0662\u0663\u0664\u066b\u0665\u0660\u0660"}};
        QtOrvSlider slider;
        slider.setRange(-1500, 20000);
        QtOrvDoubleSlider doubleSlider;
        doubleSlider.setRange(0, 1234.5);
        doubleSlider.setDecimals(1); // which the labels take up with the next range
        for (const auto &row : rows) {
            slider.setLocale(QLocale(QLatin1String(row.locale)));
            doubleSlider.setLocale(slider.locale());
            const QString minus(slider.locale().negativeSign()); // with a mark of the direction, or without
            QCOMPARE(slider.minLabel()->text(), minus + QString::fromUtf8(row.minimum));
            QCOMPARE(doubleSlider.maxLabel()->text(), QString::fromUtf8(row.doubleMaximum));
        }
        doubleSlider.setLocale(QLocale::c());
        doubleSlider.setRange(-1, 2.25);
        QCOMPARE(doubleSlider.minLabel()->text(), QStringLiteral("-1.0"));
        doubleSlider.setDecimals(-5);
        QCOMPARE(doubleSlider.decimals(), 0);
        doubleSlider.setDecimals(std::numeric_limits<int>::max());
        doubleSlider.setRange(0, Huge);
        QCOMPARE(doubleSlider.maxLabel()->text().size(), 309 + 1 + doubleSlider.decimals());
    }

    void mouseDrags()
    {
        FieldWindow<QtOrvSlider> window(0);
        QVERIFY(window.isReady());
        QtOrvSlider &slider = window.field;
        slider.setOrientation(Qt::Horizontal);
        QCoreApplication::processEvents();
        QSlider *const inner = slider.slider();
        QSignalSpy pressed(&slider, &QtOrvSlider::sliderPressed);
        QSignalSpy moved(&slider, &QtOrvSlider::sliderMoved);
        QSignalSpy released(&slider, &QtOrvSlider::sliderReleased);
        QSignalSpy focusOut(&slider, &QtOrvSlider::focusOut); // for a delegate the end of editing
        apply(slider, {Sqrt, 100, 0, 10000, 1, false});
        window.log.clear();
        const QPoint start = handle(*inner);
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, inner->mapTo(&window, start));
        QTest::mouseMove(window.windowHandle(), inner->mapTo(&window, start + QPoint(200, 0)));
        QTRY_VERIFY(!moved.isEmpty());
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(moved.last().first().toInt(), inner->value());
        QCOMPARE(window.log.values, (QVector<int>{inner->value() * inner->value()}));
        slider.hide(); // in the middle of it
        QCOMPARE(released.size(), 1);
        QCOMPARE(focusOut.size(), 1);
    }

    void laysOutByOrientation()
    {
        QtOrvSlider slider;
        slider.resize(100, 300);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QVERIFY(slider.maxLabel()->geometry().bottom() < slider.slider()->y());
        QVERIFY(slider.slider()->geometry().bottom() < slider.minLabel()->y());
        slider.setOrientation(Qt::Horizontal);
        slider.resize(300, 100);
        QTRY_VERIFY(slider.slider()->geometry().bottom() < slider.minLabel()->y());
        QVERIFY(slider.minLabel()->geometry().right() < slider.maxLabel()->x());
        slider.setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(slider.maxLabel()->geometry().right() < slider.minLabel()->x());
        slider.setMaxLabelVisiable(false);
        QVERIFY(!slider.isMaxLabelVisiable() && slider.isMinLabelVisiable());
    }
};

class tst_QtOrvDoubleSlider : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasAPositionForEveryStep()
    {
        for (const DoubleSetting &setting : doubleSettings) {
            for (const bool validate : {false, true}) {
                QtOrvDoubleSlider slider;
                apply(slider, setting);
                slider.setValidate(validate);
                QCOMPARE(slider.slider()->minimum(), 0);
                QCOMPARE(slider.slider()->maximum(), setting.last);
                for (int i = 0; i <= 500; ++i) {
                    const int position = int(qint64(setting.last) * i / 500);
                    slider.slider()->setValue(position);
                    const double value = slider.value();
                    const double expected =
                        position == setting.last ? setting.maximum : setting.minimum + position * setting.step;
                    QVERIFY(qAbs(value - expected) <= 1e-9 * qMax(1.0, qAbs(expected)));
                    QVERIFY(value >= slider.minimum() && value <= slider.maximum());
                    slider.setValue(value + (position < setting.last ? 0.4 : 0) * setting.step); // the nearest one
                    QVERIFY(position == setting.last - 1 || slider.slider()->value() == position);
                }
                slider.setValue(qInf());
                QCOMPARE(slider.value(), slider.maximum());
                slider.setValue(-qInf());
                QCOMPARE(slider.value(), slider.minimum());
            }
        }
    }

    /** More positions than an int counts lie evenly, and a width that is not finite is no obstacle. */
    void extremesStayInTheirPlace()
    {
        const struct
        {
            double minimum, maximum, step;
            bool crowded;
        } rows[] = {{0, 1e12, 1e-3, true},      {-Huge, Huge, Tiny, true}, {-Huge, Huge, 1, true},
                    {-Huge, Huge, Huge, false}, {0, Tiny, Huge, false},    {1e15, 1e15 + 1, 1e-3, false}};
        for (const auto &row : rows) {
            for (const bool validate : {false, true}) {
                QtOrvDoubleSlider slider;
                slider.setSingleStep(row.step);
                slider.setValidate(validate);
                slider.setRange(row.minimum, row.maximum);
                const int last = slider.slider()->maximum();
                double previous = row.minimum;
                for (qint64 i = 0; i <= 100; ++i) {
                    slider.slider()->setValue(int(last * i / 100));
                    QVERIFY(slider.value() >= previous && slider.value() <= row.maximum);
                    previous = slider.value();
                }
                QCOMPARE(previous, row.maximum);
                QCOMPARE(last == std::numeric_limits<int>::max(), row.crowded);
                slider.setValue(row.minimum / 2 + row.maximum / 2);
                if (last > 1)
                    QVERIFY(qAbs(slider.slider()->value() - last / 2) <= 1);
            }
        }
    }

    void settersKeepTheValueAndTellOnce()
    {
        QtOrvDoubleSlider slider;
        Recorder recorder(slider);
        slider.setValue(50);
        slider.setRange(0, 100);
        slider.setRange(-100, 100); // another position, which is told although the value is the same
        slider.setMaximum(20);
        QCOMPARE(recorder.take(), QStringLiteral("50 -100..100 50 -100..20 20"));
        slider.setValue(-100);
        recorder.take();
        slider.setMinimum(10); // another value at the same position
        QCOMPARE(recorder.take(), QStringLiteral("10..20 10"));
        slider.setMaximum(5);
        QCOMPARE(slider.maximum(), 10.0);
        for (const double step : {0.0, -1.0, qInf(), qQNaN()})
            slider.setSingleStep(step);
        recorder.take();
        slider.setRange(qQNaN(), 1);
        slider.setRange(0, qInf());
        slider.setMinimum(-qInf());
        slider.setValue(qQNaN());
        QCOMPARE(recorder.take(), QString());
        QCOMPARE(slider.singleStep(), 1.0);
    }
};

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    tst_QtOrvSlider integers;
    tst_QtOrvDoubleSlider doubles;
    return OrvTest::runTests(&integers, argc, argv) + OrvTest::runTests(&doubles, argc, argv);
}
#include "tst_qtorvslider.moc"
