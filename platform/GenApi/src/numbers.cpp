// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <vector>

namespace OrvGenApi {

namespace {

/** The whole of \a text as an unsigned number. */
std::optional<uint64_t> parseUnsigned(std::string_view text, int base)
{
    uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

/** Bytes written as numbers between separators, the first the most significant. */
std::optional<int64_t> parseBytes(std::string_view text, char separator, int base, std::size_t count)
{
    uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t end = i + 1 < count ? text.find(separator) : text.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<uint64_t> byte = parseUnsigned(text.substr(0, end), base);
        if (!byte || *byte > 255)
            return std::nullopt;
        value = value << 8 | *byte;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return static_cast<int64_t>(value);
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

std::optional<int64_t> parseInteger(std::string_view text)
{
    text = trimmed(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    const bool hexadecimal = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const std::optional<uint64_t> magnitude = parseUnsigned(hexadecimal ? text.substr(2) : text, hexadecimal ? 16 : 10);
    if (!magnitude)
        return std::nullopt;
    const uint64_t limit = static_cast<uint64_t>(int64Max) + (negative ? 1 : 0);
    if (!hexadecimal && *magnitude > limit)
        return std::nullopt;
    return static_cast<int64_t>(negative ? 0 - *magnitude : *magnitude);
}

std::optional<double> parseFloat(std::string_view text)
{
    text = trimmed(text);
    std::string_view digits = text;
    if (!digits.empty() && digits.front() == '+')
        digits.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc() && end == digits.data() + digits.size())
        return value;
    if (error == std::errc::result_out_of_range && end == digits.data() + digits.size()) {
        const bool negative = digits.front() == '-';
        const bool tiny = digits.find("e-") != std::string_view::npos || digits.find("E-") != std::string_view::npos;
        const double magnitude = tiny ? 0 : std::numeric_limits<double>::infinity();
        return negative ? -magnitude : magnitude;
    }
    if (const std::optional<int64_t> integer = parseInteger(text))
        return static_cast<double>(*integer);
    return std::nullopt;
}

int64_t roundedToInteger(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double limit = 9223372036854775808.0;
    const double rounded = std::round(value);
    if (rounded >= limit)
        return int64Max;
    if (rounded < -limit)
        return int64Min;
    return static_cast<int64_t>(rounded);
}

std::string formatInteger(int64_t value, GenApi::ERepresentation representation)
{
    const auto byte = [value](int index) {
        return static_cast<unsigned>(static_cast<uint64_t>(value) >> 8 * index & 255);
    };
    char text[32];
    switch (representation) {
    case GenApi::Boolean:
        return value != 0 ? "true" : "false";
    case GenApi::HexNumber:
        std::snprintf(text, sizeof text, "%#llx", static_cast<unsigned long long>(value)); // 0 stays 0
        return text;
    case GenApi::IPV4Address:
        std::snprintf(text, sizeof text, "%u.%u.%u.%u", byte(3), byte(2), byte(1), byte(0));
        return text;
    case GenApi::MACAddress:
        std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", byte(5), byte(4), byte(3), byte(2), byte(1),
                      byte(0));
        return text;
    default:
        return std::to_string(value);
    }
}

namespace {

/** The digits of an integer at the start of \a text, as a number that is limited to 64 bits; nothing without any. */
std::optional<int64_t> leadingInteger(std::string_view text, int base)
{
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude, base);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        magnitude = std::numeric_limits<uint64_t>::max();
    if (base == 16) // as wide as a register
        return static_cast<int64_t>(negative ? 0 - magnitude : magnitude);
    const uint64_t limit = static_cast<uint64_t>(int64Max) + (negative ? 1 : 0);
    magnitude = std::min(magnitude, limit);
    return static_cast<int64_t>(negative ? 0 - magnitude : magnitude);
}

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

} // namespace

std::optional<int64_t> readInteger(std::string_view text, GenApi::ERepresentation representation)
{
    text = trimmed(text);
    switch (representation) {
    case GenApi::Boolean:
        return text == "true" ? std::optional<int64_t>(1) : text == "false" ? std::optional<int64_t>(0) : std::nullopt;
    case GenApi::IPV4Address:
        return parseBytes(text, '.', 10, 4);
    case GenApi::MACAddress:
        return parseBytes(text, ':', 16, 6);
    default:
        break;
    }
    if (text == "0x" || text == "0X")
        return 0;
    if (startsWith(text, "0x") || startsWith(text, "0X"))
        return leadingInteger(text.substr(2), 16);
    return leadingInteger(text, 10);
}

std::optional<bool> readBoolean(std::string_view text)
{
    text = trimmed(text);
    if (startsWith(text, "true"))
        return true;
    if (startsWith(text, "false"))
        return false;
    const std::optional<int64_t> number = leadingInteger(text, 10);
    return number == 1 ? std::optional<bool>(true) : number == 0 ? std::optional<bool>(false) : std::nullopt;
}

std::optional<double> readFloat(std::string_view text)
{
    text = trimmed(text);
    if (startsWith(text, "+") && !startsWith(text, "+-"))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const auto used = text.substr(0, static_cast<std::size_t>(end - text.data()));
    const bool isTiny = used.find("e-") != std::string_view::npos || used.find("E-") != std::string_view::npos;
    if (error == std::errc::result_out_of_range && isTiny)
        return 0;
    if (error != std::errc() || !std::isfinite(value))
        return std::nullopt;
    // An exponent without digits is no number, not one that ends before it.
    if (end != text.data() + text.size() && (*end == 'e' || *end == 'E') && used.find_first_of("eE") == used.npos)
        return std::nullopt;
    return value;
}

std::string formatFloat(double value, GenApi::EDisplayNotation notation, int64_t precision)
{
    const int digits = static_cast<int>(std::clamp<int64_t>(precision, 0, 300));
    const char *const format = notation == GenApi::fnFixed ? "%.*f"
        : notation == GenApi::fnScientific                 ? "%.*e"
                                                           : "%.*g";
    const int length = std::snprintf(nullptr, 0, format, digits, value);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, digits, value);
    text.pop_back();
    // The format follows the process's locale; a description's numbers have a point.
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

std::string formatFloat(double value, GenApi::EDisplayNotation notation, int64_t precision,
                        const std::function<double()> &minimum, const std::function<double()> &maximum)
{
    std::string text = formatFloat(value, notation, precision);
    const double shown = parseFloat(text).value_or(value);
    const bool isOver = shown > maximum();
    if (!isOver && !(shown < minimum()))
        return text;
    const std::size_t point = text.find('.');
    std::size_t digits = 0;
    while (point != std::string::npos && point + 1 + digits < text.size() && std::isdigit(text[point + 1 + digits]))
        ++digits;
    double half = 0.5;
    for (; digits > 0; --digits)
        half *= 0.1;
    return formatFloat(isOver ? value - half : value + half, notation, precision);
}

} // namespace OrvGenApi
