// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Asks for a camera and shows its feature tree with nothing but the C functions, which need no Qt header. They make the
// Qt application object; all that is left to do is to let it process its events.

#include <OrvCameraGuiApi/device_selection/selectcamera.h>
#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>
#include <OrvCameraGuiApi/windows/processevents.h>

namespace {

int show(OrvCam::DeviceInfo &info)
{
    OrvCam::Device *const camera = OrvCam_CreateDevice(&info, OrvCam::DeviceAccessControl, nullptr);
    if (!camera)
        return 1;
    OrvGui::IOrvGenParamTreeView *const view =
        CreateGenParamTreeViewForArrayA(camera->GetCameraParameters(nullptr), info.GetDisplayName(), 0);
    if (!view) // no display
        return 1;
    view->setVisibility(OrvGui::Expert);
    view->setPollingTime(500);
    view->enablePolling(true);
    while (OrvProcessEvents(100)) {
        // What the program does besides; here nothing. The view is open as long as the user wants.
    }
    DestroyGenParamTreeView(view);
    camera->Release();
    return 0;
}

} // namespace

int main()
{
    OrvCam::System *const system = OrvCam_GetSystem();
    if (!system)
        return 1;
    OrvCam::DeviceInfo *const info = SelectCameraA(system, "Select camera", 0, true);
    const int result = info ? show(*info) : 0;
    system->Release();
    return result;
}
