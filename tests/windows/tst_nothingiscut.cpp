// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "allwindows.h"

#include <cutwidget.h>

#include <QLineEdit>
#include <QScopedValueRollback>

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

    /** However small the window is made. */
    void valuesInConfigurationWindow()
    {
        const SimTest::Held<OrvCam::Device> camera = SimTest::open(SimTest::twoFrame);
        const QScopedValueRollback<std::chrono::milliseconds> period(OrvGui::periods().status,
                                                                     std::chrono::milliseconds(10));
        OrvGui::OrvCamConfig window(camera.get());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto *const size = window.findChild<QLineEdit *>(QStringLiteral("lineEditSizeFrameA"));
        QTRY_COMPARE(size->text(), QStringLiteral("1920x1080"));
        window.resize(1, 1);
        const auto fields = window.findChildren<QLineEdit *>();
        for (const QLineEdit *const field : fields)
            QVERIFY2(hasRoomForText(*field), qPrintable(field->objectName()));
    }
};

ORV_TEST_MAIN(TestNothingIsCut)
#include "tst_nothingiscut.moc"
