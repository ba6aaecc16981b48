// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "integernode.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;

namespace {

/** The increment of a floating-point feature for an integer. Intentionally, one too large is the smallest integer. */
int64_t wholeIncrement(double increment)
{
    const int64_t rounded = roundedToInteger(increment);
    return rounded == int64Max ? int64Min : rounded;
}

} // namespace

template <typename Number>
EAccessMode NumberSource<Number>::valueAccess() const
{
    if (m_indexed && !picked())
        return m_indexed->index && m_indexed->index->accessMode() == NI ? NI : NA;
    const Node *const node = m_indexed ? picked()->node() : m_value.node();
    return node ? node->accessMode() : RW;
}

template <typename Number>
EAccessMode NumberSource<Number>::access() const
{
    EAccessMode mode = valueAccess();
    if (m_copies && !(m_indexed && !picked())) {
        for (const Node *copy : m_copies->nodes) {
            const EAccessMode access = copy->accessMode();
            mode = combined(mode, access == WO ? RW : access); // is never read
        }
    }
    return mode;
}

/** Null when the index cannot be read, or picks nothing. */
template <typename Number>
NumberRef<Number> *NumberSource<Number>::picked() const
{
    Node *const index = m_indexed->index;
    if (!index)
        return nullptr;
    if (m_indexed->pickedIn == index->map().evaluation())
        return m_indexed->picked;
    const Verification unverified(index->map(), false);
    Ref *found = nullptr;
    if (isReadable(index->accessMode())) {
        const int64_t wanted = index->intNumber(false);
        const auto item = std::find_if(m_indexed->items.begin(), m_indexed->items.end(),
                                       [wanted](const Item &each) { return each.index == wanted; });
        if (item != m_indexed->items.end())
            found = &item->value;
        else if (m_indexed->fallback.isSet())
            found = &m_indexed->fallback;
    }
    m_indexed->picked = found;
    m_indexed->pickedIn = index->map().evaluation();
    return found;
}

template <typename Number>
typename NumberSource<Number>::Indexed &NumberSource<Number>::indexed()
{
    if (!m_indexed)
        m_indexed = std::make_unique<Indexed>();
    return *m_indexed;
}

template <typename Number>
NumberRef<Number> &NumberSource<Number>::current(const Node &owner)
{
    if (!m_indexed)
        return m_value;
    Ref *const found = picked();
    if (!found)
        ORV_THROW(AccessException, std::string("node '") + owner.name() + "' has no value for its index");
    return *found;
}

template <typename Number>
Node *NumberSource<Number>::limitingNode(const Node &owner)
{
    Node *const node = currentNode(owner);
    if (node && (node->interfaceType() == intfIInteger || node->interfaceType() == intfIFloat))
        node->requireAvailable();
    return node;
}

template <typename Number>
void NumberSource<Number>::write(Node &owner, Number value, bool verify, Changes &changes)
{
    Ref &target = current(owner);
    // Whatever the index may pick belongs to this value, written now or not.
    if (m_indexed)
        addEnds(changes);
    if (Node *const node = target.node()) {
        writeLinked(*node, value, verify, changes);
    } else {
        target.setConstant(value);
        changes.add(owner);
    }
    if (m_copies) {
        for (Node *copy : m_copies->nodes)
            writeLinked(*copy, value, verify, changes);
    }
}

template <typename Number>
bool NumberSource<Number>::addEnds(Changes &changes)
{
    // Only where there are several ways they may come together again.
    if (uint64_t *const told = m_indexed ? &m_indexed->endsIn : m_copies ? &m_copies->endsIn : nullptr) {
        if (*told == changes.list())
            return true;
        *told = changes.list();
    }
    bool any = false;
    forEachTarget([&](Node &node) {
        any = true;
        node.addEnds(changes);
    });
    return any;
}

template <typename Number>
bool NumberSource<Number>::keepsFresh() const
{
    if (!m_indexed)
        return node() && !m_copies && node()->keepsFresh();
    if (!m_indexed->keepsFresh) {
        bool any = false;
        bool all = true;
        forEachTarget([&](const Node &node) {
            any = true;
            all = all && node.keepsFresh();
        });
        m_indexed->keepsFresh = any && all;
    }
    return *m_indexed->keepsFresh;
}

template <typename Number>
EAccessMode NumberSource<Number>::copyAvailability() const
{
    EAccessMode mode = RW;
    if (m_copies) {
        for (const Node *copy : m_copies->nodes) {
            if (mode != NI)
                mode = combined(mode, Node::availability(copy));
        }
    }
    return mode;
}

template <typename Number>
std::pair<Number, Number> NumberSource<Number>::copiedRange(const Node &owner, std::pair<Number, Number> range)
{
    if (!m_copies)
        return range;
    if (m_copies->rangeIn != owner.map().evaluation()) {
        for (Node *copy : m_copies->nodes) {
            std::pair<Number, Number> limits;
            if constexpr (std::is_same_v<Number, double>)
                limits = copy->floatRange();
            else
                limits = copy->intRange();
            range = {std::max(range.first, limits.first), std::min(range.second, limits.second)};
        }
        m_copies->range = range;
        m_copies->rangeIn = owner.map().evaluation();
    }
    return m_copies->range;
}

