// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Container.h>
#include <GenApi/IEnumEntry.h>
#include <GenApi/IValue.h>

namespace GENAPI_NAMESPACE {

/** A choice of named values. */
struct ORV_GENAPI_EXPORT IEnumeration : virtual public IValue
{
    /** All entries, implemented or not, in the order of the description. */
    virtual void GetEntries(NodeList_t &Entries) = 0;

    /** The symbolic names of the entries that are available. */
    virtual void GetSymbolics(StringList_t &Symbolics) = 0;
    virtual void SetIntValue(int64_t Value, bool Verify = true) = 0;
    virtual int64_t GetIntValue(bool Verify = false, bool IgnoreCache = false) = 0;

    /** The entry with that symbolic name or integer value; null when there is none. */
    virtual IEnumEntry *GetEntryByName(const GENICAM_NAMESPACE::gcstring &Symbolic) = 0;
    virtual IEnumEntry *GetEntry(int64_t IntValue) = 0;

    /** The entry of the current value; null when no entry has it. */
    virtual IEnumEntry *GetCurrentEntry(bool Verify = false, bool IgnoreCache = false) = 0;

    virtual IEnumeration &operator=(const GENICAM_NAMESPACE::gcstring &ValueStr)
    {
        FromString(ValueStr);
        return *this;
    }
    GENICAM_NAMESPACE::gcstring operator*() { return ToString(); }
};

} // namespace GENAPI_NAMESPACE
