// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDialog>
#include <QScopedPointer>

class QLineEdit;
class SetIpDialogPrivate;

/**
 * Asks for the IP configuration that a GigE Vision camera is to get, beside that of the host's network adapter through
 * which it is reached, and tells while people type whether the two fit.
 *
 * An address, a mask or a gateway is an unsigned 32-bit number whose most significant byte is the first octet. Of a MAC
 * address the low 48 bits count, its first byte being the most significant one.
 *
 * The dialog can always be accepted; isAddressValid() and isMaskValid() tell what was accepted. Fill in the adapter
 * before the camera: what the two make of each other is found out whenever the camera's address or mask changes.
 */
class SetIpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SetIpDialog(QWidget *parent = nullptr);
    ~SetIpDialog() override;

    /** \name The network adapter, which is only shown @{ */
    void setNicMACAddress(unsigned long long mac);
    void setNicIPAddress(unsigned int address);
    void setNicNetmask(unsigned int mask);
    /** @} */

    /** \name The camera; all but its MAC address can be edited @{ */
    void setMACAddress(unsigned long long mac);
    void setIPAddress(unsigned int address);
    void setNetmask(unsigned int mask);
    void setGateway(unsigned int gateway);
    /** @} */

    /** \name What the fields say now, read by IP4Validator::getIp(): 0 for an empty one @{ */
    unsigned int ipAddress() const;
    unsigned int Netmask() const;
    unsigned int Gateway() const;
    /** @} */

    /**
     * Whether the camera could be reached at its address: its first octet is not 0, it is not the adapter's, and the
     * masks make the same subnet of both. False until the first checkSubnet().
     */
    bool isAddressValid() const;

    /** Whether the camera's mask is the adapter's. False until the first checkSubnet(). */
    bool isMaskValid() const;

    /**
     * The fault of entries that the two do not judge: an unfinished address, whose missing octets count as 0; an
     * address that is also the gateway's; the network or broadcast address of the adapter's subnet. Shown in a line of
     * its own; empty without a fault.
     */
    QString remark() const;

    /** Writes \a mac as macText(). */
    void setMACLineEdit(QLineEdit *edit, unsigned long long mac);

    /** Finds out what isAddressValid() and isMaskValid() answer, and shows it. The argument is not used. */
    void checkSubnet(const QString &);

protected:
    /** The last octet of the camera's address is selected: what is typed next replaces it. */
    void showEvent(QShowEvent *event) override;

private:
    const QScopedPointer<SetIpDialogPrivate> d;
};
