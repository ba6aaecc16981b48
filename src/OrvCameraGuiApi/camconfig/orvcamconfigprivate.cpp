// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/orvcamconfigprivate.h>

#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigaboutdialog.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>

#include <QAbstractSpinBox>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <utility>

/*
 * The configuration window's content: the status of the camera, once a second, and the state of the dialogs' buttons.
 */

namespace {

/** A report counts again this many steps after both frames were read. */
const int forgetful = 3;

bool hasParameters(OrvCam::Device *device)
{
    OrvCamErr err = OrvCamErr_Ok;
    return device && device->GetCameraParameters(&err) && err == OrvCamErr_Ok;
}

} // namespace

namespace OrvGui {

/** Acts on the last event, if there is one. */
void OrvCamConfigPrivate::step()
{
    switch (pendingEvent.exchange(NoEvent)) {
    case Disconnected:
        return loseCamera();
    case Connected:
        return takeBack();
    default:
        break;
    }
    if (awaitsParameters && hasParameters(device))
        return takeBack();
    if (params.temperature)
        updateTemperature();
    if (std::exchange(isModeReported, false) && readFrameMode())
        modeChanged = true;
    stepsSinceBoth = std::min(stepsSinceBoth + 1, forgetful);
    markColumns();
    if (frameMode == BothFrames && modeChanged && !isTextBeingTyped()) {
        modeChanged = false;
        updateBoth();
    } else {
        updateInfo(frameBeingRead());
    }
}

/** Reading the other frame refreshes all fields of the dialogs: a text that is being typed would be lost. */
bool OrvCamConfigPrivate::isTextBeingTyped() const
{
    return std::any_of(dialogs.begin(), dialogs.end(), [](const DialogLink &link) {
        const auto *const field = qobject_cast<QAbstractSpinBox *>(link.dialog->focusWidget());
        const EntryGuard *const guard = field ? EntryGuard::of(field) : nullptr;
        return guard && (guard->isTouched() || guard->isBlocked());
    });
}

/** The device stays: it may come back. */
void OrvCamConfigPrivate::loseCamera()
{
    awaitsParameters = false;
    setDialogsDevice(nullptr);
    camera.setDevice(nullptr);
    params = CameraParams();
    clearStatus();
    about->adjustAbout(params);
    updateStatus();
}

void OrvCamConfigPrivate::takeBack()
{
    init(device);
    setDialogsDevice(device);
}

void OrvCamConfigPrivate::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (camera.isForGuiThread(param, this))
        return;
    if (!device || param->GetType() != OrvGenParam::ParamTypeEnum || !param->IsReadable())
        return;
    auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
    if (choice && choice == params.frameAbSelector)
        readSelector();
    else if (choice && choice == params.frameMode)
        frameModeReported();
}

/** False when it cannot be read; the last known value stays then. */
bool OrvCamConfigPrivate::readSelector()
{
    const auto frame = valueOf(params.frameAbSelector);
    if (frame)
        selectorIsB = *frame != QLatin1String("FrameA");
    return frame.has_value();
}

/** Whether the mode has changed. A mode that cannot be read stays as last known. */
bool OrvCamConfigPrivate::readFrameMode()
{
    const auto mode = valueOf(params.frameMode);
    if (!mode)
        return false;
    const FrameMode former = frameMode;
    if (*mode == QLatin1String("FrameA"))
        frameMode = FrameAOnly;
    else if (*mode == QLatin1String("FrameB"))
        frameMode = FrameBOnly;
    else
        frameMode = BothFrames;
    if (frameMode == former)
        return false;
    isModeRepeated = false;
    return true;
}

/**
 * Reading both frames writes the selector, which may itself cause a report. A mode that is reported repeatedly
 * therefore counts once, and not at all right after both frames were read.
 */
void OrvCamConfigPrivate::frameModeReported()
{
    if (isSelecting) {
        isModeReported = true; // step() acts only if the mode has changed
        return;
    }
    if (readFrameMode() || (!std::exchange(isModeRepeated, true) && stepsSinceBoth >= forgetful))
        modeChanged = true;
}

void OrvCamConfigPrivate::updateStatus()
{
    const bool isConnected = camera.parameters();
    const auto name = valueOf(params.modelName).value_or(OrvCamConfig::tr("Unknown"));
    deviceName->setText(isConnected ? name : OrvCamConfig::tr("Disconnected"));
    connectionIcon->setPixmap(isConnected ? connected : disconnected);
    connectionIcon->setToolTip(isConnected ? OrvCamConfig::tr("Connected") : OrvCamConfig::tr("Disconnected"));
    connectionIcon->setAccessibleName(connectionIcon->toolTip());
    ui.statusbar->clearMessage();
    ui.groupBox->setEnabled(isConnected);
    ui.actionDisconnect->setEnabled(device);
    markColumns();
}

void OrvCamConfigPrivate::updateTemperature()
{
    ui.lineEditTemperature->setText(decimal(params.temperature));
}

/** Shows the values of the selected frame in the column of \a frame. */
void OrvCamConfigPrivate::updateInfo(Frame frame)
{
    const InfoFields &fields = info[frame];
    fields.size->setText(sizeText(params.width, params.height));
    fields.exposureTime->setText(decimal(params.exposureTime));
    const auto frameTime = valueOf(params.frameTime);
    fields.frameTime->setText(frameTime ? QString::number(*frameTime) : QString());
    fields.framesPerSecond->setText(frameTime ? framesPerSecond(*frameTime) : QString());
}

