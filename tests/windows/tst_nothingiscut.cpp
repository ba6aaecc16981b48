#include "allwindows.h"

#include <cutwidget.h>

/** In every window what has a text has room for it, at the size the window opens with. */
class TestNothingIsCut : public OrvTest::TestCase
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
        if (window->windowType() == Qt::Popup)
            expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_COMPARE(cutWidget(*window), QString());
    }
};

ORV_TEST_MAIN(TestNothingIsCut)
#include "tst_nothingiscut.moc"
