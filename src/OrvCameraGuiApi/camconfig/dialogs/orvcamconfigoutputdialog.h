// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigOutputDialogPrivate;

/**
 * The image on its way out of the camera: pixel format, look-up table, correction of defect and hot pixels, mirroring,
 * test pattern.
 *
 * A change is written to the camera at once, and a report of the camera is shown at once. Features that declare a
 * polling time are polled while the dialog is shown. A write that the camera refuses brings a message box. Controls
 * of features that the camera lacks or locks are disabled.
 *
 * Return commits a value and does nothing else; Escape closes. GUI thread only; reports of the camera may come on any
 * thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfigOutputDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device as for SetDevice(); \a parent owns the dialog and may be null. */
    explicit OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent = nullptr);
    ~OrvCamConfigOutputDialog() override;

    /**
     * Shows \a device, or nothing if it is null. False when it has no parameters to show; the dialog is disabled then.
     * The device stays the caller's and has to live until the dialog is given another one, or none, or is destroyed.
     */
    bool SetDevice(OrvCam::Device *device);

Q_SIGNALS:
    /** The dialog is about to close, by its title bar, by Escape or by close(). */
    void closing();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigOutputDialogPrivate> d;
};

} // namespace OrvGui
