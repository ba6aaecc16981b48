// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "values.h"

#include <cmath>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

void IntegerBase::SetValue(int64_t Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        const Verification verification(m_map, Verify);
        setIntValue(Value, Verify, changes);
    });
}

int64_t IntegerBase::GetValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetValue");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    const Verification verification(m_map, Verify);
    return intValue(IgnoreCache);
}

int64_t IntegerBase::GetMin()
{
    const Entry entry(*this, "GetMin");
    requireAvailable();
    return lowest();
}

void IntegerBase::ImposeMin(int64_t Value)
{
    change("ImposeMin", [&](Changes &) {
        m_map.m_extras[this].intLimits.first = Value;
        m_hasImposedLimits = true;
    });
}

void IntegerBase::ImposeMax(int64_t Value)
{
    change("ImposeMax", [&](Changes &) {
        m_map.m_extras[this].intLimits.second = Value;
        m_hasImposedLimits = true;
    });
}

/** The limits with those that an application imposes. */
int64_t IntegerBase::lowest()
{
    return m_hasImposedLimits ? std::max(intMin(), m_map.m_extras[this].intLimits.first) : intMin();
}

int64_t IntegerBase::highest()
{
    return m_hasImposedLimits ? std::min(intMax(), m_map.m_extras[this].intLimits.second) : intMax();
}

int64_t IntegerBase::GetMax()
{
    const Entry entry(*this, "GetMax");
    requireAvailable();
    return highest();
}

int64_t IntegerBase::GetInc()
{
    const Entry entry(*this, "GetInc");
    requireAvailable();
    return intIncrement();
}

EIncMode IntegerBase::GetIncMode()
{
    const Entry entry(*this, "GetIncMode");
    return incrementMode();
}

int64_autovector_t IntegerBase::GetListOfValidValues(bool bounded)
{
    const Entry entry(*this, "GetListOfValidValues");
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
    const Verification unverified(m_map, false);
    const auto fail = [&](const std::string &why) {
        ORV_THROW(OutOfRangeException, std::string("node '") + name() + "': " + std::to_string(value) + why);
    };
    const int64_t minimum = lowest();
    if (value < minimum)
        fail(" is below the minimum " + std::to_string(minimum));
    const int64_t maximum = highest();
    if (value > maximum)
        fail(" is above the maximum " + std::to_string(maximum));
    const int64_t increment = intIncrement();
    if (increment <= 0)
        ORV_THROW(LogicalErrorException, std::string("node '") + name() + "': its increment is not above 0");
    const uint64_t offset = static_cast<uint64_t>(value) - static_cast<uint64_t>(minimum);
    if (increment > 1 && offset % static_cast<uint64_t>(increment) != 0)
        fail(" is off the increment " + std::to_string(increment) + " from " + std::to_string(minimum));
}

void IntegerBase::dropCache()
{
    Node::dropCache();
    m_kept.drop();
}

int64_t IntegerBase::intValue(bool ignoreCache)
{
    const bool mustVerify = m_map.m_verifying && m_kept.mustCheck(*this);
    const bool wasKept = m_kept.isKept();
    const int64_t value = m_kept.valueOr(*this, ignoreCache, mustVerify, [&] { return readInt(ignoreCache); });
    if (mustVerify) {
        const bool isKept = m_kept.isKept();
        m_kept.setKept(wasKept); // a value that fails does not become kept
        if (m_hasImposedLimits || !isCheckedBelow(value))
            checkRange(value);
        m_map.m_checkedRead = {this, value, m_map.evaluation()};
        checkError();
        m_kept.setKept(isKept);
    }
    return value;
}

/** The kept value is dropped even when the write is refused: the writer has reason to look again. */
void IntegerBase::setIntValue(int64_t value, bool verify, Changes &changes)
{
    const Descent descent(*this);
    m_kept.drop();
    requireWritable(verify);
    if (verify && (m_hasImposedLimits || !changes.isChecked(*this, value)))
        checkRange(value);
    const bool keeps = cachingMode() == WriteThrough && keepsWritten();
    {
        const PassingOn passingOn(*this, keeps);
        writeInt(value, verify, changes);
    }
    if (verify && checksBeforeKeeping())
        checkError();
    if (keeps)
        m_kept.keep(value);
    if (verify && !checksBeforeKeeping())
        checkError();
}

