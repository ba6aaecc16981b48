// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>

#include "ui_orvcamconfigoutputdialog.h"

#include <QCloseEvent>

#include <utility>

namespace OrvGui {

class OrvCamConfigOutputDialogPrivate
    : public FeatureDialogPrivate<OrvCamConfigOutputDialog, Ui_OrvCamConfigOutputDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigOutputDialogPrivate() override { camera.letGo(); }

    void build() override;
    void bind(bool hasParameters) override;
    void initComboBoxes();
    void initSpinBoxes();
    void initCheckBoxes();
};

void OrvCamConfigOutputDialogPrivate::bind(bool hasParameters)
{
    if (!hasParameters)
        return;
    initComboBoxes();
    initSpinBoxes();
    initCheckBoxes();
}

void OrvCamConfigOutputDialogPrivate::build()
{
    for (QtOrvSpinBox *const spinBox : {ui.spBoxDpcDynThres, ui.spBoxHpcDynThres})
        spinBox->setLeftLabelText(OrvCamConfigOutputDialog::tr("Dyn.Thres.:"));
    // Its features stay bound all the same.
    ui.groupBox->hide();
}

void OrvCamConfigOutputDialogPrivate::initComboBoxes()
{
    // The taps are intentionally bound to the feature whose name speaks of a bit depth.
    const std::pair<const char *, QComboBox *> bindings[] = {
        {"PixelFormat", ui.cmBoxPixelFormat}, {"SensorADCBitDepth11", ui.cmBoxTaps},
        {"SensorADCBitDepth", ui.cmBoxDepth}, {"TestPattern", ui.cmBoxTestMode},
        {"LUTSelector", ui.cmBoxLut},         {"DefectPixelCorrection", ui.cmBoxDpc},
        {"HotPixelCorrection", ui.cmBoxHpc}};
    for (const auto &[feature, comboBox] : bindings)
        camera.mapper.mapEnumParam(camera.enumeration(feature), comboBox);
}

void OrvCamConfigOutputDialogPrivate::initSpinBoxes()
{
    camera.mapper.mapIntParam(camera.integer("DefectPixelThreshold"), ui.spBoxDpcDynThres);
    camera.mapper.mapIntParam(camera.integer("HotPixelThreshold"), ui.spBoxHpcDynThres);
}

void OrvCamConfigOutputDialogPrivate::initCheckBoxes()
{
    camera.mapper.mapBooleanParam(camera.boolean("LUTEnable"), ui.chBoxEnableLut);
    camera.mapper.mapBooleanParam(camera.boolean("ReverseX"), ui.chBoxHorMirror);
    camera.mapper.mapBooleanParam(camera.boolean("ReverseY"), ui.chBoxVerMirror);
}

OrvCamConfigOutputDialog::OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigOutputDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigOutputDialog::~OrvCamConfigOutputDialog() = default;

bool OrvCamConfigOutputDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigOutputDialog::showEvent(QShowEvent *event)
{
    d->fitSliders();
    QDialog::showEvent(event);
}

void OrvCamConfigOutputDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowOutputDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("dataout", device, parentWindowId);
}
