// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "valuetext.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

std::optional<quint64> integerOf(const QByteArray &text)
{
    const bool isHex = text.startsWith("0x") || text.startsWith("0X");
    bool isFine = false;
    quint64 value = isHex ? text.toULongLong(&isFine, 16) : quint64(text.toLongLong(&isFine, 10));
    if (!isFine && !isHex)
        value = text.toULongLong(&isFine, 10);
    return isFine ? std::make_optional(value) : std::nullopt;
}

bool isSameNumber(const QByteArray &left, const QByteArray &right)
{
    const std::optional<double> first = numberOf(left);
    const std::optional<double> second = numberOf(right);
    if (!first || !second || !std::isfinite(*first) || !std::isfinite(*second))
        return false; // the same text at best
    constexpr double rounding = 1e-12;
    return std::fabs(*first - *second) <= std::max(std::fabs(*first), std::fabs(*second)) * rounding;
}

bool isHex(const QByteArray &text)
{
    return text.startsWith("0x") || text.startsWith("0X");
}

} // namespace

bool isSameValue(const QByteArray &left, const QByteArray &right, GenApi::EInterfaceType kind)
{
    return normalValue(left, kind) == normalValue(right, kind)
        || (kind == GenApi::intfIFloat && isSameNumber(left, right));
}

bool isSameValue(const QByteArray &left, const QByteArray &right)
{
    if (isHex(left) && isHex(right))
        return isSameValue(left, right, GenApi::intfIInteger);
    return left == right || (left.contains('.') && right.contains('.') && isSameNumber(left, right));
}

QByteArray normalValue(const QByteArray &text, GenApi::EInterfaceType kind)
{
    if (kind == GenApi::intfIInteger) {
        const std::optional<quint64> value = integerOf(text);
        return value ? QByteArray::number(*value) : text;
    }
    if (kind != GenApi::intfIBoolean)
        return text;
    const QByteArray lower = text.trimmed().toLower();
    return lower == "true" ? QByteArray("1") : lower == "false" ? QByteArray("0") : lower;
}

std::optional<double> numberOf(const QByteArray &text)
{
    bool isFine = false;
    const double value = text.toDouble(&isFine);
    return isFine ? std::make_optional(value) : std::nullopt;
}

double lastDigitOf(double value, GenApi::EDisplayNotation notation, qint64 precision)
{
    const double decimals = double(std::clamp<qint64>(precision, 0, 300));
    if (notation == GenApi::fnFixed)
        return std::pow(10.0, -decimals);
    const double first = value == 0 ? 0 : std::floor(std::log10(std::fabs(value)));
    const double others = notation == GenApi::fnScientific ? decimals : std::max(decimals - 1, 0.0);
    return std::pow(10.0, first - others);
}
