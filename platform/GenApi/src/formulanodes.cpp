// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "formulanodes.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;

int64_t FormulaVariable::intValue(bool ignoreCache) const
{
    node->requireUsable();
    switch (property) {
    case Property::Value:
        node->requireReadable(ignoreCache);
        return node->intNumber(ignoreCache);
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
        node->requireReadable(ignoreCache);
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
    EAccessMode mode = RW;
    for (const FormulaVariable &variable : m_variables) {
        if (mode == NI)
            break;
        const EAccessMode access = variable.node->accessMode();
        if (access == NI || access == NA)
            mode = combined(mode, access);
    }
    return mode;
}

template <typename Base>
auto FormulaNode<Base>::run(const Formula &formula, Number converted, bool ignoreCache) const -> Number
{
    this->requireUsable();
    try {
        formula.requireUsable();
        VariableSource<Number> source(m_variables, converted, ignoreCache);
        return Base::evaluate(formula, source);
    } catch (const FormulaError &error) {
        ORV_THROW(LogicalErrorException, std::string("node '") + this->name() + "': " + error.message);
    }
}

template <typename Base>
auto SwissKnifeNode<Base>::value(bool ignoreCache) -> Number
{
    // Variables that are read past the caches are kept all the same.
    std::optional<Renewal> renewal;
    if (ignoreCache)
        renewal.emplace(this->map());
    return this->run(m_formula, 0, ignoreCache);
}

/** Reached by a write without checks, and when the access mode could not be determined. */
template <typename Base>
void SwissKnifeNode<Base>::setValue(Number, bool, Changes &)
{
    if (Base::kind == Formula::Kind::Integer)
        this->throwNoAccess("writable");
    ORV_THROW(LogicalErrorException, std::string("node '") + this->name() + "' is computed and cannot be written");
}

template <typename Base>
EAccessMode ConverterNode<Base>::valueAccess() const
{
    const EAccessMode mode = m_node->accessMode();
    return mode == NI ? mode : combined(mode, this->variablesAccess());
}

template <typename Base>
EIncMode ConverterNode<Base>::incrementMode()
{
    return m_node && m_node->incrementMode() == listIncrement ? listIncrement : Base::ownIncrementMode();
}

template <typename Base>
auto ConverterNode<Base>::value(bool ignoreCache) -> Number
{
    this->requireUsable();
    m_node->requireReadable(ignoreCache);
    const Number read = Base::valueOf(*m_node, ignoreCache);
    std::optional<Renewal> renewal; // of the variables
    if (ignoreCache)
        renewal.emplace(this->map());
    return this->run(m_formulaFrom, read, ignoreCache);
}

template <typename Base>
void ConverterNode<Base>::setValue(Number value, bool verify, Changes &changes)
{
    const Number converted = this->run(m_formulaTo, value, false);
    writeLinked(*m_node, converted, verify, changes);
}

template <typename Base>
auto ConverterNode<Base>::limit(bool upper) -> Number
{
    if (m_slope == Slope::Varying)
        return Base::limit(upper);
    if (m_slope == Slope::None && Base::kind == Formula::Kind::Integer)
        return 0; // intentionally: only a float without a slope counts as increasing
    if (m_limitsIn[upper] != this->map().evaluation()) {
        m_limits[upper] = Base::finite(computeLimit(upper), upper);
        m_limitsIn[upper] = this->map().evaluation();
    }
    return m_limits[upper];
}

template <typename Base>
auto ConverterNode<Base>::computeLimit(bool upper) -> Number
{
    this->requireUsable();
    const Descent descent(*this);
    const auto converted = [this](bool which) {
        return this->run(m_formulaFrom, Base::limitOf(*m_node, which), false);
    };
    if (m_slope != Slope::Automatic && m_slope != Slope::None)
        return converted(upper != (m_slope == Slope::Decreasing));
    const Number first = converted(false);
    const Number second = converted(true);
    return upper ? std::max(first, second) : std::min(first, second);
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

template class FormulaNode<IntegerFormulaBase>;
template class FormulaNode<FloatFormulaBase>;
template class SwissKnifeNode<IntegerFormulaBase>;
template class SwissKnifeNode<FloatFormulaBase>;
template class ConverterNode<IntegerFormulaBase>;
template class ConverterNode<FloatFormulaBase>;

} // namespace OrvGenApi
