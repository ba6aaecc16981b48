// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "formula.h"

#include "formulaarithmetic.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>

namespace OrvGenApi {

namespace {

// A program is a list of words: the operator in the lowest byte, its argument above, where it has one. Operands stand
// in front of their operator, so that one loop with one stack evaluates any formula, and numbers too large for a word
// stand in a table of their own.
constexpr unsigned ArgumentShift = 8;
constexpr int32_t SmallLiteralLimit = 1 << 23; ///< a small literal is at least its negative and less than it

struct BinaryOperator
{
    std::string_view text;
    Op op;
    uint8_t precedence;
};

constexpr unsigned PrecedenceCount = 4;

// The tightest is 4. The longer of two operators with the same start stands first.
constexpr BinaryOperator binaryOperators[] = {
    {"||", Op::LogicalOr, 1}, {"&&", Op::LogicalAnd, 1},  {"|", Op::Or, 4},
    {"^", Op::Xor, 4},        {"&", Op::And, 4},          {"=", Op::Equal, 1},
    {"<>", Op::NotEqual, 1},  {"<=", Op::LessOrEqual, 1}, {">=", Op::GreaterOrEqual, 1},
    {"<<", Op::ShiftLeft, 4}, {">>", Op::ShiftRight, 4},  {"<", Op::Less, 1},
    {">", Op::Greater, 1},    {"+", Op::Add, 2},          {"-", Op::Subtract, 2},
    {"**", Op::Power, 4},     {"*", Op::Multiply, 3},     {"/", Op::Divide, 3},
    {"%", Op::Modulo, 3}};

constexpr std::pair<std::string_view, Op> functions[] = {
    {"SGN", Op::Sgn},     {"NEG", Op::Negate}, {"ABS", Op::Abs},     {"SQRT", Op::Sqrt}, {"ROUND", Op::Round},
    {"FLOOR", Op::Floor}, {"CEIL", Op::Ceil},  {"TRUNC", Op::Trunc}, {"SIN", Op::Sin},   {"COS", Op::Cos},
    {"TAN", Op::Tan},     {"ASIN", Op::Asin},  {"ACOS", Op::Acos},   {"ATAN", Op::Atan}, {"EXP", Op::Exp},
    {"LN", Op::Ln},       {"LG", Op::Lg},      {"FRAC", Op::Frac}};

constexpr std::pair<std::string_view, double> numbers[] = {{"E", 2.71828182845904523536},
                                                           {"PI", 3.14159265358979323846}};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool startsName(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool continuesName(char c)
{
    return startsName(c) || isDigit(c) || c == '.';
}

char toUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool equalsIgnoringCase(std::string_view text, std::string_view upper)
{
    return std::equal(text.begin(), text.end(), upper.begin(), upper.end(),
                      [](char a, char b) { return toUpper(a) == b; });
}

std::string quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/** Room for one evaluation: the variables read so far and the operands; on the heap for large formulas only. */
template <typename Value>
class Workspace
{
public:
    Workspace(unsigned variables, unsigned operands)
    {
        if (variables > InlineVariables) {
            m_heapLoaded.resize(variables);
            m_loaded = m_heapLoaded.data();
        }
        if (variables + operands > InlineValues) {
            m_heapValues.resize(variables + operands);
            m_values = m_heapValues.data();
        }
        m_top = m_values + variables;
    }
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;

    void push(Value value) { *m_top++ = value; }
    Value pop() { return *--m_top; }

    template <typename Load>
    void pushVariable(unsigned slot, const Load &load)
    {
        if (!m_loaded[slot]) {
            m_values[slot] = load();
            m_loaded[slot] = 1;
        }
        push(m_values[slot]);
    }

private:
    static constexpr unsigned InlineVariables = 16;
    static constexpr unsigned InlineValues = 40;

    std::array<Value, InlineValues> m_inlineValues;
    std::array<uint8_t, InlineVariables> m_inlineLoaded{};
    std::vector<Value> m_heapValues;
    std::vector<uint8_t> m_heapLoaded;
    Value *m_values = m_inlineValues.data();
    uint8_t *m_loaded = m_inlineLoaded.data();
    Value *m_top = nullptr;
};

} // namespace

/** A recursive-descent parser that writes the program while it reads. */
class FormulaCompiler
{
public:
    FormulaCompiler(const FormulaScope &scope, Formula &formula)
        : m_scope(scope)
        , m_formula(formula)
        , m_program(formula.m_program)
    {
    }

