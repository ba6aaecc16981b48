// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "dialogtest.h"

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigframeabdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>

#include <QDialog>

#include <initializer_list>

/** Every feature that a dialog binds, with its control and values that suit it. */
namespace Bindings {

/** A row of a table of bindings: the user sets \a next, in lists by one key, and the camera reports \a reported. */
struct Binding
{
    const char *feature;
    const char *control;
    QByteArray next;
    QByteArray reported;
    int unit = 1; ///< what a one of the camera is shown as

    /** A value of the camera in the words of the control. */
    QByteArray shownAs(const QByteArray &value) const
    {
        return unit == 1 ? value : QByteArray::number(value.toInt() * unit);
    }
};

/** Values that features have before. */
using Settings = QVector<QPair<const char *, const char *>>;

/** A binding, the dialog it is in and what has to be set for it to be usable. */
struct Walk
{
    QDialog *(*make)(OrvCam::Device *);
    Settings given;
    Binding row;
};

template <typename Dialog>
void add(QVector<Walk> &walks, const Settings &given, std::initializer_list<Binding> bindings)
{
    const auto make = [](OrvCam::Device *device) -> QDialog * {
        auto *const dialog = new Dialog(device);
        dialog->SetDevice(device); // twice makes no second write
        return dialog;
    };
    for (const Binding &row : bindings)
        walks.append({make, given, row});
}

inline QVector<Walk> all()
{
    QVector<Walk> walks;
    add<OrvGui::OrvCamConfigColorDialog>(walks, {},
                                         {{"BalanceWhiteAuto", "cmBoxWhiteBalance", "Auto", "Off"},
                                          {"RedCoefficient", "spBoxRed", "1234", "4095"},
                                          {"GreenCoefficient", "spBoxGreen", "1235", "0"},
                                          {"BlueCoefficient", "spBoxBlue", "1236", "77"}});
    add<OrvGui::OrvCamConfigColorDialog>(walks, {{"BalanceWhiteAuto", "Auto"}},
                                         {{"AutoTrackingSpeed", "cmBoxTrackingSpeed", "Fast", "Slow"}});
    add<OrvGui::OrvCamConfigOutputDialog>(walks,
                                          {{"DefectPixelCorrection", "Static"}, {"HotPixelCorrection", "Static"}},
                                          {{"PixelFormat", "cmBoxPixelFormat", "BayerRG10", "BayerRG12"},
                                           {"SensorADCBitDepth11", "cmBoxTaps", "Taps4", "Taps1"},
                                           {"SensorADCBitDepth", "cmBoxDepth", "Bits10", "Bits8"},
                                           {"TestPattern", "cmBoxTestMode", "GreyHorizontalRamp", "Checkerboard"},
                                           {"LUTSelector", "cmBoxLut", "LUT2", "LUT1"},
                                           {"DefectPixelCorrection", "cmBoxDpc", "Dynamic", "Off"},
                                           {"HotPixelCorrection", "cmBoxHpc", "Dynamic", "Off"},
                                           {"LUTEnable", "chBoxEnableLut", "true", "false"},
                                           {"ReverseX", "chBoxHorMirror", "true", "false"},
                                           {"ReverseY", "chBoxVerMirror", "true", "false"}});
    add<OrvGui::OrvCamConfigOutputDialog>(walks,
                                          {{"DefectPixelCorrection", "Dynamic"}, {"HotPixelCorrection", "Dynamic"}},
                                          {{"DefectPixelThreshold", "spBoxDpcDynThres", "77", "4095"},
                                           {"HotPixelThreshold", "spBoxHpcDynThres", "78", "0"}});
    add<OrvGui::OrvCamConfigPulseDialog>(walks, {{"PulseGenMode", "NumberOfPulses"}},
                                         {{"PulseGenGranularity", "cmBoxGranularity", "x10us", "x100us"},
                                          {"PulseGenPeriod", "spBoxPeriod", "20000", "1000"},
                                          {"PulseGenWidth", "spBoxWidth", "123457", "1"},
                                          {"PulseGenNumPulses", "spBoxNumPulses", "65536", "7"},
                                          {"PulseGenMode", "radioBtnSend", "Continuous", "NumberOfPulses"},
                                          {"PulseGenEnable", "pushBtnPulseEnable", "true", "false"}});
    add<OrvGui::OrvCamConfigStrobeDialog>(walks, {{"Strobe2Mode", "On"}},
                                          {{"Strobe1Mode", "cmBoxStrobe1Mode", "Off", "On"},
                                           {"Strobe2Mode", "cmBoxStrobe2Mode", "Off", "On"},
                                           {"Strobe1Reference", "cmBoxStrobe1Ref", "ReadoutStart", "ExposureStart"},
                                           {"Strobe2Reference", "cmBoxStrobe2Ref", "ExposureStart", "ReadoutStart"},
                                           {"OUT1Polarity", "cmBoxOut1Polarity", "ActiveLow", "ActiveHigh"},
                                           {"OUT2Polarity", "cmBoxOut2Polarity", "ActiveHigh", "ActiveLow"},
                                           {"OUT1Selector", "cmBoxOut1Selector", "Strobe2", "Strobe1"},
                                           {"OUT2Selector", "cmBoxOut2Selector", "Exposure", "TriggerPulse"},
                                           // Numbers that are and numbers that are not positions of the sliders.
                                           {"Strobe1Delay", "spBoxStrobe1Delay", "1000", "0"},
                                           {"Strobe2Delay", "spBoxStrobe2Delay", "123457", "1000000"},
                                           {"Strobe1Width", "spBoxStrobe1Width", "1", "54321"},
                                           {"Strobe2Width", "spBoxStrobe2Width", "999999", "1001"}});
    add<OrvGui::OrvCamConfigTriggerDialog>(walks, {{"TriggerMode", "On"}},
                                           {{"TriggerSource", "cmBoxSource", "PulseGenerator", "IN2"},
                                            {"TriggerActivation", "cmBoxEdge", "FallingEdge", "RisingEdge"},
                                            {"TriggerDebounce", "cmBoxDebounce", "Us50", "Us100"}});
    add<OrvGui::OrvCamConfigFrameABDialog>(
        walks,
        {{"Frame_WdrEnable", "true"},
         {"Frame_DecimationMode", "Subsampling"},
         {"Frame_SubsamplingP", "P4"},
         {"Frame_Width", "640"},
         {"Frame_Height", "600"}},
        {{"FrameAB_Selector", "tabFrames", "FrameB", "FrameA"},
         {"FrameMode", "cmBoxFrameMode", "FrameA", "FrameAB"},
         {"Frame_SubsamplingM", "cmBoxSubsamplingM", "M2", "M1"},
         {"Frame_SubsamplingP", "cmBoxSubsamplingP", "P8", "P2"},
         {"Frame_Averaging", "cmBoxAveraging", "Average2", "Average4"},
         {"Frame_WdrP1", "cmBoxWdrP1", "Percent50", "Percent90"},
         {"Frame_WdrP2", "cmBoxWdrP2", "Percent25", "Percent90"},
         {"Frame_WdrP3", "cmBoxWdrP3", "Percent90", "Percent25"},
         {"ShutterMode", "btnGroupShutter", "Rolling", "Global"},
         {"SensorADCBitDepth", "btnGroupBitDepth", "Bits8", "Bits10"},
         {"Frame_ExposureControl", "btnGroupExposureControl", "TriggerWidth", "Timed"},
         {"Frame_DecimationMode", "btnGroupDecimation", "Averaging", "Off"},
         {"Frame_AnalogGain", "btnGroupAnalogGain", "x4", "x8"},
         {"Frame_ExposureLines", "spBoxExposureLines", "20", "7"},
         {"Frame_ExposureClocks", "spBoxExposureClocks", "100", "1599"},
         {"Frame_OffsetX", "spBoxOffsetX", "320", "16"},
         {"Frame_OffsetY", "spBoxOffsetY", "100", "2"},
         {"Frame_Width", "spBoxWidth", "1280", "64"},
         {"Frame_Height", "spBoxHeight", "480", "1024"},
         {"Frame_WdrE1", "spBoxWdrE1", "11", "4095"},
         {"Frame_WdrE2", "spBoxWdrE2", "12", "0"},
         {"Frame_WdrE3", "spBoxWdrE3", "13", "1"},
         {"Frame_FixedFramePeriodValue", "spBoxFixedPeriod", "3000", "1000", 10},
         {"Frame_BlackLevel", "spBoxBlackLevel", "100", "0"},
         {"Frame_FixedFramePeriodEnable", "chBoxFixedPeriod", "false", "true"},
         {"Frame_WdrEnable", "chBoxWdr", "false", "true"},
         {"Frame_LineTime", "spBoxDualLineTime", "2000", "65535"},
         {"NumberOfFrameAs", "spBoxNumFrameAs", "3", "255"},
         {"NumberOfFrameBs", "spBoxNumFrameBs", "4", "1"}});
    return walks;
}

} // namespace Bindings

Q_DECLARE_METATYPE(Bindings::Walk)
