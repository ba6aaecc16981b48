// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/PortImpl.h>

#include <cstring>

namespace GENAPI_NAMESPACE {

/** A device whose registers are the bytes of a structure, from \a BaseAddress on, for trying things out. */
template <class CDataStruct>
class CTestPortStruct : public CDataStruct, public CPortImpl
{
public:
    explicit CTestPortStruct(int64_t BaseAddress = 0)
        : m_BaseAddress(BaseAddress)
    {
        MemSet(0);
    }

    EAccessMode GetAccessMode() const override { return RW; }
    virtual EInterfaceType GetPrincipalInterfaceType() const { return intfIPort; }

    void Read(void *pBuffer, int64_t Address, int64_t Length) override
    {
        std::memcpy(pBuffer, place(Address, Length), static_cast<size_t>(Length));
        ++m_NumReads;
    }

    void Write(const void *pBuffer, int64_t Address, int64_t Length) override
    {
        std::memcpy(place(Address, Length), pBuffer, static_cast<size_t>(Length));
        ++m_NumWrites;
    }

    /** Gives all bytes a value. */
    void MemSet(const char FillValue) { std::memset(data(), FillValue, sizeof(CDataStruct)); }

    void ResetStatistics() { m_NumReads = m_NumWrites = 0; }
    int64_t GetNumReads() { return m_NumReads; }
    int64_t GetNumWrites() { return m_NumWrites; }

protected:
    int64_t m_NumReads = 0;
    int64_t m_NumWrites = 0;
    int64_t m_BaseAddress;

private:
    char *data() { return reinterpret_cast<char *>(static_cast<CDataStruct *>(this)); }

    char *place(int64_t address, int64_t length)
    {
        constexpr uint64_t size = sizeof(CDataStruct);
        const uint64_t offset = static_cast<uint64_t>(address) - static_cast<uint64_t>(m_BaseAddress);
        if (length < 0 || offset > size || static_cast<uint64_t>(length) > size - offset)
            throw RUNTIME_EXCEPTION("the structure has no %" FMT_I64 "d bytes at %" FMT_I64 "d", length, address);
        return data() + offset;
    }
};

} // namespace GENAPI_NAMESPACE
