// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>

#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>
#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <memory>

namespace OrvGui {

/** Destroys the window when it returns, intentionally. */
template <typename Make>
static void show(std::uint64_t parentWindowId, const Make &make)
{
    if (!ensureApplication())
        return;
    const std::unique_ptr<QWidget> window(make(widgetOf(parentWindowId)));
    showInFrontOf(*window, parentWindowId);
}

void showFeatureDialog(const char *kind, OrvCam::Device *device, std::uint64_t parentWindowId)
{
    for (const FeatureDialog &dialog : featureDialogs()) {
        if (qstrcmp(dialog.kind, kind) == 0)
            show(parentWindowId, [&](QWidget *parent) { return dialog.make(device, parent); });
    }
}

} // namespace OrvGui

void ShowCamConfigDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::show(parentWindowId, [=](QWidget *parent) { return new OrvGui::OrvCamConfig(device, parent); });
}
