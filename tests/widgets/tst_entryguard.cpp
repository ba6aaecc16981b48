// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "input.h"

#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <orvtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QDateTimeEdit>
#include <QDialog>
#include <QPushButton>
#include <QShortcut>
#include <QToolTip>

#include <functional>

namespace {

enum Kind { Int, Double, Wide, TrackedInt, TrackedWide, PlainInt, PlainDouble };
constexpr const char *kinds[] = {"int", "double", "wide", "tracked int", "tracked wide", "plain int", "plain double"};

bool isTracked(int kind)
{
    return kind == TrackedInt || kind == TrackedWide;
}

QAbstractSpinBox *makeBox(int kind)
{
    if (kind == PlainInt)
        return new QSpinBox;
    if (kind == PlainDouble)
        return new QDoubleSpinBox;
    if (kind == Double) {
        auto *const box = new QtOrvDoubleSpinBoxVal;
        box->setValidateTyping(false);
        return box;
    }
    if (kind == Wide || kind == TrackedWide) {
        auto *const box = new QtOrvSpinBoxVal64;
        box->setKeyboardTracking(kind == TrackedWide);
        return box;
    }
    auto *const box = new QtOrvSpinBoxVal;
    box->setValidateTyping(kind == TrackedInt);
    return box;
}

/** A dialog with a focused, guarded box that shows "42 us" of 10 to 1920, and a default button. */
class Window : public QDialog
{
public:
    explicit Window(int kind, const QLocale &locale = QLocale::c())
        : box(makeBox(kind))
        , isFraction(kind == Double || kind == PlainDouble)
    {
        auto *const layout = new QVBoxLayout(this);
        layout->addWidget(box);
        layout->addWidget(&other);
        layout->addWidget(&button);
        button.setDefault(true);
        box->setLocale(locale);
        box->setProperty("maximum", 1920);
        box->setProperty("minimum", 10);
        box->setProperty("singleStep", 5);
        box->setProperty("suffix", QStringLiteral(" us"));
        box->setProperty("value", 42);
        guard = EntryGuard::install(box);
        const QMetaObject *const meta = box->metaObject();
        changes = new QSignalSpy(box, meta->property(meta->indexOfProperty("value")).notifySignal());
        connect(guard, &EntryGuard::entered, this, [this] { ++entered; });
        connect(&button, &QPushButton::clicked, this, [this] { ++clicked; });
        show();
        box->setFocus(Qt::TabFocusReason);
    }
    ~Window() override { delete changes; }

    bool isReady() { return QTest::qWaitForWindowActive(this) && box->hasFocus(); }
    double value() const { return box->property("value").toDouble(); }
    QString textOf(double number) const
    {
        QLocale locale = box->locale();
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        const QString text = isFraction ? locale.toString(number, 'f', 2) : locale.toString(qlonglong(number));
        return text + QLatin1String(" us");
    }
    bool shows(double number) const { return box->text() == textOf(number); }
    void type(const QString &keys) { ::type(box, keys); }
    /** The description of the box for assistive tools. */
    QString spoken() const { return QAccessible::queryAccessibleInterface(box)->text(QAccessible::Description); }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(box, Qt::Key(key), modifiers); }
    void reset()
    {
        guard->drop();
        box->setProperty("value", 42);
        box->setFocus();
        changes->clear();
        entered = clicked = 0;
    }

    QAbstractSpinBox *const box;
    const bool isFraction;
    EntryGuard *guard;
    QLineEdit other;
    QPushButton button;
    QLineEdit *const edit = box->findChild<QLineEdit *>();
    QSignalSpy *changes;
    int entered = 0;
    int clicked = 0;
};

using Action = std::function<void(Window &)>;

void pressReturn(Window &window)
{
    window.press(Qt::Key_Return);
}

void leaveByTab(Window &window)
{
    window.press(Qt::Key_Tab);
}

void clickElsewhere(Window &window)
{
    QTest::mouseClick(&window.other, Qt::LeftButton);
}

void boxes()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QLocale>("locale");
    for (int kind = Int; kind <= PlainDouble; ++kind) {
        for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German), QLocale(QLocale::Arabic)})
            QTest::addRow("%s %s", kinds[kind], qPrintable(locale.name())) << kind << locale;
    }
}

#define FETCH_WINDOW(window)                                                                                           \
    QFETCH(int, kind);                                                                                                 \
    QFETCH(QLocale, locale);                                                                                           \
    Window window(kind, locale);                                                                                       \
    QVERIFY(window.isReady())

} // namespace

