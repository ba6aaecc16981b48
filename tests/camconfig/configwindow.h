// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "dialogtest.h"
#include "whenopen.h"

#include <OrvCameraGuiApi/background/periods.h>
#include <OrvCameraGuiApi/camconfig/camerastatus.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTreeView>

#include <tuple>

/** What the tests of the configuration window share. */
namespace ConfigTest {

using OrvGui::OrvCamConfig;
using OrvGui::OrvCameraSelectorDialog;

/** A feature dialog, the button and the menu entry that open it. */
struct Parts
{
    const char *dialog;
    const char *button;
    const char *action;
};

constexpr Parts dialogs[] = {{"OrvCamConfigFrameABDialog", "pushBtnFrameAB", "actionFrame_A_B"},
                             {"OrvCamConfigTriggerDialog", "pushBtnTrigger", "actionTrigger"},
                             {"OrvCamConfigPulseDialog", "pushBtnPulse", "actionPulse"},
                             {"OrvCamConfigStrobeDialog", "pushBtnStrobe", "actionStrobe"},
                             {"OrvCamConfigOutputDialog", "pushBtnDataOut", "actionData_Out"},
                             {"OrvCamConfigColorDialog", "pushBtnColor", "actionColor"}};

inline QDialog *dialogOf(const OrvCamConfig &window, const Parts &parts)
{
    return DialogTest::part<QDialog>(window, parts.dialog);
}

inline void trigger(const OrvCamConfig &window, const char *action)
{
    DialogTest::part<QAction>(window, action)->trigger();
}

/** Size, rate, frame time and exposure time of a frame, "A" or "B", as they stand in their column. */
inline QString column(const OrvCamConfig &window, const char *frame)
{
    QStringList texts;
    for (const char *const field : {"Size", "Fps", "Ftm", "Exp"}) {
        const QByteArray name = QByteArray("lineEdit") + field + "Frame" + frame;
        texts.append(DialogTest::part<QLineEdit>(window, name.constData())->text());
    }
    return texts.join(QLatin1Char(' '));
}

inline QString temperature(const OrvCamConfig &window)
{
    return DialogTest::part<QLineEdit>(window, "lineEditTemperature")->text();
}

inline QString statusText(const OrvCamConfig &window)
{
    return DialogTest::part<QLabel>(window, "lblDeviceName")->text();
}

inline QString disconnected()
{
    return OrvTest::translated("OrvGui::OrvCamConfig", "Disconnected");
}

inline QString unknown()
{
    return OrvTest::translated("OrvGui::OrvCamConfig", "Unknown");
}

const QString noInfo = QStringLiteral("   ");
const QString frameA = QStringLiteral("1920x1080 50.00 20000 105");
const QString frameB = QStringLiteral("640x480 200.00 5000 2000");
const QString monochromeFrame = QStringLiteral("1280x1024 106.20 9416 5000");

/** Lets the user choose a camera in the selector, with the mouse. */
inline void choose(OrvCameraSelectorDialog &selector, const char *id)
{
    auto *const tree = DialogTest::part<QTreeView>(selector, "deviceTreeView");
    auto *const model = static_cast<DeviceTreeModel *>(tree->model());
    const QPoint place = tree->visualRect(model->getItemIdx(QLatin1String(id))).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseClick(selector.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

/** The next selector is answered with that camera. */
inline void chooseWhenAsked(const char *id)
{
    OrvTest::whenOpen<OrvCameraSelectorDialog>([id](OrvCameraSelectorDialog &selector) { choose(selector, id); });
}

inline void cancelWhenAsked()
{
    OrvTest::whenOpen<OrvCameraSelectorDialog>(
        [](OrvCameraSelectorDialog &selector) { QTest::keyClick(&selector, Qt::Key_Escape); });
}

/** Whether all that cameras and systems gave out has come back. */
inline bool isNothingHeld()
{
    const OrvSim::LiveObjects live = OrvSim::liveObjects();
    return live.systemReferences + live.lists + live.devices + live.eventCallbacks + live.sinks + live.nodeCallbacks
        == 0;
}

} // namespace ConfigTest
