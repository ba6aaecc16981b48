// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/device_selection/onelinedelegate.h>

QString shortened(const QString &text)
{
    constexpr int longest = 1000;
    return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

QString OneLineDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    QString text = shortened(ReadableDelegate::displayText(value, locale));
    const auto isBreak = [](QChar c) {
        const ushort code = c.unicode();
        return (code >= 0x09 && code <= 0x0d) || code == 0x85 || code == 0x2028 || code == 0x2029;
    };
    for (QChar &c : text) {
        if (isBreak(c))
            c = QLatin1Char(' ');
    }
    return text;
}
