#pragma once

#include "values.h"

namespace OrvGenApi {

/** Values picked by an index: constants or other nodes, and one for all other indices. */
struct IndexedValues
{
    struct Item
    {
        int64_t index;
        IntRef value;
    };

    Node *index = nullptr;
    std::vector<Item> items;
    IntRef fallback;

    /** The value for the current index. */
    IntRef &current(const Node &owner);
};

/** An integer whose value stands in the node itself, in another node, or in one of several picked by an index. */
class IntegerNode final : public IntegerBase
{
public:
    using IntegerBase::IntegerBase;

    bool isCacheValid() const override;
    int64_t intValue(bool ignoreCache) override;
    void setIntValue(int64_t value, bool verify, Changes &changes) override;
    int64_t intMin() override;
    int64_t intMax() override;
    std::pair<int64_t, int64_t> intRange() override;
    int64_t intIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<int64_t> validInts(bool bounded) override;
    GenApi::ERepresentation representation() const override { return m_presentation.representationOf(m_value.node()); }
    const char *unit() const override { return m_presentation.unitOf(m_value.node()); }

protected:
    GenApi::EAccessMode valueAccess() const override;

private:
    friend class DescriptionLoader;

    IntRef &current();
    Node *currentNode();

    IntRef m_value;
    std::vector<Node *> m_copies; ///< written with the value
    std::unique_ptr<IndexedValues> m_indexed;
    IntRef m_minimum;
    IntRef m_maximum;
    IntRef m_increment;
    std::unique_ptr<std::vector<int64_t>> m_validValues; ///< ascending
    Presentation m_presentation;
};

/** A floating-point number whose value stands in the node itself or in another node. */
class FloatNode final : public FloatBase
{
public:
    using FloatBase::FloatBase;

    bool isCacheValid() const override { return !m_value.node() || m_value.node()->isCacheValid(); }
    double floatValue(bool ignoreCache) override { return m_value.value(ignoreCache); }
    void setFloatValue(double value, bool verify, Changes &changes) override;
    double floatMin() override;
    double floatMax() override;
    std::pair<double, double> floatRange() override;
    double floatIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<double> validFloats(bool bounded) override;
    GenApi::ERepresentation representation() const override { return m_presentation.representationOf(m_value.node()); }
    const char *unit() const override { return m_presentation.unitOf(m_value.node()); }
    GenApi::EDisplayNotation displayNotation() const override { return m_presentation.notationOf(m_value.node()); }
    int64_t displayPrecision() const override { return m_presentation.precisionOf(m_value.node()); }

protected:
    GenApi::EAccessMode valueAccess() const override;

private:
    friend class DescriptionLoader;

    FloatRef m_value;
    std::vector<Node *> m_copies; ///< written with the value
    FloatRef m_minimum;
    FloatRef m_maximum;
    FloatRef m_increment;
    Presentation m_presentation;
};

} // namespace OrvGenApi
