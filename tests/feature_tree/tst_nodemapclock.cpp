// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/background/nodemapclock.h>
#include <OrvCameraGuiApi/background/periods.h>

#include <QScopedValueRollback>

#include <functional>

using Use = NodeMapClock::Use;

namespace {

QByteArray polled(const char *name, int milliseconds)
{
    const QByteArray place = QByteArray::number(4 * milliseconds); // apart: registers at one place change together
    return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + place + "</Address><Length>4</Length><AccessMode>RO"
        + "</AccessMode><pPort>Device</pPort><PollingTime>" + QByteArray::number(milliseconds)
        + "</PollingTime></IntReg>";
}

/** Counts polls: all, and by what is due then, those that a tree makes, of 7 ms, and each 20 ms that have passed. */
struct PolledMap : FeatureCamera
{
    PolledMap()
        : FeatureCamera("<Category Name=\"Root\"><pFeature>Always</pFeature></Category>" + polled("Always", 1)
                        + polled("Tree", 7) + polled("Late", 20))
    {
        const auto listen = [this](const char *name, const std::function<void(GenApi::INode *)> &callback) {
            GenApi::Register(map->GetNode(name), callback);
        };
        listen("Tree", [this](GenApi::INode *) { ++ofTree; });
        listen("Late", [this](GenApi::INode *) { ++late; });
        listen("Always", [this](GenApi::INode *) {
            ++polls;
            onPoll();
        });
    }
    void clear() { polls = ofTree = late = 0; }

    int polls = 0;
    int ofTree = 0;
    int late = 0;
    std::function<void()> onPoll = [] {};
};

/** Whether clocks have run since the call, those that are not at rest. */
bool clocksRan()
{
    PolledMap other;
    const Use use(other.map.get());
    return QTest::qWaitFor([&] { return other.polls >= 4; });
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
        PolledMap map;
        QElapsedTimer real;
        real.start();
        const Use one(map.map.get());
        const Use other(map.map.get());
        const Use none(nullptr);
        work(60);
        QTRY_VERIFY(map.polls > 0);
        QVERIFY(map.late > 0);
        QTRY_VERIFY(map.late >= 10);
        QVERIFY(map.late * 20 <= real.elapsed());
    }

    void restsWithoutUsers()
    {
        PolledMap map;
        Use first(map.map.get());
        Use second(map.map.get());
        const auto isPolled = [&map] {
            map.clear();
            return clocksRan() && map.polls > 0;
        };
        first = {};
        QVERIFY(isPolled());
        Use moved(std::move(second));
        QVERIFY(isPolled());
        first = std::move(moved);
        QVERIFY(isPolled());
        first = {};
        QVERIFY(!isPolled());
        first = Use(map.map.get());
        QVERIFY(isPolled());
    }

    /** The view's own time is the same whether somebody else looks or not; afterwards the clock goes on. */
    void leavesThePollingToATree()
    {
        PolledMap map;
        PolledMap other;
        OrvGui::OrvGenParamTreeView view(map.map.get(), nullptr);
        const std::pair<std::function<void()>, std::function<void()>> rows[] = {
            {[&] { view.enablePolling(false); }, [&] { view.enablePolling(true); }},
            {[&] { view.setPollingTime(0); }, [&] { view.setPollingTime(7); }},
            {[&] { view.setParams(other.map.get()); }, [&] { view.setParams(map.map.get()); }},
            {[&] { view.clearParams(); }, [&] { view.setParams(map.map.get()); }}};
        view.setPollingTime(7);
        view.enablePolling(true);
        const Use use(map.map.get());
        QEventLoop loop;
        map.onPoll = [&] {
            if (map.polls == 10)
                loop.quit();
        };
        for (const auto &[stop, goOn] : rows) {
            map.map->Poll(7); // from now on all are due alike
            map.clear();
            loop.exec(); // in which timers are on time
            QCOMPARE(map.ofTree, map.polls);
            stop();
            map.clear();
            work(20);
            QTRY_VERIFY(map.late > 0);
            goOn();
        }
    }

    void survivesReports()
    {
        auto map = std::make_unique<PolledMap>();
        Use use(map->map.get());
        map->onPoll = [] { throw GenICam::RuntimeException("The device does not answer", __FILE__, __LINE__); };
        QTRY_VERIFY(map->polls >= 3);
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
