// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Types.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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

/** The text of \a value in a representation: decimal, 0x..., true, dotted IPv4 or a MAC address with colons. */
std::string formatInteger(int64_t value, GenApi::ERepresentation representation);

/**
 * What a user's text means for a number, a truth value or a floating-point number. What follows behind the number is
 * not looked at ("12 us", "1.5" for an integer), one that does not fit is limited; a truth value is true, false, or an
 * integer that is 0 or 1. The representations with a form of their own read only that.
 */
std::optional<int64_t> readInteger(std::string_view text, GenApi::ERepresentation representation);
std::optional<bool> readBoolean(std::string_view text);
std::optional<double> readFloat(std::string_view text);

/** The text of \a value with \a precision digits: behind the point when fixed, significant ones otherwise. */
std::string formatFloat(double value, GenApi::EDisplayNotation notation, int64_t precision);

/**
 * The same, so that the text may be written back: one that is rounded over a limit is moved inwards by half a unit of
 * its last digit. The minimum is not asked for where the text is over the maximum.
 */
std::string formatFloat(double value, GenApi::EDisplayNotation notation, int64_t precision,
                        const std::function<double()> &minimum, const std::function<double()> &maximum);

} // namespace OrvGenApi
