// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigFrameABDialogPrivate;

/**
 * The image frames of a camera that can alternate between two settings of them, A and B: which frames are taken, and
 * for each its exposure, period, area, gain, decimation and dynamic range.
 *
 * Exposure is set in lines and clocks, as the camera counts it, or as a time; digital gain, which the camera keeps in
 * two features, as one number. One of the two frames is shown at a time: the one that the camera has selected. A frame
 * mode that takes one frame only selects it.
 *
 * A change is written to the camera at once, and a report of the camera is shown at once. Features that declare a
 * polling time are polled while the dialog is shown. A write that the camera refuses brings a message box. Controls
 * of features that the camera lacks or locks are disabled.
 *
 * Return commits a value and does nothing else; Escape closes. GUI thread only; reports of the camera may come on any
 * thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfigFrameABDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device as for SetDevice(); \a parent owns the dialog and may be null. */
    explicit OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent = nullptr);
    ~OrvCamConfigFrameABDialog() override;

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
    const QScopedPointer<OrvCamConfigFrameABDialogPrivate> d;
};

} // namespace OrvGui
