// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// A form of Qt Designer with a value-entry widget and the feature tree of a camera.

#include "firstcamera.h"
#include "ui_panel.h"

#include <QApplication>

int main(int argc, char **argv)
{
#if QT_VERSION_MAJOR < 6
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    OrvCam::Device *const camera = openFirstCamera();
    if (!camera)
        return 1;

    QWidget window;
    Ui::Panel form;
    form.setupUi(&window);
    OrvGui::OrvGenParamTreeView *const features = form.features;
    features->setWindowFlags(Qt::Widget); // a dialog otherwise
    features->setParams(camera->GetCameraParameters(nullptr));
    const auto poll = [features](int milliseconds) {
        features->setPollingTime(static_cast<unsigned long>(milliseconds));
    };
    poll(form.pollingTime->value());
    QObject::connect(form.pollingTime, qOverload<int>(&QtOrvSliderSpinBox::valueChanged), features, poll);
    features->enablePolling(true);
    window.show();
    const int result = QApplication::exec();
    features->clearParams(); // the camera goes before the view
    camera->Release();
    return result;
}
