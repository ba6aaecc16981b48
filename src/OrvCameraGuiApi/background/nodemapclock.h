// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

/**
 * Polls a node map every Periods::poll while it has users.
 *
 * Each node map has one clock, however many users it has. A map adds up the times that polls pass to it, so two pollers
 * would read its features twice as often as they declare. Each poll passes the real time since the last one. GUI thread
 * only; features that a poll changes report on this thread.
 *
 *     NodeMapClock::Use clock(nodeMap); // polled from now on
 *     clock = {};                       // no longer
 */
class NodeMapClock : public std::enable_shared_from_this<NodeMapClock>
{
public:
    enum Role {
        Looks, ///< needs the map polled
        PollsItself ///< does it: the clock stands still meanwhile
    };

    /** A part in a clock, as long as this lives. The map has to outlive it; nothing else has to. */
    class Use
    {
    public:
        Use() = default;

        /** Does nothing when there is no \a map. */
        explicit Use(GenApi::INodeMap *map, Role role = Looks);
        ~Use();
        Use(Use &&other) noexcept;
        Use &operator=(Use &&other) noexcept;

        /** To be called by a user of the role PollsItself with each of its polls. */
        void polls();

    private:
        std::shared_ptr<NodeMapClock> m_clock;
        Role m_role = Looks;
    };

    ~NodeMapClock();

private:
    Q_DISABLE_COPY(NodeMapClock)

    explicit NodeMapClock(GenApi::INodeMap *map);

    static std::shared_ptr<NodeMapClock> of(GenApi::INodeMap *map);
    void count(Role role, int difference);
    void poll();

    GenApi::INodeMap *const m_map;
    int m_users[2] = {0, 0}; ///< by Role
    bool m_isPolling = false;
    QElapsedTimer m_sincePoll;
    QTimer m_timer;
};
