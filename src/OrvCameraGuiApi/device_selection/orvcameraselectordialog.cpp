// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/infopane.h>
#include <OrvCameraGuiApi/device_selection/ip4proposal.h>
#include <OrvCameraGuiApi/device_selection/onelinedelegate.h>
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
#include <type_traits>
#include <utility>
#include <vector>

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

/**
 * The GigE Vision interface on which the device was found, if that is one. The device itself tells, not the item above:
 * where two interfaces have one identifier, devices stand below both.
 */
OrvCam::Interface *gigEOf(OrvCam::DeviceInfo *device)
{
    OrvCam::Interface *const transport = device ? device->GetInterface() : nullptr;
    return transport && transport->GetType() == OrvCam::InterfaceTypeGigEVision ? transport : nullptr;
}

/** The configuration that the person has confirmed. */
struct IpConfiguration
{
    unsigned int address;
    unsigned int mask;
    unsigned int gateway;
};

/** The values that the IP dialog opens with. */
struct IpProposal
{
    unsigned long long adapterMac = 0;
    unsigned int adapterAddress = 0;
    unsigned int adapterMask = 0;
    unsigned long long mac = 0;
    IpConfiguration camera{};
};

/** Nothing when a feature cannot be read. */
std::optional<IpProposal> proposalFor(OrvCam::DeviceInfo &device, bool isUnique, OrvCam::Interface &transport,
                                      const QVector<unsigned int> &taken)
{
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const params = transport.GetParameters(&err);
    if (err != OrvCamErr_Ok || !selectDevice(params, device, isUnique))
        return std::nullopt;
    const auto read = [params](const char *feature, auto &target) {
        const auto value = integerOf(params, feature);
        if (value)
            target = static_cast<std::decay_t<decltype(target)>>(*value);
        return value.has_value();
    };
    IpProposal proposal;
    if (!read("GevInterfaceMACAddress", proposal.adapterMac)
        || !read("GevInterfaceSubnetIPAddress", proposal.adapterAddress)
        || !read("GevInterfaceSubnetMask", proposal.adapterMask) || !read("GevDeviceMACAddress", proposal.mac)
        || !read("GevDeviceForceGateway", proposal.camera.gateway))
        return std::nullopt;
    proposal.camera.address = proposedAddress(proposal.adapterAddress, proposal.adapterMask, taken);
    proposal.camera.mask = proposal.adapterMask;
    return proposal;
}

void fill(SetIpDialog &dialog, const IpProposal &proposal)
{
    dialog.setNicMACAddress(proposal.adapterMac);
    dialog.setNicIPAddress(proposal.adapterAddress);
    dialog.setNicNetmask(proposal.adapterMask);
    dialog.setMACAddress(proposal.mac);
    dialog.setIPAddress(proposal.camera.address);
    dialog.setNetmask(proposal.camera.mask);
    dialog.setGateway(proposal.camera.gateway);
}

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

    void checkSystem();
    void catchUp();
    void adoptChange();
    void setPolling(bool on);
    void rescan();
    void moveTo(const QModelIndex &index, QItemSelectionModel::SelectionFlags how);
    bool returnToWanted();
    bool takesKey(const QKeyEvent &press);
    void closeAgain(const QList<DeviceTreeModel::Key> &transports);
    void currentChanged(const QModelIndex &index);
    void fillInfo(OrvCam::DeviceInfo *device, OrvCam::Interface *transport, bool isUnique);
    void showContextMenu(const QPoint &position);
    void acceptChosen();

    void setIpAddress();
    void setIpAddressFromMenu();
    bool force(const DeviceTreeModel::Key &key, const IpConfiguration &wantedIp);
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
    QList<DeviceTreeModel::Key> closed; ///< the interfaces that the user has closed
    std::optional<OrvCam::DeviceInfo *> chosen; ///< from acceptance on
    int questions = 0; ///< to the camera system, on the stack
    bool wantsRescan = false; ///< as soon as there is none
    int menuFlows = 0; ///< handlers of the context menu on the stack
    std::atomic<bool> hasChanged{false}; ///< the thread has seen a change that has not been adopted
    SystemPolling polling; ///< the last member: the thread uses the others
};

/**
 * A question to the camera system, whose library may process events until it answers. The tree stays as it is
 * meanwhile: what has come up is done afterwards, unless the dialog has gone.
 */
class Question
{
public:
    explicit Question(OrvCameraSelectorDialogPrivate &asking)
        : m_asking(&asking)
    {
        ++asking.questions;
    }

    ~Question()
    {
        if (m_asking && --m_asking->questions == 0)
            m_asking->catchUp();
    }

    Q_DISABLE_COPY(Question)

private:
    const QPointer<OrvCameraSelectorDialogPrivate> m_asking;
};

void PrivateSlotForwarder::onSystemChanged()
{
    d->adoptChange();
}

OrvCameraSelectorDialogPrivate::OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system)
    : q(dialog)
    , forwarder(this)
    , model(new DeviceTreeModel(system, dialog))
    , polling([this] { checkSystem(); })
{
}

void OrvCameraSelectorDialogPrivate::init(bool poll)
{
    ui.setupUi(q);
    scrollWhereTooSmall(*q);
    q->installEventFilter(this);
    ui.splitter->setStretchFactor(0, 1);
    ui.splitter->setStretchFactor(1, 1);
    initButtons(poll);
    ui.deviceTreeView->setModel(model);
    ui.deviceTreeView->setItemDelegate(new OneLineDelegate(ui.deviceTreeView));
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
    // A view that expands or collapses everything emits these signals for devices too.
    QObject::connect(tree, &QTreeView::collapsed, q, [this](const QModelIndex &index) {
        if (!index.parent().isValid())
            closed.append(model->keyOf(index));
    });
    QObject::connect(tree, &QTreeView::expanded, q, [this](const QModelIndex &index) {
        if (index.parent().isValid())
            return;
        const auto isOpen = [&](const DeviceTreeModel::Key &key) { return model->isKeyOf(key, index); };
        closed.erase(std::remove_if(closed.begin(), closed.end(), isOpen), closed.end());
    });
    QObject::connect(model, &QAbstractItemModel::modelReset, tree, &QTreeView::expandAll);
    tree->installEventFilter(this);
}

void OrvCameraSelectorDialogPrivate::connectButtons()
{
    QObject::connect(ui.buttonBox, &QDialogButtonBox::accepted, q, [this] { acceptChosen(); });
    QObject::connect(q, &QDialog::accepted, this, [this] {
        if (!chosen) // by a call of accept()
            chosen = deviceAt(currentIndex());
    });
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

/** On the polling thread. */
void OrvCameraSelectorDialogPrivate::checkSystem()
{
    if (model->checkNew() != 1)
        return;
    hasChanged = true;
    forwarder.notify();
}

/** Later, because functions on the stack may still use the tree. */
void OrvCameraSelectorDialogPrivate::catchUp()
{
    if (hasChanged)
        forwarder.notify();
    if (std::exchange(wantsRescan, false))
        QMetaObject::invokeMethod(
            this, [this] { rescan(); }, Qt::QueuedConnection);
}

/** Makes the user's last choice current if it is there, else keeps the present item, else takes the first interface. */
void OrvCameraSelectorDialogPrivate::adoptChange()
{
    // A camera that has been chosen stays so; the change is adopted when the dialog is shown again.
    if (chosen || questions > 0)
        return;
    // Several notifications of one change are on their way when the GUI thread is busy for long.
    if (!hasChanged.exchange(false))
        return;
    const DeviceTreeModel::Key current = model->keyOf(currentIndex());
    const QList<DeviceTreeModel::Key> transports = closed;
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
    wantsRescan = questions > 0;
    if (wantsRescan)
        return;
    const QPointer<QObject> alive(this);
    const QList<DeviceTreeModel::Key> transports = closed;
    {
        const Question question(*this);
        hasChanged = false; // what polling found last is older, and may name what is gone
        model->rescan();
    }
    if (!alive)
        return;
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
    const bool isPlain = !(press.modifiers() & ~(Qt::ShiftModifier | Qt::ControlModifier | Qt::KeypadModifier));
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

void OrvCameraSelectorDialogPrivate::closeAgain(const QList<DeviceTreeModel::Key> &transports)
{
    for (const DeviceTreeModel::Key &transport : transports)
        ui.deviceTreeView->collapse(model->indexOf(transport));
    closed = transports; // also of those that may come back
}

void OrvCameraSelectorDialogPrivate::currentChanged(const QModelIndex &index)
{
    const DeviceTreeModel::Key key = model->keyOf(index);
    if (index.isValid() && !(isOwnMove && wanted.isItem))
        wanted = key;
    OrvCam::DeviceInfo *const device = deviceAt(index);
    const QPointer<QObject> alive(this);
    const Question question(*this);
    fillInfo(device, interfaceAt(index), key.isUnique);
    const bool isUsable = isOpenable(device);
    const bool isGigE = gigEOf(device);
    if (!alive)
        return;
    okButton()->setEnabled(isUsable);
    ui.setIpButton->setEnabled(isGigE);
}

/** Another program may have opened the camera since it was looked at. */
void OrvCameraSelectorDialogPrivate::acceptChosen()
{
    const QPointer<QObject> alive(this);
    OrvCam::DeviceInfo *const device = deviceAt(currentIndex());
    const bool isUsable = [&] {
        const Question question(*this);
        return isOpenable(device);
    }();
    if (!alive)
        return;
    if (!isUsable || deviceAt(currentIndex()) != device)
        return currentChanged(currentIndex());
    chosen = device; // before anybody hears of it
    q->accept();
    if (alive && q->isVisible()) // a derived class has not accepted it
        chosen.reset();
}

void OrvCameraSelectorDialogPrivate::fillInfo(OrvCam::DeviceInfo *device, OrvCam::Interface *transport, bool isUnique)
{
    if (!transport)
        return;
    ui.interfaceInfoView->rememberWidth();
    ui.deviceInfoView->rememberWidth();
    const QPointer<QObject> alive(this);
    if (device)
        ui.deviceInfoView->showDevice(*device, isUnique);
    if (alive)
        ui.interfaceInfoView->showInterface(*transport);
}

void OrvCameraSelectorDialogPrivate::showContextMenu(const QPoint &position)
{
    if (gigEOf(deviceAt(ui.deviceTreeView->indexAt(position))))
        contextMenu->popup(ui.deviceTreeView->viewport()->mapToGlobal(position));
}

/**
 * While the dialogs are open, and while the camera answers, the camera may vanish, the tree change, this dialog be
 * destroyed. The dialogs therefore live on the heap, and everything is looked up again after each of them.
 */
void OrvCameraSelectorDialogPrivate::setIpAddress()
{
    const QModelIndex index = currentIndex();
    const DeviceTreeModel::Key key = model->keyOf(index);
    OrvCam::DeviceInfo *const device = deviceAt(index);
    const QPointer<OrvCameraSelectorDialog> alive(q);
    std::optional<IpProposal> proposal;
    {
        const Question question(*this);
        OrvCam::Interface *const transport = gigEOf(device);
        if (!transport)
            return;
        proposal = proposalFor(*device, key.isUnique, *transport, addressesBeside(device));
    }
    if (!alive)
        return;
    if (!proposal)
        return tellFailure();

    const QPointer<SetIpDialog> dialog(new SetIpDialog(q));
    fill(*dialog, *proposal);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const IpConfiguration entered{dialog->ipAddress(), dialog->Netmask(), dialog->Gateway()};
    const bool isValid = dialog->isAddressValid() && dialog->isMaskValid() && dialog->remark().isEmpty();
    delete dialog;
    if (!isAccepted || (!isValid && !isConfirmed()) || !alive)
        return;
    const bool isForced = force(key, entered);
    if (!alive)
        return;
    if (!isForced)
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
bool OrvCameraSelectorDialogPrivate::force(const DeviceTreeModel::Key &key, const IpConfiguration &wantedIp)
{
    const Question question(*this);
    OrvCam::DeviceInfo *const device = deviceAt(model->indexOf(key));
    OrvCam::Interface *const transport = gigEOf(device);
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const params = transport ? transport->GetParameters(&err) : nullptr;
    return err == OrvCamErr_Ok && params && selectDevice(params, *device, key.isUnique)
        && device->ForceIP(wantedIp.address, wantedIp.mask, wantedIp.gateway) == OrvCamErr_Ok;
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

/** The addresses of all network adapters, and of all cameras except \a device. */
QVector<unsigned int> OrvCameraSelectorDialogPrivate::addressesBeside(OrvCam::DeviceInfo *device) const
{
    // Found before any of them is asked.
    std::vector<OrvCam::Interface *> transports;
    std::vector<OrvCam::DeviceInfo *> others;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, 0);
        transports.push_back(interfaceAt(index));
        for (int below = 0; below < model->rowCount(index); ++below)
            others.push_back(deviceAt(model->index(below, 0, index)));
    }
    others.erase(std::remove(others.begin(), others.end(), device), others.end());

    QVector<unsigned int> addresses;
    for (OrvCam::Interface *const transport : transports) {
        OrvCamErr err = OrvCamErr_Ok;
        const bool isGigE = transport->GetType() == OrvCam::InterfaceTypeGigEVision;
        const auto own =
            isGigE ? integerOf(transport->GetParameters(&err), "GevInterfaceSubnetIPAddress") : std::nullopt;
        if (own)
            addresses.append(static_cast<unsigned int>(*own));
    }
    for (OrvCam::DeviceInfo *const other : others) {
        OrvCamErr err = OrvCamErr_Ok;
        const char *const text = gigEOf(other) ? other->GetIPAddress(&err) : nullptr;
        if (err == OrvCamErr_Ok && text)
            addresses.append(IP4Validator::getIp(QString::fromUtf8(text)));
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
