// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "input.h"

#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <orvtest.h>

#include <QDataWidgetMapper>
#include <QLabel>
#include <QScreen>
#include <QStandardItemModel>
#include <QToolButton>

#include <functional>
#include <limits>

namespace {

/** At 10 of 0 to 100. */
template <typename Composite>
class Window : public FieldWindow<Composite>
{
public:
    using Number = decltype(std::declval<Composite>().value());

    Window()
        : FieldWindow<Composite>(10)
    {
        this->log.noteTexts(composite);
        this->log.noteRanges(composite);
    }

    Composite &composite = this->field;
    QSlider *inner() { return composite.slider()->slider(); }
    QString announced(int value) const { return announced(value, text(value)); }
    /** Each of them in the order of its own spin box. */
    QString announced(int value, const QString &text) const
    {
        const bool numberFirst = std::is_same_v<Composite, QtOrvSpinBox>;
        return QString::fromLatin1(numberFirst ? "%1 '%2'" : "'%2' %1").arg(value).arg(text);
    }

    void mouse(void (*act)(QWindow *, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int), QPoint place)
    {
        act(inner()->window()->windowHandle(), Qt::LeftButton, {}, inner()->mapTo(inner()->window(), place), -1);
    }
    void press() { mouse(QTest::mousePress, handle(*inner())); }
    void release() { mouse(QTest::mouseRelease, handle(*inner())); }
    /** Drags the handle far enough for another value, a real way. */
    void drag(int pixels)
    {
        const QPoint way = inner()->orientation() == Qt::Vertical ? QPoint(0, -pixels) : QPoint(pixels, 0);
        const QPoint place = inner()->mapTo(inner()->window(), handle(*inner()) + way);
        const int before = inner()->sliderPosition();
        QTest::mouseMove(inner()->window()->windowHandle(), place);
        QTRY_VERIFY(inner()->sliderPosition() != before);
    }

private:
    QString text(int value) const
    {
        return std::is_same_v<Number, double> ? QString::number(value, 'f', 3) : QString::number(value);
    }
};

void expectPopUp()
{
    OrvTest::TestCase::expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
}

void clickButton(Window<QtOrvSpinBox> &window)
{
    expectPopUp();
    QTest::mouseClick(window.composite.toolButton(), Qt::LeftButton);
}

void openSlider(Window<QtOrvSpinBox> &window)
{
    window.composite.resizeSlider(30, 300);
    clickButton(window);
    QVERIFY(QTest::qWaitForWindowExposed(window.composite.slider()));
    QVERIFY(window.inner()->hasFocus());
}

template <typename AnyWindow>
void openSlider(AnyWindow &)
{
}

/** Has the composite show a number that the slider has no position for. */
template <typename Composite>
void putBetweenPositions(Window<Composite> &window)
{
    window.composite.setRange(0, 1000);
    if constexpr (std::is_same_v<Composite, QtOrvGainSlider>) {
        window.composite.spinBox()->setValue(450.25);
    } else {
        window.composite.setScaleType(QtOrvSlider::Log10);
        window.composite.spinBox()->setValue(450);
    }
    QVERIFY(window.composite.slider()->value() != window.composite.value());
    QCoreApplication::processEvents(); // wider numbers change the layout
    window.takeLog();
}

/** Calls \a check with a window for each of the three. */
template <typename Check>
void forEachComposite(const Check &check)
{
    const auto run = [&check](auto &&window) {
        if (QTest::currentTestFailed())
            return;
        QVERIFY(window.isReady());
        check(window);
    };
    run(Window<QtOrvSpinBox>());
    run(Window<QtOrvSliderSpinBox>());
    run(Window<QtOrvGainSlider>());
}

} // namespace

