// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/setipdialog.h>

#include <orvtest.h>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

/** A dialog for an adapter 192.168.1.10 and a camera 192.168.1.11. */
class Dialog : public SetIpDialog
{
public:
    Dialog()
    {
        setNicMACAddress(0xffff001A2B3C4D5EULL); // the upper 16 bits do not count
        setNicIPAddress(0xC0A8010A);
        setNicNetmask(0xFFFFFF00);
        setMACAddress(0xA0);
        setIPAddress(0xC0A8010B);
        setNetmask(0xFFFFFF00);
        setGateway(0xC0A801FE);
    }

    QLineEdit *edit(const char *name) const { return findChild<QLineEdit *>(QLatin1String(name)); }
    QLabel *status() const { return findChild<QLabel *>(QStringLiteral("statusLabel")); }
};

const QString red = QStringLiteral("color: rgb(255, 0, 0);");
const QString green = QStringLiteral("color: rgb(0, 192, 0);");

} // namespace

class tst_SetIpDialog : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void judges()
    {
        const uint nic = 0xC0A8010A;
        const uint wide = 0xFFFFFF00;
        const struct
        {
            uint adapter, adapterMask;
            const char *address, *mask;
            bool addressValid, maskValid;
            const char *text;
        } rows[] = {
            {nic, wide, "192.168.1.12", "255.255.255.0", true, true, "IP Configuration OK"},
            {nic, wide, " 192.168.1. 12", "255.255.255.0", true, true, "IP Configuration OK"},
            {nic, wide, "192.168.1.10", "255.255.255.0", false, true, "Incorrect IP address!"}, // the adapter's own
            {0, 0, "0.1.2.3", "0.0.0.0", false, true, "Incorrect IP address!"},
            {0, 0, "1.0.0.0", "0.0.0.0", true, true, "IP Configuration OK"},
            {nic, wide, "192.168.2.12", "255.255.255.0", false, true, "Subnet IP mismatch!"},
            {nic, wide, "", "255.255.255.0", false, true, "Subnet IP mismatch!"},
            {nic, wide, "192.168.1.12", "255.255.0.0", false, false, "Subnet mask mismatch!"},
            {0xC0A8000A, wide, "192.168.0.12", "255.255.0.0", true, false, "Subnet mask mismatch!"}, // same subnet
        };
        for (const auto &row : rows) {
            Dialog dialog;
            dialog.setNicIPAddress(row.adapter);
            dialog.setNicNetmask(row.adapterMask);
            dialog.show();
            for (const auto &[name, text] : {std::pair("netmaskEdit", row.mask), {"ipEdit", row.address}}) {
                dialog.edit(name)->clear();
                QTest::keyClicks(dialog.edit(name), QLatin1String(text));
            }
            QVERIFY2(dialog.isAddressValid() == row.addressValid, row.address);
            QVERIFY2(dialog.isMaskValid() == row.maskValid, row.mask);
            QCOMPARE(dialog.status()->text(), QLatin1String(row.text));
            const bool isGood = row.addressValid && row.maskValid;
            QCOMPARE(dialog.status()->styleSheet(), isGood ? green : red);
        }
    }

    /** Beside what is said of the subnet, which stays. */
    void remarks()
    {
        const uint wide = 0xFFFFFF00;
        const char *const mask = "255.255.255.0";
        const struct
        {
            uint mask;
            const char *address, *typedMask, *gateway, *remark;
        } rows[] = {
            {wide, "192.168.1.12", mask, "192.168.1.254", ""},
            {wide, "192.168.1.12", mask, "0.0.0.0", ""},
            {wide, "192.168.1.0", mask, "", "This is the address of the subnet itself."},
            {wide, "192.168.1.255", mask, "", "This is the subnet's broadcast address."},
            {0xFFFFFFFC, "192.168.1.11", "255.255.255.252", "", "This is the subnet's broadcast address."},
            {0xFFFFFFFE, "192.168.1.11", "255.255.255.254", "", ""}, // a subnet of two
            {wide, "192.168.1.12", mask, "192.168.1.12", "This is the gateway's address."},
            {wide, "192.168.1.", mask, "", "The IP address is not complete."},
            {wide, "192.168.1.12", "255.255", "", "The subnet mask is not complete."},
            {wide, "192.168.1.12", mask, "192.168", "The default gateway is not complete."},
            {wide, "10.0.0.255", mask, "", ""}, // another subnet
        };
        for (const auto &row : rows) {
            Dialog dialog;
            dialog.setNicNetmask(row.mask);
            dialog.setNetmask(row.mask);
            dialog.show();
            const auto *const line = dialog.findChild<QLabel *>(QStringLiteral("remarkLabel"));
            const QSize size = dialog.size();
            for (const auto &[name, text] :
                 {std::pair("ipEdit", row.address), {"netmaskEdit", row.typedMask}, {"gatewayEdit", row.gateway}}) {
                dialog.edit(name)->clear();
                QTest::keyClicks(dialog.edit(name), QLatin1String(text));
            }
            QCOMPARE(dialog.remark(), QLatin1String(row.remark));
            QCOMPARE(line->text(), dialog.remark());
            QCOMPARE(dialog.status()->text() == QLatin1String("IP Configuration OK"),
                     dialog.isAddressValid() && dialog.isMaskValid());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            QCOMPARE(dialog.size(), size); // it has its place
        }
    }

    void opensWithItsAddresses()
    {
        Dialog dialog;
        QCOMPARE(dialog.edit("nicMacEdit")->text(), QStringLiteral("00:1A:2B:3C:4D:5E"));
        QCOMPARE(dialog.edit("macEdit")->text(), QStringLiteral("00:00:00:00:00:A0"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(dialog.edit("ipEdit")->hasFocus());
        QCOMPARE(dialog.edit("ipEdit")->selectedText(), QStringLiteral("11"));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("57"));
        QCOMPARE(dialog.ipAddress(), 0xC0A80139U);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("6")); // an octet ends at 255
        QCOMPARE(dialog.ipAddress(), 0xC0A80139U);
    }

    /** Also over the last octet, which is selected at first. */
    void pastesWholeAddresses()
    {
        Dialog dialog;
        dialog.show();
        const std::pair<const char *, const char *> rows[] = {
            {"10.1.2.3", "10.1.2.3"}, {"77", "192.168.1.77"}, {"10.1.2.3/8", "192.168.1.11"}};
        for (const auto &[pasted, text] : rows) {
            QLineEdit *const edit = dialog.edit("ipEdit");
            edit->setText(QStringLiteral("192.168.1.11"));
            edit->setSelection(10, 2);
            QGuiApplication::clipboard()->setText(QLatin1String(pasted));
            QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(edit->text(), QLatin1String(text));
        }
    }

    void anyConfigurationCanBeAccepted()
    {
        Dialog dialog;
        dialog.setIPAddress(0);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.edit("ipEdit")->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("10.1."));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ipAddress(), 0x000A0100U);
        QVERIFY(!dialog.isAddressValid());

        dialog.show();
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }
};

ORV_TEST_MAIN(tst_SetIpDialog)

#include "tst_setipdialog.moc"
