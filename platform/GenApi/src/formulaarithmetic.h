// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "formula.h"

#include <cstdint>

namespace OrvGenApi {

/** The operation of a program word. The argument is a number or a slot. */
enum class Op : uint8_t {
    SmallLiteral, ///< pushes the argument
    Literal, ///< pushes the 64 bits in the next two words
    Load, ///< pushes a variable
    Select, ///< pops what it takes otherwise, what it takes, and what decides
    // From here on: one operand for one result.
    Negate,
    Invert,
    Sgn,
    Abs,
    Round,
    Floor,
    Ceil,
    Trunc,
    Frac,
    Sqrt,
    Sin,
    Cos,
    Tan,
    Asin,
    Acos,
    Atan,
    Exp,
    Ln,
    Lg,
    // From here on: two operands for one result.
    RoundTo,
    Power,
    Multiply,
    Divide,
    Modulo,
    Add,
    Subtract,
    ShiftLeft,
    ShiftRight,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    Equal,
    NotEqual,
    And,
    Xor,
    Or,
    LogicalAnd,
    LogicalOr
};

/** \a value cut off and clamped; NaN gives 0. */
int64_t toInteger(double value);

/** Arithmetic of Kind::Integer. Sums and products are formed of unsigned numbers, which may wrap. */
struct IntArithmetic
{
    using Value = int64_t;

    static Value load(Formula::Symbols &symbols, unsigned slot) { return symbols.intValue(slot); }
    static Value unary(Op op, Value a);
    static Value binary(Op op, Value a, Value b);

private:
    static Value wrapped(uint64_t value) { return static_cast<Value>(value); }
    static uint64_t bits(Value value) { return static_cast<uint64_t>(value); }
    static Value negate(Value a) { return wrapped(0 - bits(a)); }
    static Value squareRoot(Value a);
    static Value power(Value base, Value exponent);
    static Value divide(Value a, Value b);
    static Value roundTo(Value a, Value digits);
};

/** Arithmetic of Kind::Float. */
struct FloatArithmetic
{
    using Value = double;

    static Value load(Formula::Symbols &symbols, unsigned slot) { return symbols.floatValue(slot); }
    static Value unary(Op op, Value a);
    static Value binary(Op op, Value a, Value b);

private:
    static Value transcendental(Op op, Value a);
    static void requireDivisor(Value b);
    static Value divide(Value a, Value b);
    static Value modulo(Value a, Value b);
    static Value roundTo(Value a, Value digits);
};

} // namespace OrvGenApi
