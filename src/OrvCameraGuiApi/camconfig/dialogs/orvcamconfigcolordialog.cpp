// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>

#include "ui_orvcamconfigcolordialog.h"

#include <QCloseEvent>

#include <array>

namespace {

const int unityCoefficient = 256; ///< a gain of 1

/** A color: its feature and what the dialog shows of it. */
struct Coefficient
{
    const char *feature;
    QtOrvSpinBox *spinBox;
    QPushButton *unity;
    QLabel *statistics;
};

} // namespace

namespace OrvGui {

class OrvCamConfigColorDialogPrivate : public FeatureDialogPrivate<OrvCamConfigColorDialog, Ui_OrvCamConfigColorDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigColorDialogPrivate() override { camera.letGo(); }

    void build() override;
    void bind(bool hasParameters) override;
    bool initCoefficient(const Coefficient &coefficient);
    void initStatistics();
    void report(OrvGenParam::Param *param) override;

    std::array<Coefficient, 3> coefficients;
};

void OrvCamConfigColorDialogPrivate::bind(bool)
{
    camera.mapper.mapEnumParam(camera.enumeration("BalanceWhiteAuto"), ui.cmBoxWhiteBalance);
    camera.mapper.mapEnumParam(camera.enumeration("AutoTrackingSpeed"), ui.cmBoxTrackingSpeed);
    bool hasCoefficients = false;
    for (const Coefficient &coefficient : coefficients)
        hasCoefficients |= initCoefficient(coefficient);
    ui.grBoxStatistics->setEnabled(hasCoefficients);
    initStatistics();
}

void OrvCamConfigColorDialogPrivate::build()
{
    coefficients = {{{"RedCoefficient", ui.spBoxRed, ui.pushBtnRedUnity, ui.lblRedCoef},
                     {"GreenCoefficient", ui.spBoxGreen, ui.pushBtnGreenUnity, ui.lblGreenCoef},
                     {"BlueCoefficient", ui.spBoxBlue, ui.pushBtnBlueUnity, ui.lblBlueCoef}}};
}

/** False when the camera does not have it. */
bool OrvCamConfigColorDialogPrivate::initCoefficient(const Coefficient &coefficient)
{
    OrvGenParam::Int *const param = camera.integer(coefficient.feature);
    if (!camera.mapper.mapIntParam(param, coefficient.spinBox, {coefficient.unity}))
        return false;
    camera.listen(param, this);
    QObject::connect(coefficient.unity, &QPushButton::clicked, coefficient.spinBox,
                     [spinBox = coefficient.spinBox] { spinBox->setValue(unityCoefficient); });
    return true;
}

void OrvCamConfigColorDialogPrivate::initStatistics()
{
    for (const Coefficient &coefficient : coefficients) {
        const QFontMetrics metrics = coefficient.statistics->fontMetrics();
        const QString widest = QString::number(ui.spBoxRed->maximum());
        coefficient.statistics->setFixedWidth(metrics.horizontalAdvance(widest)
                                              + metrics.horizontalAdvance(QLatin1Char(' ')));
        const bool isKnown = camera.parameters();
        coefficient.statistics->setText(isKnown ? QString::number(coefficient.spinBox->value()) : QString());
    }
}

void OrvCamConfigColorDialogPrivate::report(OrvGenParam::Param *param)
{
    auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
    if (!number || !number->IsReadable())
        return;
    for (const Coefficient &coefficient : coefficients) {
        if (qstrcmp(number->GetName(), coefficient.feature) == 0)
            coefficient.statistics->setText(QString::number(number->GetValue(nullptr)));
    }
}

OrvCamConfigColorDialog::OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigColorDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigColorDialog::~OrvCamConfigColorDialog() = default;

bool OrvCamConfigColorDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigColorDialog::showEvent(QShowEvent *event)
{
    d->fitSliders();
    QDialog::showEvent(event);
}

void OrvCamConfigColorDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowColorDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("color", device, parentWindowId);
}
