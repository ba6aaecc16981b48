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

/** Types any characters, over all that is there, and presses Return. */
void enter(QAbstractSpinBox &box, const QString &text)
{
    box.selectAll();
    for (const QChar c : text) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(&box, &key);
    }
    QTest::keyClick(&box, Qt::Key_Return);
}

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

    void readsNumbersByLocale()
    {
        const QString arabic = QStringLiteral("\u0663\u066b\u0665");
        const struct
        {
            QLocale::Language language;
            QString text;
            double value; // of 42
            bool groups;
        } rows[] = {
            {QLocale::C, QStringLiteral("3.5"), 3.5, false},
            {QLocale::C, QStringLiteral("3,5"), 42, false}, // no 35
            {QLocale::C, QStringLiteral("1,234.5"), 42, false},
            {QLocale::English, QStringLiteral("1,234.5"), 1234.5, true},
            {QLocale::C, QStringLiteral("-1e3"), -1000, false},
            {QLocale::German, QStringLiteral("3,5"), 3.5, false},
            {QLocale::German, QStringLiteral("3.5"), 3.5, false},
            {QLocale::German, QStringLiteral("3.5"), 3.5, true},
            {QLocale::German, QStringLiteral("1.234,5"), 42, false},
            {QLocale::German, QStringLiteral("1.234,5"), 1234.5, true},
            {QLocale::German, QStringLiteral("1.234"), 1234, true},
            {QLocale::German, QStringLiteral("12.34,5"), 1234.5, true}, // being edited
            {QLocale::French, QStringLiteral("1 234"), 42, false},
            {QLocale::French, QStringLiteral("-3,5"), -3.5, false},
            {QLocale::Swedish, QStringLiteral("\u22123.5"), -3.5, false},
            {QLocale::Arabic, arabic, 3.5, false},
            {QLocale::Arabic, QStringLiteral("3.5"), 3.5, false},
            {QLocale::Arabic, QStringLiteral("\u0663.\u0665"), 3.5, false},
            {QLocale::German, QStringLiteral("inf"), 42, false},
        };
        for (const auto &row : rows) {
            for (const bool validateTyping : {true, false}) {
                DoubleWindow window;
                window.box.setRange(-5000, 5000);
                window.box.setLocale(QLocale(row.language));
                window.box.setGroupSeparatorShown(row.groups);
                window.box.setValidateTyping(validateTyping);
                window.box.setKeyboardTracking(false);
                window.box.setLineEditText(row.text);
                QTest::keyClick(&window.box, Qt::Key_Return);
                QVERIFY2(window.box.value() == row.value, qPrintable(row.text));
                QCOMPARE(window.box.text(), window.box.textFromValue(row.value));
            }
        }
    }

    void readsIntegersByLocale()
    {
        const struct
        {
            QLocale::Language language;
            QString text;
            int value; // of 42
            bool groups;
            int base;
        } rows[] = {
            {QLocale::German, QStringLiteral("1.5"), 42, false, 10},
            {QLocale::German, QStringLiteral(",5"), 42, false, 10},
            {QLocale::German, QStringLiteral("1.234"), 42, false, 10},
            {QLocale::German, QStringLiteral("1.234"), 1234, true, 10},
            {QLocale::C, QStringLiteral("1,5"), 42, false, 10},
            {QLocale::French, QStringLiteral("1 234"), 42, false, 10},
            {QLocale::Swedish, QStringLiteral("\u22125"), -5, false, 10},
            {QLocale::Arabic, QStringLiteral("\u0665\u0667"), 57, false, 10},
            {QLocale::Arabic, QStringLiteral("57"), 57, false, 10},
            {QLocale::C, QStringLiteral("1f"), 31, false, 16},
            {QLocale::C, QStringLiteral("20"), 32, false, 16},
        };
        for (const auto &row : rows) {
            for (const bool validateTyping : {true, false}) {
                IntWindow window;
                window.box.setRange(-5000, 5000);
                window.box.setLocale(QLocale(row.language));
                window.box.setGroupSeparatorShown(row.groups);
                window.box.setDisplayIntegerBase(row.base);
                window.box.setValidateTyping(validateTyping);
                window.box.setKeyboardTracking(false);
                QTest::keyClick(&window.box, Qt::Key_Return); // untouched, in whatever base
                QCOMPARE(window.box.value(), 42);
                window.box.setLineEditText(row.text);
                QTest::keyClick(&window.box, Qt::Key_Return);
                QVERIFY2(window.box.value() == row.value, qPrintable(row.text));
            }
        }
    }

    /** Neither while it is typed nor when the box is left a group separator makes another number. */
    void baseClassReadsByTheSameRules()
    {
        DoubleWindow window;
        QVERIFY(window.isReady());
        QLineEdit other(&window);
        other.show();
        window.box.setMaximum(5000);
        window.box.setSuffix(QStringLiteral(" ms"));
        window.box.setLocale(QLocale(QLocale::German));
        window.type("3.25");
        QCOMPARE(window.emitted, (QVector<double>{3, 3.2, 3.25}));
        window.emitted.clear();
        window.box.setKeyboardTracking(false);
        window.type("1.5");
        other.setFocus();
        QCOMPARE(window.emitted, (QVector<double>{1.5}));
        QCOMPARE(window.edit->text(), QStringLiteral("1,50 ms"));
        window.edit->setCursorPosition(1);
        QTest::keyClicks(&window.box, QStringLiteral(".")); // where one is already: behind that
        QCOMPARE(window.edit->text(), QStringLiteral("1.50 ms"));
        QCOMPARE(window.edit->cursorPosition(), 2);
        window.edit->selectAll();
        QTest::keyClicks(&window.box, QStringLiteral("5")); // over the suffix, too
        QCOMPARE(window.edit->text(), QStringLiteral("5 ms"));
    }

    void whatIsShownCanBeTypedInEveryLocale()
    {
        DoubleWindow doubles;
        IntWindow ints;
        doubles.box.setRange(-5000, 5000);
        ints.box.setRange(-5000, 5000);
        for (QAbstractSpinBox *const box :
             {static_cast<QAbstractSpinBox *>(&doubles.box), static_cast<QAbstractSpinBox *>(&ints.box)})
            box->setKeyboardTracking(false);
        doubles.box.setValidateTyping(false);
        ints.box.setValidateTyping(false);
        const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
        for (const QLocale &locale : locales) {
            doubles.box.setLocale(locale);
            ints.box.setLocale(locale);
            for (const double number : {-1234.5, 0.25, 1920.0}) {
                enter(doubles.box, doubles.box.textFromValue(number));
                QVERIFY2(doubles.box.value() == number, qPrintable(locale.name()));
                enter(doubles.box, QString::number(-number));
                QVERIFY2(doubles.box.value() == -number, qPrintable(locale.name()));
                const int whole = int(number);
                ints.box.setValue(whole);
                const QString text = ints.box.text();
                ints.box.setValue(7);
                enter(ints.box, text);
                QVERIFY2(ints.box.value() == whole, qPrintable(locale.name()));
            }
        }
    }

    /** The base class takes the bound nearest to 0 for whatever is no number. */
    void correctsNothingToAnotherNumber()
    {
        for (const bool validateTyping : {true, false}) {
            for (const char *const text : {"", "-", "1e", "57"}) {
                const double corrected = validateTyping && *text == '5' ? 57 : 42;
                DoubleWindow doubles;
                IntWindow ints;
                doubles.box.setMinimum(-99);
                doubles.box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
                doubles.box.setValidateTyping(validateTyping);
                doubles.box.setKeyboardTracking(false);
                doubles.box.setLineEditText(QLatin1String(text));
                doubles.box.interpretText();
                QCOMPARE(doubles.box.value(), corrected);
                QCOMPARE(doubles.box.text(), doubles.box.textFromValue(corrected));
                ints.box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
                ints.box.setMinimum(10);
                ints.box.setValidateTyping(validateTyping);
                ints.box.setKeyboardTracking(false);
                ints.box.setLineEditText(QLatin1String(text));
                ints.box.interpretText();
                QCOMPARE(ints.box.value(), int(corrected));
                ints.box.setLineEditText(QStringLiteral("5")); // a number, though one outside the range
                ints.box.interpretText();
                QCOMPARE(ints.box.value(), validateTyping ? 10 : int(corrected));
            }
        }
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
