// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QImage>

#include <future>
#include <memory>

class QString;

namespace OrvStreams {
struct Frame;
} // namespace OrvStreams

/** Makes an image with all bits of a frame, on another thread, which then lets go of the frame. On the GUI thread. */
std::shared_future<QImage> imageToKeep(std::shared_ptr<const OrvStreams::Frame> frame);

/**
 * Writes a PNG file; returns why that failed, empty otherwise. A file that is there stays as it is until the new one is
 * complete, except in a directory that may not be written to: there it is overwritten, as is what is no regular file.
 * Waits for whoever reads a pipe.
 */
QString savePng(const QImage &image, const QString &path);
