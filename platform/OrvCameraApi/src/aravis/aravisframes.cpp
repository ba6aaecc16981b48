// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "aravisframes.h"

#include "genapierror.h"
#include "nodemaplock.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <utility>

namespace OrvCameraApi {

namespace {

constexpr std::int64_t mostBytes = std::int64_t(256) << 20; // of a frame
constexpr std::int64_t mostBuffers = 8;

[[noreturn]] void fail(const std::string &text)
{
    throw LinkError(LinkError::Kind::Failed, text);
}

/** What the camera says that a frame takes. */
std::size_t readPayloadSize(GenApi::INodeMap &map)
{
    std::int64_t size = 0;
    const std::string failure =
        failureOf([&] { size = GenApi::CIntegerPtr(map.GetNode("PayloadSize"))->GetValue(false, true); });
    if (!failure.empty())
        fail("The size of a picture cannot be read: " + failure);
    if (size < 1 || size > mostBytes)
        fail("The camera says that a picture takes " + std::to_string(size) + " bytes");
    return std::size_t(size);
}

bool isComplete(ArvBuffer *buffer)
{
    return arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS;
}

} // namespace

/** The way back for buffers, as long as there is a stream. */
class AravisFrames::Buffers
{
public:
    explicit Buffers(ArvStream *stream)
        : m_stream(stream)
    {
    }

    /** Takes the reference over. */
    void push(ArvBuffer *buffer)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_stream)
            arv_stream_push_buffer(m_stream, buffer);
        else
            g_object_unref(buffer);
    }

    void close()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stream = nullptr;
    }

private:
    std::mutex m_mutex;
    ArvStream *m_stream;
};

AravisFrames::AravisFrames(DevicePointer device)
    : m_device(std::move(device))
{
}

AravisFrames::~AravisFrames()
{
    if (m_buffers)
        m_buffers->close();
}

/** On a thread of Aravis. */
void AravisFrames::called(void *self, ArvStreamCallbackType type, ArvBuffer *)
{
    if (type == ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE)
        static_cast<AravisFrames *>(self)->m_wake();
}

void AravisFrames::prepare(GenApi::INodeMap &map, std::function<void()> wake)
{
    m_wake = std::move(wake);
    const std::size_t size = readPayloadSize(map);
    Failure failure;
    m_stream.reset(arv_device_create_stream(m_device.get(), called, this, &failure.error));
    if (!m_stream)
        fail("Pictures cannot be received: " + failure.text());
    m_buffers = std::make_shared<Buffers>(m_stream.get());
    pushBuffers(size);
    failureOf([&map] { // Aravis may have found that packets of that size do not get through
        const NodeMapLock lock(map);
        if (GenApi::INode *const packetSize = map.GetNode("GevSCPSPacketSize"))
            packetSize->InvalidateNode();
    });
}

void AravisFrames::pushBuffers(std::size_t size)
{
    const std::int64_t count = std::clamp<std::int64_t>(mostBytes / std::int64_t(size), 2, mostBuffers);
    for (std::int64_t i = 0; i < count; ++i) {
        void *const bytes = std::malloc(size);
        if (bytes)
            arv_stream_push_buffer(m_stream.get(), arv_buffer_new_full(size, bytes, bytes, std::free));
        else if (i == 0)
            fail("There is no memory for pictures");
    }
}

FrameSource::Clock::time_point AravisFrames::nextLook() const
{
    return m_isMore ? Clock::now() : Clock::time_point::max();
}

FrameSource::Look AravisFrames::look()
{
    Look look;
    const bool isStarved = hasNewUnderruns();
    ArvBuffer *const popped = arv_stream_try_pop_buffer(m_stream.get());
    gint waiting = 0;
    arv_stream_get_n_buffers(m_stream.get(), nullptr, &waiting);
    m_isMore = popped && waiting > 0;
    if (!popped) {
        if (isStarved && m_unnamed == 0)
            look.lost = m_unnamed = 1; // or more: the identifier of the next one tells
        return look;
    }
    const std::shared_ptr<ArvBuffer> buffer(popped, [buffers = m_buffers](ArvBuffer *used) { buffers->push(used); });
    look.lost += missing(arv_buffer_get_frame_id(popped));
    if (isComplete(popped))
        look.frame = frame(buffer);
    look.lost += look.frame ? 0 : 1;
    return look;
}

/** Whether there was no buffer for something. Aravis counts frames or, of network cameras, packets. */
bool AravisFrames::hasNewUnderruns()
{
    guint64 underruns = 0;
    arv_stream_get_statistics(m_stream.get(), nullptr, nullptr, &underruns);
    return std::exchange(m_underruns, underruns) != underruns;
}

/** Frames before that one of which not even a part has come, as far as they are not counted yet. */
std::uint64_t AravisFrames::missing(std::uint64_t id)
{
    constexpr std::uint64_t period = 0xFFFF; // of short identifiers, which leave 0 out
    const std::uint64_t last = std::exchange(m_lastId, id);
    const std::uint64_t known = std::exchange(m_unnamed, 0);
    if (last == 0 || id == 0)
        return 0;
    const bool isShort = last <= period && id <= period;
    const std::uint64_t way = id > last ? id - last : (isShort ? id + period - last : 0);
    if (way == 0 || way >= period / 2)
        return 0; // the camera counts anew
    m_unnamed = known - std::min(known, way - 1); // a frame that was begun before may end after them
    return way - 1 - (known - m_unnamed);
}

/** Null if the buffer does not hold what it says. Throws for what is no picture at all. */
std::shared_ptr<OrvStreams::Frame> AravisFrames::frame(std::shared_ptr<ArvBuffer> buffer) const
{
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buffer.get());
    if (type != ARV_BUFFER_PAYLOAD_TYPE_IMAGE && type != ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA)
        fail("The camera sends no plain pictures, but data of type " + std::to_string(int(type))
             + "; chunks may have to be switched off");
    gint paddingX = 0;
    gint paddingY = 0;
    arv_buffer_get_image_padding(buffer.get(), &paddingX, &paddingY);
    if (paddingX != 0)
        fail("The camera pads the lines of its pictures, which is not supported");
    auto frame = std::make_unique<OrvStreams::Frame>();
    frame->pixelFormat = std::uint32_t(arv_buffer_get_image_pixel_format(buffer.get()));
    const gint width = arv_buffer_get_image_width(buffer.get());
    const gint height = arv_buffer_get_image_height(buffer.get());
    frame->data = static_cast<const std::uint8_t *>(arv_buffer_get_image_data(buffer.get(), &frame->size));
    if (!frame->data || width < 1 || height < 1)
        return nullptr;
    frame->width = std::uint32_t(width);
    frame->height = std::uint32_t(height);
    const std::uint64_t bits = frame->pixelFormat >> 16 & 0xFF;
    const std::uint64_t pixels = std::uint64_t(frame->width) * frame->height;
    if (pixels > std::uint64_t(mostBytes) * 8 || (pixels * bits + 7) / 8 > frame->size)
        return nullptr;
    frame->received = Clock::now();
    OrvStreams::Frame *const shared = frame.release();
    return {shared, [kept = std::move(buffer)](OrvStreams::Frame *used) { delete used; }};
}

} // namespace OrvCameraApi
