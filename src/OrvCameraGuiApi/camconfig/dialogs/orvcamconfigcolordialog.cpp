#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>

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

class OrvCamConfigColorDialogPrivate : public OrvGenParam::ParamEventSink
{
public:
    explicit OrvCamConfigColorDialogPrivate(OrvCamConfigColorDialog *dialog)
        : q(dialog)
    {
    }
    Q_DISABLE_COPY(OrvCamConfigColorDialogPrivate)

    bool init(OrvCam::Device *device);
    void build();
    bool initCoefficient(const Coefficient &coefficient);
    void initStatistics();
    void OnParameterUpdate(OrvGenParam::Param *param) override;

    OrvCamConfigColorDialog *const q;
    Ui_OrvCamConfigColorDialog ui;
    std::array<Coefficient, 3> coefficients;
    bool isBuilt = false;
    FeatureDialogCamera camera; ///< the last member: lets go before the others are gone
};

bool OrvCamConfigColorDialogPrivate::init(OrvCam::Device *device)
{
    if (!isBuilt)
        build();
    const bool hasParameters = camera.setDevice(device, q);
    camera.mapper.mapEnumParam(camera.enumeration("BalanceWhiteAuto"), ui.cmBoxWhiteBalance);
    camera.mapper.mapEnumParam(camera.enumeration("AutoTrackingSpeed"), ui.cmBoxTrackingSpeed);
    bool hasCoefficients = false;
    for (const Coefficient &coefficient : coefficients)
        hasCoefficients |= initCoefficient(coefficient);
    ui.grBoxStatistics->setEnabled(hasCoefficients);
    initStatistics();
    return hasParameters;
}

void OrvCamConfigColorDialogPrivate::build()
{
    ui.setupUi(q);
    camera.setUpDialog(q);
    coefficients = {{{"RedCoefficient", ui.spBoxRed, ui.pushBtnRedUnity, ui.lblRedCoef},
                     {"GreenCoefficient", ui.spBoxGreen, ui.pushBtnGreenUnity, ui.lblGreenCoef},
                     {"BlueCoefficient", ui.spBoxBlue, ui.pushBtnBlueUnity, ui.lblBlueCoef}}};
    isBuilt = true;
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

void OrvCamConfigColorDialogPrivate::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (camera.isForGuiThread(param, this))
        return;
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
    for (const Coefficient &coefficient : d->coefficients)
        OrvCamConfigMapper::resizeVerticalSlider(coefficient.spinBox);
    QDialog::showEvent(event);
}

void OrvCamConfigColorDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui
