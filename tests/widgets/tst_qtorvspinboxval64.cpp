#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <orvtest.h>

#include <QAccessible>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QMenu>
#include <QProxyStyle>
#include <QStandardItemModel>
#include <QStyleOptionSpinBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

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

/** A window with a spin box that has the focus, and another widget that can take it. Every signal is noted. */
class Window : public QWidget
{
public:
    Window()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&box);
        layout->addWidget(&other);
        edit = box.findChild<QLineEdit *>();
        box.setValue(42);
        connect(&box, QOverload<long long>::of(&QtOrvSpinBoxVal64::valueChanged), this,
                [this](long long value) { emitted.append(QString::number(value)); });
        connect(&box, QOverload<const QString &>::of(&QtOrvSpinBoxVal64::valueChanged), this,
                [this](const QString &text) { emitted.append(QLatin1Char('"') + text + QLatin1Char('"')); });
        show();
        activateWindow();
        box.setFocus(Qt::OtherFocusReason);
    }

    bool isReady() { return QTest::qWaitForWindowActive(this) && box.hasFocus(); }

    QPoint arrow(QStyle::SubControl control)
    {
        QStyleOptionSpinBox option;
        option.initFrom(&box);
        option.frame = box.hasFrame();
        option.subControls = QStyle::SC_All;
        return box.style()->subControlRect(QStyle::CC_SpinBox, &option, control, &box).center();
    }
    void press(QStyle::SubControl control) { QTest::mousePress(&box, Qt::LeftButton, {}, arrow(control)); }
    void release(QStyle::SubControl control) { QTest::mouseRelease(&box, Qt::LeftButton, {}, arrow(control)); }
    void sendKey(QEvent::Type type, int key, bool autoRepeat)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(), autoRepeat);
        QApplication::sendEvent(&box, &event);
    }
    void click(QStyle::SubControl control)
    {
        press(control);
        release(control);
    }
    void type(const QString &keys)
    {
        box.selectAll();
        QTest::keyClicks(&box, keys);
    }

    QtOrvSpinBoxVal64 box;
    QLineEdit other;
    QLineEdit *edit = nullptr;
    QStringList emitted;
};

QStringList announced(std::initializer_list<long long> values)
{
    QStringList all;
    for (const long long value : values)
        all << QString::number(value) << QLatin1Char('"') + QString::number(value) + QLatin1Char('"');
    return all;
}

using EndTyping = void (*)(Window &);

} // namespace

Q_DECLARE_METATYPE(EndTyping)

class tst_QtOrvSpinBoxVal64 : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commits_data();
    void commits();
    void announcesOnlyTheLastOfNestedValues();
    void showsNumbers_data();
    void showsNumbers();
    void readsWhatItShowsInEveryLocale();
    void keepsBaseAndTextApart();
    void rangeLeavesValueAlone();

    void typesTracked_data();
    void typesTracked();
    void keepsCursorWhileGroupsMove();
    void endsTyping_data();
    void endsTyping();
    void guardsAffixes();

    void steps_data();
    void steps();
    void clicksArrows();
    void commitsHeldArrowOnRelease();
    void commitsHeldKeyOnRelease();
    void endsHoldWithFocus();
    void refusesHeldNumberOutsideTheRange();

    void sizesForItsTexts();
    void editsItems();
    void servesAssistiveTools();
};

void tst_QtOrvSpinBoxVal64::commits_data()
{
    QTest::addColumn<long long>("minimum");
    QTest::addColumn<long long>("maximum");
    QTest::addColumn<long long>("step");
    QTest::addColumn<long long>("number");
    QTest::addColumn<long long>("committed");

    const auto row = [](const char *name, long long minimum, long long maximum, long long step, long long number,
                        long long committed) {
        QTest::newRow(name) << minimum << maximum << step << number << committed;
    };
    row("below half", 0, 99, 10, 14, 10);
    row("half", 0, 99, 10, 15, 20);
    row("half of an odd step, rounded down", 0, 99, 3, 7, 9);
    row("capped", 0, 99, 10, 96, 99);
    row("maximum stays", 0, 95, 10, 95, 95);
    row("minimum stays", 5, 95, 10, 5, 5);
    row("grid starts at the minimum", -7, 99, 10, 0, 3);
    row("too great", 0, 99, 10, 150, 50);
    row("too small", 0, 99, 10, -1, 50);
    row("no step", 0, 99, 0, 14, 14);
    row("negative step", 0, 99, -10, 14, 14);
    row("widest range, down", Smallest, Largest, Largest, 5, -1);
    row("widest range, up", Smallest, Largest, Largest, Largest - 2, Largest - 1);
    row("widest range, capped", Smallest, Largest, 1LL << 62, Largest - 1, Largest);
}

