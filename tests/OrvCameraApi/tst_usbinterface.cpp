// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "usbinterface.h"
#include "usbpermission.h"

#include <orvtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <condition_variable>
#include <mutex>

#include <sys/wait.h>
#include <unistd.h>

using namespace OrvCameraApi;
using namespace std::chrono_literals;

namespace {

/** What is plugged in, as the test wants it to be. The search of an interface may look at it later than the test. */
struct Bus
{
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<UsbCamera> cameras;
    bool isSlow = false;
    int looks = 0;

    UsbDiscovery::Found list()
    {
        std::unique_lock<std::mutex> lock(mutex);
        ++looks;
        changed.wait(lock, [this] { return !isSlow; });
        return {cameras, {}};
    }

    void set(bool slow, std::vector<UsbCamera> plugged)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isSlow = slow;
        cameras = std::move(plugged);
        changed.notify_all();
    }

    int lookCount()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return looks;
    }
};

} // namespace

class TestUsbInterface : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_shared<Bus>();
        m_opened = std::make_shared<std::atomic<int>>(0);
    }

    void plugging()
    {
        const std::unique_ptr<UsbInterface> usb = makeInterface(10ms);
        bool changed = true;
        QCOMPARE(usb->reEnumerate(changed, 0), OrvCamErr_Ok);
        QVERIFY(!changed);
        m_bus->set(false, {m_first, m_second});
        QTRY_COMPARE(usb->devices()->size(), 2U);
        QVERIFY(usb->reEnumerate(changed, 0) == OrvCamErr_Ok && changed);
        QVERIFY(usb->reEnumerate(changed, 0) == OrvCamErr_Ok && !changed);
        const auto kept = usb->devices()->back();
        QCOMPARE(kept->texts().displayName->c_str(), "Two (22)");
        m_bus->set(false, {m_second});
        QTRY_COMPARE(usb->devices()->size(), 1U);
        QCOMPARE(usb->devices()->front(), kept);
        QVERIFY(usb->reEnumerate(changed, 0) == OrvCamErr_Ok && changed);
        const std::shared_ptr<GenApi::INodeMap> map = usb->makeNodeMap();
        QVERIFY(map->GetNode("DeviceSelector"));
    }

    /** Enumerating hurries the search instead of waiting for it; letting go of the interface does not wait either. */
    void slowBus()
    {
        m_bus->set(true, {});
        std::unique_ptr<UsbInterface> usb = makeInterface(1h);
        QTRY_COMPARE(m_bus->lookCount(), 1);
        QElapsedTimer timer;
        timer.start();
        bool changed = true;
        QCOMPARE(usb->reEnumerate(changed, 10'000), OrvCamErr_Ok);
        m_bus->set(false, {m_first});
        QTRY_COMPARE(usb->devices()->size(), 1U);
        m_bus->set(true, {});
        const int looks = m_bus->lookCount();
        usb->reEnumerate(changed, 10'000);
        QTRY_VERIFY(m_bus->lookCount() > looks);
        usb.reset();
        QVERIFY(timer.elapsed() < 5000);
        m_bus->set(false, {});
    }

    /** A camera that is opened twice has one link, and says why it cannot be opened. */
    void opening()
    {
        m_bus->set(false, {m_first});
        const std::unique_ptr<UsbInterface> usb = makeInterface(10ms);
        QTRY_COMPARE(usb->devices()->size(), 1U);
        OrvCamErr err = OrvCamErr_UnknownError;
        const std::unique_ptr<Connection> one = usb->devices()->front()->open(0, err);
        const std::unique_ptr<Connection> two = usb->devices()->front()->open(0, err);
        QCOMPARE(err, OrvCamErr_Ok);
        QTRY_COMPARE(one->progress().failure, std::string("No permission for usb-1"));
        QCOMPARE(two->progress().failure, one->progress().failure);
        QCOMPARE(m_opened->load(), 1);
        IpConfiguration configuration;
        QCOMPARE(usb->devices()->front()->forceIp(configuration), OrvCamErr_InvalidState);
    }

    /** Asked by a process of a user who may do nothing, because those who run tests may do everything. */
    void permission()
    {
        const QTemporaryDir root;
        const QString device = root.filePath(QStringLiteral("sys/bus/usb/devices/2-1"));
        const QString file = root.filePath(QStringLiteral("dev/bus/usb/002/017"));
        for (const auto &[name, text] : {std::pair{device + QStringLiteral("/busnum"), "2\n"},
                                         {device + QStringLiteral("/devnum"), "17\n"},
                                         {device + QStringLiteral("/product"), "Cam\n"},
                                         {device + QStringLiteral(":1.0/bInterfaceClass"), "ef\n"},
                                         {device + QStringLiteral(":1.0/bInterfaceSubClass"), "05\n"},
                                         {device + QStringLiteral(":1.0/bInterfaceProtocol"), "00\n"},
                                         {file, ""}}) {
            QDir().mkpath(QFileInfo(name).path());
            QFile to(name);
            QVERIFY(to.open(QIODevice::WriteOnly) && to.write(text) >= 0);
        }
        QFile::setPermissions(root.path(), QFile::Permissions(0x7755));
        QFile::setPermissions(file, QFile::ReadOwner);
        const std::string path = root.path().toStdString();
        const pid_t other = ::fork();
        if (other == 0) {
            const bool isOther = ::getuid() != 0 || ::setuid(65534) == 0;
            const std::string problem = usbPermissionProblem(path);
            ::_exit(isOther && problem.find("Cam is plugged in") != std::string::npos ? 0 : 1);
        }
        int status = -1;
        QVERIFY(::waitpid(other, &status, 0) == other && status == 0);
        QVERIFY(QFile::remove(device + QStringLiteral(":1.0/bInterfaceProtocol"))); // of no camera
        QCOMPARE(usbPermissionProblem(path), std::string());
    }

private:
    std::unique_ptr<UsbInterface> makeInterface(std::chrono::milliseconds period)
    {
        UsbInterface::Options options;
        options.list = [bus = m_bus] { return bus->list(); };
        options.open = [opened = m_opened](const std::string &id, const IsWanted &) -> std::unique_ptr<CameraLink> {
            ++*opened;
            throw LinkError(LinkError::Kind::Denied, "No permission for " + id);
        };
        options.period = period;
        options.patience.retry = 1h;
        return std::make_unique<UsbInterface>(options);
    }

    const UsbCamera m_first{"usb-1", "Maker", "One", "11"};
    const UsbCamera m_second{"usb-2", "Maker", "Two", "22"};
    std::shared_ptr<Bus> m_bus;
    std::shared_ptr<std::atomic<int>> m_opened;
};

ORV_PLAIN_TEST_MAIN(TestUsbInterface)
#include "tst_usbinterface.moc"
