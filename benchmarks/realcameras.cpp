// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "benchmarks.h"
#include "plainaravis.h"

#include <fakecamera.h>
#include <gigeserver.h>
#include <held.h>

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QApplication>
#include <QDir>
#include <QScrollBar>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <utility>

#include <arpa/inet.h>

using OrvTest::FakeCamera;
using OrvTest::GigeServer;
using OrvTest::Held;

namespace {

constexpr std::uint32_t fakeAddress = 0x7F000001;
constexpr int repetitions = 21;
constexpr int features = 1000;
constexpr int packetLength = 536; ///< the most bytes of memory in a packet

template <typename Condition>
void waitUntil(Condition &&condition)
{
    constexpr int patience = 10000;
    QElapsedTimer clock;
    clock.start();
    QTimer ticker; // for what comes without an event
    ticker.start(20);
    while (!condition()) {
        require(clock.elapsed() < patience, "a camera keeps everybody waiting");
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

OrvCam::DeviceInfo *onlyCamera(OrvCam::System &system)
{
    OrvCam::DeviceInfo *found = nullptr;
    const Held<OrvCam::InterfaceList> interfaces(system.GetInterfaceList(OrvCam::AllInterfaceTypes));
    for (OrvCam::Interface *interface = interfaces->GetFirst(); interface; interface = interfaces->GetNext()) {
        if (const Held<OrvCam::DeviceInfoList> list{interface->GetDeviceInfoList()}) {
            OrvCam::DeviceInfo *const first = list->GetFirst();
            found = first ? first : found;
        }
    }
    return found;
}

class PaintFilter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        isPainted |= event->type() == QEvent::Paint;
        return false;
    }

    bool isPainted = false;
};

using Window = std::unique_ptr<OrvGui::OrvGenParamTreeView>;

/** A window without features, as it is while a camera is chosen. */
Window emptyWindow()
{
    auto window = std::make_unique<OrvGui::OrvGenParamTreeView>();
    window->enablePolling(false);
    window->resize(800, 600);
    return window;
}

Window paintedWindow()
{
    Window window = emptyWindow();
    PaintFilter filter;
    window->treeView()->viewport()->installEventFilter(&filter);
    window->show();
    waitUntil([&filter] { return filter.isPainted; });
    return window;
}

/** A camera in its tree, as after its selection in a dialog. */
class ShownCamera
{
public:
    /** In \a window, or in a new one. */
    ShownCamera(OrvCam::DeviceInfo *info, bool isExpanded, Window window)
        : m_device(OrvCam_CreateDevice(info, OrvCam::DeviceAccessControl, nullptr))
        , m_window(std::move(window))
    {
        require(bool(m_device), "the camera cannot be opened");
        m_device->RegisterEvent(OrvCam::EventDeviceConnected, wakeUp, nullptr);
        waitUntil([this] { return OrvTransports::progressOf(*m_device).step == OrvTransports::Step::Connected; });
        if (!m_window)
            m_window = emptyWindow();
        m_window->setParams(m_device->GetCameraParameters(nullptr));
        if (isExpanded)
            tree().expandAll();
        tree().viewport()->installEventFilter(&m_filter);
        paintAfter([this] { m_window->show(); });
    }

    template <typename Action>
    void paintAfter(Action &&act)
    {
        m_filter.isPainted = false;
        act();
        tree().viewport()->update(0, 0, 1, 1); // so that there is something to wait for
        waitUntil([this] { return m_filter.isPainted; });
    }

    QTreeView &tree() const { return *m_window->treeView(); }
    GenApi::INodeMap &nodeMap() const { return *m_device->GetCameraParameters(nullptr)->GetNodeMap(); }

    /** The cells with values that the window shows now. */
    std::vector<QModelIndex> cells() const
    {
        std::vector<QModelIndex> cells;
        const int height = tree().viewport()->height();
        for (QModelIndex row = tree().indexAt(QPoint(0, 0)); row.isValid() && tree().visualRect(row).top() < height;
             row = tree().indexBelow(row)) {
            if (!row.model()->hasChildren(row))
                cells.push_back(row.siblingAtColumn(GenParamTreeModel::ValueColumn));
        }
        return cells;
    }

private:
    /** The event loop looks again. */
    static void wakeUp(const void *, unsigned long, void *)
    {
        QCoreApplication::postEvent(qApp, new QEvent(QEvent::User));
    }

    const Held<OrvCam::Device> m_device;
    Window m_window;
    PaintFilter m_filter;
};

GenApi::IValue *valueOf(const QModelIndex &cell)
{
    return cell.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
}

/** Waits until the threads of links that were closed have ended. */
void settle()
{
    constexpr int settled = 100;
    int threads = 0;
    QElapsedTimer clock;
    waitUntil([&] {
        const int now = int(QDir(QStringLiteral("/proc/self/task")).entryList().size());
        if (std::exchange(threads, now) != now)
            clock.start();
        return clock.elapsed() > settled;
    });
}

/** A system that asks only the camera at an address. */
class OnlyCamera
{
public:
    explicit OnlyCamera(const std::string &address)
    {
        OrvTransports::use(OrvTransports::Cameras::Real, {{}, {address}});
        m_system.reset(OrvCam_GetSystem());
        waitUntil([this] { return (m_info = onlyCamera(*m_system)); });
        show(true); // loads libraries
        settle();
    }

