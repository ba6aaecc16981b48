#pragma once

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/export.h>

#include <QDialog>
#include <QScopedPointer>

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate;

/**
 * What triggers a camera: whether triggering is on, its source, edge and debounce time, and a button that triggers.
 *
 * The lists are enabled exactly while triggering is on, the button while the source is "Software" besides, whatever the
 * features themselves allow; what cannot be written is not.
 *
 * A change is written to the camera at once, and what the camera reports is shown at once; nothing is polled. A write
 * that the camera refuses is told in a message box.
 *
 * Return commits a value and does nothing else; Escape closes. GUI thread only; reports of the camera may come on any
 * thread.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvCamConfigTriggerDialog : public QDialog
{
    Q_OBJECT

public:
    /** \a device as for SetDevice(); \a parent owns the dialog and may be null. */
    explicit OrvCamConfigTriggerDialog(OrvCam::Device *device, QWidget *parent = nullptr);
    ~OrvCamConfigTriggerDialog() override;

    /**
     * Shows \a device from now on, or nothing if it is null; false when it has no parameters to show, and the dialog is
     * disabled then. The device stays the caller's and has to live until the dialog is given another one, or none, or
     * is destroyed.
     */
    bool SetDevice(OrvCam::Device *device);

Q_SIGNALS:
    /** The dialog is about to close, whether by its title bar, by Escape or by close(). */
    void closing();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    const QScopedPointer<OrvCamConfigTriggerDialogPrivate> d;
};

} // namespace OrvGui
