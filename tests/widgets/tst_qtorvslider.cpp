#include "sliderhandle.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <orvtest.h>

#include <QAccessible>
#include <QDataWidgetMapper>
#include <QLabel>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QSet>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
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

/** \a count numbers from \a first to \a last, evenly, both included. */
QVector<int> spread(int first, int last, int count)
{
    QVector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.append(int(first + (qint64(last) - first) * i / (count - 1)));
    return numbers;
}

int valueAt(QtOrvSlider &slider, qint64 position)
{
    slider.slider()->setValue(int(qBound<qint64>(slider.slider()->minimum(), position, slider.slider()->maximum())));
    return slider.value();
}

/** Notes the values and ranges that a slider announces. */
template <typename Slider>
class Recorder : public QObject
{
public:
    using Number = decltype(std::declval<Slider>().value());

    explicit Recorder(Slider &slider)
    {
        connect(&slider, &Slider::valueChanged, this, [this](Number value) {
            values.append(value);
            log += QStringLiteral("%1 ").arg(value);
        });
        connect(&slider, &Slider::rangeChanged, this,
                [this](Number from, Number to) { log += QStringLiteral("%1..%2 ").arg(from).arg(to); });
    }
    QString takeLog() { return std::exchange(log, QString()).trimmed(); }

    QVector<Number> values;
    QString log;
};

/** From one bound to the other and back: every key changes the value, by at least a step where the next is skipped. */
void walk(const Setting &setting, Qt::Key upKey, Qt::Key downKey, Qt::LayoutDirection direction)
{
    QtOrvSlider slider(Qt::Horizontal);
    apply(slider, setting);
    const qint64 positions = qint64(slider.slider()->maximum()) - slider.slider()->minimum();
    if (positions / slider.slider()->singleStep() > 2000)
        return; // too far to walk
    slider.setValue(setting.minimum);
    slider.setLayoutDirection(direction);
    Recorder recorder(slider);
    for (const bool up : {true, false}) {
        qint64 before = slider.value();
        for (int presses = 0; slider.value() != (up ? setting.maximum : setting.minimum); ++presses) {
            QVERIFY(presses <= 2000);
            recorder.values.clear();
            const int position = slider.slider()->value();
            const int pageOrStep =
                upKey == Qt::Key_PageUp ? slider.slider()->pageStep() : slider.slider()->singleStep();
            QTest::keyClick(slider.slider(), up ? upKey : downKey);
            QCOMPARE(recorder.values.size(), 1);
            const qint64 after = recorder.values.first();
            QCOMPARE(qint64(slider.value()), after);
            QVERIFY(up ? after > before : after < before);
            QVERIFY(isOnGrid(setting, int(after)));
            const int reached = slider.slider()->value();
            const bool movedOn = qAbs(qint64(reached) - position) > pageOrStep;
            const bool atBound = after == setting.minimum || after == setting.maximum;
            QVERIFY(!movedOn || atBound || qAbs(after - before) >= setting.step);
            before = after;
        }
    }
}

constexpr double Huge = std::numeric_limits<double>::max();
constexpr double Tiny = std::numeric_limits<double>::denorm_min();

/** What the keys come by on the way from one bound to the other, the bounds included. */
QSet<int> stops(const Setting &setting, bool up)
{
    QtOrvSlider slider;
    apply(slider, setting);
    slider.setValue(up ? setting.minimum : setting.maximum);
    QSet<int> values{slider.value()};
    const int bound = up ? setting.maximum : setting.minimum;
    while (slider.value() != bound && values.size() < 8000) {
        QTest::keyClick(slider.slider(), up ? Qt::Key_Up : Qt::Key_Down);
        if (values.contains(slider.value()))
            return {};
        values.insert(slider.value());
    }
    return values;
}

