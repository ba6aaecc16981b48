// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QImage>
#include <QString>

#include <cstddef>

/** A picture as a camera has sent it. Lines follow each other without padding, in packed formats even within a byte. */
struct RawPicture
{
    quint32 format = 0; ///< by the PFNC
    quint32 width = 0; ///< pixels
    quint32 height = 0; ///< lines
    const uchar *data = nullptr;
    std::size_t size = 0; ///< bytes at data
};

/** A picture to look at, or to keep. */
struct ConvertedPicture
{
    QImage image; ///< null if nothing can be shown
    QString remark; ///< what is missing, for people; empty if it is complete
};

enum class Depth {
    Shown, ///< 8 bits: Grayscale8 or RGB32
    Full ///< 16 bits for formats with more than 8: Grayscale16 or RGBX64
};

/** The name of a format by the PFNC; its number in hexadecimal if it is not one that can be shown. */
QString pixelFormatName(quint32 format);

/**
 * Converts a picture, on any thread.
 *
 * Zero becomes zero, and the largest value of a format the largest of the image: values with more than 8 bits lose
 * their low ones, or get their high ones repeated below for 16. What a 16-bit word has beyond the bits of its format
 * counts as the largest value. Colors that a Bayer pixel lacks are the rounded means of the neighbors that have them;
 * beyond an edge the picture is mirrored. YUV is BT.601 with the full range. Pixels that \a picture has no data for are
 * black.
 *
 * The image shares the memory of \a reuse where that has the right size and format and nothing else shares it.
 */
ConvertedPicture convertPicture(const RawPicture &picture, Depth depth, QImage &&reuse = QImage());

/** The values of a pixel as the camera has sent them, "R 255 G 0 B 18 (0xFF0012)"; empty if there are none. */
QString pixelText(const RawPicture &picture, int x, int y);
