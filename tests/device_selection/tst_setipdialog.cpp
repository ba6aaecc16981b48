#include <OrvCameraGuiApi/device_selection/setipdialog.h>

#include <orvtest.h>

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGroupBox>
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
    void showsBothSides();
    void judges_data();
    void judges();
    void remarks_data();
    void remarks();
    void lastOctetIsReplaced();
    void pastesWholeAddresses();
    void anyConfigurationCanBeAccepted();
};

void tst_SetIpDialog::showsBothSides()
{
    const Dialog dialog;
    const struct
    {
        const char *name;
        const char *text;
        bool readOnly;
    } fields[] = {
        {"nicMacEdit", "00:1A:2B:3C:4D:5E", true}, {"nicIpEdit", "192.168.1.10", true},
        {"nicNetmaskEdit", "255.255.255.0", true}, {"macEdit", "00:00:00:00:00:A0", true},
        {"ipEdit", "192.168.1.11", false},         {"netmaskEdit", "255.255.255.0", false},
        {"gatewayEdit", "192.168.1.254", false},
    };
    for (const auto &field : fields) {
        const QLineEdit *const edit = dialog.edit(field.name);
        QCOMPARE(edit->text(), QLatin1String(field.text));
        QCOMPARE(edit->isReadOnly(), field.readOnly);
    }
}

void tst_SetIpDialog::judges_data()
{
    QTest::addColumn<uint>("adapter");
    QTest::addColumn<uint>("adapterMask");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("addressValid");
    QTest::addColumn<bool>("maskValid");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, uint adapter, uint adapterMask, const char *address, const char *mask,
                        bool addressValid, bool maskValid, const char *text) {
        QTest::newRow(name) << adapter << adapterMask << QString::fromLatin1(address) << QString::fromLatin1(mask)
                            << addressValid << maskValid << QString::fromLatin1(text);
    };
    const uint nic = 0xC0A8010A;
    const uint wide = 0xFFFFFF00;
    row("fits", nic, wide, "192.168.1.12", "255.255.255.0", true, true, "IP Configuration OK");
    row("fits with blanks", nic, wide, " 192.168.1. 12", "255.255.255.0", true, true, "IP Configuration OK");
    row("adapter's own", nic, wide, "192.168.1.10", "255.255.255.0", false, true, "Incorrect IP address!");
    row("first octet 0", 0, 0, "0.1.2.3", "0.0.0.0", false, true, "Incorrect IP address!");
    row("lowest address", 0, 0, "1.0.0.0", "0.0.0.0", true, true, "IP Configuration OK");
    row("other subnet", nic, wide, "192.168.2.12", "255.255.255.0", false, true, "Subnet IP mismatch!");
    row("empty", nic, wide, "", "255.255.255.0", false, true, "Subnet IP mismatch!");
    row("wider mask", nic, wide, "192.168.1.12", "255.255.0.0", false, false, "Subnet mask mismatch!");
    row("other mask, same subnet", 0xC0A8000A, wide, "192.168.0.12", "255.255.0.0", true, false,
        "Subnet mask mismatch!");
}

void tst_SetIpDialog::judges()
{
    QFETCH(uint, adapter);
    QFETCH(uint, adapterMask);
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(QString, text);
    Dialog dialog;
    dialog.setNicIPAddress(adapter);
    dialog.setNicNetmask(adapterMask);
    dialog.show();
    dialog.edit("netmaskEdit")->clear();
    QTest::keyClicks(dialog.edit("netmaskEdit"), mask);
    dialog.edit("ipEdit")->clear();
    QTest::keyClicks(dialog.edit("ipEdit"), address);
    QTEST(dialog.isAddressValid(), "addressValid");
    QTEST(dialog.isMaskValid(), "maskValid");
    QCOMPARE(dialog.status()->text(), text);
    QCOMPARE(dialog.status()->styleSheet(), text.endsWith(QLatin1String("OK")) ? green : red);
}

void tst_SetIpDialog::remarks_data()
{
    QTest::addColumn<uint>("mask");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("typedMask");
    QTest::addColumn<QString>("gateway");
    QTest::addColumn<QString>("remark");
    const auto row = [](const char *name, uint mask, const char *address, const char *typedMask, const char *gateway,
                        const char *remark) {
        QTest::newRow(name) << mask << QString::fromLatin1(address) << QString::fromLatin1(typedMask)
                            << QString::fromLatin1(gateway) << QString::fromLatin1(remark);
    };
    const uint wide = 0xFFFFFF00;
    const char *const mask = "255.255.255.0";
    row("nothing", wide, "192.168.1.12", mask, "192.168.1.254", "");
    row("no gateway", wide, "192.168.1.12", mask, "", "");
    row("gateway 0", wide, "192.168.1.12", mask, "0.0.0.0", "");
    row("network", wide, "192.168.1.0", mask, "", "This is the address of the subnet itself.");
    row("broadcast", wide, "192.168.1.255", mask, "", "This is the subnet's broadcast address.");
    row("broadcast of a small subnet", 0xFFFFFFFC, "192.168.1.11", "255.255.255.252", "",
        "This is the subnet's broadcast address.");
    row("subnet of two", 0xFFFFFFFE, "192.168.1.11", "255.255.255.254", "", "");
    row("gateway", wide, "192.168.1.12", mask, "192.168.1.12", "This is the gateway's address.");
    row("half an address", wide, "192.168.1.", mask, "", "The IP address is not complete.");
    row("half a mask", wide, "192.168.1.12", "255.255", "", "The subnet mask is not complete.");
    row("half a gateway", wide, "192.168.1.12", mask, "192.168", "The default gateway is not complete.");
    row("other subnet", wide, "10.0.0.255", mask, "", "");
}

/** Beside what is said of the subnet, which stays. */
void tst_SetIpDialog::remarks()
{
    QFETCH(uint, mask);
    QFETCH(QString, remark);
    Dialog dialog;
    dialog.setNicNetmask(mask);
    dialog.setNetmask(mask);
    dialog.show();
    const auto *const line = dialog.findChild<QLabel *>(QStringLiteral("remarkLabel"));
    QCOMPARE(line->text(), dialog.remark());
    const QSize size = dialog.size();
    for (const auto &[name, column] :
         {std::pair("ipEdit", "address"), std::pair("netmaskEdit", "typedMask"), std::pair("gatewayEdit", "gateway")}) {
        dialog.edit(name)->clear();
        QTest::keyClicks(dialog.edit(name), *static_cast<QString *>(QTest::qData(column, qMetaTypeId<QString>())));
    }
    QCOMPARE(dialog.remark(), remark);
    QCOMPARE(line->text(), remark);
    QCOMPARE(dialog.status()->text() == QLatin1String("IP Configuration OK"),
             dialog.isAddressValid() && dialog.isMaskValid());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCOMPARE(dialog.size(), size); // it has its place
}

void tst_SetIpDialog::lastOctetIsReplaced()
{
    Dialog dialog;
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
void tst_SetIpDialog::pastesWholeAddresses()
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

void tst_SetIpDialog::anyConfigurationCanBeAccepted()
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

ORV_TEST_MAIN(tst_SetIpDialog)

#include "tst_setipdialog.moc"
