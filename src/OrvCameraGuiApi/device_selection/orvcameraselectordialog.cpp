#include <OrvCameraGuiApi/device_selection/orvcameraselectordialog.h>

#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/device_selection/devicetreemodel.h>
#include <OrvCameraGuiApi/device_selection/infopane.h>
#include <OrvCameraGuiApi/device_selection/privateslotforwarder.h>
#include <OrvCameraGuiApi/device_selection/setipdialog.h>
#include <OrvCameraGuiApi/device_selection/systempolling.h>

#include "ui_orvcameraselectordialog.h"

#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <atomic>

namespace {

/** An address beside that of the network adapter, in its subnet as a rule. */
unsigned int neighbourOf(unsigned int address)
{
    constexpr unsigned int lastOctet = 0xff;
    constexpr unsigned int middle = 128;
    return (address & lastOctet) > middle ? address - 1 : address + 1;
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

class OrvCameraSelectorDialogPrivate
{
public:
    OrvCameraSelectorDialogPrivate(OrvCameraSelectorDialog *dialog, OrvCam::System *system);
    Q_DISABLE_COPY(OrvCameraSelectorDialogPrivate)

    void init(bool poll);
    void initButtons(bool poll);
    void connectTree();
    void connectButtons();

    QPushButton *okButton() const { return ui.buttonBox->button(QDialogButtonBox::Ok); }
    QModelIndex currentIndex() const { return ui.deviceTreeView->currentIndex(); }
    OrvCam::DeviceInfo *deviceAt(const QModelIndex &index) const;
    OrvCam::Interface *interfaceAt(const QModelIndex &index) const;
    bool isOnGigE(const QModelIndex &index) const;

    void look();
    void adoptChange();
    void setPolling(bool on);
    void rescan();
    void currentChanged(const QModelIndex &index);
    void fillInfo(const QModelIndex &index);
    void showContextMenu(const QPoint &position);

    void setIpAddress();
    bool fill(SetIpDialog &dialog, OrvGenParam::Array &params) const;
    bool isConfirmed() const;
    bool isListed(OrvCam::DeviceInfo *device) const;
    void tellFailure() const;

    OrvCameraSelectorDialog *const q;
    PrivateSlotForwarder forwarder;
    Ui_OrvCameraSelectorDialog ui;
    QMenu *contextMenu = nullptr;
    QPushButton *rescanButton = nullptr;
    DeviceTreeModel *const model;
    QString currentId; ///< of the item that is to be current again after a change
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
    if (ui.pollingCheckBox->isChecked())
        polling.start();
    else
        rescanButton->setEnabled(true);
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
    rescanButton->setAutoDefault(false);
    okButton()->setDefault(true);
    contextMenu = new QMenu(q);
}

void OrvCameraSelectorDialogPrivate::connectTree()
{
    QTreeView *const tree = ui.deviceTreeView;
    QObject::connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this](const QModelIndex &index) { currentChanged(index); });
    QObject::connect(tree, &QTreeView::activated, okButton(), &QPushButton::click);
    QObject::connect(tree, &QTreeView::customContextMenuRequested, q,
                     [this](const QPoint &position) { showContextMenu(position); });
    QObject::connect(model, &QAbstractItemModel::modelReset, tree, &QTreeView::expandAll);
}

