// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

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
        m_node->requireReadable(ignoreCache);
        if constexpr (std::is_same_v<Number, double>)
            return m_node->floatValue(ignoreCache);
        else
            return m_node->intNumber(ignoreCache);
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
        const Entry entry(*this, "ToString");
        FreshReading reading(*this, IgnoreCache);
        requireReadable(reading);
        const Verification verification(m_map, Verify);
        const std::string result = text(IgnoreCache);
        if (Verify)
            checkValue();
        return GenICam::gcstring(result);
    }

    void FromString(const GenICam::gcstring &ValueStr, bool Verify) override
    {
        change("FromString", [&](Changes &changes) {
            const Verification verification(m_map, Verify);
            if (Verify)
                requireWritable();
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

/** What a node keeps of its number. */
template <typename Number>
class KeptNumber
{
public:
    bool isKept() const { return m_isKept; }
    void setKept(bool isKept) { m_isKept = isKept; }
    void drop()
    {
        m_isKept = false;
        m_readIn = 0;
    }
    /** True once in an evaluation. */
    bool mustCheck(const Node &owner)
    {
        if (m_checkedIn == owner.map().evaluation())
            return false;
        m_checkedIn = owner.map().evaluation();
        return true;
    }
    void keep(Number value)
    {
        m_value = value;
        m_isKept = true;
    }

    /**
     * The kept number, or what \a read() gives; one evaluation asks the device only once, whatever is kept. \a
     * mustVerify makes it be read again, so that what it is made of is looked at as well.
     */
    template <typename Read>
    Number valueOr(Node &owner, bool ignoreCache, bool mustVerify, const Read &read)
    {
        if (!mustVerify && ((m_isKept && !ignoreCache) || m_readIn == owner.map().evaluation()))
            return m_value;
        if (!mustVerify || ignoreCache)
            drop();
        const Descent descent(owner);
        m_value = read();
        m_readIn = owner.map().evaluation();
        m_isKept =
            (!ignoreCache || owner.keepsFresh() || owner.map().m_renewing) && owner.cachingMode() != GenApi::NoCache;
        return m_value;
    }

private:
    Number m_value = 0;
    uint64_t m_readIn = 0; ///< the evaluation that read m_value
    uint64_t m_checkedIn = 0; ///< the evaluation that checked it
    bool m_isKept = false;
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
    void ImposeMin(int64_t Value) override;
    void ImposeMax(int64_t Value) override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIInteger; }
    bool isNumber() const override { return true; }
    void dropCache() override;
    bool isCacheValid() const override { return m_kept.isKept(); }
    int64_t intValue(bool ignoreCache) final;
    void setIntValue(int64_t value, bool verify, Changes &changes) final;

protected:
    /** Throws when \a value is outside the range or off a fixed increment; a list is not enforced. */
    void checkRange(int64_t value);

    /** The value, not the kept one. */
    virtual int64_t readInt(bool ignoreCache) = 0;
    virtual void writeInt(int64_t value, bool verify, Changes &changes) = 0;

    /** Whether a value that was just read has been found within limits that are this node's as well. */
    virtual bool isCheckedBelow(int64_t) const { return false; }

    /** Whether a written value may be kept at all. */
    virtual bool keepsWritten() const { return true; }

    KeptNumber<int64_t> m_kept;

private:
    int64_t lowest();
    int64_t highest();

    bool m_hasImposedLimits = false;
};

/** \a limit, but infinity, which leaves all numbers free, as the largest or smallest one. */
inline double finiteLimit(double limit, bool upper)
{
    constexpr double largest = std::numeric_limits<double>::max();
    return upper ? std::min(limit, largest) : std::max(limit, -largest);
}

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
    void ImposeMin(double Value) override;
    void ImposeMax(double Value) override;
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
    void dropCache() override;
    bool isCacheValid() const override { return m_kept.isKept(); }
    double floatValue(bool ignoreCache) final;
    void setFloatValue(double value, bool verify, Changes &changes) final;
    int64_t intValue(bool ignoreCache) final { return Node::intValue(ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) final { Node::setIntValue(value, verify, changes); }

protected:
    /** Throws when \a value is no number or outside the range; an increment is not enforced. */
    void checkRange(double value);

    /** The value, not the kept one. */
    virtual double readFloat(bool ignoreCache) = 0;
    virtual void writeFloat(double value, bool verify, Changes &changes) = 0;
    virtual bool keepsWritten() const { return true; }

    KeptNumber<double> m_kept;

private:
    double lowest();
    double highest();

    bool m_hasImposedLimits = false;
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

    // \a source gives the node that the value is taken from, or null; it is asked only where it matters.
    template <typename Source>
    const char *unitOf(const Source &source) const
    {
        return unit ? unit : of(source, &Node::unit, "");
    }
    template <typename Source>
    GenApi::ERepresentation representationOf(const Source &source) const
    {
        return representation != GenApi::_UndefinedRepresentation
            ? representation
            : of(source, &Node::representation, GenApi::PureNumber);
    }
    template <typename Source>
    GenApi::EDisplayNotation notationOf(const Source &source) const
    {
        return notation != GenApi::_UndefinedEDisplayNotation ? notation
                                                              : of(source, &Node::displayNotation, GenApi::fnAutomatic);
    }
    template <typename Source>
    int64_t precisionOf(const Source &source) const
    {
        return precision >= 0 ? precision : of(source, &Node::displayPrecision, int64_t(6));
    }

private:
    template <typename Source, typename Value>
    static Value of(const Source &source, Value (Node::*property)(), Value fallback)
    {
        Node *const node = source();
        return node ? (node->*property)() : fallback;
    }
};

} // namespace OrvGenApi
