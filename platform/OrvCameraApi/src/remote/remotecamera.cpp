// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "remotecamera.h"

#include "endingthreads.h"

#include <OrvGenApi/nodemap.h>

#include <algorithm>
#include <exception>
#include <future>
#include <system_error>
#include <utility>

namespace OrvCameraApi {

namespace {

/** Every camera whose thread may be running. Ends them with the process. */
class RunningCameras
{
public:
    ~RunningCameras()
    {
        for (const std::weak_ptr<RemoteCamera> &weak : std::exchange(m_open, {})) {
            if (const std::shared_ptr<RemoteCamera> camera = weak.lock())
                RemoteCamera::close(camera);
        }
    }

    void add(const std::shared_ptr<RemoteCamera> &camera)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open.push_back(camera);
    }

    void close(std::thread thread, std::shared_ptr<const std::atomic<bool>> hasEnded)
    {
        m_closed.add(std::move(thread), std::move(hasEnded));
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open.erase(std::remove_if(m_open.begin(), m_open.end(), [](const auto &weak) { return weak.expired(); }),
                     m_open.end());
    }

    void waitForClosed() { m_closed.join(); }

private:
    std::mutex m_mutex;
    std::vector<std::weak_ptr<RemoteCamera>> m_open;
    EndingThreads m_closed;
};

RunningCameras &runningCameras()
{
    static RunningCameras cameras;
    return cameras;
}

[[noreturn]] void throwNotConnected()
{
    throw GenICam::AccessException("The camera is not connected", __FILE__, __LINE__);
}

[[noreturn]] void throwNoAnswer()
{
    throw GenICam::TimeoutException("The camera does not answer", __FILE__, __LINE__);
}

std::uint32_t checkedLength(std::int64_t length)
{
    constexpr std::int64_t longest = 1 << 20;
    if (length < 0 || length > longest)
        throw GenICam::OutOfRangeException("The register is too long", __FILE__, __LINE__);
    return std::uint32_t(length);
}

/** A copy of those in \a buffer, or zeros without one. */
std::vector<std::uint8_t> bytesOf(const void *buffer, std::int64_t length)
{
    std::vector<std::uint8_t> bytes(checkedLength(length));
    if (buffer)
        std::copy_n(static_cast<const std::uint8_t *>(buffer), bytes.size(), bytes.begin());
    return bytes;
}

/** The exception of GenApi that callers get for \a error. */
std::exception_ptr forCallers(const LinkError &error)
{
    switch (error.kind()) {
    case LinkError::Kind::Denied:
        return std::make_exception_ptr(GenICam::AccessException(error.what(), __FILE__, __LINE__));
    case LinkError::Kind::Silent:
        return std::make_exception_ptr(GenICam::TimeoutException(error.what(), __FILE__, __LINE__));
    case LinkError::Kind::Failed:
    case LinkError::Kind::Unwanted:
        break;
    }
    return std::make_exception_ptr(GenICam::RuntimeException(error.what(), __FILE__, __LINE__));
}

/** The same for what is being handled. */
std::exception_ptr forCallers()
{
    try {
        throw;
    } catch (const LinkError &error) {
        return forCallers(error);
    } catch (const std::exception &error) {
        return std::make_exception_ptr(GenICam::RuntimeException(error.what(), __FILE__, __LINE__));
    } catch (...) {
        return std::make_exception_ptr(GenICam::RuntimeException("The access failed", __FILE__, __LINE__));
    }
}

} // namespace

RemoteCamera::RemoteCamera(Open open, const Patience &patience)
    : m_patience(patience)
    , m_open(std::move(open))
{
}

std::shared_ptr<RemoteCamera> RemoteCamera::start(Open open, const Patience &patience)
{
    std::shared_ptr<RemoteCamera> camera(new RemoteCamera(std::move(open), patience));
    runningCameras().add(camera);
    camera->m_thread = std::thread([camera, hasEnded = camera->m_hasEnded]() mutable { // the thread keeps what it uses
        camera->run();
        camera.reset();
        *hasEnded = true;
    });
    return camera;
}

void RemoteCamera::close(const std::shared_ptr<RemoteCamera> &camera)
{
    std::thread thread;
    {
        const std::lock_guard<std::mutex> lock(camera->m_mutex);
        camera->m_isEnding = true;
        camera->m_listeners.clear();
        thread = std::move(camera->m_thread);
    }
    camera->m_changed.notify_all();
    if (thread.joinable())
        runningCameras().close(std::move(thread), camera->m_hasEnded);
}

