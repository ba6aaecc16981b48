// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/privateslotforwarder.h>

namespace OrvGui {

PrivateSlotForwarder::PrivateSlotForwarder(OrvCameraSelectorDialogPrivate *dialog)
    : d(dialog)
    , m_events([this](Event) { Q_EMIT systemChanged(); })
{
}

void PrivateSlotForwarder::notify()
{
    m_events.reporter().report(SystemChanged);
}

} // namespace OrvGui
