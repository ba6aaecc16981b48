#include "integernode.h"

#include <algorithm>

namespace OrvGenApi {

using namespace GenApi;

template <typename Number>
EAccessMode NumberSource<Number>::access() const
{
    if (m_indexed && !picked())
        return NA;
    const Node *const node = m_indexed ? picked()->node() : m_value.node();
    return node ? node->accessMode() : RW;
}

template <typename Number>
bool NumberSource<Number>::isCacheValid() const
{
    if (m_indexed)
        return isIndexedCacheValid();
    return !m_value.node() || m_value.node()->isCacheValid();
}

template <typename Number>
bool NumberSource<Number>::isIndexedCacheValid() const
{
    if (!m_indexed->index)
        return false;
    const uint64_t evaluation = m_indexed->index->map().evaluation();
    if (m_indexed->askedIn != evaluation) {
        m_indexed->askedIn = evaluation;
        m_indexed->isValid =
            m_indexed->index->isCacheValid() && picked() && (!picked()->node() || picked()->node()->isCacheValid());
    }
    return m_indexed->isValid;
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
    Ref *found = nullptr;
    if (isReadable(index->unlockedAccessMode())) {
        const int64_t wanted = index->intValue(false);
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
void NumberSource<Number>::write(Node &owner, Number value, bool verify, Changes &changes)
{
    Ref &target = current(owner);
    if (Node *const node = target.node()) {
        writeLinked(*node, value, verify, changes);
    } else {
        target.setConstant(value);
        changes.add(owner);
    }
    for (Node *copy : m_copies)
        writeLinked(*copy, value, verify, changes);
    if (!m_indexed)
        return;
    // Whatever the index may pick belongs to this value, written now or not.
    for (const Item &item : m_indexed->items) {
        if (item.value.node())
            changes.add(*item.value.node());
    }
}

template class NumberSource<int64_t>;
template class NumberSource<double>;

void IntegerNode::setIntValue(int64_t value, bool verify, Changes &changes)
{
    if (verify)
        checkRange(value);
    m_source.write(*this, value, verify, changes);
}

int64_t IntegerNode::intMin()
{
    if (m_minimum.isSet())
        return m_minimum.value();
    Node *const node = m_source.currentNode(*this);
    return node ? node->intMin() : int64Min;
}

int64_t IntegerNode::intMax()
{
    if (m_maximum.isSet())
        return m_maximum.value();
    Node *const node = m_source.currentNode(*this);
    return node ? node->intMax() : int64Max;
}

std::pair<int64_t, int64_t> IntegerNode::intRange()
{
    if (!m_minimum.isSet() && !m_maximum.isSet()) {
        if (Node *const node = m_source.currentNode(*this))
            return node->intRange();
    }
    return {intMin(), intMax()};
}

int64_t IntegerNode::intIncrement()
{
    if (m_increment.isSet())
        return m_increment.value();
    Node *const node = m_source.currentNode(*this);
    return node && !node->isFloat() ? node->intIncrement() : 1;
}

EIncMode IntegerNode::incrementMode()
{
    if (m_validValues)
        return listIncrement;
    Node *const node = m_source.node();
    return !m_increment.isSet() && node && node->incrementMode() == listIncrement ? listIncrement : fixedIncrement;
}

std::vector<int64_t> IntegerNode::validInts(bool bounded)
{
    std::vector<int64_t> values;
    if (m_validValues)
        values = *m_validValues;
    else if (!m_increment.isSet() && m_source.node())
        values = m_source.node()->validInts(false);
    if (bounded)
        keepInside(values, intRange());
    return values;
}

void FloatNode::setFloatValue(double value, bool verify, Changes &changes)
{
    if (verify)
        checkRange(value);
    m_source.write(*this, value, verify, changes);
}

double FloatNode::floatMin()
{
    if (m_minimum.isSet())
        return m_minimum.value();
    Node *const node = m_source.currentNode(*this);
    return node ? node->floatMin() : FloatBase::floatMin();
}

double FloatNode::floatMax()
{
    if (m_maximum.isSet())
        return m_maximum.value();
    Node *const node = m_source.currentNode(*this);
    return node ? node->floatMax() : FloatBase::floatMax();
}

std::pair<double, double> FloatNode::floatRange()
{
    if (!m_minimum.isSet() && !m_maximum.isSet()) {
        if (Node *const node = m_source.currentNode(*this))
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
    return m_source.node() ? m_source.node()->incrementMode() : noIncrement;
}

std::vector<double> FloatNode::validFloats(bool bounded)
{
    std::vector<double> values;
    if (!m_increment.isSet() && m_source.node())
        values = m_source.node()->validFloats(false);
    if (bounded)
        keepInside(values, floatRange());
    return values;
}

} // namespace OrvGenApi
