#pragma once

#include "eventhub.h"
#include "paramarray.h"

#include <GenApi/IPort.h>

#include <memory>

namespace OrvCameraApi {

class Camera;

/** What one opened device holds of its camera: the way to its registers, its parameters, its event callbacks. */
class DeviceSession
{
public:
    /** Throws when the camera's description cannot be used. */
    DeviceSession(std::shared_ptr<Camera> camera, bool readOnly);
    ~DeviceSession();

    EventHub &events() { return m_events; }
    ParamArray &parameters() { return *m_parameters; }
    const Camera &camera() const { return *m_camera; }

    /** The camera is back: what was kept of its registers is worth nothing. */
    void invalidate();

private:
    class Port;

    const std::shared_ptr<Camera> m_camera;
    EventHub m_events;
    const std::unique_ptr<Port> m_port;
    const std::unique_ptr<ParamArray> m_parameters;
};

} // namespace OrvCameraApi
