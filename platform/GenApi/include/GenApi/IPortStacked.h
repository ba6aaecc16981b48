// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/IPort.h>

namespace GENAPI_NAMESPACE {

/** One of several writes. */
struct PORT_REGISTER_STACK_ENTRY
{
    uint64_t Address;
    void *pBuffer;
    size_t Size; ///< in bytes
};

/** A port that can write several registers in one access. */
struct ORV_GENAPI_EXPORT IPortStacked : virtual public IPort
{
    using IPort::Write;
    virtual void Write(PORT_REGISTER_STACK_ENTRY *pEntries, size_t numEntries) = 0;
};

} // namespace GENAPI_NAMESPACE
