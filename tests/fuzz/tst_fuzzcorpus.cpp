// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "exercise.h"
#include <orvtest.h>

#include <QDir>

/** Every input that the fuzzer once found worth keeping goes through the same function in a normal build. */
class tst_FuzzCorpus : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void replays_data();
    void replays();
};

void tst_FuzzCorpus::replays_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files =
        QDir(QStringLiteral(ORV_FUZZ_CORPUS)).entryInfoList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void tst_FuzzCorpus::replays()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    const QByteArray content = file.readAll();
    OrvGenApi::fuzz::exerciseDescription({content.constData(), static_cast<std::size_t>(content.size())});
}

ORV_PLAIN_TEST_MAIN(tst_FuzzCorpus)
#include "tst_fuzzcorpus.moc"
