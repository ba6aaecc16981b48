// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Reference.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

/** What every object of a node map has. */
struct ORV_GENAPI_EXPORT IBase
{
    virtual ~IBase() = default;

    /** What may be done now; derived from the node's own mode, its locks and all that it depends on. */
    virtual EAccessMode GetAccessMode() const = 0;
};

template <typename T, typename I = T>
class CBaseRefT : public CReferenceT<T, I>
{
public:
    EAccessMode GetAccessMode() const override { return this->m_Ptr ? this->m_Ptr->GetAccessMode() : NI; }
};

using CBaseRef = CBaseRefT<IBase>;

} // namespace GENAPI_NAMESPACE