void tst_QtOrvSpinBoxVal64::commits()
{
    QFETCH(long long, number);
    QFETCH(long long, committed);
    QFETCH(long long, minimum);
    QFETCH(long long, maximum);
    QFETCH(long long, step);
    Window window;
    window.box.setRange(minimum, maximum);
    window.box.setValue(50);
    window.emitted.clear();
    window.box.setValidateStepping(true);
    window.box.setSingleStep(step);

    window.box.setValue(number);
    QCOMPARE(window.box.value(), committed);
    QCOMPARE(window.box.text(), QString::number(committed));
    QCOMPARE(window.emitted, committed == 50 ? QStringList() : announced({committed}));

    window.edit->setText(QStringLiteral("7"));
    window.emitted.clear();
    window.box.setValue(committed);
    QCOMPARE(window.box.text(), QString::number(committed)); // shown again, nothing to announce
    QCOMPARE(window.emitted, QStringList());
}

void tst_QtOrvSpinBoxVal64::announcesOnlyTheLastOfNestedValues()
{
    QtOrvSpinBoxVal64 box;
    box.setSuffix(QStringLiteral(" us"));
    QStringList texts;
    connect(&box, QOverload<long long>::of(&QtOrvSpinBoxVal64::valueChanged), &box, [&box] { box.setValue(20); });
    connect(&box, QOverload<const QString &>::of(&QtOrvSpinBoxVal64::valueChanged), &box,
            [&texts](const QString &text) { texts.append(text); });
    box.setValue(10);
    QCOMPARE(box.value(), 20);
    QCOMPARE(texts, QStringList(QStringLiteral("20 us")));
}

void tst_QtOrvSpinBoxVal64::showsNumbers_data()
{
    QTest::addColumn<long long>("number");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("groups");
    QTest::addColumn<QString>("text");

    const auto row = [](long long number, int base, const char *locale, bool groups, const QString &text) {
        QTest::addRow("%lld base %d %s %d", number, base, locale, groups)
            << number << base << QString::fromLatin1(locale) << groups << text;
    };
    row(255, 16, "en", true, QStringLiteral("ff"));
    row(-255, 16, "en", true, QStringLiteral("-ff"));
    row(Smallest, 16, "en", false, QStringLiteral("-8000000000000000"));
    row(Largest, 36, "en", false, QStringLiteral("1y2p0ij32e8e7"));
    row(1234567, 10, "en", false, QStringLiteral("1234567"));
    row(1234567, 10, "en", true, QStringLiteral("1,234,567"));
    row(-1234567, 10, "de", true, QStringLiteral("-1.234.567"));
    row(Smallest, 10, "de", false, QStringLiteral("-9223372036854775808"));
    row(1203, 10, "hi", false, QStringLiteral("1203"));
    row(120, 10, "fa", true, QStringLiteral(u"\u06f1\u06f2\u06f0"));
}

void tst_QtOrvSpinBoxVal64::showsNumbers()
{
    QFETCH(long long, number);
    QFETCH(int, base);
    QFETCH(QString, locale);
    QFETCH(bool, groups);
    QtOrvSpinBoxVal64 box;
    box.setRange(Smallest, Largest);
    box.setPrefix(QStringLiteral("0x"));
    box.setSuffix(QStringLiteral(" ms"));
    box.setLocale(QLocale(locale));
    box.setGroupSeparatorShown(groups);
    box.setDisplayIntegerBase(base);
    box.setValue(number);
    QFETCH(QString, text);
    QCOMPARE(box.text(), QLatin1String("0x") + text + QLatin1String(" ms"));
    QCOMPARE(box.cleanText(), QString::number(number));
    QCOMPARE(box.valueFromText(box.text()), number);
    QString tooShort = QStringLiteral("0x");
    int pos = 0;
    QCOMPARE(box.validate(tooShort, pos), QValidator::Intermediate);
    QCOMPARE(box.valueFromText(tooShort), Smallest);
}

