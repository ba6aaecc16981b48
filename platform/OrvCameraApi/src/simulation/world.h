// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "eventthread.h"
#include "locked.h"
#include "stallpoint.h"

#include <OrvCameraApi/simulation.h>

#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

class Camera;
class HostInterface;

/** Everything that is simulated in this process. Any thread may use it. */
class World final : public Backend
{
public:
    using Hosts = std::vector<std::shared_ptr<HostInterface>>;

    struct State
    {
        Hosts hosts;
        bool isAvailable = true;
        OrvSim::Lists interfaceLists = OrvSim::Lists::Normal;
    };

    /** A camera and its interface; both null when there is none. */
    struct Place
    {
        std::shared_ptr<HostInterface> host;
        std::shared_ptr<Camera> camera;
    };

    static World &instance();

    bool isAvailable() const override { return m_state.copy().isAvailable; }
    std::optional<Interfaces> interfaces() const override;

    /** All interfaces, plugged in or not. */
    Hosts hosts() const { return m_state.copy().hosts; }

    std::shared_ptr<HostInterface> findInterface(const std::string &name) const;
    Place findDevice(const std::string &name) const;

    /** False when the control name is empty or in use. */
    bool add(const OrvSim::InterfaceSpec &spec);

    /**
     * False when the control name is empty or in use, or there is no such interface. Throws when the description or a
     * statement cannot be used.
     */
    bool add(const std::string &interfaceName, const OrvSim::DeviceSpec &spec);

    bool remove(const std::string &name);
    bool setPluggedIn(const std::string &name, bool pluggedIn);

    /** Unplugs and forgets everything, without events, and ends all stalls and faults. */
    void clear();

    Locked<State> &state() { return m_state; }
    StallPoint &stallPoint(OrvSim::Call call);
    EventThread &events() { return m_events; }

private:
    World();
    ~World() override;

    bool isNameRefused(const std::string &name) const;
    void setPluggedIn(Camera &camera, bool pluggedIn);
    void setPluggedIn(HostInterface &host, bool pluggedIn);

    Locked<State> m_state;
    StallPoint m_enumerationStall;
    StallPoint m_forceIpStall;
    EventThread m_events;
};

} // namespace OrvCameraApi
