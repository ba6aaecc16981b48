#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/infopane.h>
#include <OrvCameraGuiApi/device_selection/ip4proposal.h>
#include <OrvCameraGuiApi/device_selection/ip4validator.h>
#include <OrvCameraGuiApi/device_selection/privateslotforwarder.h>
#include <OrvCameraGuiApi/device_selection/setipdialog.h>
#include <OrvCameraGuiApi/device_selection/systempolling.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>

#include "ui_orvcameraselectordialog.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <atomic>
#include <optional>

namespace {

/** Keys that go from item to item; without one that is current they would begin at the top. */
bool isMove(const QKeyEvent &press)
{
    constexpr int keys[] = {Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_Home,
                            Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    return std::find(std::begin(keys), std::end(keys), press.key()) != std::end(keys);
}

bool isOpenable(OrvCam::DeviceInfo *device)
{
    const std::int32_t status = device ? device->GetAccessStatus() : OrvCam::AccessStatusNoAccess;
    return status != OrvCam::AccessStatusNoAccess && status != OrvCam::AccessStatusIpSubnetMismatch;
}

/** What the person has confirmed. */
struct IpConfiguration
{
    unsigned int address;
    unsigned int mask;
    unsigned int gateway;
};

} // namespace

namespace OrvGui {

class OrvCameraSelectorDialogPrivate : public QObject
{
public:
    OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system);
    Q_DISABLE_COPY(OrvCameraSelectorDialogPrivate)

    bool eventFilter(QObject *watched, QEvent *event) override;

    void init(bool poll);
    void initButtons(bool poll);
    void connectTree();
    void connectButtons();

    QPushButton *okButton() const { return ui.buttonBox->button(QDialogButtonBox::Ok); }
    QModelIndex currentIndex() const { return ui.deviceTreeView->currentIndex(); }
    OrvCam::DeviceInfo *deviceAt(const QModelIndex &index) const;
    OrvCam::Interface *interfaceAt(const QModelIndex &index) const;
    OrvCam::Interface *gigEOf(OrvCam::DeviceInfo *device) const;

    void look();
    void adoptChange();
    void setPolling(bool on);
    void rescan();
    void moveTo(const QModelIndex &index, QItemSelectionModel::SelectionFlags how);
    bool returnToWanted();
    bool takesKey(const QKeyEvent &press);
    void closeAgain(const QList<QByteArray> &transports);
    void currentChanged(const QModelIndex &index);
    void fillInfo(const QModelIndex &index);
    void showContextMenu(const QPoint &position);
    void acceptChosen();

    void setIpAddress();
    void setIpAddressFromMenu();
    bool force(const DeviceTreeModel::Key &key, const IpConfiguration &wantedIp) const;
    bool fill(SetIpDialog &dialog, OrvCam::DeviceInfo *device, OrvGenParam::Array &params) const;
    QVector<unsigned int> addressesBeside(OrvCam::DeviceInfo *device) const;
    bool isConfirmed() const;
    void tellFailure() const;

    OrvCameraSelectorDialog *const q;
    PrivateSlotForwarder forwarder;
    Ui_OrvCameraSelectorDialog ui;
    QMenu *contextMenu = nullptr;
    QPushButton *rescanButton = nullptr;
    DeviceTreeModel *const model;
    DeviceTreeModel::Key wanted; ///< what the user went to last, to be current again whenever it is there
    bool isOwnMove = false; ///< it is not the user who makes another item current
    QList<QByteArray> closed; ///< the interfaces that the user has closed
    std::optional<OrvCam::DeviceInfo *> chosen; ///< from acceptance on
    int menuFlows = 0; ///< handlers of the context menu on the stack
    std::atomic<bool> hasChanged{false}; ///< the thread has seen a change that has not been adopted
    SystemPolling polling; ///< the last member: the thread uses the others
};

void PrivateSlotForwarder::onSystemChanged()
{
    d->adoptChange();
}

OrvCameraSelectorDialogPrivate::OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system)
    : q(dialog)
    , forwarder(this)
    , model(new DeviceTreeModel(system, dialog))
    , polling([this] { look(); })
{
}

