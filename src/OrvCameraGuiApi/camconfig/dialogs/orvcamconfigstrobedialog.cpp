// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include "ui_orvcamconfigstrobedialog.h"

#include <QCloseEvent>

#include <algorithm>
#include <utility>

namespace {

struct Picture
{
    const char *path;
    const char *meaning; ///< the accessible name
};

/** Indexed by whether strobe 1, and strobe 2, count from the start of the exposure. */
const Picture pictures[2][2] = {
    {{":/images/strobeBothRead.bmp",
      QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigStrobeDialog", "Both strobes count from the start of the readout")},
     {":/images/strobe1Read_strobe2Exp.bmp",
      QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigStrobeDialog",
                        "Strobe 1 counts from the start of the readout, strobe 2 from that of the exposure")}},
    {{":/images/strobe1Exp_strobe2Read.bmp",
      QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigStrobeDialog",
                        "Strobe 1 counts from the start of the exposure, strobe 2 from that of the readout")},
     {":/images/strobeBothExp.bmp",
      QT_TRANSLATE_NOOP("OrvGui::OrvCamConfigStrobeDialog", "Both strobes count from the start of the exposure")}}};

} // namespace

namespace OrvGui {

class OrvCamConfigStrobeDialogPrivate
    : public FeatureDialogPrivate<OrvCamConfigStrobeDialog, Ui_OrvCamConfigStrobeDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigStrobeDialogPrivate() override { camera.letGo(); }

    void build() override;
    void bind(bool hasParameters) override;
    void initCaptions();
    void initComboBoxes();
    void initSliders();
    void alignSliders();
    void setImageState();
    void show(const Picture &picture);
};

void OrvCamConfigStrobeDialogPrivate::bind(bool hasParameters)
{
    show(pictures[true][true]);
    if (!hasParameters)
        return;
    initComboBoxes();
    initSliders();
    alignSliders();
}

void OrvCamConfigStrobeDialogPrivate::build()
{
    initCaptions();
    alignSliders();
    // The picture follows a reference box that has just been enabled again.
    camera.mapper.setAfterShow([this](OrvGenParam::Param *) { setImageState(); });
}

void OrvCamConfigStrobeDialogPrivate::initCaptions()
{
    for (QtOrvSliderSpinBox *const delay : {ui.spBoxStrobe1Delay, ui.spBoxStrobe2Delay})
        delay->setLeftLabelText(OrvCamConfigStrobeDialog::tr("Delay [%1s]:").arg(microSign));
    for (QtOrvSliderSpinBox *const width : {ui.spBoxStrobe1Width, ui.spBoxStrobe2Width})
        width->setLeftLabelText(OrvCamConfigStrobeDialog::tr("Width [%1s]:").arg(microSign));
}

void OrvCamConfigStrobeDialogPrivate::initComboBoxes()
{
    const std::pair<const char *, QComboBox *> bindings[] = {
        {"Strobe1Mode", ui.cmBoxStrobe1Mode},     {"Strobe2Mode", ui.cmBoxStrobe2Mode},
        {"Strobe1Reference", ui.cmBoxStrobe1Ref}, {"Strobe2Reference", ui.cmBoxStrobe2Ref},
        {"OUT1Polarity", ui.cmBoxOut1Polarity},   {"OUT2Polarity", ui.cmBoxOut2Polarity},
        {"OUT1Selector", ui.cmBoxOut1Selector},   {"OUT2Selector", ui.cmBoxOut2Selector}};
    for (const auto &[feature, comboBox] : bindings) {
        camera.mapper.mapEnumParam(camera.enumeration(feature), comboBox);
        if (comboBox == ui.cmBoxStrobe1Ref || comboBox == ui.cmBoxStrobe2Ref)
            QObject::connect(comboBox, &QComboBox::currentTextChanged, camera.context(), [this] { setImageState(); });
    }
    setImageState();
}

void OrvCamConfigStrobeDialogPrivate::initSliders()
{
    const std::pair<const char *, QtOrvSliderSpinBox *> bindings[] = {{"Strobe1Delay", ui.spBoxStrobe1Delay},
                                                                      {"Strobe2Delay", ui.spBoxStrobe2Delay},
                                                                      {"Strobe1Width", ui.spBoxStrobe1Width},
                                                                      {"Strobe2Width", ui.spBoxStrobe2Width}};
    for (const auto &[feature, spinBox] : bindings) {
        spinBox->slider()->setScaleType(QtOrvSlider::Log10);
        camera.mapper.mapIntParam(camera.integer(feature), spinBox, nullptr);
    }
}

/** Aligns the sliders, which stand above each other. */
void OrvCamConfigStrobeDialogPrivate::alignSliders()
{
    QtOrvSliderSpinBox *const all[] = {ui.spBoxStrobe1Delay, ui.spBoxStrobe1Width, ui.spBoxStrobe2Delay,
                                       ui.spBoxStrobe2Width};
    int label = 0;
    int number = 0;
    for (const QtOrvSliderSpinBox *const spinBox : all) {
        label = std::max(label, spinBox->leftLabel()->sizeHint().width());
        number = std::max(number, spinBox->spinBox()->sizeHint().width());
    }
    for (QtOrvSliderSpinBox *const spinBox : all) {
        spinBox->leftLabel()->setMinimumWidth(label);
        spinBox->spinBox()->setMinimumWidth(number);
    }
}

/** Every reference other than the start of the exposure counts as the readout. */
void OrvCamConfigStrobeDialogPrivate::setImageState()
{
    if (!ui.cmBoxStrobe1Ref->isEnabledTo(q) || !ui.cmBoxStrobe2Ref->isEnabledTo(q))
        return;
    const auto fromExposure = [](const QComboBox *reference) {
        return reference->currentText() == QLatin1String("ExposureStart");
    };
    show(pictures[fromExposure(ui.cmBoxStrobe1Ref)][fromExposure(ui.cmBoxStrobe2Ref)]);
}

void OrvCamConfigStrobeDialogPrivate::show(const Picture &picture)
{
    ui.lblStrobeImage->setPixmap(sharpPixmap(QLatin1String(picture.path), q));
    ui.lblStrobeImage->setAccessibleName(OrvCamConfigStrobeDialog::tr(picture.meaning));
}

OrvCamConfigStrobeDialog::OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigStrobeDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigStrobeDialog::~OrvCamConfigStrobeDialog() = default;

bool OrvCamConfigStrobeDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigStrobeDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowStrobeDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("strobe", device, parentWindowId);
}
