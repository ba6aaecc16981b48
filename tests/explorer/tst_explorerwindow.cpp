#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "explorerwindow.h"
#include "orvtest.h"
#include "whenopen.h"

#include <OrvCameraApi/simulation.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <GenApi/GenApi.h>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

#include <functional>

using OrvTest::whenOpen;

Q_DECLARE_METATYPE(std::function<void()>)
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

void doubleClick(const CameraDialog &dialog, const char *device)
{
    QTreeView *const tree = treeOf(dialog);
    const QModelIndex index = tree->model()
                                  ->match(tree->model()->index(0, 0), Qt::DisplayRole, QLatin1String(device), 1,
                                          Qt::MatchExactly | Qt::MatchRecursive)
                                  .value(0);
    const QPoint place = tree->visualRect(index).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/** The value that is shown beside the name, below the first category. */
QModelIndex firstValue(const ExplorerWindow &window, const char *name)
{
    const QAbstractItemModel *const model = treeOf(window)->model();
    const QModelIndex category = model->index(0, 0);
    return model->match(model->index(0, 0, category), Qt::DisplayRole, QLatin1String(name), 1, Qt::MatchExactly)
        .value(0)
        .siblingAtColumn(1);
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
    void init();
    void opensTheFirstCameraThatLetsIt();
    void saysWhyThereIsNoCamera_data();
    void saysWhyThereIsNoCamera();
    void pollsTheCamera();
    void fitsTheNames();
    void makesFeaturesFailAndRecover();
    void showsOneCameraAfterTheOther();
    void asksForACamera();
    void asksAgainWhenACameraCannotBeOpened();
    void plugsInAndOutWhileItAsks();
    void configuresTheCamera();
    void followsACameraThatGoesAndComesBack();
    void letsValuesDrift();
    void remembersItself();
    void savesAndLoadsTheState();
    void listsTheSignalsOfTheWidgets();
    void opensWithinTheScreen();
};

void ExplorerWindowTest::opensWithinTheScreen()
{
    ExplorerWindow window(openCamera(QString()));
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    CameraDialog dialog(system.get());
    for (QWidget *const shown : {static_cast<QWidget *>(&window), static_cast<QWidget *>(&dialog)}) {
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        QVERIFY(shown->screen()->availableGeometry().contains(shown->frameGeometry()));
    }
}

void ExplorerWindowTest::init()
{
    TestCase::init();
    OrvSim::reset();
}

void ExplorerWindowTest::opensTheFirstCameraThatLetsIt()
{
    const QString first = openCamera(QString())->name();
    QCOMPARE(openCamera(QLatin1String(firstCamera))->name(), first);
    OrvSim::setAccessStatus(firstCamera, OrvCam::AccessStatusNoAccess);
    const std::unique_ptr<CameraSource> other = openCamera(QString());
    QVERIFY(other->name() != first);
    QVERIFY(ExplorerWindow(openCamera(QString())).windowTitle().contains(other->name()));
}

void ExplorerWindowTest::saysWhyThereIsNoCamera_data()
{
    QTest::addColumn<std::function<void()>>("arrange");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const std::function<void()> &arrange, const char *message) {
        QTest::newRow(name) << arrange << QString::fromLatin1(message);
    };
    row(
        "no system", [] { OrvSim::setSystemAvailable(false); }, "There is no camera system.");
    row(
        "no interfaces", [] { OrvSim::clear(); }, "There is no camera that can be opened.");
    row(
        "no device lists",
        [] {
            for (const char *interface : {"ORV-ETH-0", "ORV-XHCI-0"})
                OrvSim::setDeviceLists(interface, OrvSim::Lists::Null);
        },
        "There is no camera that can be opened.");
    row(
        "refused", [] { OrvSim::refuseToOpen(firstCamera, OrvCamErr_InvalidState); },
        "Cannot open the camera 'ORV-GIGE-0001': Invalid state.");
    row(
        "no parameters", [] { OrvSim::setParameters(firstCamera, OrvSim::Parameters::Error); },
        "Cannot open the camera 'ORV-GIGE-0001': GenICam: Tree error.");
}

void ExplorerWindowTest::saysWhyThereIsNoCamera()
{
    QFETCH(std::function<void()>, arrange);
    QFETCH(QString, message);
    arrange();
    QString told;
    try {
        openCamera(QString());
    } catch (const CameraSourceError &e) {
        told = e.message;
    }
    QCOMPARE(told, message);
    QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
    QCOMPARE(OrvSim::liveObjects().lists, std::size_t(0));
    QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
}