    void compile(std::string_view text);

private:
    /** Counts how deep the parser is in itself; throws when it is too deep for the stack. */
    class Nesting
    {
    public:
        explicit Nesting(FormulaCompiler &compiler)
            : m_compiler(compiler)
        {
            if (++m_compiler.m_depth > Formula::maximumDepth)
                m_compiler.fail("too deeply nested");
        }
        ~Nesting() { --m_compiler.m_depth; }
        Nesting(const Nesting &) = delete;
        Nesting &operator=(const Nesting &) = delete;

    private:
        FormulaCompiler &m_compiler;
    };

    using Definition = std::pair<std::string_view, std::string_view>;

    void conditional();
    void operators();
    void sign();
    void operand();
    void number();
    void name();
    void call(Op function);
    void inlined(const Definition &definition);
    bool builtInNumber(std::string_view text);

    void skipSpace();
    char current() const { return m_position < m_text.size() ? m_text[m_position] : '\0'; }
    bool accept(std::string_view token);
    void expect(std::string_view token);
    const BinaryOperator *acceptOperator();
    [[noreturn]] void fail(const std::string &what) const { fail(what, m_position); }
    [[noreturn]] void fail(const std::string &what, size_t position) const;

    size_t emit(Op op, uint32_t argument = 0);
    template <typename Value>
    void emitLiteral(Value value);

