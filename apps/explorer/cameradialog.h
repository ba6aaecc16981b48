// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <memory>

class CameraSource;

/** The dialog that asks for a camera, with a menu that plugs simulated ones in and out meanwhile. */
class CameraDialog : public OrvGui::OrvCameraSelectorDialog
{
    Q_OBJECT

public:
    explicit CameraDialog(OrvCam::System *system, QWidget *parent = nullptr);

    /**
     * Makes the first camera current whose IP address can be set, and opens the dialog for that; returns when that is
     * closed. False when there is no such camera.
     */
    bool setFirstAddress();

    /** Makes the camera with that identifier current, once it is found and unless a person has chosen by then. */
    void prefer(const QString &id);

private:
    void addProblems();
    bool selectDevice(const QString &id);
};

/**
 * Asks for a camera until one could be opened, at first with the preferred one current; null when nobody wants one.
 * Throws a CameraSourceError when there is no camera system.
 */
std::unique_ptr<CameraSource> chooseCamera(QWidget *parent = nullptr, const QString &preferredId = {});
