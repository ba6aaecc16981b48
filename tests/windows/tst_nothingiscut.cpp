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
