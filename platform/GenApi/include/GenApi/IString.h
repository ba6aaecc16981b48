// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A text, UTF-8. */
struct ORV_GENAPI_EXPORT IString : virtual public IValue
{
    virtual void SetValue(const GENICAM_NAMESPACE::gcstring &Value, bool Verify = true) = 0;
    virtual GENICAM_NAMESPACE::gcstring GetValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /** The longest text that can be written, in bytes. */
    virtual int64_t GetMaxLength(bool Verify = false) = 0;

    virtual IString &operator=(const GENICAM_NAMESPACE::gcstring &Value)
    {
        SetValue(Value);
        return *this;
    }
    GENICAM_NAMESPACE::gcstring operator()() { return GetValue(); }
    GENICAM_NAMESPACE::gcstring operator*() { return GetValue(); }
};

template <typename T>
class CStringRefT : public CValueRefT<T>
{
public:
    void SetValue(const GENICAM_NAMESPACE::gcstring &Value, bool Verify = true) override
    {
        this->referred().SetValue(Value, Verify);
    }
    CStringRefT &operator=(const GENICAM_NAMESPACE::gcstring &Value) override
    {
        SetValue(Value);
        return *this;
    }
    GENICAM_NAMESPACE::gcstring GetValue(bool Verify = false, bool IgnoreCache = false) override
    {
        return this->referred().GetValue(Verify, IgnoreCache);
    }
    int64_t GetMaxLength(bool Verify = false) override { return this->referred().GetMaxLength(Verify); }
};

using CStringRef = CStringRefT<IString>;

} // namespace GENAPI_NAMESPACE
