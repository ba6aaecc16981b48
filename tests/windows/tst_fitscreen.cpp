#include "allwindows.h"

#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <QComboBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/** The part of the screen that a window may have, where there is no frame around it. */
QRect available(const QWidget &window)
{
    return window.screen()->availableGeometry();
}

QString text(const QRect &rect)
{
    return QStringLiteral("%1x%2+%3+%4").arg(rect.width()).arg(rect.height()).arg(rect.x()).arg(rect.y());
}

} // namespace

/** On whatever screen the test runs, the smallest ones in particular. */
class TestFitScreen : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windows_data() { AllWindows::addRows(); }

    void windows()
    {
        QFETCH(AllWindows::Maker, make);
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        const SimTest::Held<OrvCam::Device> camera = SimTest::open(SimTest::twoFrame);
        const std::unique_ptr<QWidget> window(make(*system, *camera));
        if (window->windowType() == Qt::Popup && QGuiApplication::platformName() == QLatin1String("offscreen"))
            expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QRect place = window->frameGeometry();
        QVERIFY2(available(*window).contains(place), qPrintable(text(place)));
    }

    /** One that was made larger, or is to be, too. */
    void givenSize()
    {
        QWidget window;
        openWithinScreen(window);
        for (int i = 0; i < 2; ++i) {
            window.resize(9000, 9000);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QVERIFY2(available(window).contains(window.frameGeometry()), qPrintable(text(window.frameGeometry())));
            window.close();
        }
        window.resize(200, 100);
        window.show();
        QCOMPARE(window.size(), QSize(200, 100));
    }

    /** Where there is room for the whole of it nothing scrolls; elsewhere Tab brings all of it into sight. */
    void frameABScrolls()
    {
        const SimTest::Held<OrvCam::Device> camera = SimTest::open(SimTest::twoFrame);
        OrvGui::OrvCamConfigFrameABDialog dialog(camera.get());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const auto *const area = dialog.findChild<QScrollArea *>();
        const QSize needed = area->widget()->minimumSizeHint();
        const QSize room = roomOnScreen(dialog);
        const bool isTooHigh = needed.height() > room.height();
        QCOMPARE(area->verticalScrollBar()->isVisible(), isTooHigh);
        QCOMPARE(area->horizontalScrollBar()->isVisible(), needed.width() > area->viewport()->width());
        if (!isTooHigh)
            QCOMPARE(area->widget()->size(), dialog.size());

        dialog.activateWindow();
        QTRY_VERIFY(dialog.isActiveWindow());
        auto *const first = dialog.findChild<QComboBox *>(QStringLiteral("cmBoxFrameMode"));
        first->setFocus();
        QWidget *stop = first;
        int stops = 0;
        do {
            QVERIFY2(stop->visibleRegion().contains(stop->rect().center()), qPrintable(stop->objectName()));
            QTest::keyClick(stop, Qt::Key_Tab);
            stop = dialog.focusWidget();
            ++stops;
        } while (stop != first && stops < 100);
        QVERIFY(stops > 20 && stops < 100);
        dialog.findChild<QWidget *>(QStringLiteral("spBoxWdrE3"))->setFocus();
        QVERIFY(!dialog.focusWidget()->visibleRegion().isEmpty());
    }

    /** A camera with more to show, set while the dialog is open or closed, finds the room that the screen has. */
    void growsWithItsContents()
    {
        for (const bool isOpen : {true, false}) {
            QWidget window;
            auto *const layout = new QVBoxLayout(&window);
            auto *const box = new QWidget;
            box->setMinimumSize(200, 100);
            layout->addWidget(box);
            scrollWhereTooSmall(window);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.setVisible(isOpen);
            box->setMinimumSize(300, 250);
            window.show();
            QTRY_VERIFY(window.width() >= 300 && window.height() >= 250);
            const auto *const area = window.findChild<QScrollArea *>();
            QTRY_VERIFY(!area->verticalScrollBar()->isVisible() && !area->horizontalScrollBar()->isVisible());
        }
    }
};

int main(int argc, char **argv)
{
    new QApplication(argc, argv); // for good: what the X11 platform leaves behind could not be told once it is unloaded
    TestFitScreen test;
    return OrvTest::runTests(&test, argc, argv);
}
#include "tst_fitscreen.moc"
