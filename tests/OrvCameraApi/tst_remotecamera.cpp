// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "remotecamera.h"

#include <orvtest.h>

#include <QElapsedTimer>

#include <algorithm>
#include <atomic>
#include <future>
#include <stdexcept>

using namespace OrvCameraApi;
using namespace std::chrono_literals;

namespace {

/** Holds up whoever passes while it is shut. */
class Gate
{
public:
    void setOpen(bool isOpen)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOpen = isOpen;
        m_changed.notify_all();
    }

    void pass()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_arrived;
        m_changed.wait(lock, [this] { return m_isOpen; });
    }

    int arrived() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_arrived;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = true;
    int m_arrived = 0;
};

enum class Fault { None, Failed, Denied, Silent, Standard, Foreign };

/** A camera at the other end of the wire, as the test wants it to be. */
struct Camera
{
    Gate opening;
    Gate describing;
    Gate reading;
    Gate checking;
    Gate closing;
    Gate direct; ///< reads beside the link
    std::atomic<bool> isDirect{false};
    std::atomic<Fault> directFault{Fault::None};
    std::atomic<Fault> openFault{Fault::None};
    std::atomic<Fault> descriptionFault{Fault::None};
    std::atomic<Fault> accessFault{Fault::None};
    std::atomic<Fault> checkFault{Fault::None};
    std::atomic<bool> isAlive{true};
    std::atomic<int> links{0};
    std::atomic<int> opened{0};
    std::atomic<int> givenUp{0}; ///< accesses
    std::atomic<std::uint8_t> byte{0}; ///< all that it stores

    void setOpen(bool isOpen)
    {
        for (Gate *gate : {&opening, &describing, &reading, &checking, &closing, &direct})
            gate->setOpen(isOpen);
    }
};

void raise(Fault fault)
{
    switch (fault) {
    case Fault::None:
        return;
    case Fault::Failed:
        throw LinkError(LinkError::Kind::Failed, "The camera refuses");
    case Fault::Denied:
        throw LinkError(LinkError::Kind::Denied, "Another program controls the camera");
    case Fault::Silent:
        throw LinkError(LinkError::Kind::Silent, "Nobody answers");
    case Fault::Standard:
        throw std::runtime_error("Something else");
    case Fault::Foreign:
        throw 42;
    }
}

class Direct final : public DirectReader
{
public:
    explicit Direct(std::shared_ptr<Camera> camera)
        : m_camera(std::move(camera))
    {
    }

    bool read(void *buffer, std::uint64_t, std::uint32_t length, std::chrono::steady_clock::time_point) override
    {
        m_camera->direct.pass();
        if (m_camera->directFault == Fault::Denied)
            return false;
        raise(m_camera->directFault);
        std::fill_n(static_cast<std::uint8_t *>(buffer), length, m_camera->byte.load());
        return true;
    }

private:
    const std::shared_ptr<Camera> m_camera;
};

class Link final : public CameraLink
{
public:
    Link(std::shared_ptr<Camera> camera, IsWanted isWanted)
        : m_camera(std::move(camera))
        , m_isWanted(std::move(isWanted))
    {
        ++m_camera->links;
    }
    ~Link() override
    {
        m_camera->closing.pass();
        --m_camera->links;
    }

    std::string description() override
    {
        m_camera->describing.pass();
        raise(m_camera->descriptionFault);
        return R"(<RegisterDescription ModelName="Small" VendorName="Somebody" SchemaMajorVersion="1"
            SchemaMinorVersion="1" SchemaSubMinorVersion="0"><Port Name="Device"/></RegisterDescription>)";
    }
    bool isReadOnly() const override { return false; }
    void read(void *buffer, std::uint64_t, std::uint32_t length) override
    {
        m_camera->reading.pass();
        raise(m_camera->accessFault);
        m_camera->givenUp += m_isWanted() ? 0 : 1;
        requireWanted(m_isWanted);
        std::fill_n(static_cast<std::uint8_t *>(buffer), length, m_camera->byte.load());
    }
    void write(const void *buffer, std::uint64_t, std::uint32_t) override
    {
        raise(m_camera->accessFault);
        m_camera->byte = *static_cast<const std::uint8_t *>(buffer);
    }
    bool isAlive() override
    {
        m_camera->checking.pass();
        raise(m_camera->checkFault);
        return m_camera->isAlive;
    }
    std::shared_ptr<DirectReader> directReader() override { return m_direct; }

