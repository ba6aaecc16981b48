// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>
#include <GenApi/Types.h>

namespace GENAPI_NAMESPACE {

class CNodeCallback;
struct INodeMap;

/** What all nodes have besides their values. Texts are UTF-8.

    Derived properties - access, caching mode, streamability - follow the nodes that a node reads. */
struct ORV_GENAPI_EXPORT INode : virtual public IBase
{
    /** The name, in front of it the name space when \a FullQualified. */
    virtual GENICAM_NAMESPACE::gcstring GetName(bool FullQualified = false) const = 0;
    virtual EVisibility GetVisibility() const = 0;
    virtual void InvalidateNode() = 0;
    virtual ECachingMode GetCachingMode() const = 0;

    virtual ENameSpace GetNameSpace() const = 0;
    virtual bool IsCachable() const = 0;

    /** Whether the access mode changes only with what is known to change. */
    virtual EYesNo IsAccessModeCacheable() const = 0;
    virtual bool IsDeprecated() const = 0;

    /** The address of further documentation, and the event that reports changes; empty without one. */
    virtual GENICAM_NAMESPACE::gcstring GetDocuURL() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetEventID() const = 0;

    /** Another node for the same thing, and one for the same value in another kind; null when there is none. */
    virtual INode *GetAlias() const = 0;
    virtual INode *GetCastAlias() const = 0;

    /**
     * The nodes that depend on this one or on which it depends: those it reads, for any purpose; those it writes; those
     * that invalidate it; those whose change changes its value; those at the end of the chain that it writes, itself if
     * the chain ends here; those that read it (ctParentNodes); all that change with it, at any distance
     * (ctDependingNodes).
     */
    virtual void GetChildren(NodeList_t &Children, ELinkType LinkType = ctReadingChildren) const = 0;

    /** The nodes that read this one. */
    virtual void GetParents(NodeList_t &Parents) const = 0;

    /** The names of the properties that the description gives the node, or that it has without, sorted. */
    virtual void GetPropertyNames(GENICAM_NAMESPACE::gcstring_vector &PropertyNames) const = 0;

    /**
     * A property as text; several of one name with tabs between. \a AttributeStr becomes what the description says
     * about them besides: the name of a variable, the index of a value. False when there is none of that name.
     */
    virtual bool GetProperty(const GENICAM_NAMESPACE::gcstring &PropertyName, GENICAM_NAMESPACE::gcstring &ValueStr,
                             GENICAM_NAMESPACE::gcstring &AttributeStr) = 0;

    /** Makes the node available to fewer, until another mode is imposed: for what an application must not offer. */
    virtual void ImposeAccessMode(EAccessMode ImposedAccessMode) = 0;
    virtual void ImposeVisibility(EVisibility ImposedVisibility) = 0;

    /** Milliseconds between two polls; -1 when the node is not polled. */
    virtual int64_t GetPollingTime() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetToolTip() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetDescription() const = 0;

    /** The name for people; the node's name where the description gives none. */
    virtual GENICAM_NAMESPACE::gcstring GetDisplayName() const = 0;
    virtual GENICAM_NAMESPACE::gcstring GetDeviceName() const = 0;
    virtual INodeMap *GetNodeMap() const = 0;
    virtual EInterfaceType GetPrincipalInterfaceType() const = 0;

    /** Whether the value belongs to a stored set of settings. */
    virtual bool IsStreamable() const = 0;

    /** Whether the node is reached from the category "Root". */
    virtual bool IsFeature() const = 0;

    /** Takes ownership of \a pCallback; it is destroyed when it is deregistered or the node map goes. */
    virtual CallbackHandleType RegisterCallback(CNodeCallback *pCallback) = 0;

    /** Removes and destroys a callback; false when this node has no such one. */
    virtual bool DeregisterCallback(CallbackHandleType hCallback) = 0;
};

inline bool IsReadable(EAccessMode AccessMode)
{
    return AccessMode == RO || AccessMode == RW;
}

inline bool IsWritable(EAccessMode AccessMode)
{
    return AccessMode == WO || AccessMode == RW;
}

inline bool IsImplemented(EAccessMode AccessMode)
{
    return AccessMode != NI;
}

inline bool IsAvailable(EAccessMode AccessMode)
{
    return AccessMode != NI && AccessMode != NA;
}

// The same of an object; false for null.
inline bool IsReadable(const IBase *p)
{
    return p && IsReadable(p->GetAccessMode());
}

inline bool IsWritable(const IBase *p)
{
    return p && IsWritable(p->GetAccessMode());
}

inline bool IsImplemented(const IBase *p)
{
    return p && IsImplemented(p->GetAccessMode());
}

inline bool IsAvailable(const IBase *p)
{
    return p && IsAvailable(p->GetAccessMode());
}

inline bool IsReadable(const IBase &r)
{
    return IsReadable(&r);
}

inline bool IsWritable(const IBase &r)
{
    return IsWritable(&r);
}

inline bool IsImplemented(const IBase &r)
{
    return IsImplemented(&r);
}

inline bool IsAvailable(const IBase &r)
{
    return IsAvailable(&r);
}

/** What may be done where both modes apply. */
inline EAccessMode Combine(EAccessMode Peter, EAccessMode Paul)
{
    if (Peter == NI || Paul == NI)
        return NI;
    if (Peter == NA || Paul == NA)
        return NA;
    if (Peter == RW)
        return Paul;
    return Paul == RW || Paul == Peter ? Peter : NA; // one may only be read, the other only written
}

/** For whom something is that is for both. */
inline EVisibility Combine(EVisibility Peter, EVisibility Paul)
{
    return Peter > Paul ? Peter : Paul;
}

/** How something may be cached that is made of both. */
inline ECachingMode Combine(ECachingMode Peter, ECachingMode Paul)
{
    if (Peter == NoCache || Paul == NoCache)
        return NoCache;
    return Peter == WriteAround || Paul == WriteAround ? WriteAround : WriteThrough;
}

inline bool IsVisible(EVisibility Visibility, EVisibility MaxVisibility)
{
    return Visibility <= MaxVisibility;
}

inline bool IsCacheable(ECachingMode CachingMode)
{
    return CachingMode != NoCache;
}

} // namespace GENAPI_NAMESPACE
