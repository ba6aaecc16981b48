#include "bindings.h"
#include "dialogtest.h"
#include "input.h"

#include <OrvCameraGuiApi/camconfig/controlwatch.h>

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QLocale>
#include <QSlider>

#include <memory>

using namespace DialogTest;
using Bindings::Walk;
using OrvGui::ControlWatch;

namespace {

const char *const locales[] = {"C", "de_DE", "ar_EG"};

/** What bears the marks of a control: of radio buttons the one that is checked. */
QWidget *markedPart(QWidget *control)
{
    auto *const button = qobject_cast<QAbstractButton *>(control);
    return button && button->group() && button->group()->checkedButton() ? button->group()->checkedButton() : control;
}

bool isMarked(QWidget *control)
{
    const ControlWatch *const watch = ControlWatch::of(markedPart(control));
    return watch && watch->isMarked();
}

void turnWheelOver(QWidget *widget)
{
    const QPointF middle = widget->rect().center();
    QWheelEvent turn(middle, widget->mapToGlobal(middle.toPoint()), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &turn);
}

/** All that a hand does in a control without entering anything. */
void touch(QWidget *widget)
{
    widget->setFocus();
    if (!widget->hasFocus())
        return;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Shift})
        QTest::keyClick(widget, key);
    if (auto *const slider = qobject_cast<QSlider *>(widget))
        QTest::mouseClick(slider, Qt::LeftButton, {}, handle(*slider));
    if (!qobject_cast<QAbstractSpinBox *>(widget))
        return;
    for (const Qt::Key leave : {Qt::Key_Return, Qt::Key_Tab}) { // a number that was deleted is none
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_Delete);
        QTest::keyClick(widget, leave);
    }
}

} // namespace

/** What the feature dialogs show is what the camera has, and what they write is what somebody entered. */
class ShownAndEnteredTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsShownIsTrue_data();
    void whatIsShownIsTrue();
    void nothingEnteredNothingWritten_data();
    void nothingEnteredNothingWritten();
};

void ShownAndEnteredTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void ShownAndEnteredTest::cleanup()
{
    QLocale::setDefault(QLocale::c());
    TestCase::cleanup();
}

void ShownAndEnteredTest::whatIsShownIsTrue_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<Walk>("walk");
    const QVector<Walk> walks = Bindings::all();
    for (const char *const locale : locales) {
        for (const Walk &walk : walks) {
            const bool isNumber = QByteArray(walk.row.control).startsWith("spBox");
            if (isNumber || locale == locales[0])
                QTest::addRow("%s %s", locale, walk.row.feature) << QLocale(QLatin1String(locale)) << walk;
        }
    }
}

void ShownAndEnteredTest::whatIsShownIsTrue()
{
    QFETCH(QLocale, locale);
    QFETCH(Walk, walk);
    const auto &[make, given, row] = walk;
    QLocale::setDefault(locale);
    const Camera camera;
    const std::unique_ptr<QDialog> dialog(make(camera.device()));
    QVERIFY(show(*dialog));
    for (const auto &[feature, value] : given)
        QVERIFY(camera.set(feature, value));
    QWidget *const widget = control(*dialog, row.control);
    const auto isTrue = [&, feature = row.feature] {
        return shownBy(widget) == QLatin1String(walk.row.shownAs(camera.value(feature).toLatin1()));
    };
    const auto enterRefused = [&] {
        if (qobject_cast<QComboBox *>(widget))
            QTest::keyClick(widget, widget->property("currentIndex").toInt() == 0 ? Qt::Key_Down : Qt::Key_Up);
        else
            enterInto(widget, walk.row.shownAs(isTrue() ? walk.row.reported : walk.row.next));
        return !takeMessage().isEmpty();
    };
    enterInto(widget, row.shownAs(row.next)); // accepted
    QVERIFY(isTrue() && !isMarked(widget));

    QVERIFY(camera.refuse(row.feature));
    QVERIFY(enterRefused());
    QVERIFY(isTrue() || isMarked(widget));
    if (isMarked(widget))
        QTest::keyClick(widget->focusProxy() ? widget->focusProxy() : markedPart(widget), Qt::Key_Escape);
    QVERIFY(isTrue() && !isMarked(widget));
    QVERIFY(dialog->isVisible());

    camera.takeWrites();
    QVERIFY(OrvSim::unplug(SimTest::twoFrame)); // of which the dialog is not told
    enterInto(widget, row.shownAs(row.reported));
    QVERIFY(!shownMessage());
    QVERIFY(isTrue() || isMarked(widget) || !widget->isEnabled());
    QCOMPARE(camera.takeWrites(), 0);
    QVERIFY(OrvSim::replug(SimTest::twoFrame));
    auto *const frameAb = qobject_cast<OrvGui::OrvCamConfigFrameABDialog *>(dialog.get());
    QVERIFY(!frameAb || frameAb->SetDevice(camera.device()));
    QVERIFY(!frameAb || isTrue());
}

void ShownAndEnteredTest::nothingEnteredNothingWritten_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<Walk>("walk");
    const QVector<Walk> walks = Bindings::all();
    for (const char *const locale : locales) {
        for (int i = 0; i < walks.size(); ++i) {
            if (i == 0 || walks.at(i).make != walks.at(i - 1).make) // each dialog once, with what its features need
                QTest::addRow("%s %s", locale, walks.at(i).row.feature)
                    << QLocale(QLatin1String(locale)) << walks.at(i);
        }
    }
}

void ShownAndEnteredTest::nothingEnteredNothingWritten()
{
    QFETCH(QLocale, locale);
    QFETCH(Walk, walk);
    QLocale::setDefault(locale);
    const Camera camera;
    for (const auto &[feature, value] : qAsConst(walk.given))
        QVERIFY(camera.set(feature, value));
    // Between the steps and the positions that a control can take by itself.
    for (const auto &[feature, value] : {std::pair("Frame_FixedFramePeriodValue", "1003"), {"Strobe2Width", "1003"}})
        camera.set(feature, value);
    camera.takeWrites();
    const std::unique_ptr<QDialog> dialog(walk.make(camera.device()));
    QVERIFY(show(*dialog));
    QCOMPARE(camera.takeWrites(), 0);
    const auto widgets = dialog->findChildren<QWidget *>();
    for (QWidget *const widget : widgets) {
        dialog->setFocus();
        if (!widget->isVisible() || !widget->isEnabled() || widget->isWindow())
            continue;
        turnWheelOver(widget);
        QVERIFY2(camera.takeWrites() == 0, qPrintable(widget->objectName()));
        touch(widget);
        QVERIFY2(camera.takeWrites() == 0, qPrintable(widget->objectName()));
    }
    for (const char *const other : locales)
        dialog->setLocale(QLocale(QLatin1String(other)));
    QVERIFY(camera.set("Frame_LineTime", "3200")); // ranges change
    QVERIFY(camera.set("Frame_DecimationMode", "Averaging"));
    QVERIFY(camera.set("Frame_FixedFramePeriodValue", "300"));
    QTest::qWait(0);
    QCOMPARE(camera.takeWrites(), 3);
    QVERIFY(!shownMessage());
}

ORV_TEST_MAIN(ShownAndEnteredTest)

#include "tst_shownandentered.moc"
