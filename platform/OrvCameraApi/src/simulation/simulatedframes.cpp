// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simulatedframes.h"

#include "picture.h"

#include <algorithm>

namespace OrvCameraApi {

using namespace std::chrono_literals;

/** The first picture comes after its time of exposure, as do all. */
void SimulatedFrames::prepare(GenApi::INodeMap &map, std::function<void()>)
{
    m_map = &map;
    m_next = Clock::now() + readPictureSettings(map).period;
    m_nextLook = std::min(m_next, Clock::now() + 100ms);
}

/**
 * The settings are read once for each picture, so that they cannot change while it is made, and between pictures that
 * are far apart, because the rate may change.
 */
FrameSource::Look SimulatedFrames::look()
{
    const PictureSettings settings = readPictureSettings(*m_map);
    const Clock::time_point now = Clock::now();
    m_next = std::min(m_next, now + settings.period);
    if (now < m_next) {
        m_nextLook = std::min(m_next, now + 100ms);
        return {};
    }
    m_next = std::max(m_next + settings.period, now);
    m_nextLook = std::min(m_next, now + 100ms);
    const std::uint64_t number = m_number++;
    const std::shared_ptr<BufferedFrame> frame = m_buffers.take(settings.size);
    if (!frame)
        return {nullptr, 1};
    drawPicture(settings, number, frame->bytes.get());
    frame->pixelFormat = settings.layout.code;
    frame->width = settings.width;
    frame->height = settings.height;
    frame->received = Clock::now();
    return {frame, 0};
}

} // namespace OrvCameraApi
