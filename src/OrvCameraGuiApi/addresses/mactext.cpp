// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/addresses/mactext.h>

#include <QStringList>

QString macText(quint64 mac)
{
    QStringList bytes;
    for (int shift = 40; shift >= 0; shift -= 8)
        bytes.append(QStringLiteral("%1").arg(mac >> shift & 0xff, 2, 16, QLatin1Char('0')));
    return bytes.join(QLatin1Char(':')).toUpper();
}
