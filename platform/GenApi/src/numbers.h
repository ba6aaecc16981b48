#pragma once

#include <GenApi/Types.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace OrvGenApi {

constexpr int64_t int64Min = std::numeric_limits<int64_t>::min();
constexpr int64_t int64Max = std::numeric_limits<int64_t>::max();

/** Without white space at both ends. */
std::string_view trimmed(std::string_view text);

/** Decimal or 0x-hexadecimal, the latter up to 64 bits wide; nothing when the text is no such number. */
std::optional<int64_t> parseInteger(std::string_view text);

/** A floating-point number in the C locale, or what parseInteger() reads. */
std::optional<double> parseFloat(std::string_view text);

/** The nearest integer, halves away from zero; limited to 64 bits, 0 for what is no number. */
int64_t roundedToInteger(double value);

/** The text of \a value in a representation: decimal, 0x..., dotted IPv4 or a MAC address with colons. */
std::string formatInteger(int64_t value, GenApi::ERepresentation representation);

/** Reads what formatInteger() writes. */
std::optional<int64_t> parseInteger(std::string_view text, GenApi::ERepresentation representation);

/** The text of \a value with \a precision digits: behind the point when fixed, significant ones otherwise. */
std::string formatFloat(double value, GenApi::EDisplayNotation notation, int64_t precision);

} // namespace OrvGenApi
