// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigframeabdialog.h>

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogprivate.h>
#include <OrvCameraGuiApi/camconfig/dialogs/framearithmetic.h>
#include <OrvCameraGuiApi/camconfig/parameters.h>
#include <OrvCameraGuiApi/camconfig/showfeaturedialog.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoubleslider.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include "ui_orvcamconfigframeabdialog.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <initializer_list>
#include <mutex>
#include <optional>
#include <utility>

namespace {

const char *const lineTimeFeature = "Frame_LineTime";
const char *const linesFeature = "Frame_ExposureLines";
const char *const clocksFeature = "Frame_ExposureClocks";
const char *const coarseGainFeature = "Frame_DigitalCourseGain";
const char *const fineGainFeature = "Frame_DigitalFineGain";
const char *const fixedPeriodFeature = "Frame_FixedFramePeriodValue";
const char *const selectorFeature = "FrameAB_Selector";
const char *const triggerModeFeature = "TriggerMode";
const char *const widthActualFeature = "Frame_WidthActual";
const char *const heightActualFeature = "Frame_HeightActual";

const std::int64_t usualPixelClock = 160; ///< MHz, where it cannot be read
const double gainStep = 0.125;

/** The values last read of the features that the dialog computes with. */
struct Cached
{
    std::int64_t pixelClock = usualPixelClock;
    std::int64_t lineTime = 0;
    std::int64_t lines = 0;
    std::int64_t clocks = 0;
    std::int64_t mostLines = 0;
    std::int64_t mostClocks = 0;
    std::int64_t coarseGain = 0;
    std::int64_t fineGain = 0;
    bool isTriggerOn = false; ///< when the camera was set; nothing is computed with it

    OrvGui::FrameArithmetic::Clock clock() const { return {pixelClock, lineTime}; }
    OrvGui::FrameArithmetic::Exposure exposure() const { return {lines, clocks}; }
    OrvGui::FrameArithmetic::Exposure longestExposure() const { return {mostLines, mostClocks}; }
    OrvGui::FrameArithmetic::Gain gain() const { return {coarseGain, fineGain}; }
};

/** Tells steps of a gain slider from numbers that are typed, dragged or set. */
class StepWatch : public QObject
{
public:
    /** Watches \a gain, which outlives the watch. */
    void watch(QtOrvGainSlider *gain)
    {
        m_field = gain->spinBox();
        m_field->installEventFilter(this);
        connect(gain->slider()->slider(), &QSlider::actionTriggered, this, [this](int action) {
            m_isStep = action != QSlider::SliderMove;
            forgetSoon();
        });
    }

    bool isStep() const { return m_isStep; }

    /** The typed number that Return has just committed; none for any other entry. */
    std::optional<double> typed() const { return m_typed; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent *>(event)->key();
            m_isStep = key != Qt::Key_Return && key != Qt::Key_Enter;
            m_typed = m_isStep ? std::nullopt : NumberText::typedNumber(*m_field);
            break;
        }
        case QEvent::MouseButtonPress: // of an arrow, which repeats until the release
            m_isStep = true;
            break;
        case QEvent::Wheel:
            m_isStep = true;
            forgetSoon();
            break;
        case QEvent::KeyRelease:
        case QEvent::MouseButtonRelease:
        case QEvent::FocusOut:
            m_isStep = false;
            m_typed.reset();
            break;
        default:
            break;
        }
        return false;
    }

private:
    void forgetSoon()
    {
        QTimer::singleShot(0, this, [this] { m_isStep = false; });
    }

    QtOrvDoubleSpinBoxVal *m_field = nullptr;
    bool m_isStep = false;
    std::optional<double> m_typed;
};

/** Aligns the fields of composites that stand above each other. */
template <typename... Composites>
void alignCaptions(Composites *...composites)
{
    (composites->leftLabel()->ensurePolished(), ...);
    const int width = std::max({composites->leftLabel()->sizeHint().width()...});
    (composites->leftLabel()->setMinimumWidth(width), ...);
}

} // namespace

