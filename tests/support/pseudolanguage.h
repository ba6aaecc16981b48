// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSet>
#include <QTranslator>

namespace OrvTest {

/**
 * A language in which every text of the library is twice as long: each of its lines stands twice, with the mnemonic in
 * the first half only. What is not asked for in the words of the catalogues fails the test.
 */
class PseudoLanguage : public QTranslator
{
public:
    /** Knows what the catalogue, a .ts file, has. */
    explicit PseudoLanguage(const QString &catalogue);

    QString translate(const char *context, const char *source, const char *disambiguation, int n) const override;
    bool isEmpty() const override { return false; }

private:
    QSet<QString> m_known;
};

} // namespace OrvTest
