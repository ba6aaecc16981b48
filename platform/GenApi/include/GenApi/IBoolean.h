#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A truth value. */
struct ORV_GENAPI_EXPORT IBoolean : virtual public IValue
{
    virtual void SetValue(bool Value, bool Verify = true) = 0;
    virtual bool GetValue(bool Verify = false, bool IgnoreCache = false) const = 0;

    IBoolean &operator=(bool Value)
    {
        SetValue(Value);
        return *this;
    }
    bool operator()() const { return GetValue(); }

protected:
    ~IBoolean() = default;
};

} // namespace GENAPI_NAMESPACE
