// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "input.h"

#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <orvtest.h>

#include <QProxyStyle>

#include <functional>
#include <limits>

namespace {

constexpr long long Smallest = std::numeric_limits<long long>::min();
constexpr long long Largest = std::numeric_limits<long long>::max();
constexpr auto Up = QStyle::SC_SpinBoxUp;
constexpr auto Down = QStyle::SC_SpinBoxDown;

/** Repeats a held button after a millisecond, so that holding takes no time. */
class FastRepeatStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_SpinBox_ClickAutoRepeatRate || hint == SH_SpinBox_ClickAutoRepeatThreshold)
            return 1;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

/** At 42 of 0 to 99. */
class Window : public FieldWindow<QtOrvSpinBoxVal64>
{
public:
    Window()
        : FieldWindow(42)
    {
        field.setStyle(&m_style);
        log.noteTexts(field);
    }

    void press(QStyle::SubControl control) { QTest::mousePress(&field, Qt::LeftButton, {}, arrow(control)); }
    void release(QStyle::SubControl control) { QTest::mouseRelease(&field, Qt::LeftButton, {}, arrow(control)); }
    void click(QStyle::SubControl control) { press(control), release(control); }
    void doubleClick(QStyle::SubControl control) { QTest::mouseDClick(&field, Qt::LeftButton, {}, arrow(control)); }
    void key(QEvent::Type type, int key, bool autoRepeat = false)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), autoRepeat);
        QApplication::sendEvent(&field, &event);
    }
    void type(const char *keys) { ::type(&field, QString::fromLatin1(keys)); }

private:
    QPoint arrow(QStyle::SubControl control)
    {
        QStyleOptionSpinBox option;
        option.initFrom(&field);
        option.subControls = QStyle::SC_All;
        return field.style()->subControlRect(QStyle::CC_SpinBox, &option, control, &field).center();
    }

    FastRepeatStyle m_style;
};

QString announced(long long value)
{
    return QStringLiteral("%1 '%1'").arg(value);
}

} // namespace