void tst_QtOrvSpinBoxVal64::readsWhatItShowsInEveryLocale()
{
    QtOrvSpinBoxVal64 box;
    box.setRange(Smallest, Largest);
    const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale &locale : locales) {
        box.setLocale(locale);
        for (const bool groups : {false, true}) {
            box.setGroupSeparatorShown(groups);
            for (const long long number : {Smallest, -1234567LL, 890LL, Largest})
                QVERIFY2(box.valueFromText(box.textFromValue(number)) == number, qPrintable(locale.name()));
        }
    }
}

void tst_QtOrvSpinBoxVal64::keepsBaseAndTextApart()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setValue(10);
    window.box.setDisplayIntegerBase(16);
    window.box.setDisplayIntegerBase(1);
    QCOMPARE(window.box.displayIntegerBase(), 16);
    QCOMPARE(window.box.text(), QStringLiteral("10"));
    QTest::keyClick(&window.box, Qt::Key_Return);
    QCOMPARE(window.box.value(), 10); // shown in base 10, not typed in base 16
    QCOMPARE(window.box.text(), QStringLiteral("a"));
}

void tst_QtOrvSpinBoxVal64::rangeLeavesValueAlone()
{
    QtOrvSpinBoxVal64 box;
    box.setRange(10, 20);
    QCOMPARE(box.text(), QStringLiteral("0"));
    box.setPrefix(QStringLiteral("x")); // outside the range, and yet shown with the new prefix
    QCOMPARE(box.text(), QStringLiteral("x0"));
    box.setMinimum(30);
    QCOMPARE(box.maximum(), 30);
    box.setMaximum(5);
    QCOMPARE(box.minimum(), 5);
    box.setRange(8, 3);
    QCOMPARE(box.minimum(), 8);
    QCOMPARE(box.maximum(), 8);
    QCOMPARE(box.value(), 0);
}

void tst_QtOrvSpinBoxVal64::typesTracked_data()
{
    QTest::addColumn<long long>("minimum");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QString>("text");

    QTest::newRow("every number") << 0LL << QStringLiteral("57") << announced({5, 57}) << QStringLiteral("57");
    QTest::newRow("too small") << 10LL << QStringLiteral("5") << QStringList() << QStringLiteral("42");
    QTest::newRow("too great") << 0LL << QStringLiteral("500") << announced({5, 50}) << QStringLiteral("50");
    QTest::newRow("no number") << 0LL << QStringLiteral("4x") << announced({4}) << QStringLiteral("4");
    QTest::newRow("only a sign") << -9LL << QStringLiteral("-") << QStringList() << QStringLiteral("42");
    QTest::newRow("nothing") << 0LL << QStringLiteral("\b") << QStringList() << QStringLiteral("42");
}

void tst_QtOrvSpinBoxVal64::typesTracked()
{
    QFETCH(long long, minimum);
    QFETCH(QString, keys);
    Window window;
    QVERIFY(window.isReady());
    window.box.setMinimum(minimum);
    window.type(keys);
    QTEST(window.emitted, "emitted");
    QTEST(window.box.text(), "text");
}

void tst_QtOrvSpinBoxVal64::keepsCursorWhileGroupsMove()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setLocale(QLocale(QLocale::English));
    window.box.setGroupSeparatorShown(true);
    window.box.setMaximum(Largest);
    window.box.setValue(1234);
    window.edit->setCursorPosition(3); // 1,2|34
    QTest::keyClicks(&window.box, QStringLiteral("99"));
    QCOMPARE(window.box.text(), QStringLiteral("129,934"));
    QCOMPARE(window.edit->cursorPosition(), 5); // 129,9|34
    QTest::keyClick(&window.box, Qt::Key_Backspace);
    QCOMPARE(window.box.value(), 12934);
}