void RemoteCamera::waitForClosed()
{
    runningCameras().waitForClosed();
}

RemoteCamera::State RemoteCamera::state() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state;
}

std::string RemoteCamera::failure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_failure;
}

std::string RemoteCamera::description() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_description;
}

void RemoteCamera::addListener(std::weak_ptr<ConnectionListener> listener)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto isGone = [](const std::weak_ptr<ConnectionListener> &other) { return other.expired(); };
    m_listeners.erase(std::remove_if(m_listeners.begin(), m_listeners.end(), isGone), m_listeners.end());
    m_listeners.push_back(std::move(listener));
}

std::shared_ptr<GenApi::INodeMap> RemoteCamera::takeNodeMap()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_nodeMap)
            return std::exchange(m_nodeMap, nullptr);
    }
    std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(description());
    map->connect(this);
    return map;
}

void RemoteCamera::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    const std::shared_ptr<DirectReader> reader = directReader();
    if (reader && readDirectly(*reader, buffer, std::uint64_t(address), checkedLength(length)))
        return;
    const auto bytes = std::make_shared<std::vector<std::uint8_t>>(bytesOf(nullptr, length)); // outlives a caller
    access([=](CameraLink &link) { link.read(bytes->data(), std::uint64_t(address), std::uint32_t(bytes->size())); });
    std::copy(bytes->begin(), bytes->end(), static_cast<std::uint8_t *>(buffer));
    if (!reader)
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_directReader == reader)
        m_directReader.reset(); // the camera answers its controller only
}

/** Throws unless the camera can be asked now. Null if that has to be by the link, as in the thread's own callbacks. */
std::shared_ptr<DirectReader> RemoteCamera::directReader()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_directReader || std::this_thread::get_id() == m_threadId)
        return nullptr;
    requireAnswering();
    return m_directReader;
}

/** False if only the link may read that. */
bool RemoteCamera::readDirectly(DirectReader &reader, void *buffer, std::uint64_t address, std::uint32_t length)
{
    try {
        return reader.read(buffer, address, length, std::chrono::steady_clock::now() + m_patience.access);
    } catch (const LinkError &error) {
        if (error.kind() == LinkError::Kind::Silent)
            doubt();
        if (error.kind() == LinkError::Kind::Unwanted)
            throwNoAnswer(); // to an access of somebody else, or the camera has been closed
        std::rethrow_exception(forCallers(error));
    } catch (...) {
        std::rethrow_exception(forCallers());
    }
}

/** The camera has not answered, and the thread shall see to it. */
void RemoteCamera::doubt()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isSilent = true;
    m_isInDoubt = true;
    m_changed.notify_all();
}

/** With the mutex held. */
void RemoteCamera::requireAnswering() const
{
    if (m_state != State::Connected || m_isEnding)
        throwNotConnected();
    if (m_isSilent)
        throwNoAnswer();
}

void RemoteCamera::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    if (m_accessMode == GenApi::RO)
        throw GenICam::AccessException("Another program controls the camera", __FILE__, __LINE__);
    access([address, bytes = bytesOf(buffer, length)](CameraLink &link) {
        link.write(bytes.data(), std::uint64_t(address), std::uint32_t(bytes.size()));
    });
}

/** Of a remote camera, beside the right to receive from it. */
class RemoteCamera::Frames final : public FrameSource
{
public:
    explicit Frames(std::shared_ptr<RemoteCamera> camera)
        : m_camera(std::move(camera))
        , m_right(std::make_unique<ReceivingRight>(m_camera->m_isReceiving))
    {
        const auto opened = std::make_shared<std::unique_ptr<FrameSource>>(); // outlives a caller
        m_camera->access([opened](CameraLink &link) { *opened = link.openFrames(); });
        m_source = std::move(*opened);
    }

    /** Libraries below tell the camera. One that does not answer is waited for elsewhere, with the right. */
    ~Frames() override
    {
        using namespace std::chrono_literals;
        struct Ending
        {
            std::shared_ptr<RemoteCamera> camera;
            std::unique_ptr<ReceivingRight> right;
            std::unique_ptr<FrameSource> source;
            std::promise<void> end;
        };
        const auto ending = std::make_shared<Ending>();
        *ending = {m_camera, std::move(m_right), std::move(m_source), {}};
        const auto hasEnded = std::make_shared<std::atomic<bool>>(false);
        const auto end = [ending, hasEnded] {
            ending->source.reset();
            ending->right.reset();
            --ending->camera->m_framesEnding;
            ending->end.set_value();
            *hasEnded = true;
        };
        ++m_camera->m_framesEnding;
        try {
            runningCameras().close(std::thread(end), hasEnded);
        } catch (const std::system_error &) { // no further thread can be had
            end();
        }
        ending->end.get_future().wait_for(m_camera->isConnected() ? 1s : 0s);
    }
    Frames(const Frames &) = delete;
    Frames &operator=(const Frames &) = delete;

