#include "camerasource.h"
#include "explorerwindow.h"
#include "orvtest.h"

#include <OrvCameraApi/simulation.h>

#include <QLabel>
#include <QStatusBar>
#include <QTreeView>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

namespace {

const char *const firstCamera = "ORV-GIGE-0001";

/** What the status bar says, from left to right. */
QString statusText(const ExplorerWindow &window)
{
    QStringList texts;
    for (const QLabel *label : window.statusBar()->findChildren<QLabel *>())
        texts.append(label->text());
    return texts.join(QLatin1Char('|'));
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
    void countsErrors();
};

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
        const auto *tree = qobject_cast<QTreeView *>(window.centralWidget());
        QStringList changed;
        connect(tree->model(), &QAbstractItemModel::dataChanged, &window,
                [&changed](const QModelIndex &index) { changed.append(index.siblingAtColumn(0).data().toString()); });
        QTRY_VERIFY(changed.contains(QStringLiteral("Current Temperature")));
    }
    QCOMPARE(OrvSim::liveObjects().devices, std::size_t(0));
    QCOMPARE(OrvSim::liveObjects().systemReferences, std::size_t(0));
}

void ExplorerWindowTest::countsErrors()
{
    ExplorerWindow window(openCamera(QString()));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTRY_VERIFY(statusText(window).endsWith(QStringLiteral("errors: 0")));

    QVERIFY(OrvSim::setFault(firstCamera, "CurrentTemperature", OrvSim::Fault::FailRead));
    QTest::keyClick(&window, Qt::Key_F5);
    QTRY_VERIFY(statusText(window).endsWith(QStringLiteral("errors: 1")));

    QVERIFY(OrvSim::clearFaults(firstCamera));
    QTest::keyClick(&window, Qt::Key_F5);
    QTRY_VERIFY(statusText(window).endsWith(QStringLiteral("errors: 0")));
}

ORV_TEST_MAIN(ExplorerWindowTest)
#include "tst_explorerwindow.moc"
