// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** One choice of an enumeration. Its access mode tells whether it can be chosen now. */
struct ORV_GENAPI_EXPORT IEnumEntry : virtual public IValue
{
    virtual int64_t GetValue() = 0;
    virtual GENICAM_NAMESPACE::gcstring GetSymbolic() const = 0;

    /** The number the entry stands for; its integer value where the description gives none. */
    virtual double GetNumericValue() = 0;

    /** Whether the device leaves this entry by itself. */
    virtual bool IsSelfClearing() = 0;
};

template <typename T>
class CEnumEntryRefT : public CValueRefT<T>
{
public:
    int64_t GetValue() override { return this->referred().GetValue(); }
    GENICAM_NAMESPACE::gcstring GetSymbolic() const override { return this->referred().GetSymbolic(); }
    double GetNumericValue() override { return this->referred().GetNumericValue(); }
    bool IsSelfClearing() override { return this->referred().IsSelfClearing(); }
};

using CEnumEntryRef = CEnumEntryRefT<IEnumEntry>;

} // namespace GENAPI_NAMESPACE
