// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/infopane.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/addresses/mactext.h>
#include <OrvCameraGuiApi/device_selection/onelinedelegate.h>
#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QBrush>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPointer>
#include <QStandardItemModel>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr std::int64_t usb3 = 0x300;

/** Intentionally the same in every language: labels are what support people ask for. */
QStandardItem *addRow(QStandardItemModel &rows, const char *label, const QString &value)
{
    auto *const item = new QStandardItem(value);
    item->setToolTip(value);
    rows.appendRow({new QStandardItem(QLatin1String(label)), item});
    return item;
}

QString accessText(std::int32_t status)
{
    switch (status) {
    case OrvCam::AccessStatusReadWrite:
        return InfoPane::tr("ReadWrite");
    case OrvCam::AccessStatusReadOnly:
        return InfoPane::tr("ReadOnly");
    case OrvCam::AccessStatusNoAccess:
        return InfoPane::tr("NO ACCESS");
    case OrvCam::AccessStatusIpSubnetMismatch:
        return InfoPane::tr("IP Subnet Mismatch");
    default:
        return InfoPane::tr("Unknown");
    }
}

QString typeText(std::int32_t type)
{
    switch (type) {
    case OrvCam::InterfaceTypeUsb3Vision:
        return InfoPane::tr("USB3 Vision");
    case OrvCam::InterfaceTypeGigEVision:
        return InfoPane::tr("GigE Vision");
    case OrvCam::InterfaceTypeCameraLink:
        return InfoPane::tr("CameraLink");
    case OrvCam::InterfaceTypeCoaXPress:
        return InfoPane::tr("CoaXPress");
    case OrvCam::InterfaceTypeHdSdi:
        return InfoPane::tr("HD-SDI");
    default:
        return InfoPane::tr("Custom");
    }
}

/** In pixels: of the longest text that the library itself shows as a value. */
int widestOwnText(const QFontMetrics &metrics)
{
    int width = 0;
    constexpr int unknown = 0;
    for (const int status : {unknown, int(OrvCam::AccessStatusReadWrite), int(OrvCam::AccessStatusReadOnly),
                             int(OrvCam::AccessStatusNoAccess), int(OrvCam::AccessStatusIpSubnetMismatch)})
        width = std::max(width, metrics.horizontalAdvance(accessText(status)));
    for (int type = unknown; type <= OrvCam::InterfaceTypeHdSdi; ++type)
        width = std::max(width, metrics.horizontalAdvance(typeText(type)));
    return width;
}

OrvGenParam::Array *parametersOf(OrvCam::Interface *transport)
{
    OrvCamErr err = OrvCamErr_Ok;
    return transport ? transport->GetParameters(&err) : nullptr;
}

constexpr std::int64_t missing = -1;

/**
 * The place of the device in the present list of its interface, which is not enumerated again for that. The object
 * itself is preferred to another one with the same identifier, which counts only if there is no third.
 */
std::int64_t placeOf(OrvCam::DeviceInfo &device, bool isUnique)
{
    OrvCam::Interface *const transport = device.GetInterface();
    OrvCam::DeviceInfoList *const list = transport ? transport->GetDeviceInfoList() : nullptr;
    if (!list)
        return missing;
    const QByteArray id(device.GetID());
    std::int64_t own = missing;
    std::int64_t alike = missing;
    int count = 0;
    std::int64_t i = 0;
    for (auto *entry = list->GetSize() != 0 ? list->GetFirst() : nullptr; entry; entry = list->GetNext(), ++i) {
        if (id != entry->GetID())
            continue;
        ++count;
        alike = i;
        if (entry == &device)
            own = i;
    }
    list->Release();
    return own != missing || !isUnique || count != 1 ? own : alike;
}

/** Red where the camera has fewer than the bandwidth of USB 3. */
void addUsbVersion(QStandardItemModel &rows, OrvGenParam::Array *params, OrvCam::DeviceInfo &device, bool isUnique)
{
    const char *const feature = "DeviceUSBVersionDetected";
    OrvCamErr err = OrvCamErr_Ok;
    if (!params || !params->GetInt(feature, &err) || !selectDevice(params, device, isUnique))
        return;
    const std::int64_t version = integerOf(params, feature).value_or(0);
    if (version == 0)
        return;
    QStandardItem *const item =
        addRow(rows, "USB Version", QStringLiteral("0x%1").arg(qlonglong(version), 4, 16, QLatin1Char('0')));
    if (version < usb3)
        item->setForeground(QBrush(Qt::red));
}

void addMac(QStandardItemModel &rows, OrvGenParam::Array *params, const char *feature)
{
    if (const auto mac = integerOf(params, feature))
        addRow(rows, "MAC Address", macText(quint64(*mac)));
}

void addAddress(QStandardItemModel &rows, OrvGenParam::Array *params, const char *label, const char *feature)
{
    if (const auto address = integerOf(params, feature))
        addRow(rows, label, IP4Validator::getIpStr(static_cast<unsigned int>(*address)));
}

