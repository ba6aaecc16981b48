// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

#include <algorithm>
#include <iterator>

/**
 * The signs, separators and digits of a QLocale. Qt 5 answers a character, Qt 6 a text: a sign may have marks of the
 * direction around it, and a digit may take two units. A QString can be made of both.
 */
namespace LocaleSigns {

inline bool isMark(QChar c)
{
    return c.category() == QChar::Other_Format;
}

/** \a sign without marks of the direction. */
inline QChar sole(const QString &sign)
{
    const auto place = std::find_if_not(sign.begin(), sign.end(), isMark);
    return place == sign.end() ? QChar() : *place;
}

/** The marks of the direction in \a sign. */
inline QString marks(const QString &sign)
{
    QString result;
    std::copy_if(sign.begin(), sign.end(), std::back_inserter(result), isMark);
    return result;
}

} // namespace LocaleSigns
