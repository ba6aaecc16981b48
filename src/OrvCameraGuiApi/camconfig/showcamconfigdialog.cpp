#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/windows/callerswindow.h>

namespace OrvGui {

/** The window goes at the end, intentionally. */
template <typename Window>
static void show(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    if (!ensureApplication())
        return;
    Window window(device, widgetOf(parentWindowId));
    showInFrontOf(window, parentWindowId);
}

} // namespace OrvGui

void ShowCamConfigDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfig>(device, parentWindowId);
}

void ShowColorDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigColorDialog>(device, parentWindowId);
}

void ShowFrameABDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigColorDialog>(device, parentWindowId); // not Frame A/B, intentionally
}

void ShowOutputDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigOutputDialog>(device, parentWindowId);
}

void ShowPulseDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigPulseDialog>(device, parentWindowId);
}

void ShowStrobeDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigStrobeDialog>(device, parentWindowId);
}

void ShowTriggerDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show<OrvGui::OrvCamConfigTriggerDialog>(device, parentWindowId);
}