/** An address that the device description has itself. */
void addText(QStandardItemModel &rows, const char *label, OrvCam::DeviceInfo &device,
             const char *(OrvCam::DeviceInfo::*getter)(OrvCamErr *))
{
    OrvCamErr err = OrvCamErr_Ok;
    const char *const text = (device.*getter)(&err);
    if (err == OrvCamErr_Ok)
        addRow(rows, label, QString::fromUtf8(text));
}

} // namespace

std::optional<std::int64_t> integerOf(OrvGenParam::Array *params, const char *name)
{
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = params ? params->GetIntegerValue(name, &err) : 0;
    return params && err == OrvCamErr_Ok ? std::optional<std::int64_t>(value) : std::nullopt;
}

bool selectDevice(OrvGenParam::Array *params, OrvCam::DeviceInfo &device, bool isUnique)
{
    const std::int64_t place = params ? placeOf(device, isUnique) : missing;
    return place != missing && params->SetIntegerValue("DeviceSelector", place) == OrvCamErr_Ok;
}

InfoPane::InfoPane(QWidget *parent)
    : QTreeView(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setItemDelegate(new OneLineDelegate(this));
    // The values have half of it. What comes from a camera may be longer; its tool tip has it.
    const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    setMinimumWidth(2 * (widestOwnText(fontMetrics()) + margins + frameWidth()));
}

void InfoPane::showDevice(OrvCam::DeviceInfo &device, bool isUnique)
{
    const QPointer<InfoPane> alive(this);
    auto rows = std::make_unique<QStandardItemModel>();
    OrvCam::Interface *const transport = device.GetInterface();
    OrvGenParam::Array *const params = parametersOf(transport);
    const bool isGigE = transport && transport->GetType() == OrvCam::InterfaceTypeGigEVision;
    addRow(*rows, "Display name", QString::fromUtf8(device.GetDisplayName()));
    addRow(*rows, "Vendor", QString::fromUtf8(device.GetVendor()));
    addRow(*rows, "Model", QString::fromUtf8(device.GetModel()));
    addRow(*rows, "Serial number", QString::fromUtf8(device.GetSerialNumber()));
    addRow(*rows, "Version", QString::fromUtf8(device.GetVersion()));
    addRow(*rows, "User name", QString::fromUtf8(device.GetUserDefinedName()));
    addUsbVersion(*rows, params, device, isUnique);
    addRow(*rows, "Access status", accessText(device.GetAccessStatus()));
    if (isGigE) {
        if (selectDevice(params, device, isUnique))
            addMac(*rows, params, "GevDeviceMACAddress");
        addText(*rows, "IP Address", device, &OrvCam::DeviceInfo::GetIPAddress);
        addText(*rows, "Netmask", device, &OrvCam::DeviceInfo::GetSubnetMask);
        addText(*rows, "Gateway", device, &OrvCam::DeviceInfo::GetGateway);
    }
    if (alive) // the library may process events while it is asked
        showRows(rows.release());
}

void InfoPane::showInterface(OrvCam::Interface &transport)
{
    const QPointer<InfoPane> alive(this);
    auto rows = std::make_unique<QStandardItemModel>();
    const std::int32_t type = transport.GetType();
    addRow(*rows, "Description", QString::fromUtf8(transport.GetDescription()));
    addRow(*rows, "Type", typeText(type));
    addRow(*rows, "Version", QString::fromUtf8(transport.GetVersion()));
    if (type == OrvCam::InterfaceTypeGigEVision) {
        OrvGenParam::Array *const params = parametersOf(&transport);
        addMac(*rows, params, "GevInterfaceMACAddress");
        addAddress(*rows, params, "IP Address", "GevInterfaceSubnetIPAddress");
        addAddress(*rows, params, "Netmask", "GevInterfaceSubnetMask");
    }
    if (alive) // the library may process events while it is asked
        showRows(rows.release());
}

void InfoPane::rememberWidth()
{
    if (const int width = columnWidth(0); width != 0)
        m_labelWidth = width;
}

void InfoPane::showRows(QStandardItemModel *rows)
{
    rows->setParent(this);
    QAbstractItemModel *const formerRows = model();
    QItemSelectionModel *const formerSelection = selectionModel();
    setModel(rows);
    delete formerSelection;
    delete formerRows;
    setColumnWidth(0, m_labelWidth != 0 ? m_labelWidth : (columnWidth(0) + columnWidth(1)) / 2);
    if (!isVisible() && m_labelWidth == 0)
        m_unseenWidth = columnWidth(0);
}

/** The half, for rows that were there before the pane had its size, unless somebody has chosen another width since. */
void InfoPane::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    if (const int unseenWidth = std::exchange(m_unseenWidth, 0); unseenWidth != 0 && unseenWidth == columnWidth(0))
        setColumnWidth(0, viewport()->width() / 2);
}

bool InfoPane::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto *const help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    QToolTip::showText(help->globalPos(), plainToolTip(shortened(index.data(Qt::ToolTipRole).toString())), viewport(),
                       visualRect(index));
    return true;
}