class tst_EntryGuard : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isInstalledOnce()
    {
        QtOrvSpinBoxVal64 box;
        QVERIFY(!box.isEntryGuarded());
        QCOMPARE(EntryGuard::of(nullptr), nullptr);
        EntryGuard::remove(&box);
        box.setEntryGuarded(true);
        QVERIFY(box.isEntryGuarded());
        QCOMPARE(EntryGuard::install(&box), EntryGuard::of(&box));
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
        box.setEntryGuarded(false);
        QVERIFY(!box.isEntryGuarded());
        QCOMPARE(box.focusPolicy(), Qt::WheelFocus);
        QDateTimeEdit date;
        QCOMPARE(EntryGuard::install(&date), nullptr);
    }

    void goesWithItsBox_data() { boxes(); }
    void goesWithItsBox()
    {
        FETCH_WINDOW(window);
        const QValidator *const guarded = window.edit->validator();
        window.type(QStringLiteral("2592"));
        const double before = window.value();
        EntryGuard::remove(window.box);
        QVERIFY(window.edit->validator());
        QCOMPARE(window.edit->validator() == guarded, kind < PlainInt); // Qt's boxes have theirs back
        pressReturn(window);
        QCOMPARE(window.value(), before);
        EntryGuard::install(window.box);
        window.type(QStringLiteral("57"));
        delete window.box; // with the focus, and in the midst of an entry
    }

    void refusedKeysBlock_data() { boxes(); }
    void refusedKeysBlock()
    {
        FETCH_WINDOW(window);
        const QString keys[] = {QStringLiteral("2592"), QStringLiteral("-5"), QStringLiteral("20000"),
                                window.isFraction ? QStringLiteral("50.125") : QStringLiteral("12.5"),
                                window.isFraction ? QStringLiteral("50.5.5") : QStringLiteral(",5")};
        for (const QString &typed : keys) {
            for (const Action &end : {Action(pressReturn), Action(leaveByTab), Action(clickElsewhere)}) {
                window.reset();
                window.type(typed);
                const double tracked = window.value(); // what was taken while it was typed
                QVERIFY2(isTracked(kind) || tracked == 42, qPrintable(typed));
                const QString limits = window.spoken();
                QVERIFY(window.guard->isBlocked());
                QVERIFY2(limits.contains(window.textOf(10)) && limits.contains(window.textOf(1920)),
                         qPrintable(limits));
                QCOMPARE(QToolTip::text(), limits);
                window.changes->clear();
                typeOn(window.box, QStringLiteral("7"));
                end(window);
                QCOMPARE(window.value(), tracked);
                QCOMPARE(window.changes->size() + window.entered + window.clicked, 0);
                QCOMPARE(window.guard->isBlocked(), window.box->hasFocus());
                QVERIFY(window.box->hasFocus() || window.shows(tracked));
                QCOMPARE(window.spoken().isEmpty(), !window.box->hasFocus());
            }
        }
    }

    void isPutRight_data() { boxes(); }
    void isPutRight()
    {
        FETCH_WINDOW(window);
        const std::pair<const char *, Action> rows[] = {
            {"25", [](Window &w) { w.press(Qt::Key_Backspace); }},
            {"29", [](Window &w) { w.edit->setCursorPosition(1), w.press(Qt::Key_Delete); }},
            {"57", [](Window &w) { w.press(Qt::Key_A, Qt::ControlModifier), typeOn(w.box, QStringLiteral("57")); }},
            {"258", [](Window &w) { w.press(Qt::Key_Left, Qt::ShiftModifier), typeOn(w.box, QStringLiteral("8")); }},
            {"61", [](Window &w) {
                 QTest::mouseDClick(w.edit, Qt::LeftButton, {}, QPoint(6, 8)), typeOn(w.box, QStringLiteral("61"));
             }}};
        for (const auto &[text, action] : rows) {
            window.reset();
            window.type(QStringLiteral("2592"));
            action(window);
            QVERIFY2(!window.guard->isBlocked() && window.spoken().isEmpty(), text);
            pressReturn(window);
            QCOMPARE(window.value(), QByteArray(text).toDouble());
            QVERIFY(window.shows(window.value()));
        }
        window.reset();
        window.type(QStringLiteral("2592"));
        const double before = window.value();
        QShortcut shortcut(Qt::Key_Escape, &window);
        QSignalSpy shortcuts(&shortcut, &QShortcut::activated);
        window.press(Qt::Key_Escape); // the box's before anybody else's
        QVERIFY(!window.guard->isBlocked() && window.shows(before) && window.isVisible());
        QVERIFY(shortcuts.isEmpty());
        shortcut.setEnabled(false);
        if (!isTracked(kind)) {
            window.type(QStringLiteral("2592"));
            window.press(Qt::Key_Z, Qt::ControlModifier);
            QVERIFY(!window.guard->isBlocked());
            window.press(Qt::Key_Escape);
        }
        QVERIFY(window.isVisible());
        window.press(Qt::Key_Escape); // nothing to restore
        QVERIFY(!window.isVisible());
    }

    /** Text that was selected when a key was refused makes no room for the rest of the number. */
    void restOfARefusedNumberIsNotTaken()
    {
        Window window(Int);
        QVERIFY(window.isReady());
        window.type(QStringLiteral("-57"));
        QApplication::clipboard()->setText(QStringLiteral("57"));
        window.press(Qt::Key_V, Qt::ControlModifier);
        pressReturn(window);
        QVERIFY(window.shows(42) && window.guard->isBlocked());
        window.reset();
        QApplication::clipboard()->setText(QStringLiteral("5000"));
        window.press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(window.guard->isBlocked());
        window.reset();
        window.type(QStringLiteral("5xe7")); // no parts of an integer
        QVERIFY(!window.guard->isBlocked());
        pressReturn(window);
        QCOMPARE(window.value(), 57.0);
        Window fraction(Double);
        fraction.type(QStringLiteral("5e9"));
        QVERIFY(fraction.guard->isBlocked());
    }

    void committedIsWhatWasEntered_data() { boxes(); }
    void committedIsWhatWasEntered()
    {
        FETCH_WINDOW(window);
        const bool isFraction = window.isFraction;
        const std::tuple<QString, double, bool> rows[] = {
            {isFraction ? QLatin1String("57") + locale.decimalPoint() : QStringLiteral("57"), 57, false},
            {isFraction ? QStringLiteral("57.5") : locale.toString(57), isFraction ? 57.5 : 57, false}, // own digits
            {QStringLiteral("\b"), 42, false},
            {QStringLiteral("5"), 42, true}}; // too small
        for (const auto &[keys, value, isTold] : rows) {
            window.reset();
            window.type(keys);
            pressReturn(window);
            QVERIFY2(window.value() == value && window.shows(value), qPrintable(keys));
            QCOMPARE(!window.spoken().isEmpty(), isTold);
            QVERIFY(window.clicked == 0 || isTracked(kind));
            QVERIFY(window.changes->isEmpty() == (value == 42) && !window.guard->isTouched());
        }
        window.reset();
        pressReturn(window); // untouched: the dialog's
        QCOMPARE(window.clicked, 1);
        QCOMPARE(window.changes->size() + window.entered, 0);
        if (isTracked(kind))
            return;
        window.type(QStringLiteral("42"));
        pressReturn(window);
        QCOMPARE(window.entered, 1);
        QVERIFY(window.changes->isEmpty());
        window.type(QStringLiteral("57"));
        window.box->setProperty("value", 60); // by the program
        QVERIFY(!window.guard->isTouched());
        pressReturn(window);
        QVERIFY(window.shows(60));
        window.type(QStringLiteral("57"));
        window.edit->setText(QStringLiteral("61 us")); // no typed number either
        QVERIFY(!window.guard->isTouched());
    }

    /** As the class has it: plain boxes commit when they are left, the others only if typing counts at once. */
    void leavingCommitsByTheClass_data() { boxes(); }
    void leavingCommitsByTheClass()
    {
        FETCH_WINDOW(window);
        window.type(QStringLiteral("57"));
        leaveByTab(window);
        const double expected = isTracked(kind) || kind == PlainInt || kind == PlainDouble ? 57 : 42;
        QVERIFY(window.value() == expected && window.shows(expected));
    }

    /** Snapped on Return only, beside a suffix; in another base beside a prefix. */
    void returnReadsBesideASuffix()
    {
        Window ints(Int, QLocale(QLocale::German));
        QVERIFY(ints.isReady());
        auto *const box = static_cast<QtOrvSpinBoxVal *>(ints.box);
        box->setRange(0, 2048);
        box->setSingleStep(8);
        box->setValidate(true);
        ints.type(QStringLiteral("1277"));
        QVERIFY(ints.changes->isEmpty());
        pressReturn(ints);
        QCOMPARE(box->text(), QStringLiteral("1280 us"));

        Window doubles(Double, QLocale(QLocale::German));
        QVERIFY(doubles.isReady());
        auto *const gain = static_cast<QtOrvDoubleSpinBoxVal *>(doubles.box);
        gain->setRange(-6, 24);
        gain->setSingleStep(0.25);
        gain->setValidate(true);
        for (const auto &[typed, value] : {std::pair("3,3", 3.25), {"-3.3", -3.25}}) {
            doubles.type(QLatin1String(typed));
            pressReturn(doubles);
            QCOMPARE(gain->value(), value);
        }
        Window wide(Wide);
        QVERIFY(wide.isReady());
        auto *const wideBox = static_cast<QtOrvSpinBoxVal64 *>(wide.box);
        wideBox->setPrefix(QStringLiteral("0x"));
        wideBox->setDisplayIntegerBase(16);
        wide.type(QStringLiteral("7fg")); // no digit
        wide.edit->setCursorPosition(2);
        wide.press(Qt::Key_Backspace); // of the prefix
        QVERIFY(!wide.guard->isBlocked());
        pressReturn(wide);
        QCOMPARE(wideBox->text(), QStringLiteral("0x7f us"));
        wide.type(QStringLiteral("-f"));
        QVERIFY(wide.guard->isBlocked());
    }

    /** A value off the grid or beyond the range, and one in another base, stay as the program has set them. */
    void untouchedStaysAsItIs()
    {
        Window ints(Int);
        QVERIFY(ints.isReady());
        auto *const box = static_cast<QtOrvSpinBoxVal *>(ints.box);
        box->setValidate(true);
        box->setDisplayIntegerBase(16);
        pressReturn(ints);
        QCOMPARE(box->text(), QStringLiteral("2a us"));
        for (const int told : {0, 1}) { // the second time it is the value already
            ints.type(QStringLiteral("2b"));
            pressReturn(ints);
            QCOMPARE(box->value(), 45); // snapped
            QCOMPARE(ints.entered, told);
        }

        Window wide(Wide);
        QVERIFY(wide.isReady());
        auto *const wideBox = static_cast<QtOrvSpinBoxVal64 *>(wide.box);
        wideBox->setValidateStepping(true);
        wideBox->setRange(0, 20);
        pressReturn(wide);
        QCOMPARE(wideBox->value(), 42);
        QVERIFY(wide.changes->isEmpty());
        wideBox->setButtonTracking(false);
        wideBox->setRange(0, 50);
        wide.press(Qt::Key_PageUp); // too far
        QVERIFY(wide.shows(42));
    }

    void onlyAPersonCommits_data() { boxes(); }
    void onlyAPersonCommits()
    {
        FETCH_WINDOW(window);
        const struct
        {
            Action action;
            bool keepsText;
        } rows[] = {
            {[](Window &w) { w.box->setLocale(QLocale(QLocale::French)); }, false},
            {[](Window &w) { w.box->setEnabled(false), w.box->setEnabled(true); }, false},
            {[](Window &w) { w.box->setReadOnly(true), w.box->setReadOnly(false); }, false},
            {[](Window &w) { w.box->hide(), w.box->show(); }, false},
            {[](Window &w) { w.box->setProperty("maximum", 1000); }, true},
            {[](Window &w) {
                 QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason); // as one that opens sends it
                 QApplication::sendEvent(w.box, &menu);
             },
             true},
            {[](Window &w) {
                 QDialog message(&w);
                 message.setModal(true);
                 message.show();
                 QTRY_VERIFY(!w.isActiveWindow());
                 QVERIFY(QApplication::focusWidget() != w.box);
             },
             true},
        };
        for (const char *const keys : {"57", "5", "2592"}) {
            for (const auto &row : rows) {
                window.box->setLocale(locale);
                window.box->setProperty("maximum", 1920);
                window.reset();
                window.activateWindow();
                QVERIFY(window.isReady());
                window.type(QString::fromLatin1(keys));
                const double before = window.value();
                const QString text = window.box->text();
                window.changes->clear();
                row.action(window);
                QCOMPARE(window.value(), before);
                QVERIFY(window.changes->isEmpty() && window.entered == 0);
                if (!isTracked(kind)) // else it is committed already, in the form that it was typed in
                    QCOMPARE(window.box->text(), row.keepsText ? text : window.textOf(before));
            }
        }
    }

    void wheelNeedsTheFocus_data() { boxes(); }
    void wheelNeedsTheFocus()
    {
        FETCH_WINDOW(window);
        QVERIFY(turnWheel(window.box, -1));
        QCOMPARE(window.value(), 37.0);
        window.other.setFocus();
        QVERIFY(!turnWheel(window.box, -1));
        QCOMPARE(window.value(), 37.0);
        QCOMPARE(window.box->focusPolicy(), Qt::StrongFocus); // which the wheel does not give
    }

    void tellsNothingOverAHiddenWindow()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QtOrvSpinBoxVal box;
        box.setEntryGuarded(true);
        QTest::keyClicks(&box, QStringLiteral("-"));
        QVERIFY(EntryGuard::of(&box)->isBlocked());
        QVERIFY(!QToolTip::isVisible() && box.accessibleDescription().isEmpty());
    }
};

ORV_TEST_MAIN(tst_EntryGuard)

#include "tst_entryguard.moc"