private:
    const std::shared_ptr<Camera> m_camera;
    const IsWanted m_isWanted;
    const std::shared_ptr<Direct> m_direct = m_camera->isDirect ? std::make_shared<Direct>(m_camera) : nullptr;
};

class Listener final : public ConnectionListener
{
public:
    explicit Listener(const RemoteCamera &remote)
        : m_remote(remote)
    {
    }

    void prepareReturn() override { note(m_remote.isConnected() ? "return while connected" : "return"); }
    void raise(std::uint32_t eventId) override
    {
        note(eventId == OrvCam::EventDeviceConnected ? "connected" : "disconnected");
    }

    QStringList events() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

private:
    void note(const char *event)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_events.append(QString::fromLatin1(event));
    }

    const RemoteCamera &m_remote;
    mutable std::mutex m_mutex;
    QStringList m_events;
};

/** The kind of the failure of an access. */
QByteArray failureOf(RemoteCamera &remote, bool isWrite = false)
{
    std::uint8_t byte = 0;
    try {
        if (isWrite)
            remote.Write(&byte, 0, 1);
        else
            remote.Read(&byte, 0, 1);
    } catch (const GenICam::TimeoutException &) {
        return "timeout";
    } catch (const GenICam::AccessException &) {
        return "access";
    } catch (const GenICam::GenericException &) {
        return "other";
    }
    return {};
}

/** Longer than any test runs, for what a test does not want to happen. */
constexpr auto never = 60s;

} // namespace

Q_DECLARE_METATYPE(Fault)

