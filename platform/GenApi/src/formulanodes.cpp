#include "formulanodes.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;

int64_t FormulaVariable::intValue(bool ignoreCache) const
{
    node->requireUsable();
    switch (property) {
    case Property::Value:
        node->requireReadable();
        return node->intValue(ignoreCache);
    case Property::Minimum:
        return node->intMin();
    case Property::Maximum:
        return node->intMax();
    case Property::Increment:
        return node->intIncrement();
    case Property::Entry:
        break;
    }
    return node->entryValue(entry);
}

double FormulaVariable::floatValue(bool ignoreCache) const
{
    node->requireUsable();
    switch (property) {
    case Property::Value:
        node->requireReadable();
        return node->floatValue(ignoreCache);
    case Property::Minimum:
        return node->floatMin();
    case Property::Maximum:
        return node->floatMax();
    case Property::Increment:
        return node->floatIncrement();
    case Property::Entry:
        break;
    }
    return static_cast<double>(node->entryValue(entry));
}

std::vector<int64_t> IntegerFormulaBase::validInts(bool bounded)
{
    std::vector<int64_t> values = validValues();
    if (bounded)
        keepInside(values, range());
    return values;
}

std::vector<double> FloatFormulaBase::validFloats(bool bounded)
{
    std::vector<double> values = validValues();
    if (bounded)
        keepInside(values, range());
    return values;
}

std::pair<double, double> FloatFormulaBase::fullRange()
{
    return {-std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
}

template <typename Base>
EAccessMode FormulaNode<Base>::variablesAccess() const
{
    EAccessMode mode = RO;
    for (const FormulaVariable &variable : m_variables) {
        if (variable.property == FormulaVariable::Property::Value)
            mode = combined(mode, variable.node->unlockedAccessMode());
    }
    return isReadable(mode) ? RW : mode;
}

template <typename Base>
auto FormulaNode<Base>::run(const Formula &formula, Number converted, bool ignoreCache) const -> Number
{
    this->requireUsable();
    VariableSource source(m_variables, ignoreCache);
    source.setConverted(converted);
    try {
        return Base::evaluate(formula, source);
    } catch (const FormulaError &error) {
        ORV_THROW(LogicalErrorException, std::string("node '") + this->name() + "': " + error.message);
    }
}

template <typename Base>
template <typename Compute>
auto FormulaNode<Base>::keptOr(bool ignoreCache, const Compute &compute) -> Number
{
    if ((m_kept && !ignoreCache) || m_computedIn == this->map().evaluation())
        return m_value;
    m_kept = false;
    const Number value = compute();
    m_value = value;
    m_computedIn = this->map().evaluation();
    m_kept = this->cachingMode() != NoCache;
    return value;
}

template <typename Base>
auto SwissKnifeNode<Base>::value(bool ignoreCache) -> Number
{
    return this->keptOr(ignoreCache, [&] { return this->run(m_formula, 0, ignoreCache); });
}

template <typename Base>
void SwissKnifeNode<Base>::setValue(Number, bool, Changes &)
{
    ORV_THROW(AccessException, std::string("node '") + this->name() + "' is computed and cannot be written");
}

template <typename Base>
EAccessMode ConverterNode<Base>::valueAccess() const
{
    return combined(m_node->accessMode(), this->variablesAccess());
}

template <typename Base>
EIncMode ConverterNode<Base>::incrementMode()
{
    return m_node && m_node->incrementMode() == listIncrement ? listIncrement : Base::ownIncrementMode();
}

template <typename Base>
auto ConverterNode<Base>::value(bool ignoreCache) -> Number
{
    return this->keptOr(ignoreCache, [&] {
        this->requireUsable();
        m_node->requireReadable();
        return this->run(m_formulaFrom, Base::valueOf(*m_node, ignoreCache), ignoreCache);
    });
}

template <typename Base>
void ConverterNode<Base>::setValue(Number value, bool verify, Changes &changes)
{
    if (verify)
        this->checkRange(value);
    const Number converted = this->run(m_formulaTo, value, false);
    writeLinked(*m_node, converted, verify, changes);
}

template <typename Base>
auto ConverterNode<Base>::range() -> std::pair<Number, Number>
{
    if (m_slope == Slope::Varying)
        return Base::fullRange();
    if (m_rangeIn != this->map().evaluation()) {
        m_range = computeRange();
        m_rangeIn = this->map().evaluation();
    }
    return m_range;
}

template <typename Base>
auto ConverterNode<Base>::computeRange() -> std::pair<Number, Number>
{
    this->requireUsable();
    const auto [low, high] = Base::rangeOf(*m_node);
    const Number first = this->run(m_formulaFrom, low, false);
    const Number second = this->run(m_formulaFrom, high, false);
    const bool decreasing = m_slope == Slope::Automatic ? first > second : m_slope == Slope::Decreasing;
    return decreasing ? std::make_pair(second, first) : std::make_pair(first, second);
}

template <typename Base>
auto ConverterNode<Base>::validValues() -> std::vector<Number>
{
    this->requireUsable();
    std::vector<Number> values = Base::validValuesOf(*m_node);
    for (Number &value : values)
        value = this->run(m_formulaFrom, value, false);
    std::sort(values.begin(), values.end());
    return values;
}

template class SwissKnifeNode<IntegerFormulaBase>;
template class SwissKnifeNode<FloatFormulaBase>;
template class ConverterNode<IntegerFormulaBase>;
template class ConverterNode<FloatFormulaBase>;

} // namespace OrvGenApi
