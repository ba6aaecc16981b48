// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "cameradialog.h"
#include "camerasource.h"
#include "explorerwindow.h"
#include "fakecamera.h"
#include "openingdialog.h"
#include "orvtest.h"
#include "whenopen.h"

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

using OrvTest::FakeCamera;
using OrvTest::whenOpen;

namespace {

/** Measures how long the event loop was kept from going on. */
class Gaps
{
public:
    Gaps()
    {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { longest = qMax(longest, m_clock.restart()); });
        m_timer.start(5);
    }

    qint64 longest = 0; ///< milliseconds

private:
    QElapsedTimer m_clock;
    QTimer m_timer;
};

QModelIndex rowOf(const QTreeView &tree, const char *text)
{
    const QAbstractItemModel &model = *tree.model();
    return model
        .match(model.index(0, 0), Qt::DisplayRole, QLatin1String(text), 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

QModelIndex valueOf(const QTreeView &tree, const char *feature)
{
    return rowOf(tree, feature).siblingAtColumn(1);
}

/** Chooses the camera in the dialog, as soon as it is listed. */
void accept(QDialog &dialog)
{
    auto *const tree = dialog.findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
    QTRY_VERIFY(rowOf(*tree, "Fake (GV01)").isValid());
    tree->setCurrentIndex(rowOf(*tree, "Fake (GV01)"));
    dialog.accept();
}

} // namespace

class RealWindowsTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!OrvTransports::canReachRealCameras() || !FakeCamera::isInstalled())
            QSKIP("real cameras are left out, or there is no program that stands for one");
        OrvTransports::use(OrvTransports::Cameras::Real, {{}, {FakeCamera::address}});
    }

    void explorerFollowsItsCamera()
    {
        FakeCamera fake;
        fake.kill();
        whenOpen<CameraDialog>([&fake](CameraDialog &dialog) {
            const auto *const problems = dialog.findChild<QLabel *>(QStringLiteral("problems"));
            QTRY_VERIFY(problems->text().startsWith(QLatin1String("No camera has answered on lo (127.0.0.1).")));
            fake.start();
            QTRY_VERIFY(problems->isHidden());
            accept(dialog);
        });
        std::unique_ptr<CameraSource> source = chooseCamera();
        QVERIFY(source);
        ExplorerWindow window(std::move(source));
        window.show();
        QTreeView *const tree = window.findChild<QTreeView *>(QStringLiteral("treeView"));
        const auto *const connection = window.findChild<QLabel *>(QStringLiteral("connection"));
        QCOMPARE(valueOf(*tree, "Width").data().toString(), QStringLiteral("512"));
        QVERIFY(tree->model()->setData(valueOf(*tree, "Width"), 256, Qt::EditRole));
        QCOMPARE(valueOf(*tree, "Width").data().toString(), QStringLiteral("256"));

        const Gaps gaps;
        fake.kill();
        QTRY_COMPARE(connection->text(), QStringLiteral("Disconnected"));
        QVERIFY(valueOf(*tree, "Width").data().toString() != QLatin1String("256"));
        QVERIFY(!tree->model()->setData(valueOf(*tree, "Width"), 128, Qt::EditRole));
        fake.start();
        QTRY_COMPARE_WITH_TIMEOUT(connection->text(), QStringLiteral("Connected"), 15000);
        QCOMPARE(valueOf(*tree, "Width").data().toString(), QStringLiteral("512"));
        QVERIFY2(gaps.longest < 1500, qPrintable(QString::number(gaps.longest)));
    }

    void configurationWindowWaitsForItsCamera()
    {
        FakeCamera fake;
        whenOpen<OrvGui::OrvCameraSelectorDialog>([](OrvGui::OrvCameraSelectorDialog &dialog) { accept(dialog); });
        const Gaps gaps;
        OrvGui::OrvCamConfig window(nullptr);
        window.show();
        QVERIFY(window.device());
        QTRY_VERIFY(window.device()->GetCameraParameters(nullptr));
        QVERIFY2(gaps.longest < 900, qPrintable(QString::number(gaps.longest)));

        // Its dialogs edit, show a camera that does not answer, and go on with it.
        auto *const enable = window.findChild<QAbstractButton *>(QStringLiteral("chBoxEnable"));
        QVERIFY(enable);
        QTRY_VERIFY(enable->isEnabled());
        OrvGenParam::Enum *const mode = window.device()->GetCameraParameters(nullptr)->GetEnum("TriggerMode", nullptr);
        QVERIFY(mode && !enable->isChecked());
        enable->click();
        QCOMPARE(mode->GetValue(nullptr), std::int64_t(1));
        fake.stop();
        QTRY_VERIFY(!enable->isEnabled());
        QVERIFY2(gaps.longest < 1500, qPrintable(QString::number(gaps.longest)));
        fake.goOn();
        QTRY_VERIFY_WITH_TIMEOUT(enable->isEnabled(), 15000);
        QVERIFY(enable->isChecked());
    }

    void openingIsShownAndGivenUp()
    {
        FakeCamera fake;
        const std::shared_ptr<OrvCam::System> system = cameraSystem();
        openCamera(QString()); // is listed by then
        fake.stop();
        whenOpen<OpeningDialog>([](OpeningDialog &dialog) {
            const auto *const failure = dialog.findChild<QLabel *>(QStringLiteral("failure"));
            QTRY_VERIFY_WITH_TIMEOUT(failure->text().startsWith(QLatin1String("The camera ")), 15000);
            dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
        });
        OrvCam::InterfaceList *const list = system->GetInterfaceList(OrvCam::AllInterfaceTypes);
        OrvCam::DeviceInfoList *const devices = list->GetFirst()->GetDeviceInfoList();
        OrvCam::DeviceInfo *const info = devices->GetFirst();
        devices->Release();
        list->Release();
        QVERIFY(info);
        const auto wait = [](OrvCam::Device &device, const QString &name) {
            return OpeningDialog::waitFor(device, name, nullptr);
        };
        QVERIFY(!openCamera(system, info, wait));
    }
};

ORV_TEST_MAIN(RealWindowsTest)
#include "tst_realwindows.moc"
