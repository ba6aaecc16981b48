// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>

#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>

#include "ui_orvcamconfigpulsedialog.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QKeySequence>
#include <QRegularExpression>
#include <QVector>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>

namespace {

const char *const granularityFeature = "PulseGenGranularity";

/** The unit of period and width. */
struct Granularity
{
    double perSecond = 1'000'000; ///< how many of the unit there are
    QString prefix = OrvGui::microSign; ///< of the second, with the number before it unless that is 1
    double number = 1; ///< of the unit

    double hertz(std::int64_t period) const { return period == 0 ? 0 : perSecond / (number * double(period)); }
};

/**
 * By the end of an entry's name: a number and "ns", "us", "ms" or "s". Any other name is intentionally taken for
 * microseconds.
 */
Granularity granularityOf(const QString &entry)
{
    static const QRegularExpression ending(QStringLiteral("([0-9]+)([num]?)s$"));
    static const std::pair<QString, Granularity> units[] = {{QStringLiteral("n"), {1'000'000'000, QStringLiteral("n")}},
                                                            {QStringLiteral("u"), {}},
                                                            {QStringLiteral("m"), {1000, QStringLiteral("m")}},
                                                            {QString(), {1, QString()}}};
    const QRegularExpressionMatch match = ending.match(entry);
    const qulonglong number = match.captured(1).toULongLong(); // 0 also when it is too large
    if (number == 0)
        return {};
    const auto unit = std::find_if(std::begin(units), std::end(units),
                                   [&](const auto &each) { return each.first == match.captured(2); });
    Granularity granularity = unit->second;
    if (number > 1) {
        granularity.prefix.prepend(QStringLiteral("%1 ").arg(number));
        granularity.number = double(number);
    }
    return granularity;
}

QString frequencyText(double hertz)
{
    return QString::number(hertz, 'f', 6);
}

} // namespace

namespace OrvGui {

class OrvCamConfigPulseDialogPrivate : public FeatureDialogPrivate<OrvCamConfigPulseDialog, Ui_OrvCamConfigPulseDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigPulseDialogPrivate() override { camera.letGo(); }

    void build() override;
    void bind(bool hasParameters) override;
    void bindControls();
    void connectControls();
    void makeRoomForUnits();
    void updateGranularity();
    void updateDelayAndFrequency();
    void setButtonState(bool on);
    void showNothing();
    void fixMaximumSize();
    void report(OrvGenParam::Param *param) override;

    QButtonGroup modes;
    std::array<std::pair<QLabel *, QString>, 3> times; ///< each with its text, in which the unit is left open
    Granularity granularity;
};

void OrvCamConfigPulseDialogPrivate::bind(bool hasParameters)
{
    if (!hasParameters)
        return showNothing();
    bindControls();
    connectControls();
    makeRoomForUnits();
    updateGranularity();
    setButtonState(ui.pushBtnPulseEnable->isChecked());
}

void OrvCamConfigPulseDialogPrivate::build()
{
    times = {
        {{ui.lblWidth, ui.lblWidth->text()}, {ui.lblPeriod, ui.lblPeriod->text()}, {ui.lblDelay, ui.lblDelay->text()}}};
    for (QtOrvSpinBox *const spinBox : {ui.spBoxPeriod, ui.spBoxWidth, ui.spBoxNumPulses})
        spinBox->setSliderOrientation(Qt::Horizontal);
    for (QtOrvSpinBox *const spinBox : {ui.spBoxPeriod, ui.spBoxWidth})
        spinBox->slider()->setScaleType(QtOrvSlider::Log10);
    modes.setProperty("accessibleName", OrvCamConfigPulseDialog::tr("Pulses"));
    for (QRadioButton *const button : {ui.radioBtnContinious, ui.radioBtnSend}) {
        modes.addButton(button);
        OrvCamConfigMapper::nameButton(button);
    }
    makeRoomForUnits();
    updateGranularity();
    setButtonState(false);
}

void OrvCamConfigPulseDialogPrivate::bindControls()
{
    OrvCamConfigMapper &mapper = camera.mapper;
    mapper.mapEnumParam(camera.enumeration(granularityFeature), ui.cmBoxGranularity);
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
    camera.listen(camera.enumeration(granularityFeature), this);
    QObject::connect(ui.pushBtnPulseEnable, &QPushButton::toggled, camera.context(),
                     [this] { setButtonState(ui.pushBtnPulseEnable->isChecked()); }); // which may be back already
}

/** Makes room for every unit of the camera, so that nothing moves or is cut when the user chooses another one. */
void OrvCamConfigPulseDialogPrivate::makeRoomForUnits()
{
    OrvGenParam::Enum *const entries = camera.enumeration(granularityFeature);
    const std::int32_t count = entries ? entries->GetEnumEntriesCount(nullptr) : 0;
    QVector<Granularity> units = {Granularity()};
    for (std::int32_t i = 0; i < count; ++i) {
        if (OrvGenParam::EnumEntry *const entry = entries->GetEnumEntryByIndex(i, nullptr))
            units.append(granularityOf(QString::fromUtf8(entry->GetValueStr(nullptr))));
    }
    const auto makeRoom = [&units](QWidget *widget, int margin, auto &&textIn) {
        int widest = 0;
        for (const Granularity &unit : std::as_const(units))
            widest = std::max(widest, widget->fontMetrics().horizontalAdvance(textIn(unit)));
        widget->setMinimumWidth(widest + margin * widget->fontMetrics().averageCharWidth());
    };
    for (const auto &[label, text] : times)
        makeRoom(label, 0, [text = text](const Granularity &unit) { return text.arg(unit.prefix); });
    makeRoom(ui.lineEditFreq, 3, [](const Granularity &unit) { return frequencyText(unit.hertz(1)); });
    if (q->isVisible())
        fixMaximumSize();
}

/** Follows the camera; the list may show a refused entry. */
void OrvCamConfigPulseDialogPrivate::updateGranularity()
{
    OrvGenParam::Enum *const param = camera.enumeration(granularityFeature);
    const bool isKnown = param && param->IsReadable();
    granularity = granularityOf(isKnown ? QString::fromUtf8(param->GetValueStr(nullptr)) : QString());
    for (const auto &[label, text] : times)
        label->setText(text.arg(granularity.prefix));
    updateDelayAndFrequency();
}

void OrvCamConfigPulseDialogPrivate::updateDelayAndFrequency()
{
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t period = ui.spBoxPeriod->value();
    const std::int64_t delay = period - ui.spBoxWidth->value();
    ui.lineEditDelay->setText(QString::number(std::clamp<std::int64_t>(delay, Limits::min(), Limits::max())));
    ui.lineEditFreq->setText(frequencyText(granularity.hertz(period)));
    ui.lineEditFreq->home(false);
}

/** Clears what is computed when there is no camera. */
void OrvCamConfigPulseDialogPrivate::showNothing()
{
    updateGranularity();
    ui.lineEditDelay->clear();
    ui.lineEditFreq->clear();
    setButtonState(false);
}

void OrvCamConfigPulseDialogPrivate::fixMaximumSize()
{
    q->setMaximumSize(q->size().expandedTo(q->sizeHint()));
}

void OrvCamConfigPulseDialogPrivate::report(OrvGenParam::Param *)
{
    updateGranularity();
}

void OrvCamConfigPulseDialogPrivate::setButtonState(bool on)
{
    ui.pushBtnPulseEnable->setText(on ? OrvCamConfigPulseDialog::tr("Stop") : OrvCamConfigPulseDialog::tr("Start"));
    // A new text takes the shortcut away. The shortcut, pressed twice, is the same in every language.
    constexpr int keys = int(Qt::CTRL) | int(Qt::SHIFT) | int(Qt::Key_S);
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
    d->fitSliders();
    d->fixMaximumSize();
    QDialog::showEvent(event);
}

void OrvCamConfigPulseDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowPulseDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("pulse", device, parentWindowId);
}