    void prepare(GenApi::INodeMap &map, std::function<void()> wake) override
    {
        m_source->prepare(map, std::move(wake));
    }
    Clock::time_point nextLook() const override { return m_source->nextLook(); }
    Look look() override { return m_source->look(); }

private:
    const std::shared_ptr<RemoteCamera> m_camera;
    std::unique_ptr<ReceivingRight> m_right;
    std::unique_ptr<FrameSource> m_source;
};

std::unique_ptr<FrameSource> RemoteCamera::openFrames(const std::function<bool()> &isWanted)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (m_framesEnding != 0 && std::chrono::steady_clock::now() < deadline && isWanted())
        std::this_thread::sleep_for(10ms);
    return std::make_unique<Frames>(shared_from_this());
}

/** Waits for the link's thread, which performs it, but for no longer than the camera's patience. */
void RemoteCamera::access(std::function<void(CameraLink &link)> perform)
{
    auto access = std::make_shared<Access>();
    access->perform = std::move(perform);
    Lock lock(m_mutex);
    if (std::this_thread::get_id() == m_threadId) { // a callback of the application, told of the connection
        if (m_state != State::Connected || m_isEnding)
            throwNotConnected();
        lock.unlock();
        this->perform(*access);
        if (access->failure)
            std::rethrow_exception(access->failure);
        return;
    }
    requireAnswering();
    m_waiting.push_back(access);
    m_changed.notify_all();
    if (!m_changed.wait_for(lock, m_patience.access, [&] { return access->isDone; })) {
        m_isSilent = true;
        // Nothing is written after its writer has been told that it is not.
        const auto waiting = std::find(m_waiting.begin(), m_waiting.end(), access);
        if (waiting == m_waiting.end())
            m_isGivenUp = true; // it is the one that is running
        else
            m_waiting.erase(waiting);
        throwNoAnswer();
    }
    if (access->failure)
        std::rethrow_exception(access->failure);
}

void RemoteCamera::run()
{
    std::chrono::milliseconds pause = m_patience.retry;
    Lock lock(m_mutex);
    m_threadId = std::this_thread::get_id();
    while (!m_isEnding) {
        lock.unlock();
        const bool isOpen = openLink();
        if (isOpen)
            serve();
        lock.lock();
        if (isOpen)
            pause = m_patience.retry;
        m_changed.wait_for(lock, pause, [this] { return m_isEnding.load(); });
        pause = std::min(2 * pause, m_patience.longestRetry);
    }
    failWaiting();
    m_directReader.reset();
    lock.unlock();
    m_link.reset();
}

/** With the mutex held. */
void RemoteCamera::failWaiting()
{
    for (const std::shared_ptr<Access> &access : m_waiting) {
        access->failure =
            std::make_exception_ptr(GenICam::AccessException("The camera is not connected", __FILE__, __LINE__));
        access->isDone = true;
    }
    m_waiting.clear();
    m_changed.notify_all();
}

/** Without the mutex, because applications are called; what they throw is theirs. */
template <typename Tell>
void RemoteCamera::tellAll(const Tell &tell)
{
    for (const std::shared_ptr<ConnectionListener> &listener : listeners()) {
        try {
            tell(*listener);
        } catch (...) { // NOLINT(bugprone-empty-catch)
        }
    }
}

/** Opens the camera and, the first time, fetches its description. */
bool RemoteCamera::openLink()
{
    try {
        std::unique_ptr<CameraLink> link = opener()([this] { return isWanted(); }, [this] { noteFetching(); });
        if (!link)
            throw LinkError(LinkError::Kind::Failed, "The camera cannot be opened");
        if (description().empty())
            fetchDescription(*link);
        else if (link->description() != description())
            throw LinkError(LinkError::Kind::Failed, "The camera has other features now; it has to be opened again");
        m_accessMode = link->isReadOnly() ? GenApi::RO : GenApi::RW;
        m_link = std::move(link);
    } catch (const GenICam::GenericException &error) {
        fail(error.GetDescription());
        return false;
    } catch (const std::exception &error) {
        fail(error.what());
        return false;
    } catch (...) {
        fail("The camera cannot be opened");
        return false;
    }
    // Nobody reads kept values of before: accesses are refused until the state says connected.
    tellAll([](ConnectionListener &listener) { listener.prepareReturn(); });
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_failure.clear();
        m_isSilent = false;
        m_isInDoubt = false;
        m_directReader = m_link->directReader();
        m_state = State::Connected;
    }
    raise(OrvCam::EventDeviceConnected);
    return true;
}

