// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "values.h"

namespace OrvGenApi {

/** Where a number has its value: in the node itself, in another node, or in one of several picked by an index. */
template <typename Number>
class NumberSource
{
public:
    using Ref = NumberRef<Number>;

    bool isIndexed() const { return m_indexed != nullptr; }
    bool isComplete() const { return m_indexed ? m_indexed->index != nullptr : m_value.isSet(); }

    /** The node that always has the value; null where there is none. */
    Node *node() const { return m_indexed ? nullptr : m_value.node(); }

    /** The node that has the value now; null where it is a constant. Throws when the index picks nothing. */
    Node *currentNode(const Node &owner) { return current(owner).node(); }

    /** The same for asking it for its limits, which it has to be available for. */
    Node *limitingNode(const Node &owner);

    bool hasCopies() const { return m_copies != nullptr; }
    /** What the value allows; the same with its copies. */
    GenApi::EAccessMode valueAccess() const;
    GenApi::EAccessMode access() const;

    /** What copies and limits allow; few nodes have copies, or limits in other nodes. */
    GenApi::EAccessMode readAccess(const Ref &minimum, const Ref &maximum, const Ref &increment) const
    {
        if (!m_copies && !minimum.node() && !maximum.node() && !increment.node())
            return GenApi::RW;
        const GenApi::EAccessMode mode = copyAvailability();
        return mode == GenApi::NI
            ? mode
            : combined(mode, Node::availabilityOf({minimum.node(), maximum.node(), increment.node()}));
    }

    /** \a range as far as all copies take it; worked out once an evaluation. */
    std::pair<Number, Number> copiedRange(const Node &owner, std::pair<Number, Number> range);
    bool knowsCopiedRange(const Node &owner) const { return m_copies->rangeIn == owner.map().evaluation(); }
    Number value(const Node &owner, bool ignoreCache) { return current(owner).value(ignoreCache); }
    void write(Node &owner, Number value, bool verify, Changes &changes);

    /** Calls \a visit(node) for all nodes that a write may reach. */
    template <typename Visit>
    void forEachTarget(const Visit &visit) const
    {
        if (Node *const always = node())
            visit(*always);
        if (m_indexed) {
            for (const Item &item : m_indexed->items) {
                if (Node *const picked = item.value.node())
                    visit(*picked);
            }
            if (Node *const picked = m_indexed->fallback.node())
                visit(*picked);
        }
        if (m_copies) {
            for (Node *copy : m_copies->nodes)
                visit(*copy);
        }
    }

    /** Tells \a changes of the ends of all these, once; false when there are none. */
    bool addEnds(Changes &changes);

    /** Whether all that it may be read from keeps what was read past the caches. */
    bool keepsFresh() const;

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
        std::optional<bool> keepsFresh; ///< once it has been worked out
        uint64_t endsIn = 0; ///< the last list of changes that was told of the ends
    };

    /** Nodes that are written with the value. */
    struct Copies
    {
        std::vector<Node *> nodes;
        std::pair<Number, Number> range{};
        uint64_t rangeIn = 0; ///< the evaluation that worked it out
        uint64_t endsIn = 0; ///< the last list of changes that was told of the ends
    };

    GenApi::EAccessMode copyAvailability() const;
    Indexed &indexed();
    Ref &current(const Node &owner);
    Ref *picked() const;

    Ref m_value;
    std::unique_ptr<Indexed> m_indexed;
    std::unique_ptr<Copies> m_copies;
};

extern template class NumberSource<int64_t>;
extern template class NumberSource<double>;

/** An integer with a value of its own or elsewhere. */
class IntegerNode final : public IntegerBase
{
public:
    using IntegerBase::IntegerBase;