void OrvCameraSelectorDialogPrivate::connectButtons()
{
    QObject::connect(ui.buttonBox, &QDialogButtonBox::accepted, q, &QDialog::accept);
    QObject::connect(ui.buttonBox, &QDialogButtonBox::rejected, q, &QDialog::reject);
    QObject::connect(ui.pollingCheckBox, &QCheckBox::clicked, q, [this](bool checked) { setPolling(checked); });
    QObject::connect(rescanButton, &QPushButton::clicked, q, [this] { rescan(); });
    QObject::connect(ui.setIpButton, &QPushButton::clicked, q, [this] { setIpAddress(); });
    contextMenu->addAction(OrvCameraSelectorDialog::tr("Set IP Address"), q, [this] { setIpAddress(); });
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

bool OrvCameraSelectorDialogPrivate::isOnGigE(const QModelIndex &index) const
{
    OrvCam::Interface *const transport = deviceAt(index) ? interfaceAt(index) : nullptr;
    return transport && transport->GetType() == OrvCam::InterfaceTypeGigEVision;
}

/** On the polling thread. */
void OrvCameraSelectorDialogPrivate::look()
{
    if (model->checkNew() != 1)
        return;
    hasChanged = true;
    forwarder.notify();
}

void OrvCameraSelectorDialogPrivate::adoptChange()
{
    // Several notifications of one change are on their way when the GUI thread is busy for long.
    if (!hasChanged.exchange(false))
        return;
    const QString id = currentId;
    model->updateModel();
    const QModelIndex former = model->getItemIdx(id);
    const QModelIndex index = former.isValid() ? former : model->getFirstIdx();
    ui.deviceTreeView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (!index.isValid())
        currentChanged(index);
}

void OrvCameraSelectorDialogPrivate::setPolling(bool on)
{
    if (on)
        polling.start();
    else
        polling.stop();
    rescanButton->setEnabled(!on);
}

void OrvCameraSelectorDialogPrivate::rescan()
{
    model->rescan();
    currentChanged(currentIndex());
}

void OrvCameraSelectorDialogPrivate::currentChanged(const QModelIndex &index)
{
    currentId = model->getItemID(index);
    fillInfo(index);
    OrvCam::DeviceInfo *const device = deviceAt(index);
    const std::int32_t status = device ? device->GetAccessStatus() : OrvCam::AccessStatusNoAccess;
    okButton()->setEnabled(status != OrvCam::AccessStatusNoAccess && status != OrvCam::AccessStatusIpSubnetMismatch);
    ui.setIpButton->setEnabled(isOnGigE(index));
}

void OrvCameraSelectorDialogPrivate::fillInfo(const QModelIndex &index)
{
    if (!index.data(Qt::UserRole).isValid())
        return;
    ui.interfaceInfoView->rememberWidth();
    ui.deviceInfoView->rememberWidth();
    OrvCam::Interface *const transport = interfaceAt(index);
    if (OrvCam::DeviceInfo *const device = deviceAt(index))
        ui.deviceInfoView->showDevice(*device, transport, index.row());
    if (transport)
        ui.interfaceInfoView->showInterface(*transport);
}

void OrvCameraSelectorDialogPrivate::showContextMenu(const QPoint &position)
{
    if (isOnGigE(ui.deviceTreeView->indexAt(position)))
        contextMenu->popup(ui.deviceTreeView->viewport()->mapToGlobal(position));
}

/**
 * While the dialogs are open the world goes on: the camera may go, the tree change, this dialog be destroyed. So they
 * live on the heap, and after each of them everything is asked anew.
 */
void OrvCameraSelectorDialogPrivate::setIpAddress()
{
    const QModelIndex index = currentIndex();
    if (!isOnGigE(index))
        return;
    OrvCam::DeviceInfo *const device = deviceAt(index);
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const params = interfaceAt(index)->GetParameters(&err);
    if (err != OrvCamErr_Ok || !selectDevice(params, index.row()))
        return tellFailure();

    const QPointer<OrvCameraSelectorDialog> alive(q);
    const QPointer<SetIpDialog> dialog(new SetIpDialog(q));
    if (!fill(*dialog, *params)) {
        delete dialog;
        return tellFailure();
    }
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!alive || !dialog)
        return;
    const IpConfiguration wanted{dialog->ipAddress(), dialog->Netmask(), dialog->Gateway()};
    const bool isValid = dialog->isAddressValid() && dialog->isMaskValid();
    delete dialog;
    if (!isAccepted || (!isValid && !isConfirmed()) || !alive)
        return;
    if (!isListed(device) || device->ForceIP(wanted.address, wanted.mask, wanted.gateway) != OrvCamErr_Ok)
        return tellFailure();
    currentChanged(currentIndex());
}

/** False when a feature cannot be read. */
bool OrvCameraSelectorDialogPrivate::fill(SetIpDialog &dialog, OrvGenParam::Array &params) const
{
    const auto read = [&](const char *feature, auto &&use) {
        const auto value = integerOf(&params, feature);
        if (value)
            use(*value);
        return value.has_value();
    };
    const auto address = [](std::int64_t value) { return static_cast<unsigned int>(value); };
    const auto mac = [](std::int64_t value) { return static_cast<unsigned long long>(value); };
    return read("GevInterfaceMACAddress", [&](std::int64_t value) { dialog.setNicMACAddress(mac(value)); })
        && read("GevInterfaceSubnetIPAddress", [&](std::int64_t value) { dialog.setNicIPAddress(address(value)); })
        && read("GevInterfaceSubnetMask", [&](std::int64_t value) { dialog.setNicNetmask(address(value)); })
        && read("GevDeviceMACAddress", [&](std::int64_t value) { dialog.setMACAddress(mac(value)); })
        && read("GevInterfaceSubnetIPAddress",
                [&](std::int64_t value) { dialog.setIPAddress(neighbourOf(address(value))); })
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

/** Whether the tree still shows the device. */
bool OrvCameraSelectorDialogPrivate::isListed(OrvCam::DeviceInfo *device) const
{
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex transport = model->index(row, 0);
        for (int below = 0; below < model->rowCount(transport); ++below) {
            if (deviceAt(model->index(below, 0, transport)) == device)
                return true;
        }
    }
    return false;
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
}

OrvCam::DeviceInfo *OrvCameraSelectorDialog::selectedCamera() const
{
    return d->deviceAt(d->currentIndex());
}

void OrvCameraSelectorDialog::setSelectedCamera(OrvCam::DeviceInfo *) { }

bool OrvCameraSelectorDialog::isPollChecked()
{
    return d->ui.pollingCheckBox->isChecked();
}

} // namespace OrvGui
