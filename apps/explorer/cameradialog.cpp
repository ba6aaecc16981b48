// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "cameradialog.h"

#include "camerasource.h"
#include "openingdialog.h"
#include "plugmenu.h"

#include <OrvCameraApi/transports.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStyle>
#include <QTimer>
#include <QTreeView>

CameraDialog::CameraDialog(OrvCam::System *system, QWidget *parent)
    : OrvCameraSelectorDialog(system, parent, true)
{
    addProblems();
    if (OrvTransports::used() == OrvTransports::Cameras::Real)
        return;
    // In the dialog itself: it is modal, so that no menu of another window could be reached.
    auto *const bar = new QMenuBar(this);
    bar->addMenu(new PlugMenu(this))->setText(tr("&Simulation"));
    layout()->setMenuBar(bar);
}

/** Why a real camera may be missing from the list; looked at again and again while people plug and configure. */
void CameraDialog::addProblems()
{
    constexpr int period = 500; // milliseconds
    auto *const label = new QLabel(this);
    label->setObjectName(QStringLiteral("problems"));
    label->setTextFormat(Qt::PlainText); // cameras have a part in it
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    label->hide();
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    label->setContentsMargins(margin, margin, margin, 0);
    qobject_cast<QBoxLayout *>(layout())->insertWidget(0, label);
    auto *const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, label, [label] {
        QStringList lines;
        for (const std::string &problem : OrvTransports::problems())
            lines << QString::fromStdString(problem);
        label->setText(lines.join(QLatin1Char('\n')));
        label->setVisible(!lines.isEmpty());
    });
    timer->start(period);
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

void CameraDialog::prefer(const QString &id)
{
    if (id.isEmpty() || selectDevice(id))
        return;
    auto *const tree = findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
    const auto lookAgain = [this, id] {
        if (!selectedCamera())
            selectDevice(id);
    };
    connect(tree->model(), &QAbstractItemModel::rowsInserted, this, lookAgain, Qt::QueuedConnection);
}

bool CameraDialog::selectDevice(const QString &id)
{
    auto *const tree = findChild<QTreeView *>(QStringLiteral("deviceTreeView"));
    const QPersistentModelIndex before = tree->currentIndex();
    for (QModelIndex index = tree->model()->index(0, 0); index.isValid(); index = tree->indexBelow(index)) {
        tree->setCurrentIndex(index);
        OrvCam::DeviceInfo *const camera = selectedCamera();
        if (camera && QString::fromLatin1(camera->GetID()) == id)
            return true;
    }
    tree->setCurrentIndex(before);
    return false;
}

std::unique_ptr<CameraSource> chooseCamera(QWidget *parent, const QString &preferredId)
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    for (;;) {
        CameraDialog dialog(system.get(), parent);
        dialog.prefer(preferredId);
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
