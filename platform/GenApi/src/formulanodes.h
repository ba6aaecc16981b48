#pragma once

#include "formula.h"
#include "values.h"

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

/** Gives a formula its variables; the slot behind them is the value to convert. */
class VariableSource final : public Formula::Symbols
{
public:
    VariableSource(const std::vector<FormulaVariable> &variables, bool ignoreCache)
        : m_variables(variables)
        , m_ignoreCache(ignoreCache)
    {
    }

    void setConverted(int64_t value) { m_int = value; }
    void setConverted(double value) { m_float = value; }

    int64_t intValue(unsigned slot) override
    {
        return slot < m_variables.size() ? m_variables[slot].intValue(m_ignoreCache) : m_int;
    }
    double floatValue(unsigned slot) override
    {
        return slot < m_variables.size() ? m_variables[slot].floatValue(m_ignoreCache) : m_float;
    }

private:
    const std::vector<FormulaVariable> &m_variables;
    const bool m_ignoreCache;
    int64_t m_int = 0;
    double m_float = 0;
};

/** An integer that is computed in exact 64-bit arithmetic: gives the node the names that formula nodes use. */
class IntegerFormulaBase : public IntegerBase
{
public:
    using IntegerBase::IntegerBase;
    using Number = int64_t;
    static constexpr Formula::Kind kind = Formula::Kind::Integer;

    int64_t intValue(bool ignoreCache) final { return value(ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) final { setValue(value, verify, changes); }
    int64_t intMin() final { return range().first; }
    int64_t intMax() final { return range().second; }
    std::pair<int64_t, int64_t> intRange() final { return range(); }
    std::vector<int64_t> validInts(bool bounded) final;

protected:
    virtual Number value(bool ignoreCache) = 0;
    virtual void setValue(Number value, bool verify, Changes &changes) = 0;
    virtual std::pair<Number, Number> range() { return fullRange(); }
    virtual std::vector<Number> validValues() { return {}; }

    static std::pair<Number, Number> fullRange() { return {int64Min, int64Max}; }
    static GenApi::EIncMode ownIncrementMode() { return GenApi::fixedIncrement; }
    static Number evaluate(const Formula &formula, VariableSource &source) { return formula.evaluateInt(source); }
    static Number valueOf(Node &node, bool ignoreCache) { return node.intValue(ignoreCache); }
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

    double floatValue(bool ignoreCache) final { return value(ignoreCache); }
    void setFloatValue(double value, bool verify, Changes &changes) final { setValue(value, verify, changes); }
    double floatMin() final { return range().first; }
    double floatMax() final { return range().second; }
    std::pair<double, double> floatRange() final { return range(); }
    std::vector<double> validFloats(bool bounded) final;

protected:
    virtual Number value(bool ignoreCache) = 0;
    virtual void setValue(Number value, bool verify, Changes &changes) = 0;
    virtual std::pair<Number, Number> range() { return fullRange(); }
    virtual std::vector<Number> validValues() { return {}; }

    static std::pair<Number, Number> fullRange();
    static GenApi::EIncMode ownIncrementMode() { return GenApi::noIncrement; }
    static Number evaluate(const Formula &formula, VariableSource &source) { return formula.evaluateFloat(source); }
    static Number valueOf(Node &node, bool ignoreCache) { return node.floatValue(ignoreCache); }
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

    void dropCache() override { m_kept = false; }
    bool isCacheValid() const override { return m_kept; }
    GenApi::ERepresentation representation() const override { return m_presentation.representationOf(nullptr); }
    const char *unit() const override { return m_presentation.unitOf(nullptr); }
    GenApi::EDisplayNotation displayNotation() const override { return m_presentation.notationOf(nullptr); }
    int64_t displayPrecision() const override { return m_presentation.precisionOf(nullptr); }

protected:
    /** RW where all variables can be read; else what the one is that cannot. */
    GenApi::EAccessMode variablesAccess() const;

    /** Evaluates with \a converted in the slot behind the variables; a formula without a value is a logical error. */
    Number run(const Formula &formula, Number converted, bool ignoreCache) const;

    /** The kept value, or what \a compute() gives, which is then kept as far as the caching mode allows. */
    template <typename Compute>
    Number keptOr(bool ignoreCache, const Compute &compute);

    std::vector<FormulaVariable> m_variables;
    Presentation m_presentation;

private:
    friend class DescriptionLoader;

    Number m_value = 0;
    uint64_t m_computedIn = 0; ///< the evaluation that computed m_value
    bool m_kept = false;
};

/** A number computed from other nodes; read only. */
template <typename Base>
class SwissKnifeNode final : public FormulaNode<Base>
{
public:
    using FormulaNode<Base>::FormulaNode;
    using typename Base::Number;

protected:
    GenApi::EAccessMode valueAccess() const override { return combined(GenApi::RO, this->variablesAccess()); }
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

    GenApi::EIncMode incrementMode() override;

protected:
    GenApi::EAccessMode valueAccess() const override;
    Number value(bool ignoreCache) override;
    void setValue(Number value, bool verify, Changes &changes) override;
    std::pair<Number, Number> range() override;
    std::pair<Number, Number> computeRange();
    std::vector<Number> validValues() override;

private:
    friend class DescriptionLoader;

    enum class Slope : uint8_t { Automatic, Increasing, Decreasing, Varying };

    Node *m_node = nullptr;
    Formula m_formulaTo; ///< from this node's value to the other one's
    Formula m_formulaFrom; ///< from the other node's value to this one's
    Slope m_slope = Slope::Automatic;
    std::pair<Number, Number> m_range{};
    uint64_t m_rangeIn = 0; ///< the evaluation that computed m_range
};

extern template class SwissKnifeNode<IntegerFormulaBase>;
extern template class SwissKnifeNode<FloatFormulaBase>;
extern template class ConverterNode<IntegerFormulaBase>;
extern template class ConverterNode<FloatFormulaBase>;

} // namespace OrvGenApi
