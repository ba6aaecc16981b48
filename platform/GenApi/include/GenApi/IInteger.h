// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

GENICAM_INTERFACE IFloat;

/** A signed 64-bit number. */
struct ORV_GENAPI_EXPORT IInteger : virtual public IValue
{
    virtual void SetValue(int64_t Value, bool Verify = true) = 0;
    virtual int64_t GetValue(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual int64_t GetMin() = 0;
    virtual int64_t GetMax() = 0;

    /** The step that values have to keep from the minimum, also where there is a list; 1 where the description has
     * none. */
    virtual int64_t GetInc() = 0;
    virtual EIncMode GetIncMode() = 0;

    /** The valid values, ascending; those within minimum and maximum when \a bounded. Empty without a list. */
    virtual int64_autovector_t GetListOfValidValues(bool bounded = true) = 0;
    virtual ERepresentation GetRepresentation() = 0;

    /** The physical unit, UTF-8; empty when there is none. */
    virtual GENICAM_NAMESPACE::gcstring GetUnit() = 0;

    /** Narrows what the description allows. */
    virtual void ImposeMin(int64_t Value) = 0;
    virtual void ImposeMax(int64_t Value) = 0;

    virtual IInteger &operator=(int64_t Value)
    {
        SetValue(Value);
        return *this;
    }
    int64_t operator()() { return GetValue(); }
    int64_t operator*() { return GetValue(); }
};

template <typename T, typename I = T>
class CIntegerRefT : public CValueRefT<T, I>
{
public:
    void SetValue(int64_t Value, bool Verify = true) override { this->referred().SetValue(Value, Verify); }
    CIntegerRefT &operator=(int64_t Value) override
    {
        SetValue(Value);
        return *this;
    }
    int64_t GetValue(bool Verify = false, bool IgnoreCache = false) override
    {
        return this->referred().GetValue(Verify, IgnoreCache);
    }
    int64_t GetMin() override { return this->referred().GetMin(); }
    int64_t GetMax() override { return this->referred().GetMax(); }
    int64_t GetInc() override { return this->referred().GetInc(); }
    EIncMode GetIncMode() override { return this->referred().GetIncMode(); }
    int64_autovector_t GetListOfValidValues(bool bounded = true) override
    {
        return this->referred().GetListOfValidValues(bounded);
    }
    ERepresentation GetRepresentation() override { return this->referred().GetRepresentation(); }
    GENICAM_NAMESPACE::gcstring GetUnit() override { return this->referred().GetUnit(); }
    void ImposeMin(int64_t Value) override { this->referred().ImposeMin(Value); }
    void ImposeMax(int64_t Value) override { this->referred().ImposeMax(Value); }

    /** The node of the same value with a fraction; null when there is none. */
    IFloat *GetFloatAlias() { return dynamic_cast<IFloat *>(this->referred().GetNode()->GetCastAlias()); }
};

using CIntegerRef = CIntegerRefT<IInteger>;

} // namespace GENAPI_NAMESPACE
