// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "simtest.h"

#include <OrvCameraApi/streaming.h>

#include <GenApi/GenApi.h>

#include <QtTest>

#include <cstdint>
#include <memory>
#include <utility>

namespace SimTest {

/** A camera that is open, and its stream. */
struct StreamedCamera
{
    explicit StreamedCamera(Held<OrvCam::Device> opened)
        : device(std::move(opened))
        , stream(OrvStreams::Stream::create(*device))
    {
    }

    GenApi::INodeMap &map() const { return *device->GetCameraParameters(nullptr)->GetNodeMap(); }
    void set(const char *feature, const char *value) const
    {
        GenApi::CValuePtr(map().GetNode(feature))->FromString(value);
    }
    QByteArray text(const char *feature) const { return GenApi::CValuePtr(map().GetNode(feature))->ToString().c_str(); }

    bool stops(int timeout = 5000) const
    {
        return QTest::qWaitFor([this] { return stream->state() == OrvStreams::State::Stopped; }, timeout);
    }
    bool receives(std::uint64_t frames = 1) const
    {
        const std::uint64_t before = stream->statistics().received;
        return QTest::qWaitFor([&] { return stream->statistics().received >= before + frames; });
    }

    /** The first picture of a run of one. */
    std::shared_ptr<const OrvStreams::Frame> picture() const
    {
        stream->start(1);
        stops(30000); // sanitizers are slow
        return stream->take();
    }

    Held<OrvCam::Device> device;
    std::unique_ptr<OrvStreams::Stream> stream;
};

} // namespace SimTest
