// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "input.h"

#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <orvtest.h>

#include <limits>

namespace {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr double Huge = std::numeric_limits<double>::max();

/** At 42 of 0 to 99 in steps of 10. */
template <typename Box>
class Window : public FieldWindow<Box>
{
public:
    Window()
        : FieldWindow<Box>(42)
    {
        this->field.setSingleStep(10);
    }
    void pressReturn() { QTest::keyClick(&this->field, Qt::Key_Return); }
};

using IntWindow = Window<QtOrvSpinBoxVal>;
using DoubleWindow = Window<QtOrvDoubleSpinBoxVal>;

/** Calls \a check with a window for each of the two classes. */
template <typename Check>
void forBoth(const Check &check)
{
    const auto run = [&check](auto &&window) {
        if (QTest::currentTestFailed())
            return;
        QVERIFY(window.isReady());
        check(window);
    };
    run(IntWindow());
    run(DoubleWindow());
}

/** A text that is put into a box with the value 42, and the value after Return. */
struct Reading
{
    QLocale::Language language;
    QString text;
    double value;
    bool groups;
    int base;
};

template <typename AnyWindow>
void read(const Reading &row, bool validateTyping)
{
    AnyWindow window;
    auto &box = window.field;
    box.setRange(-5000, 5000);
    box.setLocale(QLocale(row.language));
    box.setGroupSeparatorShown(row.groups);
    box.setProperty("displayIntegerBase", row.base);
    box.setValidateTyping(validateTyping);
    box.setKeyboardTracking(false);
    window.pressReturn(); // untouched, in whatever base
    QVERIFY(box.value() == 42);
    box.setLineEditText(row.text);
    window.pressReturn();
    QVERIFY2(box.value() == row.value, qPrintable(row.text));
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
            forBoth([validateTyping](auto &window) {
                window.field.setValidate(true);
                window.field.setValidateTyping(validateTyping);
                type(&window.field, QStringLiteral("x57"));
                QCOMPARE(window.edit->text(), QStringLiteral("57")); // the x is refused
                QCOMPARE(window.takeLog(), validateTyping ? QStringLiteral("5 57") : QString());
                window.pressReturn();
                QCOMPARE(window.takeLog(), QString::fromLatin1(validateTyping ? "57" : "60")); // Qt's box repeats it
            });
        }
    }

    /** Qt's boxes show the value again on Return without validateTyping(). */
    void textThatCannotBeReadIsLeftToTheBaseClass()
    {
        forBoth([](auto &window) {
            auto &box = window.field;
            const QString shown = box.text();
            box.setValidateTyping(false);
            box.setSuffix(QStringLiteral(" px"));
            type(&box, QStringLiteral("57"));
            window.pressReturn();
            QCOMPARE(box.text(), shown + QStringLiteral(" px"));
            box.setSuffix(QString());
            box.setLineEditText(QStringLiteral("nan"));
            window.pressReturn();
            QCOMPARE(box.text(), shown);
            box.setReadOnly(true);
            box.setLineEditText(QStringLiteral("57"));
            window.pressReturn();
            QVERIFY(box.value() == 42);
        });
        DoubleWindow doubles;
        doubles.field.setValidateTyping(false);
        doubles.field.setSingleStep(0);
        type(&doubles.field, QStringLiteral("57"));
        doubles.pressReturn();
        QCOMPARE(doubles.edit->text(), QStringLiteral("42.00"));
    }

    void readsNumbersByLocale()
    {
        const Reading doubles[] = {
            {QLocale::C, QStringLiteral("3.5"), 3.5, false, 10},
            {QLocale::C, QStringLiteral("3,5"), 42, false, 10}, // not 35
            {QLocale::C, QStringLiteral("-1e3"), -1000, false, 10},
            {QLocale::German, QStringLiteral("3,5"), 3.5, false, 10},
            {QLocale::German, QStringLiteral("3.5"), 3.5, false, 10},
            {QLocale::German, QStringLiteral("3.5"), 3.5, true, 10},
            {QLocale::German, QStringLiteral("1.234,5"), 42, false, 10},
            {QLocale::German, QStringLiteral("1.234,5"), 1234.5, true, 10},
            {QLocale::German, QStringLiteral("1.234"), 1234, true, 10},
            {QLocale::German, QStringLiteral("12.34,5"), 1234.5, true, 10}, // being edited
            {QLocale::French, QStringLiteral("1 234"), 42, false, 10},
            {QLocale::Swedish, QStringLiteral("\u22123.5"), -3.5, false, 10},
            {QLocale::Arabic, QStringLiteral("\u0663\u066b\u0665"), 3.5, false, 10},
            {QLocale::Arabic, QStringLiteral("\u0663.\u0665"), 3.5, false, 10},
            {QLocale::German, QStringLiteral("inf"), 42, false, 10},
        };
        const Reading integers[] = {
            {QLocale::German, QStringLiteral("1.5"), 42, false, 10},
            {QLocale::German, QStringLiteral("1.234"), 1234, true, 10},
            {QLocale::Swedish, QStringLiteral("\u22125"), -5, false, 10},
            {QLocale::Arabic, QStringLiteral("\u0665\u0667"), 57, false, 10},
            {QLocale::Arabic, QStringLiteral("57"), 57, false, 10},
            {QLocale::C, QStringLiteral("1f"), 31, false, 16},
        };
        for (const bool validateTyping : {true, false}) {
            for (const Reading &row : doubles)
                read<DoubleWindow>(row, validateTyping);
            for (const Reading &row : integers)
                read<IntWindow>(row, validateTyping);
        }
    }

    /** The verdicts that a line edit lets keys pass by. */
    void judgesTexts()
    {
        const struct
        {
            const char *text;
            QValidator::State integer, number; // in -5 to 1920 and 0 to 1920
        } rows[] = {
            {"57 us", QValidator::Acceptable, QValidator::Acceptable},
            {"-6 us", QValidator::Invalid, QValidator::Invalid},
            {"+ us", QValidator::Intermediate, QValidator::Intermediate},
            {" us", QValidator::Intermediate, QValidator::Intermediate},
            {"5.25 us", QValidator::Invalid, QValidator::Acceptable},
            {"5.125 us", QValidator::Invalid, QValidator::Invalid}, // decimals that are not there
            {"1921 us", QValidator::Invalid, QValidator::Invalid},
        };
        QtOrvSpinBoxVal integers;
        integers.setRange(-5, 1920);
        integers.setSuffix(QStringLiteral(" us"));
        QtOrvDoubleSpinBoxVal numbers;
        numbers.setRange(0, 1920);
        numbers.setSuffix(QStringLiteral(" us"));
        int pos = 0;
        const auto judge = [&pos](auto &box, const char *typed) {
            QString text = QLatin1String(typed);
            return box.validate(text, pos);
        };
        for (const auto &row : rows) {
            QVERIFY2(judge(integers, row.text) == row.integer, row.text);
            QVERIFY2(judge(numbers, row.text) == row.number, row.text);
        }
        QCOMPARE(judge(integers, "-0 us"), QValidator::Acceptable);
        integers.setMinimum(0);
        QCOMPARE(judge(integers, "-0 us"), QValidator::Invalid);
        QString text = QStringLiteral("5");
        QCOMPARE(integers.validate(text, pos), QValidator::Acceptable);
        QCOMPARE(text, QStringLiteral("5 us")); // the suffix is put back
    }

    /** Neither while it is typed nor when the box is left a group separator makes another number. */
    void baseClassReadsByTheSameRules()
    {
        DoubleWindow window;
        QVERIFY(window.isReady());
        QtOrvDoubleSpinBoxVal &box = window.field;
        box.setMaximum(5000);
        box.setSuffix(QStringLiteral(" ms"));
        box.setLocale(QLocale(QLocale::German));
        type(&box, QStringLiteral("3.25"));
        QCOMPARE(window.takeLog(), QStringLiteral("3 3.2 3.25"));
        box.setKeyboardTracking(false);
        type(&box, QStringLiteral("1.5"));
        window.other.setFocus();
        QCOMPARE(window.takeLog(), QStringLiteral("1.5"));
        QCOMPARE(box.text(), QStringLiteral("1,50 ms"));
        window.edit->setCursorPosition(1);
        QTest::keyClicks(&box, QStringLiteral(".")); // before the decimal sign: only the cursor moves
        QCOMPARE(box.text(), QStringLiteral("1.50 ms"));
        QCOMPARE(window.edit->cursorPosition(), 2);
        window.edit->selectAll();
        QTest::keyClicks(&box, QStringLiteral("5")); // over the suffix, too
        QCOMPARE(box.text(), QStringLiteral("5 ms"));
    }

    void textOnShowCanBeTypedInEveryLocale()
    {
        for (const QLocale &locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
            QtOrvDoubleSpinBoxVal doubles;
            QtOrvSpinBoxVal integers;
            const auto check = [&locale](auto &box, auto number) {
                box.setRange(-5000, 5000);
                box.setLocale(locale);
                box.setKeyboardTracking(false);
                box.setValidateTyping(false);
                box.setValue(number);
                const QString shown = box.text();
                for (const QString &text : {QString::number(-number), shown}) { // plain, and as the locale writes it
                    type(&box, text);
                    QTest::keyClick(&box, Qt::Key_Return);
                    QVERIFY2(box.value() == (text == shown ? number : -number), qPrintable(locale.name()));
                }
            };
            for (const double number : {-1234.5, 0.25})
                check(doubles, number);
            for (const int number : {-1234, 57})
                check(integers, number);
        }
    }

    /** Qt's boxes take the bound nearest to 0 for any text that is no number. */
    void correctsNothingToAnotherNumber()
    {
        for (const bool validateTyping : {true, false}) {
            forBoth([validateTyping](auto &window) {
                auto &box = window.field;
                box.setMinimum(10);
                box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
                box.setValidateTyping(validateTyping);
                box.setKeyboardTracking(false);
                const QString shown = box.text();
                for (const char *const text : {"", "-", "1e", "57", "5"}) {
                    box.setValue(42);
                    box.setLineEditText(QLatin1String(text));
                    box.interpretText();
                    const QByteArray typed(text);
                    // Only a number outside the range is corrected.
                    const int read = typed == "57" ? 57 : typed == "5" ? 10 : 42;
                    QVERIFY2(box.value() == (validateTyping ? read : 42), text);
                    QVERIFY(box.value() != 42 || box.text() == shown);
                }
            });
        }
    }

    void stepsAreSnappedAndEndAtTheBounds()
    {
        forBoth([](auto &window) {
            auto &box = window.field;
            box.setMaximum(99);
            box.setValidate(true);
            QTest::keyClick(&box, Qt::Key_Up);
            QTest::keyClick(&box, Qt::Key_PageUp);
            QTest::keyClick(&box, Qt::Key_Down);
            QCOMPARE(window.takeLog(), QStringLiteral("50 99 90"));
            box.stepBy(Largest);
            QVERIFY(box.value() == 99);
            box.setSingleStep(std::numeric_limits<decltype(box.value())>::max());
            box.stepBy(Smallest);
            QVERIFY(box.value() == 0);
        });
    }
};

ORV_TEST_MAIN(tst_QtOrvSpinBoxVal)
#include "tst_qtorvspinboxval.moc"
