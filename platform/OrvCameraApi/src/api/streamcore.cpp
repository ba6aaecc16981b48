// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "streamcore.h"

#include "acquisition.h"
#include "endingthreads.h"
#include "genapierror.h"
#include "nodemaplock.h"
#include "session.h"

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <GenApi/GenApi.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace OrvCameraApi {

namespace {

using namespace std::chrono_literals;
using Clock = FrameSource::Clock;

constexpr auto longestWait = 500ms; ///< between two looks whether the camera is still there
constexpr std::chrono::milliseconds patience = 15s; ///< for a frame of a counted run, which has no end otherwise
constexpr auto lossText = "The connection to the camera was lost";
constexpr auto closingPatience = 1s; ///< as for an access to a camera

/** Threads of streams that are gone; they wait for a camera. */
EndingThreads &endingThreads()
{
    static EndingThreads threads;
    return threads;
}

[[noreturn]] void fail(const std::string &text)
{
    throw GenICam::RuntimeException(text.c_str(), __FILE__, __LINE__);
}

} // namespace

void StreamCore::start(std::uint64_t frames)
{
    std::shared_ptr<const OrvStreams::Frame> former; // freed without the mutex
    const Lock lock(m_mutex);
    if (m_state == State::Stopping)
        m_next = frames;
    if (m_state != State::Stopped || m_isEnding)
        return;
    former = begin(frames);
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([core = shared_from_this(), hasEnded = m_hasEnded]() mutable {
            core->run();
            core.reset();
            *hasEnded = true;
        });
    } catch (const std::system_error &error) {
        m_state = State::Stopped;
        m_failure = error.what();
    }
}

/** With the mutex held. Returns the frame that nobody took. */
std::shared_ptr<const OrvStreams::Frame> StreamCore::begin(std::uint64_t frames)
{
    m_state = State::Starting;
    m_frames = frames;
    m_next.reset();
    m_isLost = false;
    m_failure.clear();
    m_statistics = {};
    m_changed.notify_all();
    return std::exchange(m_newest, nullptr);
}

void StreamCore::stop()
{
    const Lock lock(m_mutex);
    m_next.reset();
    if (m_state != State::Stopped)
        m_state = State::Stopping;
    m_changed.notify_all();
}

OrvStreams::State StreamCore::state()
{
    const Lock lock(m_mutex);
    m_isTold = false;
    return m_state;
}

std::string StreamCore::failure() const
{
    const Lock lock(m_mutex);
    return m_failure;
}

OrvStreams::Statistics StreamCore::statistics() const
{
    const Lock lock(m_mutex);
    return m_statistics;
}

std::shared_ptr<const OrvStreams::Frame> StreamCore::take()
{
    const Lock lock(m_mutex);
    m_isTold = false;
    return std::exchange(m_newest, nullptr);
}

void StreamCore::setListener(std::function<void()> listener)
{
    auto replaced = listener ? std::make_shared<const std::function<void()>>(std::move(listener)) : nullptr;
    Lock lock(m_mutex);
    m_listener.swap(replaced); // the former one goes without the mutex, for it may hold the last pointer to anything
    m_isTold = false;
    if (!isOwnThread())
        m_changed.wait(lock, [this] { return !m_isTelling; });
}

void StreamCore::connectionLost()
{
    const Lock lock(m_mutex);
    m_isLost = m_state != State::Stopped;
    m_changed.notify_all();
}

void StreamCore::close()
{
    {
        const Lock lock(m_mutex);
        m_isClosing = true;
    }
    stop();
    if (isOwnThread()) // in the listener, or in a callback of a node
        stopAcquisition();
    Lock lock(m_mutex);
    if (!isOwnThread() && !m_isClosed) // whoever closes again has waited already
        m_changed.wait_for(lock, closingPatience, [this] { return isIdle(); });
    m_isClosed = true;
}

void StreamCore::end(const std::shared_ptr<StreamCore> &core)
{
    core->setListener({});
    core->close();
    std::thread thread;
    {
        const Lock lock(core->m_mutex);
        core->m_isEnding = true;
        thread = std::move(core->m_thread);
        core->m_changed.notify_all();
    }
    if (thread.joinable())
        endingThreads().add(std::move(thread), core->m_hasEnded);
}

void StreamCore::run()
{
    m_threadId = std::this_thread::get_id();
    Lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_isEnding || m_state != State::Stopped; });
        if (m_state == State::Stopped)
            return;
        lock.unlock();
        tell();
        acquire();
        lock.lock();
        std::shared_ptr<const OrvStreams::Frame> former;
        if (m_next && !m_isClosing)
            former = begin(*m_next);
        else
            m_state = State::Stopped;
        m_next.reset();
        m_changed.notify_all();
        lock.unlock();
        former.reset();
        tell();
        lock.lock();
    }
}

void StreamCore::acquire()
{
    const std::string failure = failureOf([this] {
        const std::shared_ptr<Session> session = m_session.lock();
        if (!session || isClosing())
            fail("The device has been released");
        acquire(*session);
    });
    const Lock lock(m_mutex);
    if (m_failure.empty() && m_state != State::Stopping)
        m_failure = failure;
}

