// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/background/periods.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/device_selection/setipdialog.h>
#include <OrvCameraGuiApi/device_selection/systempolling.h>

#include <GenApi/NodeCallback.h>

#include <orvtest.h>
#include <simtest.h>
#include <whenopen.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QToolTip>
#include <QTreeView>

#include <array>
#include <memory>
#include <stdexcept>
#include <thread>

using namespace SimTest;

namespace {

using Pause = QScopedValueRollback<std::chrono::milliseconds>;
constexpr auto shortPeriod = std::chrono::milliseconds(5);

/** The dialog on the simulated system, shown, and what a person finds in it. */
struct Shown
{
    explicit Shown(bool poll = false)
        : system(getSystem())
        , dialog(std::make_unique<OrvGui::OrvCameraSelectorDialog>(system.get(), nullptr, poll))
    {
        dialog->show();
    }

    template <typename Part>
    Part *part(const char *name) const
    {
        return dialog->findChild<Part *>(QLatin1String(name));
    }

    QTreeView *tree() const { return part<QTreeView>("deviceTreeView"); }
    DeviceTreeModel *model() const { return static_cast<DeviceTreeModel *>(tree()->model()); }
    QPushButton *ok() const { return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok); }
    QPushButton *rescan() const { return part<QPushButton>("rescanButton"); }
    QPushButton *setIp() const { return part<QPushButton>("setIpButton"); }

    bool has(const char *id) const { return model()->getItemIdx(QLatin1String(id)).isValid(); }
    QPoint pointOf(const char *id) const { return tree()->visualRect(model()->getItemIdx(QLatin1String(id))).center(); }

    void click(const char *id) const
    {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, pointOf(id));
    }

    void doubleClick(const char *id) const
    {
        click(id);
        QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, pointOf(id));
    }

    /** Switches polling on, for one look at the system, and off; the dialog has not heard yet what was seen. */
    void letPollingLook() const
    {
        auto *const check = part<QCheckBox>("pollingCheckBox");
        OrvSim::stall(OrvSim::Call::ReEnumerateDevices);
        check->click();
        QVERIFY(OrvSim::waitUntilStalled(OrvSim::Call::ReEnumerateDevices, 5s));
        OrvSim::release(OrvSim::Call::ReEnumerateDevices);
        check->click();
    }

    QString currentId() const { return model()->getItemID(tree()->currentIndex()); }

    /** "label=value" of each row. */
    QStringList pane(const char *name) const
    {
        QStringList rows;
        const QAbstractItemModel *const model = part<QTreeView>(name)->model();
        for (int row = 0; model && row < model->rowCount(); ++row)
            rows.append(model->index(row, 0).data().toString() + QLatin1Char('=')
                        + model->index(row, 1).data().toString());
        return rows;
    }

    /** That of a value of a pane. */
    QString toolTipOf(const char *name, int row) const
    {
        auto *const view = part<QTreeView>(name);
        const QPoint place = view->visualRect(view->model()->index(row, 1)).center();
        QHelpEvent help(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view->viewport(), &help);
        const QString text = QToolTip::text();
        QToolTip::hideText();
        return text;
    }

    QStringList devicePane() const { return pane("deviceInfoView"); }
    QStringList interfacePane() const { return pane("interfaceInfoView"); }

    const Held<OrvCam::System> system;
    std::unique_ptr<OrvGui::OrvCameraSelectorDialog> dialog;
};

/** Does something when the widget is hidden, before anybody is told why. */
class WhenHidden : public QObject
{
public:
    WhenHidden(QWidget &widget, std::function<void()> action)
        : m_action(std::move(action))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            m_action();
        return false;
    }

private:
    const std::function<void()> m_action;
};

/** What the user or the world does. */
using Step = std::function<void(const Shown &)>;

/** A camera to be added, whose control name is its identifier. */
OrvSim::DeviceSpec cameraNamed(const char *name)
{
    OrvSim::DeviceSpec camera = OrvSim::monochromeCamera();
    camera.name = name;
    camera.id = name;
    return camera;
}

QLineEdit *edit(SetIpDialog &dialog, const char *name)
{
    return dialog.findChild<QLineEdit *>(QLatin1String(name));
}

void press(QMessageBox &box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(box.button(button), Qt::LeftButton);
}

/** The title and the text of the error on the screen, which is answered; empty when none comes. */
QString takeMessage(QMessageBox::StandardButton answer = QMessageBox::Ok)
{
    QMessageBox *box = nullptr;
    const auto isShown = [&box] { return (box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())); };
    if (!QTest::qWaitFor(isShown) || box->icon() != QMessageBox::Critical)
        return {};
    const QString text = box->windowTitle() + QStringLiteral(": ") + box->text();
    press(*box, answer);
    return text;
}

} // namespace

