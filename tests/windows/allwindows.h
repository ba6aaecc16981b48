// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/periods.h>
#include <OrvCameraGuiApi/camconfig/camerastatus.h>
#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigaboutdialog.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/device_selection/setipdialog.h>
#include <OrvCameraGuiApi/feature_tree/filteroptions.h>
#include <OrvCameraGuiApi/feature_tree/generrorsdlg.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <orvtest.h>
#include <simtest.h>

#include <QTreeView>

#include <functional>

/** Every window of the library, for tests of what holds in all of them. */
namespace AllWindows {

/** Makes a window; the camera outlives it. */
using Maker = std::function<QWidget *(OrvCam::System &system, OrvCam::Device &camera)>;

inline void addRow(const char *name, Maker make)
{
    QTest::newRow(name) << std::move(make);
}

/** A feature dialog with a camera and, as it looks before it gets one, without. */
inline void addFeatureDialog(const OrvGui::FeatureDialog &dialog)
{
    addRow(dialog.kind, [&](OrvCam::System &, OrvCam::Device &camera) { return dialog.make(&camera, nullptr); });
    const QByteArray without = QByteArray(dialog.kind) + " without a camera";
    addRow(without.constData(), [&](OrvCam::System &, OrvCam::Device &) { return dialog.make(nullptr, nullptr); });
}

inline void addDeviceSelection()
{
    addRow("camera selector", [](OrvCam::System &system, OrvCam::Device &) {
        auto *const dialog = new OrvGui::OrvCameraSelectorDialog(&system, nullptr, false);
        auto *const tree = dialog->findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
        return dialog;
    });
    addRow("camera selector without a system", [](OrvCam::System &, OrvCam::Device &) {
        return new OrvGui::OrvCameraSelectorDialog(nullptr, nullptr, false);
    });
    addRow("IP configuration", [](OrvCam::System &, OrvCam::Device &) {
        auto *const dialog = new SetIpDialog;
        dialog->setNicMACAddress(0xDDDDDDDDDDDDULL);
        dialog->setMACAddress(0xDDDDDDDDDDDDULL);
        dialog->setNicIPAddress(0xDEDEDEDE);
        dialog->setIPAddress(0xDEDEDEDD);
        return dialog;
    });
}

inline void addCameraConfiguration()
{
    using namespace OrvGui;
    addRow("configuration",
           [](OrvCam::System &, OrvCam::Device &camera) { return new OrvCamConfig(&camera, nullptr); });
    addRow("about", [](OrvCam::System &, OrvCam::Device &camera) {
        auto *const dialog = new OrvCamConfigAboutDialog(nullptr);
        if (OrvGenParam::Array *const params = camera.GetCameraParameters(nullptr))
            dialog->adjustAbout(CameraParams(*params));
        return dialog;
    });
    for (const FeatureDialog &dialog : featureDialogs())
        addFeatureDialog(dialog);
}

/** A test's data: a row for each window, whose column is a Maker. */
inline void addRows()
{
    QTest::addColumn<Maker>("make");
    addRow("feature tree", [](OrvCam::System &, OrvCam::Device &camera) {
        return new OrvGui::OrvGenParamTreeView(camera.GetCameraParameters(nullptr));
    });
    addRow("feature tree without a camera",
           [](OrvCam::System &, OrvCam::Device &) { return new OrvGui::OrvGenParamTreeView; });
    addRow("filter options", [](OrvCam::System &, OrvCam::Device &) { return new FilterOptions(nullptr); });
    addRow("errors", [](OrvCam::System &, OrvCam::Device &) {
        return new GenErrorsDlg(QStringLiteral("Gain: out of range"), nullptr);
    });
    addDeviceSelection();
    addCameraConfiguration();
}

} // namespace AllWindows

Q_DECLARE_METATYPE(AllWindows::Maker)
