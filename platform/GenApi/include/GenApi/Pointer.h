// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCException.h>
#include <GenApi/IBase.h>
#include <GenApi/IBoolean.h>
#include <GenApi/ICategory.h>
#include <GenApi/IChunkPort.h>
#include <GenApi/ICommand.h>
#include <GenApi/IDeviceInfo.h>
#include <GenApi/IEnumEntry.h>
#include <GenApi/IEnumeration.h>
#include <GenApi/IFloat.h>
#include <GenApi/IInteger.h>
#include <GenApi/INode.h>
#include <GenApi/INodeMap.h>
#include <GenApi/IPort.h>
#include <GenApi/IPortConstruct.h>
#include <GenApi/IPortRecorder.h>
#include <GenApi/IRegister.h>
#include <GenApi/ISelector.h>
#include <GenApi/IString.h>
#include <GenApi/IUserData.h>
#include <GenApi/IValue.h>

#include <cstddef>
#include <type_traits>

namespace GENAPI_NAMESPACE {

/**
 * One interface of an object, found by dynamic_cast; null when the object does not have it. Using a null one throws
 * GenICam::LogicalErrorException. Does not own the object.
 */
template <typename T, typename B = IBase>
class CPointer
{
public:
    CPointer() = default;
    CPointer(B *pB)
        : m_pT(dynamic_cast<T *>(pB))
    {
    }

    CPointer &operator=(B *pB)
    {
        m_pT = dynamic_cast<T *>(pB);
        return *this;
    }

    bool IsValid() const { return m_pT != nullptr; }
    operator bool() const { return IsValid(); }
    bool operator!() const { return !IsValid(); }

    // Comparing is not using: it works with null ones.
    bool operator==(const T *pointer) const { return m_pT == pointer; }
    bool operator==(const CPointer &other) const { return m_pT == other.m_pT; }
    bool operator==(std::nullptr_t) const { return !IsValid(); }
    bool operator==(int null) const { return *this == static_cast<long>(null); }
    bool operator==(long null) const // NULL is one
    {
        if (null != 0)
            throw GENICAM_NAMESPACE::LogicalErrorException("a pointer is compared with a number", __FILE__, __LINE__);
        return !IsValid();
    }
    template <typename Other>
    bool operator!=(const Other &other) const
    {
        return !(*this == other);
    }
    template <typename Other, typename = std::enable_if_t<!std::is_base_of_v<CPointer, Other>>>
    friend bool operator==(const Other &other, const CPointer &self)
    {
        return self == other;
    }
    template <typename Other, typename = std::enable_if_t<!std::is_base_of_v<CPointer, Other>>>
    friend bool operator!=(const Other &other, const CPointer &self)
    {
        return !(self == other);
    }

    operator T *() const { return checked(); }
    T &operator()() const { return *checked(); }
    T *operator->() const { return checked(); }
    T &operator*() const { return *checked(); }

protected:
    T *checked() const
    {
        if (!m_pT)
            throw GENICAM_NAMESPACE::LogicalErrorException("NULL pointer dereferenced", __FILE__, __LINE__);
        return m_pT;
    }

    T *m_pT = nullptr;
};

using CBasePtr = CPointer<IBase>;
using CNodePtr = CPointer<INode>;
using CValuePtr = CPointer<IValue>;
using CCategoryPtr = CPointer<ICategory>;
using CBooleanPtr = CPointer<IBoolean>;
using CIntegerPtr = CPointer<IInteger>;
using CStringPtr = CPointer<IString>;
using CRegisterPtr = CPointer<IRegister>;
using CEnumerationPtr = CPointer<IEnumeration>;
using CEnumEntryPtr = CPointer<IEnumEntry>;
using CPortPtr = CPointer<IPort>;
using CPortReplayPtr = CPointer<IPortReplay>;
using CPortRecorderPtr = CPointer<IPortRecorder>;
using CPortWriteListPtr = CPointer<IPortWriteList, IPortWriteList>;
using CPortConstructPtr = CPointer<IPortConstruct>;
using CPortStackedConstructPtr = CPointer<IPortStackedConstruct>;
using CChunkPortPtr = CPointer<IChunkPort>;
using CNodeUserDataPtr = CPointer<IUserData>;
using CNodeMapUserDataPtr = CPointer<IUserData, INodeMap>;
using CDeviceInfoPtr = CPointer<IDeviceInfo, INodeMap>;
using CCommandPtr = CPointer<ICommand>;
using CSelectorPtr = CPointer<ISelector>;
using CNodeMapPtr = CPointer<INodeMap, INodeMap>;

/** A floating-point number may have its value in an integer or an enumeration. */
class CFloatPtr : public CPointer<IFloat>
{
public:
    using CPointer::CPointer;
    CFloatPtr() = default;
    CFloatPtr &operator=(IBase *pB)
    {
        CPointer::operator=(pB);
        return *this;
    }

    /** The node that the value is taken from, as an integer or an enumeration; null when it is none. */
    IInteger *GetIntAlias() const { return dynamic_cast<IInteger *>(checked()->GetNode()->GetCastAlias()); }
    IEnumeration *GetEnumAlias() const { return dynamic_cast<IEnumeration *>(checked()->GetNode()->GetCastAlias()); }
};

template <typename T, typename B>
bool IsReadable(const CPointer<T, B> &pointer)
{
    return pointer.IsValid() && IsReadable(pointer->GetAccessMode());
}

template <typename T, typename B>
bool IsWritable(const CPointer<T, B> &pointer)
{
    return pointer.IsValid() && IsWritable(pointer->GetAccessMode());
}

template <typename T, typename B>
bool IsImplemented(const CPointer<T, B> &pointer)
{
    return pointer.IsValid() && IsImplemented(pointer->GetAccessMode());
}

template <typename T, typename B>
bool IsAvailable(const CPointer<T, B> &pointer)
{
    return pointer.IsValid() && IsAvailable(pointer->GetAccessMode());
}

/** The name of the interface that best describes an object. */
inline GENICAM_NAMESPACE::gcstring GetInterfaceName(IBase *pBase)
{
    static const char *const names[] = {"IValue",  "IBase",     "IInteger",  "IBoolean",     "ICommand",   "IFloat",
                                        "IString", "IRegister", "ICategory", "IEnumeration", "IEnumEntry", "IPort"};
    return names[CNodePtr(pBase)->GetPrincipalInterfaceType()];
}

} // namespace GENAPI_NAMESPACE
