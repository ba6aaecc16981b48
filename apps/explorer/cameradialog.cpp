#include "cameradialog.h"

#include "camerasource.h"
#include "openingdialog.h"
#include "plugmenu.h"

#include <OrvCameraApi/transports.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeView>

CameraDialog::CameraDialog(OrvCam::System *system, QWidget *parent)
    : OrvCameraSelectorDialog(system, parent, true)
{
    if (OrvTransports::used() == OrvTransports::Cameras::Real)
        return;
    // In the dialog itself: it is modal, so that no menu of another window could be reached.
    auto *const bar = new QMenuBar(this);
    bar->addMenu(new PlugMenu(this))->setText(tr("&Simulation"));
    layout()->setMenuBar(bar);
}

bool CameraDialog::setFirstAddress()
{
    auto *const tree = findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
    auto *const button = findChild<QAbstractButton *>(QStringLiteral("setIpButton"));
    for (QModelIndex index = tree->model()->index(0, 0); index.isValid(); index = tree->indexBelow(index)) {
        tree->setCurrentIndex(index);
        if (button->isEnabled()) {
            button->click();
            return true;
        }
    }
    return false;
}

std::unique_ptr<CameraSource> chooseCamera(QWidget *parent)
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    for (;;) {
        CameraDialog dialog(system.get(), parent);
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
        try {
            const auto wait = [parent](OrvCam::Device &device, const QString &name) {
                return OpeningDialog::waitFor(device, name, parent);
            };
            if (std::unique_ptr<CameraSource> camera = openCamera(system, dialog.selectedCamera(), wait))
                return camera;
        } catch (const CameraSourceError &e) {
            QMessageBox box(QMessageBox::Warning, QApplication::applicationDisplayName(), e.message, QMessageBox::Ok,
                            parent);
            box.setTextFormat(Qt::PlainText); // the camera has a part in it
            box.exec();
        }
    }
}
