// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// The device owns its session and the transport has a weak pointer to it. An event under way keeps the session alive
// when its callback releases the device; a device that is gone is told nothing.
#include "session.h"

#include "streamcore.h"

#include <algorithm>
#include <utility>

namespace OrvCameraApi {

Session::Session(std::unique_ptr<Connection> connection)
    : m_connection(std::move(connection))
    , m_parameters(*m_connection)
{
}

std::shared_ptr<Session> Session::start(std::unique_ptr<Connection> connection)
{
    Connection &started = *connection;
    auto session = std::make_shared<Session>(std::move(connection));
    started.setListener(session);
    return session;
}

void Session::add(const std::shared_ptr<StreamCore> &stream)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isGone = [](const std::weak_ptr<StreamCore> &other) { return other.expired(); };
    m_streams.erase(std::remove_if(m_streams.begin(), m_streams.end(), isGone), m_streams.end());
    m_streams.push_back(stream);
    const bool isClosed = m_isClosed;
    lock.unlock();
    if (isClosed)
        stream->close();
}

std::vector<std::shared_ptr<StreamCore>> Session::streams()
{
    std::vector<std::shared_ptr<StreamCore>> present;
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const std::weak_ptr<StreamCore> &weak : m_streams) {
        if (std::shared_ptr<StreamCore> stream = weak.lock())
            present.push_back(std::move(stream));
    }
    return present;
}

void Session::closeStreams()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isClosed = true;
    }
    for (const std::shared_ptr<StreamCore> &stream : streams())
        stream->close();
}

/** Tells streams as well, for the event of the loss may come later, when the camera is back. */
void Session::prepareReturn()
{
    for (const std::shared_ptr<StreamCore> &stream : streams())
        stream->connectionLost();
    m_parameters.invalidate();
}

void Session::raise(std::uint32_t eventId)
{
    if (eventId == OrvCam::EventDeviceDisconnected && !m_connection->isConnected()) { // not one that is late
        for (const std::shared_ptr<StreamCore> &stream : streams())
            stream->connectionLost();
    }
    m_events.fire(eventId);
}

} // namespace OrvCameraApi
