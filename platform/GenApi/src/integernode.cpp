#include "integernode.h"

namespace OrvGenApi {

using namespace GenApi;

IntRef &IndexedValues::current(const Node &owner)
{
    index->requireReadable();
    const int64_t wanted = index->intValue(false);
    for (Item &item : items) {
        if (item.index == wanted)
            return item.value;
    }
    if (!fallback.isSet()) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + owner.name() + "' has no value for index " + std::to_string(wanted));
    }
    return fallback;
}

IntRef &IntegerNode::current()
{
    return m_indexed ? m_indexed->current(*this) : m_value;
}

Node *IntegerNode::currentNode()
{
    return m_indexed ? m_indexed->current(*this).node() : m_value.node();
}

EAccessMode IntegerNode::valueAccess() const
{
    if (!m_indexed)
        return m_value.node() ? m_value.node()->accessMode() : RW;
    if (!isReadable(m_indexed->index->accessMode()))
        return NA;
    const Node *const node = m_indexed->current(*this).node();
    return node ? node->accessMode() : RW;
}

bool IntegerNode::isCacheValid() const
{
    if (!m_indexed)
        return !m_value.node() || m_value.node()->isCacheValid();
    const Node *const node = m_indexed->index->isCacheValid() ? m_indexed->current(*this).node() : m_indexed->index;
    return !node || node->isCacheValid();
}

int64_t IntegerNode::intValue(bool ignoreCache)
{
    return current().value(ignoreCache);
}

void IntegerNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (verify)
        checkRange(value);
    IntRef &target = current();
    if (Node *const node = target.node()) {
        writeLinked(*node, value, verify, changes);
    } else {
        target.setConstant(value);
        changes.add(*this);
    }
    for (Node *copy : m_copies)
        writeLinked(*copy, value, verify, changes);
    // Whatever the index may pick belongs to this value, written now or not.
    if (m_indexed) {
        for (const IndexedValues::Item &item : m_indexed->items) {
            if (item.value.node())
                changes.add(*item.value.node());
        }
    }
}

int64_t IntegerNode::intMin()
{
    if (m_minimum.isSet())
        return m_minimum.value();
    Node *const node = currentNode();
    return node ? node->intMin() : int64Min;
}

int64_t IntegerNode::intMax()
{
    if (m_maximum.isSet())
        return m_maximum.value();
    Node *const node = currentNode();
    return node ? node->intMax() : int64Max;
}

std::pair<int64_t, int64_t> IntegerNode::intRange()
{
    if (!m_minimum.isSet() && !m_maximum.isSet()) {
        if (Node *const node = currentNode())
            return node->intRange();
    }
    return {intMin(), intMax()};
}

int64_t IntegerNode::intIncrement()
{
    if (m_increment.isSet())
        return m_increment.value();
    Node *const node = currentNode();
    return node && !node->isFloat() ? node->intIncrement() : 1;
}

EIncMode IntegerNode::incrementMode()
{
    if (m_validValues)
        return listIncrement;
    const Node *const node = m_value.node();
    if (!m_increment.isSet() && node)
        return m_value.node()->incrementMode() == listIncrement ? listIncrement : fixedIncrement;
    return fixedIncrement;
}

std::vector<int64_t> IntegerNode::validInts(bool bounded)
{
    std::vector<int64_t> values;
    if (m_validValues)
        values = *m_validValues;
    else if (!m_increment.isSet() && m_value.node())
        values = m_value.node()->validInts(false);
    if (bounded)
        keepInside(values, intRange());
    return values;
}

EAccessMode FloatNode::valueAccess() const
{
    return m_value.node() ? m_value.node()->accessMode() : RW;
}

void FloatNode::setFloatValue(double value, bool verify, Changes &changes)
{
    if (verify)
        checkRange(value);
    if (Node *const node = m_value.node()) {
        writeLinked(*node, value, verify, changes);
    } else {
        m_value.setConstant(value);
        changes.add(*this);
    }
    for (Node *copy : m_copies)
        writeLinked(*copy, value, verify, changes);
}

double FloatNode::floatMin()
{
    if (m_minimum.isSet())
        return m_minimum.value();
    return m_value.node() ? m_value.node()->floatMin() : FloatBase::floatMin();
}

double FloatNode::floatMax()
{
    if (m_maximum.isSet())
        return m_maximum.value();
    return m_value.node() ? m_value.node()->floatMax() : FloatBase::floatMax();
}

std::pair<double, double> FloatNode::floatRange()
{
    if (!m_minimum.isSet() && !m_maximum.isSet() && m_value.node())
        return m_value.node()->floatRange();
    return {floatMin(), floatMax()};
}

double FloatNode::floatIncrement()
{
    if (m_increment.isSet())
        return m_increment.value();
    return m_value.node() ? m_value.node()->floatIncrement() : 0;
}

EIncMode FloatNode::incrementMode()
{
    if (m_increment.isSet())
        return fixedIncrement;
    return m_value.node() ? m_value.node()->incrementMode() : noIncrement;
}

std::vector<double> FloatNode::validFloats(bool bounded)
{
    std::vector<double> values;
    if (!m_increment.isSet() && m_value.node())
        values = m_value.node()->validFloats(false);
    if (bounded)
        keepInside(values, floatRange());
    return values;
}

} // namespace OrvGenApi
