// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <orvtest.h>
#include <simtest.h>
#include <whenopen.h>

#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/device_selection/selectcamera.h>
#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>
#include <OrvCameraGuiApi/windows/processevents.h>

#include <QDialog>
#include <QProcess>
#include <QWindow>

namespace {

OrvGui::IOrvGenParamTreeView *createView(unsigned long parentWindowId)
{
    return CreateGenParamTreeViewForNodemapA(nullptr, "", parentWindowId);
}

} // namespace

/** Windows of callers without Qt, and the explorer, with a Wayland compositor as the only display. */
class TestWayland : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesOnlyOwnWindowsAsParents()
    {
        QVERIFY(QGuiApplication::platformName().startsWith(QLatin1String("wayland")));
        QWidget own;
        own.show();
        for (const WId parent : {WId(0), WId(0x400001), ~WId(0), own.winId()}) {
            OrvGui::IOrvGenParamTreeView *const view = createView(parent);
            auto *const window = dynamic_cast<QDialog *>(view);
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QWindow *const behind = parent == own.winId() ? own.windowHandle() : nullptr;
            QCOMPARE(window->windowHandle()->transientParent(), behind);
            window->close();
#if QT_VERSION_MAJOR < 6
            expectWarning(QStringLiteral("Wayland does not support QWindow::requestActivate()"));
#endif
            ShowGenParamTreeView(view);
            QVERIFY(OrvProcessEvents(0));
            DestroyGenParamTreeView(view);
        }
    }

    void runsDialogs()
    {
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        OrvTest::whenOpen<OrvGui::OrvCameraSelectorDialog>(
            [](auto &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QVERIFY(!SelectCameraA(system.get(), "Camera", 0x400001, true));
        OrvTest::whenOpen<OrvGui::OrvCameraSelectorDialog>(
            [](auto &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        ShowCamConfigDialog(nullptr, 0x400001);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void opensTheExplorer()
    {
        QProcess explorer;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("WAYLAND_DEBUG"), QStringLiteral("1"));
        explorer.setProcessEnvironment(environment);
        explorer.start(QStringLiteral(EXPLORER), {QStringLiteral("--camera"), QLatin1String(SimTest::monochrome)});
        QByteArray said;
        QTRY_VERIFY_WITH_TIMEOUT((said += explorer.readAllStandardError()).contains("ack_configure"), 30000);
        explorer.terminate();
        QVERIFY(explorer.waitForFinished());
        QVERIFY2(!said.contains("qt."), said.constData());
    }
};

int main(int argc, char **argv)
{
    DestroyGenParamTreeView(createView(0)); // makes the application object
    TestWayland test;
    return OrvTest::runTests(&test, argc, argv);
}
#include "tst_wayland.moc"
