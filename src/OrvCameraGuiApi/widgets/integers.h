#pragma once

#include <QtGlobal>

#include <limits>

/** The bounds of the integers that the widgets take, and the way from 64 bits to an int. */
namespace Integers {

constexpr int Smallest = std::numeric_limits<int>::min();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr long long Smallest64 = std::numeric_limits<long long>::min();
constexpr long long Largest64 = std::numeric_limits<long long>::max();

constexpr bool fitsInt(long long number)
{
    return Smallest <= number && number <= Largest;
}

/** \a number, or the int nearest to it. */
constexpr int clampedToInt(long long number)
{
    return number < Smallest ? Smallest : number > Largest ? Largest : int(number);
}

} // namespace Integers
