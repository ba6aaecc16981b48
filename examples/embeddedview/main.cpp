// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Puts the feature tree of a camera into a window of one's own.

#include "firstcamera.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
#if QT_VERSION_MAJOR < 6
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication application(argc, argv);
    OrvCam::Device *const camera = openFirstCamera();
    if (!camera)
        return 1;

    QMainWindow window;
    auto *const view = new OrvGui::OrvGenParamTreeView(camera->GetCameraParameters(nullptr), &window);
    view->setWindowFlags(Qt::Widget);
    view->setPollingTime(500);
    view->enablePolling(true);
    window.setCentralWidget(view);
    window.show();
    const int result = QApplication::exec();
    view->clearParams(); // the camera goes before the view
    camera->Release();
    return result;
}
