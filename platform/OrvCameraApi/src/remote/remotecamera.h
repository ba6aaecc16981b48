// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "cameralink.h"

#include <GenApi/GenApi.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/**
 * A camera that is opened, used, lost and found again by a thread of its own, so that nobody else waits for the network
 * longer than Patience::access.
 *
 * The thread opens the camera, fetches its description and makes a node map of it. When that is done, and after each
 * return of a camera that was lost, the listeners get OrvCam::EventDeviceConnected; upon a loss they get
 * OrvCam::EventDeviceDisconnected. Whoever reads does so directly, where the link offers that; all else is done by the
 * thread. An access that takes too long throws, and as long as the camera still has not answered it, or another
 * question of the thread, further ones throw at once. An attempt to open that fails is repeated, with pauses that grow.
 */
class RemoteCamera final : public GenApi::IPort, public std::enable_shared_from_this<RemoteCamera>
{
public:
    /** Opens the camera, with a link that keeps \a isWanted. Throws LinkError. */
    using Open = std::function<std::unique_ptr<CameraLink>(const IsWanted &isWanted, const IsFetching &isFetching)>;

    struct Patience
    {
        std::chrono::milliseconds access{1000}; ///< of a caller for one access
        std::chrono::milliseconds check{1000}; ///< between two questions whether the camera is alive
        std::chrono::milliseconds retry{1000}; ///< after the first attempt to open the camera; doubles
        std::chrono::milliseconds longestRetry{2000};
    };

    using State = OpeningStep;

    static std::shared_ptr<RemoteCamera> start(Open open, const Patience &patience);

    /** Ends the thread. Returns at once: an access that is running ends by itself. No listener is called any more. */
    static void close(const std::shared_ptr<RemoteCamera> &camera);

    /** Waits until all threads of closed cameras have ended. */
    static void waitForClosed();

    /** How the camera is opened from now on. */
    void setOpen(Open open);

    State state() const;
    bool isConnected() const { return state() == State::Connected; }

    /** Why the camera could not be opened last; empty if there was no attempt, or if it has succeeded. */
    std::string failure() const;

    /** Empty until the camera has been connected for the first time. */
    std::string description() const;

    /** An expired listener is not called. */
    void addListener(std::weak_ptr<ConnectionListener> listener);

    /** A node map with this camera as its port. Takes the one that the thread has made, or makes another; may throw. */
    std::shared_ptr<GenApi::INodeMap> takeNodeMap();

    GenApi::EAccessMode GetAccessMode() const override { return m_accessMode; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

    /** What receives the pictures; see Connection::openFrames(). */
    std::unique_ptr<FrameSource> openFrames(const std::function<bool()> &isWanted);

    /** Becomes true when the camera has been closed and its link is gone. */
    std::shared_ptr<const std::atomic<bool>> hasEnded() const { return m_hasEnded; }

private:
    class Frames;
    struct Access
    {
        std::function<void(CameraLink &link)> perform;
        std::exception_ptr failure;
        bool isDone = false;
    };

    using Lock = std::unique_lock<std::mutex>;

    RemoteCamera(Open open, const Patience &patience);

    void run();
    bool openLink();
    Open opener() const;
    void noteFetching();
    void fetchDescription(CameraLink &link);
    void setState(State state);
    void fail(const std::string &why);
    void serve();
    void noteAnswer(bool hasAnswered);
    bool isLinkAlive();
    bool isWanted() const { return !m_isEnding && !m_isGivenUp; }
    bool perform(Access &access);
    bool readDirectly(DirectReader &reader, void *buffer, std::uint64_t address, std::uint32_t length);
    std::shared_ptr<DirectReader> directReader();
    void doubt();
    void lose();
    void failWaiting();
    void raise(std::uint32_t eventId);
    template <typename Tell>
    void tellAll(const Tell &tell);
    std::vector<std::shared_ptr<ConnectionListener>> listeners();
    void access(std::function<void(CameraLink &link)> perform);
    void requireAnswering() const;

    const Patience m_patience;
    std::unique_ptr<CameraLink> m_link; ///< of the thread
    std::atomic<GenApi::EAccessMode> m_accessMode{GenApi::NA};

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    Open m_open;
    State m_state = State::Connecting;
    std::atomic<bool> m_isEnding{false}; ///< changes with the mutex held
    std::atomic<bool> m_isGivenUp{false}; ///< the access that is running
    bool m_isSilent = false; ///< a caller has given up an access
    bool m_isInDoubt = false; ///< that was a direct one: the thread shall ask whether the camera is alive
    std::shared_ptr<DirectReader> m_directReader; ///< of the link
    std::deque<std::shared_ptr<Access>> m_waiting;
    std::string m_description;
    std::shared_ptr<GenApi::INodeMap> m_nodeMap; ///< until it is taken
    std::string m_failure;
    std::vector<std::weak_ptr<ConnectionListener>> m_listeners;
    const std::shared_ptr<ReceivingRight::Taken> m_isReceiving = std::make_shared<ReceivingRight::Taken>(false);
    std::atomic<int> m_framesEnding{0}; ///< the right to receive will be free soon

    std::thread m_thread;
    std::thread::id m_threadId; ///< also when the thread has been closed
    const std::shared_ptr<std::atomic<bool>> m_hasEnded = std::make_shared<std::atomic<bool>>(false); ///< the thread
};

} // namespace OrvCameraApi
