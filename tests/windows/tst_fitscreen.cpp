// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "allwindows.h"

#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <QLineEdit>
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

    /** What is higher than any screen follows the focus where no Tab leads, too. */
    void scrollsToTheFocus()
    {
        QWidget window;
        auto *const layout = new QVBoxLayout(&window);
        QLineEdit fields[2];
        layout->addWidget(&fields[0]);
        layout->addSpacing(9000);
        layout->addWidget(&fields[1]);
        scrollWhereTooSmall(window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QApplication::setActiveWindow(&window); // without a window manager nobody else does
        for (QLineEdit &field : fields) {
            field.setFocus();
            QVERIFY(!field.visibleRegion().isEmpty());
        }
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
