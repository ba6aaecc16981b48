// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/orvcamconfigaboutdialog.h>

#include <OrvCameraGuiApi/camconfig/camerastatus.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>

#include "ui_orvcamconfigaboutdialog.h"

#include <QDate>

#include <algorithm>

namespace OrvGui {

OrvCamConfigAboutDialog::OrvCamConfigAboutDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui_OrvCamConfigAboutDialog)
{
    ui->setupUi(this);
    scrollWhereTooSmall(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ui->lblAppName->setText(QStringLiteral("OrvCameraConfiguration"));
    ui->lblAppVersion->setText(QStringLiteral("1.4.0 (build 2230) ")); // the blank at the end is intentional
    ui->lblCopyright->setText(
        tr("Copyright %1 %2, the authors of OrvCameraGuiApi").arg(QChar(0x00A9)).arg(QDate::currentDate().year()));
    connect(ui->okButton, &QPushButton::clicked, this, &QDialog::accept);
}

OrvCamConfigAboutDialog::~OrvCamConfigAboutDialog() = default;

/** The caption of \a value. */
QString OrvCamConfigAboutDialog::captionOf(const QLabel *value) const
{
    const auto labels = findChildren<QLabel *>();
    const auto isCaption = [value](const QLabel *label) { return label->buddy() == value; };
    const auto caption = std::find_if(labels.begin(), labels.end(), isCaption);
    return caption != labels.end() ? (*caption)->text() : QString();
}

void OrvCamConfigAboutDialog::adjustAbout(const CameraParams &params)
{
    const auto show = [this](QLabel *label, const std::optional<QString> &text) {
        label->setText(text.value_or(tr("N/A")));
        label->setAccessibleName((captionOf(label) + QLatin1Char(' ') + label->text()).simplified());
    };
    const auto showNumber = [&](QLabel *label, OrvGenParam::Int *param) {
        const QString text = decimal(param);
        show(label, text.isEmpty() ? std::nullopt : std::optional(text));
    };
    show(ui->lblFirmwareVersion, valueOf(params.firmwareVersion));
    show(ui->lblDeviceModelName, valueOf(params.modelName));
    show(ui->lblDeviceManufacturerInfo, valueOf(params.manufacturerInfo));
    show(ui->lblDeviceSerialNumber, valueOf(params.serialNumber));
    show(ui->lblDeviceUserDefinedName, valueOf(params.userDefinedName));
    show(ui->lblDeviceFamilyName, valueOf(params.familyName));
    show(ui->lblDeviceManufacturerName, valueOf(params.vendorName));
    show(ui->lblDeviceVersion, valueOf(params.deviceVersion));
    showNumber(ui->lblFirmwareImage, params.firmwareImage);
    showNumber(ui->lblCustomerID, params.customerId);
    showNumber(ui->lblXmlVersion, params.xmlVersion);
    showNumber(ui->lblRgsID, params.rgsId);
    showNumber(ui->lblFpgaID, params.fpgaId);
    showNumber(ui->lblEpcsID, params.epcsId);
    show(ui->lblSensorType, valueOf(params.sensorType));
    showNumber(ui->lblFamilyID, params.familyId);
}

} // namespace OrvGui
