// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <QVector>

namespace OrvTest {

/** An entry of a catalogue of translations. */
struct CatalogueEntry
{
    QString context;
    QString source;
    QString translation;
    QString state; ///< empty for one that is finished
};

/** The content of a .ts file; empty if it cannot be read. */
QVector<CatalogueEntry> readCatalogue(const QString &path);

} // namespace OrvTest
