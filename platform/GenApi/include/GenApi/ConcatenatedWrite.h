// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <Base/GCException.h>
#include <Base/GCString.h>

namespace GENAPI_NAMESPACE {

/** Values that are to be written together, in the order in which they were added; made by a node map. */
class ORV_GENAPI_EXPORT CNodeWriteConcatenator
{
public:
    virtual void Add(const GENICAM_NAMESPACE::gcstring &nodeName, const GENICAM_NAMESPACE::gcstring &nodeValue) = 0;
    virtual void Add(const GENICAM_NAMESPACE::gcstring &nodeName, const char *nodeValue) = 0;
    virtual void Add(const GENICAM_NAMESPACE::gcstring &nodeName, const int64_t nodeValue) = 0;
    virtual void Add(const GENICAM_NAMESPACE::gcstring &nodeName, const double nodeValue) = 0;
    virtual void Add(const GENICAM_NAMESPACE::gcstring &nodeName, const bool nodeValue) = 0;
    virtual void Clear() = 0;
    virtual void Destroy() = 0;

protected:
    virtual ~CNodeWriteConcatenator() = default;
};

/** Owns such a list; use of an empty one throws an AccessException. */
class CNodeWriteConcatenatorRef
{
public:
    CNodeWriteConcatenatorRef() = default;
    CNodeWriteConcatenatorRef(CNodeWriteConcatenator *pConcatenator)
        : m_concatenator(pConcatenator)
    {
    }
    ~CNodeWriteConcatenatorRef() { *this = nullptr; }
    CNodeWriteConcatenatorRef(const CNodeWriteConcatenatorRef &) = delete;
    CNodeWriteConcatenatorRef &operator=(const CNodeWriteConcatenatorRef &) = delete;

    CNodeWriteConcatenatorRef &operator=(CNodeWriteConcatenator *pConcatenator)
    {
        if (m_concatenator)
            m_concatenator->Destroy();
        m_concatenator = pConcatenator;
        return *this;
    }

    void _Add(const GENICAM_NAMESPACE::gcstring &nodeName, const GENICAM_NAMESPACE::gcstring &nodeValue)
    {
        checked().Add(nodeName, nodeValue);
    }
    void _Add(const GENICAM_NAMESPACE::gcstring &nodeName, const char *nodeValue)
    {
        checked().Add(nodeName, nodeValue);
    }
    void _Add(const GENICAM_NAMESPACE::gcstring &nodeName, const int64_t nodeValue)
    {
        checked().Add(nodeName, nodeValue);
    }
    void _Add(const GENICAM_NAMESPACE::gcstring &nodeName, const double nodeValue)
    {
        checked().Add(nodeName, nodeValue);
    }
    void _Add(const GENICAM_NAMESPACE::gcstring &nodeName, const bool nodeValue) { checked().Add(nodeName, nodeValue); }
    void _Clear() { checked().Clear(); }

    /** Gives the list away. */
    CNodeWriteConcatenator *Release()
    {
        CNodeWriteConcatenator *const concatenator = m_concatenator;
        m_concatenator = nullptr;
        return concatenator;
    }
    CNodeWriteConcatenator *get() const { return m_concatenator; }
    operator CNodeWriteConcatenator *() const { return &checked(); }

private:
    CNodeWriteConcatenator &checked() const
    {
        if (!m_concatenator)
            throw ACCESS_EXCEPTION("there is no list of values to write");
        return *m_concatenator;
    }

    CNodeWriteConcatenator *m_concatenator = nullptr;
};

} // namespace GENAPI_NAMESPACE
