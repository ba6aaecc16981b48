// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtGlobal>

#include <limits>

/** The bounds of integers, and the way from 64 bits to an int and from a double to 64 bits. */
namespace Integers {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr long long Smallest64 = std::numeric_limits<long long>::min();
constexpr long long Largest64 = std::numeric_limits<long long>::max();

/** 2^63, the smallest double beyond Largest64. Its negative is Smallest64; no double lies between Largest64 and it. */
constexpr double Beyond64 = 9223372036854775808.0;

constexpr bool fitsInt(long long number)
{
    return Smallest <= number && number <= Largest;
}

/** Whether a conversion of \a number to 64 bits is defined; false for NaN. */
constexpr bool fits64(double number)
{
    return -Beyond64 <= number && number < Beyond64;
}

/** \a number, or the int nearest to it. */
constexpr int clampedToInt(long long number)
{
    return number < Smallest ? Smallest : number > Largest ? Largest : int(number);
}

} // namespace Integers
