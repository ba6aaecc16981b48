// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "formula.h"

#include <orvtest.h>

#include <cmath>
#include <limits>

using OrvGenApi::Formula;
using OrvGenApi::FormulaError;
using OrvGenApi::FormulaScope;

namespace {

constexpr int64_t Smallest = std::numeric_limits<int64_t>::min();
constexpr int64_t Largest = std::numeric_limits<int64_t>::max();

/** Gives A = 5, B = -3, Z = 0, W.Max = 2000000000000001 and counts how often it is asked. */
class Values : public Formula::Symbols
{
public:
    int64_t intValue(unsigned slot) override
    {
        ++reads;
        return values[slot];
    }
    double floatValue(unsigned slot) override { return static_cast<double>(intValue(slot)); }

    std::vector<int64_t> values{5, -3, 0, 2000000000000001};
    int reads = 0;
};

const FormulaScope &scope()
{
    static const FormulaScope result{
        {"A", "B", "Z", "W.Max"},
        {{"K", " -10 "}, {"SIN", "7"}, {"A", "99"}},
        {{"SUM", "A + B"}, {"TWICE", "SUM * 2"}, {"LOOP", "1 + LOOP2"}, {"LOOP2", "LOOP"}}};
    return result;
}

int64_t integer(const std::string &text)
{
    Values values;
    return Formula::parse(text, scope(), Formula::Kind::Integer).evaluateInt(values);
}

double real(const std::string &text)
{
    Values values;
    return Formula::parse(text, scope(), Formula::Kind::Float).evaluateFloat(values);
}

std::string repeated(const std::string &text, int count)
{
    return QString::fromStdString(text).repeated(count).toStdString();
}

} // namespace

