#pragma once

#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/nodemapclock.h>

#include <QObject>
#include <QScopedPointer>
#include <QVector>

#include <initializer_list>
#include <utility>

class QDialog;
class QtOrvSpinBox;

namespace OrvGui {

/**
 * What a feature dialog has to do with its camera: the device, its parameters, the mapper and the sinks of the dialog's
 * own. Lets the device go when it is destroyed.
 *
 * A device belongs to its caller and outlives its use here: the dialog is given another one, or none, before the device
 * is released.
 */
class FeatureDialogCamera
{
public:
    FeatureDialogCamera();
    ~FeatureDialogCamera();

    /**
     * Lets the former device go while its parameters still live: everything unbound, all sinks unregistered. Then asks
     * \a device, which may be null, for its parameters; false when there are none or asking failed.
     */
    bool setDevice(OrvCam::Device *device);

    /**
     * The same for the whole of \a dialog, which is enabled where there are parameters. Nothing of a former camera is
     * left: lists become empty, numbers the least or, without parameters, nothing at all; buttons are unchecked. The
     * controls must have no connections but those made by the mapper or with context().
     */
    bool setDevice(OrvCam::Device *device, QDialog *dialog);

    /** Unbinds and unregisters all there is; there is no device then. */
    void letGo();

    /** Null unless there are parameters. */
    OrvCam::Device *device() const { return m_device; }
    OrvGenParam::Array *parameters() const { return m_parameters; }

    /** \name The feature of that name, null when the camera has none of that kind or there is no camera. @{ */
    OrvGenParam::Boolean *boolean(const char *name) const;
    OrvGenParam::Command *command(const char *name) const;
    OrvGenParam::Enum *enumeration(const char *name) const;
    OrvGenParam::Int *integer(const char *name) const;
    /** @} */

    /**
     * The context for the dialog's connections to its controls: they end when the device is let go, those to controls
     * that could not be bound too. Another one with each device.
     */
    QObject *context() const { return m_connections.data(); }

    /** Registers a sink of the dialog, once however often it is asked; a null \a param does nothing. */
    void listen(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);
    void stopListening(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);

    /**
     * For the head of the dialog's OnParameterUpdate(): false on the GUI thread. On any other thread answers true, and
     * the sink is called on the GUI thread as soon as that gets to it, once however many reports there were, if it
     * still listens.
     */
    bool isForGuiThread(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);

    /**
     * To be called once, after the form is built. No button is a default one, so that Enter commits a value and does
     * nothing else; Escape closes the dialog like its title bar does, through closeEvent(), also while it is disabled.
     * A label is enabled while its buddy is. Features that declare a polling time are polled while the dialog is shown.
     */
    void setUpDialog(QDialog *dialog);

    OrvCamConfigMapper mapper;

private:
    Q_DISABLE_COPY(FeatureDialogCamera)

    class ShownWatch;

    static void clearControls(QDialog *dialog);
    static void showNumbers(QDialog *dialog, bool isShown);
    void pollWhileShown(bool isShown);

    OrvCam::Device *m_device = nullptr;
    OrvGenParam::Array *m_parameters = nullptr;
    using Listener = std::pair<OrvGenParam::Param *, OrvGenParam::ParamEventSink *>;
    QVector<Listener> m_sinks;
    QScopedPointer<QObject> m_connections;
    ReportRelay<Listener> m_reports;
    NodeMapClock::Use m_clock;
    QScopedPointer<QObject> m_shownWatch; ///< on the dialog
    bool m_isShown = false;
};

} // namespace OrvGui
