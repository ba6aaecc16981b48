// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A range of bytes in the device. */
struct ORV_GENAPI_EXPORT IRegister : virtual public IValue
{
    virtual void Set(const uint8_t *pBuffer, int64_t Length, bool Verify = true) = 0;
    virtual void Get(uint8_t *pBuffer, int64_t Length, bool Verify = false, bool IgnoreCache = false) = 0;

    /** Length in bytes. */
    virtual int64_t GetLength(bool Verify = false) = 0;
    virtual int64_t GetAddress(bool Verify = false) = 0;
};

template <typename T>
class CRegisterRefT : public CValueRefT<T>
{
public:
    void Set(const uint8_t *pBuffer, int64_t Length, bool Verify = true) override
    {
        this->referred().Set(pBuffer, Length, Verify);
    }
    void Get(uint8_t *pBuffer, int64_t Length, bool Verify = false, bool IgnoreCache = false) override
    {
        this->referred().Get(pBuffer, Length, Verify, IgnoreCache);
    }
    int64_t GetLength(bool Verify = false) override { return this->referred().GetLength(Verify); }
    int64_t GetAddress(bool Verify = false) override { return this->referred().GetAddress(Verify); }
};

using CRegisterRef = CRegisterRefT<IRegister>;

} // namespace GENAPI_NAMESPACE
