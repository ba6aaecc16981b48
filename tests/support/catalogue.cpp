// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

namespace OrvTest {

namespace {

/** The text of an element, in which characters that XML cannot hold stand as elements of their own. */
QString readText(QXmlStreamReader &xml)
{
    QString text;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters())
            text += xml.text();
        if (!xml.isStartElement())
            continue;
        const auto code = xml.attributes().value(QLatin1String("value")).mid(1).toUShort(nullptr, 16);
        text += QChar(code);
        xml.skipCurrentElement();
    }
    return text;
}

} // namespace

QVector<CatalogueEntry> readCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<CatalogueEntry> entries;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = readText(xml);
        } else if (xml.name() == QLatin1String("message")) {
            entries.append({context, {}, {}, {}});
        } else if (xml.name() == QLatin1String("source")) {
            entries.last().source = readText(xml);
        } else if (xml.name() == QLatin1String("translation")) {
            entries.last().state = xml.attributes().value(QLatin1String("type")).toString();
            entries.last().translation = readText(xml);
        }
    }
    return xml.hasError() ? QVector<CatalogueEntry>() : entries;
}

} // namespace OrvTest
