// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/addresses/ip4validator.h>

#include <QStringList>

namespace {

constexpr int OctetCount = 4;
constexpr unsigned int OctetMax = 255;

QStringList octets(const QString &text)
{
    return text.split(QLatin1Char('.'), Qt::KeepEmptyParts);
}

} // namespace

IP4Validator::IP4Validator(QObject *parent)
    : QValidator(parent)
{
}

QValidator::State IP4Validator::validate(QString &input, int &pos) const
{
    Q_UNUSED(pos)
    if (input.isEmpty())
        return Acceptable; // intentionally: an address that is left out is not reported as a wrong one

    const QStringList parts = octets(input);
    if (parts.size() > OctetCount)
        return Invalid;

    bool complete = parts.size() == OctetCount;
    for (const QString &part : parts) {
        const QString octet = part.trimmed();
        if (octet.isEmpty()) {
            complete = false;
            continue;
        }
        bool isNumber = false;
        if (octet.toUInt(&isNumber) > OctetMax || !isNumber)
            return Invalid;
    }
    return complete ? Acceptable : Intermediate;
}

unsigned int IP4Validator::getIp(const QString &text)
{
    unsigned int address = 0;
    const QStringList parts = octets(text);
    for (const QString &part : parts)
        address = (address << 8) | part.toUInt();
    return address;
}

QString IP4Validator::getIpStr(unsigned int address)
{
    QStringList parts;
    for (int shift = 8 * (OctetCount - 1); shift >= 0; shift -= 8)
        parts.append(QString::number((address >> shift) & OctetMax));
    return parts.join(QLatin1Char('.'));
}
