// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "framebuffers.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <vector>

namespace OrvCameraApi {

namespace {

constexpr std::size_t mostBytes = std::size_t(512) << 20;
constexpr std::size_t mostFrames = 6;

} // namespace

class FrameBuffers::Store
{
public:
    std::unique_ptr<BufferedFrame> take(std::size_t size)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_inUse >= mostFrames || size > mostBytes - std::min(m_bytesInUse, mostBytes))
            return nullptr;
        std::unique_ptr<BufferedFrame> frame;
        if (!m_free.empty() && m_free.back()->size == size) {
            frame = std::move(m_free.back());
            m_free.pop_back();
        } else {
            m_free.clear(); // they are as large as frames were until now
            frame = make(size);
        }
        m_inUse += frame ? 1 : 0;
        m_bytesInUse += frame ? size : 0;
        return frame;
    }

    void giveBack(std::unique_ptr<BufferedFrame> frame)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_inUse;
        m_bytesInUse -= frame->size;
        if (m_free.empty() || m_free.back()->size == frame->size)
            m_free.push_back(std::move(frame));
    }

private:
    static std::unique_ptr<BufferedFrame> make(std::size_t size)
    {
        auto frame = std::make_unique<BufferedFrame>();
        frame->bytes.reset(new (std::nothrow) std::uint8_t[size]); // not filled, for it will be
        frame->data = frame->bytes.get();
        frame->size = size;
        return frame->bytes ? std::move(frame) : nullptr;
    }

    std::mutex m_mutex;
    std::vector<std::unique_ptr<BufferedFrame>> m_free; ///< all of one size
    std::size_t m_inUse = 0;
    std::size_t m_bytesInUse = 0;
};

FrameBuffers::FrameBuffers()
    : m_store(std::make_shared<Store>())
{
}

std::shared_ptr<BufferedFrame> FrameBuffers::take(std::size_t size)
{
    std::unique_ptr<BufferedFrame> frame = m_store->take(size);
    if (!frame)
        return nullptr;
    return {frame.release(),
            [store = m_store](BufferedFrame *used) { store->giveBack(std::unique_ptr<BufferedFrame>(used)); }};
}

} // namespace OrvCameraApi
