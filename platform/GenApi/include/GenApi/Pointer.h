#pragma once

#include <Base/GCException.h>
#include <GenApi/IBase.h>
#include <GenApi/IBoolean.h>
#include <GenApi/ICategory.h>
#include <GenApi/ICommand.h>
#include <GenApi/IEnumEntry.h>
#include <GenApi/IEnumeration.h>
#include <GenApi/IFloat.h>
#include <GenApi/IInteger.h>
#include <GenApi/INode.h>
#include <GenApi/INodeMap.h>
#include <GenApi/IPort.h>
#include <GenApi/IRegister.h>
#include <GenApi/ISelector.h>
#include <GenApi/IString.h>
#include <GenApi/IValue.h>

#include <cstddef>

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
        : m_pointer(dynamic_cast<T *>(pB))
    {
    }

    CPointer &operator=(B *pB)
    {
        m_pointer = dynamic_cast<T *>(pB);
        return *this;
    }

    bool IsValid() const { return m_pointer != nullptr; }
    operator bool() const { return IsValid(); }
    bool operator!() const { return !IsValid(); }

    // Comparing is not using: it works with null ones.
    bool operator==(const T *pointer) const { return m_pointer == pointer; }
    bool operator==(const CPointer &other) const { return m_pointer == other.m_pointer; }
    bool operator==(std::nullptr_t) const { return !IsValid(); }
    bool operator==(int null) const
    {
        if (null != 0)
            throw GENICAM_NAMESPACE::LogicalErrorException("a pointer is compared with a number", __FILE__, __LINE__);
        return !IsValid();
    }
    bool operator!=(const T *pointer) const { return m_pointer != pointer; }
    bool operator!=(const CPointer &other) const { return m_pointer != other.m_pointer; }
    bool operator!=(std::nullptr_t) const { return IsValid(); }
    friend bool operator==(const T *pointer, const CPointer &self) { return self == pointer; }
    friend bool operator==(std::nullptr_t, const CPointer &self) { return !self.IsValid(); }
    friend bool operator!=(const T *pointer, const CPointer &self) { return self != pointer; }
    friend bool operator!=(std::nullptr_t, const CPointer &self) { return self.IsValid(); }

    operator T *() const { return checked(); }
    T &operator()() const { return *checked(); }
    T *operator->() const { return checked(); }
    T &operator*() const { return *checked(); }

protected:
    T *checked() const
    {
        if (!m_pointer)
            throw GENICAM_NAMESPACE::LogicalErrorException("NULL pointer dereferenced", __FILE__, __LINE__);
        return m_pointer;
    }

private:
    T *m_pointer = nullptr;
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
