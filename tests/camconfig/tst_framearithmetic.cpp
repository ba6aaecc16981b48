// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/framearithmetic.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace OrvGui::FrameArithmetic;

namespace {

__extension__ using Wide = __int128;

const std::int64_t int64Min = std::numeric_limits<std::int64_t>::min();
const std::int64_t int64Max = std::numeric_limits<std::int64_t>::max();

/** Whether \a whole is numerator / denominator cut to an integer; by multiplication, nothing is negative. */
bool isCutQuotient(std::int64_t whole, Wide numerator, Wide denominator)
{
    const Wide rest = numerator - whole * denominator;
    return rest >= 0 && rest < denominator;
}

/** The numbers of cameras, and those beside which things go wrong. */
const std::int64_t pixelClocks[] = {1, 2, 3, 7, 25, 40, 64, 74, 100, 160, 333, 1000};
const std::int64_t lineTimes[] = {1, 2, 3, 160, 399, 400, 1599, 1600, 1601, 4097, 65535};

std::vector<std::int64_t> amounts()
{
    std::vector<std::int64_t> all = {0, 1, 2, 99, 100, 105, 1000, 65535, 1000000, 2147483647, 2147483648, 5000000000};
    std::mt19937 random(20); // the same numbers in each run
    std::uniform_int_distribution<std::int64_t> any(0, 20000000);
    for (int i = 0; i < 200; ++i)
        all.push_back(any(random));
    return all;
}

} // namespace

class FrameArithmeticTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void byHand()
    {
        QCOMPARE(exposureTime({10, 800}, {160, 1600}), std::int64_t(105));
        QCOMPARE(microsecondsOfLines(80, {160, 1601}), std::int64_t(801)); // 800.5 goes up
        QCOMPARE(linesOfMicroseconds(5, {160, 1600}), std::int64_t(1)); // 0.5
        QCOMPARE(linesOfMicroseconds(-10, {160, 1600}), std::int64_t(0)); // -1 + 0.5, cut
        for (const Clock clock : {Clock{0, 1600}, Clock{160, 0}}) { // nothing is divided by 0
            QCOMPARE(microsecondsOfLines(105, clock), std::int64_t(0));
            QCOMPARE(linesOfMicroseconds(105, clock), std::int64_t(0));
            QCOMPARE(exposureTime({105, 320}, clock), clock.pixelClock / 80); // the clocks alone
            QVERIFY(!splitExposure(105, clock));
        }
        for (const auto &[gain, coarse, fine] :
             {std::tuple(0.5, 0, -32), {-1.5, 0, -160}, {127 / 64.0, 0, 63}, {2.0, 1, 0}, {127.0, 6, 63}}) {
            const Gain parts = splitGain(gain);
            QCOMPARE(parts.coarse, std::int64_t(coarse));
            QCOMPARE(parts.fine, std::int64_t(fine));
            QCOMPARE(composedGain(parts), gain);
        }
    }

    void timesAreExact()
    {
        const std::vector<std::int64_t> values = amounts();
        for (const std::int64_t pixelClock : pixelClocks) {
            for (const std::int64_t lineTime : lineTimes) {
                const Clock clock{pixelClock, lineTime};
                for (const std::int64_t value : values) {
                    const Wide product = Wide(value) * lineTime;
                    QVERIFY(isCutQuotient(microsecondsOfLines(value, clock), 2 * product + pixelClock, 2 * pixelClock));
                    QVERIFY(isCutQuotient(linesOfMicroseconds(value, clock), 2 * Wide(value) * pixelClock + lineTime,
                                          2 * lineTime));
                    const std::int64_t clocks = value % lineTime;
                    QVERIFY(isCutQuotient(exposureTime({value, clocks}, clock), product + clocks, pixelClock));

                    const std::optional<Exposure> parts = splitExposure(value, clock);
                    QVERIFY(parts && parts->clocks >= 0 && parts->clocks < lineTime);
                    QVERIFY(Wide(parts->lines) * lineTime + parts->clocks == Wide(value) * pixelClock);
                    QCOMPARE(exposureTime(*parts, clock), value); // there and back
                }
            }
        }
    }

    void numbersAreClamped()
    {
        const Clock slow{1, int64Max};
        const Clock fast{int64Max, 1};
        QCOMPARE(microsecondsOfLines(int64Max, slow), int64Max);
        QCOMPARE(microsecondsOfLines(int64Min, slow), int64Min);
        QCOMPARE(linesOfMicroseconds(int64Max, fast), int64Max);
        QCOMPARE(exposureTime({int64Min, int64Min}, slow), int64Min);
        QCOMPARE(exposureTime({int64Min, 0}, {-1, 1}), int64Max);
        QCOMPARE(splitExposure(int64Max, fast)->lines, int64Max);
        QCOMPARE(splitExposure(int64Min, {int64Max, -1})->lines, int64Max);
        QCOMPARE(exposureTime({int64Max, 0}, {int64Max, int64Max}),
                 int64Max); // exact although the product is not 64 bits

        QVERIFY(std::isfinite(composedGain({int64Max, int64Max})));
        QVERIFY(std::isfinite(composedGain({int64Min, int64Min})));
        for (const double gain : {1e300, -1e300, std::numeric_limits<double>::infinity(), 9.3e18}) {
            const Gain parts = splitGain(gain);
            QVERIFY(parts.coarse >= 0 && parts.coarse < 63);
        }
        QCOMPARE(splitGain(std::nan("")).fine, std::int64_t(0));
    }

    void fitsWhatIsRefused()
    {
        struct Row
        {
            std::int64_t value;
            IntRange range;
            std::int64_t written;
        };
        const Row rows[] = {
            {-1, {0, 10, 1}, 0},      {11, {0, 10, 1}, 10},
            {6, {1, 10, 4}, 5},       {7, {1, 10, 4}, 9}, // the greater one of two
            {10, {1, 10, 4}, 9}, // the maximum is not taken itself
            {-5, {-7, 10, 4}, -3},    {6, {0, 10, 0}, 6},
            {6, {10, 0, 1}, 6}, // nothing is taken
            {int64Max, {}, int64Max}, {int64Max, {int64Min, int64Max, int64Max}, int64Max - 1},
        };
        for (const Row &row : rows)
            QCOMPARE(fitted(row.value, row.range), row.written);
        QCOMPARE(fitted(-5, nullptr), std::int64_t(-5));
        QVERIFY(!rangeOf(nullptr));
    }

    /** As the slider does it, by 0.125: from one end to the other and back, with what each kind of camera takes. */
    void gainsAreSteppedThrough()
    {
        const GainRange ranges[] = {
            {{0, 3, 1}, {-32, 63, 1}}, // all steps can be told apart
            {{0, 7, 1}, {0, 63, 1}},        {{0, 5, 1}, {-64, 63, 4}},
            {{1, 4, 1}, {-32, 63, 1}},      {{0, 3, 1}, {0, 31, 1}}, // gaps between the coarse gains
            {{0, 2, 1}, {0, 127, 1}},       {{0, 6, 2}, {-63, 60, 5}},
            {{0, 4, 1}, IntRange::only(0)}, {IntRange::only(0), {0, 63, 1}},
        };
        for (const GainRange &range : ranges) {
            const Gain lowest{range.coarse.minimum, range.fine.minimum};
            const Gain highest{fitted(range.coarse.maximum, range.coarse), fitted(range.fine.maximum, range.fine)};
            Gain now = lowest;
            for (const bool isUp : {true, false}) {
                const double end = composedGain(isUp ? highest : lowest);
                for (double gain = composedGain(now); gain != end; gain = composedGain(now)) {
                    const double wanted = isUp ? std::min(gain + 0.125, end) : std::max(gain - 0.125, end);
                    now = steppedGain(now, wanted, range);
                    QVERIFY(isUp ? composedGain(now) > gain : composedGain(now) < gain);
                    QCOMPARE(fitted(now.coarse, range.coarse), now.coarse);
                    QCOMPARE(fitted(now.fine, range.fine), now.fine);
                    if (&range == &ranges[0])
                        QCOMPARE(composedGain(now), composedGain(splitGain(wanted)));
                }
            }
        }
    }

    void gainsGoOnToTheNext()
    {
        const GainRange range{{0, 5, 1}, {0, 63, 1}};
        const std::pair<Gain, Gain> pairs[] = {
            {{4, 0}, {4, 1}}, {{4, 63}, {5, 0}}, {{0, 63}, {1, 0}}, {{5, 62}, {5, 63}}};
        for (const auto &[less, greater] : pairs) {
            QCOMPARE(composedGain(nextGain(less, true, range)), composedGain(greater));
            QCOMPARE(composedGain(nextGain(greater, false, range)), composedGain(less));
        }
        for (const auto &[end, isGreater] : {std::pair(Gain{5, 63}, true), std::pair(Gain{0, 0}, false)})
            QCOMPARE(composedGain(nextGain(end, isGreater, range)), composedGain(end));
        for (const std::int64_t extreme : {int64Min, int64Max}) {
            for (const bool isGreater : {true, false}) {
                nextGain({extreme, extreme}, isGreater, {{}, {}});
                nextGain({extreme, extreme}, isGreater, range);
                nextGain({3, extreme}, isGreater, {{0, 5, int64Max}, {int64Min, int64Max, int64Max}});
            }
        }
        steppedGain({4, 5}, std::nan(""), {{4, 2, 1}, {9, 1, 1}});
    }
};

ORV_PLAIN_TEST_MAIN(FrameArithmeticTest)

#include "tst_framearithmetic.moc"
