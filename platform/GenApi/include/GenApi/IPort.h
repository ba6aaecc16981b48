// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IBase.h>

namespace GENAPI_NAMESPACE {

/** The way to a device: reads and writes bytes at an address. Failures are thrown. */
struct ORV_GENAPI_EXPORT IPort : virtual public IBase
{
    virtual void Read(void *pBuffer, int64_t Address, int64_t Length) = 0;
    virtual void Write(const void *pBuffer, int64_t Address, int64_t Length) = 0;
};

template <typename T>
class CPortRefT : public CBaseRefT<T>
{
public:
    void Read(void *pBuffer, int64_t Address, int64_t Length) override
    {
        this->referred().Read(pBuffer, Address, Length);
    }
    void Write(const void *pBuffer, int64_t Address, int64_t Length) override
    {
        this->referred().Write(pBuffer, Address, Length);
    }
};

using CPortRef = CPortRefT<IPort>;

} // namespace GENAPI_NAMESPACE