void FloatBase::SetValue(double Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) {
        const Verification verification(m_map, Verify);
        setFloatValue(Value, Verify, changes);
    });
}

double FloatBase::GetValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetValue");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    const Verification verification(m_map, Verify);
    return floatValue(IgnoreCache);
}

double FloatBase::GetMin()
{
    const Entry entry(*this, "GetMin");
    requireAvailable();
    return lowest();
}

void FloatBase::ImposeMin(double Value)
{
    change("ImposeMin", [&](Changes &) {
        m_map.m_extras[this].floatLimits.first = Value;
        m_hasImposedLimits = true;
    });
}

void FloatBase::ImposeMax(double Value)
{
    change("ImposeMax", [&](Changes &) {
        m_map.m_extras[this].floatLimits.second = Value;
        m_hasImposedLimits = true;
    });
}

/** The limits with those that an application imposes. */
double FloatBase::lowest()
{
    return m_hasImposedLimits ? std::max(floatMin(), m_map.m_extras[this].floatLimits.first) : floatMin();
}

double FloatBase::highest()
{
    return m_hasImposedLimits ? std::min(floatMax(), m_map.m_extras[this].floatLimits.second) : floatMax();
}

double FloatBase::GetMax()
{
    const Entry entry(*this, "GetMax");
    requireAvailable();
    return highest();
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
        ORV_THROW(RuntimeException, std::string("node '") + name() + "' has no increment");
    }
}

double_autovector_t FloatBase::GetListOfValidValues(bool bounded)
{
    const Entry entry(*this, "GetListOfValidValues");
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
    return const_cast<FloatBase *>(this)->unit();
}

EDisplayNotation FloatBase::GetDisplayNotation() const
{
    const Entry entry(*this, "GetDisplayNotation");
    return const_cast<FloatBase *>(this)->displayNotation();
}

int64_t FloatBase::GetDisplayPrecision() const
{
    const Entry entry(*this, "GetDisplayPrecision");
    return const_cast<FloatBase *>(this)->displayPrecision();
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

void FloatBase::dropCache()
{
    Node::dropCache();
    m_kept.drop();
}

double FloatBase::floatValue(bool ignoreCache)
{
    const bool mustVerify = m_map.m_verifying && m_kept.mustCheck(*this);
    const bool wasKept = m_kept.isKept();
    const double value = m_kept.valueOr(*this, ignoreCache, mustVerify, [&] { return readFloat(ignoreCache); });
    if (mustVerify) {
        const bool isKept = m_kept.isKept();
        m_kept.setKept(wasKept); // a value that fails does not become kept
        checkRange(value);
        checkError();
        m_kept.setKept(isKept);
    }
    return value;
}

void FloatBase::setFloatValue(double value, bool verify, Changes &changes)
{
    const Descent descent(*this);
    m_kept.drop();
    requireWritable(verify);
    if (verify)
        checkRange(value);
    const bool keeps = cachingMode() == WriteThrough && keepsWritten();
    {
        const PassingOn passingOn(*this, keeps);
        writeFloat(value, verify, changes);
    }
    if (verify && checksBeforeKeeping())
        checkError();
    if (keeps)
        m_kept.keep(value);
    if (verify && !checksBeforeKeeping())
        checkError();
}

void FloatBase::checkRange(double value)
{
    const Verification unverified(m_map, false);
    const auto fail = [&](const std::string &why) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + name() + "': " + formatFloat(value, fnAutomatic, 12) + why);
    };
    if (std::isnan(value))
        fail(" is no number");
    const double minimum = lowest();
    if (value < minimum)
        fail(" is below the minimum " + formatFloat(minimum, fnAutomatic, 12));
    const double maximum = highest();
    if (value > maximum)
        fail(" is above the maximum " + formatFloat(maximum, fnAutomatic, 12));
}

void writeLinked(Node &node, int64_t value, bool verify, Changes &changes)
{
    changes.countWrite(node);
    node.setIntNumber(value, verify, changes);
}

void writeLinked(Node &node, double value, bool verify, Changes &changes)
{
    changes.countWrite(node);
    node.setFloatValue(value, verify, changes);
}

} // namespace OrvGenApi