class TestOrvCameraSelectorDialog : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        OrvSim::reset();
    }

    void picksADevice()
    {
        Shown shown;
        QCOMPARE(shown.dialog->windowTitle(), QStringLiteral("Select camera"));
        QVERIFY(!shown.dialog->selectedCamera() && !shown.ok()->isEnabled() && !shown.setIp()->isEnabled());
        shown.click("ORV-ETH-0");
        QVERIFY(!shown.dialog->selectedCamera() && !shown.ok()->isEnabled() && !shown.setIp()->isEnabled());
        shown.click(monochrome);
        QVERIFY(shown.ok()->isEnabled() && !shown.setIp()->isEnabled());
        shown.click(twoFrame);
        QVERIFY(shown.ok()->isEnabled() && shown.setIp()->isEnabled());
        OrvCam::DeviceInfo *const camera = findDevice(*shown.system, twoFrame);
        QCOMPARE(shown.dialog->selectedCamera(), camera);
        shown.dialog->setSelectedCamera(findDevice(*shown.system, stray));
        QCOMPARE(shown.dialog->selectedCamera(), camera);
        QTest::mouseClick(shown.ok(), Qt::LeftButton);
        QCOMPARE(shown.dialog->result(), int(QDialog::Accepted));
        QCOMPARE(shown.dialog->selectedCamera(), camera);
    }

    void refusesWhatCannotBeOpened()
    {
        const std::tuple<int, bool, const char *> rows[] = {{1, true, "ReadWrite"},
                                                            {2, true, "ReadOnly"},
                                                            {3, false, "NO ACCESS"},
                                                            {1001, false, "IP Subnet Mismatch"},
                                                            {77, true, "Unknown"}};
        for (const auto &[status, isAccepted, text] : rows) {
            OrvSim::setAccessStatus(monochrome, status);
            Shown shown;
            shown.doubleClick(monochrome);
            QVERIFY2(shown.devicePane().contains(QLatin1String("Access status=") + QLatin1String(text)), text);
            QCOMPARE(shown.dialog->result() == QDialog::Accepted, isAccepted);
            QTest::keyClick(shown.tree(), Qt::Key_Return);
            QCOMPARE(shown.dialog->isVisible(), !isAccepted);
        }
    }

    void showsWhatThereIsToKnow()
    {
        OrvSim::DeviceSpec fast = cameraNamed("fast");
        fast.usbVersion = 0x300;
        OrvSim::addDevice("ORV-XHCI-0", fast);
        Shown shown;
        shown.click(twoFrame);
        const QStringList device = shown.devicePane();
        const QStringList labels =
            QStringLiteral("Display name,Vendor,Model,Serial number,Version,User name,Access status,MAC Address,"
                           "IP Address,Netmask,Gateway")
                .split(QLatin1Char(','));
        QCOMPARE(device.size(), labels.size());
        for (int i = 0; i < labels.size(); ++i)
            QVERIFY2(device[i].startsWith(labels[i] + QLatin1Char('=')), qPrintable(device[i]));
        OrvCam::DeviceInfo *const camera = findDevice(*shown.system, twoFrame);
        QVERIFY(device.contains(QStringLiteral("IP Address=") + QString::fromUtf8(camera->GetIPAddress(nullptr))));
        const QRegularExpression mac(QStringLiteral("^MAC Address=([0-9A-F]{2}:){5}[0-9A-F]{2}$"));
        QVERIFY2(mac.match(device[7]).hasMatch(), qPrintable(device[7]));
        QCOMPARE(shown.interfacePane().size(), 6);
        QVERIFY(shown.interfacePane().contains(QStringLiteral("Type=GigE Vision")));
        // The selector of the interface was set to the device's row.
        shown.click(stray);
        QVERIFY(shown.devicePane()[7] != device[7]);

        shown.click(monochrome);
        const int usb = int(shown.devicePane().indexOf(QRegularExpression(QStringLiteral("^USB Version=0x0[12]..$"))));
        QCOMPARE(usb, 6);
        QCOMPARE(
            shown.part<QTreeView>("deviceInfoView")->model()->index(usb, 1).data(Qt::ForegroundRole).value<QBrush>(),
            QBrush(Qt::red));
        QCOMPARE(shown.devicePane().size(), 8);
        QCOMPARE(shown.interfacePane().size(), 3);
        shown.click("fast");
        QCOMPARE(shown.devicePane().at(usb), QStringLiteral("USB Version=0x0300"));
        QVERIFY(!shown.part<QTreeView>("deviceInfoView")->model()->index(usb, 1).data(Qt::ForegroundRole).isValid());
    }

    void keepsColumnWidths()
    {
        Shown shown;
        shown.click(twoFrame);
        auto *const view = shown.part<QTreeView>("deviceInfoView");
        QCOMPARE(view->columnWidth(0), view->viewport()->width() / 2);
        view->setColumnWidth(0, 77);
        for (const char *const id : {monochrome, "ORV-CL-0", stray}) {
            shown.click(id);
            QVERIFY(!view->model() || view->columnWidth(0) == 77);
        }
    }

    /** The menu may be on the stack while the dialog goes. */
    void opensAMenuOnGigEDevicesOnly()
    {
        Shown shown;
        const QPointer<QMenu> menu(shown.dialog->findChild<QMenu *>());
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions().constFirst()->text(), QStringLiteral("Set IP Address"));
        for (const char *id : {twoFrame, monochrome, "ORV-ETH-0", "ORV-CL-0", stray}) {
            const QPoint point = shown.pointOf(id);
            const bool isOnGigE = id == twoFrame || id == stray;
            if (isOnGigE)
                expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
            QContextMenuEvent event(QContextMenuEvent::Mouse, point, shown.tree()->viewport()->mapToGlobal(point));
            QCoreApplication::sendEvent(shown.tree()->viewport(), &event);
            QCOMPARE(menu->isVisible(), isOnGigE);
            menu->close();
        }
        shown.click(stray);
        expectWarning(QStringLiteral("This plugin does not support grabbing the keyboard"));
        menu->popup(QPoint());
        bool isThere = false;
        OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &) {
            shown.dialog.reset();
            isThere = menu;
        });
        QTest::mouseClick(menu.data(), Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(menu->actions().constFirst()).center());
        QVERIFY(!shown.dialog && isThere);
        QTRY_VERIFY(!menu);
    }

    /** What a camera says looks as it is said, in one line, however much like HTML; tool tips have a size. */
    void showsTextsAsTheyStand()
    {
        const char *const text = "<img src=\":/icons/orvicon.ico\"> & <b>x</b>";
        OrvSim::DeviceSpec camera = cameraNamed("camera");
        camera.userDefinedName = text;
        OrvSim::addDevice("ORV-CL-0", camera);
        OrvSim::InterfaceSpec lines;
        lines.name = "lines";
        lines.id = "lines";
        lines.description = "one\ntwo\xe2\x80\xa8three" + std::string(5000, 'W');
        OrvSim::addInterface(lines);
        Shown shown;
        shown.click("camera");
        QTextDocument tip;
        const QString shownTip = shown.toolTipOf("deviceInfoView", 5);
        if (Qt::mightBeRichText(shownTip))
            tip.setHtml(shownTip);
        else
            tip.setPlainText(shownTip);
        QCOMPARE(tip.toPlainText(), QLatin1String(text));

        shown.click("lines");
        const auto height = [](const QTreeView *view, const QModelIndex &index) {
            return view->visualRect(index).height();
        };
        QCOMPARE(height(shown.tree(), shown.tree()->currentIndex()),
                 height(shown.tree(), shown.model()->getItemIdx(QStringLiteral("ORV-ETH-0"))));
        auto *const pane = shown.part<QTreeView>("interfaceInfoView");
        QCOMPARE(height(pane, pane->model()->index(0, 1)), height(pane, pane->model()->index(1, 1)));
        const QString longTip = shown.toolTipOf("interfaceInfoView", 0);
        QVERIFY(longTip.startsWith(QStringLiteral("one\ntwo")) && longTip.size() < 2000);
    }

    void asksForTheAccessOnceMore()
    {
        Shown shown;
        shown.click(twoFrame);
        OrvSim::setAccessStatus(twoFrame, OrvCam::AccessStatusNoAccess);
        QVERIFY(shown.ok()->isEnabled());
        QTest::mouseClick(shown.ok(), Qt::LeftButton);
        QVERIFY(shown.dialog->isVisible() && !shown.ok()->isEnabled());
        QVERIFY(shown.devicePane().contains(QStringLiteral("Access status=NO ACCESS")));
        OrvSim::setAccessStatus(twoFrame, OrvCam::AccessStatusReadOnly);
        shown.click(monochrome);
        shown.doubleClick(twoFrame);
        QVERIFY(!shown.dialog->isVisible());
    }

    void pressesTheFocusedButton()
    {
        Shown shown;
        QVERIFY(QTest::qWaitForWindowActive(shown.dialog.get()));
        shown.click(twoFrame);
        int asked = 0;
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) { ++asked, dialog.reject(); });
            shown.setIp()->setFocus();
            QTest::keyClick(shown.setIp(), key);
        }
        QCOMPARE(asked, 2);
        OrvSim::unplug(monochrome);
        shown.rescan()->setFocus();
        QTest::keyClick(shown.rescan(), Qt::Key_Return);
        QVERIFY(shown.dialog->isVisible() && !shown.has(monochrome));
        shown.tree()->setFocus(); // elsewhere the key presses OK, as it did
        shown.click(stray);
        shown.click(twoFrame);
        QTest::keyClick(shown.tree(), Qt::Key_Return);
        QVERIFY(!shown.dialog->isVisible());
    }

    /** A camera that was unplugged leaves the others behind it in other places. */
    void findsTheDevicesPlace()
    {
        Shown shown;
        shown.click(twoFrame);
        const QString mac = QStringLiteral("MAC Address=02:00:5E:20:00:02");
        OrvSim::unplug(twoFrame);
        shown.click(stray);
        QVERIFY2(shown.devicePane().contains(mac), qPrintable(shown.devicePane().join(QLatin1Char(' '))));
        QString asked;
        OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) {
            asked = edit(dialog, "macEdit")->text();
            OrvSim::replug(twoFrame);
            dialog.accept();
        });
        QTest::mouseClick(shown.setIp(), Qt::LeftButton);
        QVERIFY(mac.endsWith(asked) && !asked.isEmpty());
        QVERIFY(shown.devicePane().contains(mac));
        QVERIFY(shown.devicePane().contains(QStringLiteral("Access status=ReadWrite")));

        OrvSim::unplug(twoFrame);
        shown.click(twoFrame);
        QCOMPARE(shown.devicePane().filter(QRegularExpression(QStringLiteral("Address|mask|Gateway"))), QStringList());
        QTest::mouseClick(shown.setIp(), Qt::LeftButton);
        QVERIFY(!takeMessage().isEmpty());
        OrvSim::unplug(monochrome);
        shown.click(monochrome);
        QVERIFY(shown.devicePane().filter(QStringLiteral("USB Version")).isEmpty());
        QCOMPARE(OrvSim::liveObjects().lists, std::size_t(0));
    }

    /** Cameras with one identifier, or none, or of Latin-1 that looks the same as UTF-8. */
    void tellsEqualIdentifiersApart()
    {
        const Pause pause(OrvGui::periods().search, shortPeriod);
        const std::array<OrvSim::Text, 3> rows[] = {
            {"same", "same", "same"}, {}, {"camera \xe8", "camera \xe9", "camera \xea"}};
        for (const auto &ids : rows) {
            OrvSim::reset();
            for (const char *name : {"one", "two", "three"}) {
                OrvSim::DeviceSpec camera = cameraNamed(name);
                camera.macAddress = name[1] == 'w' ? 2 : 1;
                camera.id = ids[name[1] == 'n' ? 0 : camera.macAddress];
                camera.displayName = name;
                camera.network = {0xC0A80A14, 0xFFFFFF00, 0};
                OrvSim::addDevice("ORV-ETH-0", camera);
            }
            Shown shown(true);
            const auto current = [&] { return shown.tree()->currentIndex().data().toString(); };
            const auto cameras = shown.tree()->model()->match(shown.model()->getFirstIdx(), Qt::DisplayRole,
                                                              QStringLiteral("two"), 1, Qt::MatchRecursive);
            shown.tree()->setCurrentIndex(cameras.constFirst());
            OrvSim::unplug(monochrome);
            QTRY_VERIFY(!shown.has(monochrome));
            QCOMPARE(current(), QStringLiteral("two"));
            QVERIFY(shown.devicePane().contains(QStringLiteral("MAC Address=00:00:00:00:00:02")));
            OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) { dialog.accept(); });
            QTest::mouseClick(shown.setIp(), Qt::LeftButton);
            QVERIFY(shown.devicePane().contains(QStringLiteral("IP Address=192.168.10.2")));

            // Gone, it is not mistaken for its neighbour, neither here nor by the address that it was to get.
            OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) {
                OrvSim::unplug("two");
                dialog.accept();
            });
            QTest::mouseClick(shown.setIp(), Qt::LeftButton);
            QVERIFY(!takeMessage().isEmpty());
            QTRY_COMPARE(shown.currentId(), QStringLiteral("ORV-ETH-0"));
            QVERIFY(!shown.ok()->isEnabled());
            OrvSim::replug("two");
            QTRY_COMPARE(current(), QStringLiteral("two"));
        }
    }

    /** The camera access library may process events while it is asked; what happens then waits for its answer. */
    void livesWhileItsQuestionsTakeTime()
    {
        const Step key = [](const Shown &shown) { QTest::keyClick(shown.tree(), Qt::Key_Down); };
        const Step afterRescan = [key](const Shown &shown) { shown.rescan()->click(), key(shown); };
        const Step setIp = [](const Shown &shown) {
            OrvTest::whenOpen<SetIpDialog>([](SetIpDialog &dialog) { dialog.accept(); });
            shown.setIp()->click();
        };
        const Step refusedIp = [](const Shown &shown) { shown.setIp()->click(); };
        const Step rescan = [](const Shown &shown) { shown.rescan()->click(); };
        const Step poll = [](const Shown &shown) { shown.letPollingLook(); };
        const Step destroy = [](const Shown &shown) { delete shown.part<QWidget>("infoWidget")->window(); };
        const std::pair<Step, Step> rows[] = {{key, rescan},       {afterRescan, rescan}, {setIp, rescan},
                                              {key, poll},         {afterRescan, poll},   {setIp, poll},
                                              {refusedIp, destroy}};
        for (const auto &[activity, meanwhile] : rows) {
            OrvSim::reset();
            Shown shown;
            shown.click(twoFrame);
            const QPointer<QDialog> dialog(shown.dialog.get());
            OrvGenParam::Array *const params =
                findDevice(*shown.system, twoFrame)->GetInterface()->GetParameters(nullptr);
            bool isAsked = false;
            const auto interrupt = [&, &meanwhile = meanwhile](GenApi::INode *) {
                if (std::exchange(isAsked, true))
                    return;
                OrvSim::unplug(monochrome);
                const QSignalSpy resets(shown.model(), &QAbstractItemModel::modelReset);
                meanwhile(shown);
                for (int i = 0; i < 10; ++i)
                    QCoreApplication::processEvents();
                if (dialog)
                    QCOMPARE(resets.size(), 0);
            };
            GenApi::INode *const node = params->GetNodeMap()->GetNode("DeviceSelector");
            const auto handle =
                GenApi::Register(node, std::function<void(GenApi::INode *)>(interrupt), GenApi::cbPostOutsideLock);
            activity(shown);
            GenApi::Deregister(handle);
            QVERIFY(isAsked);
            if (dialog)
                QTRY_VERIFY(!shown.has(monochrome));
            else
                static_cast<void>(shown.dialog.release());
        }
    }

    void goesOnPollingAfterAnException()
    {
        std::atomic<int> steps{0};
        const Pause pause(OrvGui::periods().search, shortPeriod);
        SystemPolling polling([&] {
            ++steps;
            throw "of a camera access library"; // no std::exception, as those of GenICam
        });
        QVERIFY(polling.start());
        QTRY_VERIFY(steps > 1);
    }

    /** After a rescan nothing is current; the first key or the focus goes on where the user was. */
    void goesBackAfterARescan()
    {
        Shown shown;
        QVERIFY(QTest::qWaitForWindowActive(shown.dialog.get()));
        const auto rescan = [&] {
            QTest::mouseClick(shown.rescan(), Qt::LeftButton);
            shown.rescan()->setFocus();
            QVERIFY(!shown.tree()->currentIndex().isValid() && !shown.dialog->selectedCamera());
            QVERIFY(!shown.ok()->isEnabled() && !shown.setIp()->isEnabled());
        };
        shown.click(twoFrame);
        OrvSim::unplug(monochrome);
        QVERIFY(shown.has(monochrome)); // nobody has looked
        rescan();
        QVERIFY(!shown.has(monochrome));
        QTest::keyClick(shown.tree(), Qt::Key_Down);
        QCOMPARE(shown.currentId(), QLatin1String(twoFrame));
        QVERIFY(shown.ok()->isEnabled());
        QTest::keyClick(shown.tree(), Qt::Key_Down);
        rescan();
        shown.tree()->setFocus();
        QCOMPARE(shown.currentId(), QLatin1String(stray));

        // A camera that is away meanwhile is not forgotten by looking.
        OrvSim::unplug(stray);
        rescan();
        shown.tree()->setFocus();
        QCOMPARE(shown.currentId(), QStringLiteral("ORV-ETH-0"));
        OrvSim::replug(stray);
        rescan();
        QTest::keyClick(shown.tree(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(shown.currentId(), QLatin1String(stray));
    }

    void goesBackToACameraThatReturns()
    {
        const auto key = [](Qt::Key pressed) {
            return [pressed](const Shown &shown) { QTest::keyClick(shown.tree(), pressed); };
        };
        const auto click = [](const char *id) { return [id](const Shown &shown) { shown.click(id); }; };
        const std::pair<Step, const char *> rows[] = {
            {[](const Shown &) {}, twoFrame},
            {[](const Shown &) { OrvSim::unplug(monochrome); }, twoFrame}, // another change
            {click(stray), stray},
            {click("ORV-ETH-0"), "ORV-ETH-0"}, // which is current
            {key(Qt::Key_Down), stray},
            {key(Qt::Key_Up), "ORV-ETH-0"}}; // goes nowhere
        const Pause pause(OrvGui::periods().search, shortPeriod);
        for (const auto &[meanwhile, then] : rows) {
            OrvSim::reset();
            Shown shown(true);
            shown.click(twoFrame);
            OrvSim::unplug(twoFrame);
            QTRY_COMPARE(shown.currentId(), QStringLiteral("ORV-ETH-0"));
            meanwhile(shown);
            OrvSim::replug(twoFrame);
            QTRY_VERIFY(shown.has(twoFrame));
            QTRY_COMPARE(shown.currentId(), QLatin1String(then));
            QCOMPARE(shown.ok()->isEnabled(), then == twoFrame);
        }
    }

    void leavesClosedWhatWasClosed()
    {
        Shown shown;
        const auto isOpen = [&](const char *id) {
            return shown.tree()->isExpanded(shown.model()->getItemIdx(QLatin1String(id)));
        };
        shown.click("ORV-XHCI-0");
        QTest::keyClick(shown.tree(), Qt::Key_Left);
        QVERIFY(!isOpen("ORV-XHCI-0"));
        OrvSim::unplug(stray);
        shown.rescan()->click();
        QVERIFY(!isOpen("ORV-XHCI-0") && isOpen("ORV-ETH-0"));
        shown.click(twoFrame);
        OrvSim::replug(stray);
        shown.letPollingLook();
        QTRY_VERIFY(shown.has(stray));
        QVERIFY(!isOpen("ORV-XHCI-0") && isOpen("ORV-ETH-0"));
        shown.click("ORV-XHCI-0");
        QTest::keyClick(shown.tree(), Qt::Key_Right);
        shown.rescan()->click();
        QVERIFY(isOpen("ORV-XHCI-0"));
    }

    /** What happens after OK does not reach what was chosen, until the dialog is shown again. */
    void keepsWhatWasChosen()
    {
        Shown shown;
        shown.click(monochrome);
        OrvCam::DeviceInfo *const camera = shown.dialog->selectedCamera();
        OrvCam::DeviceInfo *atOnce = nullptr;
        const auto change = [&] {
            OrvSim::unplug(monochrome);
            shown.letPollingLook();
            for (int i = 0; i < 10; ++i)
                QCoreApplication::processEvents();
            atOnce = shown.dialog->selectedCamera();
        };
        WhenHidden changing(*shown.dialog, change);
        QTest::mouseClick(shown.ok(), Qt::LeftButton);
        QCOMPARE(atOnce, camera);
        QCOMPARE(shown.dialog->selectedCamera(), camera);
        shown.dialog->show();
        QVERIFY(!shown.dialog->selectedCamera());
        QVERIFY(!shown.has(monochrome));
    }

    /** What polling has found and nobody has looked at is older than what is asked for by hand. */
    void rescansAfterPolling()
    {
        Shown shown;
        OrvSim::unplug(monochrome);
        shown.letPollingLook();
        OrvSim::replug(monochrome);
        shown.rescan()->click();
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
        QVERIFY(shown.has(monochrome));
    }

    void followsTheSystemWhilePolling()
    {
        const Pause pause(OrvGui::periods().search, shortPeriod);
        Shown shown(true);
        QVERIFY(shown.dialog->isPollChecked() && !shown.rescan()->isEnabled());
        shown.click(twoFrame);
        OrvSim::unplug(monochrome);
        QTRY_VERIFY(!shown.has(monochrome));
        QCOMPARE(shown.currentId(), QLatin1String(twoFrame));
        QVERIFY(shown.ok()->isEnabled() && shown.setIp()->isEnabled());
        OrvSim::unplug(twoFrame);
        QTRY_COMPARE(shown.currentId(), QStringLiteral("ORV-ETH-0"));
        QVERIFY(!shown.ok()->isEnabled() && !shown.setIp()->isEnabled());
        OrvSim::setInterfaceLists(OrvSim::Lists::Null);
        QTRY_COMPARE(shown.model()->rowCount(), 0);
        QVERIFY(!shown.ok()->isEnabled() && !shown.dialog->selectedCamera());
        OrvSim::setInterfaceLists(OrvSim::Lists::Normal);
        QTRY_COMPARE(shown.currentId(), QStringLiteral("ORV-ETH-0"));
    }

    /** Whatever the pause is: switching off and closing do not wait for its end. */
    void polls()
    {
        const Pause pause(OrvGui::periods().search, std::chrono::hours(1));
        Shown shown;
        auto *const check = shown.part<QCheckBox>("pollingCheckBox");
        for (const bool polls : {true, false, true, false}) {
            QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(5, check->height() / 2));
            QVERIFY(check->isChecked() == polls && shown.rescan()->isEnabled() != polls);
        }
        shown.letPollingLook();
        check->click();
    }

    void staysResponsiveWhileASearchHangs()
    {
        const Pause pause(OrvGui::periods().search, shortPeriod);
        Shown shown(true);
        OrvSim::stall(OrvSim::Call::ReEnumerateDevices);
        QVERIFY(OrvSim::waitUntilStalled(OrvSim::Call::ReEnumerateDevices, 5s));
        // A thread that waited for the search would wait for good.
        for (int round = 0; round < 3; ++round) {
            for (const char *const id : {twoFrame, monochrome, "ORV-ETH-0", stray}) {
                shown.click(id);
                QCOMPARE(shown.currentId(), QLatin1String(id));
                QCoreApplication::processEvents();
            }
        }
        QVERIFY(OrvSim::waitUntilStalled(OrvSim::Call::ReEnumerateDevices, 0s));
        // Closing waits for the search.
        std::thread releasing([] { OrvSim::release(OrvSim::Call::ReEnumerateDevices); });
        shown.dialog.reset();
        releasing.join();
    }

    void setsAnAddress()
    {
        Shown shown;
        shown.click(stray);
        QVERIFY(!shown.ok()->isEnabled());
        QString proposed;
        OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) {
            proposed = edit(dialog, "ipEdit")->text();
            QCOMPARE(edit(dialog, "ipEdit")->selectedText(), proposed.section(QLatin1Char('.'), -1));
            QCOMPARE(edit(dialog, "nicNetmaskEdit")->text(), edit(dialog, "netmaskEdit")->text());
            QVERIFY(edit(dialog, "nicMacEdit")->text() != edit(dialog, "macEdit")->text());
            QTest::keyClicks(edit(dialog, "ipEdit"), QStringLiteral("77"));
            edit(dialog, "gatewayEdit")->setText(QStringLiteral("10.9.8.7"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        QTest::mouseClick(shown.setIp(), Qt::LeftButton);
        QVERIFY(!proposed.isEmpty());
        const QString expected = proposed.section(QLatin1Char('.'), 0, 2) + QStringLiteral(".77");
        QVERIFY(shown.devicePane().contains(QStringLiteral("IP Address=") + expected));
        QVERIFY(shown.devicePane().contains(QStringLiteral("Gateway=10.9.8.7")));
        QVERIFY(shown.devicePane().contains(QStringLiteral("Access status=ReadWrite")));
        QVERIFY(shown.ok()->isEnabled());
    }

    void proposesAFreeAddress()
    {
        const uint net = 0xC0A80A00;
        const uint wide = 0xFFFFFF00;
        const struct
        {
            const char *name;
            uint adapter, mask;
            QVector<uint> cameras; ///< the first one is asked about
            uint otherAdapter;
            int proposed; ///< the last octet
        } rows[] = {
            {"its own", net + 10, wide, {net + 11}, 0, 11},
            {"above", net + 128, wide, {0}, 0, 129},
            {"below", net + 200, wide, {0}, 0, 199},
            {"other cameras'", net + 10, wide, {0, net + 11, net + 13, net + 12}, 0, 14},
            {"another adapter's", net + 10, wide, {0}, net + 11, 12},
            {"downwards", net + 200, wide, {0, net + 199}, net + 198, 197},
            {"before the end", net + 5, 0xFFFFFFF8, {0, net + 6}, 0, 4},
            {"after the beginning", net + 129, 0xFFFFFF80, {0, net + 128}, 0, 130},
            {"none", net + 1, 0xFFFFFFFC, {0, net + 2}, 0, 2},
        };
        for (const auto &row : rows) {
            OrvSim::clear();
            for (const auto &[name, address] : {std::pair("eth", row.adapter), std::pair("other", row.otherAdapter)}) {
                OrvSim::InterfaceSpec ethernet;
                ethernet.name = name;
                ethernet.id = name;
                ethernet.network = {address, row.mask, 0};
                OrvSim::addInterface(ethernet);
            }
            for (int i = 0; i < row.cameras.size(); ++i) {
                OrvSim::DeviceSpec camera = cameraNamed(qPrintable(QStringLiteral("camera%1").arg(i)));
                camera.network = {row.cameras.at(i), row.mask, 0};
                OrvSim::addDevice(i % 2 ? "other" : "eth", camera);
            }
            Shown shown;
            shown.click("camera0");
            QString seen;
            OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) {
                seen = edit(dialog, "ipEdit")->text();
                dialog.reject();
            });
            QTest::mouseClick(shown.setIp(), Qt::LeftButton);
            QVERIFY2(seen == QStringLiteral("192.168.10.%1").arg(row.proposed), row.name);
            QVERIFY(!QApplication::activeModalWidget()); // cancelled: no message
        }
    }

    /** The dialog finds fault with the first address by itself, and only remarks that the second is the broadcast one.
     */
    void warnsOfAWrongAddress()
    {
        const QString warning =
            QStringLiteral("IP Configuration Warning: Specified IP Configuraion is not correct, camera may become "
                           "undiscoverable\nPress OK to skip the IP Configuration, or press Ignore to confirm");
        for (const auto &[address, isValid] : {std::pair("10.1.2.3", false), std::pair("192.168.10.255", true)}) {
            for (const auto answer : {QMessageBox::Ok, QMessageBox::Ignore}) {
                Shown shown;
                shown.click(twoFrame);
                const QStringList before = shown.devicePane();
                QString asked;
                OrvTest::whenOpen<SetIpDialog>([&, text = address, valid = isValid](SetIpDialog &dialog) {
                    edit(dialog, "ipEdit")->setText(QLatin1String(text));
                    QCOMPARE(dialog.isAddressValid(), valid);
                    OrvTest::whenOpen<QMessageBox>([&](QMessageBox &) { asked = takeMessage(answer); });
                    dialog.accept();
                });
                QTest::mouseClick(shown.setIp(), Qt::LeftButton);
                QCOMPARE(asked, warning);
                QCOMPARE(shown.devicePane() == before, answer == QMessageBox::Ok);
                QCOMPARE(shown.devicePane().contains(QLatin1String("IP Address=") + QLatin1String(address)),
                         answer == QMessageBox::Ignore);
            }
        }
    }

    void tellsOfFailures()
    {
        const char *const adapter = "ORV-ETH-0";
        const auto unreadable = [=](const char *node) {
            return [=] { OrvSim::setFault(adapter, node, OrvSim::Fault::FailRead); };
        };
        const auto unselectable = [=] { OrvSim::setFault(adapter, "DeviceSelector", OrvSim::Fault::FailWrite); };
        struct Row
        {
            std::function<void()> before; ///< the panes read, and the node map keeps, what is to be read
            Step meanwhile; ///< while an address is asked for; without it none is
        };
        const Row rows[] = {{[=] { OrvSim::setParameters(adapter, OrvSim::Parameters::Error); }, {}},
                            {[=] { OrvSim::setParameters(adapter, OrvSim::Parameters::Null); }, {}},
                            {unselectable, {}},
                            {unreadable("GevInterfaceMACAddress"), {}},
                            {unreadable("GevInterfaceSubnetIPAddress"), {}},
                            {unreadable("GevInterfaceSubnetMask"), {}},
                            {unreadable("GevDeviceMACAddress"), {}},
                            {unreadable("GevDeviceForceGateway"), {}},
                            {{}, [=](const Shown &) { unselectable(); }},
                            {{}, [](const Shown &) { OrvSim::refuseForceIp(twoFrame, OrvCamErr_GenICamTreeError); }},
                            {{}, [](const Shown &shown) {
                                 OrvSim::unplug(twoFrame);
                                 QTRY_VERIFY(!shown.has(twoFrame));
                             }}};
        const Pause pause(OrvGui::periods().search, shortPeriod);
        for (const Row &row : rows) {
            OrvSim::reset();
            if (row.before)
                row.before();
            Shown shown(true);
            shown.click(twoFrame);
            bool isSeen = false;
            OrvTest::whenOpen<QDialog>([&](QDialog &window) {
                isSeen = true;
                auto *const dialog = qobject_cast<SetIpDialog *>(&window);
                QCOMPARE(bool(dialog), bool(row.meanwhile));
                if (!dialog)
                    return;
                row.meanwhile(shown);
                dialog->accept();
            });
            QTest::mouseClick(shown.setIp(), Qt::LeftButton);
            QTRY_VERIFY(isSeen);
            QCOMPARE(takeMessage(), QStringLiteral("Set IP Address: Can't set IP address"));
        }
    }

    /** While it asks whether a wrong address is meant, the dialog may be closed or destroyed. */
    void endsWhileItAsks()
    {
        for (const bool isDestroyed : {true, false}) {
            Shown shown;
            shown.click(twoFrame);
            bool isOver = false;
            OrvTest::whenOpen<SetIpDialog>([&](SetIpDialog &dialog) {
                edit(dialog, "ipEdit")->setText(QStringLiteral("10.1.2.3"));
                OrvTest::whenOpen<QMessageBox>([&](QMessageBox &box) {
                    isOver = true;
                    if (isDestroyed)
                        return shown.dialog.reset();
                    shown.dialog->reject();
                    press(box, QMessageBox::Ignore);
                });
                dialog.accept();
            });
            // Not by a click, whose sender would be destroyed under the test.
            QMetaObject::invokeMethod(
                shown.dialog.get(), [&] { shown.setIp()->click(); }, Qt::QueuedConnection);
            QTRY_VERIFY(isOver);
            QTRY_VERIFY(!QApplication::activeModalWidget());
        }
    }
};

ORV_TEST_MAIN(TestOrvCameraSelectorDialog)
#include "tst_orvcameraselectordialog.moc"
