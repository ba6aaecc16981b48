// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "formulaarithmetic.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace OrvGenApi {

namespace {

template <typename Value>
bool compare(Op op, Value a, Value b)
{
    switch (op) {
    case Op::Less:
        return a < b;
    case Op::Greater:
        return a > b;
    case Op::LessOrEqual:
        return a <= b;
    case Op::GreaterOrEqual:
        return a >= b;
    case Op::Equal:
        return a == b;
    default:
        return a != b;
    }
}

} // namespace

int64_t toInteger(double value)
{
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<int64_t>::max();
    return value < -limit ? std::numeric_limits<int64_t>::min() : static_cast<int64_t>(value);
}

int64_t IntArithmetic::unary(Op op, Value a)
{
    switch (op) {
    case Op::Negate:
        return negate(a);
    case Op::Invert:
        return ~a;
    case Op::Sgn:
        return (a > 0) - (a < 0);
    case Op::Abs:
        return a < 0 ? negate(a) : a;
    case Op::Round:
    case Op::Floor:
    case Op::Ceil:
    case Op::Trunc:
        return a;
    case Op::Frac:
        return 0;
    case Op::Sqrt:
        return squareRoot(a);
    default:
        return toInteger(FloatArithmetic::unary(op, static_cast<double>(a)));
    }
}

int64_t IntArithmetic::binary(Op op, Value a, Value b)
{
    switch (op) {
    case Op::RoundTo:
        return roundTo(a, b);
    case Op::Power:
        return power(a, b);
    case Op::Multiply:
        return wrapped(bits(a) * bits(b));
    case Op::Divide:
        return divide(a, b);
    case Op::Modulo:
        return wrapped(bits(a) - bits(divide(a, b)) * bits(b));
    case Op::Add:
        return wrapped(bits(a) + bits(b));
    case Op::Subtract:
        return wrapped(bits(a) - bits(b));
    case Op::ShiftLeft:
        return wrapped(bits(a) << (bits(b) & 63)); // as processors do it
    case Op::ShiftRight:
        return a >> (bits(b) & 63);
    case Op::And:
        return a & b;
    case Op::Xor:
        return a ^ b;
    case Op::Or:
        return a | b;
    case Op::LogicalAnd:
        return a != 0 && b != 0;
    case Op::LogicalOr:
        return a != 0 || b != 0;
    default:
        return compare(op, a, b);
    }
}

/** Cut off; the floating-point root is the first guess only. */
int64_t IntArithmetic::squareRoot(Value a)
{
    if (a < 0)
        throw FormulaError{"no finite result"};
    const uint64_t square = bits(a);
    auto root = static_cast<uint64_t>(std::sqrt(static_cast<double>(a)));
    while (root * root > square)
        --root;
    while ((root + 1) * (root + 1) <= square)
        ++root;
    return wrapped(root);
}

/** Exact, cut off; what is too large in either direction gives the smallest number. */
int64_t IntArithmetic::power(Value base, Value exponent)
{
    Value exact = 1;
    bool fits = exponent >= 0 && exponent < 64;
    for (Value left = exponent; fits && left > 0; --left)
        fits = !__builtin_mul_overflow(exact, base, &exact);
    if (fits)
        return exact;
    constexpr double limit = 9223372036854775808.0;
    const double result = std::pow(static_cast<double>(base), static_cast<double>(exponent));
    return result > -limit && result < limit ? static_cast<Value>(result) : std::numeric_limits<Value>::min();
}

int64_t IntArithmetic::divide(Value a, Value b)
{
    if (b == 0)
        throw FormulaError{"division by zero"};
    return b == -1 ? negate(a) : a / b;
}

/** Only a negative number of digits changes anything: then so many digits before the point become zeros. */
int64_t IntArithmetic::roundTo(Value a, Value digits)
{
    if (digits >= 0)
        return a;
    if (digits < -18)
        return 0;
    Value scale = 1;
    for (; digits < 0; ++digits)
        scale *= 10;
    const Value rest = a % scale;
    const Value away = rest * 2 >= scale ? 1 : rest * 2 <= -scale ? -1 : 0;
    return wrapped(bits(a / scale + away) * bits(scale));
}

double FloatArithmetic::unary(Op op, Value a)
{
    switch (op) {
    case Op::Negate:
        return -a;
    case Op::Invert:
        return static_cast<Value>(~toInteger(a));
    case Op::Sgn:
        return (a > 0) - (a < 0);
    case Op::Abs:
        return std::abs(a);
    case Op::Round:
        return std::round(a);
    case Op::Floor:
        return std::floor(a);
    case Op::Ceil:
        return std::ceil(a);
    case Op::Trunc:
        return std::trunc(a);
    case Op::Frac:
        return std::copysign(a - std::trunc(a), a); // a negative whole number leaves -0
    default: {
        // Intentionally: that a NaN has a sign says nothing but which processor it comes from.
        const Value result = transcendental(op, a);
        return std::isnan(result) && op != Op::Sqrt ? std::numeric_limits<Value>::quiet_NaN() : result;
    }
    }
}

double FloatArithmetic::transcendental(Op op, Value a)
{
    switch (op) {
    case Op::Sqrt:
        return std::sqrt(a);
    case Op::Sin:
        return std::sin(a);
    case Op::Cos:
        return std::cos(a);
    case Op::Tan:
        return std::tan(a);
    case Op::Asin:
        return std::asin(a);
    case Op::Acos:
        return std::acos(a);
    case Op::Atan:
        return std::atan(a);
    case Op::Exp:
        return std::exp(a);
    case Op::Ln:
        return std::log(a);
    default:
        return std::log10(a);
    }
}

double FloatArithmetic::binary(Op op, Value a, Value b)
{
    switch (op) {
    case Op::RoundTo:
        return roundTo(a, b);
    case Op::Power:
        return std::pow(a, b);
    case Op::Multiply:
        return a * b;
    case Op::Divide:
        return divide(a, b);
    case Op::Add:
        return a + b;
    case Op::Subtract:
        return a - b;
    case Op::Modulo:
        return modulo(a, b);
    case Op::LogicalAnd:
        return a != 0 && b != 0;
    case Op::LogicalOr:
        return a != 0 || b != 0;
    case Op::ShiftLeft:
    case Op::ShiftRight:
    case Op::And:
    case Op::Xor:
    case Op::Or:
        return static_cast<Value>(IntArithmetic::binary(op, toInteger(a), toInteger(b)));
    default:
        return compare(op, a, b);
    }
}

/** Divisors so small that they may stem from rounding are refused like 0. */
void FloatArithmetic::requireDivisor(Value b)
{
    if (std::abs(b) < std::numeric_limits<Value>::epsilon())
        throw FormulaError{"division by zero"};
}

double FloatArithmetic::divide(Value a, Value b)
{
    requireDivisor(b);
    return a / b;
}

double FloatArithmetic::modulo(Value a, Value b)
{
    requireDivisor(b);
    return std::fmod(a, b);
}

double FloatArithmetic::roundTo(Value a, Value digits)
{
    constexpr int64_t most = 2 * std::numeric_limits<Value>::max_exponent10;
    const int64_t places = std::clamp(toInteger(digits), -most, most);
    const Value scale = std::pow(10.0, static_cast<Value>(std::abs(places)));
    const Value rounded = std::round(places < 0 ? a / scale : a * scale);
    if (a == 0 || rounded == 0 || std::isinf(rounded)) // intentionally: a number with too many places is infinite
        return a == 0 ? a : rounded;
    return places < 0 ? rounded * scale : rounded / scale;
}

} // namespace OrvGenApi
