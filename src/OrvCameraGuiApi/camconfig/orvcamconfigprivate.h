// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/camconfig/camerastatus.h>
#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>

#include "ui_orvcamconfigmainwindow.h"

#include <QColor>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <array>
#include <atomic>

class QDialog;
class QLabel;
class QPushButton;

namespace OrvGui {

class OrvCamConfigAboutDialog;
class OrvCameraSelectorDialog;

struct FeatureDialog;

/** A feature dialog and what opens and closes it. */
struct DialogLink
{
    const FeatureDialog *feature;
    QDialog *dialog;
    QPushButton *button;
    QAction *action;
    bool isOffered; ///< the camera, or the last one, has what the dialog needs
};

/** Identifies a device in another enumeration; both texts are empty for none. */
struct DeviceIdentity
{
    QString transport; ///< of its interface
    QString device;

    bool operator==(const DeviceIdentity &other) const
    {
        return transport == other.transport && device == other.device;
    }
};

/**
 * The private part of OrvCamConfig.
 *
 * adopt() takes a device, init() reads its parameters, letGo() gives it up. A lost device stays, without parameters,
 * until it comes back and has them again, or is let go. Events of the device come on any thread; they only store one
 * number in pendingEvent, and the timer's step() acts on it.
 */
class OrvCamConfigPrivate : public OrvGenParam::ParamEventSink
{
public:
    enum PendingEvent : std::uint32_t { NoEvent = 0, Disconnected = 1, Connected = 2 };
    enum FrameMode { FrameAOnly = 0, FrameBOnly = 1, BothFrames = 2 };
    enum Frame { FrameA = 0, FrameB = 1 };

    explicit OrvCamConfigPrivate(OrvCamConfig *window);
    ~OrvCamConfigPrivate() override;
    Q_DISABLE_COPY(OrvCamConfigPrivate)

    /** \name Once @{ */
    void build();
    void connectActions();
    void buildStatusBar();
    void makeRoomFor(const QString &message);
    void createDialogs();
    void addDialog(const FeatureDialog &feature);
    void connectDialog(const DialogLink &link);
    /** @} */

    /** \name The camera @{ */
    void askForCamera();
    void openChosen(OrvCam::System *chosenFrom, OrvCam::DeviceInfo *chosen);
    OrvCamErr open(OrvCam::DeviceInfo *chosen, const DeviceIdentity &asIdentity);
    void adopt(OrvCam::Device *newDevice);
    void letGo();
    void init(OrvCam::Device *newDevice);
    void registerCallbacks();
    void unregisterCallbacks();
    void getNeededParams();
    void onDisconnectAction();
    void announceDevice();
    void setDialogsDevice(OrvCam::Device *dialogsDevice);
    static void CameraConnectCallback(const void *data, unsigned long size, void *context);
    static void CameraDisconnectCallback(const void *data, unsigned long size, void *context);
    void OnParameterUpdate(OrvGenParam::Param *param) override;
    bool readSelector();
    bool readFrameMode();
    void frameModeReported();
    /** @} */

    /** \name What is shown @{ */
    void step();
    void loseCamera();
    void takeBack();
    void updateStatus();
    void updateTemperature();
    void updateInfo(Frame frame);
    void updateBoth();
    bool isTextBeingTyped() const;
    Frame frameBeingRead() const;
    void markColumns();
    void setColumnColor(Frame frame, const QColor &color);
    bool selectFrame(const char *frame);
    void clearInfo(Frame frame);
    void clearStatus();
    void isShowFrameABStuff(bool show);
    void offerDialogs();
    void doLastAdjustment();
    void checkViewMenu();
    void closeDialogs();
    void showAbout();
    /** @} */

    /** The fields of one frame, in the order of their rows. */
    struct InfoFields
    {
        QLineEdit *size;
        QLineEdit *framesPerSecond;
        QLineEdit *frameTime;
        QLineEdit *exposureTime;

        std::array<QLineEdit *, 4> all() const { return {size, framesPerSecond, frameTime, exposureTime}; }
    };

    OrvCamConfig *const q;
    Ui_OrvCamConfigMainWindow ui;
    OrvCamConfigAboutDialog *about = nullptr;
    QPointer<OrvCameraSelectorDialog> selector; ///< while the user is asked
    QVector<DialogLink> dialogs;
    std::array<InfoFields, 2> info{}; ///< by Frame
    std::array<QColor, 2> columnColors; ///< by Frame; none for the usual one
    QLabel *deviceName = nullptr;
    QLabel *connectionIcon = nullptr;
    QPixmap connected;
    QPixmap disconnected;
    QTimer timer;

    OrvCam::System *system = nullptr; ///< from which the device was chosen; held as long as that
    OrvCam::Device *device = nullptr;
    OrvCam::Device *announced = nullptr; ///< by deviceChanged()
    bool announcedIsReleased = false; ///< another device may come at the same address
    bool ownsDevice = false; ///< it was opened here
    DeviceIdentity identity; ///< of what was opened here
    bool awaitsParameters = false; ///< the device is open or back, and has not told them yet
    CameraParams params;
    bool hasFrameAB = false; ///< the camera, or the last one, has two frame settings
    FrameMode frameMode = FrameAOnly;
    bool modeChanged = false; ///< both frames are to be read
    bool isModeRepeated = false; ///< it has been reported once more since it changed
    bool isModeReported = false; ///< while the selector was written here; not looked at yet
    bool isSelecting = false; ///< the selector is being written here
    int stepsSinceBoth = 0; ///< were read
    bool selectorIsB = false;
    std::atomic<std::uint32_t> pendingEvent{NoEvent};
    FeatureDialogCamera camera; ///< the last member: lets go before the others are gone
};

} // namespace OrvGui