void OrvCameraSelectorDialogPrivate::init(bool poll)
{
    ui.setupUi(q);
    openWithinScreen(*q);
    q->installEventFilter(this);
    ui.splitter->setStretchFactor(0, 1);
    ui.splitter->setStretchFactor(1, 1);
    initButtons(poll);
    ui.deviceTreeView->setModel(model);
    connectTree();
    connectButtons();
    QObject::connect(&forwarder, &PrivateSlotForwarder::systemChanged, &forwarder,
                     &PrivateSlotForwarder::onSystemChanged, Qt::QueuedConnection);
    ui.deviceTreeView->expandAll();
    okButton()->setEnabled(false);
    setPolling(ui.pollingCheckBox->isChecked());
}

void OrvCameraSelectorDialogPrivate::initButtons(bool poll)
{
    // The height for a margin, intentionally.
    ui.setIpButton->setMinimumWidth(ui.setIpButton->fontMetrics().horizontalAdvance(ui.setIpButton->text())
                                    + ui.setIpButton->sizeHint().height());
    ui.pollingCheckBox->setChecked(poll);
    rescanButton = new QPushButton(OrvCameraSelectorDialog::tr("&Rescan"));
    rescanButton->setObjectName(QStringLiteral("rescanButton"));
    rescanButton->setToolTip(OrvCameraSelectorDialog::tr("Look for cameras once, while polling is off"));
    rescanButton->setEnabled(false);
    ui.buttonBox->addButton(rescanButton, QDialogButtonBox::ActionRole);
    okButton()->setDefault(true);
    contextMenu = new QMenu(q);
}

void OrvCameraSelectorDialogPrivate::connectTree()
{
    QTreeView *const tree = ui.deviceTreeView;
    QObject::connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this](const QModelIndex &index) { currentChanged(index); });
    QObject::connect(tree, &QTreeView::pressed, q, [this](const QModelIndex &index) { wanted = model->keyOf(index); });
    QObject::connect(tree, &QTreeView::activated, okButton(), &QPushButton::click);
    QObject::connect(tree, &QTreeView::customContextMenuRequested, q,
                     [this](const QPoint &position) { showContextMenu(position); });
    QObject::connect(tree, &QTreeView::collapsed, q,
                     [this](const QModelIndex &index) { closed.append(model->keyOf(index).transport); });
    QObject::connect(tree, &QTreeView::expanded, q,
                     [this](const QModelIndex &index) { closed.removeAll(model->keyOf(index).transport); });
    QObject::connect(model, &QAbstractItemModel::modelReset, tree, &QTreeView::expandAll);
    tree->installEventFilter(this);
}

void OrvCameraSelectorDialogPrivate::connectButtons()
{
    QObject::connect(ui.buttonBox, &QDialogButtonBox::accepted, q, [this] { acceptChosen(); });
    QObject::connect(q, &QDialog::accepted, this, [this] { chosen = deviceAt(currentIndex()); });
    QObject::connect(ui.buttonBox, &QDialogButtonBox::rejected, q, &QDialog::reject);
    QObject::connect(ui.pollingCheckBox, &QCheckBox::clicked, q, [this](bool checked) { setPolling(checked); });
    QObject::connect(rescanButton, &QPushButton::clicked, q, [this] { rescan(); });
    QObject::connect(ui.setIpButton, &QPushButton::clicked, q, [this] { setIpAddress(); });
    contextMenu->addAction(OrvCameraSelectorDialog::tr("Set IP Address"), q, [this] { setIpAddressFromMenu(); });
}

OrvCam::DeviceInfo *OrvCameraSelectorDialogPrivate::deviceAt(const QModelIndex &index) const
{
    return index.data(Qt::UserRole).value<OrvCam::DeviceInfo *>();
}

/** Of the item itself, or of the device that it is. */
OrvCam::Interface *OrvCameraSelectorDialogPrivate::interfaceAt(const QModelIndex &index) const
{
    const QModelIndex transport = index.parent().isValid() ? index.parent() : index;
    return transport.data(Qt::UserRole).value<OrvCam::Interface *>();
}

/**
 * The GigE Vision interface on which the device was found, if that is one. The device itself tells, not the item above:
 * where two interfaces have one identifier, devices stand below both.
 */
