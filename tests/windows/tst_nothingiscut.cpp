#include <OrvCameraGuiApi/camconfig/camerastatus.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigaboutdialog.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/device_selection/setipdialog.h>
#include <OrvCameraGuiApi/feature_tree/filteroptions.h>
#include <OrvCameraGuiApi/feature_tree/generrorsdlg.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <cutwidget.h>
#include <orvtest.h>
#include <simtest.h>

#include <QTreeView>

#include <functional>

Q_DECLARE_METATYPE(std::function<QWidget *(const SimTest::Held<OrvCam::Device> &)>)

/** Every window that no other test looks at: what has a text has room for it, at the size the window opens with. */
class TestNothingIsCut : public OrvTest::TestCase
{
    Q_OBJECT

    using Camera = SimTest::Held<OrvCam::Device>;

private Q_SLOTS:
    void windows_data()
    {
        QTest::addColumn<std::function<QWidget *(const Camera &)>>("make");
        const auto row = [](const char *name, std::function<QWidget *(const Camera &)> make) {
            QTest::newRow(name) << std::move(make);
        };
        row("feature tree",
            [](const Camera &camera) { return new OrvGui::OrvGenParamTreeView(camera->GetCameraParameters(nullptr)); });
        row("feature tree without a camera", [](const Camera &) { return new OrvGui::OrvGenParamTreeView; });
        row("filter options", [](const Camera &) { return new FilterOptions(nullptr); });
        row("errors", [](const Camera &) { return new GenErrorsDlg(QStringLiteral("Gain: out of range"), nullptr); });
        row("camera selector", [](const Camera &) {
            return new OrvGui::OrvCameraSelectorDialog(SimTest::getSystem().get(), nullptr, false);
        });
        row("camera configuration", [](const Camera &camera) { return new OrvGui::OrvCamConfig(camera.get()); });
        row("about the camera", [](const Camera &camera) {
            auto *const dialog = new OrvGui::OrvCamConfigAboutDialog(nullptr);
            dialog->adjustAbout(OrvGui::CameraParams(*camera->GetCameraParameters(nullptr)));
            return dialog;
        });
        row("camera selector without a system",
            [](const Camera &) { return new OrvGui::OrvCameraSelectorDialog(nullptr, nullptr, false); });
        row("IP configuration", [](const Camera &) {
            auto *const dialog = new SetIpDialog;
            dialog->setNicMACAddress(0xDDDDDDDDDDDDULL);
            dialog->setMACAddress(0xDDDDDDDDDDDDULL);
            dialog->setNicIPAddress(0xDEDEDEDE);
            dialog->setIPAddress(0xDEDEDEDD);
            return dialog;
        });
    }

    void windows()
    {
        QFETCH(std::function<QWidget *(const Camera &)>, make);
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        const Camera camera = SimTest::open(SimTest::twoFrame);
        const std::unique_ptr<QWidget> window(make(camera));
        if (window->windowType() == Qt::Popup)
            expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTRY_COMPARE(cutWidget(*window), QString());
    }

    /** What the library says beside what a camera does: in the panes of the selector. */
    void valuesInPanes()
    {
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        OrvGui::OrvCameraSelectorDialog selector(system.get(), nullptr, false);
        auto *const tree = selector.findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
        selector.show();
        QVERIFY(QTest::qWaitForWindowExposed(&selector));
        QTest::keyClick(tree, Qt::Key_Home);
        QTest::keyClick(tree, Qt::Key_Down);
        const std::pair<const char *, const char *> values[] = {{"deviceInfoView", "Access status"},
                                                                {"interfaceInfoView", "Type"}};
        for (const auto &[name, label] : values) {
            const auto *const pane = selector.findChild<QTreeView *>(QLatin1String(name));
            const QModelIndexList labels = pane->model()->match(pane->model()->index(0, 0), Qt::DisplayRole,
                                                                QLatin1String(label), 1, Qt::MatchExactly);
            QCOMPARE(labels.size(), 1);
            const QModelIndex value = labels.constFirst().siblingAtColumn(1);
            QVERIFY2(pane->sizeHintForIndex(value).width() <= pane->columnWidth(1), label);
        }
    }
};

ORV_TEST_MAIN(TestNothingIsCut)
#include "tst_nothingiscut.moc"
