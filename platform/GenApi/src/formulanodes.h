// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "formula.h"
#include "values.h"

#include <array>

namespace OrvGenApi {

/** A variable of a formula: a property of another node. */
struct FormulaVariable
{
    enum class Property : uint8_t { Value, Minimum, Maximum, Increment, Entry };

    Node *node = nullptr;
    Property property = Property::Value;
    const char *entry = ""; ///< whose value Property::Entry stands for

    int64_t intValue(bool ignoreCache) const;
    double floatValue(bool ignoreCache) const;
};

/**
 * Gives a formula its variables; the slot behind them is the value to convert. All of them are read, used or not: one
 * that cannot be read makes the formula fail.
 */
template <typename Number>
class VariableSource final : public Formula::Symbols
{
public:
    VariableSource(const std::vector<FormulaVariable> &variables, Number converted, bool ignoreCache)
    {
        m_values.reserve(variables.size() + 1);
        for (const FormulaVariable &variable : variables) {
            if constexpr (std::is_same_v<Number, double>)
                m_values.push_back(variable.floatValue(ignoreCache));
            else
                m_values.push_back(variable.intValue(ignoreCache));
        }
        m_values.push_back(converted);
    }

    int64_t intValue(unsigned slot) override { return static_cast<int64_t>(m_values[slot]); }
    double floatValue(unsigned slot) override { return static_cast<double>(m_values[slot]); }

private:
    std::vector<Number> m_values;
};

/** An integer that is computed in exact 64-bit arithmetic: gives the node the names that formula nodes use. */
class IntegerFormulaBase : public IntegerBase
{
public:
    using IntegerBase::IntegerBase;
    using Number = int64_t;
    static constexpr Formula::Kind kind = Formula::Kind::Integer;

    int64_t intMin() final { return limit(false); }
    int64_t intMax() final { return limit(true); }
    std::pair<int64_t, int64_t> intRange() final { return range(); }
    std::vector<int64_t> validInts(bool bounded) final;

protected:
    int64_t readInt(bool ignoreCache) final { return value(ignoreCache); }
    void writeInt(int64_t value, bool verify, Changes &changes) final { setValue(value, verify, changes); }

    virtual Number value(bool ignoreCache) = 0;
    virtual void setValue(Number value, bool verify, Changes &changes) = 0;
    virtual std::pair<Number, Number> range() { return fullRange(); }
    virtual Number limit(bool upper) { return upper ? fullRange().second : fullRange().first; }
    virtual std::vector<Number> validValues() { return {}; }

    static std::pair<Number, Number> fullRange() { return {int64Min, int64Max}; }
    static Number finite(Number limit, bool) { return limit; }
    static GenApi::EIncMode ownIncrementMode() { return GenApi::fixedIncrement; }
    static Number evaluate(const Formula &formula, VariableSource<Number> &source)
    {
        return formula.evaluateInt(source);
    }
    static Number valueOf(Node &node, bool ignoreCache) { return node.intNumber(ignoreCache); }
    static Number limitOf(Node &node, bool upper) { return upper ? node.intMax() : node.intMin(); }
    static std::pair<Number, Number> rangeOf(Node &node) { return node.intRange(); }
    static std::vector<Number> validValuesOf(Node &node) { return node.validInts(false); }
};

/** The same in double precision. */
class FloatFormulaBase : public FloatBase
{
public:
    using FloatBase::FloatBase;
    using Number = double;
    static constexpr Formula::Kind kind = Formula::Kind::Float;

    double floatMin() final { return limit(false); }
    double floatMax() final { return limit(true); }
    std::pair<double, double> floatRange() final { return range(); }
    std::vector<double> validFloats(bool bounded) final;

protected:
    double readFloat(bool ignoreCache) final { return value(ignoreCache); }
    void writeFloat(double value, bool verify, Changes &changes) final { setValue(value, verify, changes); }

    virtual Number value(bool ignoreCache) = 0;
    virtual void setValue(Number value, bool verify, Changes &changes) = 0;
    virtual std::pair<Number, Number> range() { return fullRange(); }
    virtual Number limit(bool upper) { return upper ? fullRange().second : fullRange().first; }
    virtual std::vector<Number> validValues() { return {}; }

    static std::pair<Number, Number> fullRange();
    static Number finite(Number limit, bool upper) { return finiteLimit(limit, upper); }
    static GenApi::EIncMode ownIncrementMode() { return GenApi::noIncrement; }
    static Number evaluate(const Formula &formula, VariableSource<Number> &source)
    {
        return formula.evaluateFloat(source);
    }
    static Number valueOf(Node &node, bool ignoreCache) { return node.floatValue(ignoreCache); }
    static Number limitOf(Node &node, bool upper) { return upper ? node.floatMax() : node.floatMin(); }
    static std::pair<Number, Number> rangeOf(Node &node) { return node.floatRange(); }
    static std::vector<Number> validValuesOf(Node &node) { return node.validFloats(false); }
};

/** What nodes with formulas have in common: variables, presentation and the kept result. */
template <typename Base>
class FormulaNode : public Base
{
public:
    using Base::Base;
    using typename Base::Number;

