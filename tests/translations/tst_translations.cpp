// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/setipdialog.h>

#include <catalogue.h>
#include <orvtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>

namespace {

using Catalogue = QVector<OrvTest::CatalogueEntry>;

const QDir directory(QStringLiteral(TRANSLATIONS));
const QString names[] = {QStringLiteral("OrvCameraGuiApi"), QStringLiteral("orv-camera-explorer")};

QStringList keysOf(const Catalogue &catalogue)
{
    QStringList keys;
    for (const OrvTest::CatalogueEntry &entry : catalogue)
        keys.append(entry.context + QLatin1String(": ") + entry.source);
    return keys;
}

/** The first of the texts that the others lack; empty when they have them all. */
QString without(const QStringList &texts, const QStringList &others)
{
    const auto isLacking = [&](const QString &text) { return !others.contains(text); };
    const auto found = std::find_if(texts.begin(), texts.end(), isLacking);
    return found == texts.end() ? QString() : *found;
}

/** The marks that a translation keeps: places for values, tags, a mnemonic, a blank at the end. */
QString marksOf(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("%\\d|</?\\w+>|&(?=\\w)|\\n|\\r| +$"));
    QStringList marks;
    for (auto matches = mark.globalMatch(text); matches.hasNext();)
        marks.append(matches.next().captured());
    marks.sort();
    return marks.join(QString());
}

QStringList cataloguesOf(const QString &name)
{
    return directory.entryList({name + QLatin1String("_*.ts")});
}

/** The texts that stay as they are in a language. */
QStringList untranslated(const QString &name, const QString &language)
{
    QFile file(directory.filePath(name + QLatin1String("_untranslated.txt")));
    QStringList texts;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return texts;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        if (line.section(QLatin1Char('\t'), 0, 0) == language)
            texts.append(line.section(QLatin1Char('\t'), 1));
    }
    return texts;
}

} // namespace

class TestTranslations : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void catalogue_data();
    void catalogue();
    void updating_data();
    void updating();
    void resources();
};

void TestTranslations::catalogue_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("language");
    for (const QString &name : names) {
        const QStringList files = cataloguesOf(name);
        QCOMPARE(files.size(), 3);
        for (const QString &file : files) {
            const QString language = file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
            QTest::newRow(qPrintable(file)) << name << language;
        }
    }
}

/** Every entry is finished and differs from its source, except the listed ones. */
void TestTranslations::catalogue()
{
    QFETCH(QString, name);
    QFETCH(QString, language);
    const QStringList listed = untranslated(name, language);
    QStringList same;
    const Catalogue entries = OrvTest::readCatalogue(directory.filePath(QLatin1String(QTest::currentDataTag())));
    QVERIFY(!entries.isEmpty());
    for (const OrvTest::CatalogueEntry &entry : entries) {
        const QByteArray where = (entry.context + QLatin1String(": ") + entry.source).toUtf8();
        QVERIFY2(entry.state.isEmpty() && !entry.translation.trimmed().isEmpty(), where + " is not translated");
        QVERIFY2(marksOf(entry.translation) == marksOf(entry.source), where + " loses or gains marks");
        if (entry.translation == entry.source && !same.contains(entry.source))
            same.append(entry.source);
    }
    QCOMPARE(without(same, listed), QString());
    QCOMPARE(without(listed, same), QString());
}

void TestTranslations::updating_data()
{
    QTest::addColumn<QString>("lupdateArguments");
    QTest::newRow("OrvCameraGuiApi") << QStringLiteral(LUPDATE_ARGUMENTS);
    QTest::newRow("orv-camera-explorer") << QStringLiteral(EXPLORER_LUPDATE_ARGUMENTS);
}

/** The catalogues have every source text, and none that is gone; the target orv-update-translations sees to that. */
void TestTranslations::updating()
{
    QFETCH(QString, lupdateArguments);
    const QTemporaryDir copies;
    QStringList arguments = lupdateArguments.split(QLatin1Char('|'));
    arguments.append(QStringLiteral("-ts"));
    const QStringList files = cataloguesOf(QLatin1String(QTest::currentDataTag()));
    for (const QString &file : files) {
        QVERIFY(QFile::copy(directory.filePath(file), copies.filePath(file)));
        arguments.append(copies.filePath(file));
    }
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE), arguments);
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    for (const QString &file : files) {
        const QStringList updated = keysOf(OrvTest::readCatalogue(copies.filePath(file)));
        const QStringList present = keysOf(OrvTest::readCatalogue(directory.filePath(file)));
        QVERIFY(!updated.isEmpty());
        QCOMPARE(without(updated, present), QString()); // lacking
        QCOMPARE(without(present, updated), QString()); // gone from the sources
    }
}

/** A program finds the language in the library, as the documentation tells. */
void TestTranslations::resources()
{
    const QString place = QStringLiteral(":/OrvCameraGuiApi/translations");
    QTranslator german;
    QVERIFY(!german.load(QLocale(QLocale::Chinese, QLocale::Taiwan), QStringLiteral("OrvCameraGuiApi"),
                         QStringLiteral("_"), place));
    QVERIFY(german.load(QLocale(QLocale::German, QLocale::Austria), QStringLiteral("OrvCameraGuiApi"),
                        QStringLiteral("_"), place));
    QVERIFY(QCoreApplication::installTranslator(&german));
    QCOMPARE(SetIpDialog().windowTitle(), QStringLiteral("IP-Adresse setzen"));
    QVERIFY(QCoreApplication::removeTranslator(&german));
}

ORV_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
