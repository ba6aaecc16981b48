#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include "ui_orvcamconfigpulsedialog.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QKeySequence>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace {

const double pulseClock = 1'000'000; ///< Hz: the period counts microseconds

QString frequencyText(double hertz)
{
    return QString::number(hertz, 'f', 6);
}

} // namespace

namespace OrvGui {

class OrvCamConfigPulseDialogPrivate
{
public:
    explicit OrvCamConfigPulseDialogPrivate(OrvCamConfigPulseDialog *dialog)
        : q(dialog)
    {
    }
    Q_DISABLE_COPY(OrvCamConfigPulseDialogPrivate)

    bool init(OrvCam::Device *device);
    void build();
    void bind();
    void connectControls();
    void updateDelayAndFrequency();
    void setButtonState(bool on);

    OrvCamConfigPulseDialog *const q;
    Ui_OrvCamConfigPulseDialog ui;
    QButtonGroup modes;
    bool isBuilt = false;
    FeatureDialogCamera camera; ///< the last member: lets go before the others are gone
};

bool OrvCamConfigPulseDialogPrivate::init(OrvCam::Device *device)
{
    if (!isBuilt)
        build();
    if (!camera.setDevice(device, q))
        return false;
    bind();
    connectControls();
    updateDelayAndFrequency();
    setButtonState(ui.pushBtnPulseEnable->isChecked());
    return true;
}

void OrvCamConfigPulseDialogPrivate::build()
{
    ui.setupUi(q);
    FeatureDialogCamera::setUpDialog(q);
    for (QLabel *const label : {ui.lblWidth, ui.lblPeriod, ui.lblDelay})
        label->setText(label->text().arg(microSign));
    for (QtOrvSpinBox *const spinBox : {ui.spBoxPeriod, ui.spBoxWidth, ui.spBoxNumPulses})
        spinBox->setSliderOrientation(Qt::Horizontal);
    for (QtOrvSpinBox *const spinBox : {ui.spBoxPeriod, ui.spBoxWidth})
        spinBox->slider()->setScaleType(QtOrvSlider::Log10);
    modes.setProperty("accessibleName", OrvCamConfigPulseDialog::tr("Pulses"));
    for (QRadioButton *const button : {ui.radioBtnContinious, ui.radioBtnSend}) {
        modes.addButton(button);
        OrvCamConfigMapper::nameButton(button);
    }
    const QFontMetrics metrics = ui.lineEditFreq->fontMetrics();
    ui.lineEditFreq->setMinimumWidth(metrics.horizontalAdvance(frequencyText(pulseClock))
                                     + 3 * metrics.averageCharWidth());
    setButtonState(false);
    isBuilt = true;
}

void OrvCamConfigPulseDialogPrivate::bind()
{
    OrvCamConfigMapper &mapper = camera.mapper;
    mapper.mapEnumParam(camera.enumeration("PulseGenGranularity"), ui.cmBoxGranularity);
    const std::pair<const char *, QtOrvSpinBox *> numbers[] = {
        {"PulseGenPeriod", ui.spBoxPeriod}, {"PulseGenWidth", ui.spBoxWidth}, {"PulseGenNumPulses", ui.spBoxNumPulses}};
    for (const auto &[feature, spinBox] : numbers)
        mapper.mapIntParam(camera.integer(feature), spinBox);
    mapper.mapEnumParam(camera.enumeration("PulseGenMode"), &modes);
    mapper.mapBooleanParam(camera.boolean("PulseGenEnable"), ui.pushBtnPulseEnable);
}

void OrvCamConfigPulseDialogPrivate::connectControls()
{
    for (QtOrvSpinBox *const spinBox : {ui.spBoxPeriod, ui.spBoxWidth}) {
        QObject::connect(spinBox, QOverload<int>::of(&QtOrvSpinBox::valueChanged), camera.context(),
                         [this] { updateDelayAndFrequency(); });
    }
    QObject::connect(ui.pushBtnPulseEnable, &QPushButton::toggled, camera.context(),
                     [this](bool on) { setButtonState(on); });
}

/** Intentionally in microseconds whatever the granularity. */
void OrvCamConfigPulseDialogPrivate::updateDelayAndFrequency()
{
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t period = ui.spBoxPeriod->value();
    const std::int64_t delay = period - ui.spBoxWidth->value();
    ui.lineEditDelay->setText(QString::number(std::clamp<std::int64_t>(delay, Limits::min(), Limits::max())));
    const double frequency = period == 0 ? 0 : pulseClock / double(period);
    ui.lineEditFreq->setText(frequencyText(frequency));
    ui.lineEditFreq->home(false);
}

void OrvCamConfigPulseDialogPrivate::setButtonState(bool on)
{
    ui.pushBtnPulseEnable->setText(on ? OrvCamConfigPulseDialog::tr("Stop") : OrvCamConfigPulseDialog::tr("Start"));
    // Anew: with the former text went its keys. They are pressed twice, the same in every language.
    constexpr int keys = Qt::CTRL + Qt::SHIFT + Qt::Key_S;
    ui.pushBtnPulseEnable->setShortcut(QKeySequence(keys, keys));
    const QString ball = on ? QStringLiteral(":/icons/greenball.ico") : QStringLiteral(":/icons/redball.ico");
    ui.lblPulseEnable->setPixmap(sharpPixmap(ball, q));
    ui.lblPulseEnable->setAccessibleName(on ? OrvCamConfigPulseDialog::tr("Pulses are generated")
                                            : OrvCamConfigPulseDialog::tr("No pulses are generated"));
}

OrvCamConfigPulseDialog::OrvCamConfigPulseDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigPulseDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigPulseDialog::~OrvCamConfigPulseDialog() = default;

bool OrvCamConfigPulseDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigPulseDialog::showEvent(QShowEvent *event)
{
    for (QtOrvSpinBox *const spinBox : {d->ui.spBoxPeriod, d->ui.spBoxWidth, d->ui.spBoxNumPulses})
        OrvCamConfigMapper::resizeHorizontalSlider(spinBox);
    setMaximumSize(size().expandedTo(sizeHint()));
    QDialog::showEvent(event);
}

void OrvCamConfigPulseDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui
