#pragma once

#include "values.h"

namespace OrvGenApi {

/** Where a number has its value: in the node itself, in another node, or in one of several picked by an index. */
template <typename Number>
class NumberSource
{
public:
    using Ref = NumberRef<Number>;

    bool isComplete() const { return m_indexed ? m_indexed->index != nullptr : m_value.isSet(); }

    /** The node that always has the value; null where there is none. */
    Node *node() const { return m_indexed ? nullptr : m_value.node(); }

    /** The node that has the value now; null where it is a constant. Throws when the index picks nothing. */
    Node *currentNode(const Node &owner) { return current(owner).node(); }

    GenApi::EAccessMode access() const;
    bool isCacheValid() const;
    Number value(const Node &owner, bool ignoreCache) { return current(owner).value(ignoreCache); }
    void write(Node &owner, Number value, bool verify, Changes &changes);

private:
    friend class DescriptionLoader;

    struct Item
    {
        int64_t index;
        Ref value;
    };

    struct Indexed
    {
        Node *index = nullptr;
        std::vector<Item> items;
        Ref fallback;
        Ref *picked = nullptr; ///< what the last evaluation found
        uint64_t pickedIn = 0; ///< that evaluation
        uint64_t askedIn = 0; ///< the evaluation that found out isValid
        bool isValid = false;
    };

    Indexed &indexed();
    Ref &current(const Node &owner);
    Ref *picked() const;
    bool isIndexedCacheValid() const;

    Ref m_value;
    std::unique_ptr<Indexed> m_indexed;
    std::vector<Node *> m_copies; ///< written with the value
};

extern template class NumberSource<int64_t>;
extern template class NumberSource<double>;

/** An integer with a value of its own or elsewhere. */
class IntegerNode final : public IntegerBase
{
public:
    using IntegerBase::IntegerBase;

    bool isCacheValid() const override { return m_source.isCacheValid(); }
    int64_t intValue(bool ignoreCache) override { return m_source.value(*this, ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) override;
    int64_t intMin() override;
    int64_t intMax() override;
    std::pair<int64_t, int64_t> intRange() override;
    int64_t intIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<int64_t> validInts(bool bounded) override;
    GenApi::ERepresentation representation() const override { return m_presentation.representationOf(m_source.node()); }
    const char *unit() const override { return m_presentation.unitOf(m_source.node()); }

protected:
    GenApi::EAccessMode valueAccess() const override { return m_source.access(); }

private:
    friend class DescriptionLoader;

    NumberSource<int64_t> m_source;
    IntRef m_minimum;
    IntRef m_maximum;
    IntRef m_increment;
    std::unique_ptr<std::vector<int64_t>> m_validValues; ///< ascending
    Presentation m_presentation;
};

/** A floating-point number with a value of its own or elsewhere. */
class FloatNode final : public FloatBase
{
public:
    using FloatBase::FloatBase;

    bool isCacheValid() const override { return m_source.isCacheValid(); }
    double floatValue(bool ignoreCache) override { return m_source.value(*this, ignoreCache); }
    void setFloatValue(double value, bool verify, Changes &changes) override;
    double floatMin() override;
    double floatMax() override;
    std::pair<double, double> floatRange() override;
    double floatIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<double> validFloats(bool bounded) override;
    GenApi::ERepresentation representation() const override { return m_presentation.representationOf(m_source.node()); }
    const char *unit() const override { return m_presentation.unitOf(m_source.node()); }
    GenApi::EDisplayNotation displayNotation() const override { return m_presentation.notationOf(m_source.node()); }
    int64_t displayPrecision() const override { return m_presentation.precisionOf(m_source.node()); }

protected:
    GenApi::EAccessMode valueAccess() const override { return m_source.access(); }

private:
    friend class DescriptionLoader;

    NumberSource<double> m_source;
    FloatRef m_minimum;
    FloatRef m_maximum;
    FloatRef m_increment;
    Presentation m_presentation;
};

} // namespace OrvGenApi
