// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigcolordialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigframeabdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigoutputdialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigpulsedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigstrobedialog.h>
#include <OrvCameraGuiApi/camconfig/dialogs/orvcamconfigtriggerdialog.h>
#include <OrvCameraGuiApi/camconfig/showcamconfigdialog.h>

#include <cstdint>
#include <functional>
#include <utility>

namespace OrvGui {

/** A dialog for a group of a camera's features, and what a window needs to offer it. */
struct FeatureDialog
{
    const char *kind; ///< names the dialog in programs and settings, never translated
    const char *button; ///< object name of its button in the configuration window
    const char *action; ///< object name of its entry in that window's menu
    const char *title; ///< translated in the context "OrvCamConfigMainWindow"
    const char *icon; ///< a resource
    const char *neededFeature; ///< enumeration without which the dialog is not offered; null: always offered
    void (*show)(OrvCam::Device *device, std::uint64_t parentWindowId); ///< its C function

    /** \name The class. A dialog that is passed to these functions was made by make(). @{ */
    const QMetaObject *type;
    QDialog *(*make)(OrvCam::Device *device, QWidget *parent);
    bool (*setDevice)(QDialog &dialog, OrvCam::Device *device);
    /** Calls \a react, for the life of \a context, whenever \a dialog is about to close. */
    void (*onClosing)(QDialog &dialog, QObject *context, const std::function<void()> &react);
    /** @} */
};

template <typename Dialog>
FeatureDialog featureDialog(const char *kind, const char *button, const char *action, const char *title,
                            const char *icon, const char *neededFeature,
                            void (*show)(OrvCam::Device *device, std::uint64_t parentWindowId))
{
    FeatureDialog row{kind, button, action, title, icon, neededFeature, show, &Dialog::staticMetaObject, {}, {}, {}};
    row.make = [](OrvCam::Device *device, QWidget *parent) -> QDialog * { return new Dialog(device, parent); };
    row.setDevice = [](QDialog &dialog, OrvCam::Device *device) {
        return static_cast<Dialog &>(dialog).SetDevice(device);
    };
    row.onClosing = [](QDialog &dialog, QObject *context, const std::function<void()> &react) {
        QObject::connect(static_cast<Dialog *>(&dialog), &Dialog::closing, context, react);
    };
    return row;
}

/**
 * The feature dialogs, in the order in which windows and menus offer them. This table is all that the configuration
 * window, the C functions, the explorer and the tests know of them; it stands in a header so that the explorer can use
 * it without a further symbol in the library.
 */
inline const auto &featureDialogs()
{
    static const FeatureDialog dialogs[] = {
        featureDialog<OrvCamConfigFrameABDialog>("frameab", "pushBtnFrameAB", "actionFrame_A_B",
                                                 QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Frame A/B"),
                                                 ":/icons/frameab.ico", "FrameAB_Selector", ShowFrameABDialog),
        featureDialog<OrvCamConfigTriggerDialog>("trigger", "pushBtnTrigger", "actionTrigger",
                                                 QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Trigger"),
                                                 ":/icons/trigger.ico", nullptr, ShowTriggerDialog),
        featureDialog<OrvCamConfigPulseDialog>("pulse", "pushBtnPulse", "actionPulse",
                                               QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Pulse"),
                                               ":/icons/pulse.ico", nullptr, ShowPulseDialog),
        featureDialog<OrvCamConfigStrobeDialog>("strobe", "pushBtnStrobe", "actionStrobe",
                                                QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Strobe"),
                                                ":/icons/strobe.ico", nullptr, ShowStrobeDialog),
        featureDialog<OrvCamConfigOutputDialog>("dataout", "pushBtnDataOut", "actionData_Out",
                                                QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Data Out"),
                                                ":/icons/dataout.ico", nullptr, ShowOutputDialog),
        featureDialog<OrvCamConfigColorDialog>("color", "pushBtnColor", "actionColor",
                                               QT_TRANSLATE_NOOP("OrvCamConfigMainWindow", "Color"),
                                               ":/icons/color.ico", nullptr, ShowColorDialog)};
    return dialogs;
}

} // namespace OrvGui
