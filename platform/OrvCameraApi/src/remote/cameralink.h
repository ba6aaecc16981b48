// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "framesource.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace OrvCameraApi {

/** The failure of a camera link, with a text for people. Crosses the border of the module that links. */
class __attribute__((visibility("default"))) LinkError : public std::runtime_error
{
public:
    enum class Kind {
        Failed, ///< the camera has refused the access
        Denied, ///< another program controls the camera
        Silent, ///< the camera has not answered
        Unwanted ///< nobody waits any more
    };

    LinkError(Kind kind, const std::string &text)
        : std::runtime_error(text)
        , m_kind(kind)
    {
    }

    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/**
 * Whether anyone still waits for what a link is doing. Asked before the next part of it; packets that were lost may be
 * repeated without asking by libraries below.
 */
using IsWanted = std::function<bool()>;

/** Called while a camera is opened, once it has answered: what follows is fetching its description. */
using IsFetching = std::function<void()>;

/** Throws LinkError if nobody waits. */
inline void requireWanted(const IsWanted &isWanted)
{
    if (!isWanted())
        throw LinkError(LinkError::Kind::Unwanted, "Nobody waits for the camera any more");
}

/** Reads an open camera beside its link, without waiting for the thread of that. Any thread may use it, some at once.
 */
class DirectReader
{
public:
    virtual ~DirectReader() = default;

    /**
     * As CameraLink::read(), until \a deadline. False if only the link may read: what the camera keeps for whoever
     * controls it, or all of it.
     */
    virtual bool read(void *buffer, std::uint64_t address, std::uint32_t length,
                      std::chrono::steady_clock::time_point deadline) = 0;
};

/**
 * An open camera at the other end of a wire. Its functions may take seconds; one thread uses them. They throw
 * LinkError.
 */
class CameraLink
{
public:
    virtual ~CameraLink() = default;

    /** The GenICam description that the camera holds, as XML. */
    virtual std::string description() = 0;

    /** Whether another program controls the camera, so that it can only be read. */
    virtual bool isReadOnly() const = 0;

    virtual void read(void *buffer, std::uint64_t address, std::uint32_t length) = 0;
    virtual void write(const void *buffer, std::uint64_t address, std::uint32_t length) = 0;

    /**
     * Whether the link is still good. False as well once the camera would let this link do more or less than before.
     * Asked while there is nothing else to do; may ask the camera.
     */
    virtual bool isAlive() = 0;

    /** The same one each time; null if all is read through the link. It may outlive the link. */
    virtual std::shared_ptr<DirectReader> directReader() { return nullptr; }

    /** What receives the camera's pictures. Another thread uses it, also when this link is gone. */
    virtual std::unique_ptr<FrameSource> openFrames()
    {
        throw LinkError(LinkError::Kind::Failed, "This camera's pictures cannot be received");
    }
};

} // namespace OrvCameraApi