void turnWheel(QSlider *slider, int steps)
{
    const QPoint place = slider->rect().center();
    QWheelEvent wheel(place, slider->mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(slider, &wheel);
}

/** What a person may do to a slider, and a program. */
template <typename Slider>
void doAnything(Slider &slider, QRandomGenerator &random, const QVector<typename Recorder<Slider>::Number> &numbers)
{
    static const Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,
                                   Qt::Key_Home, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End};
    const auto any = [&random](const auto &list) { return list[random.bounded(int(std::size(list)))]; };
    QSlider *const inner = slider.slider();
    const auto place = [&] { return QPoint(random.bounded(inner->width()), random.bounded(inner->height())); };
    switch (random.bounded(9)) {
    case 0:
        slider.setRange(any(numbers), any(numbers));
        break;
    case 1:
        slider.setValue(any(numbers));
        break;
    case 2:
        slider.setSingleStep(any(numbers));
        break;
    case 3:
        slider.setValidate(random.bounded(2));
        break;
    case 4: {
        const QPoint start = random.bounded(2) ? handle(*inner) : place(); // or beside it
        QTest::mousePress(inner, Qt::LeftButton, {}, start);
        QTest::mouseMove(inner, place());
        QTest::mouseRelease(inner, Qt::LeftButton, {}, place());
        break;
    }
    case 5:
        turnWheel(inner, random.bounded(-3, 4));
        break;
    case 6:
        slider.setLayoutDirection(Qt::LayoutDirection(random.bounded(2)));
        inner->setInvertedAppearance(random.bounded(2));
        inner->setInvertedControls(random.bounded(2));
        break;
    default:
        QTest::keyClick(inner, any(keys));
        break;
    }
}

/** After each of many random acts the value is in the range and was told, and the keys for the bounds lead there. */
template <typename Slider, typename Act>
void runRandomly(const QVector<typename Recorder<Slider>::Number> &numbers, const Act &act)
{
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QRandomGenerator random(20230801);
        Slider slider(orientation);
        slider.resize(220, 220);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        Recorder recorder(slider);
        for (int i = 0; i < 1500; ++i) {
            recorder.values.clear();
            const bool snapsAlike = slider.validate();
            const auto step = slider.singleStep();
            doAnything(slider, random, numbers);
            act(slider, random);
            const auto value = slider.value();
            QVERIFY(value >= slider.minimum() && value <= slider.maximum());
            QVERIFY(qint64(slider.slider()->maximum()) - slider.slider()->minimum() < (qint64(1) << 31));
            if (!recorder.values.isEmpty() && snapsAlike == slider.validate() && step == slider.singleStep())
                QCOMPARE(recorder.values.last(), value);
            if (i % 50 == 0) {
                slider.grab(); // to be painted is a danger of its own
                QTest::keyClick(slider.slider(), Qt::Key_End);
                QCOMPARE(slider.value(), slider.maximum());
                QTest::keyClick(slider.slider(), Qt::Key_Home);
                QCOMPARE(slider.value(), slider.minimum());
            }
        }
    }
}

/** In thousandths, so that what is expected can be computed without error. */
struct Thousandths
{
    qint64 minimum, maximum, step;

    qint64 wholeSteps() const { return (2 * (maximum - minimum) + step) / (2 * step); }
    qint64 last() const { return wholeSteps() + (wholeSteps() * step + minimum < maximum ? 1 : 0); }
    qint64 at(qint64 position) const { return position == last() ? maximum : minimum + position * step; }
};

const Thousandths scales[] = {
    {0, 1000, 300},
    {0, 900, 300},
    {0, 1000, 100},
    {0, 100000, 1000},
    {100, 400, 100},
    {-700, 700, 100},
    {-2500, 1000000, 333},
    {0, 5, 1000},
    {7, 7, 10},
    {0, 1000, 600},
    {0, 1, 1},
    {900, 1000, 1},
    {-1000000000, 1000000000, 999999},
};

void apply(QtOrvDoubleSlider &slider, const Thousandths &scale)
{
    slider.setRange(double(scale.minimum) / 1000, double(scale.maximum) / 1000);
    slider.setSingleStep(double(scale.step) / 1000);
}

