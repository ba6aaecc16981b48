#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A number in double precision. */
struct ORV_GENAPI_EXPORT IFloat : virtual public IValue
{
    virtual void SetValue(double Value, bool Verify = true) = 0;
    virtual double GetValue(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual double GetMin() = 0;
    virtual double GetMax() = 0;

    /** Whether there is a fixed increment. */
    virtual bool HasInc() = 0;
    virtual EIncMode GetIncMode() = 0;

    /** The step of a fixed increment; throws where there is no increment. */
    virtual double GetInc() = 0;

    /** The valid values, ascending; those within minimum and maximum when \a bounded. Empty without a list. */
    virtual double_autovector_t GetListOfValidValues(bool bounded = true) = 0;
    virtual ERepresentation GetRepresentation() = 0;

    /** The physical unit, UTF-8; empty when there is none. */
    virtual GENICAM_NAMESPACE::gcstring GetUnit() const = 0;
    virtual EDisplayNotation GetDisplayNotation() const = 0;

    /** Digits to show: behind the point in fixed notation, significant ones otherwise. */
    virtual int64_t GetDisplayPrecision() const = 0;

    /** Narrows what the description allows. */
    virtual void ImposeMin(double Value) = 0;
    virtual void ImposeMax(double Value) = 0;

    IFloat &operator=(double Value)
    {
        SetValue(Value);
        return *this;
    }
    double operator()() { return GetValue(); }
    double operator*() { return GetValue(); }

protected:
    ~IFloat() = default;
};

} // namespace GENAPI_NAMESPACE