    const FormulaScope &m_scope;
    Formula &m_formula;
    std::vector<uint32_t> &m_program;
    std::vector<std::string_view> m_inlined; ///< names of the constants and expressions that are being read
    std::string_view m_text;
    size_t m_position = 0;
    size_t m_textRead = 0;
    unsigned m_depth = 0;
    uint16_t m_stack = 0; ///< operands at this point of the program
};

void FormulaCompiler::compile(std::string_view text)
{
    m_textRead += text.size();
    if (m_textRead > Formula::maximumText)
        fail("too long with the expressions it uses", 0);
    m_text = text;
    m_position = 0;
    conditional();
    if (m_position < m_text.size())
        fail("expected an operator");
}

/** The alternatives of a chain "a ? b : c ? d : ..." are read in a loop, so that its length is not limited. */
void FormulaCompiler::conditional()
{
    const Nesting nesting(*this);
    size_t choices = 0;
    operators();
    for (; accept("?"); ++choices) {
        conditional();
        expect(":");
        operators();
    }
    for (; choices > 0; --choices)
        emit(Op::Select);
}

/** Operators wait until one that binds no tighter follows; those that wait bind tighter from one to the next. */
void FormulaCompiler::operators()
{
    std::array<const BinaryOperator *, PrecedenceCount> pending;
    size_t count = 0;
    sign();
    for (;;) {
        const BinaryOperator *next = acceptOperator();
        while (count > 0 && (!next || pending[count - 1]->precedence >= next->precedence))
            emit(pending[--count]->op);
        if (!next)
            return;
        pending[count++] = next;
        sign();
    }
}

void FormulaCompiler::sign()
{
    const bool minus = accept("-");
    const bool invert = !minus && accept("~");
    if (!minus && !invert && !accept("+")) {
        operand();
        return;
    }
    const Nesting nesting(*this);
    sign();
    if (minus || invert)
        emit(minus ? Op::Negate : Op::Invert);
}

void FormulaCompiler::operand()
{
    if (accept("(")) {
        conditional();
        expect(")");
    } else if (isDigit(current()) || current() == '.') {
        number();
    } else if (startsName(current())) {
        name();
    } else {
        fail("expected a value");
    }
    skipSpace();
}

void FormulaCompiler::number()
{
    const char *const begin = m_text.data() + m_position;
    const char *const end = m_text.data() + m_text.size();
    const bool hexadecimal = end - begin > 1 && begin[0] == '0' && toUpper(begin[1]) == 'X';
    uint64_t integer = 0;
    double real = 0;
    const auto asInteger = std::from_chars(hexadecimal ? begin + 2 : begin, end, integer, hexadecimal ? 16 : 10);
    const auto asReal =
        hexadecimal ? std::from_chars_result{asInteger.ptr, asInteger.ec} : std::from_chars(begin, end, real);
    const bool isInteger = hexadecimal || asInteger.ptr == asReal.ptr;
    const bool integerKind = m_formula.m_kind == Formula::Kind::Integer;
    constexpr auto largest = static_cast<uint64_t>(std::numeric_limits<int64_t>::max());
    const std::errc error = integerKind && isInteger ? asInteger.ec : asReal.ec;
    if (error == std::errc::result_out_of_range) { // as large as can be
        integer = std::numeric_limits<uint64_t>::max();
        real = std::numeric_limits<double>::infinity();
    } else if (error != std::errc()) {
        fail("malformed number");
    }
    if (asReal.ptr != end && continuesName(*asReal.ptr))
        fail("malformed number");
    m_position += static_cast<size_t>(asReal.ptr - begin);
    if (integerKind)
        emitLiteral(isInteger ? static_cast<int64_t>(std::min(integer, largest)) : toInteger(real));
    else
        emitLiteral(hexadecimal ? static_cast<double>(integer) : real);
}

void FormulaCompiler::name()
{
    const size_t start = m_position;
    while (continuesName(current()))
        ++m_position;
    const std::string_view text = m_text.substr(start, m_position - start);
    const auto &variables = m_scope.variables;
    const auto variable = std::find(variables.begin(), variables.end(), text);
    if (variable != variables.end()) {
        const auto slot = static_cast<uint32_t>(variable - variables.begin());
        m_formula.m_variableCount = std::max(m_formula.m_variableCount, slot + 1);
        emit(Op::Load, slot);
        return;
    }
    for (const auto *definitions : {&m_scope.constants, &m_scope.expressions}) {
        for (const Definition &definition : *definitions) {
            if (definition.first == text)
                return inlined(definition);
        }
    }
    for (const auto &[functionName, function] : functions) {
        if (equalsIgnoringCase(text, functionName) && accept("("))
            return call(function);
    }
    if (!builtInNumber(text))
        fail("unknown name " + quoted(text), start);
}

/** Behind the opening parenthesis. */
void FormulaCompiler::call(Op function)
{
    conditional();
    if (function == Op::Round && accept(",")) {
        conditional();
        function = Op::RoundTo;
    }
    expect(")");
    emit(function);
}

/** What a name stands for is a unit, as if in parentheses. */
void FormulaCompiler::inlined(const Definition &definition)
{
    if (std::find(m_inlined.begin(), m_inlined.end(), definition.first) != m_inlined.end())
        fail(quoted(definition.first) + " uses itself");
    const std::string_view outerText = m_text;
    const size_t outerPosition = m_position;
    m_inlined.push_back(definition.first);
    compile(definition.second);
    m_inlined.pop_back();
    m_text = outerText;
    m_position = outerPosition;
}

bool FormulaCompiler::builtInNumber(std::string_view text)
{
    const auto *found = std::find_if(std::begin(numbers), std::end(numbers),
                                     [text](const auto &number) { return equalsIgnoringCase(text, number.first); });
    if (found == std::end(numbers) || m_formula.m_kind == Formula::Kind::Integer)
        return false;
    emitLiteral(found->second);
    return true;
}

void FormulaCompiler::skipSpace()
{
    m_position = std::min(m_text.find_first_not_of(" \t\r\n\f\v", m_position), m_text.size());
}

bool FormulaCompiler::accept(std::string_view token)
{
    skipSpace();
    if (m_text.compare(m_position, token.size(), token) != 0)
        return false;
    m_position += token.size();
    skipSpace();
    return true;
}

void FormulaCompiler::expect(std::string_view token)
{
    if (!accept(token))
        fail("expected " + quoted(token));
}

const BinaryOperator *FormulaCompiler::acceptOperator()
{
    for (const BinaryOperator &candidate : binaryOperators) {
        if (accept(candidate.text))
            return &candidate;
    }
    return nullptr;
}

void FormulaCompiler::fail(const std::string &what, size_t position) const
{
    std::string message = what + " at character " + std::to_string(position + 1);
    if (!m_inlined.empty())
        message += " of " + quoted(m_inlined.back());
    throw FormulaError{message};
}

/** Returns the word's index. */
size_t FormulaCompiler::emit(Op op, uint32_t argument)
{
    if (op <= Op::Load)
        m_formula.m_stackSize = std::max(m_formula.m_stackSize, ++m_stack);
    else if (op == Op::Select)
        m_stack = static_cast<uint16_t>(m_stack - 2);
    else if (op >= Op::RoundTo)
        --m_stack;
    m_program.push_back(argument << ArgumentShift | static_cast<uint32_t>(op));
    return m_program.size() - 1;
}

template <typename Value>
void FormulaCompiler::emitLiteral(Value value)
{
    const auto small = static_cast<Value>(SmallLiteralLimit);
    if (value >= -small && value < small && static_cast<Value>(static_cast<int32_t>(value)) == value) {
        emit(Op::SmallLiteral, static_cast<uint32_t>(static_cast<int32_t>(value)));
        return;
    }
    uint32_t words[2];
    static_assert(sizeof words == sizeof value);
    std::memcpy(words, &value, sizeof words);
    emit(Op::Literal);
    m_program.insert(m_program.end(), std::begin(words), std::end(words));
}

Formula Formula::parse(std::string_view text, const FormulaScope &scope, Kind kind)
{
    Formula formula;
    formula.m_kind = kind;
    FormulaCompiler(scope, formula).compile(text);
    formula.m_program.shrink_to_fit();
    return formula;
}

Formula Formula::unusable(std::string message)
{
    Formula formula;
    formula.m_message = std::make_shared<const std::string>(std::move(message));
    return formula;
}

void Formula::throwUnusable() const
{
    throw FormulaError{m_message ? *m_message : "no such formula"};
}

template <typename Arithmetic>
typename Arithmetic::Value Formula::run(Symbols &symbols) const
{
    using Value = typename Arithmetic::Value;
    Workspace<Value> workspace(m_variableCount, m_stackSize);
    for (size_t next = 0; next < m_program.size();) {
        const uint32_t word = m_program[next++];
        const uint32_t argument = word >> ArgumentShift;
        const auto op = static_cast<Op>(word);
        switch (op) {
        case Op::SmallLiteral:
            workspace.push(static_cast<Value>(static_cast<int32_t>(word) >> ArgumentShift));
            break;
        case Op::Literal: {
            Value literal;
            std::memcpy(&literal, &m_program[next], sizeof literal);
            workspace.push(literal);
            next += sizeof literal / sizeof word;
            break;
        }
        case Op::Load:
            workspace.pushVariable(argument, [&] { return Arithmetic::load(symbols, argument); });
            break;
        case Op::Select: {
            const Value otherwise = workspace.pop();
            const Value then = workspace.pop();
            workspace.push(workspace.pop() != 0 ? then : otherwise);
            break;
        }
        default: {
            const Value last = workspace.pop();
            workspace.push(op < Op::RoundTo ? Arithmetic::unary(op, last)
                                            : Arithmetic::binary(op, workspace.pop(), last));
        }
        }
    }
    return workspace.pop();
}

int64_t Formula::evaluateInt(Symbols &symbols) const
{
    if (m_program.empty() || m_kind != Kind::Integer)
        throwUnusable();
    return run<IntArithmetic>(symbols);
}

double Formula::evaluateFloat(Symbols &symbols) const
{
    if (m_program.empty() || m_kind != Kind::Float)
        throwUnusable();
    return run<FloatArithmetic>(symbols);
}

} // namespace OrvGenApi
