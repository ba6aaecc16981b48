// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QMainWindow>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigPrivate;

/**
 * The configuration window of a camera: its status, and buttons that open the feature dialogs.
 *
 * Size, frame rate, frame time, exposure time and temperature are read once a second. A camera with two frame settings
 * has a column for each. When both become in use, the window selects the other frame once, reads it, and selects the
 * former one again; after that it only reads the frame that is selected. It writes nothing else, except what the user
 * sets in the dialogs.
 *
 * The user can connect the window to another camera, and disconnect it. The window notices within a second that a
 * camera is lost, or back again; meanwhile the window and its dialogs have no camera.
 *
 * GUI thread only; events and reports of the camera may come on any thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfig : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * Shows \a device, as for SetDevice(). If it is null, the user is asked for a camera in a modal dialog, and other
     * events are processed until that is answered; without an answer the window has no camera. \a parent owns the
     * window and may be null; if it goes while the user is asked, the window stays without it.
     */
    explicit OrvCamConfig(OrvCam::Device *device, QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    /** Releases a device, and a camera system, that the user's choice has opened. */
    ~OrvCamConfig() override;

    /**
     * Shows \a device from now on, or nothing if it is null, and lets the former device go. A device that is given here
     * stays the caller's and has to live until the window is given another one, or none, or is destroyed. The former
     * one is released if the user had chosen it. The same device again is only read again.
     *
     * The user may have let a given device go: then the window does not use it any more, and it is still the caller's.
     */
    void SetDevice(OrvCam::Device *device);

    /** The device that is shown, which may be lost at present; null when there is none. */
    OrvCam::Device *device() const;

Q_SIGNALS:
    /**
     * Another device is shown, or none (null), by SetDevice() or by the user's choice. The former one may be released
     * already. A camera that is lost and comes back stays the same device. A slot may destroy the window.
     */
    void deviceChanged(OrvCam::Device *device);

protected:
    void showEvent(QShowEvent *event) override;

    /** Closes the dialogs as well. */
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigPrivate> d;
};

} // namespace OrvGui
