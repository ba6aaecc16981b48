#include <OrvCameraGuiApi/device_selection/ip4validator.h>

#include <orvtest.h>

class tst_IP4Validator : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
    void converts_data();
    void converts();
};

void tst_IP4Validator::judges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");

    const auto rows = [](QValidator::State state, const QStringList &texts) {
        for (const QString &text : texts)
            QTest::newRow(qPrintable(QLatin1Char('"') + text + QLatin1Char('"'))) << text << int(state);
    };
    rows(QValidator::Acceptable,
         {QString(), QStringLiteral("192.168.1.10"), QStringLiteral(" 10 . 0 .\t0 . 255 "), QStringLiteral("0.0.0.0")});
    rows(QValidator::Intermediate,
         {QStringLiteral("1"), QStringLiteral("192.168.1"), QStringLiteral("192.168.1."), QStringLiteral("192..1.1"),
          QStringLiteral("..."), QStringLiteral(" ")});
    rows(QValidator::Invalid,
         {QStringLiteral("192.168.1.256"), QStringLiteral("1.2.3.4.5"), QStringLiteral("...."), QStringLiteral("a.b"),
          QStringLiteral("1.-2"), QStringLiteral("1.2.3.0x4"), QStringLiteral("1 2.3.4.5"),
          QStringLiteral("4294967297.0.0.1")});
}

void tst_IP4Validator::judges()
{
    QFETCH(QString, text);
    QString input = text;
    int pos = 0;
    QTEST(int(IP4Validator().validate(input, pos)), "state");
    QCOMPARE(input, text);
}

void tst_IP4Validator::converts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("address");
    QTest::addColumn<QString>("normal");

    const auto row = [](const char *text, unsigned int address, const char *normal) {
        QTest::newRow(text) << QString::fromLatin1(text) << address << QString::fromLatin1(normal);
    };
    row("192.168.1.10", 0xC0A8010Au, "192.168.1.10");
    row(" 10 . 0 .\t0 . 255 ", 0x0A0000FFu, "10.0.0.255");
    row("255.255.255.255", 0xFFFFFFFFu, "255.255.255.255");
    row("1.2.3", 0x00010203u, "0.1.2.3");
    row("", 0u, "0.0.0.0");
    row("1..x.4", 0x01000004u, "1.0.0.4");
    row("0.0.1.256", 0x00000100u, "0.0.1.0");
    row("9.1.2.3.4", 0x01020304u, "1.2.3.4");
}

void tst_IP4Validator::converts()
{
    QFETCH(QString, text);
    QTEST(IP4Validator::getIp(text), "address");
    QTEST(IP4Validator::getIpStr(IP4Validator::getIp(text)), "normal");
}

ORV_TEST_MAIN(tst_IP4Validator)

#include "tst_ip4validator.moc"
