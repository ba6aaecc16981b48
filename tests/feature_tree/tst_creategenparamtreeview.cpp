// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featurecamera.h"
#include "foreignwindow.h"
#include "orvtest.h"
#include "simtest.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>
#include <OrvCameraGuiApi/windows/processevents.h>

#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QTreeView>

#include <clocale>
#include <memory>
#include <utility>

namespace {

struct Destroyer
{
    void operator()(OrvGui::IOrvGenParamTreeView *view) const { DestroyGenParamTreeView(view); }
};

using View = std::unique_ptr<OrvGui::IOrvGenParamTreeView, Destroyer>;

QDialog *windowOf(const View &view)
{
    return dynamic_cast<QDialog *>(view.get());
}

} // namespace

class TestCreateGenParamTreeView : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesTheApplicationItNeeds()
    {
        QVERIFY(qobject_cast<QApplication *>(QCoreApplication::instance()));
#if QT_VERSION_MAJOR < 6
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
#endif
    }

    void createsWindows()
    {
        const SimTest::Held<OrvCam::System> system = SimTest::getSystem();
        const SimTest::Held<OrvCam::InterfaceList> interfaces(system->GetInterfaceList(OrvCam::AllInterfaceTypes));
        OrvGenParam::Array *const params = interfaces->GetFirst()->GetParameters(nullptr);
        QVERIFY(params);
        const std::pair<View, QString> views[] = {
            {View(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Gain \xc2\xb5", 0)), QStringLiteral("Gain µ")},
            {View(CreateGenParamTreeViewForNodemapW(m_camera.map.get(), L"\u00b5 \U0001F4F7", 0)),
             QStringLiteral("µ 📷")},
            {View(CreateGenParamTreeViewForArrayA(params, nullptr, 0)), QString()},
            {View(CreateGenParamTreeViewForArrayW(params, nullptr, 0)), QString()},
            {View(CreateGenParamTreeViewForArrayA(nullptr, "", ~0UL)), QString()}, // nor such a window
        };
        for (const auto &[view, title] : views) {
            QVERIFY(view);
            QCOMPARE(windowOf(view)->windowTitle(), title);
            QVERIFY(windowOf(view)->isVisible() && !windowOf(view)->isModal() && !windowOf(view)->parent());
            const bool isLast = &view == &views[4].first;
            QCOMPARE(windowOf(view)->findChild<QTreeView *>()->model()->rowCount() > 0, !isLast);
        }
        DestroyGenParamTreeView(nullptr);
    }

    void livesWithoutAnEventLoop()
    {
        QVERIFY(!OrvProcessEvents(0));
        const View view(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Features", 0));
        auto *const tree = windowOf(view)->findChild<QTreeView *>();
        QSignalSpy changed(tree->selectionModel(), &QItemSelectionModel::currentChanged);
        QTimer::singleShot(20, tree, [tree] { tree->setCurrentIndex(tree->model()->index(0, 0)); });
        for (int i = 0; i < 1000 && changed.isEmpty(); ++i)
            QVERIFY(OrvProcessEvents(100)); // each waits for what comes next
        QCOMPARE(changed.size(), 1);
        const QPointer<QObject> later = new QObject;
        later->deleteLater();
        QVERIFY(OrvProcessEvents(0));
        QVERIFY(!later);

        QVERIFY(IsGenParamTreeViewOpen(view.get()));
        windowOf(view)->close();
        QVERIFY(!IsGenParamTreeViewOpen(view.get()));
        QVERIFY(!OrvProcessEvents(1));
        ShowGenParamTreeView(view.get());
        QVERIFY(IsGenParamTreeViewOpen(view.get()) && OrvProcessEvents(0));
        ShowGenParamTreeView(nullptr);
        QVERIFY(!IsGenParamTreeViewOpen(nullptr));
    }

    void standsInFrontOfAForeignWindow()
    {
        OrvTest::ForeignWindow foreign;
        const QString before = foreign.state();
        QCOMPARE(before, QStringLiteral("1 7 9 300 200 2"));
        View view(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Features", foreign.id()));
        QVERIFY(QTest::qWaitForWindowExposed(windowOf(view)));
        QCOMPARE(foreign.state(), before);
        QCOMPARE(foreign.transientForOf(windowOf(view)->winId()), foreign.id());
        windowOf(view)->hide();
        ShowGenParamTreeView(view.get());
        QVERIFY(QTest::qWaitForWindowExposed(windowOf(view)));
        QCOMPARE(foreign.transientForOf(windowOf(view)->winId()), foreign.id());
    }

    void outlivesItsParent()
    {
        auto parent = std::make_unique<QWidget>();
        auto *const child = new QWidget(parent.get());
        const View view(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Features", child->winId()));
        QCOMPARE(windowOf(view)->parentWidget(), child);
        QVERIFY(windowOf(view)->isWindow());
        parent.reset();
        QVERIFY(!windowOf(view)->parentWidget());
        QVERIFY(windowOf(view)->findChild<QTreeView *>()->model()->rowCount() > 0);
    }

private:
    const FeatureCamera m_camera{FeatureCamera::allKinds()};
};

int main(int argc, char **argv)
{
    {
        const QCoreApplication withoutWidgets(argc, argv);
        if (CreateGenParamTreeViewForNodemapA(nullptr, "", 0))
            qFatal("a view without widgets");
    }
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    qunsetenv("DISPLAY");
    qunsetenv("QT_QPA_PLATFORM");
    if (CreateGenParamTreeViewForNodemapA(nullptr, "", 0) || OrvProcessEvents(1))
        qFatal("a view without a display");
    qputenv("DISPLAY", ":none");
    qputenv("WAYLAND_DISPLAY", "none");
    if (CreateGenParamTreeViewForNodemapA(nullptr, "", 0) || QCoreApplication::instance())
        qFatal("a view on a display that does not answer");
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("DISPLAY", display);
    qputenv("QT_QPA_PLATFORM", platform);
    std::setlocale(LC_NUMERIC, "C"); // the environment of the tests says another one
    DestroyGenParamTreeView(CreateGenParamTreeViewForNodemapA(nullptr, "", 0));
    if (qstrcmp(std::setlocale(LC_NUMERIC, nullptr), "C") != 0)
        qFatal("numbers are the caller's");
    TestCreateGenParamTreeView test;
    return OrvTest::runTests(&test, argc, argv);
}
#include "tst_creategenparamtreeview.moc"
