// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/selectcamera.h>

#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <QPointer>

namespace OrvGui {

OrvCam::DeviceInfo *SelectCamera(OrvCam::System *system, const QString &title, unsigned long parentWindowId, bool poll)
{
    if (!ensureApplication())
        return nullptr;
    // On the heap: the parent may take it along while it runs.
    const QPointer<OrvCameraSelectorDialog> dialog =
        new OrvCameraSelectorDialog(system, widgetOf(parentWindowId), poll);
    dialog->setWindowTitle(title);
    dialog->setModal(true);
    showInFrontOf(*dialog, parentWindowId);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    OrvCam::DeviceInfo *const camera = dialog && accepted ? dialog->selectedCamera() : nullptr;
    delete dialog;
    return camera;
}

} // namespace OrvGui

OrvCam::DeviceInfo *SelectCameraA(OrvCam::System *system, const char *title, unsigned long parentWindowId, bool poll)
{
    return OrvGui::SelectCamera(system, titleFrom(title), parentWindowId, poll);
}

OrvCam::DeviceInfo *SelectCameraW(OrvCam::System *system, const wchar_t *title, unsigned long parentWindowId, bool poll)
{
    return OrvGui::SelectCamera(system, titleFrom(title), parentWindowId, poll);
}