class TestRemoteCamera : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_camera = std::make_shared<Camera>();
        m_patience = {20s, never, 10ms};
    }

    void cleanup()
    {
        m_camera->setOpen(true);
        if (m_remote)
            RemoteCamera::close(std::move(m_remote));
        RemoteCamera::waitForClosed();
        QCOMPARE(m_camera->links.load(), 0);
        m_listener.reset();
        TestCase::cleanup();
    }

    void refusedThenOpened()
    {
        m_camera->opening.setOpen(false);
        m_camera->describing.setOpen(false);
        m_camera->openFault = Fault::Denied;
        start();
        QCOMPARE(m_remote->GetAccessMode(), GenApi::NA);
        QCOMPARE(failureOf(*m_remote), QByteArray("access"));
        m_camera->opening.setOpen(true);
        QTRY_COMPARE(m_remote->failure(), std::string("Another program controls the camera"));
        QCOMPARE(m_remote->state(), RemoteCamera::State::Connecting);

        m_camera->openFault = Fault::None;
        QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Description);
        m_camera->descriptionFault = Fault::Failed;
        m_camera->describing.setOpen(true);
        QTRY_COMPARE(m_remote->failure(), std::string("The camera refuses"));
        QVERIFY(m_remote->description().empty());
        QCOMPARE(m_listener->events(), QStringList());
        m_camera->openFault = Fault::Denied;
        QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Connecting);

        m_camera->openFault = Fault::None;
        m_camera->descriptionFault = Fault::None;
        QTRY_COMPARE(m_listener->events(), QStringList({QStringLiteral("return"), QStringLiteral("connected")}));
        QVERIFY(!m_remote->description().empty());
        QVERIFY(m_remote->takeNodeMap());
        QVERIFY(m_remote->failure().empty());
        QCOMPARE(m_remote->GetAccessMode(), GenApi::RW);
    }

    void accesses()
    {
        startConnected();
        const std::uint8_t written = 0x5A;
        m_remote->Write(&written, 0x1000, 1);
        std::array<std::uint8_t, 3> read{};
        m_remote->Read(read.data(), 0x1000, 2);
        QCOMPARE(read, (std::array<std::uint8_t, 3>{0x5A, 0x5A, 0}));
        QCOMPARE(m_camera->reading.arrived(), 1);
    }

    void accessFaults_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QByteArray>("failure");
        QTest::newRow("failed") << Fault::Failed << QByteArray("other");
        QTest::newRow("denied") << Fault::Denied << QByteArray("access");
        QTest::newRow("silent") << Fault::Silent << QByteArray("timeout");
        QTest::newRow("standard") << Fault::Standard << QByteArray("other");
        QTest::newRow("foreign") << Fault::Foreign << QByteArray("other");
    }

    void accessFaults()
    {
        QFETCH(Fault, fault);
        for (const auto &[isWrite, isDirect] : {std::pair{false, false}, {true, false}, {false, true}}) {
            m_camera->isDirect = isDirect;
            m_patience.check = 10ms; // for the return of a silent camera
            startConnected();
            m_camera->accessFault = fault;
            m_camera->directFault = fault;
            QTEST(failureOf(*m_remote, isWrite), "failure");
            m_camera->accessFault = Fault::None;
            m_camera->directFault = Fault::None;
            QTRY_COMPARE(failureOf(*m_remote, isWrite), QByteArray());
        }
    }

    /** Whatever a link throws while it is opened or looked after, the camera is opened again. */
    void faultsBesideAccesses()
    {
        m_camera->openFault = Fault::Standard;
        start();
        QTRY_COMPARE(m_remote->failure(), std::string("Something else"));
        m_camera->openFault = Fault::Foreign;
        QTRY_VERIFY(m_remote->failure() != "Something else");
        QVERIFY(!m_remote->failure().empty());
        m_camera->descriptionFault = Fault::Standard;
        m_camera->openFault = Fault::None;
        QTRY_COMPARE(m_remote->failure(), std::string("Something else"));
        m_camera->descriptionFault = Fault::None;
        QTRY_VERIFY(m_remote->isConnected());

        m_patience.check = 10ms;
        for (const Fault fault : {Fault::Silent, Fault::Standard, Fault::Foreign}) {
            startConnected();
            m_camera->openFault = Fault::Failed;
            m_camera->checkFault = fault;
            QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Lost);
            m_camera->checkFault = Fault::None;
            m_camera->openFault = Fault::None;
            QTRY_VERIFY(m_remote->isConnected());
        }
    }

    void accessThatTakesTooLong()
    {
        m_patience.access = 200ms;
        startConnected();
        m_camera->reading.setOpen(false);
        QCOMPARE(failureOf(*m_remote), QByteArray("timeout"));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 5; ++i)
            QCOMPARE(failureOf(*m_remote), QByteArray("timeout"));
        QVERIFY(timer.elapsed() < 1000); // five times the patience
        QCOMPARE(m_camera->reading.arrived(), 1);
        m_camera->reading.setOpen(true);
        QTRY_COMPARE(failureOf(*m_remote), QByteArray());
        QCOMPARE(m_listener->events().size(), 2); // given up is not lost
    }

    /** The end of an access is no answer if the camera has been silent all the time. */
    void accessThatFailsTooLate()
    {
        m_patience.access = 400ms;
        m_patience.retry = 400ms;
        startConnected();
        m_camera->reading.setOpen(false);
        m_camera->accessFault = Fault::Silent;
        QCOMPARE(failureOf(*m_remote), QByteArray("timeout"));
        m_camera->reading.setOpen(true);
        QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Lost);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(failureOf(*m_remote), QByteArray("access"));
        QVERIFY(timer.elapsed() < 400);
        m_camera->accessFault = Fault::None;
        QTRY_COMPARE(failureOf(*m_remote), QByteArray());
    }

    /** Nothing is written after its writer has been told that it is not. */
    void accessThatNeverBegan()
    {
        m_patience.access = 100ms;
        startConnected();
        m_camera->reading.setOpen(false);
        auto running = std::async(std::launch::async, [this] { return failureOf(*m_remote); });
        QTRY_COMPARE(m_camera->reading.arrived(), 1);
        m_camera->byte = 7;
        const QByteArray waiting = failureOf(*m_remote, true); // behind the one that is running
        QCOMPARE(waiting, QByteArray("timeout"));
        QCOMPARE(running.get(), QByteArray("timeout"));
        m_camera->reading.setOpen(true);
        QTRY_COMPARE(failureOf(*m_remote), QByteArray());
        QCOMPARE(m_camera->givenUp.load(), 1);
        QCOMPARE(int(m_camera->byte), 7);
    }

    void lossAndReturn()
    {
        m_patience.check = 10ms;
        startConnected();
        const int checks = m_camera->checking.arrived();
        m_camera->checking.setOpen(false);
        QTRY_VERIFY(m_camera->checking.arrived() > checks);
        const QStringList before = m_listener->events();
        m_camera->closing.setOpen(false); // whoever waits does not wait for that
        m_camera->isAlive = false;
        m_camera->openFault = Fault::Silent;
        auto waiting = std::async(std::launch::async, [this] { return failureOf(*m_remote); });
        m_camera->checking.setOpen(true);

        const QStringList lost = before + QStringList(QStringLiteral("disconnected"));
        QTRY_COMPARE(m_listener->events(), lost);
        QCOMPARE(m_camera->links.load(), 1);
        QCOMPARE(waiting.get(), QByteArray("access"));
        QCOMPARE(m_remote->state(), RemoteCamera::State::Lost);
        QCOMPARE(failureOf(*m_remote), QByteArray("access"));
        m_camera->closing.setOpen(true);
        QTRY_COMPARE(m_remote->failure(), std::string("Nobody answers"));
        QCOMPARE(m_remote->state(), RemoteCamera::State::Lost);

        m_camera->isAlive = true;
        m_camera->openFault = Fault::None;
        QTRY_COMPARE(m_listener->events(), lost + before);
        QCOMPARE(failureOf(*m_remote), QByteArray());
        QCOMPARE(m_camera->describing.arrived(), 2); // to see that it is the same
    }

    void closedDuringAnAccess()
    {
        m_patience.access = 200ms;
        startConnected();
        const QStringList events = m_listener->events();
        m_camera->reading.setOpen(false);
        const std::shared_ptr<RemoteCamera> kept = m_remote;
        auto access = std::async(std::launch::async, [kept] { return failureOf(*kept); });
        QTRY_COMPARE(m_camera->reading.arrived(), 1);
        RemoteCamera::close(std::move(m_remote)); // does not wait for the gate
        QCOMPARE(access.get(), QByteArray("timeout"));
        QVERIFY(!failureOf(*kept).isEmpty());
        m_camera->reading.setOpen(true);
        RemoteCamera::waitForClosed();
        QCOMPARE(m_camera->links.load(), 0);
        QVERIFY(!failureOf(*kept).isEmpty());
        QCOMPARE(m_camera->reading.arrived(), 1);
        QCOMPARE(m_listener->events(), events);
    }

    void closedWhileOpening()
    {
        m_camera->opening.setOpen(false);
        start();
        QTRY_COMPARE(m_camera->opening.arrived(), 1);
        RemoteCamera::close(std::move(m_remote));
        m_camera->opening.setOpen(true);
        RemoteCamera::waitForClosed();
        QCOMPARE(m_camera->opened.load(), 0);
        QCOMPARE(m_listener->events(), QStringList());
    }

    /** Neither for one another nor for the link. */
    void readersDoNotWait()
    {
        m_camera->isDirect = true;
        startConnected();
        m_camera->direct.setOpen(false);
        m_camera->byte = 7;
        const auto read = [remote = m_remote] {
            std::uint8_t byte = 0;
            remote->Read(&byte, 0, 1);
            return byte;
        };
        auto first = std::async(std::launch::async, read);
        auto second = std::async(std::launch::async, read);
        QTRY_COMPARE(m_camera->direct.arrived(), 2);
        QCOMPARE(failureOf(*m_remote, true), QByteArray()); // writes 0
        m_camera->direct.setOpen(true);
        QCOMPARE(int(first.get() + second.get()), 0);
        QCOMPARE(m_camera->reading.arrived(), 0);

        m_camera->direct.setOpen(false);
        const std::shared_ptr<RemoteCamera> kept = m_remote;
        auto last = std::async(std::launch::async, read);
        QTRY_COMPARE(m_camera->direct.arrived(), 3);
        RemoteCamera::close(std::move(m_remote)); // does not wait for the gate
        RemoteCamera::waitForClosed();
        QCOMPARE(failureOf(*kept), QByteArray("access"));
        m_camera->direct.setOpen(true);
        last.wait();
        QCOMPARE(m_camera->direct.arrived(), 3);
    }

    /** A camera that answers nobody but its controller is read by the link from then on. */
    void readersThatAreDenied()
    {
        m_camera->isDirect = true;
        startConnected();
        m_camera->directFault = Fault::Denied;
        m_camera->accessFault = Fault::Failed; // that register is for nobody
        QCOMPARE(failureOf(*m_remote), QByteArray("other"));
        m_camera->accessFault = Fault::None;
        for (int reads = 2; reads < 5; ++reads) {
            QCOMPARE(failureOf(*m_remote), QByteArray());
            QCOMPARE(m_camera->reading.arrived(), reads);
        }
        QCOMPARE(m_camera->direct.arrived(), 2);
        QCOMPARE(m_listener->events().size(), 2);
    }

    /** While the thread asks whether the camera lives nobody else waits for it. */
    void readerWithoutAnAnswer()
    {
        m_camera->isDirect = true;
        startConnected();
        m_camera->checking.setOpen(false);
        m_camera->directFault = Fault::Silent;
        for (int i = 0; i < 3; ++i)
            QCOMPARE(failureOf(*m_remote), QByteArray("timeout"));
        QCOMPARE(failureOf(*m_remote, true), QByteArray("timeout"));
        QCOMPARE(m_camera->direct.arrived(), 1);
        m_camera->directFault = Fault::None;
        m_camera->checking.setOpen(true);
        QTRY_COMPARE(failureOf(*m_remote), QByteArray());
        QCOMPARE(m_listener->events().size(), 2); // silent is not lost

        m_camera->isAlive = false;
        m_camera->openFault = Fault::Silent;
        m_camera->directFault = Fault::Silent;
        QCOMPARE(failureOf(*m_remote), QByteArray("timeout"));
        QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Lost);
        QCOMPARE(failureOf(*m_remote), QByteArray("access"));
    }

    /** Applications may do so in their callbacks, which run on the camera's thread. */
    void listenerThatReads()
    {
        struct Reader : ConnectionListener
        {
            explicit Reader(RemoteCamera &camera)
                : remote(camera)
            {
            }
            void prepareReturn() override { }
            void raise(std::uint32_t) override { failure = failureOf(remote).toStdString(); }

            RemoteCamera &remote;
            std::string failure = "not called";
        };
        m_camera->opening.setOpen(false);
        start();
        const auto reader = std::make_shared<Reader>(*m_remote);
        m_remote->addListener(reader);
        m_camera->opening.setOpen(true);
        QTRY_VERIFY(m_remote->isConnected());
        QCOMPARE(failureOf(*m_remote), QByteArray());
        QCOMPARE(reader->failure, std::string());
    }

    void listenerThatIsGone()
    {
        m_patience.check = 10ms;
        startConnected();
        m_listener.reset();
        m_camera->openFault = Fault::Failed;
        m_camera->isAlive = false;
        QTRY_COMPARE(m_remote->state(), RemoteCamera::State::Lost);
        m_camera->isAlive = true;
        m_camera->openFault = Fault::None;
        QTRY_VERIFY(m_remote->isConnected());
    }

private:
    /** Closes the camera of before. */
    void start()
    {
        if (m_remote)
            RemoteCamera::close(std::move(m_remote));
        const auto open = [camera = m_camera](const IsWanted &isWanted, const IsFetching &) {
            camera->opening.pass();
            raise(camera->openFault);
            requireWanted(isWanted);
            ++camera->opened;
            return std::make_unique<Link>(camera, isWanted);
        };
        m_remote = RemoteCamera::start(open, m_patience);
        m_listener = std::make_shared<Listener>(*m_remote);
        m_remote->addListener(m_listener);
    }

    void startConnected()
    {
        m_camera->opening.setOpen(false); // until somebody listens
        start();
        m_camera->opening.setOpen(true);
        QTRY_COMPARE(m_listener->events(), QStringList({QStringLiteral("return"), QStringLiteral("connected")}));
    }

    std::shared_ptr<Camera> m_camera;
    RemoteCamera::Patience m_patience;
    std::shared_ptr<RemoteCamera> m_remote;
    std::shared_ptr<Listener> m_listener;
};

ORV_PLAIN_TEST_MAIN(TestRemoteCamera)
#include "tst_remotecamera.moc"