void tst_QtOrvSpinBoxVal64::endsTyping_data()
{
    QTest::addColumn<EndTyping>("end");
    QTest::addColumn<long long>("discarded");
    QTest::addColumn<long long>("kept");

    const auto row = [](const char *name, long long discarded, long long kept, EndTyping end) {
        QTest::newRow(name) << end << discarded << kept;
    };
    row("Return", 57, 57, [](Window &window) { QTest::keyClick(&window.box, Qt::Key_Return); });
    row("Enter", 57, 57, [](Window &window) { QTest::keyClick(&window.box, Qt::Key_Enter); });
    row("focus", 42, 57, [](Window &window) { window.other.setFocus(Qt::TabFocusReason); });
    row("arrow", 41, 56, [](Window &window) { window.click(Down); });
    row("Up", 43, 58, [](Window &window) { QTest::keyClick(&window.box, Qt::Key_Up); });
    row("Page Down", 32, 47, [](Window &window) { QTest::keyClick(&window.box, Qt::Key_PageDown); });
}

void tst_QtOrvSpinBoxVal64::endsTyping()
{
    QFETCH(EndTyping, end);
    for (const bool ignore : {true, false}) {
        Window window;
        QVERIFY(window.isReady());
        window.box.setKeyboardTracking(false);
        window.box.setIgnoreFocusOut(ignore);
        window.type(QStringLiteral("57"));
        QCOMPARE(window.box.text(), QStringLiteral("57"));

        QMenu menu; // a context menu for instance: what was typed waits on
        menu.addAction(QStringLiteral("Paste"));
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard")); // offscreen
        menu.popup(QPoint());
        menu.close();
        QCOMPARE(window.box.text(), QStringLiteral("57"));
        QCOMPARE(window.emitted, QStringList());

        end(window);
        QFETCH(long long, discarded);
        QFETCH(long long, kept);
        const long long value = ignore ? discarded : kept;
        QCOMPARE(window.box.value(), value);
        QCOMPARE(window.box.text(), QString::number(value));
    }
}

void tst_QtOrvSpinBoxVal64::guardsAffixes()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setPrefix(QStringLiteral("N1 "));
    window.box.setSuffix(QStringLiteral("5s")); // digits, which a damaged text would lend to the number
    const QString whole = QStringLiteral("N1 425s");
    QCOMPARE(window.box.text(), whole);

    window.edit->setCursorPosition(4);
    window.edit->setCursorPosition(1);
    QCOMPARE(window.edit->cursorPosition(), 4);
    window.edit->setCursorPosition(7);
    QCOMPARE(window.edit->cursorPosition(), 5);
    QTest::keyClick(&window.box, Qt::Key_Delete);
    window.edit->setCursorPosition(3);
    QTest::keyClick(&window.box, Qt::Key_Backspace);
    QTest::keyClick(&window.box, Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(window.box.text(), whole);

    const std::function<void()> selections[] = {
        [&] { window.box.selectAll(); },
        [&] { window.edit->selectAll(); },
        [&] { QTest::keyClick(&window.box, Qt::Key_A, Qt::ControlModifier); },
        [&] { QTest::keyClick(&window.box, Qt::Key_Return); },
        [&] { window.edit->setCursorPosition(5), QTest::keyClick(&window.box, Qt::Key_Home, Qt::ShiftModifier); },
        [&] { window.edit->setCursorPosition(3), QTest::keyClick(&window.box, Qt::Key_End, Qt::ShiftModifier); },
        [&] { window.other.setFocus(), QTest::keyClick(&window.other, Qt::Key_Backtab); },
        [&] { window.other.setFocus(), window.box.setFocus(Qt::MouseFocusReason); },
    };
    for (const auto &select : selections) {
        window.edit->deselect();
        select();
        QCOMPARE(window.edit->selectedText(), QStringLiteral("42"));
    }
    QTest::keyClicks(&window.box, QStringLiteral("7"));
    QCOMPARE(window.emitted, QStringList({QStringLiteral("7"), QStringLiteral("\"N1 75s\"")}));

    window.box.clear();
    QCOMPARE(window.box.text(), QStringLiteral("N1 5s"));
    QCOMPARE(window.edit->cursorPosition(), 3);
    QCOMPARE(window.box.value(), 7);
}

