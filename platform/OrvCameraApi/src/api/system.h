// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "backend.h"
#include "interface.h"
#include "objectlist.h"

#include <mutex>
#include <vector>

namespace OrvCameraApi {

/** The one system of the process, made of all transports. Exists while anyone holds a reference. */
class System final : public OrvCam::System
{
public:
    /**
     * Adds a reference to the system. From now on it lists those of \a backends that are available. Null when none of
     * them is.
     */
    static System *acquire(const std::vector<Backend *> &backends);

    void Release() override;
    OrvCam::InterfaceList *GetInterfaceList(std::uint32_t typeMask) override;

private:
    System();
    ~System() override;

    std::mutex m_mutex;
    std::vector<Backend *> m_backends;
    ObjectsInUse<Interface, BackendInterface> m_interfaces;
};

} // namespace OrvCameraApi