bool isClose(double value, qint64 thousandths)
{
    return std::abs(value * 1000 - double(thousandths)) <= 1e-6 * std::max(1.0, std::abs(value) * 1e-3);
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

    void keepsEveryValueInItsPlace()
    {
        for (const Setting &setting : settings) {
            QtOrvSlider slider;
            apply(slider, setting);
            QCOMPARE(valueAt(slider, slider.slider()->minimum()), setting.minimum);
            QCOMPARE(valueAt(slider, slider.slider()->maximum()), setting.maximum);
            int previous = setting.minimum;
            for (const int position : spread(slider.slider()->minimum(), slider.slider()->maximum(), 700)) {
                const int value = valueAt(slider, position);
                QVERIFY(value >= previous && value <= setting.maximum && isOnGrid(setting, value));
                previous = value;
            }
            for (const int value : spread(setting.minimum, setting.maximum, 700)) {
                slider.setValue(value);
                const int position = slider.slider()->value();
                // The positions beside it enclose the value, give or take what snapping moved it.
                const qint64 snapping = setting.validate ? setting.step : 0;
                QVERIFY(valueAt(slider, qint64(position) - 1) - snapping <= value);
                QVERIFY(valueAt(slider, qint64(position) + 1) + snapping >= value);
            }
            slider.setValue(Largest);
            QCOMPARE(slider.value(), setting.maximum);
            slider.setValue(Smallest);
            QCOMPARE(slider.value(), setting.minimum);
        }
    }

    void everyKeyPressChangesTheValue()
    {
        const std::tuple<Qt::Key, Qt::Key, Qt::LayoutDirection> keys[] = {
            {Qt::Key_Up, Qt::Key_Down, Qt::LeftToRight},
            {Qt::Key_Right, Qt::Key_Left, Qt::LeftToRight},
            {Qt::Key_Left, Qt::Key_Right, Qt::RightToLeft},
            {Qt::Key_PageUp, Qt::Key_PageDown, Qt::LeftToRight}};
        for (const auto &[upKey, downKey, direction] : keys) {
            for (const Setting &setting : settings)
                walk(setting, upKey, downKey, direction);
        }
    }

    /** Whatever is between the positions, the grid and the bounds. */
    void aKeyLeadsAtLeastAStepOn()
    {
        for (const Setting &setting : settings) {
            for (const int start : spread(setting.minimum, setting.maximum, 40)) {
                for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
                    QtOrvSlider slider;
                    apply(slider, setting);
                    slider.setValue(start);
                    const int before = slider.value();
                    QTest::keyClick(slider.slider(), key);
                    const bool up = key == Qt::Key_Up || key == Qt::Key_PageUp;
                    const qint64 way = up ? qint64(slider.value()) - before : before - qint64(slider.value());
                    const bool isAtBound = slider.value() == (up ? setting.maximum : setting.minimum);
                    const bool fromOffGrid = setting.validate && (qint64(before) - setting.minimum) % setting.step != 0;
                    QVERIFY(isAtBound || way >= setting.step || (fromOffGrid && way > 0));
                    QVERIFY(isOnGrid(setting, slider.value()));
                }
            }
        }
    }

    void keysComeByTheSamePointsOfTheGridEitherWay()
    {
        for (const Setting &setting : settings) {
            if (!setting.validate)
                continue;
            const QSet<int> upward = stops(setting, true);
            QVERIFY(!upward.isEmpty());
            QCOMPARE(stops(setting, false), upward);
            if (setting.type == Linear) { // where that is all of them
                const qint64 width = qint64(setting.maximum) - setting.minimum;
                QCOMPARE(qint64(upward.size()), width / setting.step + 1 + (width % setting.step ? 1 : 0));
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
            QCOMPARE(slider.minimum(), minimum);
            QCOMPARE(slider.maximum(), maximum);
            for (const int value : {minimum, minimum + 1, 12345, -1, maximum - 1, maximum}) {
                slider.setValue(value);
                QCOMPARE(slider.value(), qBound(minimum, value, maximum));
            }
            slider.setValue(12345);
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

    void nothingThatIsDoneToItDoesHarm()
    {
        const QVector<int> numbers = {Smallest, Smallest + 1, Smallest / 2, -1,          0,      1,
                                      7,        1000,         Largest / 2,  Largest - 1, Largest};
        runRandomly<QtOrvSlider>(numbers, [](QtOrvSlider &slider, QRandomGenerator &random) {
            if (random.bounded(10) == 0)
                slider.setScaleType(QtOrvSlider::ScaleType(random.bounded(3)));
            if (random.bounded(50) == 0)
                slider.setLog10Coef(std::pow(10, random.bounded(-3, 9)));
        });
    }

    void keysFollowInvertedControls()
    {
        QtOrvSlider slider;
        apply(slider, {Log10, 100, 0, 1000, 5, false});
        slider.slider()->setInvertedControls(true);
        Recorder recorder(slider);
        QTest::keyClick(slider.slider(), Qt::Key_Down);
        QTest::keyClick(slider.slider(), Qt::Key_Up);
        QCOMPARE(recorder.values, (QVector<int>{5, 0}));
        QTest::keyClick(slider.slider(), Qt::Key_End);
        QTest::keyClick(slider.slider(), Qt::Key_Home);
        QCOMPARE(recorder.values.mid(2), (QVector<int>{1000, 0}));
        slider.slider()->setValue(101); // a position that means nothing else; the last key has nothing to do with it
        QCOMPARE(recorder.values.size(), 4);
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
        slider.setValue(52);
        slider.setScaleType(Linear);
        QCOMPARE(recorder.takeLog(), QStringLiteral("52"));
    }

    void aKeyLeadsOnFromAValueThatANewGridHasMoved()
    {
        for (const bool byKey : {false, true}) {
            QtOrvSlider slider;
            apply(slider, {Log10, 100, 0, 1000, 51, false});
            if (byKey)
                QTest::keyClick(slider.slider(), Qt::Key_Up);
            else
                slider.setValue(51);
            slider.setSingleStep(50);
            slider.setValidate(true);
            QCOMPARE(slider.value(), 50);
            Recorder recorder(slider);
            QTest::keyClick(slider.slider(), Qt::Key_Up);
            QCOMPARE(recorder.takeLog(), QStringLiteral("100"));
        }
    }

    void settersTellOnceAndKeepTheValue()
    {
        QtOrvSlider slider;
        Recorder recorder(slider);
        slider.setValue(50);
        slider.setValue(50);
        QCOMPARE(recorder.takeLog(), QStringLiteral("50"));
        slider.setRange(0, 100);
        QCOMPARE(recorder.takeLog(), QString());
        slider.setRange(60, 2000);
        QCOMPARE(recorder.takeLog(), QStringLiteral("60..2000 60"));
        QCOMPARE(slider.minLabel()->text() + slider.maxLabel()->text(), QStringLiteral("602000"));
        slider.setRange(0, 1000);
        QCOMPARE(recorder.takeLog(), QStringLiteral("0..1000"));
        slider.setScaleType(Sqrt);
        QCOMPARE(recorder.takeLog(), QStringLiteral("64")); // of 8 x 8, not of anything on the way
        slider.setScaleType(Linear);
        slider.setScaleType(Log10);
        QCOMPARE(recorder.takeLog(), QString()); // 10^1.87 = 74.1
        slider.setRange(200, 100);
        QCOMPARE(recorder.takeLog(), QStringLiteral("200..200 200"));
        slider.setValidate(true);
        slider.setSingleStep(7);
        QCOMPARE(recorder.takeLog(), QString());
    }

    void oneBoundTakesTheOtherFromTheInnerSlider()
    {
        QtOrvSlider slider;
        slider.setMinimum(-20);
        slider.setMaximum(80);
        QCOMPARE(slider.minimum(), -20);
        QCOMPARE(slider.maximum(), 80);
        slider.setMaximum(-30);
        QCOMPARE(slider.maximum(), -20);
        apply(slider, {Log10, 100, 0, 1000, 1, false});
        slider.setMaximum(2000);
        QCOMPARE(slider.minimum(), 100);
        slider.setMinimum(0);
        QCOMPARE(slider.maximum(), 328); // of 100..2000: 100 log10(1910) = 328.1, and 10^3.28 reaches 1900
    }

    void whatCannotBeUsedIsIgnored()
    {
        QtOrvSlider slider;
        slider.setSingleStep(0);
        slider.setSingleStep(Smallest);
        QCOMPARE(slider.singleStep(), 1);
        for (const double coef : {0.0, -1.0, qInf(), qQNaN()})
            slider.setLog10Coef(coef);
        QCOMPARE(slider.log10Coef(), 100.0);
        slider.setScaleType(QtOrvSlider::ScaleType(3));
        QCOMPARE(slider.scaleType(), Linear);
    }

    void labelsAreWrittenAsTheLocaleHasIt()
    {
        const struct
        {
            const char *locale, *minimum, *maximum, *doubleMaximum;
        } rows[] = {{"C", "-1500", "20000", "1234.500"},
                    {"de_DE", "-1500", "20000", "1234,500"},
                    {"ar_EG", "-\u0661\u0665\u0660\u0660", "\u0662\u0660\u0660\u0660\u0660",
                     "\u0661\u0662\u0663\u0664\u066b\u0665\u0660\u0660"}};
        QtOrvSlider slider;
        slider.setRange(-1500, 20000);
        QtOrvDoubleSlider doubleSlider;
        doubleSlider.setRange(0, 1234.5);
        doubleSlider.setDecimals(1); // which the labels take up with the next range
        for (const auto &row : rows) {
            slider.setLocale(QLocale(QLatin1String(row.locale)));
            doubleSlider.setLocale(slider.locale());
            QCOMPARE(slider.minLabel()->text(), QString::fromUtf8(row.minimum));
            QCOMPARE(slider.maxLabel()->text(), QString::fromUtf8(row.maximum));
            QCOMPARE(doubleSlider.maxLabel()->text(), QString::fromUtf8(row.doubleMaximum));
        }
    }

    void mouseDrags()
    {
        QtOrvSlider slider(Qt::Horizontal);
        slider.resize(400, 60);
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        QSlider *const inner = slider.slider();
        QSignalSpy pressed(&slider, &QtOrvSlider::sliderPressed);
        QSignalSpy moved(&slider, &QtOrvSlider::sliderMoved);
        QSignalSpy released(&slider, &QtOrvSlider::sliderReleased);
        apply(slider, {Sqrt, 100, 0, 10000, 1, false});
        Recorder recorder(slider);
        const QPoint start = handle(*inner);
        QTest::mousePress(slider.windowHandle(), Qt::LeftButton, {}, inner->mapTo(&slider, start));
        QTest::mouseMove(slider.windowHandle(), inner->mapTo(&slider, start + QPoint(200, 0)));
        QTRY_VERIFY(!moved.isEmpty());
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(moved.last().first().toInt(), inner->value());
        QCOMPARE(recorder.values, (QVector<int>{inner->value() * inner->value()}));
        slider.hide(); // in the middle of it
        QCOMPARE(released.size(), 1);
    }

    void laysOutByOrientation()
    {
        QtOrvSlider slider;
        QCOMPARE(slider.orientation(), Qt::Vertical);
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
        QVERIFY(slider.findChild<QVBoxLayout *>(QStringLiteral("layoutV")));
        QCOMPARE(slider.findChildren<QHBoxLayout *>(QStringLiteral("layoutH")).size(), 1);
        slider.setMaxLabelVisiable(false);
        QVERIFY(!slider.isMaxLabelVisiable() && slider.isMinLabelVisiable());
    }

    /** Which a delegate takes as the end of editing. */
    void lossOfFocusIsTold()
    {
        QWidget window;
        QVBoxLayout layout(&window);
        auto *const slider = new QtOrvSlider;
        layout.addWidget(slider);
        layout.addWidget(new QLineEdit);
        window.show();
        slider->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(slider->slider()->hasFocus());
        QSignalSpy focusOut(slider, &QtOrvSlider::focusOut);
        QTest::keyClick(slider->slider(), Qt::Key_Tab);
        QVERIFY(!slider->slider()->hasFocus());
        QCOMPARE(focusOut.size(), 1);
    }

    void assistiveToolsMeetValuesNotPositions()
    {
        QtOrvSlider slider;
        apply(slider, {Log10, 100, 0, 1000, 5, false});
        slider.setAccessibleName(QStringLiteral("Exposure"));
        slider.setValue(1000);
        for (QWidget *widget : {static_cast<QWidget *>(&slider), static_cast<QWidget *>(slider.slider())}) {
            QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(accessible->role(), widget == &slider ? QAccessible::Grouping : QAccessible::Slider);
            QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Exposure"));
            QAccessibleValueInterface *const value = accessible->valueInterface();
            QCOMPARE(value->currentValue().toInt(), 1000);
            QCOMPARE(value->minimumValue().toInt(), 0);
            QCOMPARE(value->maximumValue().toInt(), 1000);
            QCOMPARE(value->minimumStepSize().toInt(), 5);
            value->setCurrentValue(0);
            QCOMPARE(slider.value(), 0);
            slider.setValue(1000);
        }
    }
};

class tst_QtOrvDoubleSlider : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasAPositionForEveryStep()
    {
        for (const Thousandths &scale : scales) {
            for (const bool validate : {false, true}) {
                QtOrvDoubleSlider slider;
                apply(slider, scale);
                slider.setValidate(validate);
                QCOMPARE(slider.slider()->minimum(), 0);
                QCOMPARE(qint64(slider.slider()->maximum()), scale.last());
                double previous = slider.minimum();
                for (qint64 i = 0; i <= 500; ++i) {
                    const qint64 position = scale.last() * i / 500;
                    slider.slider()->setValue(int(position));
                    const double value = slider.value();
                    QVERIFY(isClose(value, scale.at(position)));
                    QVERIFY(value >= previous && value <= slider.maximum());
                    slider.setValue(value); // there and back
                    QCOMPARE(qint64(slider.slider()->value()), position);
                    previous = value;
                }
                slider.setValue(qInf());
                QCOMPARE(slider.value(), slider.maximum());
                slider.setValue(-qInf());
                QCOMPARE(slider.value(), slider.minimum());
            }
        }
    }

    void goesToTheNearestPosition()
    {
        const struct
        {
            bool validate;
            double value, reached;
        } rows[] = {
            {false, 0.375, 0.5}, {false, 0.374, 0.25}, {false, 0.875, 1.0}, {true, 0.9, 1.0}, {true, 0.8, 0.75},
        };
        for (const auto &row : rows) {
            QtOrvDoubleSlider slider;
            slider.setRange(0, 1);
            slider.setSingleStep(0.25);
            slider.setValidate(row.validate);
            slider.setValue(row.value);
            QCOMPARE(slider.value(), row.reached);
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

    void keysGoThroughEveryPosition()
    {
        QtOrvDoubleSlider slider;
        apply(slider, {0, 1000, 300});
        Recorder recorder(slider);
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(slider.slider(), Qt::Key_Up);
        QCOMPARE(recorder.takeLog(), QStringLiteral("0.3 0.6 0.9 1"));
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.setOrientation(Qt::Horizontal);
        QTest::keyClick(slider.slider(), Qt::Key_Right);
        QTest::keyClick(slider.slider(), Qt::Key_Home);
        QCOMPARE(recorder.takeLog(), QStringLiteral("0.9 0"));
    }

    void nothingThatIsDoneToItDoesHarm()
    {
        runRandomly<QtOrvDoubleSlider>({-Huge, Huge, -1, 0, Tiny, 0.1, 0.25, 1, 1000, 1e12, qQNaN(), qInf()},
                                       [](QtOrvDoubleSlider &, QRandomGenerator &) {});
    }

    void settersKeepTheValueAndTellOnce()
    {
        QtOrvDoubleSlider slider;
        Recorder recorder(slider);
        slider.setValue(50);
        slider.setRange(0, 100);
        QCOMPARE(recorder.takeLog(), QStringLiteral("50"));
        slider.setRange(-100, 100); // another position, which is told although the value is the same
        QCOMPARE(recorder.takeLog(), QStringLiteral("-100..100 50"));
        slider.setMaximum(20);
        QCOMPARE(recorder.takeLog(), QStringLiteral("-100..20 20"));
        slider.setValue(-100);
        recorder.takeLog();
        slider.setMinimum(10); // another value at the same position
        QCOMPARE(recorder.takeLog(), QStringLiteral("10..20 10"));
        slider.setMaximum(5);
        QCOMPARE(slider.maximum(), 10.0);
    }

    void labelsTakeDecimalsUpWithTheNextRange()
    {
        QtOrvDoubleSlider slider;
        slider.setDecimals(1);
        QCOMPARE(slider.maxLabel()->text(), QStringLiteral("100.000"));
        slider.setRange(-1, 2.25);
        QCOMPARE(slider.minLabel()->text(), QStringLiteral("-1.0"));
        slider.setDecimals(-5);
        QCOMPARE(slider.decimals(), 0);
        slider.setDecimals(std::numeric_limits<int>::max());
        slider.setRange(0, Huge);
        QCOMPARE(slider.maxLabel()->text().size(), 309 + 1 + slider.decimals());
    }

    void whatCannotBeUsedIsIgnored()
    {
        QtOrvDoubleSlider slider;
        Recorder recorder(slider);
        for (const double step : {0.0, -1.0, qInf(), qQNaN()})
            slider.setSingleStep(step);
        slider.setRange(qQNaN(), 1);
        slider.setRange(0, qInf());
        slider.setMinimum(-qInf());
        slider.setValue(qQNaN());
        QCOMPARE(recorder.takeLog(), QString());
        QCOMPARE(slider.singleStep(), 1.0);
        QCOMPARE(slider.maximum(), 100.0);
    }

    void assistiveToolsMeetValuesNotPositions()
    {
        QtOrvDoubleSlider slider;
        apply(slider, {-500, 1000, 250});
        slider.setValue(0.25);
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(slider.slider());
        QCOMPARE(accessible->valueInterface()->currentValue().toDouble(), 0.25);
        QCOMPARE(accessible->valueInterface()->minimumStepSize().toDouble(), 0.25);
        QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("0.25"));
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
