// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/orvcamconfig.h>

#include <OrvCameraGuiApi/background/periods.h>
#include <OrvCameraGuiApi/camconfig/dialogs/dialogparts.h>
#include <OrvCameraGuiApi/camconfig/featuredialogs.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigaboutdialog.h>
#include <OrvCameraGuiApi/camconfig/orvcamconfigprivate.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>
#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace {

/** Releases a camera system that is not kept. */
struct SystemReleaser
{
    void operator()(OrvCam::System *system) const { system->Release(); }
};

/** The description of a device that was opened before, from a new enumeration; null when it is not there any more. */
OrvCam::DeviceInfo *findAgain(const OrvGui::DeviceIdentity &identity, OrvCam::System *system)
{
    if (identity.device.isEmpty())
        return nullptr;
    const DeviceTreeModel model(system, nullptr);
    for (OrvCam::DeviceInfo *const info : model.devicesOn(identity.transport)) {
        if (identity.device == QString::fromLatin1(info->GetID()))
            return info;
    }
    return nullptr;
}

OrvGui::DeviceIdentity identityOf(OrvCam::DeviceInfo *info)
{
    OrvCam::Interface *const transport = info->GetInterface();
    return {transport ? QString::fromLatin1(transport->GetID()) : QString(), QString::fromLatin1(info->GetID())};
}

/** A name to show; a camera may lack a display name. */
QString nameOf(OrvCam::DeviceInfo *info)
{
    const QString name = QString::fromUtf8(info->GetDisplayName());
    return name.isEmpty() ? QString::fromLatin1(info->GetID()) : name;
}

/** Calls back whenever its parent is shown or hidden. */
class VisibilityWatch : public QObject
{
public:
    VisibilityWatch(QWidget *widget, std::function<void()> onChange)
        : QObject(widget)
        , m_onChange(std::move(onChange))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isChange = event->type() == QEvent::Show || event->type() == QEvent::Hide;
        if (isChange && !event->spontaneous())
            m_onChange();
        return false;
    }

private:
    const std::function<void()> m_onChange;
};

} // namespace