class tst_QtOrvSpinBoxVal64 : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commitsInRangeAndOnGrid()
    {
        const struct
        {
            long long minimum, maximum, step, number, committed;
        } rows[] = {
            {0, 99, 10, 15, 20},
            {0, 99, 3, 7, 9}, // half of an odd step is rounded down
            {0, 99, 10, 96, 99}, // capped
            {5, 94, 10, 5, 5}, // the bounds stay, on the grid or off it
            {0, 94, 10, 94, 94},
            {-7, 99, 10, 0, 3},
            {0, 99, 10, 100, 42}, // refused
            {0, 99, 10, -1, 42},
            {0, 99, 0, 14, 14}, // no grid
            {0, 99, -10, 14, 14},
            {Smallest, Largest, Largest, 5, -1},
            {Smallest, Largest, 1LL << 62, Largest - 1, Largest},
        };
        for (const auto &row : rows) {
            Window window;
            window.field.setRange(row.minimum, row.maximum);
            window.field.setSingleStep(row.step);
            window.field.setValidateStepping(true);
            window.edit->setText(QStringLiteral("7"));
            window.field.setValue(row.number);
            QCOMPARE(window.field.value(), row.committed);
            QCOMPARE(window.takeLog(), row.committed == 42 ? QString() : announced(row.committed));
            window.field.setValue(row.committed);
            QCOMPARE(window.field.text(), row.committed == 42 ? QStringLiteral("40") : QString::number(row.committed));
        }
    }

    void readsWhatItShowsInEveryLocale()
    {
        QtOrvSpinBoxVal64 box;
        box.setRange(Smallest, Largest);
        box.setPrefix(QStringLiteral("0x"));
        box.setSuffix(QStringLiteral(" ms"));
        for (const auto &locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
            box.setLocale(locale);
            for (const bool groups : {false, true}) {
                box.setGroupSeparatorShown(groups);
                for (const long long number : {Smallest, -1234567LL, 890LL, Largest}) {
                    box.setValue(number);
                    QVERIFY2(box.valueFromText(box.text()) == number, qPrintable(locale.name()));
                    QCOMPARE(box.cleanText(), QString::number(number));
                }
            }
        }
        box.setDisplayIntegerBase(36);
        box.setValue(Smallest + 1);
        QCOMPARE(box.text(), QStringLiteral("0x-1y2p0ij32e8e7 ms"));
        QCOMPARE(box.valueFromText(box.text()), Smallest + 1);
        QCOMPARE(box.valueFromText(QStringLiteral("0x")), Smallest); // too short for a number
    }

    /** As in a form, which may set base and separators after the value. */
    void showsANewBaseBeforeTheNextEdit()
    {
        const std::function<void(Window &)> looks[] = {
            [](Window &window) { window.field.grab(); },
            [](Window &window) { QTest::keyClick(&window.field, Qt::Key_Left); },
            [](Window &window) { window.other.setFocus(), window.field.setFocus(); },
        };
        for (const auto &look : looks) {
            Window window;
            QVERIFY(window.isReady());
            window.field.setMaximum(99999);
            window.field.setValue(66666);
            window.field.grab();
            window.field.setDisplayIntegerBase(16);
            QCOMPARE(window.field.text(), QStringLiteral("66666"));
            look(window);
            QCOMPARE(window.field.text(), QStringLiteral("1046a"));
            window.takeLog();
            window.edit->end(false);
            QTest::keyClick(&window.field, Qt::Key_Backspace);
            QCOMPARE(window.takeLog(), QStringLiteral("4166 '1046'"));
            window.field.setLocale(QLocale(QLocale::German));
            window.field.setDisplayIntegerBase(10);
            window.field.setGroupSeparatorShown(true);
            window.edit->selectAll();
            look(window);
            QCOMPARE(window.field.text(), QStringLiteral("4.166"));
        }
    }

    /** The line edit would let everything pass once it shows what its validator does not accept. */
    void guardsAffixesOfAValueOutsideTheRange()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setKeyboardTracking(false);
        window.field.setMaximum(9999);
        window.field.setValue(4242);
        window.field.setMaximum(20);
        window.field.setSuffix(QStringLiteral(" us"));
        window.edit->setCursorPosition(4);
        QTest::keyClick(&window.field, Qt::Key_Delete);
        QTest::keyClicks(&window.field, QStringLiteral("x"));
        QCOMPARE(window.field.text(), QStringLiteral("4242 us"));
        typeOn(&window.field, QStringLiteral("\b\b\b"));
        QTest::keyClick(&window.field, Qt::Key_Delete);
        QCOMPARE(window.field.text(), QStringLiteral("4 us")); // digit by digit
        QTest::keyClicks(&window.field, QStringLiteral("2"));
        QCOMPARE(window.field.text(), QStringLiteral("4 us")); // within the range since
        QTest::keyClick(&window.field, Qt::Key_Return);
        QCOMPARE(window.takeLog(), QStringLiteral("4242 '4242' 4 '4 us'"));
    }

    void keepsUntouchedTextApartFromTyped()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setSingleStep(10);
        window.field.setValidateStepping(true);
        window.field.interpretText(); // nothing was typed: off the grid it stays
        QCOMPARE(window.field.value(), 42);
        window.field.setValidateStepping(false);
        window.type("42");
        window.field.setDisplayIntegerBase(16);
        window.field.setDisplayIntegerBase(1); // cannot be used
        QCOMPARE(window.field.text(), QStringLiteral("42"));
        QTest::keyClick(&window.field, Qt::Key_Return);
        QCOMPARE(window.field.value(), 42); // shown in base 10, not typed in base 16
        QCOMPARE(window.field.text(), QStringLiteral("2a"));
        window.field.setRange(50, 60);
        window.field.setPrefix(QStringLiteral("x")); // outside the range, and yet shown with the new prefix
        QCOMPARE(window.field.text(), QStringLiteral("x2a"));
    }

    void keepsCursorWhileGroupsMove()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setLocale(QLocale(QLocale::English));
        window.field.setGroupSeparatorShown(true);
        window.field.setMaximum(Largest);
        window.field.setValue(1234);
        window.edit->setCursorPosition(3); // 1,2|34
        QTest::keyClicks(&window.field, QStringLiteral("99"));
        QCOMPARE(window.field.text(), QStringLiteral("129,934"));
        QCOMPARE(window.edit->cursorPosition(), 5); // 129,9|34
    }

    void endsTyping()
    {
        const struct
        {
            std::function<void(Window &)> end;
            long long discarded, kept;
        } rows[] = {
            {[](Window &window) { QTest::keyClick(&window.field, Qt::Key_Return); }, 57, 57},
            {[](Window &window) { QTest::keyClick(&window.field, Qt::Key_Enter); }, 57, 57},
            {[](Window &window) { window.other.setFocus(Qt::TabFocusReason); }, 42, 57},
            {[](Window &window) { window.click(Down); }, 41, 56},
            {[](Window &window) { QTest::keyClick(&window.field, Qt::Key_Up); }, 43, 58},
            {[](Window &window) { QTest::keyClick(&window.field, Qt::Key_PageDown); }, 32, 47},
        };
        for (const auto &row : rows) {
            for (const bool ignore : {true, false}) {
                Window window;
                QVERIFY(window.isReady());
                window.field.setKeyboardTracking(false);
                window.field.setIgnoreFocusOut(ignore);
                window.type("57");
                row.end(window);
                QCOMPARE(window.field.value(), ignore ? row.discarded : row.kept);
                QCOMPARE(window.field.text(), QString::number(window.field.value()));
            }
        }
    }

    void guardsAffixes()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setPrefix(QStringLiteral("N1 "));
        window.field.setSuffix(QStringLiteral("5s")); // digits, which a damaged text would lend to the number
        window.field.setKeyboardTracking(false);
        window.edit->setCursorPosition(4);
        window.edit->setCursorPosition(1);
        QCOMPARE(window.edit->cursorPosition(), 4);
        window.edit->setCursorPosition(7);
        QCOMPARE(window.edit->cursorPosition(), 5);
        QTest::keyClick(&window.field, Qt::Key_Delete);
        window.edit->setCursorPosition(3);
        QTest::keyClick(&window.field, Qt::Key_Backspace);
        QTest::keyClick(&window.field, Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(window.field.text(), QStringLiteral("N1 425s"));

        const std::function<void()> selections[] = {
            [&] { window.edit->selectAll(); },
            [&] { QTest::keyClick(&window.field, Qt::Key_A, Qt::ControlModifier); },
            [&] { QTest::keyClick(&window.field, Qt::Key_Return); },
            [&] { window.edit->setCursorPosition(5), QTest::keyClick(&window.field, Qt::Key_Home, Qt::ShiftModifier); },
            [&] { window.edit->setCursorPosition(3), QTest::keyClick(&window.field, Qt::Key_End, Qt::ShiftModifier); },
            [&] { window.other.setFocus(), QTest::keyClick(&window.other, Qt::Key_Backtab); },
            [&] { window.other.setFocus(), window.field.setFocus(Qt::MouseFocusReason); },
        };
        for (const auto &select : selections) {
            window.edit->deselect();
            select();
            QCOMPARE(window.edit->selectedText(), QStringLiteral("42"));
        }
        window.field.setKeyboardTracking(true);
        QTest::keyClicks(&window.field, QStringLiteral("7"));
        QCOMPARE(window.takeLog(), QStringLiteral("7 'N1 75s'"));
        window.field.clear();
        QCOMPARE(window.field.text(), QStringLiteral("N1 5s"));
        QCOMPARE(window.edit->cursorPosition(), 3);
        QCOMPARE(window.field.value(), 7);
    }

    void stepsWithinTheRange()
    {
        const struct
        {
            long long minimum, maximum, start, step;
            int steps;
            long long dropped, wrapped;
        } rows[] = {
            {-50, 99, 42, 10, -5, -8, -8},
            {-50, 99, 95, 10, 1, 95, -50},
            {-50, 99, -45, 10, -1, -45, 99},
            {-50, 99, 89, 10, 1, 99, 99},
            {-50, 99, -45, -10, 1, -45, 99},
            {-50, Largest, Largest - 1, 2, 1, Largest - 1, -50}, // the sum overflows
            {Smallest, Largest, 0, Largest, 2, 0, Smallest}, // the product overflows
            {Smallest, Largest, 0, Largest, -2, 0, Largest},
        };
        for (const auto &row : rows) {
            for (const bool wrapping : {false, true}) {
                QtOrvSpinBoxVal64 box;
                box.setRange(row.minimum, row.maximum);
                box.setValue(row.start);
                box.setSingleStep(row.step);
                box.setWrapping(wrapping);
                box.stepBy(row.steps);
                QCOMPARE(box.value(), wrapping ? row.wrapped : row.dropped);
            }
        }
    }

    void clicksArrows()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setMaximum(43);
        window.click(Up);
        QCOMPARE(window.edit->selectedText(), QStringLiteral("43"));
        window.field.setWrapping(true);
        window.field.setSelectWhenStepping(false);
        window.click(Up);
        QVERIFY(!window.edit->hasSelectedText());
        window.field.setReadOnly(true);
        window.click(Up);
        QCOMPARE(window.takeLog(), announced(43) + QLatin1Char(' ') + announced(0));
    }

    void commitsHeldStepsOnRelease()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setRange(Smallest, Largest); // room for as many steps as come
        const auto shown = [&window] { return window.field.text().toLongLong(); };
        window.press(Up);
        QTRY_VERIFY(window.field.value() >= 44); // tracked
        window.release(Up);
        QVERIFY(window.takeLog().startsWith(announced(43) + QLatin1Char(' ') + announced(44)));

        window.field.setButtonTracking(false);
        window.field.setValue(42);
        window.takeLog();
        window.press(Down);
        QTRY_VERIFY(shown() <= 39);
        QCOMPARE(window.takeLog(), QString());
        window.release(Down);
        QCOMPARE(window.takeLog(), announced(shown()));

        window.doubleClick(Up); // the second press of two quick ones
        QCOMPARE(window.takeLog(), QString());
        window.release(Up);
        QCOMPARE(window.takeLog(), announced(shown()));

        const long long from = shown();
        window.key(QEvent::KeyPress, Qt::Key_Up);
        window.key(QEvent::KeyRelease, Qt::Key_Up, true);
        window.key(QEvent::KeyPress, Qt::Key_Up, true);
        QTRY_VERIFY(shown() >= from + 3);
        QCOMPARE(window.takeLog(), QString());
        window.key(QEvent::KeyRelease, Qt::Key_Up);
        QCOMPARE(window.takeLog(), announced(shown()));

        window.key(QEvent::KeyPress, Qt::Key_Down);
        window.other.setFocus(); // the key will be released elsewhere
        QCOMPARE(window.takeLog(), announced(shown()));
        window.field.stepUp();
        QCOMPARE(window.takeLog(), announced(shown()));
    }

    void refusesHeldNumberOutsideTheRange()
    {
        Window window;
        QVERIFY(window.isReady());
        window.field.setButtonTracking(false);
        window.field.setSingleStep(40);
        QTest::keyClick(&window.field, Qt::Key_PageUp);
        QCOMPARE(window.field.value(), 42);
        QCOMPARE(window.field.text(), QStringLiteral("442"));
        QTest::keyClick(&window.field, Qt::Key_Return);
        QCOMPARE(window.field.text(), QStringLiteral("42"));
        window.field.setWrapping(true);
        window.field.setSingleStep(Largest);
        QTest::keyClick(&window.field, Qt::Key_PageUp);
        QCOMPARE(window.takeLog(), announced(0));
    }

    void sizesForItsTexts()
    {
        QtOrvSpinBoxVal64 box;
        QFont font = box.font();
        font.setPointSize(2 * font.pointSize());
        const std::function<void()> changes[] = {[&] { box.setMinimum(-1000); }, [&] { box.setMaximum(Largest); },
                                                 [&] { box.setPrefix(QStringLiteral("from ")); },
                                                 [&] { box.setSuffix(QStringLiteral(" us")); },
                                                 [&] { box.setFont(font); }};
        for (const auto &change : changes) {
            const QSize hint = box.sizeHint();
            const QSize minimumHint = box.minimumSizeHint();
            change();
            QVERIFY(box.sizeHint().width() > hint.width());
            QVERIFY(box.minimumSizeHint().width() > minimumHint.width());
        }
    }
};

ORV_TEST_MAIN(tst_QtOrvSpinBoxVal64)

#include "tst_qtorvspinboxval64.moc"