    std::unique_ptr<ShownCamera> show(bool isExpanded, Window window = {}) const
    {
        return std::make_unique<ShownCamera>(m_info, isExpanded, std::move(window));
    }

private:
    Held<OrvCam::System> m_system;
    OrvCam::DeviceInfo *m_info = nullptr;
};

/** The names of the features that are shown with their values. */
std::vector<std::string> namesOf(const std::vector<QModelIndex> &cells)
{
    std::vector<std::string> names;
    for (const QModelIndex &cell : cells) {
        if (valueOf(cell)->GetNode()->GetPrincipalInterfaceType() != GenApi::intfICommand)
            names.emplace_back(valueOf(cell)->GetNode()->GetName().c_str());
    }
    return names;
}

/** Opening the camera and reading those values. */
double millisecondsOfAravis(std::uint32_t address, const std::vector<std::string> &names)
{
    std::unique_ptr<PlainAravis> plain;
    std::vector<std::string> values;
    const double milliseconds = millisecondsOf([&] {
        plain = std::make_unique<PlainAravis>(address);
        for (const std::string &name : names)
            values.push_back(plain->value(name));
    });
    require(std::find(values.begin(), values.end(), std::string()) == values.end(), "Aravis reads nothing");
    plain.reset();
    settle();
    return milliseconds;
}

/** From the selection to the painted tree, beside Aravis alone. */
void measureOpening(Table &table, const QString &what, const OnlyCamera &camera, std::uint32_t address)
{
    Samples inWindow;
    Samples inNewWindow;
    Samples aravis;
    for (int i = 0; i < repetitions; ++i) {
        std::vector<std::string> names;
        for (const bool isNew : {false, true}) {
            std::unique_ptr<ShownCamera> shown;
            Window window = isNew ? Window() : paintedWindow();
            const double milliseconds = millisecondsOf([&] { shown = camera.show(true, std::move(window)); });
            (isNew ? inNewWindow : inWindow).add(milliseconds);
            names = namesOf(shown->cells());
            require(names.size() > 5, "the tree shows no values");
            shown.reset();
            settle();
        }
        aravis.add(millisecondsOfAravis(address, names));
    }
    const QString unit = QStringLiteral("ms");
    table.add(what + QStringLiteral(", selected to painted"), unit, inWindow.median(), aravis.median(), 2);
    table.add(what + QStringLiteral(", the same in a new window"), unit, inNewWindow.median(), aravis.median(), 0);
}

/** Packets of user actions, beside the registers that they show or change. */
void countPackets(Table &table, const OnlyCamera &camera, GigeServer &server, int descriptionLength)
{
    const auto add = [&table](const char *action, int packets, int needed, double bound) {
        table.add(QStringLiteral("%1 features, %2: packets, needed").arg(features).arg(QLatin1String(action)),
                  QString(), packets, needed, bound);
    };
    server.clearCounts();
    const std::unique_ptr<ShownCamera> shown = camera.show(false);
    constexpr int others = 3; // who controls the camera, to control it, and where its description is
    add("open", server.count(), (descriptionLength + packetLength - 1) / packetLength + others, 1.1);

    // Integers are what this description has in registers.
    const auto isRegister = [](const QModelIndex &cell) {
        return valueOf(cell)->GetNode()->GetPrincipalInterfaceType() == GenApi::intfIInteger;
    };
    const auto registers = [&] {
        const std::vector<QModelIndex> cells = shown->cells();
        return int(std::count_if(cells.begin(), cells.end(), isRegister));
    };
    const auto count = [&](const char *action, auto &&act, auto &&needed, double bound) {
        server.clearCounts();
        shown->paintAfter(act);
        QCoreApplication::processEvents(); // what painting has asked for
        add(action, server.countInFreeMemory(), needed(), bound);
    };
    QTreeView &tree = shown->tree();
    count(
        "expand all", [&] { tree.expandAll(); }, registers, 1.2);
    count(
        "poll, nothing changed", [&] { shown->nodeMap().Poll(pollingTime); }, [] { return 1; }, 1);
    count(
        "scroll by a page", [&] { tree.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd); }, registers,
        1.2);
    const std::vector<QModelIndex> cells = shown->cells();
    const auto integer = std::find_if(cells.begin(), cells.end(), isRegister);
    require(integer != cells.end(), "no register is shown");
    count(
        "edit a value", [&] { tree.model()->setData(*integer, 77, Qt::EditRole); }, [] { return 1; }, 1);
}

std::string dotted(std::uint32_t address)
{
    in_addr system{};
    system.s_addr = htonl(address);
    return ::inet_ntoa(system);
}

} // namespace

/** Cameras on the loopback network, beside Aravis alone: benchmarks/run real */
int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    Table table;
    if (FakeCamera::isInstalled()) {
        const FakeCamera fake;
        measureOpening(table, QStringLiteral("arv-fake-gv-camera"), OnlyCamera(FakeCamera::address), fakeAddress);
    } else {
        QTextStream(stderr) << "arv-fake-gv-camera (aravis-tools) was not found and is left out\n";
    }
    GigeServer server(OrvTest::loopbackAddress());
    const QByteArray description = describeTree(features);
    server.setMemory(std::uint32_t(secondBank + features) * registerSize, std::string(4, '\0')); // all before, too
    server.setDescription(description.toStdString());
    const OnlyCamera camera(dotted(server.address()));
    measureOpening(table, QStringLiteral("%1 features").arg(features), camera, server.address());
    countPackets(table, camera, server, int(description.size()));
    table.print();
    return 0;
}
