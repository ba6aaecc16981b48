// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/setipdialog.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/addresses/mactext.h>
#include <OrvCameraGuiApi/device_selection/ip4proposal.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <ui_setipdialog.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollArea>

#include <algorithm>

class SetIpDialogPrivate
{
public:
    void showAsInactive(const QPalette &palette);
    void makeRoom();
    void showStatus(bool sameSubnet);
    QLineEdit *unfinished() const;

    Ui_SetIpDialog ui;
    bool addressValid = false;
    bool maskValid = false;
};

namespace {

constexpr unsigned int lowestAddress = 0x01000000;

QString good()
{
    return QStringLiteral("color: rgb(0, 192, 0);");
}

QString bad()
{
    return QStringLiteral("color: rgb(255, 0, 0);");
}

unsigned int addressIn(const QLineEdit *edit)
{
    return IP4Validator::getIp(edit->text());
}

void write(QLineEdit *edit, unsigned int address)
{
    edit->setText(IP4Validator::getIpStr(address));
}

/** Whole addresses that are pasted take the place of all of the text, wherever the cursor is: nothing else would fit.
 */
class WholePaste : public QObject
{
public:
    explicit WholePaste(QLineEdit *edit)
        : QObject(edit)
        , m_edit(edit)
    {
        edit->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
            QString text = QGuiApplication::clipboard()->text();
            int position = 0;
            if (!text.isEmpty() && m_edit->validator()->validate(text, position) == QValidator::Acceptable)
                m_edit->selectAll();
        }
        return false;
    }

private:
    QLineEdit *const m_edit;
};

} // namespace

/** Gives the fields that cannot be edited the background of disabled ones. Their text stays as it is, to be copied. */
void SetIpDialogPrivate::showAsInactive(const QPalette &palette)
{
    QPalette inactive = palette;
    inactive.setColor(QPalette::Base, palette.color(QPalette::Disabled, QPalette::Base));
    for (QLineEdit *edit : {ui.nicMacEdit, ui.nicIpEdit, ui.nicNetmaskEdit, ui.macEdit})
        edit->setPalette(inactive);
}

/** For every MAC address, which is the longest text that fields get, and for a remark. */
void SetIpDialogPrivate::makeRoom()
{
    for (QLineEdit *edit : {ui.nicMacEdit, ui.macEdit}) {
        const int text = edit->fontMetrics().horizontalAdvance(QStringLiteral("DD:DD:DD:DD:DD:DD"));
        edit->setMinimumWidth(text + edit->sizeHint().height());
    }
    ui.remarkLabel->setText(QStringLiteral("D"));
    ui.remarkLabel->setMinimumHeight(ui.remarkLabel->sizeHint().height());
    ui.remarkLabel->clear();
}

void SetIpDialogPrivate::showStatus(bool sameSubnet)
{
    QString text;
    if (!maskValid)
        text = SetIpDialog::tr("Subnet mask mismatch!");
    else if (addressValid)
        text = SetIpDialog::tr("IP Configuration OK");
    else
        text = sameSubnet ? SetIpDialog::tr("Incorrect IP address!") : SetIpDialog::tr("Subnet IP mismatch!");
    ui.statusLabel->setText(text);
    ui.statusLabel->setStyleSheet(maskValid && addressValid ? good() : bad());
}

/** The first such field. */
QLineEdit *SetIpDialogPrivate::unfinished() const
{
    for (QLineEdit *edit : {ui.ipEdit, ui.netmaskEdit, ui.gatewayEdit}) {
        if (!edit->hasAcceptableInput())
            return edit;
    }
    return nullptr;
}