    GenApi::ERepresentation representation() override
    {
        return m_presentation.representationOf([]() -> Node * { return nullptr; });
    }
    const char *unit() override
    {
        return m_presentation.unitOf([]() -> Node * { return nullptr; });
    }
    GenApi::EDisplayNotation displayNotation() override
    {
        return m_presentation.notationOf([]() -> Node * { return nullptr; });
    }
    int64_t displayPrecision() override
    {
        return m_presentation.precisionOf([]() -> Node * { return nullptr; });
    }

protected:
    /** RW where all variables are available; one that can only be written fails when it is asked. */
    GenApi::EAccessMode variablesAccess() const;
    GenApi::EAccessMode readAccess() const override
    {
        const GenApi::EAccessMode mode = Base::readAccess();
        return mode == GenApi::NI ? mode : combined(mode, variablesAccess());
    }

    /** Evaluates with \a converted in the slot behind the variables; a formula without a value is a logical error. */
    Number run(const Formula &formula, Number converted, bool ignoreCache) const;

    std::vector<FormulaVariable> m_variables;
    Presentation m_presentation;

private:
    friend class DescriptionLoader;
};

/** A number computed from other nodes; read only. */
template <typename Base>
class SwissKnifeNode final : public FormulaNode<Base>
{
public:
    using FormulaNode<Base>::FormulaNode;
    using typename Base::Number;

    void checkFormulas() const override { m_formula.requireUsable(); }

protected:
    bool keepsFresh() const override { return true; }
    GenApi::EAccessMode firstAccess() const override { return GenApi::RW; }
    GenApi::EAccessMode valueAccess() const override { return combined(GenApi::RO, this->variablesAccess()); }
    bool takesWrites() const override { return false; }
    Number value(bool ignoreCache) override;
    void setValue(Number value, bool verify, Changes &changes) override;

private:
    friend class DescriptionLoader;

    Formula m_formula;
};

/** A number computed from another one, and the other way round when it is written. */
template <typename Base>
class ConverterNode final : public FormulaNode<Base>
{
public:
    using FormulaNode<Base>::FormulaNode;
    using typename Base::Number;

    void checkFormulas() const override
    {
        m_formulaTo.requireUsable();
        m_formulaFrom.requireUsable();
    }
    GenApi::EIncMode incrementMode() override;
    GenApi::ERepresentation representation() override
    {
        return this->m_presentation.representationOf([this] { return m_node; });
    }
    const char *unit() override
    {
        return this->m_presentation.unitOf([this] { return m_node; });
    }
    Node *valueNode() override { return m_node; }
    bool keepsFresh() const override { return m_node && m_node->keepsFresh(); }
    GenApi::EDisplayNotation displayNotation() override
    {
        return this->m_presentation.notationOf([this] { return m_node; });
    }
    int64_t displayPrecision() override
    {
        return this->m_presentation.precisionOf([this] { return m_node; });
    }

protected:
    GenApi::EAccessMode firstAccess() const override { return m_node->accessMode(); }
    GenApi::EAccessMode valueAccess() const override;
    Number value(bool ignoreCache) override;
    void setValue(Number value, bool verify, Changes &changes) override;
    std::pair<Number, Number> range() override { return {limit(false), limit(true)}; }
    Number limit(bool upper) override;
    Number computeLimit(bool upper);
    std::vector<Number> validValues() override;

private:
    friend class DescriptionLoader;

    enum class Slope : uint8_t { None, Automatic, Increasing, Decreasing, Varying };

    Node *m_node = nullptr;
    Formula m_formulaTo; ///< from this node's value to the other one's
    Formula m_formulaFrom; ///< from the other node's value to this one's
    Slope m_slope = Slope::None;
    std::array<Number, 2> m_limits{}; ///< the lower, the upper
    std::array<uint64_t, 2> m_limitsIn{}; ///< the evaluations that computed them
};

extern template class FormulaNode<IntegerFormulaBase>;
extern template class FormulaNode<FloatFormulaBase>;
extern template class SwissKnifeNode<IntegerFormulaBase>;
extern template class SwissKnifeNode<FloatFormulaBase>;
extern template class ConverterNode<IntegerFormulaBase>;
extern template class ConverterNode<FloatFormulaBase>;

} // namespace OrvGenApi
