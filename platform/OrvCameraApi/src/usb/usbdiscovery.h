// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace OrvCameraApi {

/** A USB3 Vision camera that is plugged in. The texts are UTF-8. */
struct UsbCamera
{
    std::string id; ///< for opening it
    std::string vendor;
    std::string model;
    std::string serialNumber;
};

/**
 * Looks for USB3 Vision cameras, with a thread of its own, as long as this object lives. Any thread may use it; nothing
 * waits for the bus.
 */
class UsbDiscovery
{
public:
    struct Found
    {
        std::vector<UsbCamera> cameras;
        std::string problem; ///< why a camera may be missing and what can be done, for people
    };

    /** What is plugged in now. May take a moment, and may still be running when this object has gone. */
    using List = std::function<Found()>;

    UsbDiscovery(List list, std::chrono::milliseconds period);
    ~UsbDiscovery();
    UsbDiscovery(const UsbDiscovery &) = delete;
    UsbDiscovery &operator=(const UsbDiscovery &) = delete;

    /** What has been found last. */
    Found found() const;

    /** From now on nobody looks, and there is no problem. The cameras that are known stay. */
    void retire();

    /** The next look begins at once. */
    void lookNow();

private:
    struct Search;

    const std::shared_ptr<Search> m_search; ///< shared with the thread
    const std::shared_ptr<std::atomic<bool>> m_hasEnded = std::make_shared<std::atomic<bool>>(false); ///< the thread
    std::thread m_thread;
};

} // namespace OrvCameraApi
