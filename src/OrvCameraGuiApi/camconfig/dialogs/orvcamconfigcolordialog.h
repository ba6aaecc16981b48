// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigColorDialogPrivate;

/**
 * White balance of a color camera: automatic balance and how fast it follows, the three coefficients, each with a
 * button that sets it to a gain of 1, and the coefficients that the camera uses at the moment.
 *
 * A change is written to the camera at once, and a report of the camera is shown at once. Features that declare a
 * polling time are polled while the dialog is shown. A write that the camera refuses brings a message box. Controls
 * of features that the camera lacks or locks are disabled.
 *
 * Return commits a value and does nothing else; Escape closes. GUI thread only; reports of the camera may come on any
 * thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfigColorDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device as for SetDevice(); \a parent owns the dialog and may be null. */
    explicit OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent = nullptr);
    ~OrvCamConfigColorDialog() override;

    /**
     * Shows \a device, or nothing if it is null. False when it has no parameters to show; all controls are disabled
     * then. The device stays the caller's and has to live until the dialog is given another one, or none, or is
     * destroyed.
     */
    bool SetDevice(OrvCam::Device *device);

Q_SIGNALS:
    /** The dialog is about to close, by its title bar, by Escape or by close(). */
    void closing();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigColorDialogPrivate> d;
};

} // namespace OrvGui
