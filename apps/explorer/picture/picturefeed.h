// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "histogram.h"

#include <OrvCameraApi/streaming.h>

#include <QImage>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class CameraSource;
class FeedCore;
struct RawPicture;

/** A picture to show, and what it was made of. */
struct Picture
{
    std::shared_ptr<const OrvStreams::Frame> frame;
    QImage image; ///< of 8 bits; null if it cannot be shown
    QString remark; ///< for people: what is missing; empty if nothing is
};

/** Null becomes a picture without a format, which cannot be shown. */
RawPicture rawPicture(const OrvStreams::Frame *frame);

/**
 * Receives the frames of a stream and makes pictures of them, on a thread of its own. The next frame is fetched when
 * the picture of the one before has been taken, so that at most two are in use and the newest wins.
 *
 * Nothing here waits for a camera; what is left to do after the destructor is done in the background, and waited for
 * when the application object goes.
 */
class PictureFeed : public QObject
{
    Q_OBJECT

public:
    /** The camera of \a stream is kept until that has ended; for null that is somebody else's business. */
    explicit PictureFeed(std::unique_ptr<OrvStreams::Stream> stream, std::shared_ptr<const CameraSource> camera = {},
                         QObject *parent = nullptr);
    ~PictureFeed() override;

    /** To start, to stop and to ask; frames and listener are not for others. */
    OrvStreams::Stream &stream();

    /** The newest picture, once. */
    std::optional<Picture> takePicture();

    /** An image whose memory may be used again, unless somebody shares it. */
    void giveBack(QImage &&image);

    /** Counts the values of an image; of images that wait for that, the last one wins. */
    void count(const QImage &image);

    /** The newest histogram, once. */
    std::optional<Histogram> takeHistogram();

Q_SIGNALS:
    /** There may be a picture, a histogram, or another state. */
    void changed();

protected:
    void customEvent(QEvent *event) override;

private:
    const std::shared_ptr<FeedCore> m_core;
};
