// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraApi/streaming.h>

#include "device.h"
#include "session.h"
#include "streamcore.h"

#include <utility>

namespace OrvStreams {

namespace {

using OrvCameraApi::StreamCore;

class DeviceStream final : public Stream
{
public:
    explicit DeviceStream(std::shared_ptr<StreamCore> core)
        : m_core(std::move(core))
    {
    }
    ~DeviceStream() override { StreamCore::end(m_core); }
    DeviceStream(const DeviceStream &) = delete;
    DeviceStream &operator=(const DeviceStream &) = delete;

    void start(std::uint64_t frames) override { m_core->start(frames); }
    void stop() override { m_core->stop(); }
    State state() const override { return m_core->state(); }
    std::string failure() const override { return m_core->failure(); }
    Statistics statistics() const override { return m_core->statistics(); }
    std::shared_ptr<const Frame> take() override { return m_core->take(); }
    void setListener(std::function<void()> listener) override { m_core->setListener(std::move(listener)); }

private:
    const std::shared_ptr<StreamCore> m_core;
};

} // namespace

std::unique_ptr<Stream> Stream::create(OrvCam::Device &device, std::string *error)
{
    const auto *const open = dynamic_cast<OrvCameraApi::Device *>(&device);
    const std::shared_ptr<OrvCameraApi::Session> session = open ? open->session() : nullptr;
    if (!session || !session->connection().givesFrames()) {
        if (error)
            *error = "This device gives no pictures";
        return nullptr;
    }
    auto core = std::make_shared<StreamCore>(session);
    session->add(core);
    return std::make_unique<DeviceStream>(std::move(core));
}

} // namespace OrvStreams
