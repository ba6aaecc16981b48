#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>

#include <orvtest.h>

#include <QAccessible>
#include <QLabel>
#include <QSlider>

#include <cmath>
#include <limits>

namespace {

constexpr double Huge = std::numeric_limits<double>::max();
constexpr double Tiny = std::numeric_limits<double>::denorm_min();

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

/** Notes the values and ranges that a slider announces. */
class Recorder : public QObject
{
public:
    explicit Recorder(QtOrvDoubleSlider &slider)
    {
        connect(&slider, &QtOrvDoubleSlider::valueChanged, this,
                [this](double value) { log += text("%1 ").arg(value); });
        connect(&slider, &QtOrvDoubleSlider::rangeChanged, this,
                [this](double from, double to) { log += text("%1..%2 ").arg(from).arg(to); });
    }
    QString text(const char *latin1) { return QString::fromLatin1(latin1); }
    QString takeLog() { return std::exchange(log, QString()).trimmed(); }

private:
    QString log;
};

} // namespace

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

ORV_TEST_MAIN(tst_QtOrvDoubleSlider)
#include "tst_qtorvdoubleslider.moc"
