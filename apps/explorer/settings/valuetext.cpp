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

std::optional<double> numberOf(const QByteArray &text)
{
    bool isFine = false;
    const double value = text.toDouble(&isFine);
    return isFine ? std::make_optional(value) : std::nullopt;
}

/** The worth of one in the last digit of a number's text. */
double lastDigitOf(const QByteArray &text)
{
    const QByteArray lower = text.toLower();
    const int exponent = lower.indexOf('e');
    const QByteArray digits = exponent < 0 ? lower : lower.left(exponent);
    const int point = digits.indexOf('.');
    const int decimals = point < 0 ? 0 : digits.size() - point - 1;
    return std::pow(10.0, (exponent < 0 ? 0 : lower.mid(exponent + 1).toInt()) - decimals);
}

bool isNear(const QByteArray &wanted, const QByteArray &has, double tolerance)
{
    const std::optional<double> left = numberOf(wanted);
    const std::optional<double> right = numberOf(has);
    if (!left || !right || !std::isfinite(*left) || !std::isfinite(*right))
        return false; // the same text at best
    constexpr double rounding = 1e-12;
    const double magnitude = std::max(std::fabs(*left), std::fabs(*right));
    return std::fabs(*left - *right) <= tolerance * (1 + 1e-6) + magnitude * rounding;
}

bool isSameInteger(const QByteArray &left, const QByteArray &right)
{
    const std::optional<quint64> value = integerOf(left);
    return value && value == integerOf(right);
}

QByteArray truthOf(const QByteArray &text)
{
    const QByteArray lower = text.trimmed().toLower();
    return lower == "true" ? QByteArray("1") : lower == "false" ? QByteArray("0") : lower;
}

} // namespace

bool isSameValue(const QByteArray &wanted, const QByteArray &has, GenApi::EInterfaceType kind)
{
    if (wanted == has)
        return true;
    switch (kind) {
    case GenApi::intfIInteger:
        return isSameInteger(wanted, has);
    case GenApi::intfIFloat:
        return isNear(wanted, has, lastDigitOf(wanted));
    case GenApi::intfIBoolean:
        return truthOf(wanted) == truthOf(has);
    default:
        return false;
    }
}

bool isSameValue(const QByteArray &left, const QByteArray &right)
{
    return left == right || isSameInteger(left, right) || isNear(left, right, 0);
}
