#pragma once

#include "backend.h"
#include "cameralink.h"

#include <GenApi/GenApi.h>

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
 * The thread opens the camera and fetches its description. When that is done, and after each return of a camera that was
 * lost, the listener gets OrvCam::EventDeviceConnected; upon a loss it gets OrvCam::EventDeviceDisconnected. An access
 * that takes too long throws, and as long as the camera still has not answered it, further ones throw at once.
 */
class RemoteCamera final : public GenApi::IPort
{
public:
    /** Opens the camera. Throws LinkError. */
    using Open = std::function<std::unique_ptr<CameraLink>()>;

    struct Patience
    {
        std::chrono::milliseconds access{1000}; ///< of a caller for one access
        std::chrono::milliseconds check{1000}; ///< between two questions whether the camera is alive
        std::chrono::milliseconds retry{1000}; ///< between two attempts to open the camera
    };

    enum class State { Connecting, Loading, Connected, Lost };

    static std::shared_ptr<RemoteCamera> start(Open open, const Patience &patience);

    /** Ends the thread. Returns at once: an access that is running ends by itself. */
    static void close(std::shared_ptr<RemoteCamera> camera);

    /** Waits until all threads of closed cameras have ended. */
    static void waitForClosed();

    State state() const;
    bool isConnected() const { return state() == State::Connected; }

    /** Why the camera could not be opened last; empty if there was no attempt, or if it has succeeded. */
    std::string failure() const;

    /** Empty until the camera has been connected for the first time. */
    std::string description() const;

    void setListener(std::weak_ptr<ConnectionListener> listener);

    GenApi::EAccessMode GetAccessMode() const override { return isConnected() ? GenApi::RW : GenApi::NA; }
    void Read(void *buffer, std::int64_t address, std::int64_t length) override;
    void Write(const void *buffer, std::int64_t address, std::int64_t length) override;

    /** Accesses that have reached the link. */
    std::uint64_t accessCount() const;

private:
    struct Access
    {
        bool isWrite;
        std::uint64_t address;
        std::vector<std::uint8_t> bytes;
        std::exception_ptr failure;
        bool isDone = false;
    };

    RemoteCamera(Open open, const Patience &patience);

    void run();
    bool openLink();
    void serve();
    bool isLinkAlive();
    void perform(Access &access);
    void lose();
    void raise(std::uint32_t eventId);
    std::shared_ptr<Access> access(bool isWrite, std::int64_t address, std::vector<std::uint8_t> bytes);

    const Open m_open;
    const Patience m_patience;
    std::unique_ptr<CameraLink> m_link; ///< of the thread

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Connecting;
    bool m_isEnding = false;
    bool m_isSilent = false; ///< a caller has given up an access that is still running
    std::deque<std::shared_ptr<Access>> m_waiting;
    std::string m_description;
    std::string m_failure;
    std::uint64_t m_accessCount = 0;
    std::weak_ptr<ConnectionListener> m_listener;

    std::thread m_thread;
};

} // namespace OrvCameraApi
