// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraApi/streaming.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace OrvCameraApi {

/** A frame and its bytes. */
struct BufferedFrame : OrvStreams::Frame
{
    std::unique_ptr<std::uint8_t[]> bytes;
};

/**
 * The few buffers of a stream. One comes back when the last pointer to its frame goes, on any thread, and may do so
 * after this object is gone.
 */
class FrameBuffers
{
public:
    FrameBuffers();

    /** A frame with \a size bytes, of any content; null if as many as there may be are in use, or without memory. */
    std::shared_ptr<BufferedFrame> take(std::size_t size);

private:
    class Store;

    const std::shared_ptr<Store> m_store;
};

} // namespace OrvCameraApi
