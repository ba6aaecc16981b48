// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "configwindow.h"
#include "orvtest.h"

#include <malloc.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace ConfigTest;
using DialogTest::Camera;
using DialogTest::part;
using SimTest::twoFrame;

/** A day's work, five hundred times. */
class OrvCamConfigEnduranceTest : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesNothingBehind();

private:
    const QScopedValueRollback<std::chrono::milliseconds> m_period{OrvGui::periods().status,
                                                                   std::chrono::milliseconds(1)};
    void work(int round);
};

namespace {

// A sanitizer's allocator answers 0 for the heap in use and finds by itself what is left behind.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isHeapMeasured = false;
#else
constexpr bool isHeapMeasured = true;
#endif
constexpr int stretch = 100; ///< rounds
constexpr int rounds = isHeapMeasured ? 5 * stretch : stretch;

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

void OrvCamConfigEnduranceTest::initTestCase()
{
    OrvSim::reset();
}

/** Connect, open all dialogs, edit, unplug, replug, close. */
void OrvCamConfigEnduranceTest::work(int round)
{
    OrvSim::resetCounts(twoFrame);
    chooseWhenAsked(twoFrame);
    OrvCamConfig window(nullptr);
    for (const Parts &parts : dialogs)
        trigger(window, parts.action);
    QTRY_COMPARE(column(window, "B"), frameB);
    QCOMPARE(OrvSim::writeCount(twoFrame), std::uint64_t(2)); // the selector to and fro

    auto *const edge = part<QComboBox>(*dialogOf(window, dialogs[1]), "cmBoxEdge");
    part<QCheckBox>(*dialogOf(window, dialogs[1]), "chBoxEnable")->click();
    DialogTest::enterInto(edge, round % 2 ? "FallingEdge" : "RisingEdge");
    part<QCheckBox>(*dialogOf(window, dialogs[1]), "chBoxEnable")->click();
    QCOMPARE(OrvSim::writeCount(twoFrame), std::uint64_t(5));

    QVERIFY(OrvSim::unplug(twoFrame));
    QTRY_COMPARE(statusText(window), disconnected());
    QVERIFY(OrvSim::replug(twoFrame));
    QTRY_COMPARE(column(window, "B"), frameB);
    QCOMPARE(OrvSim::writeCount(twoFrame), std::uint64_t(7));
    window.close();
}

void OrvCamConfigEnduranceTest::leavesNothingBehind()
{
    std::vector<std::size_t> heap; // at the end of each stretch
    for (int round = 1; round <= rounds; ++round) {
        work(round);
        if (QTest::currentTestFailed())
            return;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(isNothingHeld());
        if (round % stretch == 0)
            heap.push_back(heapInUse());
    }
    if (isHeapMeasured) {
        // What is left behind grows in each stretch after the first one; a cache of Qt's grows in one, and may shrink
        // in another.
        std::array<double, 4> growths{};
        for (std::size_t i = 0; i < growths.size(); ++i)
            growths[i] = double(heap[i + 1]) / double(heap[i]) - 1;
        std::sort(growths.begin(), growths.end());
        const double growth = growths[1];
        QVERIFY2(growth < 0.0005, qPrintable(QString::number(growth)));
    }
    const Camera camera;
    QCOMPARE(camera.value("FrameAB_Selector"), QStringLiteral("FrameA"));
}

ORV_TEST_MAIN(OrvCamConfigEnduranceTest)

#include "tst_orvcamconfigendurance.moc"
