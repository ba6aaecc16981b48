// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A truth value. */
struct ORV_GENAPI_EXPORT IBoolean : virtual public IValue
{
    virtual void SetValue(bool Value, bool Verify = true) = 0;
    virtual bool GetValue(bool Verify = false, bool IgnoreCache = false) const = 0;

    virtual IBoolean &operator=(bool Value)
    {
        SetValue(Value);
        return *this;
    }
    bool operator()() const { return GetValue(); }
};

template <typename T>
class CBooleanRefT : public CValueRefT<T>
{
public:
    void SetValue(bool Value, bool Verify = true) override { this->referred().SetValue(Value, Verify); }
    CBooleanRefT &operator=(bool Value) override
    {
        SetValue(Value);
        return *this;
    }
    bool GetValue(bool Verify = false, bool IgnoreCache = false) const override
    {
        return this->referred().GetValue(Verify, IgnoreCache);
    }
};

using CBooleanRef = CBooleanRefT<IBoolean>;

} // namespace GENAPI_NAMESPACE
