// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerawatch.h"

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>

CameraWatch::CameraWatch(OrvCam::Device *device, QObject *parent)
    : QObject(parent)
    , m_device(device)
{
    if (!m_device)
        return;
    m_device->RegisterEvent(OrvCam::EventDeviceDisconnected, changed, this);
    m_device->RegisterEvent(OrvCam::EventDeviceConnected, changed, this);
    if (OrvTransports::progressOf(*m_device).step == OrvTransports::Step::Lost)
        tell(); // since it was opened
}

CameraWatch::~CameraWatch()
{
    if (!m_device)
        return;
    m_device->UnregisterEvent(OrvCam::EventDeviceDisconnected, changed, this);
    m_device->UnregisterEvent(OrvCam::EventDeviceConnected, changed, this);
}

void CameraWatch::changed(const void *, unsigned long, void *context)
{
    static_cast<CameraWatch *>(context)->tell();
}

/** On any thread. What counts is how the camera is when the GUI thread gets to it. */
void CameraWatch::tell()
{
    const auto tellNow = [this] {
        Q_EMIT reachableChanged(OrvTransports::progressOf(*m_device).step != OrvTransports::Step::Lost);
    };
    QMetaObject::invokeMethod(this, tellNow, Qt::QueuedConnection);
}
