#include "values.h"

#include <cmath>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

void IntegerBase::SetValue(int64_t Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        requireWritable(Verify);
        setIntValue(Value, Verify, changes);
    });
}

int64_t IntegerBase::GetValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetValue");
    requireReadable();
    const int64_t value = intValue(IgnoreCache);
    if (Verify)
        checkRange(value);
    return value;
}

int64_t IntegerBase::GetMin()
{
    const Entry entry(*this, "GetMin");
    requireAvailable();
    return intMin();
}

int64_t IntegerBase::GetMax()
{
    const Entry entry(*this, "GetMax");
    requireAvailable();
    return intMax();
}

int64_t IntegerBase::GetInc()
{
    const Entry entry(*this, "GetInc");
    requireAvailable();
    return incrementMode() == listIncrement ? 1 : intIncrement();
}

EIncMode IntegerBase::GetIncMode()
{
    const Entry entry(*this, "GetIncMode");
    return incrementMode();
}

int64_autovector_t IntegerBase::GetListOfValidValues(bool bounded)
{
    const Entry entry(*this, "GetListOfValidValues");
    requireAvailable();
    return int64_autovector_t(validInts(bounded));
}

ERepresentation IntegerBase::GetRepresentation()
{
    const Entry entry(*this, "GetRepresentation");
    return representation();
}

gcstring IntegerBase::GetUnit()
{
    const Entry entry(*this, "GetUnit");
    return unit();
}

void IntegerBase::checkRange(int64_t value)
{
    const int64_t minimum = intMin();
    const int64_t maximum = intMax();
    const auto fail = [&](const std::string &why) {
        ORV_THROW(OutOfRangeException, std::string("node '") + name() + "': " + std::to_string(value) + why);
    };
    if (value < minimum)
        fail(" is below the minimum " + std::to_string(minimum));
    if (value > maximum)
        fail(" is above the maximum " + std::to_string(maximum));
    if (incrementMode() != fixedIncrement)
        return;
    const int64_t increment = intIncrement();
    const uint64_t offset = static_cast<uint64_t>(value) - static_cast<uint64_t>(minimum);
    if (increment > 1 && offset % static_cast<uint64_t>(increment) != 0)
        fail(" is off the increment " + std::to_string(increment) + " from " + std::to_string(minimum));
}

void FloatBase::SetValue(double Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        requireWritable(Verify);
        setFloatValue(Value, Verify, changes);
    });
}

double FloatBase::GetValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetValue");
    requireReadable();
    const double value = floatValue(IgnoreCache);
    if (Verify)
        checkRange(value);
    return value;
}

double FloatBase::GetMin()
{
    const Entry entry(*this, "GetMin");
    requireAvailable();
    return floatMin();
}

double FloatBase::GetMax()
{
    const Entry entry(*this, "GetMax");
    requireAvailable();
    return floatMax();
}

bool FloatBase::HasInc()
{
    const Entry entry(*this, "HasInc");
    return incrementMode() == fixedIncrement;
}

EIncMode FloatBase::GetIncMode()
{
    const Entry entry(*this, "GetIncMode");
    return incrementMode();
}

double FloatBase::GetInc()
{
    const Entry entry(*this, "GetInc");
    requireAvailable();
    switch (incrementMode()) {
    case fixedIncrement:
        return floatIncrement();
    case listIncrement:
        return 1;
    default:
        ORV_THROW(LogicalErrorException, std::string("node '") + name() + "' has no increment");
    }
}

double_autovector_t FloatBase::GetListOfValidValues(bool bounded)
{
    const Entry entry(*this, "GetListOfValidValues");
    requireAvailable();
    return double_autovector_t(validFloats(bounded));
}

ERepresentation FloatBase::GetRepresentation()
{
    const Entry entry(*this, "GetRepresentation");
    return representation();
}

gcstring FloatBase::GetUnit() const
{
    const Entry entry(*this, "GetUnit");
    return unit();
}

EDisplayNotation FloatBase::GetDisplayNotation() const
{
    const Entry entry(*this, "GetDisplayNotation");
    return displayNotation();
}

int64_t FloatBase::GetDisplayPrecision() const
{
    const Entry entry(*this, "GetDisplayPrecision");
    return displayPrecision();
}

double FloatBase::floatMin()
{
    return -std::numeric_limits<double>::max();
}

double FloatBase::floatMax()
{
    return std::numeric_limits<double>::max();
}

double FloatBase::floatIncrement()
{
    return 0;
}

void FloatBase::checkRange(double value)
{
    const double minimum = floatMin();
    const double maximum = floatMax();
    const auto fail = [&](const std::string &why) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + name() + "': " + formatFloat(value, fnAutomatic, 12) + why);
    };
    if (std::isnan(value))
        fail(" is no number");
    if (value < minimum)
        fail(" is below the minimum " + formatFloat(minimum, fnAutomatic, 12));
    if (value > maximum)
        fail(" is above the maximum " + formatFloat(maximum, fnAutomatic, 12));
    if (incrementMode() != fixedIncrement)
        return;
    const double increment = floatIncrement();
    if (!(increment > 0))
        return;
    // A decimal fraction is rarely exact in binary: what is as good as on the grid counts as on it.
    const double steps = (value - minimum) / increment;
    if (std::isfinite(steps) && std::abs(steps - std::round(steps)) > 1e-6 * std::max(1.0, std::abs(steps) * 1e-6))
        fail(" is off the increment " + formatFloat(increment, fnAutomatic, 12));
}

void writeLinked(Node &node, int64_t value, bool verify, Changes &changes)
{
    node.requireWritable(verify);
    changes.countWrite(node);
    node.setIntValue(value, verify, changes);
}

void writeLinked(Node &node, double value, bool verify, Changes &changes)
{
    node.requireWritable(verify);
    changes.countWrite(node);
    node.setFloatValue(value, verify, changes);
}

const char *Presentation::unitOf(const Node *value) const
{
    return unit ? unit : value ? value->unit() : "";
}

ERepresentation Presentation::representationOf(const Node *value) const
{
    if (representation != _UndefinedRepresentation)
        return representation;
    return value ? value->representation() : PureNumber;
}

EDisplayNotation Presentation::notationOf(const Node *value) const
{
    if (notation != _UndefinedEDisplayNotation)
        return notation;
    return value ? value->displayNotation() : fnAutomatic;
}

int64_t Presentation::precisionOf(const Node *value) const
{
    if (precision >= 0)
        return precision;
    return value ? value->displayPrecision() : 6;
}

} // namespace OrvGenApi