class tst_Formula : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void integers()
    {
        const auto row = [](const char *formula, int64_t expected) {
            const int64_t actual = integer(formula);
            QVERIFY2(actual == expected, (std::string(formula) + ": " + std::to_string(actual)).c_str());
        };
        // Precedence and associativity.
        row("2 + 3 * 4 - 10 / 5 % 2", 14);
        row("-2**2", 4);
        row("2**3**2", 64);
        row("6 & 3 = 2", 1);
        row("0 <= 2 || 1 >= 9", 0);
        row("3*2**-1+1", 1);
        row("1 | 6 ^ 3 & 5 = 5", 0);
        row("1 << 2 + 1 < 9 = 1", 1);
        row("2 && B", 1);
        row("0 ? 1 : 0 ? 2 : 1 ? 3 : 4", 3);
        row("(A<>5)||(A>=5)&&(B<=-3)", 1);
        row("A > B | 4", 1);
        row("~-+A", 4);
        row("A--B", 2);
        row("\t\n( A )\r\n*2 ", 10);
        // Names.
        row("W.Max+K", 1999999999999991);
        row("TWICE", 4);
        row("SUM * 3", 6);
        // Literals.
        row("0xfF + 010", 265);
        row("0xFFFFFFFFFFFFFFFF", Largest);
        row("184467440737095516150", Largest);
        row("8388607 + 8388608 - 0X800000", 8388607);
        row("2.9 + 1e3 + .5", 1002);
        row("-1e30", -Largest);
        // Wrapping and exactness.
        row("9223372036854775807 + 1", Smallest);
        row("-9223372036854775807 - 2", Largest);
        row("(-9223372036854775807 - 1) / -1", Smallest);
        row("(-9223372036854775807 - 1) % -1", 0);
        row("ABS(-9223372036854775807 - 1)", Smallest);
        row("9007199254740993 * 3 / 3", 9007199254740993);
        row("2**63 - 2**64", 0);
        row("1863166525 ** 2", 3471389499880575625);
        row("(-2) ** 63 + 3 ** 39", -5170816883835799541);
        row("0 ** -1", Smallest);
        row("(-1)**-3 + 1**-9 + 5**-1", 0);
        row("-7 / 2 * 10 + -7 % 2", -31);
        row("(1 << 64) + (-8 >> 64) + (8 >> -2) + (1 << 65)", -5);
        // Functions.
        row("SGN(B) + NEG(B) + ABS(B)", 5);
        row("SQRT(9223372036854775807)", 3037000499);
        row("SQRT(4503599761588224) + sqrt(4503599761588223)", 67108865 + 67108864 - 1);
        row("ROUND(-1250, -2) + ROUND(1249, -2) + ROUND(7, 2)", -93);
        row("EXP(100) - LG(1000)", Largest - 3);
    }

    void floats()
    {
        const auto row = [](const char *formula, double expected) {
            const double actual = real(formula);
            QVERIFY2(std::abs(actual - expected) <= 1e-14 * std::abs(expected),
                     (std::string(formula) + ": " + std::to_string(actual)).c_str());
        };
        row("7 / 2", 3.5);
        row("10**(A/2)", std::pow(10, 2.5));
        row("2**-1 + -2**2", 4.5);
        row("(A > 4.5) + (A = 5) * 2 + (A <> 5)", 3);
        row("0.1 && 0.0 || Z", 0);
        row("0xFFFFFFFFFFFFFFFF", 18446744073709551615.0);
        row("7.9 & 3.9 | 8", 11);
        row("~0.9 + (1 << 3.7) + 7.5 % 4", 10.5);
        row("25.2 % 7 + FRAC(-2.75)", 25.2 - 21 - 0.75);
        row("LN(e) + pi / PI", 2);
        row("-1 / EXP(1000) + 1 / LN(0)", 0);
        row("(1e300 & -1) - 9223372036854775807", 0);
        row("SGN(-0.5) + NEG(2.5) + ABS(-2.25)", -1.25);
        row("ROUND(2.5) + ROUND(-2.5) + FLOOR(-1.5) + CEIL(-1.5) + TRUNC(-1.5)", -4);
        row("ROUND(2.567, 1) + ROUND(1250, -2) + ROUND(0, 400) + ROUND(5, -400)", 1302.6);
        row("-1 / ROUND(1.5, 400) + -1 / ROUND(-1e307, 2) + ROUND(1.5, 308)", 1.5);
        row("SQRT(2.25) + EXP(0) + LN(E ** 2) + LG(1000)", 7.5);
        row("COS(PI) + TAN(0) + 6 * ASIN(0.5) / PI + ACOS(1) + 4 * ATAN(1) / PI", 1);
        row("Z ? 1 : Z && 1 || 1", 1);
    }

    void errors()
    {
        const auto row = [](const char *formula, const char *forInteger, const char *forFloat = nullptr) {
            const auto message = [formula](auto evaluate) -> QString {
                try {
                    return QString::number(evaluate(formula));
                } catch (const FormulaError &error) {
                    return QString::fromStdString(error.message);
                }
            };
            QCOMPARE(message(integer), QString::fromLatin1(forInteger));
            QCOMPARE(message(real), QString::fromLatin1(forFloat ? forFloat : forInteger));
        };
        row("", "expected a value at character 1");
        row("A * ", "expected a value at character 5");
        row("(A", "expected \")\" at character 3");
        row("A == 5", "expected a value at character 4");
        row("A ? 1", "expected \":\" at character 6");
        row("A 5", "expected an operator at character 3");
        row("1 + a", "unknown name \"a\" at character 5");
        row("ABS", "unknown name \"ABS\" at character 1");
        row("ABS(1, 2)", "expected \")\" at character 6");
        row("SIN(1)", "expected an operator at character 4");
        row("12A", "malformed number at character 1");
        row("1 + 0x", "malformed number at character 5");
        row("1e999 - 1e999 < 0", "0", "0");
        row("LOOP", "\"LOOP\" uses itself at character 5 of \"LOOP2\"");
        row("A / Z", "division by zero");
        row("A ? A : A / Z", "division by zero");
        row("A % Z", "division by zero");
        row("1 / 2e-16", "division by zero", "division by zero");
        row("SQRT(B)", "no finite result", "nan");
    }

    void readsEverythingOnce()
    {
        const auto reads = [](const char *text) {
            Values values;
            Formula::parse(text, scope(), Formula::Kind::Integer).evaluateInt(values);
            return values.reads;
        };
        QCOMPARE(reads("A * A + A"), 1);
        QCOMPARE(reads("Z ? B : A"), 3);
        QCOMPARE(reads("Z && A || A || B"), 3);
    }

    void limitsNestingOnly()
    {
        const std::pair<const char *, const char *> brackets[] = {
            {"(", ")"}, {"-", ""}, {"1 ? ", ":0"}, {"ROUND(1,", ")"}, {"1**(", ")"}, {"1|1^1&1=1<1<<1+1*(", ")"}};
        for (const auto &[opening, closing] : brackets) {
            QVERIFY(integer(repeated(opening, 499) + "1" + repeated(closing, 499)) >= -1);
            QVERIFY_EXCEPTION_THROWN(integer(repeated(opening, 501) + "1" + repeated(closing, 501)), FormulaError);
        }
        QVERIFY_EXCEPTION_THROWN(integer(repeated("(", 60000)), FormulaError);
        QVERIFY_EXCEPTION_THROWN(integer(repeated("(", 100000)), FormulaError);
        QCOMPARE(integer(repeated("A = 1 ? 2 : ", 5000) + "3"), int64_t(3));
        QCOMPARE(integer("0" + repeated(" + 1", 10000)), int64_t(10000));
    }

    void expandsDefinitionsUpToALimit()
    {
        std::vector<std::string> names{"X0"};
        std::vector<std::string> texts{"1"};
        for (int i = 1; i <= 60; ++i) {
            texts.push_back(names.back() + "+" + names.back());
            names.push_back("X" + std::to_string(i));
        }
        FormulaScope doubled;
        for (size_t i = 0; i < names.size(); ++i)
            doubled.expressions.emplace_back(names[i], texts[i]);
        Values values;
        QCOMPARE(Formula::parse("X10", doubled, Formula::Kind::Integer).evaluateInt(values), int64_t(1024));
        QVERIFY_EXCEPTION_THROWN(Formula::parse("X60", doubled, Formula::Kind::Integer), FormulaError);
    }

    void takesManyVariables()
    {
        std::vector<std::string> names;
        for (int i = 0; i < 1000; ++i)
            names.push_back("V" + std::to_string(i));
        Values values;
        values.values.assign(names.size(), 2);
        const FormulaScope many{{names.begin(), names.end()}, {}, {}};
        QCOMPARE(Formula::parse("V999*V15+V16*V16", many, Formula::Kind::Integer).evaluateInt(values), int64_t(8));
        QCOMPARE(values.reads, 3);
        QVERIFY_EXCEPTION_THROWN(Formula().evaluateInt(values), FormulaError);
    }
};

ORV_PLAIN_TEST_MAIN(tst_Formula)
#include "tst_formula.moc"