    Node *valueNode() override { return m_source.node(); }
    void addEnds(Changes &changes) override
    {
        const Descent descent(*this);
        if (!m_source.addEnds(changes))
            Node::addEnds(changes);
    }
    int64_t intMin() override;
    int64_t intMax() override;
    std::pair<int64_t, int64_t> intRange() override;
    int64_t intIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<int64_t> validInts(bool bounded) override;
    GenApi::ERepresentation representation() override;
    const char *unit() override
    {
        return m_presentation.unitOf([this] { return m_source.currentNode(*this); });
    }

protected:
    GenApi::EAccessMode valueAccess() const override { return m_source.access(); }
    int64_t readInt(bool ignoreCache) override { return m_source.value(*this, ignoreCache); }
    void writeInt(int64_t value, bool verify, Changes &changes) override
    {
        if (hasLimitsOfOther()) // asked on every level, a chain would cost its length squared
            changes.noteChecked(*m_source.node(), value);
        m_source.write(*this, value, verify, changes);
    }
    bool isCheckedBelow(int64_t value) const override
    {
        return hasLimitsOfOther() && m_map.m_checkedRead.isOf(m_source.node(), value, m_map.evaluation());
    }
    bool keepsWritten() const override { return !m_source.hasCopies(); }
    bool keepsFresh() const override { return m_source.keepsFresh(); }
    bool ignoresConditions() const override { return m_source.isIndexed(); }
    GenApi::EAccessMode firstAccess() const override { return m_source.valueAccess(); }
    GenApi::EAccessMode readAccess() const override
    {
        const GenApi::EAccessMode mode = Node::readAccess();
        return mode == GenApi::NI ? mode : combined(mode, m_source.readAccess(m_minimum, m_maximum, m_increment));
    }

private:
    friend class DescriptionLoader;

    /** Whether limits and increment are those of the node that the value is written to. */
    bool hasLimitsOfOther() const
    {
        return m_source.node() && !m_source.isIndexed() && !m_source.hasCopies() && !m_minimum.isSet()
            && !m_maximum.isSet() && !m_increment.isSet();
    }

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

    Node *valueNode() override { return m_source.node(); }
    void addEnds(Changes &changes) override
    {
        const Descent descent(*this);
        if (!m_source.addEnds(changes))
            Node::addEnds(changes);
    }
    double floatMin() override;
    double floatMax() override;
    std::pair<double, double> floatRange() override;
    double floatIncrement() override;
    GenApi::EIncMode incrementMode() override;
    std::vector<double> validFloats(bool bounded) override;
    GenApi::ERepresentation representation() override
    {
        return m_presentation.representationOf([this] { return m_source.currentNode(*this); });
    }
    const char *unit() override
    {
        return m_presentation.unitOf([this] { return m_source.currentNode(*this); });
    }
    GenApi::EDisplayNotation displayNotation() override
    {
        return m_presentation.notationOf([this] { return m_source.currentNode(*this); });
    }
    int64_t displayPrecision() override
    {
        return m_presentation.precisionOf([this] { return m_source.currentNode(*this); });
    }

protected:
    GenApi::EAccessMode valueAccess() const override { return m_source.access(); }
    double readFloat(bool ignoreCache) override { return m_source.value(*this, ignoreCache); }
    void writeFloat(double value, bool verify, Changes &changes) override
    {
        m_source.write(*this, value, verify, changes);
    }
    bool keepsWritten() const override { return !m_source.hasCopies(); }
    bool keepsFresh() const override { return m_source.keepsFresh(); }
    bool ignoresConditions() const override { return m_source.isIndexed(); }
    GenApi::EAccessMode firstAccess() const override { return m_source.valueAccess(); }
    GenApi::EAccessMode readAccess() const override
    {
        const GenApi::EAccessMode mode = Node::readAccess();
        return mode == GenApi::NI ? mode : combined(mode, m_source.readAccess(m_minimum, m_maximum, m_increment));
    }

private:
    friend class DescriptionLoader;

    NumberSource<double> m_source;
    FloatRef m_minimum;
    FloatRef m_maximum;
    FloatRef m_increment;
    Presentation m_presentation;
};

} // namespace OrvGenApi
