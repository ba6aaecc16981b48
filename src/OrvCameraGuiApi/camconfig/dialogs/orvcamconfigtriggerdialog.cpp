// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>

#include "ui_orvcamconfigtriggerdialog.h"

#include <QCloseEvent>

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate
    : public FeatureDialogPrivate<OrvCamConfigTriggerDialog, Ui_OrvCamConfigTriggerDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigTriggerDialogPrivate() override { camera.letGo(); }

    void build() override;
    void bind(bool hasParameters) override;
    void initCheckBox();
    void initComboBoxes();
    void initButton();
    void applyEnableRule();
    void applySoftwareRule();
};

void OrvCamConfigTriggerDialogPrivate::bind(bool hasParameters)
{
    if (!hasParameters)
        return;
    initCheckBox();
    initComboBoxes();
    initButton();
    applyEnableRule();
}

void OrvCamConfigTriggerDialogPrivate::build()
{
    camera.mapper.setAfterShow([this](OrvGenParam::Param *) { applyEnableRule(); });
}

void OrvCamConfigTriggerDialogPrivate::initCheckBox()
{
    camera.mapper.mapEnumParam(camera.enumeration("TriggerMode"), ui.chBoxEnable);
    QObject::connect(ui.chBoxEnable, &QCheckBox::stateChanged, camera.context(), [this] { applyEnableRule(); });
}

void OrvCamConfigTriggerDialogPrivate::initComboBoxes()
{
    const std::pair<const char *, QComboBox *> bindings[] = {
        {"TriggerSource", ui.cmBoxSource}, {"TriggerActivation", ui.cmBoxEdge}, {"TriggerDebounce", ui.cmBoxDebounce}};
    for (const auto &[feature, comboBox] : bindings)
        camera.mapper.mapEnumParam(camera.enumeration(feature), comboBox);
    QObject::connect(ui.cmBoxSource, QOverload<int>::of(&QComboBox::currentIndexChanged), camera.context(),
                     [this] { applySoftwareRule(); });
}

void OrvCamConfigTriggerDialogPrivate::initButton()
{
    if (OrvGenParam::Command *const param = camera.command("TriggerSoftware"))
        camera.mapper.mapCommandParam(param, ui.pushBtnSoftwareTrigger, nullptr);
}

/** The only rule: it does not depend on the access to the features, nor on whether the camera has them. */
void OrvCamConfigTriggerDialogPrivate::applyEnableRule()
{
    for (QComboBox *const comboBox : {ui.cmBoxSource, ui.cmBoxEdge, ui.cmBoxDebounce})
        comboBox->setEnabled(ui.chBoxEnable->isChecked());
    applySoftwareRule();
}

void OrvCamConfigTriggerDialogPrivate::applySoftwareRule()
{
    const bool isBySoftware = ui.cmBoxSource->currentText() == QLatin1String("Software");
    ui.pushBtnSoftwareTrigger->setEnabled(ui.chBoxEnable->isChecked() && isBySoftware);
}

OrvCamConfigTriggerDialog::OrvCamConfigTriggerDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigTriggerDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigTriggerDialog::~OrvCamConfigTriggerDialog() = default;

bool OrvCamConfigTriggerDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigTriggerDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowTriggerDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("trigger", device, parentWindowId);
}
