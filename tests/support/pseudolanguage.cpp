// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "pseudolanguage.h"

#include "catalogue.h"

#include <QStringList>

namespace OrvTest {

namespace {

QString keyOf(const QString &context, const QString &source)
{
    return context + QLatin1Char('\n') + source;
}

QString withoutMnemonic(QString line)
{
    const auto place = line.indexOf(QLatin1Char('&'));
    return place < 0 ? line : line.remove(place, 1);
}

/** Twice the line, up to a carriage return that belongs to its end. */
QString doubled(QString line)
{
    const bool hasReturn = line.endsWith(QLatin1Char('\r'));
    if (hasReturn)
        line.chop(1);
    line += withoutMnemonic(line);
    return hasReturn ? line + QLatin1Char('\r') : line;
}

/** Whether Qt itself asks, whose texts are in catalogues of its own. */
bool isOfQt(const QString &context)
{
    return context.startsWith(QLatin1Char('Q')) && !context.startsWith(QLatin1String("QtOrv"));
}

} // namespace

PseudoLanguage::PseudoLanguage(const QString &catalogue)
{
    const auto entries = readCatalogue(catalogue);
    for (const CatalogueEntry &entry : entries)
        m_known.insert(keyOf(entry.context, entry.source));
    Q_ASSERT(!m_known.isEmpty());
}

QString PseudoLanguage::translate(const char *context, const char *source, const char *, int) const
{
    const QString where = QString::fromUtf8(context);
    const QString text = QString::fromUtf8(source);
    if (!m_known.contains(keyOf(where, text))) {
        if (!isOfQt(where))
            qWarning("not in the catalogues: \"%s\" in the context %s", source, context);
        return {};
    }
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = doubled(line);
    return lines.join(QLatin1Char('\n'));
}

} // namespace OrvTest