namespace OrvGui {

using namespace FrameArithmetic;

class OrvCamConfigFrameABDialogPrivate
    : public IOrvCamConfigIntConverter,
      public FeatureDialogPrivate<OrvCamConfigFrameABDialog, Ui_OrvCamConfigFrameABDialog>
{
public:
    using FeatureDialogPrivate::FeatureDialogPrivate;
    ~OrvCamConfigFrameABDialogPrivate() override { camera.letGo(); }

    void build() override;
    bool setDevice(OrvCam::Device *device) override;
    void bind(bool hasParameters) override;
    void buildExposureTime();
    void buildGain();
    void setCaptions();
    void reset();
    void getNeededParams();
    void initComboBoxes();
    void initSpinBoxes();
    void initRadioButtons();
    void initSliders();
    void initTabWidget();
    void initCheckBoxes();

    /** A feature that the dialog follows: where its value is kept, and what its change entails. */
    struct Followed
    {
        const char *feature;
        std::int64_t Cached::*value; ///< null: the value is not kept
        std::int64_t Cached::*maximum; ///< null: the maximum is not kept
        std::int64_t unreadable; ///< kept when the value cannot be read
        void (OrvCamConfigFrameABDialogPrivate::*react)();
    };
    static const Followed followed[];
    static const Followed *followedAs(OrvGenParam::Param *param);

    Cached cached() const;
    bool cache(OrvGenParam::Int *param);
    void readExposure();
    void readGain();
    void clockChanged();
    void exposureChanged();
    void gainChanged();
    bool isBound(const char *feature, const QWidget *control) const;
    auto sameCamera() const;

    QString frameMode() const;
    void onFrameModeChanged();
    void bindForMode(bool isSingle);
    static int onlyPage(const QString &mode);
    bool canShow(int page) const;
    void enablePages();
    void selectShownFrame();

    void showFixedPeriod();
    void showActualSize();
    void updateExposureTime();
    void showTime(std::int64_t microseconds, std::int64_t longest);
    void setExposureTime(int microseconds);
    bool setHalf(const char *feature, QtOrvSpinBox *spinBox, std::int64_t value, bool isKnown);
    bool readBack(std::initializer_list<const char *> features);
    Gain partsOf(double entered) const;
    bool isNews(const Gain &parts) const;
    bool isRetyped() const;
    void updateGain();
    void setGain(double gain);

    std::int64_t ToControl(std::int64_t deviceValue, OrvGenParam::Int *param) override;
    std::int64_t ToDevice(std::int64_t controlValue, OrvGenParam::Int *param) override;
    void report(OrvGenParam::Param *param) override;

    std::pair<QString, QString> pageTitles;
    StepWatch gainSteps;
    bool isExposureKnown = true; ///< lines and clocks could be read
    bool isGainKnown = true; ///< both parts could be read, as far as the camera has them
    bool isShowing = false; ///< exposure time and gain follow the camera, and are not the user's
    int session = 0; ///< counts the cameras
    Cached values;
    mutable std::mutex mutex; ///< of the values; never held while a control or the camera is called
};

/** Answers, after any call, whether the dialog still exists and shows the same camera. */
auto OrvCamConfigFrameABDialogPrivate::sameCamera() const
{
    return [this, dialog = QPointer<QDialog>(q), current = session] { return dialog && session == current; };
}

void OrvCamConfigFrameABDialogPrivate::bind(bool)
{
    reset();
    getNeededParams();
    initComboBoxes();
    initSpinBoxes();
    initRadioButtons();
    initSliders();
    initTabWidget();
    initCheckBoxes();
    showActualSize();
    updateGain();
    const auto isSame = sameCamera();
    onFrameModeChanged();
    if (isSame())
        updateExposureTime();
}

bool OrvCamConfigFrameABDialogPrivate::setDevice(OrvCam::Device *device)
{
    ++session;
    const QScopedValueRollback<bool> guard(isShowing, true);
    return FeatureDialogPrivate::setDevice(device);
}

void OrvCamConfigFrameABDialogPrivate::build()
{
    setCaptions();
    const auto radioButtons = q->findChildren<QRadioButton *>();
    for (QRadioButton *const button : radioButtons)
        OrvCamConfigMapper::nameButton(button);
    pageTitles = {ui.tabFrames->tabText(0), ui.tabFrames->tabText(1)};
    // A click on a tab takes the focus from a field, and with it a typed text that would go to the other frame.
    ui.tabFrames->tabBar()->setFocusPolicy(Qt::WheelFocus);
    buildExposureTime();
    buildGain();
    camera.mapper.setAfterShow([this](OrvGenParam::Param *param) {
        if (qstrcmp(param->GetName(), selectorFeature) == 0)
            enablePages(); // the mapper enables them by their entries alone
    });
}

/** The mapper does not bind this control, which stands for two features. It takes entries as bound ones do. */
void OrvCamConfigFrameABDialogPrivate::buildExposureTime()
{
    QtOrvSliderSpinBox *const time = ui.spBoxExposureTime;
    time->setValidate(true);
    time->setValidateTyping(false);
    time->spinBox()->setEntryGuarded(true);
    ControlWatch::install(time);
    QObject::connect(time, QOverload<int>::of(&QtOrvSliderSpinBox::valueChanged), q,
                     [this](int microseconds) { setExposureTime(microseconds); });
    QObject::connect(EntryGuard::of(time->spinBox()), &EntryGuard::entered, q,
                     [this, time] { setExposureTime(time->value()); });
}

void OrvCamConfigFrameABDialogPrivate::buildGain()
{
    QtOrvGainSlider *const gain = ui.gainDigital;
    gain->setValidate(true);
    gain->setValidateTyping(false);
    gain->setSingleStep(gainStep);
    gain->spinBox()->setEntryGuarded(true);
    gainSteps.watch(gain);
    QObject::connect(gain, QOverload<double>::of(&QtOrvGainSlider::valueChanged), q,
                     [this](double entered) { setGain(entered); });
    QObject::connect(EntryGuard::of(gain->spinBox()), &EntryGuard::entered, q,
                     [this, gain] { setGain(gain->value()); });
    QObject::connect(ControlWatch::install(gain), &ControlWatch::entryGivenUp, q, [this] { updateGain(); });
}

void OrvCamConfigFrameABDialogPrivate::setCaptions()
{
    ui.spBoxDualLineTime->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Dual Video\nLine Time [pclk]:"));
    ui.spBoxLineTime->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Line Time [pclk]:"));
    ui.spBoxOffsetX->setLeftLabelText(OrvCamConfigFrameABDialog::tr("OffsetX:"));
    ui.spBoxOffsetY->setLeftLabelText(OrvCamConfigFrameABDialog::tr("OffsetY:"));
    ui.spBoxWidth->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Width: ")); // intentionally with a blank at its end
    ui.spBoxHeight->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Height:"));
    ui.gainDigital->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Digital Gain:"));
    ui.spBoxBlackLevel->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Black Level:"));
    ui.spBoxExposureTime->setLeftLabelText(OrvCamConfigFrameABDialog::tr("Exposure Time [%1s]:").arg(microSign));
    alignCaptions(ui.spBoxExposureTime, ui.spBoxExposureLines, ui.spBoxExposureClocks, ui.spBoxLineTime);
    alignCaptions(ui.gainDigital, ui.spBoxBlackLevel);
    alignCaptions(ui.spBoxOffsetX, ui.spBoxWidth);
    alignCaptions(ui.spBoxOffsetY, ui.spBoxHeight);
}

/** Clears what another camera would take over from the former one. */
void OrvCamConfigFrameABDialogPrivate::reset()
{
    ControlWatch::of(ui.gainDigital)->clear();
    ControlWatch::of(ui.spBoxExposureTime)->clear();
    for (QWidget *const control :
         {static_cast<QWidget *>(ui.spBoxLineTime), static_cast<QWidget *>(ui.spBoxDualLineTime),
          static_cast<QWidget *>(ui.spBoxNumFrameAs), static_cast<QWidget *>(ui.spBoxNumFrameBs)})
        control->setEnabled(false);
    // A camera with one frame had a page removed.
    for (QWidget *const page : {ui.pageA, ui.pageB}) {
        const int index = page == ui.pageA ? 0 : 1;
        if (ui.tabFrames->indexOf(page) < 0)
            ui.tabFrames->insertTab(index, page, QString());
        ui.tabFrames->setTabVisible(index, true);
        ui.tabFrames->setTabEnabled(index, true);
        ui.tabFrames->setTabText(index, index == 0 ? pageTitles.first : pageTitles.second);
    }
    const std::lock_guard<std::mutex> locker(mutex);
    values = Cached();
}

const OrvCamConfigFrameABDialogPrivate::Followed OrvCamConfigFrameABDialogPrivate::followed[] = {
    {"PixelClock", &Cached::pixelClock, nullptr, usualPixelClock, &OrvCamConfigFrameABDialogPrivate::clockChanged},
    {lineTimeFeature, &Cached::lineTime, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::clockChanged},
    {linesFeature, &Cached::lines, &Cached::mostLines, 0, &OrvCamConfigFrameABDialogPrivate::exposureChanged},
    {clocksFeature, &Cached::clocks, &Cached::mostClocks, 0, &OrvCamConfigFrameABDialogPrivate::exposureChanged},
    {fixedPeriodFeature, nullptr, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::updateExposureTime},
    {coarseGainFeature, &Cached::coarseGain, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::gainChanged},
    {fineGainFeature, &Cached::fineGain, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::gainChanged},
    {widthActualFeature, nullptr, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::showActualSize},
    {heightActualFeature, nullptr, nullptr, 0, &OrvCamConfigFrameABDialogPrivate::showActualSize}};

/** Null for a feature that is not followed. */
const OrvCamConfigFrameABDialogPrivate::Followed *
OrvCamConfigFrameABDialogPrivate::followedAs(OrvGenParam::Param *param)
{
    const auto found = std::find_if(std::begin(followed), std::end(followed),
                                    [=](const Followed &each) { return qstrcmp(each.feature, param->GetName()) == 0; });
    return found == std::end(followed) ? nullptr : found;
}

void OrvCamConfigFrameABDialogPrivate::getNeededParams()
{
    for (const Followed &each : followed) {
        if (OrvGenParam::Int *const param = camera.integer(each.feature)) {
            cache(param);
            camera.listen(param, this);
        }
    }
    readExposure();
    readGain();
    OrvGenParam::Enum *const triggerMode = camera.enumeration(triggerModeFeature);
    camera.listen(triggerMode, this);
    const bool isTriggerOn = triggerMode && triggerMode->GetValue(nullptr) > 0;
    const std::lock_guard<std::mutex> locker(mutex);
    values.isTriggerOn = isTriggerOn;
}

void OrvCamConfigFrameABDialogPrivate::initComboBoxes()
{
    const std::pair<const char *, QComboBox *> bindings[] = {{"Frame_SubsamplingM", ui.cmBoxSubsamplingM},
                                                             {"Frame_SubsamplingP", ui.cmBoxSubsamplingP},
                                                             {"Frame_Averaging", ui.cmBoxAveraging},
                                                             {"Frame_WdrP1", ui.cmBoxWdrP1},
                                                             {"Frame_WdrP2", ui.cmBoxWdrP2},
                                                             {"Frame_WdrP3", ui.cmBoxWdrP3}};
    for (const auto &[feature, comboBox] : bindings)
        camera.mapper.mapEnumParam(camera.enumeration(feature), comboBox);
    if (camera.mapper.mapEnumParam(camera.enumeration("FrameMode"), ui.cmBoxFrameMode)) {
        QObject::connect(ui.cmBoxFrameMode, &QComboBox::currentTextChanged, q, [this] { onFrameModeChanged(); });
    }
}

void OrvCamConfigFrameABDialogPrivate::initSpinBoxes()
{
    const std::pair<const char *, QtOrvSpinBox *> bindings[] = {
        {linesFeature, ui.spBoxExposureLines}, {clocksFeature, ui.spBoxExposureClocks},
        {"Frame_OffsetX", ui.spBoxOffsetX},    {"Frame_OffsetY", ui.spBoxOffsetY},
        {"Frame_Width", ui.spBoxWidth},        {"Frame_Height", ui.spBoxHeight},
        {"Frame_WdrE1", ui.spBoxWdrE1},        {"Frame_WdrE2", ui.spBoxWdrE2},
        {"Frame_WdrE3", ui.spBoxWdrE3}};
    for (const auto &[feature, spinBox] : bindings)
        camera.mapper.mapIntParam(camera.integer(feature), spinBox);
}

void OrvCamConfigFrameABDialogPrivate::initRadioButtons()
{
    const std::pair<const char *, QButtonGroup *> bindings[] = {{"ShutterMode", ui.btnGroupShutter},
                                                                {"SensorADCBitDepth", ui.btnGroupBitDepth},
                                                                {"Frame_ExposureControl", ui.btnGroupExposureControl},
                                                                {"Frame_DecimationMode", ui.btnGroupDecimation},
                                                                {"Frame_AnalogGain", ui.btnGroupAnalogGain}};
    for (const auto &[feature, group] : bindings)
        camera.mapper.mapEnumParam(camera.enumeration(feature), group);
}

void OrvCamConfigFrameABDialogPrivate::initSliders()
{
    camera.mapper.mapIntParam(camera.integer("Frame_BlackLevel"), ui.spBoxBlackLevel, nullptr);
    if (camera.mapper.mapIntParam(camera.integer(fixedPeriodFeature), ui.spBoxFixedPeriod, this)) {
        QObject::connect(ui.spBoxFixedPeriod, QOverload<int>::of(&QtOrvSliderSpinBox::valueChanged), q,
                         [this] { updateExposureTime(); });
    }
}

void OrvCamConfigFrameABDialogPrivate::initTabWidget()
{
    camera.mapper.mapEnumParam(camera.enumeration(selectorFeature), ui.tabFrames);
}

void OrvCamConfigFrameABDialogPrivate::initCheckBoxes()
{
    camera.mapper.mapBooleanParam(camera.boolean("Frame_WdrEnable"), ui.chBoxWdr);
    if (camera.mapper.mapBooleanParam(camera.boolean("Frame_FixedFramePeriodEnable"), ui.chBoxFixedPeriod))
        QObject::connect(ui.chBoxFixedPeriod, &QCheckBox::toggled, q, [this] { updateExposureTime(); });
}

Cached OrvCamConfigFrameABDialogPrivate::cached() const
{
    const std::lock_guard<std::mutex> locker(mutex);
    return values;
}

/** Reads \a param and no other: another one may be about to be written. False when it cannot be read. */
bool OrvCamConfigFrameABDialogPrivate::cache(OrvGenParam::Int *param)
{
    const Followed *const known = followedAs(param);
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = param->GetValue(&err);
    const std::int64_t maximum = param->GetMax(nullptr);
    const std::lock_guard<std::mutex> locker(mutex);
    if (known && known->value)
        values.*known->value = err == OrvCamErr_Ok ? value : known->unreadable;
    if (known && known->maximum)
        values.*known->maximum = maximum;
    return err == OrvCamErr_Ok;
}

bool OrvCamConfigFrameABDialogPrivate::isBound(const char *feature, const QWidget *control) const
{
    const auto records = camera.mapper.bindings(QLatin1String(feature));
    return !records.isEmpty() && records.first().control == control;
}

/** The camera's mode, because the box may show a refused one; the box's mode if the camera's cannot be read. */
QString OrvCamConfigFrameABDialogPrivate::frameMode() const
{
    OrvGenParam::Enum *const param = camera.enumeration("FrameMode");
    OrvCamErr err = OrvCamErr_Ok;
    const char *const mode = param && param->IsReadable() ? param->GetValueStr(&err) : nullptr;
    return mode && err == OrvCamErr_Ok ? QString::fromUtf8(mode) : ui.cmBoxFrameMode->currentText();
}

void OrvCamConfigFrameABDialogPrivate::onFrameModeChanged()
{
    const int page = onlyPage(frameMode());
    bindForMode(page >= 0);
    const auto isSame = sameCamera();
    const bool isReported = camera.mapper.isRefreshing();
    if (page >= 0) {
        const QSignalBlocker blocker(isReported ? ui.tabFrames : nullptr);
        ui.tabFrames->setTabEnabled(page, true);
        ui.tabFrames->setCurrentIndex(page);
    }
    if (!isSame())
        return;
    enablePages();
    // The mapper has selected the frame of a mode that the user chose. After a report the frame on show is selected
    // from the event loop, because it is the one that is edited from now on.
    if (page >= 0 && isReported)
        QTimer::singleShot(0, camera.context(), [this] { selectShownFrame(); });
}

/** The line time has two controls, one for both frames and one for a single frame, but a feature is bound to one. */
void OrvCamConfigFrameABDialogPrivate::bindForMode(bool isSingle)
{
    QtOrvSliderSpinBox *const lineTime = isSingle ? ui.spBoxLineTime : ui.spBoxDualLineTime;
    if (!isBound(lineTimeFeature, lineTime))
        camera.mapper.mapIntParam(camera.integer(lineTimeFeature), lineTime, nullptr);
    const std::pair<const char *, QtOrvSpinBox *> counts[] = {{"NumberOfFrameAs", ui.spBoxNumFrameAs},
                                                              {"NumberOfFrameBs", ui.spBoxNumFrameBs}};
    for (const auto &[feature, spinBox] : counts) {
        if (isSingle)
            camera.mapper.unmapParam(camera.integer(feature), spinBox);
        else if (!isBound(feature, spinBox))
            camera.mapper.mapIntParam(camera.integer(feature), spinBox);
    }
}

/** The page of the single frame that \a mode takes; -1 when it takes both. */
int OrvCamConfigFrameABDialogPrivate::onlyPage(const QString &mode)
{
    if (mode == QLatin1String("FrameA"))
        return 0;
    return mode == QLatin1String("FrameB") ? 1 : -1;
}

bool OrvCamConfigFrameABDialogPrivate::canShow(int page) const
{
    OrvGenParam::Enum *const selector = camera.enumeration(selectorFeature);
    OrvGenParam::EnumEntry *const entry = selector ? selector->GetEnumEntryByIndex(page, nullptr) : nullptr;
    const int only = onlyPage(frameMode());
    return (only < 0 || only == page) && (!selector || (entry && entry->IsAvailable()));
}

/** The current page stays enabled: disabling it would show another page, and so select another frame. */
void OrvCamConfigFrameABDialogPrivate::enablePages()
{
    for (int page = 0; page < ui.tabFrames->count(); ++page)
        ui.tabFrames->setTabEnabled(page, page == ui.tabFrames->currentIndex() || canShow(page));
}

void OrvCamConfigFrameABDialogPrivate::selectShownFrame()
{
    OrvGenParam::Enum *const selector = camera.enumeration(selectorFeature);
    const int page = ui.tabFrames->currentIndex();
    if (page != onlyPage(frameMode()) || !isUsable(selector))
        return;
    const QByteArray frame = ui.tabFrames->tabText(page).toUtf8();
    if (frame == selector->GetValueStr(nullptr))
        return;
    const QPointer<QWidget> parent(ui.tabFrames);
    const OrvCamErr err = selector->SetValueStr(frame.constData());
    if (parent)
        OrvCamConfigMapper::showErrorMessage(err, parent, selector);
}

void OrvCamConfigFrameABDialogPrivate::showFixedPeriod()
{
    OrvGenParam::Int *const period = camera.integer(fixedPeriodFeature);
    if (period && period->IsReadable())
        camera.mapper.updateSliderSpinBox(period, ui.spBoxFixedPeriod, this);
}

void OrvCamConfigFrameABDialogPrivate::showActualSize()
{
    const auto text = [this](const char *feature) {
        OrvGenParam::Int *const param = camera.integer(feature);
        const bool isShown = param && param->IsAvailable() && param->IsReadable();
        return isShown ? QString::number(param->GetValue(nullptr)) : QString();
    };
    const QString width = text(widthActualFeature);
    const QString height = text(heightActualFeature);
    const bool isKnown = !width.isEmpty() && !height.isEmpty();
    ui.lblSizeActual->setText(isKnown ? QStringLiteral("%1 × %2").arg(width, height) : QString());
    ui.lblSizeActual->setEnabled(isKnown);
}

/** The time is read-only while lines or clocks are locked. */
void OrvCamConfigFrameABDialogPrivate::updateExposureTime()
{
    OrvGenParam::Int *const lines = camera.integer(linesFeature);
    OrvGenParam::Int *const clocks = camera.integer(clocksFeature);
    const bool isKnown = lines && clocks && lines->IsAvailable() && clocks->IsAvailable();
    const QScopedValueRollback<bool> guard(isShowing, true);
    ui.spBoxExposureTime->setEnabled(isKnown);
    if (!isKnown)
        return;
    const bool isLocked = !lines->IsWritable() || !clocks->IsWritable();
    ui.spBoxExposureTime->setReadOnly(isLocked);
    const Cached now = cached();
    const std::int64_t longest = ui.chBoxFixedPeriod->isChecked() ? ui.spBoxFixedPeriod->value()
                                                                  : exposureTime(now.longestExposure(), now.clock());
    showTime(exposureTime(now.exposure(), now.clock()), longest);
}

/** A field that shows the time keeps what is being typed. A time beyond the range goes into the tool tip. */
void OrvCamConfigFrameABDialogPrivate::showTime(std::int64_t microseconds, std::int64_t longest)
{
    QtOrvSliderSpinBox *const time = ui.spBoxExposureTime;
    time->setRange(0, Integers::clampedToInt(longest));
    const int shown = std::clamp(Integers::clampedToInt(microseconds), time->minimum(), time->maximum());
    if (time->value() != shown || SpinSlider::isEmptied(time->spinBox()))
        SpinSlider::showUnmoved(time->spinBox(), shown);
    if (!isExposureKnown)
        time->spinBox()->clear(); // there is no number to show
    ControlWatch *const watch = ControlWatch::of(time);
    watch->clear();
    if (shown != microseconds)
        watch->note(ControlWatch::valueText(ControlWatch::numberText(microseconds, time)));
}

/** The spin boxes of lines and clocks write, and report what is refused. Then the time shows the camera's values. */
void OrvCamConfigFrameABDialogPrivate::setExposureTime(int microseconds)
{
    if (isShowing)
        return;
    const bool isKnown = readBack({linesFeature, clocksFeature});
    const Cached now = cached();
    const std::optional<Exposure> parts = splitExposure(microseconds, now.clock());
    const auto isSame = sameCamera();
    if (parts && (!isKnown || exposureTime(now.exposure(), now.clock()) != microseconds)) {
        if (!setHalf(linesFeature, ui.spBoxExposureLines, parts->lines, isKnown) || !isSame())
            return;
        setHalf(clocksFeature, ui.spBoxExposureClocks, parts->clocks, isKnown);
    }
    if (!isSame())
        return;
    for (const char *const feature : {linesFeature, clocksFeature}) {
        if (OrvGenParam::Int *const half = camera.integer(feature))
            camera.mapper.OnParameterUpdate(half);
        if (!isSame())
            return;
    }
    readExposure();
    updateExposureTime();
}

/**
 * Sets the spin box, which first shows the camera's value so that it signals every number that differs. If the camera's
 * value cannot be read, the spin box may have that number already and signals nothing; then it is written here.
 */
bool OrvCamConfigFrameABDialogPrivate::setHalf(const char *feature, QtOrvSpinBox *spinBox, std::int64_t value,
                                               bool isKnown)
{
    const auto isSame = sameCamera();
    OrvGenParam::Int *const half = camera.integer(feature);
    if (half)
        camera.mapper.updateSpinBox(half, spinBox);
    if (!isSame())
        return false;
    if (half && !isKnown && spinBox->value() == value && half->IsWritable())
        OrvCamConfigMapper::showErrorMessage(half->SetValue(value), spinBox, half);
    else
        spinBox->setValue(Integers::clampedToInt(value));
    return isSame();
}

void OrvCamConfigFrameABDialogPrivate::readExposure()
{
    isExposureKnown = readBack({linesFeature, clocksFeature});
}

void OrvCamConfigFrameABDialogPrivate::readGain()
{
    isGainKnown = readBack({coarseGainFeature, fineGainFeature});
}

/** False when one that the camera has cannot be read. */
bool OrvCamConfigFrameABDialogPrivate::readBack(std::initializer_list<const char *> features)
{
    bool isRead = true;
    for (const char *const feature : features) {
        if (OrvGenParam::Int *const param = camera.integer(feature))
            isRead &= cache(param);
    }
    return isRead;
}

void OrvCamConfigFrameABDialogPrivate::updateGain()
{
    OrvGenParam::Int *const coarse = camera.integer(coarseGainFeature);
    OrvGenParam::Int *const fine = camera.integer(fineGainFeature);
    const QScopedValueRollback<bool> guard(isShowing, true);
    ui.gainDigital->setEnabled(isUsable(coarse) || isUsable(fine));
    if (!coarse && !fine)
        return;
    const Gain lowest{coarse ? coarse->GetMin(nullptr) : 0, fine ? fine->GetMin(nullptr) : 0};
    const Gain highest{coarse ? coarse->GetMax(nullptr) : 0, fine ? fine->GetMax(nullptr) : 0};
    ui.gainDigital->setRange(composedGain(lowest), composedGain(highest));
    // The camera's gain may lie between the steps. A field that shows it keeps what is being typed.
    QtOrvDoubleSpinBoxVal *const field = ui.gainDigital->spinBox();
    const double gain = composedGain(cached().gain());
    if (!SpinSlider::shows(field, gain) || SpinSlider::isEmptied(field))
        SpinSlider::showUnmoved(field, gain);
    if (!isGainKnown)
        field->clear();
    ControlWatch::of(ui.gainDigital)->clear();
}

/** A step that is too small for the camera leads to its next gain. */
Gain OrvCamConfigFrameABDialogPrivate::partsOf(double entered) const
{
    if (!gainSteps.isStep())
        return splitGain(entered);
    GainRange range;
    if (const auto coarse = rangeOf(camera.integer(coarseGainFeature)))
        range.coarse = *coarse;
    if (const auto fine = rangeOf(camera.integer(fineGainFeature)))
        range.fine = *fine;
    return steppedGain(cached().gain(), entered, range);
}

/** Whether the camera has another gain. Two pairs of parts for the same gain are equal here. */
bool OrvCamConfigFrameABDialogPrivate::isNews(const Gain &parts) const
{
    const Gain settable{camera.integer(coarseGainFeature) ? parts.coarse : 0,
                        camera.integer(fineGainFeature) ? parts.fine : 0};
    return composedGain(settable) != composedGain(cached().gain());
}

/** Whether the user typed the number that the field shows for a gain between its steps. */
bool OrvCamConfigFrameABDialogPrivate::isRetyped() const
{
    const QtOrvDoubleSpinBoxVal *const field = ui.gainDigital->spinBox();
    const QString shown = QString::number(composedGain(cached().gain()), 'f', field->decimals());
    return gainSteps.typed() == shown.toDouble();
}

/** A refused half intentionally shows no message: both are read back, and the control is marked. */
void OrvCamConfigFrameABDialogPrivate::setGain(double gain)
{
    if (isShowing)
        return;
    readGain();
    const Gain parts = partsOf(gain);
    const auto isSame = sameCamera();
    OrvCamErr coarseErr = OrvCamErr_Ok;
    OrvCamErr fineErr = OrvCamErr_Ok;
    if (!isGainKnown || (isNews(parts) && !isRetyped())) {
        if (OrvGenParam::Int *const coarse = camera.integer(coarseGainFeature))
            coarseErr = coarse->SetValue(parts.coarse);
        if (OrvGenParam::Int *const fine = isSame() ? camera.integer(fineGainFeature) : nullptr)
            fineErr = fine->SetValue(parts.fine);
    }
    if (!isSame())
        return;
    readGain();
    updateGain();
    const bool isRefused = coarseErr != OrvCamErr_Ok || fineErr != OrvCamErr_Ok;
    if (isRefused && (!isGainKnown || isNews(parts))) // else the half that was taken made the gain
        ControlWatch::of(ui.gainDigital)->mark(isGainKnown ? ui.gainDigital->spinBox()->text() : QString());
}

std::int64_t OrvCamConfigFrameABDialogPrivate::ToControl(std::int64_t deviceValue, OrvGenParam::Int *)
{
    return microsecondsOfLines(deviceValue, cached().clock());
}

/** A number that the camera would refuse becomes the nearest one that it takes. */
std::int64_t OrvCamConfigFrameABDialogPrivate::ToDevice(std::int64_t controlValue, OrvGenParam::Int *param)
{
    const Clock clock = cached().clock();
    return clock.lineTime == 0 ? 0 : fitted(linesOfMicroseconds(controlValue, clock), param);
}

void OrvCamConfigFrameABDialogPrivate::report(OrvGenParam::Param *param)
{
    if (!camera.parameters())
        return;
    auto *const number =
        param->GetType() == OrvGenParam::ParamTypeInt ? dynamic_cast<OrvGenParam::Int *>(param) : nullptr;
    const Followed *const known = number ? followedAs(number) : nullptr;
    if (!known)
        return;
    cache(number);
    (this->*known->react)();
}

void OrvCamConfigFrameABDialogPrivate::clockChanged()
{
    showFixedPeriod();
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::exposureChanged()
{
    readExposure();
    updateExposureTime();
}

void OrvCamConfigFrameABDialogPrivate::gainChanged()
{
    readGain();
    updateGain();
}

OrvCamConfigFrameABDialog::OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent)
    : QDialog(parent)
    , d(new OrvCamConfigFrameABDialogPrivate(this))
{
    d->init(device);
}

OrvCamConfigFrameABDialog::~OrvCamConfigFrameABDialog() = default;

bool OrvCamConfigFrameABDialog::SetDevice(OrvCam::Device *device)
{
    return d->init(device);
}

void OrvCamConfigFrameABDialog::showEvent(QShowEvent *event)
{
    d->fitSliders();
    QDialog::showEvent(event);
}

void OrvCamConfigFrameABDialog::closeEvent(QCloseEvent *event)
{
    Q_EMIT closing();
    QDialog::closeEvent(event);
}

} // namespace OrvGui

void ShowFrameABDialog(OrvCam::Device *device, std::uint64_t parentWindowId)
{
    OrvGui::showFeatureDialog("color", device, parentWindowId); // not Frame A/B, intentionally
}
