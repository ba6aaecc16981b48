// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "picturefile.h"

#include "picturefeed.h"
#include "picturethreads.h"
#include "pixelformat.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

#include <utility>

namespace {

QString writePng(const QImage &image, QFileDevice &file)
{
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    QImageWriter writer(&file, "png");
    if (writer.write(image))
        return {};
    return file.error() != QFileDevice::NoError ? file.errorString() : writer.errorString();
}

} // namespace

std::shared_future<QImage> imageToKeep(std::shared_ptr<const OrvStreams::Frame> frame)
{
    auto promise = std::make_shared<std::promise<QImage>>();
    std::shared_future<QImage> future = promise->get_future();
    inPictureThread([promise, frame = std::move(frame)]() mutable {
        QImage image = convertPicture(rawPicture(frame.get()), Depth::Full).image;
        frame.reset();
        promise->set_value(std::move(image));
    });
    return future;
}

QString savePng(const QImage &image, const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        QFile file(path);
        QString failure = writePng(image, file);
        if (failure.isEmpty() && !file.flush())
            failure = file.errorString();
        return failure;
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // a file that may be written in a directory that may not
    const QString failure = writePng(image, file);
    if (!failure.isEmpty())
        file.cancelWriting();
    const bool isSaved = file.commit();
    return failure.isEmpty() && !isSaved ? file.errorString() : failure;
}
