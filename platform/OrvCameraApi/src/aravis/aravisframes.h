// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "aravispointers.h"
#include "framesource.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

namespace OrvCameraApi {

/** Pictures that Aravis receives, in its buffers. */
class AravisFrames final : public FrameSource
{
public:
    explicit AravisFrames(DevicePointer device);
    ~AravisFrames() override;
    AravisFrames(const AravisFrames &) = delete;
    AravisFrames &operator=(const AravisFrames &) = delete;

    void prepare(GenApi::INodeMap &map, std::function<void()> wake) override;
    Clock::time_point nextLook() const override;
    Look look() override;

private:
    class Buffers;

    static void called(void *self, ArvStreamCallbackType type, ArvBuffer *);
    void pushBuffers(std::size_t size);
    bool hasNewUnderruns();
    std::uint64_t missing(std::uint64_t id);
    std::shared_ptr<OrvStreams::Frame> frame(std::shared_ptr<ArvBuffer> buffer) const;

    const DevicePointer m_device;
    std::function<void()> m_wake;
    std::unique_ptr<ArvStream, Unref> m_stream;
    std::shared_ptr<Buffers> m_buffers;
    bool m_isMore = false; ///< Aravis has further buffers
    std::uint64_t m_underruns = 0; ///< counted until now
    std::uint64_t m_unnamed = 0; ///< frames counted as lost since the last one that had an identifier
    std::uint64_t m_lastId = 0; ///< 0 at first
};

} // namespace OrvCameraApi
