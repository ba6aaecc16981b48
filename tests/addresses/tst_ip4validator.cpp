// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/ip4validator.h>

#include <orvtest.h>

class tst_IP4Validator : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void judgesAndConverts_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<unsigned int>("address");
        const auto row = [](const char *text, QValidator::State state, unsigned int address) {
            QTest::newRow(text) << int(state) << address;
        };
        row("", QValidator::Acceptable, 0);
        row("192.168.1.10", QValidator::Acceptable, 0xC0A8010A);
        row(" 10 . 0 .\t0 . 255 ", QValidator::Acceptable, 0x0A0000FF);
        row("255.255.255.255", QValidator::Acceptable, 0xFFFFFFFF);
        row("1.2.3", QValidator::Intermediate, 0x00010203);
        row("192.168.1.", QValidator::Intermediate, 0xC0A80100);
        row("1..2.4", QValidator::Intermediate, 0x01000204);
        row("0.0.1.256", QValidator::Invalid, 0x00000100);
        row("9.1.2.3.4", QValidator::Invalid, 0x01020304);
        row("1.-2", QValidator::Invalid, 0x00000100);
        row("1.2.3.0x4", QValidator::Invalid, 0x01020300);
        row("1 2.3.4.5", QValidator::Invalid, 0x00030405);
    }
    void judgesAndConverts()
    {
        QString text = QString::fromLatin1(QTest::currentDataTag());
        int pos = 0;
        QTEST(int(IP4Validator().validate(text, pos)), "state");
        QTEST(IP4Validator::getIp(text), "address");
    }
};

ORV_TEST_MAIN(tst_IP4Validator)

#include "tst_ip4validator.moc"
