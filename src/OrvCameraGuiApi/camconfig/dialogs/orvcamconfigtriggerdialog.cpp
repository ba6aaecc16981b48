#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>

#include "ui_orvcamconfigtriggerdialog.h"

#include <QCloseEvent>

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate
{
public:
    explicit OrvCamConfigTriggerDialogPrivate(OrvCamConfigTriggerDialog *dialog)
        : q(dialog)
    {
    }
    Q_DISABLE_COPY(OrvCamConfigTriggerDialogPrivate)

    bool init(OrvCam::Device *device);
    void build();
    void initCheckBox();
    void initComboBoxes();
    void initButton();
    void applyEnableRule();
    void applySoftwareRule();

    OrvCamConfigTriggerDialog *const q;
    Ui_OrvCamConfigTriggerDialog ui;
    bool isBuilt = false;
    FeatureDialogCamera camera; ///< the last member: lets go before the others are gone
};

bool OrvCamConfigTriggerDialogPrivate::init(OrvCam::Device *device)
{
    if (!isBuilt)
        build();
    if (!camera.setDevice(device, q))
        return false;
    initCheckBox();
    initComboBoxes();
    initButton();
    applyEnableRule();
    return true;
}

void OrvCamConfigTriggerDialogPrivate::build()
{
    ui.setupUi(q);
    camera.setUpDialog(q);
    camera.mapper.setAfterShow([this](OrvGenParam::Param *) { applyEnableRule(); });
    isBuilt = true;
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

/** Decides alone, whatever the features themselves allow, and also for those that the camera does not have. */
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