void ExplorerWindowTest::pollsTheCamera()
{
    {
        const ExplorerWindow window(openCamera(QString()));
        QStringList changed;
        connect(treeOf(window)->model(), &QAbstractItemModel::dataChanged, &window,
                [&changed](const QModelIndex &index) { changed.append(index.siblingAtColumn(0).data().toString()); });
        QTRY_VERIFY(changed.contains(QStringLiteral("Current Temperature")));
        trigger(window, "poll");
        QVERIFY(!window.findChild<OrvGui::OrvGenParamTreeView *>()->isPollingEnabled());
    }
    QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
    QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
}

void ExplorerWindowTest::fitsTheNames()
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

void ExplorerWindowTest::makesFeaturesFailAndRecover()
{
    ExplorerWindow window(openCamera(QString()));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!window.findChild<QAction *>(QStringLiteral("failReading"))->isEnabled());
    const QPersistentModelIndex value = firstValue(window, "Current Temperature");
    QTest::mouseClick(treeOf(window)->viewport(), Qt::LeftButton, Qt::NoModifier,
                      treeOf(window)->visualRect(value).center());
    trigger(window, "failReading");
    QTRY_COMPARE(value.data().toString(), QStringLiteral("ERROR"));
    trigger(window, "recover");
    QTRY_VERIFY(value.data().toString() != QLatin1String("ERROR"));

    auto *const name = firstValue(window, "Device User ID").data(Qt::UserRole).value<GenApi::IValue *>();
    trigger(window, "refuseWrites");
    QVERIFY_EXCEPTION_THROWN(name->FromString("new"), GenICam::GenericException);
    trigger(window, "recover");
    name->FromString("new");
}

void ExplorerWindowTest::showsOneCameraAfterTheOther()
{
    {
        ExplorerWindow window(openCamera(QString()));
        window.show();
        const QString title = window.windowTitle();
        window.showCamera(QStringLiteral("ORV-USB3-0001"));
        QVERIFY(window.windowTitle() != title);
        QCOMPARE(OrvSim::liveObjects().devices, std::size_t(1));

        window.showCamera(QStringLiteral("nobody"));
        auto *const box = window.findChild<QMessageBox *>();
        QVERIFY(box && box->text().contains(QLatin1String("'nobody'")));
        QTest::keyClick(box, Qt::Key_Escape);
        window.showDescription(QStringLiteral(TEST_DATA "/probe.xml"));
        QVERIFY(!window.findChild<QAction *>(QStringLiteral("recover"))->isEnabled());
        QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
    }
    QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
}

