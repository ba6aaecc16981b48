#include "remoteconnection.h"

#include <map>
#include <mutex>
#include <thread>

namespace OrvCameraApi {

namespace {

struct Slot
{
    std::weak_ptr<OpenRemoteCamera> camera;
    std::shared_ptr<const std::atomic<bool>> hasEnded; ///< of the last camera
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
    Slot &slot = slots().byKey[key];
    std::shared_ptr<OpenRemoteCamera> camera = slot.camera.lock();
    if (camera) {
        camera->camera().setOpen(open); // may know the camera at another address by now
    } else {
        const auto openAfterwards = [open, former = slot.hasEnded](const IsWanted &isWanted,
                                                                   const IsFetching &isFetching) {
            if (former)
                waitFor(*former, isWanted);
            requireWanted(isWanted);
            return open(isWanted, isFetching);
        };
        camera = std::make_shared<OpenRemoteCamera>(openAfterwards, patience);
        slot.camera = camera;
        slot.hasEnded = camera->camera().hasEnded();
    }
    return camera;
}

} // namespace OrvCameraApi
