// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

namespace OrvCam {
class Device;
} // namespace OrvCam

/** Tells in the GUI thread that a camera was lost, or is back, whichever thread the camera library tells it on. */
class CameraWatch : public QObject
{
    Q_OBJECT

public:
    /** \a device, which may be null, outlives this. */
    explicit CameraWatch(OrvCam::Device *device, QObject *parent = nullptr);
    ~CameraWatch() override;

Q_SIGNALS:
    void reachableChanged(bool isReachable);

private:
    static void changed(const void *, unsigned long, void *context);
    void tell();

    OrvCam::Device *const m_device;
};