RemoteCamera::Open RemoteCamera::opener() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_open;
}

void RemoteCamera::setOpen(Open open)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_open = std::move(open);
}

/** A camera that was lost is so until it is back. */
void RemoteCamera::noteFetching()
{
    if (description().empty())
        setState(State::Description);
}

/** The node map is made here, because that takes a moment too. */
void RemoteCamera::fetchDescription(CameraLink &link)
{
    noteFetching();
    std::string description = link.description();
    setState(State::Features);
    std::shared_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromString(description);
    map->connect(this);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_description = std::move(description);
    m_nodeMap = std::move(map);
}

void RemoteCamera::setState(State state)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_state = state;
}

/** A camera that was lost stays lost. */
void RemoteCamera::fail(const std::string &why)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_failure = why;
    if (m_state != State::Lost)
        m_state = State::Connecting;
}

/** Performs accesses until the camera is lost or closed. */
void RemoteCamera::serve()
{
    using Clock = std::chrono::steady_clock;
    bool isGood = true;
    Clock::time_point nextCheck = Clock::now() + m_patience.check;
    Lock lock(m_mutex);
    noteAnswer(true); // whoever has given up meanwhile has waited for this thread, not for the camera
    while (isGood) {
        m_changed.wait_until(lock, nextCheck, [this] { return m_isEnding || m_isInDoubt || !m_waiting.empty(); });
        if (m_isEnding)
            return;
        if (m_isInDoubt || Clock::now() >= nextCheck) { // also while there is always something to do
            m_isInDoubt = false;
            lock.unlock();
            isGood = isLinkAlive();
            lock.lock();
            noteAnswer(isGood);
            nextCheck = Clock::now() + m_patience.check;
            continue;
        }
        if (m_waiting.empty())
            continue;
        const std::shared_ptr<Access> access = m_waiting.front();
        m_waiting.pop_front();
        lock.unlock();
        isGood = perform(*access);
        lock.lock();
        access->isDone = true;
        m_isGivenUp = false;
        noteAnswer(isGood);
        m_changed.notify_all();
    }
    lock.unlock();
    lose();
}

/** With the mutex held: whether the camera has answered the thread. A doubt that has come up since goes on. */
void RemoteCamera::noteAnswer(bool hasAnswered)
{
    m_isSilent = m_isSilent && (m_isInDoubt || !hasAnswered);
}

bool RemoteCamera::isLinkAlive()
{
    try {
        return m_link->isAlive();
    } catch (...) {
        return false;
    }
}

/** False when the camera has not answered, or has another controller now. */
bool RemoteCamera::perform(Access &access)
{
    try {
        access.perform(*m_link);
    } catch (const LinkError &error) {
        access.failure = forCallers(error);
        const bool isOver = error.kind() == LinkError::Kind::Failed || error.kind() == LinkError::Kind::Unwanted;
        return isOver || (error.kind() == LinkError::Kind::Denied && isLinkAlive());
    } catch (...) {
        access.failure = forCallers();
    }
    return true;
}

void RemoteCamera::lose()
{
    m_accessMode = GenApi::NA;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = State::Lost;
        m_directReader.reset();
        failWaiting();
    }
    raise(OrvCam::EventDeviceDisconnected);
    m_link.reset(); // may wait for an answer that does not come
}

void RemoteCamera::raise(std::uint32_t eventId)
{
    tellAll([eventId](ConnectionListener &listener) { listener.raise(eventId); });
}

/** Those that exist now. */
std::vector<std::shared_ptr<ConnectionListener>> RemoteCamera::listeners()
{
    std::vector<std::shared_ptr<ConnectionListener>> present;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const std::weak_ptr<ConnectionListener> &weak : m_listeners) {
        if (std::shared_ptr<ConnectionListener> listener = weak.lock())
            present.push_back(std::move(listener));
    }
    return present;
}

} // namespace OrvCameraApi
