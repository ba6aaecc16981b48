// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>
#include <GenApi/INode.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/** A node with a value. Objects belong to the node map and live as long as it does.

    Reading: \a Verify asks for range checks on the value read, \a IgnoreCache goes to the device even where a value is
    kept. Writing: \a Verify asks for checks of access and range before. Every operation may throw a
    GenICam::GenericException. */
struct ORV_GENAPI_EXPORT IValue : virtual public IBase
{
    virtual INode *GetNode() { return dynamic_cast<INode *>(this); }
    virtual GENICAM_NAMESPACE::gcstring ToString(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual void FromString(const GENICAM_NAMESPACE::gcstring &ValueStr, bool Verify = true) = 0;

    /** Whether the next read is answered without asking the device. */
    virtual bool IsValueCacheValid() const = 0;
};

template <typename T, typename I = T>
class CValueRefT : public CBaseRefT<T, I>
{
public:
    INode *GetNode() override { return this->referred().GetNode(); }
    GENICAM_NAMESPACE::gcstring ToString(bool Verify = false, bool IgnoreCache = false) override
    {
        return this->referred().ToString(Verify, IgnoreCache);
    }
    void FromString(const GENICAM_NAMESPACE::gcstring &ValueStr, bool Verify = true) override
    {
        this->referred().FromString(ValueStr, Verify);
    }
    bool IsValueCacheValid() const override { return this->referred().IsValueCacheValid(); }
};

using CValueRef = CValueRefT<IValue>;

} // namespace GENAPI_NAMESPACE
