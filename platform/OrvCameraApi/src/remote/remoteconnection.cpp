// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "remoteconnection.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCameraApi {

namespace {

using Ending = std::shared_ptr<const std::atomic<bool>>;

struct Slot
{
    std::weak_ptr<OpenRemoteCamera> camera;
    std::vector<Ending> endings; ///< of the links until now: one that is given up early ends before those before it

    /** Whether nobody needs it any more. */
    bool isOver()
    {
        endings.erase(
            std::remove_if(endings.begin(), endings.end(), [](const Ending &ending) { return ending->load(); }),
            endings.end());
        return endings.empty() && camera.expired();
    }
};

struct Slots
{
    std::mutex mutex;
    std::map<std::string, Slot> byKey;
};

Slots &slots()
{
    static Slots slots;
    return slots;
}

/** A link that is being closed still controls the camera, and would count as another program. */
void waitFor(const std::atomic<bool> &hasEnded, const IsWanted &isWanted)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (!hasEnded && isWanted() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(10ms);
}

} // namespace

std::shared_ptr<OpenRemoteCamera> OpenRemoteCameras::find(const std::string &key)
{
    const std::lock_guard<std::mutex> lock(slots().mutex);
    const auto slot = slots().byKey.find(key);
    return slot != slots().byKey.end() ? slot->second.camera.lock() : nullptr;
}

std::shared_ptr<OpenRemoteCamera> OpenRemoteCameras::open(const std::string &key, const RemoteCamera::Open &open,
                                                          const RemoteCamera::Patience &patience)
{
    const std::lock_guard<std::mutex> lock(slots().mutex);
    std::map<std::string, Slot> &byKey = slots().byKey;
    for (auto former = byKey.begin(); former != byKey.end();)
        former = former->second.isOver() ? byKey.erase(former) : std::next(former);
    Slot &slot = byKey[key];
    std::shared_ptr<OpenRemoteCamera> camera = slot.camera.lock();
    std::vector<Ending> formers = slot.endings;
    if (camera)
        formers.erase(std::remove(formers.begin(), formers.end(), camera->camera().hasEnded()), formers.end());
    const auto openAfterwards = [open, formers](const IsWanted &isWanted, const IsFetching &isFetching) {
        for (const Ending &former : formers)
            waitFor(*former, isWanted);
        requireWanted(isWanted);
        return open(isWanted, isFetching);
    };
    if (camera) {
        camera->camera().setOpen(openAfterwards); // may know the camera at another address by now
    } else {
        camera = std::make_shared<OpenRemoteCamera>(openAfterwards, patience);
        slot.camera = camera;
        slot.endings.push_back(camera->camera().hasEnded());
    }
    return camera;
}

} // namespace OrvCameraApi