void ExplorerWindowTest::asksForACamera()
{
    ExplorerWindow window(openCamera(QString()));
    window.show();
    const QString title = window.windowTitle();
    whenOpen<CameraDialog>([](CameraDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    trigger(window, "openCamera");
    QCOMPARE(window.windowTitle(), title);
    whenOpen<CameraDialog>([](CameraDialog &dialog) { doubleClick(dialog, "SF-1300M (SN0101)"); });
    trigger(window, "openCamera");
    QVERIFY(window.windowTitle().startsWith(QLatin1String("SF-1300M (SN0101)")));

    OrvSim::setSystemAvailable(false);
    trigger(window, "openCamera");
    QVERIFY(window.findChild<QMessageBox *>()->text().contains(QLatin1String("no camera system")));
}

void ExplorerWindowTest::asksAgainWhenACameraCannotBeOpened()
{
    OrvSim::refuseToOpen(firstCamera, OrvCamErr_InvalidState);
    QStringList seen;
    whenOpen<CameraDialog>([&](CameraDialog &dialog) {
        doubleClick(dialog, "TF-2000C (SN0001)");
        whenOpen<QMessageBox>([&](QMessageBox &box) {
            seen.append(box.text());
            QTest::keyClick(&box, Qt::Key_Return);
            whenOpen<CameraDialog>([](CameraDialog &again) { doubleClick(again, "SF-1300M (SN0101)"); });
        });
    });
    const std::unique_ptr<CameraSource> source = chooseCamera();
    QCOMPARE(seen, QStringList(QStringLiteral("Cannot open the camera 'ORV-GIGE-0001': Invalid state.")));
    QVERIFY(source && source->id() == QLatin1String("ORV-USB3-0001"));
}

void ExplorerWindowTest::plugsInAndOutWhileItAsks()
{
    whenOpen<CameraDialog>([](CameraDialog &dialog) {
        auto *const bar = dialog.findChild<QMenuBar *>();
        const QAbstractItemModel *const model = treeOf(dialog)->model();
        for (const int devices : {1, 2}) {
            expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
            QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                              bar->actionGeometry(bar->actions().constFirst()).center());
            QTRY_VERIFY(QApplication::activePopupWidget());
            auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QAction *const plug = menu->findChild<QAction *>(QLatin1String(firstCamera));
            QCOMPARE(plug->isChecked(), devices == 1);
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(plug).center());
            QTRY_COMPARE(model->rowCount(model->index(0, 0)), devices);
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QVERIFY(!chooseCamera());
    QVERIFY(OrvSim::isPluggedIn(firstCamera));
}

/** Each dialog follows the camera that is shown, and lets it go. */
void ExplorerWindowTest::configuresTheCamera()
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
        window.showDescription(QStringLiteral(TEST_DATA "/probe.xml"));
        QCOMPARE(OrvSim::liveObjects().sinks, std::size_t(0));
        QVERIFY(!window.findChild<QAction *>(QStringLiteral("color"))->isEnabled());
    }
    QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
}

void ExplorerWindowTest::followsACameraThatGoesAndComesBack()
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
        OrvSim::unplug(firstCamera); // and gone before it is noticed
    }
    OrvSim::waitForEvents();
    QCOMPARE(OrvSim::liveObjects().eventCallbacks, std::size_t(0));
    QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
}

void ExplorerWindowTest::letsValuesDrift()
{
    ExplorerWindow window(openCamera(QString()));
    window.show();
    trigger(window, "configwindow");
    const auto *const exposure = window.configureMenu()
                                     .windowNamed(QStringLiteral("configwindow"))
                                     ->findChild<QLineEdit *>(QStringLiteral("lineEditExpFrameA"));
    QTRY_COMPARE(exposure->text(), QStringLiteral("105"));
    const QAbstractItemModel *const model = treeOf(window)->model();
    const QPersistentModelIndex lines = model
                                            ->match(model->index(0, 0), 0, QStringLiteral("Frame Exposure Lines"), 1,
                                                    Qt::MatchExactly | Qt::MatchRecursive)
                                            .value(0)
                                            .siblingAtColumn(1);
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
void ExplorerWindowTest::remembersItself()
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
        window.configureMenu().windowNamed(QStringLiteral("pulse"))->move(50, 60);
        window.saveSettings(settings);
    }
    ExplorerWindow window(openCamera(QString()));
    window.restoreSettings(settings);
    QCOMPARE(window.size(), QSize(640, 500));
    QVERIFY(!window.findChild<QAction *>(QStringLiteral("poll"))->isChecked());
    QVERIFY(!treeOf(window)->isExpanded(treeOf(window)->model()->index(0, 0)));
    QCOMPARE(window.findChild<QTabWidget *>()->currentIndex(), 1);
    QCOMPARE(window.configureMenu().windowNamed(QStringLiteral("pulse"))->pos(), QPoint(50, 60));
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

void ExplorerWindowTest::savesAndLoadsTheState()
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

void ExplorerWindowTest::listsTheSignalsOfTheWidgets()
{
    ExplorerWindow window(openCamera(QString()));
    window.show();
    window.showPage(QStringLiteral("widgets"));
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *const list = window.findChild<QPlainTextEdit *>(QStringLiteral("signals"));
    QVERIFY(list && list->isVisible());
    list->clear();
    for (const char *widget : {"Integer", "Linear", "Gain"}) {
        auto *const field = window.findChild<QWidget *>(QLatin1String(widget));
        QVERIFY(field);
        QTest::keyClick(field->focusProxy() ? field->focusProxy() : field, Qt::Key_Up);
    }
    QCOMPARE(list->toPlainText(),
             QStringLiteral("Integer: valueChanged(1)\nLinear: valueChanged(1001)\n"
                            "Gain: valueChanged(\"3.50\")\nGain: valueChanged(3.5)"));
}

ORV_TEST_MAIN(ExplorerWindowTest)
#include "tst_explorerwindow.moc"
