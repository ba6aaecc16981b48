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
#include <GenApi/IPort.h>
#include <GenApi/IRegister.h>
#include <GenApi/ISelector.h>
#include <GenApi/IString.h>
#include <GenApi/IValue.h>

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
    operator T *() const { return checked(); }
    T *operator->() const { return checked(); }
    T &operator*() const { return *checked(); }

private:
    T *checked() const
    {
        if (!m_pointer)
            throw GENICAM_NAMESPACE::LogicalErrorException("NULL pointer dereferenced", __FILE__, __LINE__);
        return m_pointer;
    }

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
using CFloatPtr = CPointer<IFloat>;
using CCommandPtr = CPointer<ICommand>;
using CSelectorPtr = CPointer<ISelector>;

} // namespace GENAPI_NAMESPACE
