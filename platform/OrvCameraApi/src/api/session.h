#pragma once

#include "backend.h"
#include "eventhub.h"
#include "lazyparameters.h"

#include <memory>

namespace OrvCameraApi {

/**
 * The inside of an open device: its connection, its parameters, its event callbacks. Shared, because a callback may
 * release the device while the session still delivers the event.
 */
class Session final : public ConnectionListener
{
public:
    static std::shared_ptr<Session> start(std::unique_ptr<Connection> connection);

    explicit Session(std::unique_ptr<Connection> connection);

    EventHub &events() { return m_events; }
    LazyParameters &parameters() { return m_parameters; }
    OpeningProgress progress() const { return m_connection->progress(); }

    void prepareReturn() override { m_parameters.invalidate(); }
    void raise(std::uint32_t eventId) override { m_events.fire(eventId); }

private:
    const std::unique_ptr<Connection> m_connection;
    EventHub m_events;
    LazyParameters m_parameters;
};

} // namespace OrvCameraApi