/** Selects the other frame for the moment of reading. A frame that cannot be selected is not shown. */
void OrvCamConfigPrivate::updateBoth()
{
    // Again, because another thread may just have changed it.
    if (!readSelector())
        return;
    const bool isB = selectorIsB;
    const Frame other = isB ? FrameA : FrameB;
    stepsSinceBoth = 0;
    updateInfo(isB ? FrameB : FrameA);
    clearInfo(other);
    if (!selectFrame(isB ? "FrameA" : "FrameB"))
        return;
    updateInfo(other);
    selectFrame(isB ? "FrameB" : "FrameA");
}

/**
 * False when the camera does not select that frame, or when a listener destroyed the window or let the camera go; no
 * member may be used then.
 */
bool OrvCamConfigPrivate::selectFrame(const char *frame)
{
    const QPointer<OrvCamConfig> alive(q);
    OrvGenParam::Enum *const choice = params.frameAbSelector;
    isSelecting = true;
    const OrvCamErr err = choice->SetValueStr(frame);
    if (!alive)
        return false;
    isSelecting = false;
    return err == OrvCamErr_Ok && choice == params.frameAbSelector;
}

/** The column that is kept up to date. */
OrvCamConfigPrivate::Frame OrvCamConfigPrivate::frameBeingRead() const
{
    if (frameMode == BothFrames)
        return selectorIsB ? FrameB : FrameA;
    return frameMode == FrameBOnly ? FrameB : FrameA;
}

/** A column that is not kept up to date is grey, and its tool tips say so. */
void OrvCamConfigPrivate::markColumns()
{
    const std::array<QLabel *, 2> headers = {ui.lblFrameA, ui.lblFrameB};
    const bool areTwo = camera.parameters() && hasFrameAB;
    const Frame read = frameBeingRead();
    const QString note = OrvCamConfig::tr("Not read at present: the camera shows \"%1\"").arg(headers[read]->text());
    for (const Frame frame : {FrameA, FrameB}) {
        const bool isRead = !areTwo || frame == read;
        headers[frame]->setEnabled(isRead);
        setColumnColor(frame, isRead ? QColor() : q->palette().color(QPalette::Disabled, QPalette::Text));
        for (QLineEdit *const field : info[frame].all()) {
            field->setToolTip(isRead ? QString() : note);
            if (field->accessibleDescription() != field->toolTip())
                field->setAccessibleDescription(field->toolTip());
        }
    }
}

/** An invalid \a color restores the usual one. The fields stay enabled so that their texts can be copied. */
void OrvCamConfigPrivate::setColumnColor(Frame frame, const QColor &color)
{
    if (std::exchange(columnColors[frame], color) == color)
        return;
    QPalette palette;
    if (color.isValid())
        palette.setColor(QPalette::Text, color);
    for (QLineEdit *const field : info[frame].all())
        field->setPalette(palette);
}

void OrvCamConfigPrivate::clearInfo(Frame frame)
{
    for (QLineEdit *const field : info[frame].all())
        field->clear();
}

void OrvCamConfigPrivate::clearStatus()
{
    clearInfo(FrameA);
    clearInfo(FrameB);
    ui.lineEditTemperature->clear();
}

void OrvCamConfigPrivate::isShowFrameABStuff(bool show)
{
    const auto fieldsA = info[FrameA].all();
    const auto fieldsB = info[FrameB].all();
    for (std::size_t i = 0; i < fieldsA.size(); ++i) {
        const int row = int(i) + 1;
        ui.gridLayout->removeWidget(fieldsA[i]);
        ui.gridLayout->removeWidget(fieldsB[i]);
        ui.gridLayout->addWidget(fieldsA[i], row, 1, 1, show ? 1 : 2);
        if (show)
            ui.gridLayout->addWidget(fieldsB[i], row, 2);
        fieldsB[i]->setVisible(show);
    }
    ui.lblFrameB->setVisible(show);
    offerDialogs();
}

/** The buttons stand in rows of three, without a gap where one is hidden. */
void OrvCamConfigPrivate::offerDialogs()
{
    constexpr int columns = 3;
    int place = 0;
    for (const DialogLink &link : std::as_const(dialogs)) {
        link.action->setVisible(link.isOffered);
        link.button->setVisible(link.isOffered);
        ui.buttonLayout->removeWidget(link.button);
        if (link.isOffered) {
            ui.buttonLayout->addWidget(link.button, place / columns, place % columns);
            ++place;
        } else {
            link.button->setChecked(false);
        }
    }
}

void OrvCamConfigPrivate::doLastAdjustment()
{
    // Nor narrower: beside the captions of another language a size would be cut.
    const auto fixWidth = [](QLineEdit *field) {
        field->setFixedWidth(field->fontMetrics().horizontalAdvance(QString(12, QLatin1Char('x'))));
    };
    for (const InfoFields &fields : info) {
        for (QLineEdit *const field : fields.all())
            fixWidth(field);
    }
    fixWidth(ui.lineEditTemperature);
    isShowFrameABStuff(hasFrameAB);
    about->adjustAbout(params);
    updateStatus();
}

/** Follows the dialogs, however they were opened or closed. */
void OrvCamConfigPrivate::checkViewMenu()
{
    for (const DialogLink &link : std::as_const(dialogs)) {
        link.button->setChecked(!link.dialog->isHidden());
        link.action->setChecked(!link.dialog->isHidden());
    }
}

void OrvCamConfigPrivate::closeDialogs()
{
    for (const DialogLink &link : std::as_const(dialogs))
        link.dialog->close();
    about->close();
    if (selector)
        selector->reject();
}

void OrvCamConfigPrivate::showAbout()
{
    about->adjustAbout(params);
    about->show();
    about->activateWindow();
}

} // namespace OrvGui
