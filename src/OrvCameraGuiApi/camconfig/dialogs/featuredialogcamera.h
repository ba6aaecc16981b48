// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/background/nodemapclock.h>
#include <OrvCameraGuiApi/background/reportrelay.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <QObject>
#include <QScopedPointer>
#include <QVector>

#include <initializer_list>
#include <utility>

class QDialog;
class QtOrvSpinBox;

namespace OrvGui {

/**
 * The camera of a feature dialog: the device, its parameters, the mapper and the sinks of the dialog's
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
     * The same for the whole of \a dialog, which is enabled if there are parameters. Nothing of a former camera stays:
     * lists become empty, buttons unchecked, numbers the least or, without parameters, empty. The controls must have
     * only connections that were made by the mapper or with context().
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
     * The context for the dialog's connections to its controls, bound or not. They end when the device is let go; each
     * device has a context of its own.
     */
    QObject *context() const { return m_connections.data(); }

    /** Registers a sink of the dialog, once however often it is asked; a null \a param does nothing. */
    void listen(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);
    void stopListening(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);

    /**
     * For the head of a sink's OnParameterUpdate(): false on the GUI thread. On any other thread true, and the sink is
     * called from the event loop of the GUI thread, once for any number of reports, if it still listens.
     */
    bool isForGuiThread(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink);

    /**
     * Called once, after the form is built. No button is a default one, so that Enter only commits a value. Escape
     * closes the dialog as its title bar does, through closeEvent(), even while it is disabled. A label is enabled
     * while its buddy is. Features that declare a polling time are polled while the dialog is shown.
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
