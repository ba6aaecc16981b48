// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/background/nodemapclock.h>

#include <OrvCameraGuiApi/background/periods.h>

#include <QHash>
#include <QScopedValueRollback>

#include <utility>

namespace {

using Clocks = QHash<GenApi::INodeMap *, std::weak_ptr<NodeMapClock>>;
Q_GLOBAL_STATIC(Clocks, runningClocks)

} // namespace

NodeMapClock::NodeMapClock(GenApi::INodeMap *map)
    : m_map(map)
{
    m_sincePoll.start();
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { poll(); });
}

NodeMapClock::~NodeMapClock()
{
    if (!runningClocks.isDestroyed())
        runningClocks->remove(m_map);
}

std::shared_ptr<NodeMapClock> NodeMapClock::of(GenApi::INodeMap *map)
{
    auto clock = runningClocks->value(map).lock();
    if (!clock) {
        clock.reset(new NodeMapClock(map));
        runningClocks->insert(map, clock);
    }
    return clock;
}

void NodeMapClock::count(Role role, int difference)
{
    m_users[role] += difference;
    const bool isNeeded = m_users[Looks] > 0 && m_users[PollsItself] == 0;
    if (!isNeeded)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start(OrvGui::periods().poll);
}

/** Not once more from an event loop that a report runs. */
void NodeMapClock::poll()
{
    if (m_isPolling)
        return;
    const auto alive = shared_from_this(); // a report may end the last use
    const QScopedValueRollback<bool> polling(m_isPolling, true);
    try {
        m_map->Poll(m_sincePoll.restart());
    } catch (...) {
        // Whatever a camera's library throws: the next poll tries again.
    }
}

NodeMapClock::Use::Use(GenApi::INodeMap *map, Role role)
    : m_clock(map ? of(map) : nullptr)
    , m_role(role)
{
    if (m_clock)
        m_clock->count(m_role, 1);
}

NodeMapClock::Use::~Use()
{
    if (m_clock)
        m_clock->count(m_role, -1);
}

NodeMapClock::Use::Use(Use &&other) noexcept
    : m_clock(std::exchange(other.m_clock, nullptr))
    , m_role(other.m_role)
{
}

NodeMapClock::Use &NodeMapClock::Use::operator=(Use &&other) noexcept
{
    Use former(std::move(other));
    std::swap(m_clock, former.m_clock);
    std::swap(m_role, former.m_role);
    return *this;
}

void NodeMapClock::Use::polls()
{
    if (m_clock)
        m_clock->m_sincePoll.restart();
}