void tst_QtOrvSpinBoxVal64::steps_data()
{
    QTest::addColumn<long long>("maximum");
    QTest::addColumn<long long>("start");
    QTest::addColumn<long long>("step");
    QTest::addColumn<int>("steps");
    QTest::addColumn<long long>("dropped");
    QTest::addColumn<long long>("wrapped");

    const auto row = [](const char *name, long long maximum, long long start, long long step, int steps,
                        long long dropped, long long wrapped) {
        QTest::newRow(name) << maximum << start << step << steps << dropped << wrapped;
    };
    row("within", 99, 42, 10, -5, -8, -8);
    row("above", 99, 95, 10, 1, 95, -50);
    row("below", 99, -45, 10, -1, -45, 99);
    row("to the bound", 99, 89, 10, 1, 99, 99);
    row("negative step", 99, -45, -10, 1, -45, 99);
    row("sum overflows", Largest, Largest - 1, 2, 1, Largest - 1, -50);
    row("product overflows", Largest, 0, Largest, 2, 0, -50);
    row("negative product overflows", Largest, 0, Largest, -2, 0, Largest);
}

void tst_QtOrvSpinBoxVal64::steps()
{
    QFETCH(long long, maximum);
    QFETCH(long long, start);
    QFETCH(long long, step);
    QFETCH(int, steps);
    for (const bool wrapping : {false, true}) {
        QtOrvSpinBoxVal64 box;
        box.setRange(-50, maximum);
        box.setValue(start);
        box.setSingleStep(step);
        box.setWrapping(wrapping);
        box.stepBy(steps);
        QFETCH(long long, dropped);
        QFETCH(long long, wrapped);
        QCOMPARE(box.value(), wrapping ? wrapped : dropped);
    }
}

void tst_QtOrvSpinBoxVal64::clicksArrows()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setSuffix(QStringLiteral(" us"));
    window.box.setMaximum(43);
    window.click(Up);
    QCOMPARE(window.emitted, QStringList({QStringLiteral("43"), QStringLiteral("\"43 us\"")}));
    QCOMPARE(window.edit->selectedText(), QStringLiteral("43"));
    window.click(Up);
    QCOMPARE(window.box.value(), 43);
    window.box.setWrapping(true);
    window.click(Up);
    QCOMPARE(window.box.value(), 0);
    window.box.setSelectWhenStepping(false);
    window.edit->deselect();
    window.click(Up);
    QVERIFY(!window.edit->hasSelectedText());
    window.box.setReadOnly(true);
    window.click(Down);
    QCOMPARE(window.box.value(), 1);
}

void tst_QtOrvSpinBoxVal64::commitsHeldArrowOnRelease()
{
    FastRepeatStyle style;
    Window window;
    QVERIFY(window.isReady());
    window.box.setStyle(&style);
    window.press(Up);
    QTRY_VERIFY(window.box.value() >= 45);
    window.release(Up);
    const long long from = window.box.value();
    QCOMPARE(window.emitted.size(), 2 * (from - 42)); // number and text of every step

    window.emitted.clear();
    window.box.setButtonTracking(false);
    window.press(Down);
    QTRY_VERIFY(window.box.text().toLongLong() <= from - 3);
    QCOMPARE(window.box.value(), from);
    QCOMPARE(window.emitted, QStringList());
    const long long shown = window.box.text().toLongLong();
    window.release(Down);
    QCOMPARE(window.emitted, announced({shown}));

    window.emitted.clear();
    QTest::mouseDClick(&window.box, Qt::LeftButton, {}, window.arrow(Up)); // the second press of two quick ones
    QCOMPARE(window.box.text(), QString::number(shown + 1));
    QCOMPARE(window.emitted, QStringList());
    window.release(Up);
    QCOMPARE(window.emitted, announced({shown + 1}));
}

void tst_QtOrvSpinBoxVal64::commitsHeldKeyOnRelease()
{
    FastRepeatStyle style;
    Window window;
    QVERIFY(window.isReady());
    window.box.setStyle(&style);
    window.box.setButtonTracking(false);
    window.sendKey(QEvent::KeyPress, Qt::Key_Up, false);
    QCOMPARE(window.box.text(), QStringLiteral("43"));
    window.sendKey(QEvent::KeyRelease, Qt::Key_Up, true);
    window.sendKey(QEvent::KeyPress, Qt::Key_Up, true);
    QTRY_VERIFY(window.box.text().toLongLong() >= 46);
    QCOMPARE(window.emitted, QStringList());
    const long long shown = window.box.text().toLongLong();
    window.sendKey(QEvent::KeyRelease, Qt::Key_Up, false);
    QCOMPARE(window.emitted, announced({shown}));
}