OrvCam::Interface *OrvCameraSelectorDialogPrivate::gigEOf(OrvCam::DeviceInfo *device) const
{
    OrvCam::Interface *const transport = device ? device->GetInterface() : nullptr;
    return transport && transport->GetType() == OrvCam::InterfaceTypeGigEVision ? transport : nullptr;
}

/** On the polling thread. */
void OrvCameraSelectorDialogPrivate::look()
{
    if (model->checkNew() != 1)
        return;
    hasChanged = true;
    forwarder.notify();
}

/** What the user went to last is current again if it is there, else what is current now, else the first interface. */
void OrvCameraSelectorDialogPrivate::adoptChange()
{
    // A camera that has been chosen stays so; the change is adopted when the dialog is shown again.
    if (chosen)
        return;
    // Several notifications of one change are on their way when the GUI thread is busy for long.
    if (!hasChanged.exchange(false))
        return;
    const DeviceTreeModel::Key current = model->keyOf(currentIndex());
    const QList<QByteArray> transports = closed;
    model->updateModel();
    QModelIndex index = model->indexOf(wanted);
    if (!index.isValid())
        index = model->indexOf(current);
    moveTo(index.isValid() ? index : model->getFirstIdx(), QItemSelectionModel::ClearAndSelect);
    closeAgain(transports); // after the move, which opens what it goes to
}

void OrvCameraSelectorDialogPrivate::setPolling(bool on)
{
    if (!on)
        polling.stop();
    const bool polls = on && polling.start();
    ui.pollingCheckBox->setChecked(polls);
    rescanButton->setEnabled(!polls);
}

void OrvCameraSelectorDialogPrivate::rescan()
{
    hasChanged = false; // what polling found last is older, and may name what is gone
    const QList<QByteArray> transports = closed;
    model->rescan();
    closeAgain(transports);
    currentChanged(currentIndex());
}

/** Without the user, who stays where they went. */
void OrvCameraSelectorDialogPrivate::moveTo(const QModelIndex &index, QItemSelectionModel::SelectionFlags how)
{
    const QScopedValueRollback<bool> guard(isOwnMove, true);
    ui.deviceTreeView->selectionModel()->setCurrentIndex(index, how);
    if (!index.isValid())
        currentChanged(index);
}

/** With nothing current, after a rescan, the user goes on where they were; false when that is not there. */
bool OrvCameraSelectorDialogPrivate::returnToWanted()
{
    const QModelIndex former = currentIndex().isValid() ? QModelIndex() : model->indexOf(wanted);
    if (former.isValid())
        moveTo(former, QItemSelectionModel::ClearAndSelect);
    return former.isValid();
}

/** Whether the view is not to see the key any more. */
bool OrvCameraSelectorDialogPrivate::takesKey(const QKeyEvent &press)
{
    const bool isPlain = !(press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (!isPlain)
        return false;
    if (currentIndex().isValid()) {
        if (isMove(press))
            wanted = model->keyOf(currentIndex()); // also by a key that cannot go farther
        return false;
    }
    if (isMove(press))
        return returnToWanted();
    if (!press.text().isEmpty() && press.text().at(0).isPrint())
        returnToWanted(); // the search for what is typed begins there
    return false;
}

bool OrvCameraSelectorDialogPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == q) {
        if (event->type() == QEvent::Show && !event->spontaneous() && chosen) {
            chosen.reset();
            adoptChange();
        }
        return false;
    }
    if (event->type() == QEvent::KeyPress)
        return takesKey(*static_cast<QKeyEvent *>(event));
    // The view would itself make the first item current, and the user would seem to have gone there.
    if (event->type() == QEvent::FocusIn && !currentIndex().isValid() && !returnToWanted())
        moveTo(model->getFirstIdx(), QItemSelectionModel::NoUpdate);
    return false;
}

void OrvCameraSelectorDialogPrivate::closeAgain(const QList<QByteArray> &transports)
{
    for (const QByteArray &transport : transports)
        ui.deviceTreeView->collapse(model->indexOf({true, false, transport, QByteArray()}));
    closed = transports; // also of those that may come back
}

