// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>

#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

namespace OrvGui {

FeatureDialogBase::FeatureDialogBase(QDialog *dialog)
    : m_dialog(dialog)
{
}

FeatureDialogBase::~FeatureDialogBase() = default;

bool FeatureDialogBase::init(OrvCam::Device *device)
{
    if (!m_isBuilt) {
        setUpForm();
        camera.setUpDialog(m_dialog);
        build();
        m_isBuilt = true;
    }
    const bool hasParameters = setDevice(device);
    bind(hasParameters);
    return hasParameters;
}

bool FeatureDialogBase::setDevice(OrvCam::Device *device)
{
    return camera.setDevice(device, m_dialog);
}

void FeatureDialogBase::fitSliders()
{
    const auto spinBoxes = m_dialog->findChildren<QtOrvSpinBox *>();
    for (QtOrvSpinBox *const spinBox : spinBoxes) {
        if (spinBox->sliderOrientation() == Qt::Vertical)
            OrvCamConfigMapper::resizeVerticalSlider(spinBox);
        else
            OrvCamConfigMapper::resizeHorizontalSlider(spinBox);
    }
}

void FeatureDialogBase::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (!camera.isForGuiThread(param, this))
        report(param);
}

} // namespace OrvGui
