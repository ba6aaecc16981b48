// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCException.h>
#include <Base/GCString.h>
#include <Base/GCTypes.h>

namespace GENAPI_NAMESPACE {

GENICAM_INTERFACE IBase;

/** Something that stands for a node and is told which. */
struct ORV_GENAPI_EXPORT IReference
{
    virtual void SetReference(IBase *pBase) = 0;

protected:
    ~IReference() = default;
};

/** A reference to an enumeration, which numbers the entries it knows. */
struct ORV_GENAPI_EXPORT IEnumReference
{
    virtual void SetEnumReference(int Index, GENICAM_NAMESPACE::gcstring Name) = 0;
    virtual void SetNumEnums(int NumEnums) = 0;

protected:
    ~IEnumReference() = default;
};

/**
 * A feature that a program holds as a member ahead of any node map: an object of interface \a T that passes on to the
 * node it has been given. Without one it is not implemented, and its use throws an AccessException.
 */
template <typename T, typename I = T>
class CReferenceT : public T, public IReference
{
public:
    void SetReference(IBase *ptr) override { m_Ptr = dynamic_cast<I *>(ptr); }

protected:
    I &referred() const
    {
        if (!m_Ptr)
            throw ACCESS_EXCEPTION("the reference has no node");
        return *m_Ptr;
    }

    I *m_Ptr = nullptr;
};

} // namespace GENAPI_NAMESPACE
