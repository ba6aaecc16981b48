// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picturefeed.h"

#include "camerasource.h"
#include "picturethreads.h"
#include "pixelformat.h"

#include <QCoreApplication>
#include <QEvent>

#include <condition_variable>
#include <mutex>
#include <utility>

/** What the feed and its thread share. The mutex is held for moments, and not while the stream is called. */
class FeedCore
{
public:
    FeedCore(std::unique_ptr<OrvStreams::Stream> stream, std::shared_ptr<const CameraSource> camera, PictureFeed *feed)
        : m_camera(std::move(camera))
        , m_stream(std::move(stream))
        , m_feed(feed)
    {
        m_stream->setListener([this] { wake(); });
    }

    /** The thread. The stream ends here, and perhaps the camera, which may wait for an answer. */
    void run()
    {
        Lock lock(m_mutex);
        while (true) {
            m_changed.wait(lock, [this] { return m_isEnding || m_isCalled || !m_toCount.isNull(); });
            if (m_isEnding)
                break;
            m_isCalled = false;
            m_isBehind = m_picture.has_value();
            if (!m_isBehind)
                convertNext(lock);
            lock.unlock();
            m_stream->state(); // so that the listener is called again
            lock.lock();
            if (!m_toCount.isNull())
                countNext(lock);
            post();
        }
        lock.unlock();
        m_stream->setListener(nullptr);
        m_stream.reset();
        m_camera.reset();
    }

    void end()
    {
        m_stream->stop();
        const Lock lock(m_mutex);
        m_feed = nullptr;
        m_isEnding = true;
        m_changed.notify_all();
    }

    OrvStreams::Stream &stream() { return *m_stream; }

    std::optional<Picture> takePicture()
    {
        const Lock lock(m_mutex);
        if (!m_picture)
            return std::nullopt;
        if (std::exchange(m_isBehind, false))
            call();
        return std::exchange(m_picture, std::nullopt);
    }

    void giveBack(QImage &&image)
    {
        const Lock lock(m_mutex);
        m_spare.swap(image);
    }

    void count(const QImage &image)
    {
        const Lock lock(m_mutex);
        m_toCount = image;
        m_changed.notify_all();
    }

    std::optional<Histogram> takeHistogram()
    {
        const Lock lock(m_mutex);
        return std::exchange(m_histogram, std::nullopt);
    }

    void posted()
    {
        const Lock lock(m_mutex);
        m_isPosted = false;
    }

private:
    using Lock = std::unique_lock<std::mutex>;

    void wake()
    {
        const Lock lock(m_mutex);
        call();
    }

    void call()
    {
        m_isCalled = true;
        m_changed.notify_all();
    }

    void convertNext(Lock &lock)
    {
        QImage spare = std::exchange(m_spare, QImage());
        lock.unlock();
        Picture picture;
        picture.frame = m_stream->take();
        if (picture.frame) {
            ConvertedPicture converted =
                convertPicture(rawPicture(picture.frame.get()), Depth::Shown, std::move(spare));
            picture.image = std::move(converted.image);
            picture.remark = std::move(converted.remark);
        }
        lock.lock();
        if (picture.frame)
            m_picture = std::move(picture);
        else
            m_spare.swap(spare);
    }

    void countNext(Lock &lock)
    {
        QImage image = std::exchange(m_toCount, QImage());
        lock.unlock();
        const Histogram histogram = histogramOf(image);
        image = QImage(); // whoever shares it may use its memory again
        lock.lock();
        m_histogram = histogram;
    }

    /** One event for the GUI thread at a time, whatever happens. */
    void post()
    {
        if (!m_feed || std::exchange(m_isPosted, true))
            return;
        QCoreApplication::postEvent(m_feed, new QEvent(QEvent::User));
    }

    std::shared_ptr<const CameraSource> m_camera; // goes after the stream
    std::unique_ptr<OrvStreams::Stream> m_stream;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    PictureFeed *m_feed; ///< null when it is gone
    bool m_isEnding = false;
    bool m_isCalled = false;
    bool m_isBehind = false; ///< there may be a frame that was not fetched
    bool m_isPosted = false;
    std::optional<Picture> m_picture;
    std::optional<Histogram> m_histogram;
    QImage m_spare;
    QImage m_toCount;
};

RawPicture rawPicture(const OrvStreams::Frame *frame)
{
    if (!frame)
        return {};
    return {frame->pixelFormat, frame->width, frame->height, frame->data, frame->size};
}

PictureFeed::PictureFeed(std::unique_ptr<OrvStreams::Stream> stream, std::shared_ptr<const CameraSource> camera,
                         QObject *parent)
    : QObject(parent)
    , m_core(std::make_shared<FeedCore>(std::move(stream), std::move(camera), this))
{
    inPictureThread([core = m_core] { core->run(); });
}

PictureFeed::~PictureFeed()
{
    m_core->end();
}

OrvStreams::Stream &PictureFeed::stream()
{
    return m_core->stream();
}

std::optional<Picture> PictureFeed::takePicture()
{
    return m_core->takePicture();
}

void PictureFeed::customEvent(QEvent *)
{
    m_core->posted();
    Q_EMIT changed();
}

void PictureFeed::giveBack(QImage &&image)
{
    m_core->giveBack(std::move(image));
}

void PictureFeed::count(const QImage &image)
{
    m_core->count(image);
}

std::optional<Histogram> PictureFeed::takeHistogram()
{
    return m_core->takeHistogram();
}
