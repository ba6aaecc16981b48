#include "shownview.h"

#include <OrvCameraGuiApi/background/nodemapclock.h>
#include <OrvCameraGuiApi/background/periods.h>

#include <QScopedValueRollback>

#include <numeric>

using Use = NodeMapClock::Use;

namespace {

const char *const polledNode = R"(<Category Name="Root"><pFeature>Polled</pFeature></Category>
<IntReg Name="Polled"><Address>0</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>
<PollingTime>1</PollingTime><Endianess>BigEndian</Endianess></IntReg>)";

/** Another front of a node map, which keeps what it is told by polls. */
class PollLog : public GenApi::INodeMap
{
public:
    PollLog()
        : m_camera(polledNode)
    {
    }

    void Poll(int64_t elapsed) override
    {
        polls.push_back(elapsed);
        m_camera.map->Poll(elapsed);
        if (onPoll)
            onPoll();
    }
    void GetNodes(GenApi::NodeList_t &nodes) const override { m_camera.map->GetNodes(nodes); }
    GenApi::INode *GetNode(const GenICam::gcstring &name) const override { return m_camera.map->GetNode(name); }
    void InvalidateNodes() const override { m_camera.map->InvalidateNodes(); }
    GenICam::gcstring GetDeviceName() override { return m_camera.map->GetDeviceName(); }
    GenApi::CLock &GetLock() const override { return m_camera.map->GetLock(); }
    uint64_t GetNumNodes() const override { return m_camera.map->GetNumNodes(); }
    bool Connect(GenApi::IPort *port, const GenICam::gcstring &name) const override
    {
        return m_camera.map->Connect(port, name);
    }
    bool Connect(GenApi::IPort *port) const override { return m_camera.map->Connect(port); }
    bool Connect(GenApi::IPortStacked *port, const GenICam::gcstring &name) override
    {
        return m_camera.map->Connect(port, name);
    }
    bool Connect(GenApi::IPortStacked *port) override { return m_camera.map->Connect(port); }
    bool ParseSwissKnifes(GenICam::gcstring_vector *errors) const override
    {
        return m_camera.map->ParseSwissKnifes(errors);
    }
    GenApi::CNodeWriteConcatenator *NewNodeWriteConcatenator() const override
    {
        return m_camera.map->NewNodeWriteConcatenator();
    }
    bool ConcatenatedWrite(GenApi::CNodeWriteConcatenator *writes, bool streaming,
                           GenICam::gcstring_vector *errors) override
    {
        return m_camera.map->ConcatenatedWrite(writes, streaming, errors);
    }
    void SetSuppressCallbackMode(GenApi::ECallbackSuppressMode mode) override
    {
        m_camera.map->SetSuppressCallbackMode(mode);
    }

    int64_t time() const { return std::accumulate(polls.begin(), polls.end(), int64_t(0)); }

    QVector<int64_t> polls;
    std::function<void()> onPoll;

private:
    FeatureCamera m_camera;
};

/** Whether clocks have run since the call, those that are not at rest. */
bool clocksRan()
{
    PollLog other;
    const Use use(&other);
    return QTest::qWaitFor([&] { return other.polls.size() >= 4; });
}

/** The thread is busy with something else. */
void work(qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(milliseconds)) { }
}

} // namespace

class NodeMapClockTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(int(OrvGui::Periods().poll.count()), 200); }

    void countsTimeOnce()
    {
        PollLog map;
        QElapsedTimer real;
        real.start();
        const Use one(&map);
        const Use other(&map);
        const Use none(nullptr);
        work(60);
        QTRY_VERIFY(map.polls.size() >= 5);
        QVERIFY(map.polls.first() >= 60);
        QVERIFY(map.time() <= real.elapsed());
    }

    void restsWithoutUsers()
    {
        PollLog map;
        Use first(&map);
        Use second(&map);
        const auto isPolled = [&map] {
            map.polls.clear();
            return clocksRan() && !map.polls.isEmpty();
        };
        first = {};
        QVERIFY(isPolled());
        Use moved(std::move(second));
        QVERIFY(isPolled());
        first = std::move(moved);
        QVERIFY(isPolled());
        first = {};
        QVERIFY(!isPolled());
        first = Use(&map);
        QVERIFY(isPolled());
    }

    /** The view's own time is the same whether somebody else looks or not; afterwards the clock goes on. */
    void leavesThePollingToATree()
    {
        PollLog map;
        PollLog other;
        OrvGui::OrvGenParamTreeView view(&map, nullptr);
        const std::pair<std::function<void()>, std::function<void()>> rows[] = {
            {[&] { view.enablePolling(false); }, [&] { view.enablePolling(true); }},
            {[&] { view.setPollingTime(0); }, [&] { view.setPollingTime(7); }},
            {[&] { view.setParams(&other); }, [&] { view.setParams(&map); }},
            {[&] { view.clearParams(); }, [&] { view.setParams(&map); }}};
        view.setPollingTime(7);
        view.enablePolling(true);
        const Use use(&map);
        for (const auto &[stop, goOn] : rows) {
            map.polls.clear();
            QTRY_VERIFY(map.polls.size() >= 5);
            QCOMPARE(map.polls, QVector<int64_t>(map.polls.size(), 7));
            stop();
            map.polls.clear();
            work(20);
            QTRY_VERIFY(std::any_of(map.polls.begin(), map.polls.end(), [](int64_t time) { return time >= 20; }));
            goOn();
        }
    }

    void survivesReports()
    {
        auto map = std::make_unique<PollLog>();
        Use use(map.get());
        map->onPoll = [] { throw GenICam::RuntimeException("The device does not answer", __FILE__, __LINE__); };
        QTRY_VERIFY(map->polls.size() >= 3);
        int depth = 0;
        int deepest = 0;
        map->onPoll = [&] { // a message box, for one
            deepest = std::max(deepest, ++depth);
            clocksRan();
            --depth;
        };
        QTRY_VERIFY(deepest > 0);
        QCOMPARE(deepest, 1);
        bool isOver = false;
        map->onPoll = [&] {
            use = {};
            isOver = true;
        };
        QTRY_VERIFY(isOver);
        map.reset();
        QVERIFY(clocksRan());
    }

private:
    const QScopedValueRollback<std::chrono::milliseconds> m_period{OrvGui::periods().poll,
                                                                   std::chrono::milliseconds(5)};
};

ORV_TEST_MAIN(NodeMapClockTest)

#include "tst_nodemapclock.moc"
