#pragma once

#include <OrvCameraGuiApi/camera_api/orvcamerr.h>

#include <GenApi/GenApi.h>

namespace OrvCameraApi {

/** Runs \a action, which may throw anything, and tells how it ended. */
template <typename Action>
OrvCamErr errorOf(Action &&action) noexcept
{
    try {
        action();
        return OrvCamErr_Ok;
    } catch (const GenICam::AccessException &) {
        return OrvCamErr_GenICamAccessError;
    } catch (const GenICam::OutOfRangeException &) {
        return OrvCamErr_GenICamOutOfRange;
    } catch (const GenICam::InvalidArgumentException &) {
        return OrvCamErr_GenICamInvalidArgument;
    } catch (...) {
        return OrvCamErr_GenICamGenericError;
    }
}

/** Stores an outcome where the caller wants to know it. */
inline void tell(OrvCamErr *err, OrvCamErr outcome)
{
    if (err)
        *err = outcome;
}

/** Holds the lock of a node map. */
class NodeMapLock
{
public:
    explicit NodeMapLock(const GenApi::INodeMap &map)
        : m_lock(map.GetLock())
    {
        m_lock.Lock();
    }
    ~NodeMapLock() { m_lock.Unlock(); }
    NodeMapLock(const NodeMapLock &) = delete;
    NodeMapLock &operator=(const NodeMapLock &) = delete;

private:
    GenApi::CLock &m_lock;
};

} // namespace OrvCameraApi
