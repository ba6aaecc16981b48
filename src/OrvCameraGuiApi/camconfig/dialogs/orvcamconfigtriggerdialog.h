// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate;

/**
 * The trigger of a camera: whether triggering is on, its source, edge and debounce time, and a button that triggers.
 *
 * The lists are enabled exactly while triggering is on, the button while the source is also "Software", even if the
 * features cannot be written; then nothing is written.
 *
 * A change is written to the camera at once, and a report of the camera is shown at once. Features that declare a
 * polling time are polled while the dialog is shown. A write that the camera refuses brings a message box.
 *
 * Return commits a value and does nothing else; Escape closes. GUI thread only; reports of the camera may come on any
 * thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfigTriggerDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device as for SetDevice(); \a parent owns the dialog and may be null. */
    explicit OrvCamConfigTriggerDialog(OrvCam::Device *device, QWidget *parent = nullptr);
    ~OrvCamConfigTriggerDialog() override;

    /**
     * Shows \a device, or nothing if it is null. False when it has no parameters to show; the dialog is disabled then.
     * The device stays the caller's and has to live until the dialog is given another one, or none, or is destroyed.
     */
    bool SetDevice(OrvCam::Device *device);

Q_SIGNALS:
    /** The dialog is about to close, by its title bar, by Escape or by close(). */
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigTriggerDialogPrivate> d;
};

} // namespace OrvGui
