// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "eventhub.h"
#include "lazyparameters.h"

#include <memory>
#include <mutex>
#include <vector>

namespace OrvCameraApi {

class StreamCore;

/**
 * The inside of an open device: its connection, its parameters, its event callbacks, its streams. Shared, because a
 * callback may release the device while the session still delivers the event, and a stream may still be stopping.
 */
class Session final : public ConnectionListener
{
public:
    static std::shared_ptr<Session> start(std::unique_ptr<Connection> connection);

    explicit Session(std::unique_ptr<Connection> connection);

    EventHub &events() { return m_events; }
    LazyParameters &parameters() { return m_parameters; }
    Connection &connection() { return *m_connection; }
    OpeningProgress progress() const { return m_connection->progress(); }

    /** One that comes after closeStreams() is closed at once. */
    void add(const std::shared_ptr<StreamCore> &stream);

    /**
     * No stream begins to write after this. What a camera has not answered within a second may still be under way; so
     * may what a callback of this thread, or a holder of the node map's lock, has interrupted.
     */
    void closeStreams();

    void prepareReturn() override;
    void raise(std::uint32_t eventId) override;

private:
    std::vector<std::shared_ptr<StreamCore>> streams();

    const std::unique_ptr<Connection> m_connection;
    EventHub m_events;
    LazyParameters m_parameters;
    std::mutex m_mutex;
    std::vector<std::weak_ptr<StreamCore>> m_streams;
    bool m_isClosed = false; ///< for streams
};

} // namespace OrvCameraApi
