#include "camerawatch.h"

#include <OrvCameraApi/transports.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>

CameraWatch::CameraWatch(OrvCam::Device *device, QObject *parent)
    : QObject(parent)
    , m_device(device)
{
    if (!m_device)
        return;
    m_device->RegisterEvent(OrvCam::EventDeviceDisconnected, lost, this);
    m_device->RegisterEvent(OrvCam::EventDeviceConnected, found, this);
    if (OrvTransports::progressOf(*m_device).step == OrvTransports::Step::Lost)
        tell(false); // since it was opened
}

CameraWatch::~CameraWatch()
{
    if (!m_device)
        return;
    m_device->UnregisterEvent(OrvCam::EventDeviceDisconnected, lost, this);
    m_device->UnregisterEvent(OrvCam::EventDeviceConnected, found, this);
}

void CameraWatch::lost(const void *, unsigned long, void *context)
{
    static_cast<CameraWatch *>(context)->tell(false);
}

void CameraWatch::found(const void *, unsigned long, void *context)
{
    static_cast<CameraWatch *>(context)->tell(true);
}

/** On any thread. */
void CameraWatch::tell(bool isReachable)
{
    QMetaObject::invokeMethod(
        this, [this, isReachable] { Q_EMIT reachableChanged(isReachable); }, Qt::QueuedConnection);
}
