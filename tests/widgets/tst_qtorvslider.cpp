#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include <orvtest.h>

#include <QAccessible>
#include <QDataWidgetMapper>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QStandardItemModel>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

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
    {Sqrt, 100, -3, -3, 5, false},
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
class Recorder : public QObject
{
public:
    explicit Recorder(QtOrvSlider &slider)
    {
        connect(&slider, &QtOrvSlider::valueChanged, this, [this](int value) { values.append(value); });
        connect(&slider, &QtOrvSlider::valueChanged, this,
                [this](int value) { log += QString::number(value) + space; });
        connect(&slider, &QtOrvSlider::rangeChanged, this,
                [this](int from, int to) { log += QStringLiteral("%1..%2 ").arg(from).arg(to); });
    }
    QString takeLog() { return std::exchange(log, QString()).trimmed(); }

    const QLatin1Char space{' '};
    QVector<int> values;
    QString log;
};

QPoint handle(const QSlider &slider)
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

    void everyKeyPressChangesTheValue_data()
    {
        QTest::addColumn<int>("upKey");
        QTest::addColumn<int>("downKey");
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("arrows") << int(Qt::Key_Up) << int(Qt::Key_Down) << false;
        QTest::newRow("sideways") << int(Qt::Key_Right) << int(Qt::Key_Left) << false;
        QTest::newRow("right to left") << int(Qt::Key_Left) << int(Qt::Key_Right) << true;
        QTest::newRow("pages") << int(Qt::Key_PageUp) << int(Qt::Key_PageDown) << false;
    }

    void everyKeyPressChangesTheValue()
    {
        QFETCH(const int, upKey);
        QFETCH(const int, downKey);
        QFETCH(const bool, rightToLeft);
        for (const Setting &setting : settings) {
            QtOrvSlider slider(Qt::Horizontal);
            apply(slider, setting);
            const qint64 positions = qint64(slider.slider()->maximum()) - slider.slider()->minimum();
            if (positions / slider.slider()->singleStep() > 2000)
                continue; // too far to walk
            slider.setValue(setting.minimum);
            slider.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            Recorder recorder(slider);
            for (const bool up : {true, false}) {
                qint64 before = slider.value();
                for (int presses = 0; slider.value() != (up ? setting.maximum : setting.minimum); ++presses) {
                    QVERIFY(presses <= 2000);
                    recorder.values.clear();
                    const int position = slider.slider()->value();
                    const int pageOrStep =
                        upKey == Qt::Key_PageUp ? slider.slider()->pageStep() : slider.slider()->singleStep();
                    QTest::keyClick(slider.slider(), Qt::Key(up ? upKey : downKey));
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

    void mouseDragsPagesAndTurnsTheWheel()
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

        slider.show();
        slider.setValue(0);
        recorder.values.clear();
        QTest::mouseClick(inner, Qt::LeftButton, {}, QPoint(inner->width() - 5, inner->height() / 2));
        QCOMPARE(recorder.values, (QVector<int>{100}));
        QWheelEvent wheel(start, inner->mapToGlobal(start), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(inner, &wheel);
        QCOMPARE(recorder.values.size(), 2);
        QCOMPARE(recorder.values.last(), slider.value());
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
        QStandardItemModel model(1, 1);
        QWidget window;
        QVBoxLayout layout(&window);
        auto *const slider = new QtOrvSlider;
        auto *const other = new QLineEdit;
        layout.addWidget(slider);
        layout.addWidget(other);
        QDataWidgetMapper mapper;
        mapper.setModel(&model);
        mapper.addMapping(slider, 0);
        mapper.toFirst();
        window.show();
        slider->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(slider->slider()->hasFocus());
        QSignalSpy focusOut(slider, &QtOrvSlider::focusOut);
        QTest::keyClick(slider->slider(), Qt::Key_PageUp);
        QTest::keyClick(slider->slider(), Qt::Key_Tab);
        QVERIFY(other->hasFocus());
        QCOMPARE(focusOut.size(), 1);
        QCOMPARE(model.index(0, 0).data().toInt(), 10);
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
        slider.setAccessibleName(QString());
        QWidget form;
        QLabel label(QStringLiteral("&Time"), &form);
        slider.setParent(&form);
        label.setBuddy(&slider);
        QCOMPARE(QAccessible::queryAccessibleInterface(slider.slider())->text(QAccessible::Name),
                 QStringLiteral("Time"));
        slider.setParent(nullptr);
    }
};

ORV_TEST_MAIN(tst_QtOrvSlider)
#include "tst_qtorvslider.moc"
