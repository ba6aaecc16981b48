// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCameraSelectorDialogPrivate;

/**
 * Lets a person choose one of the cameras that the camera system finds.
 *
 * A tree shows the interfaces and their devices; two panes show what there is to know about the current ones. What
 * cannot be opened (no access, or an address in another subnet) cannot be chosen either; a GigE Vision camera can be
 * given an address that works. While "Polling" is checked a thread looks once a second for devices that have come or
 * gone; otherwise the button "Rescan" does. Where the system has no thread to give, "Polling" is not checked.
 *
 * The result is read by selectedCamera() after the dialog has been accepted and before it is destroyed:
 * \code
 * OrvGui::OrvCameraSelectorDialog dialog(system, this, true);
 * OrvCam::DeviceInfo *camera = dialog.exec() == QDialog::Accepted ? dialog.selectedCamera() : nullptr;
 * \endcode
 * GUI thread only; the camera system is also asked from the thread that polls, until the dialog is destroyed.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCameraSelectorDialog : public QDialog
{
    Q_OBJECT

public:
    /**
     * Enumerates \a system, which stays the caller's and outlives the dialog; null has no cameras. With \a poll the
     * thread runs from now on.
     */
    explicit OrvCameraSelectorDialog(OrvCam::System *system, QWidget *parent = nullptr, bool poll = false);

    /** Waits for an enumeration that is going on in the thread. */
    ~OrvCameraSelectorDialog() override;

    /**
     * The device that is current in the tree, or null; once the dialog has been accepted, the one that was so then,
     * until it is shown again. Belongs to the camera system.
     */
    OrvCam::DeviceInfo *selectedCamera() const;

    /** Intentionally does nothing. */
    void setSelectedCamera(OrvCam::DeviceInfo *camera);

    bool isPollChecked();

private:
    friend class OrvCameraSelectorDialogPrivate;

    const QScopedPointer<OrvCameraSelectorDialogPrivate> d;
};

} // namespace OrvGui
