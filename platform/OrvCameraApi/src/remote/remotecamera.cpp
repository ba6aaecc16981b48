#include "remotecamera.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

namespace {

/** The closed cameras whose threads have not ended. */
struct Graveyard
{
    std::mutex mutex;
    std::vector<std::thread> threads;

    ~Graveyard() { joinAll(); }

    void joinAll()
    {
        std::unique_lock<std::mutex> lock(mutex);
        std::vector<std::thread> ending = std::move(threads);
        threads.clear();
        lock.unlock();
        for (std::thread &thread : ending)
            thread.join();
    }
};

Graveyard &graveyard()
{
    static Graveyard graveyard;
    return graveyard;
}

} // namespace

RemoteCamera::RemoteCamera(Open open, const Patience &patience)
    : m_open(std::move(open))
    , m_patience(patience)
{
}

std::shared_ptr<RemoteCamera> RemoteCamera::start(Open open, const Patience &patience)
{
    graveyard(); // outlives every camera
    const std::shared_ptr<RemoteCamera> camera(new RemoteCamera(std::move(open), patience));
    camera->m_thread = std::thread([camera] { camera->run(); }); // the thread keeps what it uses
    return camera;
}

void RemoteCamera::close(std::shared_ptr<RemoteCamera> camera)
{
    std::thread thread;
    {
        const std::lock_guard<std::mutex> lock(camera->m_mutex);
        camera->m_isEnding = true;
        camera->m_listener.reset();
        thread = std::move(camera->m_thread);
    }
    camera->m_changed.notify_all();
    const std::lock_guard<std::mutex> lock(graveyard().mutex);
    graveyard().threads.push_back(std::move(thread));
}

void RemoteCamera::waitForClosed()
{
    graveyard().joinAll();
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

void RemoteCamera::setListener(std::weak_ptr<ConnectionListener> listener)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listener = std::move(listener);
}

std::uint64_t RemoteCamera::accessCount() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_accessCount;
}

void RemoteCamera::Read(void *buffer, std::int64_t address, std::int64_t length)
{
    const std::shared_ptr<Access> done = access(false, address, std::vector<std::uint8_t>(std::size_t(length)));
    std::copy(done->bytes.begin(), done->bytes.end(), static_cast<std::uint8_t *>(buffer));
}

void RemoteCamera::Write(const void *buffer, std::int64_t address, std::int64_t length)
{
    const auto *const bytes = static_cast<const std::uint8_t *>(buffer);
    access(true, address, {bytes, bytes + length});
}

std::shared_ptr<RemoteCamera::Access> RemoteCamera::access(bool isWrite, std::int64_t address,
                                                           std::vector<std::uint8_t> bytes)
{
    const auto access = std::make_shared<Access>();
    access->isWrite = isWrite;
    access->address = std::uint64_t(address);
    access->bytes = std::move(bytes);
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_state != State::Connected)
        throw GenICam::AccessException("The camera is not connected", __FILE__, __LINE__);
    if (m_isSilent)
        throw GenICam::TimeoutException("The camera does not answer", __FILE__, __LINE__);
    m_waiting.push_back(access);
    m_changed.notify_all();
    if (!m_changed.wait_for(lock, m_patience.access, [&] { return access->isDone; })) {
        m_isSilent = true;
        // Nothing is written after its writer has been told that it is not.
        m_waiting.erase(std::remove(m_waiting.begin(), m_waiting.end(), access), m_waiting.end());
        throw GenICam::TimeoutException("The camera does not answer", __FILE__, __LINE__);
    }
    if (access->failure)
        std::rethrow_exception(access->failure);
    return access;
}

void RemoteCamera::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isEnding) {
        lock.unlock();
        if (openLink())
            serve();
        lock.lock();
        m_changed.wait_for(lock, m_patience.retry, [this] { return m_isEnding; });
    }
    lock.unlock();
    m_link.reset();
}

/** Opens the camera and, the first time, fetches its description. */
bool RemoteCamera::openLink()
{
    std::string failure;
    std::string description = this->description();
    try {
        m_link = m_open();
        if (description.empty()) {
            {
                const std::lock_guard<std::mutex> lock(m_mutex);
                m_state = State::Loading;
            }
            description = m_link->description();
        }
    } catch (const std::exception &error) {
        failure = error.what();
        m_link.reset();
    } catch (...) {
        failure = "The camera cannot be opened";
        m_link.reset();
    }
    std::unique_lock<std::mutex> lock(m_mutex);
    m_failure = failure;
    if (!m_link) {
        if (m_state == State::Loading)
            m_state = State::Connecting;
        return false;
    }
    m_description = std::move(description);
    m_isSilent = false;
    const std::shared_ptr<ConnectionListener> listener = m_listener.lock();
    lock.unlock();
    // Nobody reads kept values of before: accesses are refused until the state says connected.
    if (listener)
        listener->prepareReturn();
    lock.lock();
    m_state = State::Connected;
    lock.unlock();
    raise(OrvCam::EventDeviceConnected);
    return true;
}

/** Performs accesses until the camera is lost or closed. */
void RemoteCamera::serve()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait_for(lock, m_patience.check, [this] { return m_isEnding || !m_waiting.empty(); });
        if (m_isEnding)
            return;
        if (m_waiting.empty()) {
            lock.unlock();
            const bool isAlive = isLinkAlive();
            lock.lock();
            if (!isAlive)
                break;
            m_isSilent = false;
            continue;
        }
        const std::shared_ptr<Access> access = m_waiting.front();
        m_waiting.pop_front();
        ++m_accessCount;
        lock.unlock();
        perform(*access);
        lock.lock();
        access->isDone = true;
        m_isSilent = false;
        m_changed.notify_all();
    }
    lock.unlock();
    lose();
}

bool RemoteCamera::isLinkAlive()
{
    try {
        return m_link->isAlive();
    } catch (...) {
        return false;
    }
}

void RemoteCamera::perform(Access &access)
{
    try {
        if (access.isWrite)
            m_link->write(access.bytes.data(), access.address, std::uint32_t(access.bytes.size()));
        else
            m_link->read(access.bytes.data(), access.address, std::uint32_t(access.bytes.size()));
    } catch (const LinkError &error) {
        if (error.kind() == LinkError::Kind::Denied)
            access.failure = std::make_exception_ptr(GenICam::AccessException(error.what(), __FILE__, __LINE__));
        else if (error.kind() == LinkError::Kind::Silent)
            access.failure = std::make_exception_ptr(GenICam::TimeoutException(error.what(), __FILE__, __LINE__));
        else
            access.failure = std::make_exception_ptr(GenICam::RuntimeException(error.what(), __FILE__, __LINE__));
    } catch (const std::exception &error) {
        access.failure = std::make_exception_ptr(GenICam::RuntimeException(error.what(), __FILE__, __LINE__));
    } catch (...) {
        access.failure = std::make_exception_ptr(GenICam::RuntimeException("The access failed", __FILE__, __LINE__));
    }
}

void RemoteCamera::lose()
{
    m_link.reset();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = State::Lost;
        for (const std::shared_ptr<Access> &access : m_waiting) {
            access->failure =
                std::make_exception_ptr(GenICam::AccessException("The camera is not connected", __FILE__, __LINE__));
            access->isDone = true;
        }
        m_waiting.clear();
    }
    m_changed.notify_all();
    raise(OrvCam::EventDeviceDisconnected);
}

void RemoteCamera::raise(std::uint32_t eventId)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const std::shared_ptr<ConnectionListener> listener = m_listener.lock();
    lock.unlock(); // applications are called
    if (listener)
        listener->raise(eventId);
}

} // namespace OrvCameraApi
