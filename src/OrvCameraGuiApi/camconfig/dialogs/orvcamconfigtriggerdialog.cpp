#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>

#include "ui_orvcamconfigtriggerdialog.h"

#include <QCloseEvent>
#include <QPointer>

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate : public OrvGenParam::ParamEventSink
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
    void OnParameterUpdate(OrvGenParam::Param *param) override;

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
    FeatureDialogCamera::setUpDialog(q);
    isBuilt = true;
}

void OrvCamConfigTriggerDialogPrivate::initCheckBox()
{
    OrvGenParam::Enum *const param = camera.enumeration("TriggerMode");
    camera.mapper.mapEnumParam(param, ui.chBoxEnable);
    camera.listenBeforeMapper(param, this);
    QObject::connect(ui.chBoxEnable, &QCheckBox::stateChanged, camera.context(), [this] { applyEnableRule(); });
}

void OrvCamConfigTriggerDialogPrivate::initComboBoxes()
{
    const std::pair<const char *, QComboBox *> bindings[] = {
        {"TriggerSource", ui.cmBoxSource}, {"TriggerActivation", ui.cmBoxEdge}, {"TriggerDebounce", ui.cmBoxDebounce}};
    for (const auto &[feature, comboBox] : bindings) {
        OrvGenParam::Enum *const param = camera.enumeration(feature);
        camera.mapper.mapEnumParam(param, comboBox);
        camera.listenBeforeMapper(param, this);
    }
    QObject::connect(ui.cmBoxSource, QOverload<int>::of(&QComboBox::currentIndexChanged), camera.context(),
                     [this] { applySoftwareRule(); });
}

void OrvCamConfigTriggerDialogPrivate::initButton()
{
    OrvGenParam::Command *const param = camera.command("TriggerSoftware");
    if (param)
        camera.mapper.mapCommandParam(param, ui.pushBtnSoftwareTrigger, nullptr);
    camera.listenBeforeMapper(param, this);
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

void OrvCamConfigTriggerDialogPrivate::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (camera.isForGuiThread(param, this))
        return;
    const QPointer<OrvCamConfigTriggerDialog> alive(q);
    camera.mapper.OnParameterUpdate(param);
    if (alive && camera.parameters())
        applyEnableRule();
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
