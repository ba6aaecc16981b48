// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace OrvCameraApi {

/** The features that start and stop the acquisition of a camera. One thread uses it. */
class Acquisition
{
public:
    /** Runs an action that writes, or returns false if nothing may be written any more. */
    using Write = std::function<bool(const std::function<void()> &action)>;

    /** \a map outlives this object. */
    Acquisition(GenApi::INodeMap &map, Write write);

    /** Locks the features that acquisition locks, if the camera can do that. */
    void lockFeatures();

    /** Throws if the camera cannot be told to start. */
    void start();

    /**
     * Undoes what was done, all of it, and once; says what has failed. A camera that \a isLost is not told to stop, for
     * when it is back it does something else.
     */
    std::string stop(bool isLost);

    /** The number of frames that the camera sends by itself, 0 for no end. */
    std::uint64_t frameLimit() const;

    /** Whether the camera waits for triggers, so that no time can be told for the next frame. */
    bool isTriggered() const;

    /** How long a picture takes, at most an hour; 0 if that cannot be told. */
    std::chrono::milliseconds frameTime() const;

private:
    double number(const char *feature) const;
    bool isChosen(const char *feature, const char *entry) const;
    bool setLocked(bool locked);
    bool execute(const char *command);

    GenApi::INodeMap &m_map;
    const Write m_write;
    bool m_isLocked = false;
    bool m_isStarted = false;
};

} // namespace OrvCameraApi
