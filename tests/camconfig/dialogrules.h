#pragma once

#include "dialogtest.h"

#include <cutwidget.h>

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>

#include <initializer_list>

/** What holds for every feature dialog, checked for one of them. */
namespace DialogTest {

/** Enter commits and clicks nothing; the dialog tells once that it closes, whatever closes it. */
template <typename Dialog>
void checkKeysAndClosing(OrvCam::Device *device)
{
    Dialog dialog(device);
    QSignalSpy closing(&dialog, &Dialog::closing);
    const auto buttons = dialog.template findChildren<QPushButton *>();
    for (const QPushButton *const button : buttons)
        QVERIFY2(!button->isDefault() && !button->autoDefault(), qPrintable(button->objectName()));
    const std::function<void()> ways[] = {[&] { QTest::keyClick(&dialog, Qt::Key_Escape); }, [&] { dialog.close(); },
                                          [&] {
                                              dialog.SetDevice(nullptr); // a camera that goes does not hold it open
                                              QTest::keyClick(&dialog, Qt::Key_Escape);
                                          }};
    int closed = 0;
    for (const auto &way : ways) {
        QVERIFY(show(dialog));
        QCOMPARE(closing.size(), closed);
        way();
        QVERIFY(dialog.isHidden());
        QCOMPARE(closing.size(), ++closed);
    }
}

/** However often the device changes, what is registered at cameras is what one device needs, and in the end nothing. */
template <typename Dialog>
void checkDevicesInTurn(const char *id)
{
    {
        const Camera camera(id);
        Dialog dialog(camera.device());
        const std::size_t sinks = OrvSim::liveObjects().sinks;
        QVERIFY(sinks > 0);
        QVERIFY(dialog.SetDevice(camera.device()));
        QCOMPARE(OrvSim::liveObjects().sinks, sinks);
        QVERIFY(!dialog.SetDevice(nullptr));
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
        for (int i = 0; i < 10; ++i) {
            const Camera other(i % 2 ? id : SimTest::monochrome);
            QVERIFY(dialog.SetDevice(other.device()));
            QVERIFY(i % 2 == 0 || OrvSim::liveObjects().sinks == sinks);
            QVERIFY(dialog.SetDevice(camera.device())); // before the other one goes
        }
        QCOMPARE(OrvSim::liveObjects().sinks, sinks);
    }
    QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
}

/** A device without parameters, or with an error beside them, is none. */
template <typename Dialog>
void checkNoParameters(const char *id)
{
    const Camera camera(id);
    Dialog dialog(camera.device());
    for (const auto answer :
         {OrvSim::Parameters::Null, OrvSim::Parameters::Error, OrvSim::Parameters::ArrayWithError}) {
        OrvSim::setParameters(id, answer);
        QVERIFY(!dialog.SetDevice(camera.device()));
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
    }
    OrvSim::setParameters(id, OrvSim::Parameters::Normal);
    QVERIFY(dialog.SetDevice(camera.device()));
}

/** The layouts have caught up with what the device brought, and everything fits. */
inline void checkNothingIsCut(QWidget &window)
{
    QVERIFY(show(window));
    QTRY_COMPARE(cutWidget(window), QString());
}

/** All of the above for a dialog that needs no more than a device; it is also shown without one, and on a bare camera.
 */
template <typename Dialog>
void checkFeatureDialog()
{
    const Camera bare(plugInBareCamera());
    const Camera full;
    checkKeysAndClosing<Dialog>(full.device());
    checkDevicesInTurn<Dialog>(SimTest::twoFrame);
    checkNoParameters<Dialog>(SimTest::twoFrame);
    Dialog dialog(nullptr);
    QVERIFY(!dialog.isEnabled());
    checkNothingIsCut(dialog);
    for (OrvCam::Device *const device : {bare.device(), full.device()}) {
        QVERIFY(dialog.SetDevice(device));
        QVERIFY(dialog.isEnabled());
        checkNothingIsCut(dialog);
    }
    QVERIFY(!dialog.SetDevice(nullptr));
    QVERIFY(!dialog.isEnabled());
}

/** A row of a table of bindings: the user sets \a next, in one step of a list, and the camera reports \a reported. */
struct Binding
{
    const char *feature;
    const char *control;
    const char *next;
    const char *reported;
};

inline void addBindings(std::initializer_list<Binding> bindings)
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QByteArray>("next");
    QTest::addColumn<QByteArray>("reported");
    for (const Binding &row : bindings)
        QTest::newRow(row.feature) << QByteArray(row.control) << QByteArray(row.next) << QByteArray(row.reported);
}

/**
 * A feature and its control are in step: what the user sets is written once, what the camera reports is shown, and
 * nothing is written for that. A write that the camera refuses is told.
 */
template <typename Dialog>
void checkBinding(const Camera &camera)
{
    QFETCH(QByteArray, control);
    QFETCH(QByteArray, next);
    QFETCH(QByteArray, reported);
    const char *const feature = QTest::currentDataTag();
    Dialog dialog(camera.device());
    QVERIFY(dialog.SetDevice(camera.device())); // twice makes no second write
    QVERIFY(show(dialog));
    auto *const widget = part<QWidget>(dialog, control);
    QVERIFY(widget && widget->isEnabled());
    QCOMPARE(shownBy(widget), camera.value(feature));
    camera.takeWrites();

    enterInto(widget, next);
    QCOMPARE(camera.value(feature), QString::fromLatin1(next));
    QCOMPARE(shownBy(widget), QString::fromLatin1(next));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(camera.set(feature, reported));
    QCOMPARE(shownBy(widget), QString::fromLatin1(reported));
    QCOMPARE(camera.takeWrites(), 1);
    QVERIFY(!shownMessage());

    QVERIFY(camera.refuse(feature));
    enterInto(widget, next);
    QVERIFY(shownMessage());
    QCOMPARE(shownMessage()->parentWidget()->parentWidget(), widget->parentWidget()); // it, or a button of its group
    QCOMPARE(takeMessage(), refusal(feature, "GenICam: Generic error"));
    QVERIFY(!shownMessage());
    QCOMPARE(camera.value(feature), QString::fromLatin1(reported));
}

} // namespace DialogTest