void tst_QtOrvSpinBoxVal64::endsHoldWithFocus()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setButtonTracking(false);
    window.sendKey(QEvent::KeyPress, Qt::Key_Down, false);
    QCOMPARE(window.emitted, QStringList());
    window.other.setFocus();
    QCOMPARE(window.emitted, announced({41}));
    window.box.stepUp(); // no longer held
    QCOMPARE(window.box.value(), 42);
}

void tst_QtOrvSpinBoxVal64::refusesHeldNumberOutsideTheRange()
{
    Window window;
    QVERIFY(window.isReady());
    window.box.setButtonTracking(false);
    window.box.setSingleStep(40);
    window.press(Up);
    QTest::keyClick(&window.box, Qt::Key_Up, Qt::ControlModifier); // ten steps, ended by the key
    QCOMPARE(window.box.text(), QStringLiteral("482"));
    window.release(Up);
    QCOMPARE(window.box.value(), 42);
    QCOMPARE(window.box.text(), QStringLiteral("482"));
    QTest::keyClick(&window.box, Qt::Key_Return);
    QCOMPARE(window.box.text(), QStringLiteral("42"));

    window.box.setWrapping(true);
    window.box.setSingleStep(Largest);
    window.press(Up);
    QCOMPARE(window.box.text(), QStringLiteral("0"));
    window.release(Up);
    QCOMPARE(window.emitted, announced({0}));
}

void tst_QtOrvSpinBoxVal64::sizesForItsTexts()
{
    QtOrvSpinBoxVal64 box;
    const auto grows = [&box](const std::function<void()> &change) {
        const QSize hint = box.sizeHint();
        const QSize minimumHint = box.minimumSizeHint();
        change();
        return box.sizeHint().width() > hint.width() && box.minimumSizeHint().width() > minimumHint.width();
    };
    QVERIFY(grows([&box] { box.setMinimum(-1000); }));
    QVERIFY(grows([&box] { box.setMaximum(Largest); }));
    QVERIFY(grows([&box] { box.setPrefix(QStringLiteral("from ")); }));
    QVERIFY(grows([&box] { box.setSuffix(QStringLiteral(" us")); }));
    QVERIFY(grows([&box] {
        QFont font = box.font();
        font.setPointSize(2 * font.pointSize());
        box.setFont(font);
    }));
}

void tst_QtOrvSpinBoxVal64::editsItems()
{
    QStandardItemModel model(1, 2);
    const QModelIndex index = model.index(0, 0);
    model.setData(index, 42LL);
    QItemEditorFactory factory;
    factory.registerEditor(QMetaType::LongLong, new QStandardItemEditorCreator<QtOrvSpinBoxVal64>);
    QStyledItemDelegate delegate;
    delegate.setItemEditorFactory(&factory);
    QTableView view;
    view.setItemDelegate(&delegate);
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));

    view.setCurrentIndex(index);
    view.edit(index);
    auto *editor = view.findChild<QtOrvSpinBoxVal64 *>();
    QVERIFY(editor);
    QCOMPARE(editor->value(), 42);
    editor->setKeyboardTracking(false);
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("57"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(model.data(index).toLongLong(), 57);
}

void tst_QtOrvSpinBoxVal64::servesAssistiveTools()
{
    QtOrvSpinBoxVal64 box;
    box.setAccessibleName(QStringLiteral("Width"));
    box.setRange(Smallest, Largest);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(interface && interface->valueInterface());
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Width"));
    QCOMPARE(interface->valueInterface()->minimumValue().toLongLong(), Smallest);
    interface->valueInterface()->setCurrentValue(Largest);
    QCOMPARE(interface->valueInterface()->currentValue().toLongLong(), Largest);
    QCOMPARE(box.value(), Largest);
}

ORV_TEST_MAIN(tst_QtOrvSpinBoxVal64)

#include "tst_qtorvspinboxval64.moc"