void StreamCore::acquire(Session &session)
{
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const parameters = session.parameters().get(&err);
    if (!parameters || !session.connection().isConnected())
        fail("The camera is not connected");
    GenApi::INodeMap &map = *parameters->GetNodeMap();
    const std::unique_ptr<FrameSource> source = session.connection().openFrames([this] { return isWanted(); });
    Acquisition acquisition(map, [&](const std::function<void()> &action) { return write(map, action); });
    m_acquisition = &acquisition;
    const std::string failure = failureOf([&] {
        if (!isWanted())
            return;
        acquisition.lockFeatures();
        // The source may call for longer than this object lives. What it writes counts as well.
        const auto wake = [weak = weak_from_this()] {
            if (const std::shared_ptr<StreamCore> core = weak.lock())
                core->wake();
        };
        if (isWanted() && write(map, [&] { source->prepare(map, wake); }))
            receive(session, *source, acquisition);
    });
    const bool isConnected = session.connection().isConnected();
    {
        const Lock lock(m_mutex);
        m_isLost = m_isLost || !isConnected;
        if (!failure.empty() && m_state != State::Stopping)
            m_failure = m_isLost ? lossText : failure; // what has failed has failed for that
        m_state = State::Stopping;
    }
    tell();
    stopAcquisition();
    m_acquisition = nullptr;
}

/** Of this thread, also from within a callback of the application. */
void StreamCore::stopAcquisition()
{
    if (!m_acquisition)
        return;
    bool isLost = false;
    {
        const Lock lock(m_mutex);
        isLost = m_isLost;
    }
    const std::string failure = m_acquisition->stop(isLost);
    const Lock lock(m_mutex);
    if (m_failure.empty() && !m_isLost)
        m_failure = failure;
}

/** Starts, and ends with the run. */
void StreamCore::receive(Session &session, FrameSource &source, Acquisition &acquisition)
{
    const std::uint64_t ofMode = acquisition.frameLimit();
    const bool isTriggered = acquisition.isTriggered();
    const std::chrono::milliseconds longest = std::max(patience, 2 * acquisition.frameTime());
    if (!isWanted())
        return;
    acquisition.start();
    std::uint64_t limit = 0;
    {
        const Lock lock(m_mutex);
        if (!isStopping())
            m_state = State::Running;
        limit = ofMode != 0 && m_frames != 0 ? std::min(ofMode, m_frames) : std::max(ofMode, m_frames);
    }
    tell();
    Clock::time_point last = Clock::now();
    while (waitUntil(std::min(source.nextLook(), Clock::now() + longestWait))) {
        if (!session.connection().isConnected()) {
            connectionLost();
            continue;
        }
        FrameSource::Look look = source.look();
        const Clock::time_point now = Clock::now();
        if (look.frame || look.lost != 0)
            last = now;
        else if (limit != 0 && !isTriggered && now - last > longest)
            fail("No picture has been received");
        const bool isFrame = look.frame != nullptr;
        const bool isOver = publish(std::move(look), limit);
        if (isFrame)
            tell();
        if (isOver)
            return;
    }
}

/** Returns whether these were all. */
bool StreamCore::publish(FrameSource::Look look, std::uint64_t limit)
{
    std::shared_ptr<const OrvStreams::Frame> replaced; // freed without the mutex
    const Lock lock(m_mutex);
    m_statistics.lost += look.lost;
    if (look.frame) {
        look.frame->number = m_statistics.received + m_statistics.lost;
        ++m_statistics.received;
        m_statistics.replaced += m_newest ? 1 : 0;
        replaced = std::exchange(m_newest, std::move(look.frame));
    }
    return limit != 0 && m_statistics.received + m_statistics.lost >= limit;
}

/** With the mutex held: false when it is time to stop. Throws when the camera is lost. */
bool StreamCore::goesOn() const
{
    if (m_isLost && m_state != State::Stopping)
        fail(lossText);
    return !isStopping();
}

bool StreamCore::isWanted() const
{
    const Lock lock(m_mutex);
    return goesOn();
}

/** As goesOn() says. */
bool StreamCore::waitUntil(Clock::time_point time)
{
    Lock lock(m_mutex);
    m_changed.wait_until(lock, time, [this] { return isStopping() || m_isWoken; });
    m_isWoken = false;
    return goesOn();
}

void StreamCore::wake()
{
    const Lock lock(m_mutex);
    m_isWoken = true;
    m_changed.notify_all();
}

/**
 * After close() no write begins, as one that has begun is waited for. Whoever closes may hold the lock of the node map,
 * and then nothing gets past here; but the action runs without that lock, since it calls callbacks that applications
 * want to be called outside of it.
 */
bool StreamCore::write(GenApi::INodeMap &map, const std::function<void()> &action)
{
    {
        const NodeMapLock mapLock(map);
        const Lock lock(m_mutex);
        if (m_isClosed)
            return false;
        ++m_writes;
    }
    const auto endWrite = [this] {
        const Lock lock(m_mutex);
        --m_writes;
        m_changed.notify_all();
    };
    try {
        action();
    } catch (...) {
        endWrite();
        throw;
    }
    endWrite();
    return true;
}

/** On the stream's thread, without the mutex. */
void StreamCore::tell()
{
    Lock lock(m_mutex);
    if (!m_listener || m_isTold)
        return;
    m_isTold = true;
    m_isTelling = true;
    std::shared_ptr<const std::function<void()>> listener = m_listener;
    lock.unlock();
    failureOf([&listener] { (*listener)(); });
    listener.reset(); // may hold the last pointer to anything
    lock.lock();
    m_isTelling = false;
    m_changed.notify_all();
}

} // namespace OrvCameraApi
