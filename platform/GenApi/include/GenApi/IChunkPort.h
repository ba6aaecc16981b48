// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPort.h>

namespace GENAPI_NAMESPACE {

/** A port node for data that come with an image. */
struct ORV_GENAPI_EXPORT IChunkPort : virtual public IPort
{
    /** Which of the data are meant, in hexadecimal digits; empty when the description names none. */
    virtual GENICAM_NAMESPACE::gcstring GetChunkID() const = 0;

    /** Whether the data have to be copied, because the image's memory is used again. */
    virtual EYesNo CacheChunkData() const = 0;
};

} // namespace GENAPI_NAMESPACE
