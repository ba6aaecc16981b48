// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCNamespace.h>

#include <mutex>

namespace GENAPI_NAMESPACE {

/** A lock that the thread which holds it may take again. */
class ORV_GENAPI_EXPORT CLock
{
public:
    CLock() = default;
    CLock(const CLock &) = delete;
    CLock &operator=(const CLock &) = delete;

    void Lock() { m_mutex.lock(); }
    void Unlock() { m_mutex.unlock(); }

    /** Takes the lock if that needs no waiting; true when it was taken. */
    bool TryLock() { return m_mutex.try_lock(); }

private:
    std::recursive_mutex m_mutex;
};

/** Holds a lock as long as it lives. */
class AutoLock
{
public:
    explicit AutoLock(CLock &lock)
        : m_lock(lock)
    {
        m_lock.Lock();
    }
    ~AutoLock() { m_lock.Unlock(); }
    AutoLock(const AutoLock &) = delete;
    AutoLock &operator=(const AutoLock &) = delete;

private:
    CLock &m_lock;
};

/** Base of a class \a Object whose methods hold its lock: Lock l(GetLock()). */
template <class Object>
class LockableObject
{
public:
    class Lock
    {
    public:
        explicit Lock(const LockableObject &object)
            : m_lock(object.m_Lock)
        {
            m_lock.Lock();
        }
        Lock(const Lock &) = delete;
        Lock &operator=(const Lock &) = delete;
        ~Lock() { m_lock.Unlock(); }

    private:
        CLock &m_lock;
    };

    Lock GetLock() const { return Lock(*this); }

    mutable CLock m_Lock;
};

} // namespace GENAPI_NAMESPACE