template class NumberSource<int64_t>;
template class NumberSource<double>;

/** Limits and steps are those of the description, or of the node that has the value now; copies narrow them. */
std::pair<int64_t, int64_t> IntegerNode::intRange()
{
    if (m_source.hasCopies() && !m_minimum.isSet() && !m_maximum.isSet() && m_source.knowsCopiedRange(*this))
        return m_source.copiedRange(*this, {});
    Node *const node = m_source.limitingNode(*this);
    std::pair<int64_t, int64_t> range(int64Min, int64Max);
    if (node && !m_minimum.isSet() && !m_maximum.isSet())
        range = node->intRange();
    else if (node)
        range = {m_minimum.isSet() ? int64Min : node->intMin(), m_maximum.isSet() ? int64Max : node->intMax()};
    range = m_source.copiedRange(*this, range);
    return {m_minimum.isSet() ? m_minimum.value() : range.first, m_maximum.isSet() ? m_maximum.value() : range.second};
}

int64_t IntegerNode::intMin()
{
    if (m_source.isIndexed())
        m_source.currentNode(*this); // without a value there are no limits
    if (m_minimum.isSet())
        return m_minimum.value();
    Node *const node = m_source.limitingNode(*this);
    if (!m_source.hasCopies())
        return node ? node->intMin() : int64Min;
    return intRange().first;
}

int64_t IntegerNode::intMax()
{
    if (m_source.isIndexed())
        m_source.currentNode(*this); // without a value there are no limits
    if (m_maximum.isSet())
        return m_maximum.value();
    Node *const node = m_source.limitingNode(*this);
    if (!m_source.hasCopies())
        return node ? node->intMax() : int64Max;
    return intRange().second;
}

int64_t IntegerNode::intIncrement()
{
    if (m_increment.isSet())
        return m_increment.value();
    Node *const node = m_source.currentNode(*this);
    if (node && node->isFloat())
        return node->incrementMode() == fixedIncrement ? wholeIncrement(node->floatIncrement()) : 1;
    return node ? node->intIncrement() : 1;
}

EIncMode IntegerNode::incrementMode()
{
    if (m_validValues)
        return listIncrement;
    Node *const node = m_source.currentNode(*this);
    return node && node->incrementMode() == listIncrement ? listIncrement : fixedIncrement;
}

std::vector<int64_t> IntegerNode::validInts(bool bounded)
{
    std::vector<int64_t> values;
    if (m_validValues)
        values = *m_validValues;
    else if (Node *const node = m_source.currentNode(*this))
        values = node->validInts(false);
    if (bounded) {
        // The limits of its own are known even where there is no value.
        const int64_t maximum = m_maximum.isSet() ? m_maximum.value() : intMax();
        keepInside(values, {m_minimum.isSet() ? m_minimum.value() : intMin(), maximum});
    }
    return values;
}

/** A floating-point number's way to be shown says nothing about integers. */
ERepresentation IntegerNode::representation()
{
    if (m_presentation.representation != _UndefinedRepresentation)
        return m_presentation.representation;
    Node *const node = m_source.currentNode(*this);
    return node && !node->isFloat() ? node->representation() : PureNumber;
}

double FloatNode::floatMin()
{
    if (m_source.isIndexed())
        m_source.currentNode(*this); // without a value there are no limits
    if (m_minimum.isSet())
        return finiteLimit(m_minimum.value(), false);
    Node *const node = m_source.limitingNode(*this);
    return node ? node->floatMin() : FloatBase::floatMin();
}

double FloatNode::floatMax()
{
    if (m_source.isIndexed())
        m_source.currentNode(*this); // without a value there are no limits
    if (m_maximum.isSet())
        return finiteLimit(m_maximum.value(), true);
    Node *const node = m_source.limitingNode(*this);
    return node ? node->floatMax() : FloatBase::floatMax();
}

std::pair<double, double> FloatNode::floatRange()
{
    if (!m_minimum.isSet() && !m_maximum.isSet()) {
        if (Node *const node = m_source.limitingNode(*this))
            return node->floatRange();
    }
    return {floatMin(), floatMax()};
}

double FloatNode::floatIncrement()
{
    if (m_increment.isSet())
        return m_increment.value();
    Node *const node = m_source.currentNode(*this);
    return node ? node->floatIncrement() : 0;
}

EIncMode FloatNode::incrementMode()
{
    if (m_increment.isSet())
        return fixedIncrement;
    Node *const node = m_source.currentNode(*this);
    return node ? node->incrementMode() : noIncrement;
}

std::vector<double> FloatNode::validFloats(bool bounded)
{
    std::vector<double> values;
    Node *const node = m_source.currentNode(*this);
    if (!m_increment.isSet() && node)
        values = node->validFloats(false);
    if (bounded) {
        const double maximum = floatMax();
        keepInside(values, {floatMin(), maximum});
    }
    return values;
}

} // namespace OrvGenApi
