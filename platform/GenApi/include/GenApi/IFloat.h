// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

GENICAM_INTERFACE IInteger;
GENICAM_INTERFACE IEnumeration;

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

    virtual IFloat &operator=(double Value)
    {
        SetValue(Value);
        return *this;
    }
    double operator()() { return GetValue(); }
    double operator*() { return GetValue(); }
};

template <typename T>
class CFloatRefT : public CValueRefT<T>
{
public:
    void SetValue(double Value, bool Verify = true) override { this->referred().SetValue(Value, Verify); }
    CFloatRefT &operator=(double Value) override
    {
        SetValue(Value);
        return *this;
    }
    double GetValue(bool Verify = false, bool IgnoreCache = false) override
    {
        return this->referred().GetValue(Verify, IgnoreCache);
    }
    double GetMin() override { return this->referred().GetMin(); }
    double GetMax() override { return this->referred().GetMax(); }
    bool HasInc() override { return this->referred().HasInc(); }
    EIncMode GetIncMode() override { return this->referred().GetIncMode(); }
    double GetInc() override { return this->referred().GetInc(); }
    double_autovector_t GetListOfValidValues(bool bounded = true) override
    {
        return this->referred().GetListOfValidValues(bounded);
    }
    ERepresentation GetRepresentation() override { return this->referred().GetRepresentation(); }
    GENICAM_NAMESPACE::gcstring GetUnit() const override { return this->referred().GetUnit(); }
    EDisplayNotation GetDisplayNotation() const override { return this->referred().GetDisplayNotation(); }
    int64_t GetDisplayPrecision() const override { return this->referred().GetDisplayPrecision(); }
    void ImposeMin(double Value) override { this->referred().ImposeMin(Value); }
    void ImposeMax(double Value) override { this->referred().ImposeMax(Value); }

    /** The node of the same value as an integer or an enumeration; null when it is none. */
    IInteger *GetIntAlias() { return dynamic_cast<IInteger *>(this->referred().GetNode()->GetCastAlias()); }
    IEnumeration *GetEnumAlias() { return dynamic_cast<IEnumeration *>(this->referred().GetNode()->GetCastAlias()); }
};

using CFloatRef = CFloatRefT<IFloat>;

} // namespace GENAPI_NAMESPACE