void OrvCameraSelectorDialogPrivate::currentChanged(const QModelIndex &index)
{
    if (index.isValid() && !(isOwnMove && wanted.isItem))
        wanted = model->keyOf(index);
    fillInfo(index);
    OrvCam::DeviceInfo *const device = deviceAt(index);
    okButton()->setEnabled(isOpenable(device));
    ui.setIpButton->setEnabled(gigEOf(device));
}

/** Another program may have opened the camera since it was looked at. */
void OrvCameraSelectorDialogPrivate::acceptChosen()
{
    if (isOpenable(deviceAt(currentIndex())))
        q->accept();
    else
        currentChanged(currentIndex());
}

void OrvCameraSelectorDialogPrivate::fillInfo(const QModelIndex &index)
{
    if (!index.data(Qt::UserRole).isValid())
        return;
    ui.interfaceInfoView->rememberWidth();
    ui.deviceInfoView->rememberWidth();
    if (OrvCam::DeviceInfo *const device = deviceAt(index))
        ui.deviceInfoView->showDevice(*device);
    if (OrvCam::Interface *const transport = interfaceAt(index))
        ui.interfaceInfoView->showInterface(*transport);
}

void OrvCameraSelectorDialogPrivate::showContextMenu(const QPoint &position)
{
    if (gigEOf(deviceAt(ui.deviceTreeView->indexAt(position))))
        contextMenu->popup(ui.deviceTreeView->viewport()->mapToGlobal(position));
}

/**
 * While the dialogs are open the world goes on: the camera may go, the tree change, this dialog be destroyed. So they
 * live on the heap, and after each of them everything is asked anew.
 */
void OrvCameraSelectorDialogPrivate::setIpAddress()
{
    const QModelIndex index = currentIndex();
    OrvCam::DeviceInfo *const device = deviceAt(index);
    OrvCam::Interface *const transport = gigEOf(device);
    if (!transport)
        return;
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const params = transport->GetParameters(&err);
    if (err != OrvCamErr_Ok || !selectDevice(params, *device))
        return tellFailure();

    const DeviceTreeModel::Key key = model->keyOf(index);
    const QPointer<OrvCameraSelectorDialog> alive(q);
    const QPointer<SetIpDialog> dialog(new SetIpDialog(q));
    if (!fill(*dialog, device, *params)) {
        delete dialog;
        return tellFailure();
    }
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const IpConfiguration entered{dialog->ipAddress(), dialog->Netmask(), dialog->Gateway()};
    const bool isValid = dialog->isAddressValid() && dialog->isMaskValid() && dialog->remark().isEmpty();
    delete dialog;
    if (!isAccepted || (!isValid && !isConfirmed()) || !alive)
        return;
    if (!force(key, entered))
        return tellFailure();
    currentChanged(currentIndex());
}

/** The handlers of the menu go on after the dialog has been destroyed in it: then the menu stays, and goes after them.
 */
void OrvCameraSelectorDialogPrivate::setIpAddressFromMenu()
{
    const QPointer<OrvCameraSelectorDialog> alive(q);
    QMenu *const menu = contextMenu;
    const bool isOutermost = menuFlows++ == 0;
    setIpAddress();
    if (alive)
        --menuFlows;
    else if (isOutermost)
        menu->deleteLater();
}

/** The device may stand elsewhere by now, or have gone; another one must not get its address. */
bool OrvCameraSelectorDialogPrivate::force(const DeviceTreeModel::Key &key, const IpConfiguration &wantedIp) const
{
    OrvCam::DeviceInfo *const device = deviceAt(model->indexOf(key));
    OrvCam::Interface *const transport = gigEOf(device);
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const params = transport ? transport->GetParameters(&err) : nullptr;
    return err == OrvCamErr_Ok && params && selectDevice(params, *device)
        && device->ForceIP(wantedIp.address, wantedIp.mask, wantedIp.gateway) == OrvCamErr_Ok;
}

