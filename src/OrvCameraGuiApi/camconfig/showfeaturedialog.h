#pragma once

#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>

namespace OrvGui {

/** What the C function of a feature dialog does; \a kind is one of featureDialogs(). The dialog is gone on return. */
void showFeatureDialog(const char *kind, OrvCam::Device *device, std::uint64_t parentWindowId);

} // namespace OrvGui
