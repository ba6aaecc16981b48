// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camera_api/orvcam.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>

#include <orvtest.h>

#include <limits>

class TestOrvCamErr : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void descriptions_data();
    void descriptions();
};

void TestOrvCamErr::descriptions_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");

    const std::pair<int, const char *> known[] = {
        {0, ""},
        {-40001, "Unknown error"},
        {-40002, "File not found"},
        {-40003, "File read error"},
        {-40004, "Wrong configuration"},
        {-40005, "Invalid index"},
        {-40006, "No device"},
        {-40007, "Invalid argument"},
        {-40051, "Invalid state"},
        {-40101, "Flash erase error"},
        {-40200, "GenICam: Generic error"},
        {-40201, "GenICam: Tree error"},
        {-40202, "GenICam: Access error"},
        {-40203, "GenICam: Parameter type is invalid"},
        {-40204, "GenICam: Parameter is out of range"},
        {-40205, "GenICam: Unknown param"},
        {-40206, "GenICam: Invalid argument"},
    };
    for (const auto &[code, text] : known)
        QTest::addRow("%d", code) << code << QString::fromLatin1(text);
    // Both sides of every gap.
    for (const int code : {1, 40001, -1, -40000, -40008, -40050, -40052, -40100, -40102, -40199, -40207,
                           std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", code) << code << QStringLiteral("Unknown code");
}

void TestOrvCamErr::descriptions()
{
    QFETCH(const int, code);
    QFETCH(const QString, text);
    QCOMPARE(QString::fromLatin1(orvCamErrDescription(OrvCamErr(code))), text);
}

ORV_TEST_MAIN(TestOrvCamErr)
#include "tst_orvcamerr.moc"
