// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "explorerwindow.h"
#include "orvtest.h"
#include "whenopen.h"

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/feature_tree/orvfeaturetreetools.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

#include <functional>

using OrvTest::whenOpen;

Q_DECLARE_METATYPE(GenApi::IValue *)

namespace {

const char *const firstCamera = "ORV-GIGE-0001";

QTreeView *treeOf(const ExplorerWindow &window)
{
    return window.findChild<QTreeView *>(QStringLiteral("treeView"));
}

QTreeView *treeOf(const CameraDialog &dialog)
{
    return dialog.findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
}

/** The first row with that text, and its cell in that column. */
QModelIndex cellOf(const QTreeView &tree, const char *text, int column = 0)
{
    const QAbstractItemModel &model = *tree.model();
    return model
        .match(model.index(0, 0), Qt::DisplayRole, QLatin1String(text), 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0)
        .siblingAtColumn(column);
}

void doubleClick(const CameraDialog &dialog, const char *device)
{
    QTreeView *const tree = treeOf(dialog);
    const QPoint place = tree->visualRect(cellOf(*tree, device)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void trigger(const ExplorerWindow &window, const char *action)
{
    window.findChild<QAction *>(QLatin1String(action))->trigger();
}

} // namespace

class ExplorerWindowTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void saysWhyThereIsNoCamera()
    {
        const std::pair<std::function<void()>, const char *> rows[] = {
            {[] { OrvSim::setSystemAvailable(false); }, "There is no camera system."},
            {[] { OrvSim::clear(); }, "There is no camera that can be opened."},
            {[] {
                 for (const char *interface : {"ORV-ETH-0", "ORV-XHCI-0"})
                     OrvSim::setDeviceLists(interface, OrvSim::Lists::Null);
             },
             "There is no camera that can be opened."},
            {[] { OrvSim::refuseToOpen(firstCamera, OrvCamErr_InvalidState); },
             "Cannot open the camera 'ORV-GIGE-0001': Invalid state."},
            {[] { OrvSim::setParameters(firstCamera, OrvSim::Parameters::Error); },
             "Cannot open the camera 'ORV-GIGE-0001': GenICam: Tree error."},
        };
        for (const auto &[arrange, message] : rows) {
            OrvSim::reset();
            arrange();
            QString told;
            try {
                openCamera(QString());
            } catch (const CameraSourceError &e) {
                told = e.message;
            }
            QCOMPARE(told, QLatin1String(message));
            const OrvSim::LiveObjects live = OrvSim::liveObjects();
            QCOMPARE(live.systemReferences + live.lists + live.devices, std::size_t(0));
        }
        OrvSim::reset();
        OrvSim::setAccessStatus(firstCamera, OrvCam::AccessStatusNoAccess);
        QVERIFY(openCamera(QString())->id() != QLatin1String(firstCamera));
    }

    void fitsTheNames()
    {
        ExplorerWindow window(openCamera(QString()));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCoreApplication::processEvents();
        const int width = treeOf(window)->columnWidth(0);
        QVERIFY(width <= treeOf(window)->viewport()->width() * 2 / 3);
        treeOf(window)->resizeColumnToContents(0);
        QCOMPARE(treeOf(window)->columnWidth(0), width);
    }

    void makesFeaturesFailAndRecover()
    {
        ExplorerWindow window(openCamera(QString()));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(!window.findChild<QAction *>(QStringLiteral("failReading"))->isEnabled());
        const QPersistentModelIndex value = cellOf(*treeOf(window), "Current Temperature", 1);
        QTest::mouseClick(treeOf(window)->viewport(), Qt::LeftButton, Qt::NoModifier,
                          treeOf(window)->visualRect(value).center());
        trigger(window, "failReading");
        QTRY_COMPARE(value.data().toString(), QStringLiteral("ERROR"));
        trigger(window, "recover");
        QTRY_VERIFY(value.data().toString() != QLatin1String("ERROR"));

        auto *const name = cellOf(*treeOf(window), "Device User ID", 1).data(Qt::UserRole).value<GenApi::IValue *>();
        trigger(window, "refuseWrites");
        QVERIFY_EXCEPTION_THROWN(name->FromString("new"), GenICam::GenericException);
        trigger(window, "recover");
        name->FromString("new");
    }

    /** Until a camera can be opened, or the person gives up. */
    void asksForACamera()
    {
        ExplorerWindow window(openCamera(QString()));
        window.show();
        const QString title = window.windowTitle();
        whenOpen<CameraDialog>([](CameraDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        trigger(window, "openCamera");
        QCOMPARE(window.windowTitle(), title);
        OrvSim::refuseToOpen(firstCamera, OrvCamErr_InvalidState);
        QString told;
        whenOpen<CameraDialog>([&](CameraDialog &dialog) {
            doubleClick(dialog, "TF-2000C (SN0001)");
            whenOpen<QMessageBox>([&](QMessageBox &box) {
                told = box.text();
                QTest::keyClick(&box, Qt::Key_Return);
                whenOpen<CameraDialog>([](CameraDialog &again) { doubleClick(again, "SF-1300M (SN0101)"); });
            });
        });
        trigger(window, "openCamera");
        QCOMPARE(told, QStringLiteral("Cannot open the camera 'ORV-GIGE-0001': Invalid state."));
        QVERIFY(window.windowTitle().startsWith(QLatin1String("SF-1300M (SN0101)")));

        OrvSim::setSystemAvailable(false);
        trigger(window, "openCamera");
        QVERIFY(window.findChild<QMessageBox *>()->text().contains(QLatin1String("no camera system")));
    }

    /** Each dialog follows the camera that is shown, and lets it go. */
    void configuresTheCamera()
    {
        {
            ExplorerWindow window(openCamera(QString()));
            window.show();
            ConfigureMenu &menu = window.configureMenu();
            for (const QString &name : menu.windowNames()) {
                QAction *const action = window.findChild<QAction *>(name);
                action->trigger();
                QVERIFY2(menu.windowNamed(name)->isVisible(), qPrintable(name));
                QCOMPARE(action->isChecked(), action->isCheckable());
            }
            QVERIFY(OrvSim::liveObjects().sinks > 0);
            QWidget *const color = menu.windowNamed(QStringLiteral("color"));
            QTest::keyClick(color, Qt::Key_Escape);
            QVERIFY(!color->isVisible() && !window.findChild<QAction *>(QStringLiteral("color"))->isChecked());
            window.showCamera(QStringLiteral("ORV-USB3-0001"));
            QCOMPARE(OrvSim::liveObjects().devices, std::size_t(1));
            QAction *const frameAB = window.findChild<QAction *>(QStringLiteral("frameab"));
            QVERIFY(!frameAB->isEnabled() && !frameAB->isChecked());
            window.showCamera(QStringLiteral("nobody"));
            auto *const box = window.findChild<QMessageBox *>();
            QVERIFY(box && box->text().contains(QLatin1String("'nobody'")));
            QTest::keyClick(box, Qt::Key_Escape);
            window.showDescription(QStringLiteral(TEST_DATA "/probe.xml"));
            QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
            for (const char *action : {"color", "recover"})
                QVERIFY(!window.findChild<QAction *>(QLatin1String(action))->isEnabled());
        }
        QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
    }

    void followsACameraThatGoesAndComesBack()
    {
        OrvSim::setEventsFromOtherThread(true);
        {
            ExplorerWindow window(openCamera(QString()));
            window.show();
            QWidget *const trigger = window.configureMenu().windowNamed(QStringLiteral("trigger"));
            for (const char *name : {"configwindow", "trigger"})
                ::trigger(window, name);
            const auto *const enable = trigger->findChild<QWidget *>(QStringLiteral("chBoxEnable"));
            const auto *const state = window.findChild<QLabel *>(QStringLiteral("connection"));
            QVERIFY(enable && enable->isEnabled());
            for (const bool isThere : {false, true}) {
                isThere ? OrvSim::replug(firstCamera) : OrvSim::unplug(firstCamera);
                QTRY_COMPARE(state->text(), isThere ? QStringLiteral("Connected") : QStringLiteral("Disconnected"));
                QCOMPARE(enable->isEnabled(), isThere);
                QCOMPARE(window.findChild<QAction *>(QStringLiteral("trigger"))->isEnabled(), isThere);
                QCOMPARE(window.findChild<OrvGui::OrvGenParamTreeView *>()->isPollingEnabled(), isThere);
            }
            std::unique_ptr<CameraSource> camera = openCamera(QString());
            OrvSim::unplug(firstCamera);
            OrvSim::waitForEvents();
            const ExplorerWindow late(std::move(camera));
            QTRY_COMPARE(late.findChild<QLabel *>(QStringLiteral("connection"))->text(),
                         QStringLiteral("Disconnected"));
            OrvSim::replug(firstCamera); // and the windows are gone before they notice
        }
        OrvSim::waitForEvents();
        QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(0));
        QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
    }

    void letsValuesDrift()
    {
        ExplorerWindow window(openCamera(QString()));
        window.show();
        trigger(window, "configwindow");
        const auto *const exposure = window.configureMenu()
                                         .windowNamed(QStringLiteral("configwindow"))
                                         ->findChild<QLineEdit *>(QStringLiteral("lineEditExpFrameA"));
        QTRY_COMPARE(exposure->text(), QStringLiteral("105"));
        const QAbstractItemModel *const model = treeOf(window)->model();
        const QPersistentModelIndex lines(cellOf(*treeOf(window), "Frame Exposure Lines", 1));
        QCOMPARE(lines.data().toString(), QStringLiteral("10lines"));
        const auto *const dialogLines = window.configureMenu()
                                            .windowNamed(QStringLiteral("frameab"))
                                            ->findChild<QtOrvSpinBox *>(QStringLiteral("spBoxExposureLines"));
        QCOMPARE(dialogLines->value(), 10);
        bool isTold = false;
        connect(model, &QAbstractItemModel::dataChanged, &window,
                [&](const QModelIndex &index) { isTold = isTold || index.siblingAtColumn(1) == lines; });
        trigger(window, "drift");
        QTRY_VERIFY(isTold);
        QVERIFY(lines.data().toString() != QLatin1String("10lines"));
        QTRY_VERIFY(dialogLines->value() != 10);
        QTRY_VERIFY(exposure->text() != QLatin1String("105"));
    }

    /** Whatever a person arranged is there again in the next run; what cannot be is passed over. */
    void remembersItself()
    {
        const QTemporaryDir directory;
        QSettings settings(directory.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        {
            ExplorerWindow window(openCamera(QString()));
            window.restoreSettings(settings);
            QCOMPARE(window.size(), QSize(780, 760));
            window.resize(640, 500);
            window.showPage(QStringLiteral("widgets"));
            treeOf(window)->collapseAll();
            trigger(window, "poll");
            window.findChild<QWidget *>(QStringLiteral("log"))->show();
            window.configureMenu().windowNamed(QStringLiteral("pulse"))->move(50, 60);
            window.saveSettings(settings);
        }
        ExplorerWindow window(openCamera(QString()));
        window.restoreSettings(settings);
        QCOMPARE(window.size(), QSize(640, 500));
        QVERIFY(!window.findChild<QWidget *>(QStringLiteral("log"))->isHidden());
        QVERIFY(!window.findChild<QAction *>(QStringLiteral("poll"))->isChecked());
        QVERIFY(!treeOf(window)->isExpanded(treeOf(window)->model()->index(0, 0)));
        QCOMPARE(window.findChild<QTabWidget *>()->currentIndex(), 1);
        QCOMPARE(window.configureMenu().windowNamed(QStringLiteral("pulse"))->pos(), QPoint(50, 60));
        QString current;
        whenOpen<CameraDialog>([&](CameraDialog &dialog) {
            current = QString::fromLatin1(dialog.selectedCamera() ? dialog.selectedCamera()->GetID() : "");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        chooseCamera(nullptr, ExplorerWindow::lastCamera(settings));
        QCOMPARE(current, QLatin1String(firstCamera));
        treeOf(window)->expandToDepth(0);
        for (const char *camera : {"ORV-USB3-0001", firstCamera}) { // each has its own tree
            window.showCamera(QLatin1String(camera));
            QVERIFY(treeOf(window)->isExpanded(treeOf(window)->model()->index(0, 0)));
            if (camera != firstCamera)
                treeOf(window)->collapseAll();
        }

        for (const QString &key : settings.allKeys())
            settings.setValue(key, QStringLiteral("-7"));
        window.restoreSettings(settings);
        QCOMPARE(window.size(), QSize(640, 500));
        QCOMPARE(window.findChild<OrvGui::OrvGenParamTreeView *>()->getPollingTime(), 0UL);
    }

    void keepsTheFavoritesOfEachModel()
    {
        const QTemporaryDir directory;
        QSettings settings(directory.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        const char *const other = "ORV-USB3-0001";
        for (const bool isSecondRun : {false, true}) {
            ExplorerWindow window(openCamera(QString()));
            window.restoreSettings(settings);
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            const auto *const tools = window.findChild<OrvGui::OrvFeatureTreeTools *>();
            const auto *const only = window.findChild<QAction *>(QStringLiteral("favoritesOnly"));
            QCOMPARE(only->isEnabled(), isSecondRun);
            if (!isSecondRun) {
                treeOf(window)->expandAll();
                treeOf(window)->setFocus();
                treeOf(window)->setCurrentIndex(cellOf(*treeOf(window), "Frame Exposure Lines"));
                expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
                QTest::keyClick(treeOf(window), Qt::Key_Menu);
                QTest::keyClick(QApplication::activePopupWidget(), 'f');
            }
            QCOMPARE(tools->favorites().size(), 1);
            trigger(window, "favoritesOnly");
            QCOMPARE(treeOf(window)->model()->rowCount(), 1);
            window.showCamera(QLatin1String(other));
            QVERIFY(tools->favorites().isEmpty() && !only->isChecked());
            window.showCamera(QLatin1String(firstCamera));
            QCOMPARE(tools->favorites().size(), 1);
            QVERIFY(treeOf(window)->model()->rowCount() > 1);
            window.showPage(QStringLiteral("widgets"));
            QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
            QVERIFY(window.findChild<QWidget *>(QStringLiteral("findBar"))->isAncestorOf(QApplication::focusWidget()));
            window.saveSettings(settings);
        }
    }

    void savesAndLoadsTheState()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath(QStringLiteral("state"));
        ExplorerWindow window(openCamera(QString()));
        QVERIFY(treeOf(window)->isExpanded(treeOf(window)->model()->index(0, 0)));
        window.saveStateTo(path);
        treeOf(window)->collapseAll();
        window.loadStateFrom(path);
        QVERIFY(treeOf(window)->isExpanded(treeOf(window)->model()->index(0, 0)));
        for (const auto &operation : {&ExplorerWindow::saveStateTo, &ExplorerWindow::loadStateFrom}) {
            (window.*operation)(directory.filePath(QStringLiteral("no/such/place")));
            QPointer<QMessageBox> box = window.findChild<QMessageBox *>();
            QVERIFY(box && box->text().contains(QLatin1String("no/such/place")));
            QTest::keyClick(box, Qt::Key_Return);
            QTRY_VERIFY(!box);
        }
    }
};

ORV_TEST_MAIN(ExplorerWindowTest)
#include "tst_explorerwindow.moc"
