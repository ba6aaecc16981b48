// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace OrvCam {
class Device;
} // namespace OrvCam

/** Shows how far a camera is on its way to its features, and lets people give it up. */
class OpeningDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device outlives the dialog. */
    OpeningDialog(OrvCam::Device &device, const QString &name, QWidget *parent = nullptr);

    /** Whether \a device has its features. Shows a dialog when that takes longer than a moment; false if given up. */
    static bool waitFor(OrvCam::Device &device, const QString &name, QWidget *parent);

private:
    void update();

    OrvCam::Device &m_device;
    QLabel *const m_step;
    QProgressBar *const m_progress;
    QLabel *const m_failure;
};
