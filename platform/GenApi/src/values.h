#pragma once

#include "nodemapimpl.h"

#include <GenApi/IBoolean.h>
#include <GenApi/IFloat.h>
#include <GenApi/IInteger.h>

#include <algorithm>

namespace OrvGenApi {

/** A number that stands in the description or is the value of another node. */
template <typename Number>
class NumberRef
{
public:
    void setConstant(Number value)
    {
        m_kind = Kind::Constant;
        m_constant = value;
    }
    void setNode(Node *node)
    {
        m_kind = Kind::Link;
        m_node = node;
    }

    bool isSet() const { return m_kind != Kind::None; }
    Node *node() const { return m_kind == Kind::Link ? m_node : nullptr; }
    Number constant() const { return m_constant; }

    /** The number now; of a node that can be read, or an access exception. */
    Number value(bool ignoreCache = false) const
    {
        if (m_kind != Kind::Link)
            return m_constant;
        m_node->requireReadable();
        if constexpr (std::is_same_v<Number, double>)
            return m_node->floatValue(ignoreCache);
        else
            return m_node->intValue(ignoreCache);
    }

private:
    enum class Kind : uint8_t { None, Constant, Link };

    Kind m_kind = Kind::None;
    union
    {
        Number m_constant = 0;
        Node *m_node;
    };
};

using IntRef = NumberRef<int64_t>;
using FloatRef = NumberRef<double>;

/** Takes out of \a values what lies outside \a range. */
template <typename Number>
void keepInside(std::vector<Number> &values, const std::pair<Number, Number> &range)
{
    const auto outside = [&range](Number value) { return value < range.first || value > range.second; };
    values.erase(std::remove_if(values.begin(), values.end(), outside), values.end());
}

/** What all nodes with a value have in common on the outside. */
template <typename Interface>
class ValueNode : public Node, virtual public Interface
{
public:
    using Node::Node;

    GenApi::INode *GetNode() override { return this; }

    GenICam::gcstring ToString(bool Verify, bool IgnoreCache) override
    {
        (void)Verify;
        const Entry entry(*this, "ToString");
        requireReadable();
        return GenICam::gcstring(text(IgnoreCache));
    }

    void FromString(const GenICam::gcstring &ValueStr, bool Verify) override
    {
        change("FromString", [&](Changes &changes) {
            requireWritable(Verify);
            setText(ValueStr.c_str(), Verify, changes);
        });
    }

    bool IsValueCacheValid() const override
    {
        const Entry entry(*this, "IsValueCacheValid");
        return isCacheValid();
    }

    GenApi::IValue *asValue() override { return this; }
};

/** Base of all nodes that are integers on the outside. */
class IntegerBase : public ValueNode<GenApi::IInteger>
{
public:
    using ValueNode::ValueNode;

    void SetValue(int64_t Value, bool Verify) override;
    int64_t GetValue(bool Verify, bool IgnoreCache) override;
    int64_t GetMin() override;
    int64_t GetMax() override;
    int64_t GetInc() override;
    GenApi::EIncMode GetIncMode() override;
    GenApi::int64_autovector_t GetListOfValidValues(bool bounded) override;
    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIInteger; }
    bool isNumber() const override { return true; }

protected:
    /** Throws when \a value is outside the range or off a fixed increment; a list is not enforced. */
    void checkRange(int64_t value);
};

/** Base of all nodes that are floating-point numbers on the outside. */
class FloatBase : public ValueNode<GenApi::IFloat>
{
public:
    using ValueNode::ValueNode;

    void SetValue(double Value, bool Verify) override;
    double GetValue(bool Verify, bool IgnoreCache) override;
    double GetMin() override;
    double GetMax() override;
    bool HasInc() override;
    GenApi::EIncMode GetIncMode() override;
    double GetInc() override;
    GenApi::double_autovector_t GetListOfValidValues(bool bounded) override;
    GenApi::ERepresentation GetRepresentation() override;
    GenICam::gcstring GetUnit() const override;
    GenApi::EDisplayNotation GetDisplayNotation() const override;
    int64_t GetDisplayPrecision() const override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIFloat; }
    bool isNumber() const override { return true; }
    bool isFloat() const override { return true; }
    double floatMin() override;
    double floatMax() override;
    GenApi::EIncMode incrementMode() override { return GenApi::noIncrement; }
    double floatIncrement() override;
    std::vector<double> validFloats(bool) override { return {}; }
    double floatValue(bool ignoreCache) override = 0;
    void setFloatValue(double value, bool verify, Changes &changes) override = 0;
    int64_t intValue(bool ignoreCache) final { return Node::intValue(ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) final { Node::setIntValue(value, verify, changes); }

protected:
    /** Throws when \a value is no number, outside the range or off a fixed increment; a list is not enforced. */
    void checkRange(double value);
};

/** Writes through a link as a user of the linked node would. */
void writeLinked(Node &node, int64_t value, bool verify, Changes &changes);
void writeLinked(Node &node, double value, bool verify, Changes &changes);

/** How a number is shown; a node that says nothing shows as the node it takes its value from. */
struct Presentation
{
    const char *unit = nullptr;
    int64_t precision = -1;
    GenApi::ERepresentation representation = GenApi::_UndefinedRepresentation;
    GenApi::EDisplayNotation notation = GenApi::_UndefinedEDisplayNotation;

    const char *unitOf(const Node *value) const;
    GenApi::ERepresentation representationOf(const Node *value) const;
    GenApi::EDisplayNotation notationOf(const Node *value) const;
    int64_t precisionOf(const Node *value) const;
};

} // namespace OrvGenApi