SetIpDialog::SetIpDialog(QWidget *parent)
    : QDialog(parent)
    , d(new SetIpDialogPrivate)
{
    d->ui.setupUi(this);
    d->showAsInactive(palette());
    d->makeRoom();
    scrollWhereTooSmall(*this);
    for (QLineEdit *edit : {d->ui.ipEdit, d->ui.netmaskEdit, d->ui.gatewayEdit}) {
        edit->setValidator(new IP4Validator(edit));
        new WholePaste(edit);
    }
    for (QLineEdit *edit : {d->ui.ipEdit, d->ui.netmaskEdit})
        connect(edit, &QLineEdit::textChanged, this, &SetIpDialog::checkSubnet);
    for (QLineEdit *edit : {d->ui.nicIpEdit, d->ui.nicNetmaskEdit, d->ui.ipEdit, d->ui.netmaskEdit, d->ui.gatewayEdit})
        connect(edit, &QLineEdit::textChanged, this, [this] { d->ui.remarkLabel->setText(remark()); });
}

SetIpDialog::~SetIpDialog() = default;

void SetIpDialog::setNicMACAddress(unsigned long long mac)
{
    setMACLineEdit(d->ui.nicMacEdit, mac);
}

void SetIpDialog::setNicIPAddress(unsigned int address)
{
    write(d->ui.nicIpEdit, address);
}

void SetIpDialog::setNicNetmask(unsigned int mask)
{
    write(d->ui.nicNetmaskEdit, mask);
}

void SetIpDialog::setMACAddress(unsigned long long mac)
{
    setMACLineEdit(d->ui.macEdit, mac);
}

void SetIpDialog::setIPAddress(unsigned int address)
{
    write(d->ui.ipEdit, address);
}

void SetIpDialog::setNetmask(unsigned int mask)
{
    write(d->ui.netmaskEdit, mask);
}

void SetIpDialog::setGateway(unsigned int gateway)
{
    write(d->ui.gatewayEdit, gateway);
}

unsigned int SetIpDialog::ipAddress() const
{
    return addressIn(d->ui.ipEdit);
}

unsigned int SetIpDialog::Netmask() const
{
    return addressIn(d->ui.netmaskEdit);
}

unsigned int SetIpDialog::Gateway() const
{
    return addressIn(d->ui.gatewayEdit);
}

bool SetIpDialog::isAddressValid() const
{
    return d->addressValid;
}

bool SetIpDialog::isMaskValid() const
{
    return d->maskValid;
}

QString SetIpDialog::remark() const
{
    if (const QLineEdit *const edit = d->unfinished()) {
        if (edit == d->ui.ipEdit)
            return tr("The IP address is not complete.");
        return edit == d->ui.gatewayEdit ? tr("The default gateway is not complete.")
                                         : tr("The subnet mask is not complete.");
    }
    if (d->ui.ipEdit->text().isEmpty())
        return {};
    const unsigned int mask = addressIn(d->ui.nicNetmaskEdit);
    const bool sameSubnet = ((ipAddress() ^ addressIn(d->ui.nicIpEdit)) & mask) == 0;
    if (sameSubnet && isNetworkAddress(ipAddress(), mask))
        return tr("This is the address of the subnet itself.");
    if (sameSubnet && isBroadcastAddress(ipAddress(), mask))
        return tr("This is the subnet's broadcast address.");
    return Gateway() != 0 && ipAddress() == Gateway() ? tr("This is the gateway's address.") : QString();
}

void SetIpDialog::setMACLineEdit(QLineEdit *edit, unsigned long long mac)
{
    edit->setText(macText(mac));
}

void SetIpDialog::checkSubnet(const QString &)
{
    const unsigned int adapter = addressIn(d->ui.nicIpEdit);
    const unsigned int adapterMask = addressIn(d->ui.nicNetmaskEdit);
    const bool sameSubnet = (ipAddress() & Netmask()) == (adapter & adapterMask);
    d->addressValid = sameSubnet && ipAddress() >= lowestAddress && ipAddress() != adapter;
    d->maskValid = Netmask() == adapterMask;
    d->showStatus(sameSubnet);
}

void SetIpDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    QLineEdit *const edit = d->ui.ipEdit;
    edit->setFocus();
    const int start = int(edit->text().lastIndexOf(QLatin1Char('.'))) + 1;
    edit->setSelection(start, int(edit->text().size()) - start);
    // On a screen that is too small; the area itself follows the focus later, where people take it.
    if (auto *const area = findChild<QScrollArea *>())
        area->ensureWidgetVisible(edit);
}
