#include "genapierror.h"
#include "simdevice.h"
#include "simdeviceinfo.h"
#include "simsystem.h"

#include <OrvCameraGuiApi/camera_api/orvcam.h>

OrvCam::System *OrvCam_GetSystem()
{
    return OrvCameraApi::SimSystem::acquire();
}

OrvCam::Device *OrvCam_CreateDevice(OrvCam::DeviceInfo *deviceInfo, std::int32_t, OrvCamErr *err)
{
    // Every camera here can be controlled by several programs; the access mode makes no difference.
    if (const auto *const info = dynamic_cast<OrvCameraApi::SimDeviceInfo *>(deviceInfo))
        return OrvCameraApi::SimDevice::open(*info, err);
    OrvCameraApi::tell(err, OrvCamErr_InvalidArgument);
    return nullptr;
}
