// The device owns its session and the transport has a weak pointer to it. An event under way keeps the session alive
// when its callback releases the device; a device that is gone is told nothing.
#include "session.h"

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

} // namespace OrvCameraApi
