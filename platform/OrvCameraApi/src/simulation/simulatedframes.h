// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "framebuffers.h"
#include "framesource.h"
#include "picturesettings.h"

#include <memory>
#include <utility>

namespace OrvCameraApi {

/** The pictures of a simulated camera. */
class SimulatedFrames final : public FrameSource
{
public:
    explicit SimulatedFrames(std::shared_ptr<ReceivingRight::Taken> taken)
        : m_right(std::move(taken))
    {
    }

    void prepare(GenApi::INodeMap &map, std::function<void()> wake) override;
    Clock::time_point nextLook() const override { return m_nextLook; }
    Look look() override;

private:
    const ReceivingRight m_right;
    GenApi::INodeMap *m_map = nullptr;
    FrameBuffers m_buffers;
    Clock::time_point m_next; ///< picture
    Clock::time_point m_nextLook;
    std::uint64_t m_number = 0;
};

} // namespace OrvCameraApi
