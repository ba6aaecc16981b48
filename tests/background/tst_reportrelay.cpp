// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/background/reportrelay.h>

#include <orvtest.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <optional>
#include <thread>

using Relay = OrvGui::ReportRelay<int>;

class ReportRelayTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** On the relay's own thread a report arrives at once; others arrive once each, in their order. */
    void bringsEachKeyOnce()
    {
        QVector<int> received;
        Relay relay([&](int key) { received.append(key); });
        relay.reporter().report(1);
        QVERIFY(!relay.passOn(2));
        QCOMPARE(received, QVector<int>{1});
        for (int round = 0; round < 2; ++round) {
            received.clear();
            std::thread([&, reporter = relay.reporter()] {
                for (const int key : {7, 3, 7, 9, 3})
                    reporter.report(key);
                QVERIFY(relay.passOn(3));
            }).join();
            QVERIFY(received.isEmpty());
            QCoreApplication::processEvents();
            QCOMPARE(received, (QVector<int>{7, 3, 9}));
        }
    }

    /** Ten times as many keys take about ten times as long, not a hundred times. */
    void takesManyKeys()
    {
        int received = 0;
        Relay relay([&](int) { ++received; });
        const auto timeFor = [&](int count) {
            std::clock_t best = std::numeric_limits<std::clock_t>::max();
            for (int attempt = 0; attempt < 3; ++attempt) {
                const std::clock_t start = std::clock();
                std::thread([&] {
                    for (int key = 0; key < count; ++key)
                        relay.passOn(key);
                }).join();
                best = std::min(best, std::clock() - start);
                received = 0;
                QCoreApplication::processEvents();
                if (received != count)
                    return std::clock_t(-1);
            }
            return best;
        };
        const std::clock_t few = timeFor(10'000);
        const std::clock_t many = timeFor(100'000);
        QVERIFY2(few > 0 && many > 0 && many < few * 40, qPrintable(QStringLiteral("%1 %2").arg(few).arg(many)));
    }

    /** A receiver ends the relay: nothing else arrives, neither what waits nor what is reported later. */
    void endsInAReceiver()
    {
        for (const bool isOwnThread : {true, false}) {
            int received = 0;
            std::optional<Relay> relay;
            std::optional<Relay::Reporter> reporter;
            relay.emplace([&](int) {
                relay.reset();
                reporter.reset();
                ++received;
            });
            reporter.emplace(relay->reporter());
            const Relay::Reporter further = *reporter;
            if (isOwnThread)
                reporter->report(1);
            else
                std::thread([&] {
                    reporter->report(1);
                    reporter->report(2);
                }).join();
            QCoreApplication::processEvents();
            further.report(3);
            std::thread([&] { further.report(4); }).join();
            QCoreApplication::processEvents();
            QCOMPARE(received, 1);
        }
    }
};

ORV_TEST_MAIN(ReportRelayTest)

#include "tst_reportrelay.moc"
