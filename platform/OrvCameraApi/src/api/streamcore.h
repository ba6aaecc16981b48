// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "framesource.h"

#include <OrvCameraApi/streaming.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace OrvCameraApi {

class Acquisition;
class Session;

/**
 * The inside of a stream, shared by its owner, its thread and the session of its device. The thread is there from the
 * first start to the end of the owner.
 *
 * The mutex is held for moments, and never while an application, a node map or a source is called.
 */
class StreamCore : public std::enable_shared_from_this<StreamCore>
{
public:
    explicit StreamCore(std::weak_ptr<Session> session)
        : m_session(std::move(session))
    {
    }

    void start(std::uint64_t frames);
    void stop();
    OrvStreams::State state();
    std::string failure() const;
    OrvStreams::Statistics statistics() const;
    std::shared_ptr<const OrvStreams::Frame> take();
    void setListener(std::function<void()> listener);

    /** The device does not answer any more, or did not for a while. */
    void connectionLost();

    /** Stops, waits for that for a moment, and sees to it that nothing is written any more. */
    void close();

    /** Closes, and ends the thread. */
    static void end(const std::shared_ptr<StreamCore> &core);

private:
    using Lock = std::unique_lock<std::mutex>;
    using State = OrvStreams::State;

    std::shared_ptr<const OrvStreams::Frame> begin(std::uint64_t frames);
    void run();
    void acquire();
    void acquire(Session &session);
    void receive(Session &session, FrameSource &source, Acquisition &acquisition);
    bool publish(FrameSource::Look look, std::uint64_t limit);
    bool waitUntil(FrameSource::Clock::time_point time);
    bool write(GenApi::INodeMap &map, const std::function<void()> &action);
    void stopAcquisition();
    bool isStopping() const { return m_state == State::Stopping || m_isLost || m_isClosing; }
    bool goesOn() const;
    bool isWanted() const;
    bool isClosing() const
    {
        const Lock lock(m_mutex);
        return m_isClosing;
    }
    bool isIdle() const { return m_state == State::Stopped && m_writes == 0; }
    bool isOwnThread() const { return std::this_thread::get_id() == m_threadId; }
    void wake();
    void tell();

    const std::weak_ptr<Session> m_session;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Stopped;
    std::uint64_t m_frames = 0;
    std::optional<std::uint64_t> m_next; ///< to start with, once stopped
    bool m_isLost = false;
    bool m_isWoken = false;
    bool m_isClosing = false; ///< nothing begins any more
    bool m_isClosed = false; ///< nothing is written any more
    bool m_isEnding = false;
    int m_writes = 0; ///< under way
    std::string m_failure;
    OrvStreams::Statistics m_statistics;
    std::shared_ptr<const OrvStreams::Frame> m_newest;

    std::shared_ptr<const std::function<void()>> m_listener;
    bool m_isTold = false;
    bool m_isTelling = false;

    std::thread m_thread;
    std::atomic<std::thread::id> m_threadId{};
    Acquisition *m_acquisition = nullptr; ///< of the thread
    const std::shared_ptr<std::atomic<bool>> m_hasEnded = std::make_shared<std::atomic<bool>>(false); ///< the thread
};

} // namespace OrvCameraApi