namespace OrvGui {

OrvCamConfigPrivate::OrvCamConfigPrivate(OrvCamConfig *window)
    : q(window)
{
}

OrvCamConfigPrivate::~OrvCamConfigPrivate()
{
    timer.stop();
    letGo();
    // While this object exists: a dialog reports to it that it is hidden.
    for (const DialogLink &link : std::exchange(dialogs, {}))
        delete link.dialog;
    delete selector;
}

void OrvCamConfigPrivate::build()
{
    ui.setupUi(q);
    openWithinScreen(*q);
    info = {{{ui.lineEditSizeFrameA, ui.lineEditFpsFrameA, ui.lineEditFtmFrameA, ui.lineEditExpFrameA},
             {ui.lineEditSizeFrameB, ui.lineEditFpsFrameB, ui.lineEditFtmFrameB, ui.lineEditExpFrameB}}};
    about = new OrvCamConfigAboutDialog(q);
    connected = sharpPixmap(QStringLiteral(":/icons/connected.ico"), q);
    disconnected = sharpPixmap(QStringLiteral(":/icons/disconnected.ico"), q);
    for (QLabel *const unit : {ui.lblFrameTime, ui.lblExposure})
        unit->setText(QStringLiteral("%1s").arg(microSign));
    ui.lblTemperature->setText(QStringLiteral("%1C").arg(QChar(0x00B0)));
    createDialogs();
    connectActions();
    buildStatusBar();
    QObject::connect(&timer, &QTimer::timeout, q, [this] { step(); });
}

void OrvCamConfigPrivate::connectActions()
{
    QObject::connect(ui.actionQuit, &QAction::triggered, q, &QWidget::close);
    QObject::connect(ui.actionConnect, &QAction::triggered, q, [this] { askForCamera(); });
    QObject::connect(ui.actionDisconnect, &QAction::triggered, q, [this] {
        onDisconnectAction();
        announceDevice();
    });
    QObject::connect(ui.actionAbout, &QAction::triggered, q, [this] { showAbout(); });
}

void OrvCamConfigPrivate::buildStatusBar()
{
    deviceName = new QLabel(q);
    deviceName->setObjectName(QStringLiteral("lblDeviceName"));
    deviceName->setTextFormat(Qt::PlainText);
    connectionIcon = new QLabel(q);
    connectionIcon->setObjectName(QStringLiteral("lblConnectionIcon"));
    connectionIcon->setPixmap(connected);
    ui.statusbar->addWidget(deviceName);
    ui.statusbar->addPermanentWidget(connectionIcon);
    QObject::connect(ui.statusbar, &QStatusBar::messageChanged, q, [this](const QString &text) { makeRoomFor(text); });
}

/** The window becomes as wide as the message, up to the width of the screen; otherwise the message would be cut. */
void OrvCamConfigPrivate::makeRoomFor(const QString &message)
{
    ui.statusbar->setToolTip(plainToolTip(message));
    if (message.isEmpty())
        return ui.statusbar->setMinimumWidth(0);
    const QFontMetrics metrics = ui.statusbar->fontMetrics();
    const int beside = connectionIcon->sizeHint().width() + 8 * metrics.averageCharWidth(); // with the size grip
    const int widest = q->screen()->availableGeometry().width();
    ui.statusbar->setMinimumWidth(std::min(metrics.horizontalAdvance(message) + beside, widest));
}

/** The buttons come before the fields when Tab is pressed. */
void OrvCamConfigPrivate::createDialogs()
{
    QWidget *before = ui.lineEditSizeFrameA->previousInFocusChain();
    for (const FeatureDialog &feature : featureDialogs()) {
        addDialog(feature);
        connectDialog(dialogs.constLast());
        QWidget::setTabOrder(before, dialogs.constLast().button);
        before = dialogs.constLast().button;
    }
}

void OrvCamConfigPrivate::addDialog(const FeatureDialog &feature)
{
    const QString title = QCoreApplication::translate("OrvCamConfigMainWindow", feature.title);
    auto *const button = new QPushButton(QIcon(QLatin1String(feature.icon)), title, ui.centralwidget);
    button->setObjectName(QLatin1String(feature.button));
    button->setCheckable(true);
    auto *const action = new QAction(title, q);
    action->setObjectName(QLatin1String(feature.action));
    action->setCheckable(true);
    ui.menuView->addAction(action);
    dialogs.append({&feature, feature.make(nullptr, q), button, action, !feature.neededFeature});
}

/** The action sets the button, the button shows or closes the dialog, and both follow the dialog. */
void OrvCamConfigPrivate::connectDialog(const DialogLink &link)
{
    QDialog *const dialog = link.dialog;
    QPushButton *const button = link.button;
    QObject::connect(link.action, &QAction::toggled, button, &QPushButton::setChecked);
    QObject::connect(button, &QPushButton::toggled, dialog, [dialog](bool checked) {
        if (checked)
            dialog->show();
        else if (!dialog->isHidden())
            dialog->close();
    });
    link.feature->onClosing(*dialog, button, [button] { button->setChecked(false); });
    new VisibilityWatch(dialog, [this] { checkViewMenu(); });
}

/**
 * Holds the system until the device is open. Nothing changes when the user chooses no camera. Anything may happen while
 * the user is asked: the camera may be lost, another device be set, the window be destroyed.
 */
void OrvCamConfigPrivate::askForCamera()
{
    if (selector)
        return;
    std::unique_ptr<OrvCam::System, SystemReleaser> chosenFrom(OrvCam_GetSystem());
    if (!chosenFrom)
        return;
    const QPointer<OrvCamConfig> alive(q);
    const QPointer<OrvCameraSelectorDialog> dialog(
        new OrvCameraSelectorDialog(chosenFrom.get(), q->isVisible() ? q : q->parentWidget(), true));
    selector = dialog;
    dialog->setWindowTitle(OrvCamConfig::tr("Select a device"));
    dialog->setModal(true);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    OrvCam::DeviceInfo *const chosen = dialog && isAccepted ? dialog->selectedCamera() : nullptr;
    delete dialog; // ends its thread before a device is opened
    if (alive && chosen)
        openChosen(chosenFrom.release(), chosen);
}

/** Takes over \a chosenFrom. If the device cannot be opened, the window returns to the former one if possible. */
void OrvCamConfigPrivate::openChosen(OrvCam::System *chosenFrom, OrvCam::DeviceInfo *chosen)
{
    const DeviceIdentity former = identity;
    OrvCam::Device *const callers = ownsDevice ? nullptr : device;
    const DeviceIdentity wanted = identityOf(chosen);
    const QString name = nameOf(chosen);
    letGo();
    system = chosenFrom;
    const OrvCamErr err = open(chosen, wanted);
    if (err == OrvCamErr_Ok)
        return announceDevice();
    OrvCam::DeviceInfo *const again = callers || former == wanted ? nullptr : findAgain(former, system);
    if (!again || open(again, former) != OrvCamErr_Ok) {
        onDisconnectAction();
        if (callers)
            adopt(callers);
    }
    ui.statusbar->showMessage(
        OrvCamConfig::tr("\"%1\" cannot be opened: %2").arg(name, OrvCamConfigMapper::tr(orvCamErrDescription(err))));
    announceDevice();
}

/** Always called last: a slot may destroy the window. */
void OrvCamConfigPrivate::announceDevice()
{
    const bool isOther = std::exchange(announced, device) != device;
    if (std::exchange(announcedIsReleased, false) || isOther)
        Q_EMIT q->deviceChanged(device);
}

/** Opens and adopts a device. On failure nothing changes. */
OrvCamErr OrvCamConfigPrivate::open(OrvCam::DeviceInfo *chosen, const DeviceIdentity &asIdentity)
{
    OrvCamErr err = OrvCamErr_Ok;
    OrvCam::Device *const opened = OrvCam_CreateDevice(chosen, OrvCam::DeviceAccessControl, &err);
    if (!opened)
        return err == OrvCamErr_Ok ? OrvCamErr_UnknownError : err;
    ownsDevice = true;
    identity = asIdentity;
    adopt(opened);
    return OrvCamErr_Ok;
}

/** The former device has been let go, or is \a newDevice itself. */
void OrvCamConfigPrivate::adopt(OrvCam::Device *newDevice)
{
    init(newDevice);
    registerCallbacks();
    setDialogsDevice(newDevice);
}

/** Releases the device when nothing uses it or its parameters any more, and after that the system. */
void OrvCamConfigPrivate::letGo()
{
    setDialogsDevice(nullptr);
    camera.setDevice(nullptr);
    params = CameraParams();
    unregisterCallbacks();
    pendingEvent = NoEvent;
    identity = DeviceIdentity();
    OrvCam::Device *const former = std::exchange(device, nullptr);
    if (std::exchange(ownsDevice, false)) {
        former->Release();
        announcedIsReleased = true;
    }
    if (OrvCam::System *const formerSystem = std::exchange(system, nullptr))
        formerSystem->Release();
}

/** Starts again with the parameters of \a newDevice, which may be null. The callbacks stay registered. */
void OrvCamConfigPrivate::init(OrvCam::Device *newDevice)
{
    device = newDevice;
    params = CameraParams();
    isSelecting = false;
    clearStatus();
    const bool hasParameters = camera.setDevice(device); // also unbinds the mapper
    // They come with the connected event, which may have come before the callbacks, or a while after it.
    awaitsParameters = device && !hasParameters;
    if (hasParameters)
        getNeededParams();
    q->setEnabled(true);
    timer.start(periods().status);
    doLastAdjustment();
}

void OrvCamConfigPrivate::getNeededParams()
{
    params = CameraParams(*camera.parameters());
    for (DialogLink &link : dialogs)
        link.isOffered = !link.feature->neededFeature || camera.enumeration(link.feature->neededFeature);
    hasFrameAB = params.frameAbSelector;
    frameMode = FrameAOnly;
    modeChanged = false;
    selectorIsB = false;
    if (!hasFrameAB)
        return;
    camera.listen(params.frameAbSelector, this);
    readSelector();
    camera.listen(params.frameMode, this);
    readFrameMode();
    modeChanged = frameMode == BothFrames;
    isModeRepeated = false;
}

/** Not called when a lost camera comes back: its callbacks are still registered, and an event could be missed. */
void OrvCamConfigPrivate::registerCallbacks()
{
    if (!device)
        return;
    unregisterCallbacks();
    device->RegisterEvent(OrvCam::EventDeviceDisconnected, CameraDisconnectCallback, this);
    device->RegisterEvent(OrvCam::EventDeviceConnected, CameraConnectCallback, this);
}

void OrvCamConfigPrivate::unregisterCallbacks()
{
    if (!device)
        return;
    device->UnregisterEvent(OrvCam::EventDeviceDisconnected, CameraDisconnectCallback, this);
    device->UnregisterEvent(OrvCam::EventDeviceConnected, CameraConnectCallback, this);
}

/** Called on any thread. */
void OrvCamConfigPrivate::CameraConnectCallback(const void *, unsigned long, void *context)
{
    static_cast<OrvCamConfigPrivate *>(context)->pendingEvent = Connected;
}

/** Called on any thread. */
void OrvCamConfigPrivate::CameraDisconnectCallback(const void *, unsigned long, void *context)
{
    static_cast<OrvCamConfigPrivate *>(context)->pendingEvent = Disconnected;
}

void OrvCamConfigPrivate::onDisconnectAction()
{
    letGo();
    init(nullptr);
}

void OrvCamConfigPrivate::setDialogsDevice(OrvCam::Device *dialogsDevice)
{
    for (const DialogLink &link : std::as_const(dialogs))
        link.feature->setDevice(*link.dialog, dialogsDevice);
}

OrvCamConfig::OrvCamConfig(OrvCam::Device *device, QWidget *parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags)
    , d(new OrvCamConfigPrivate(this))
{
    d->build();
    d->adopt(device);
    d->announceDevice();
    if (device)
        return;
    // A parent that is destroyed while the user is asked must not destroy a window that is still being constructed.
    QMetaObject::Connection whileAsking;
    if (parent)
        whileAsking = connect(parent, &QObject::destroyed, this, [this] { setParent(nullptr, windowFlags()); });
    d->askForCamera();
    disconnect(whileAsking);
}

OrvCamConfig::~OrvCamConfig() = default;

void OrvCamConfig::SetDevice(OrvCam::Device *device)
{
    if (device != d->device)
        d->letGo();
    d->adopt(device);
    d->announceDevice();
}

OrvCam::Device *OrvCamConfig::device() const
{
    return d->device;
}

void OrvCamConfig::showEvent(QShowEvent *event)
{
    d->updateTemperature();
    QMainWindow::showEvent(event);
}

void OrvCamConfig::closeEvent(QCloseEvent *event)
{
    d->closeDialogs();
    QMainWindow::closeEvent(event);
}

} // namespace OrvGui
