#pragma once

#include "framebuffers.h"
#include "framesource.h"
#include "picturesettings.h"

#include <atomic>
#include <memory>

namespace OrvCameraApi {

/** The pictures of a simulated camera. */
class SimulatedFrames final : public FrameSource
{
public:
    /** Whether a camera is sending pictures. */
    using Sending = std::atomic<bool>;

    /** Throws if the camera is sending pictures already. */
    explicit SimulatedFrames(std::shared_ptr<Sending> sending);
    ~SimulatedFrames() override;
    SimulatedFrames(const SimulatedFrames &) = delete;
    SimulatedFrames &operator=(const SimulatedFrames &) = delete;

    void prepare(GenApi::INodeMap &map, std::function<void()> wake) override;
    Clock::time_point nextLook() const override { return m_nextLook; }
    Look look() override;

private:
    const std::shared_ptr<Sending> m_sending;
    GenApi::INodeMap *m_map = nullptr;
    FrameBuffers m_buffers;
    Clock::time_point m_next; ///< picture
    Clock::time_point m_nextLook;
    std::uint64_t m_number = 0;
};

} // namespace OrvCameraApi
