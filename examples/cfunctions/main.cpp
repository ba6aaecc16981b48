// Shows the feature tree of a camera with nothing but the C functions, which need no Qt header. They make the Qt
// application object; all that is left to do is to let it process its events.

#include "firstcamera.h"

#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>

#include <QCoreApplication>

int main()
{
    OrvCam::Device *const camera = openFirstCamera();
    if (!camera)
        return 1;

    OrvGui::IOrvGenParamTreeView *const view =
        CreateGenParamTreeViewForArrayA(camera->GetCameraParameters(nullptr), "The first camera", 0);
    view->setVisibility(OrvGui::Expert);
    view->setPollingTime(500);
    view->enablePolling(true);
    const int result = QCoreApplication::exec();
    DestroyGenParamTreeView(view);
    camera->Release();
    return result;
}