/** False when a feature cannot be read. */
bool OrvCameraSelectorDialogPrivate::fill(SetIpDialog &dialog, OrvCam::DeviceInfo *device,
                                          OrvGenParam::Array &params) const
{
    const auto read = [&](const char *feature, auto &&use) {
        const auto value = integerOf(&params, feature);
        if (value)
            use(*value);
        return value.has_value();
    };
    const auto address = [](std::int64_t value) { return static_cast<unsigned int>(value); };
    const auto mac = [](std::int64_t value) { return static_cast<unsigned long long>(value); };
    const auto proposed = [&](std::int64_t adapter) {
        const auto mask = address(integerOf(&params, "GevInterfaceSubnetMask").value_or(0));
        return proposedAddress(address(adapter), mask, addressesBeside(device));
    };
    return read("GevInterfaceMACAddress", [&](std::int64_t value) { dialog.setNicMACAddress(mac(value)); })
        && read("GevInterfaceSubnetIPAddress", [&](std::int64_t value) { dialog.setNicIPAddress(address(value)); })
        && read("GevInterfaceSubnetMask", [&](std::int64_t value) { dialog.setNicNetmask(address(value)); })
        && read("GevDeviceMACAddress", [&](std::int64_t value) { dialog.setMACAddress(mac(value)); })
        && read("GevInterfaceSubnetIPAddress", [&](std::int64_t value) { dialog.setIPAddress(proposed(value)); })
        && read("GevInterfaceSubnetMask", [&](std::int64_t value) { dialog.setNetmask(address(value)); })
        && read("GevDeviceForceGateway", [&](std::int64_t value) { dialog.setGateway(address(value)); });
}

/** Whether a configuration that looks wrong is meant; the dialog may be gone afterwards. */
bool OrvCameraSelectorDialogPrivate::isConfirmed() const
{
    const QPointer<QMessageBox> box(new QMessageBox(
        QMessageBox::Critical, OrvCameraSelectorDialog::tr("IP Configuration Warning"),
        OrvCameraSelectorDialog::tr("Specified IP Configuraion is not correct, camera may become undiscoverable\n"
                                    "Press OK to skip the IP Configuration, or press Ignore to confirm"),
        QMessageBox::Ok | QMessageBox::Ignore, q));
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    const bool isIgnored = box->exec() == QMessageBox::Ignore;
    const bool isThere = box;
    delete box;
    return isThere && isIgnored;
}

/** What all network adapters, and the cameras but for that one, have as addresses. */
QVector<unsigned int> OrvCameraSelectorDialogPrivate::addressesBeside(OrvCam::DeviceInfo *device) const
{
    QVector<unsigned int> addresses;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        OrvCam::Interface *const transport = interfaceAt(index);
        if (transport->GetType() != OrvCam::InterfaceTypeGigEVision)
            continue;
        OrvCamErr err = OrvCamErr_Ok;
        if (const auto own = integerOf(transport->GetParameters(&err), "GevInterfaceSubnetIPAddress"))
            addresses.append(static_cast<unsigned int>(*own));
        for (int below = 0; below < model->rowCount(index); ++below) {
            OrvCam::DeviceInfo *const other = deviceAt(model->index(below, 0, index));
            const char *const text = other->GetIPAddress(&err);
            if (other != device && err == OrvCamErr_Ok && text)
                addresses.append(IP4Validator::getIp(QString::fromUtf8(text)));
        }
    }
    return addresses;
}

void OrvCameraSelectorDialogPrivate::tellFailure() const
{
    auto *const box = new QMessageBox(QMessageBox::Critical, OrvCameraSelectorDialog::tr("Set IP Address"),
                                      OrvCameraSelectorDialog::tr("Can't set IP address"), QMessageBox::Ok, q);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

OrvCameraSelectorDialog::OrvCameraSelectorDialog(OrvCam::System *system, QWidget *parent, bool poll)
    : QDialog(parent)
    , d(new OrvCameraSelectorDialogPrivate(this, system))
{
    d->init(poll);
}

OrvCameraSelectorDialog::~OrvCameraSelectorDialog()
{
    d->polling.stop();
    if (d->menuFlows > 0)
        d->contextMenu->setParent(nullptr);
}

OrvCam::DeviceInfo *OrvCameraSelectorDialog::selectedCamera() const
{
    return d->chosen ? *d->chosen : d->deviceAt(d->currentIndex());
}

void OrvCameraSelectorDialog::setSelectedCamera(OrvCam::DeviceInfo *) { }

bool OrvCameraSelectorDialog::isPollChecked()
{
    return d->ui.pollingCheckBox->isChecked();
}

} // namespace OrvGui
