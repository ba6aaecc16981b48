// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

const QString libraryCatalogues = QStringLiteral(":/OrvCameraGuiApi/translations");

/** By name: a locale is looked for in all languages that the user knows, and for English there is no catalogue. */
void install(const QLocale &locale, const QString &catalogue, const QString &directory)
{
    auto *const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(catalogue + QLatin1Char('_') + locale.name(), directory))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

QStringList languages()
{
    QStringList names(QStringLiteral("en"));
    const QStringList files = QDir(libraryCatalogues).entryList({QStringLiteral("*.qm")});
    for (const QString &file : files)
        names.append(file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0));
    names.sort();
    return names;
}

void speak(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    install(locale, QStringLiteral("OrvCameraGuiApi"), libraryCatalogues);
    install(locale, QStringLiteral("orv-camera-explorer"), QStringLiteral(":/orv-camera-explorer/translations"));
#if QT_VERSION_MAJOR < 6
    const QString ofQt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString ofQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    install(locale, QStringLiteral("qtbase"), ofQt);
}
