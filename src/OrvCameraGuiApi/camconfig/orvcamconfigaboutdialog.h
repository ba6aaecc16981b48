// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>
#include <QScopedPointer>

class QLabel;
class Ui_OrvCamConfigAboutDialog;

namespace OrvGui {

struct CameraParams;

/** Tells what this application is and which camera it shows. */
class OrvCamConfigAboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigAboutDialog(QWidget *parent);
    ~OrvCamConfigAboutDialog() override;

    /** Reads the camera's identity; "N/A" stands for what cannot be read. The parameters are not used afterwards. */
    void adjustAbout(const CameraParams &params);

private:
    QString captionOf(const QLabel *value) const;

    const QScopedPointer<Ui_OrvCamConfigAboutDialog> ui;
};

} // namespace OrvGui
