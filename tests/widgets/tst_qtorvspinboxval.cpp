#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <orvtest.h>

#include <QLineEdit>

#include <limits>

namespace {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr double Huge = std::numeric_limits<double>::max();

/** A focused box at 42 of 0 to 99 in steps of 10; notes the numbers it announces. */
template <typename Box, typename Number>
class Window : public QWidget
{
public:
    Window()
    {
        box.setSingleStep(10);
        box.setValue(42);
        connect(&box, QOverload<Number>::of(&Box::valueChanged), this, [this](Number value) { emitted.append(value); });
        show();
        box.setFocus();
    }
    bool isReady() { return QTest::qWaitForWindowActive(this) && box.hasFocus(); }
    void type(const char *keys) { box.selectAll(), QTest::keyClicks(&box, QString::fromLatin1(keys)); }

    Box box{this};
    QLineEdit *const edit = box.template findChild<QLineEdit *>();
    QVector<Number> emitted;
};

using IntWindow = Window<QtOrvSpinBoxVal, int>;
using DoubleWindow = Window<QtOrvDoubleSpinBoxVal, double>;

/** Typing and Return by the rule that both classes share. */
template <typename AnyWindow>
void typeAndReturn(bool validateTyping)
{
    AnyWindow window;
    QVERIFY(window.isReady());
    window.box.setValidate(true);
    window.box.setValidateTyping(validateTyping);
    window.type("x57");
    QCOMPARE(window.edit->text(), QStringLiteral("57")); // what is invalid stays so
    QCOMPARE(window.emitted, validateTyping ? (decltype(window.emitted){5, 57}) : (decltype(window.emitted){}));
    window.emitted.clear();
    QTest::keyClick(&window.box, Qt::Key_Return);
    QCOMPARE(window.emitted.size(), 1);
    QVERIFY(window.emitted.first() == (validateTyping ? 57 : 60)); // the base class repeats itself
}

} // namespace

class tst_QtOrvSpinBoxVal : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void snapsIntegers()
    {
        const struct
        {
            int minimum, maximum, step, value, snapped;
        } rows[] = {
            {0, 99, 4, 5, 4},
            {0, 99, 4, 6, 8}, // half a step goes up
            {0, 99, 3, 7, 9}, // half an odd step is rounded down
            {0, 99, 1, 7, 7},
            {1, 10, 4, 10, 10}, // the bounds stay
            {1, 10, 4, 8, 9},
            {-10, 10, 12, 9, 10}, // at most the maximum
            {0, 5, 100, 3, 0},
            {0, 99, 4, -7, -7 + 3}, // outside: towards the range
            {0, 99, 4, 130, 99},
            {0, 99, 0, 5, 5},
            {Smallest, Largest, Largest, 5, -1},
            {Smallest, Largest, Largest, Largest - 1, Largest - 1},
        };
        for (const auto &row : rows) {
            QtOrvSpinBoxVal box;
            box.setRange(row.minimum, row.maximum);
            box.setSingleStep(row.step);
            QCOMPARE(box.doValidation(row.value), row.snapped);
            box.setValue(row.value);
            QCOMPARE(box.value(), qBound(row.minimum, row.value, row.maximum));
            box.setValidate(true);
            box.setValue(row.value);
            QCOMPARE(box.value(), qBound(row.minimum, row.snapped, row.maximum));
        }
    }

    void snapsDoubles()
    {
        const struct
        {
            double minimum, maximum, step, value, snapped;
        } rows[] = {
            {0, 99, 0.5, 5.125, 5},     {0, 99, 0.5, 5.25, 5.5}, // half a step goes up
            {0, 99, 0.1, 0.3, 0.3},     {1, 10, 4, 10, 10}, // the bounds stay
            {1, 10, 4, 8, 9},           {-10, 10, 12, 9, 10}, // at most the maximum
            {0, 99, 0, 5.25, 5.25},     {0, 99, 1e-300, 55.5, 55.5}, // more steps than 64 bits count
            {-Huge, Huge, 1, 5.5, 5.5}, // no finite width
        };
        for (const auto &row : rows) {
            QtOrvDoubleSpinBoxVal box;
            box.setRange(row.minimum, row.maximum);
            box.setSingleStep(row.step);
            QCOMPARE(box.doValidation(row.value), row.snapped);
            box.setValidate(true);
            box.setValue(row.value);
            QCOMPARE(box.value(), row.snapped);
            box.setValue(qQNaN());
            QCOMPARE(box.value(), row.snapped);
        }
    }

    void typedTextWaitsForReturn()
    {
        for (const bool validateTyping : {true, false}) {
            typeAndReturn<IntWindow>(validateTyping);
            typeAndReturn<DoubleWindow>(validateTyping);
        }
    }

    /** What the base class makes of Return without typing to validate: the value's text comes back. */
    void textThatCannotBeReadIsLeftToTheBaseClass()
    {
        IntWindow window;
        QVERIFY(window.isReady());
        window.box.setValidateTyping(false);
        window.box.setSuffix(QStringLiteral(" px"));
        window.type("57");
        QTest::keyClick(&window.box, Qt::Key_Return);
        QCOMPARE(window.edit->text(), QStringLiteral("42 px"));

        DoubleWindow doubles;
        QVERIFY(doubles.isReady());
        doubles.box.setValidateTyping(false);
        doubles.type("57");
        doubles.box.setSingleStep(0);
        QTest::keyClick(&doubles.box, Qt::Key_Return);
        QCOMPARE(doubles.edit->text(), QStringLiteral("42.00"));
        doubles.box.setSingleStep(10);
        doubles.box.setLineEditText(QStringLiteral("nan"));
        QTest::keyClick(&doubles.box, Qt::Key_Return);
        QCOMPARE(doubles.edit->text(), QStringLiteral("42.00"));
        QCOMPARE(window.box.value(), 42);
        QCOMPARE(doubles.box.value(), 42.0);
        doubles.box.setLocale(QLocale(QLocale::German)); // for what is shown; what is read is in the C locale
        doubles.box.setLineEditText(QStringLiteral("57.5"));
        QTest::keyClick(&doubles.box, Qt::Key_Return);
        QCOMPARE(doubles.edit->text(), QStringLiteral("57,50"));
    }

    void stepsAreSnappedAndEndAtTheBounds()
    {
        IntWindow window;
        QVERIFY(window.isReady());
        window.box.setValidate(true);
        QTest::keyClick(&window.box, Qt::Key_Up);
        QTest::keyClick(&window.box, Qt::Key_PageUp);
        QCOMPARE(window.emitted, (QVector<int>{50, 99}));
        window.box.stepBy(Largest);
        QCOMPARE(window.box.value(), 99);
        window.box.stepBy(Smallest);
        QCOMPARE(window.box.value(), 0);
        window.box.setValidateTyping(false);
        window.box.setReadOnly(true);
        window.box.setLineEditText(QStringLiteral("57"));
        QTest::keyClick(&window.box, Qt::Key_Return);
        QCOMPARE(window.box.value(), 0);

        DoubleWindow doubles;
        QVERIFY(doubles.isReady());
        doubles.box.setValidate(true);
        QTest::keyClick(&doubles.box, Qt::Key_Down);
        QCOMPARE(doubles.emitted, (QVector<double>{30}));
        doubles.box.setSingleStep(Huge);
        doubles.box.stepBy(Smallest);
        QCOMPARE(doubles.box.value(), 0.0);
    }
};

ORV_TEST_MAIN(tst_QtOrvSpinBoxVal)
#include "tst_qtorvspinboxval.moc"
