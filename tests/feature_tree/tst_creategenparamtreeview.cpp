#include "featurecamera.h"
#include "orvtest.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>

#include <QDialog>
#include <QTreeView>

#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace {

struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};

template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

/** A window of another program, as far as Qt can tell, inside a window of that program. */
class ForeignWindow
{
public:
    ForeignWindow()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
        , m_frame(create(m_root, 60, 50))
        , m_window(create(m_frame, 7, 9))
    {
        state();
    }

    ~ForeignWindow() { xcb_disconnect(m_connection); } // which destroys its windows

    xcb_window_t id() const { return m_window; }
    void close() { xcb_disconnect(std::exchange(m_connection, xcb_connect(nullptr, nullptr))); }

    /** Where the window is: "parent x y width height map-state"; empty when it is no more. */
    QString state() const
    {
        const Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_window), nullptr));
        const Owned<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_window), nullptr));
        const Owned<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, m_window), nullptr));
        if (!tree || !place || !attributes)
            return {};
        return QStringLiteral("%1 %2 %3 %4 %5 %6")
            .arg(tree->parent == m_frame)
            .arg(place->x)
            .arg(place->y)
            .arg(place->width)
            .arg(place->height)
            .arg(attributes->map_state);
    }

    /** The window that \a other stays in front of. */
    xcb_window_t transientForOf(WId other) const
    {
        const Owned<xcb_get_property_reply_t> property(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, xcb_window_t(other), XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 0, 1),
            nullptr));
        if (!property || xcb_get_property_value_length(property.get()) < int(sizeof(xcb_window_t)))
            return XCB_WINDOW_NONE;
        return *static_cast<const xcb_window_t *>(xcb_get_property_value(property.get()));
    }

private:
    xcb_window_t create(xcb_window_t parent, int16_t x, int16_t y) const
    {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, parent, x, y, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(m_connection, window);
        return window;
    }

    xcb_connection_t *m_connection;
    const xcb_window_t m_root;
    const xcb_window_t m_frame;
    const xcb_window_t m_window;
};

struct Releaser
{
    template <typename T>
    void operator()(T *object) const
    {
        object->Release();
    }
};

template <typename T>
using Released = std::unique_ptr<T, Releaser>;

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
    void makesTheApplicationItNeeds();
    void createsWindows();
    void standsInFrontOfAForeignWindow();
    void doesWithoutAWindow_data();
    void doesWithoutAWindow();
    void outlivesItsParent();

private:
    const FeatureCamera m_camera{FeatureCamera::allKinds()};
};

void TestCreateGenParamTreeView::makesTheApplicationItNeeds()
{
    QVERIFY(qobject_cast<QApplication *>(QCoreApplication::instance()));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
}

void TestCreateGenParamTreeView::createsWindows()
{
    const Released<OrvCam::System> system(OrvCam_GetSystem());
    const Released<OrvCam::InterfaceList> interfaces(system->GetInterfaceList(OrvCam::AllInterfaceTypes));
    OrvGenParam::Array *const params = interfaces->GetFirst()->GetParameters(nullptr);
    QVERIFY(params);
    const std::pair<View, QString> views[] = {
        {View(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Gain \xc2\xb5", 0)), QStringLiteral("Gain µ")},
        {View(CreateGenParamTreeViewForNodemapW(m_camera.map.get(), L"\u00b5 \U0001F4F7", 0)), QStringLiteral("µ 📷")},
        {View(CreateGenParamTreeViewForArrayA(params, nullptr, 0)), QString()},
        {View(CreateGenParamTreeViewForArrayW(params, nullptr, 0)), QString()},
        {View(CreateGenParamTreeViewForArrayA(nullptr, "", 0)), QString()},
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

void TestCreateGenParamTreeView::standsInFrontOfAForeignWindow()
{
    ForeignWindow foreign;
    const QString before = foreign.state();
    QCOMPARE(before, QStringLiteral("1 7 9 300 200 2"));
    View view(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Features", foreign.id()));
    QVERIFY(QTest::qWaitForWindowExposed(windowOf(view)));
    QCOMPARE(foreign.state(), before);
    QCOMPARE(foreign.transientForOf(windowOf(view)->winId()), foreign.id());
    View other(CreateGenParamTreeViewForNodemapW(m_camera.map.get(), L"", foreign.id()));
    other.reset();
    QCoreApplication::processEvents();
    QCOMPARE(foreign.state(), before);

    foreign.close();
    QTRY_COMPARE(foreign.state(), QString());
    QCoreApplication::processEvents();
    QVERIFY(windowOf(view)->isVisible());
    windowOf(view)->findChild<QTreeView *>()->expandAll();
    QVERIFY(windowOf(view)->grab().width() > 0);
}

void TestCreateGenParamTreeView::doesWithoutAWindow_data()
{
    QTest::addColumn<unsigned long>("id");
    QTest::newRow("small") << 1UL;
    QTest::newRow("nobody's") << 0x1ff00001UL;
    QTest::newRow("more than a window can have") << ~0UL;
}

void TestCreateGenParamTreeView::doesWithoutAWindow()
{
    QFETCH(unsigned long, id);
    const View view(CreateGenParamTreeViewForNodemapA(m_camera.map.get(), "Features", id));
    QVERIFY(QTest::qWaitForWindowExposed(windowOf(view)));
}

void TestCreateGenParamTreeView::outlivesItsParent()
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

int main(int argc, char **argv)
{
    {
        const QCoreApplication withoutWidgets(argc, argv);
        if (CreateGenParamTreeViewForNodemapA(nullptr, "", 0))
            qFatal("a view without widgets");
    }
    DestroyGenParamTreeView(CreateGenParamTreeViewForNodemapA(nullptr, "", 0));
    TestCreateGenParamTreeView test;
    return OrvTest::runTests(&test, argc, argv);
}
#include "tst_creategenparamtreeview.moc"