class tst_Composites : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void draggingIsAnnouncedOnRelease()
    {
        forEachComposite([](auto &window) {
            openSlider(window);
            window.press();
            for (int i = 0; i < 3; ++i) {
                window.drag(40);
                QCOMPARE(int(window.composite.spinBox()->value()), window.inner()->value());
                QCOMPARE(window.takeLog(), QString());
            }
            window.release();
            const int reached = window.inner()->value();
            QVERIFY(reached > 20);
            QCOMPARE(window.takeLog(), window.announced(reached));
            window.composite.slider()->setTracking(false);
            window.press();
            window.drag(-40);
            QCOMPARE(int(window.composite.spinBox()->value()), reached); // which follows no drag any more
            window.release();
            QVERIFY(window.inner()->value() < reached);
            QCOMPARE(window.takeLog(), window.announced(window.inner()->value()));
        });
    }

    void keysWheelAndPagesAreAnnouncedAtOnce()
    {
        forEachComposite([](auto &window) {
            openSlider(window);
            QTest::keyClick(window.inner(), Qt::Key_Up);
            QTest::keyClick(window.inner(), Qt::Key_PageUp);
            QCOMPARE(window.takeLog(), window.announced(11) + QLatin1Char(' ') + window.announced(21));
            const bool vertical = window.inner()->orientation() == Qt::Vertical;
            const QPoint far = vertical ? QPoint(window.inner()->width() / 2, 3)
                                        : QPoint(window.inner()->width() - 3, window.inner()->height() / 2);
            window.mouse(QTest::mousePress, far);
            QCOMPARE(window.takeLog(), window.announced(31));
            window.mouse(QTest::mouseRelease, far);
            QCOMPARE(window.takeLog(), QString());
            turnWheel(window.inner(), 1);
            QVERIFY(window.inner()->value() > 31);
            QCOMPARE(window.takeLog(), window.announced(window.inner()->value()));
        });
    }

    void theSpinBoxMovesTheSlider()
    {
        forEachComposite([](auto &window) {
            QTest::keyClick(window.composite.spinBox(), Qt::Key_Up);
            QCOMPARE(window.inner()->value(), 11);
            QCOMPARE(window.takeLog(), window.announced(11));
            type(window.composite.spinBox(), QStringLiteral("9"));
            QCOMPARE(window.inner()->value(), 9);
            QCOMPARE(window.takeLog(), window.announced(9, QStringLiteral("9")));
            window.composite.setValidateTyping(false);
            type(window.composite.spinBox(), QStringLiteral("42"));
            QCOMPARE(window.takeLog(), QString());
            QTest::keyClick(window.composite.spinBox(), Qt::Key_Return);
            QCOMPARE(window.inner()->value(), 42);
            QCOMPARE(window.takeLog(), window.announced(42));
        });
        Window<QtOrvGainSlider> gain; // whose step leaves gaps that can be typed; a finer one brings the slider there
        type(gain.composite.spinBox(), QStringLiteral("9.6"));
        QCOMPARE(gain.composite.value(), 9.6);
        QCOMPARE(gain.composite.slider()->value(), 10.0);
        gain.takeLog();
        gain.composite.setSingleStep(0.2);
        QCOMPARE(gain.takeLog(), QString());
        QCOMPARE(gain.composite.slider()->value(), 9.6);
    }

    void rangeAndValueActOnTheSlider()
    {
        forEachComposite([](auto &window) {
            auto &composite = window.composite;
            composite.setRange(0, 100);
            composite.setValue(10);
            QCOMPARE(window.takeLog(), QString());
            composite.setRange(20, 60);
            QString emitted = window.takeLog();
            QCOMPARE(emitted.count(QStringLiteral("20..60")), 1);
            QCOMPARE(emitted.remove(QStringLiteral("20..60")).simplified(), window.announced(20));
            composite.setValue(1000);
            QCOMPARE(window.takeLog(), window.announced(60));
            composite.setMinimum(40);
            composite.setMaximum(80);
            QCOMPARE(window.takeLog(), QStringLiteral("40..60 40..80"));
            QVERIFY(composite.spinBox()->minimum() == 40 && composite.spinBox()->maximum() == 80);
            for (const int step : {15, 0, -3})
                composite.setSingleStep(step);
            QVERIFY(composite.slider()->singleStep() == 15 && composite.spinBox()->singleStep() == 15);
            composite.setValidate(true);
            window.takeLog();
            composite.setValue(65);
            QCOMPARE(window.takeLog(), window.announced(70));
        });
    }

    void aHandleThatIsNotMovedLeavesTheNumber()
    {
        forEachComposite([](auto &window) {
            putBetweenPositions(window);
            const QString shown = window.composite.spinBox()->text();
            const auto number = window.composite.value();
            openSlider(window);
            for (int i = 0; i < 2; ++i) {
                window.press();
                const QPoint place = window.inner()->mapTo(window.inner()->window(), handle(*window.inner()));
                QTest::mouseMove(window.inner()->window()->windowHandle(), place); // of a hand that is not still
                QCoreApplication::processEvents();
                window.release();
                QCOMPARE(window.composite.spinBox()->text(), shown);
                QCOMPARE(window.composite.value(), number);
                QCOMPARE(window.takeLog().count(QLatin1Char('\'')), 2); // once
            }
            window.press();
            window.drag(-40);
            window.drag(40);
            window.release();
            QCOMPARE(window.composite.value(), window.composite.slider()->value());
        });
    }

    /** Which nobody lets go of then: what it has come to is no entry. */
    void aDragEndsWithoutANumberWhenTheSliderIsDisabled()
    {
        for (const auto &[tracks, number] : {std::pair(true, 10), {true, 30}, {false, 10}, {false, 30}}) {
            forEachComposite([tracks = tracks, number = number](auto &window) {
                openSlider(window);
                window.composite.slider()->setTracking(tracks);
                window.press();
                window.drag(40);
                if (number != 10) // told meanwhile, by a camera
                    window.composite.spinBox()->setValue(number);
                window.composite.setEnabled(false);
                QCOMPARE(int(window.composite.value()), number);
                QCOMPARE(window.inner()->value(), number);
                QCOMPARE(window.takeLog(), QString());
            });
        }
    }

    void onlyANewRangeMovesANumberToABound()
    {
        forEachComposite([](auto &window) {
            auto &composite = window.composite;
            putBetweenPositions(window);
            const auto number = composite.value();
            composite.setRange(-50, 2000);
            composite.setRange(1, 1500);
            QCOMPARE(window.takeLog(), QStringLiteral("-50..2000 1..1500"));
            QCOMPARE(composite.value(), number);
            composite.setRange(0, 8);
            QCOMPARE(window.takeLog().remove(QStringLiteral("0..8")).simplified(), window.announced(8));
            composite.setRange(0, 1000);
            composite.setValue(number); // a program may leave the positions
            QCOMPARE(composite.value(), number);
        });
        Window<QtOrvSliderSpinBox> window;
        window.composite.setValue(55);
        window.takeLog();
        for (const auto type : {QtOrvSlider::Sqrt, QtOrvSlider::Log10, QtOrvSlider::Linear})
            window.composite.setScaleType(type);
        QCOMPARE(window.composite.value(), 55);
        QCOMPARE(window.takeLog(), QString());
    }

    /** The end of the spin box is the bound, also where it shows the bound rounded. */
    void nothingBeyondTheBoundsIsAnnounced()
    {
        for (const char *locale : {"C", "ar_EG"}) {
            Window<QtOrvGainSlider> window;
            QVERIFY(window.isReady());
            QtOrvGainSlider &gain = window.composite;
            gain.spinBox()->setLocale(QLocale(QLatin1String(locale)));
            QCOMPARE(gain.slider()->maxLabel()->text(), gain.spinBox()->locale().toString(100.0, 'f', 3));
            gain.setRange(0.0004, 16.1267);
            gain.setSingleStep(0.5);
            const QString highest = gain.spinBox()->locale().toString(16.127, 'f', 3);
            window.takeLog();
            QTest::keyClick(window.inner(), Qt::Key_End);
            QCOMPARE(window.takeLog(), QStringLiteral("'%1' 16.1267").arg(highest));
            QTest::keyClick(window.inner(), Qt::Key_Home);
            QVERIFY(window.takeLog().endsWith(QStringLiteral("' 0.0004")));
            type(gain.spinBox(), highest);
            QCOMPARE(gain.value(), 16.1267);
            window.takeLog();
            gain.setRange(0.0004, 16.12675); // which is shown alike
            QCOMPARE(gain.value(), 16.1267);
            gain.setRange(0.0004, 16.1266);
            QVERIFY(window.takeLog().endsWith(QStringLiteral("'%1' 16.1266").arg(highest)));
            QTest::keyClick(gain.spinBox(), Qt::Key_Up);
            QCOMPARE(window.takeLog(), QString());
        }
    }

    /** A number between the last two positions has the slider at its end already. */
    void keysLeadOnToTheBound()
    {
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_End}) {
            Window<QtOrvSliderSpinBox> window;
            window.composite.setRange(0, 1000);
            window.composite.setScaleType(QtOrvSlider::Log10);
            window.composite.setValue(999);
            window.takeLog();
            QTest::keyClick(window.inner(), key);
            QCOMPARE(window.takeLog(), QStringLiteral("'1000' 1000"));
        }
    }

    void extremesDoNoHarm()
    {
        QtOrvGainSlider gain;
        gain.setDecimals(1);
        QCOMPARE(gain.spinBox()->decimals(), 1);
        gain.setRange(0, 2);
        QCOMPARE(gain.slider()->maxLabel()->text(), QStringLiteral("2.0"));
        gain.setSingleStep(qQNaN());
        gain.setSingleStep(qInf());
        gain.setValue(qQNaN());
        QVERIFY(gain.singleStep() == 1 && gain.value() == 0);

        constexpr long long largest = std::numeric_limits<long long>::max();
        QtOrvSpinBox box;
        box.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box.spinBox()->setRange(-largest, largest);
        box.spinBox()->setSingleStep(largest);
        box.spinBox()->setValue(largest);
        QCOMPARE(box.value(), std::numeric_limits<int>::max());
        QCOMPARE(box.singleStep(), std::numeric_limits<int>::max());
        QCOMPARE(box.slider()->value(), std::numeric_limits<int>::max());
    }

    void captionsShowWhatIsNotEmpty()
    {
        forEachComposite([](auto &window) {
            auto &composite = window.composite;
            QVERIFY(!composite.leftLabel() && !composite.topLabel());
            const int width = composite.minimumSizeHint().width();
            composite.setLeftLabelText(QStringLiteral("A rather long &caption"));
            composite.setTopLabelText(QStringLiteral("Top"));
            QTRY_VERIFY(composite.topLabel()->geometry().bottom() < composite.spinBox()->y());
            QTRY_VERIFY(composite.leftLabel()->geometry().right() < composite.spinBox()->x());
            QVERIFY(composite.minimumSizeHint().width() >= width + composite.leftLabel()->sizeHint().width());
            window.other.setFocus();
            QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
            QVERIFY(composite.spinBox()->hasFocus());
            composite.setLeftLabelText(QString());
            composite.setTopLabelText(QString());
            QVERIFY(composite.leftLabel()->isHidden() && composite.topLabel()->isHidden());
        });
    }

    void thePopUpOpensBesideTheButton()
    {
        const std::pair<Qt::Orientation, Qt::LayoutDirection> rows[] = {
            {Qt::Vertical, Qt::LeftToRight}, {Qt::Horizontal, Qt::LeftToRight}, {Qt::Horizontal, Qt::RightToLeft}};
        for (const auto &[orientation, direction] : rows) {
            Window<QtOrvSpinBox> window;
            QVERIFY(window.isReady());
            window.move(200, 200);
            window.setLayoutDirection(direction);
            window.composite.setSliderOrientation(orientation);
            QToolButton *const button = window.composite.toolButton();
            QtOrvSlider *const slider = window.composite.slider();
            const bool vertical = orientation == Qt::Vertical;
            QCOMPARE(button->text(), vertical ? QStringLiteral("^") : QStringLiteral(">"));
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            clickButton(window);
            QVERIFY(slider->isVisible() && slider->windowFlags().testFlag(Qt::Popup));
            QVERIFY(window.inner()->hasFocus());
            QCOMPARE(slider->size(), vertical ? QSize(20, 100) : QSize(100, 20));
            const int sideways = direction == Qt::RightToLeft ? -slider->width() : button->width();
            QCOMPARE(slider->mapToGlobal(QPoint()) - button->mapToGlobal(QPoint()),
                     vertical ? QPoint(0, -slider->height()) : QPoint(sideways, 0));
            QTest::keyClick(window.inner(), Qt::Key_Escape);
            QVERIFY(!slider->isVisible());
            clickButton(window);
            window.other.setFocus();
            QVERIFY(!slider->isVisible());
        }
    }

    /** Right where it belongs at first, and all of it seen once the click is over. */
    void thePopUpComesOntoTheScreen()
    {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        Window<QtOrvSpinBox> window;
        QVERIFY(window.isReady());
        window.move(room.topRight() - QPoint(405, 0));
        window.composite.setSliderOrientation(Qt::Horizontal);
        window.composite.resizeSlider(150, 150);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QtOrvSlider *const slider = window.composite.slider();
        QToolButton *const button = window.composite.toolButton();
        expectPopUp();
        QTest::mousePress(button, Qt::LeftButton);
        button->setDown(false);
        button->click();
        QCOMPARE(slider->pos() - button->mapToGlobal(QPoint()), QPoint(button->width(), 0));
        QVERIFY(!room.contains(slider->geometry()));
        QTRY_VERIFY(room.contains(slider->geometry()));
    }

    void keysOpenThePopUp()
    {
        const std::tuple<Qt::Key, Qt::KeyboardModifiers, bool> rows[] = {{Qt::Key_F4, Qt::NoModifier, true},
                                                                         {Qt::Key_Down, Qt::AltModifier, true},
                                                                         {Qt::Key_F4, Qt::AltModifier, false},
                                                                         {Qt::Key_Up, Qt::AltModifier, false}};
        for (const auto &[key, modifiers, opensAtAll] : rows) {
            for (const bool isReadOnly : {false, true}) {
                Window<QtOrvSpinBox> window;
                QVERIFY(window.isReady());
                window.composite.setReadOnly(isReadOnly);
                const bool opens = opensAtAll && !isReadOnly;
                if (opens)
                    expectPopUp();
                QTest::keyClick(window.composite.spinBox(), key, modifiers);
                QCOMPARE(window.composite.slider()->isVisible(), opens);
                QCOMPARE(window.inner()->hasFocus(), opens);
            }
        }
    }

    void readOnlyLeavesNothingToEnter()
    {
        forEachComposite([](auto &window) {
            auto &composite = window.composite;
            openSlider(window);
            window.press();
            window.drag(40);
            composite.setReadOnly(true);
            QTest::keyClick(window.inner(), Qt::Key_Up);
            QTest::keyClick(composite.spinBox(), Qt::Key_Up);
            QTest::keyClicks(composite.spinBox(), QStringLiteral("5"));
            QCOMPARE(composite.value(), 10);
            QCOMPARE(window.takeLog(), QString());
            composite.setValue(12); // a program may
            QCOMPARE(window.takeLog(), window.announced(12));
            composite.setReadOnly(false);
            QTest::keyClick(window.inner(), Qt::Key_Up);
            QTest::keyClick(composite.spinBox(), Qt::Key_Up);
            QCOMPARE(composite.value(), 14);
        });
        QtOrvSpinBox box;
        box.setReadOnly(true);
        box.setSliderButtonVisible(true);
        QVERIFY(!box.isSliderButtonVisible());
        box.setReadOnly(false);
        QVERIFY(box.isSliderButtonVisible());
        box.setSliderButtonVisible(false);
        box.setReadOnly(true);
        box.setReadOnly(false);
        QVERIFY(!box.isSliderButtonVisible());
    }

    /** By Tab through the parts, which is no end of editing, and out of them, which is. */
    void aMapperSubmitsWhenTheFocusLeaves()
    {
        forEachComposite([](auto &window) {
            QStandardItemModel model(1, 1);
            QDataWidgetMapper mapper;
            mapper.setModel(&model);
            mapper.addMapping(&window.composite, 0);
            mapper.toFirst();
            QTest::keyClick(window.composite.spinBox(), Qt::Key_Up);
            QTest::keyClick(&window, Qt::Key_Tab);
            QVERIFY(!window.composite.spinBox()->hasFocus() && !window.other.hasFocus());
            QTest::keyClick(&window, Qt::Key_Backtab);
            QVERIFY(window.composite.spinBox()->hasFocus());
            QVERIFY(!model.index(0, 0).data().isValid() || model.index(0, 0).data().toInt() == 0);
            window.other.setFocus();
            QCOMPARE(model.index(0, 0).data().toInt(), 1);
        });
    }
};

ORV_TEST_MAIN(tst_Composites)
#include "tst_composites.moc"
