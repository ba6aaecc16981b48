// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "remotecamera.h"

#include <memory>
#include <string>
#include <utility>

namespace OrvCameraApi {

/** A remote camera that is open in this process. Closed when the last connection to it goes. */
class OpenRemoteCamera
{
public:
    OpenRemoteCamera(RemoteCamera::Open open, const RemoteCamera::Patience &patience)
        : m_camera(RemoteCamera::start(std::move(open), patience))
    {
    }
    ~OpenRemoteCamera() { RemoteCamera::close(m_camera); }
    OpenRemoteCamera(const OpenRemoteCamera &) = delete;
    OpenRemoteCamera &operator=(const OpenRemoteCamera &) = delete;

    RemoteCamera &camera() const { return *m_camera; }

private:
    const std::shared_ptr<RemoteCamera> m_camera;
};

/**
 * The remote cameras that are open in this process, by a key for each camera. A camera has one link, however often it
 * is listed and opened: it would be its own competitor.
 */
class OpenRemoteCameras
{
public:
    /** The camera if it is open, or null. */
    static std::shared_ptr<OpenRemoteCamera> find(const std::string &key);

    /** The same, or opens it, as soon as its former link is gone. */
    static std::shared_ptr<OpenRemoteCamera> open(const std::string &key, const RemoteCamera::Open &open,
                                                  const RemoteCamera::Patience &patience);
};

/** An application's connection to a remote camera; all of a process share one link. */
class RemoteConnection final : public Connection
{
public:
    explicit RemoteConnection(std::shared_ptr<OpenRemoteCamera> open)
        : m_open(std::move(open))
    {
    }

    std::shared_ptr<GenApi::INodeMap> makeNodeMap() override { return camera().takeNodeMap(); }
    bool isConnected() const override { return camera().isConnected(); }
    OpeningProgress progress() const override { return {camera().state(), camera().failure()}; }
    void setListener(std::weak_ptr<ConnectionListener> listener) override { camera().addListener(std::move(listener)); }
    bool givesFrames() const override { return true; }
    std::unique_ptr<FrameSource> openFrames(const std::function<bool()> &isWanted) override
    {
        return camera().openFrames(isWanted);
    }

private:
    RemoteCamera &camera() const { return m_open->camera(); }

    const std::shared_ptr<OpenRemoteCamera> m_open;
};

} // namespace OrvCameraApi
