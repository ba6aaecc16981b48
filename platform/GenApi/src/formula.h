// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace OrvGenApi {

/** Thrown when a formula cannot be parsed (message: what and at which character, from 1) or has no value. */
struct FormulaError
{
    std::string message;
};

/**
 * The names a formula may use, looked up in this order: variables, constants, expressions, then what is built in. They
 * are case sensitive and may contain dots ("A.Max"). Only parse() looks at the texts; they need not outlive it.
 */
struct FormulaScope
{
    std::vector<std::string_view> variables; ///< a variable's slot is its index
    std::vector<std::pair<std::string_view, std::string_view>> constants; ///< name and number
    std::vector<std::pair<std::string_view, std::string_view>> expressions; ///< name and formula; may use other names
};

/**
 * A SwissKnife or converter formula, compiled to a flat program for a stack machine.
 *
 * Operators, the tightest first: ( ), unary + - ~; then in four groups, each from left to right, ** << >> & ^ |, then
 * * / %, then + -, then < > <= >= = <> && ||; last ?: from right to left. So -2 ** 2 is 4, 6 & 3 = 2 is 1 and
 * 0 <= 2 || 1 >= 9 is 0. Functions, in any case: SGN NEG ABS SQRT ROUND(x) ROUND(x, digits) FLOOR CEIL TRUNC FRAC SIN
 * COS TAN ASIN ACOS ATAN EXP LN LG; numbers of a float formula, in any case: E and PI. Comparisons and logical
 * operators give 1 or 0. Everything is evaluated, also what ?: does not choose. Rounding goes half away from zero, / of
 * integers towards zero, % has the sign of its left side. Of the number of places to shift the lowest six bits count.
 *
 * A const Formula may be evaluated by several threads at once.
 */
class Formula
{
public:
    enum class Kind : uint8_t {
        Integer, ///< 64-bit two's complement, results that do not fit wrap; fractions of literals are cut off
        Float ///< double; & ^ | ~ << >> work on operands converted to 64-bit integers, clamped, NaN as 0
    };

    /**
     * Gives the variables' values during an evaluation: each one that is needed once, however often the formula names
     * it. What it throws passes through the evaluation.
     */
    class Symbols
    {
    public:
        virtual int64_t intValue(unsigned slot) = 0;
        virtual double floatValue(unsigned slot) = 0;

    protected:
        ~Symbols() = default;
    };

    /** A formula without a program: evaluating it throws. */
    Formula() = default;

    /** A formula whose every evaluation throws FormulaError with that \a message. */
    static Formula unusable(std::string message);

    /**
     * Compiles \a text. Throws FormulaError on bad syntax, an unknown name, an expression that uses itself, nesting
     * deeper than maximumDepth or more text than maximumText.
     */
    static Formula parse(std::string_view text, const FormulaScope &scope, Kind kind);

    /**
     * The value of a formula of Kind::Integer. Throws FormulaError when it has none, as for a division by zero. SQRT is
     * exact; the other float functions are computed in double, cut off and clamped.
     */
    int64_t evaluateInt(Symbols &symbols) const;

    /**
     * The value of a formula of Kind::Float, which may be infinite or no number. A division by zero, or by what is
     * nearer to it than the epsilon, throws FormulaError.
     */
    double evaluateFloat(Symbols &symbols) const;

    Kind kind() const { return m_kind; }

    /** Throws FormulaError when this formula cannot be evaluated, whatever its variables are. */
    void requireUsable() const
    {
        if (m_program.empty())
            throwUnusable();
    }

    static constexpr unsigned maximumDepth = 500; ///< of parentheses, branches, signs, powers and expressions
    static constexpr unsigned maximumText = 65536; ///< characters, an expression's counted wherever it is used

private:
    friend class FormulaCompiler;

    template <typename Arithmetic>
    typename Arithmetic::Value run(Symbols &symbols) const;

    [[noreturn]] void throwUnusable() const;

    std::shared_ptr<const std::string> m_message; ///< why it cannot be evaluated
    std::vector<uint32_t> m_program; ///< an operation in the low byte, its argument above; a literal may follow
    uint32_t m_variableCount = 0; ///< the highest slot in use, plus one
    uint16_t m_stackSize = 0; ///< the limits of depth and text keep it small
    Kind m_kind = Kind::Integer;
};

} // namespace OrvGenApi
